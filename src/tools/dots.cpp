// Pset and FreeLine, and Pset's square dots at expansion.
#include "frame/p_win.h"
#include "frame/usr_sub.h"
#include "tools/tools.h"

namespace kiso {

namespace {

// The box that a dot tool has touched grows to hold this one; the press begins it anew.
void grow_box(bool anew, int left, int top, int right, int bottom) {
  BOX_MIN(1) = anew ? left : std::min(BOX_MIN(1), left);
  BOX_MIN(2) = anew ? top : std::min(BOX_MIN(2), top);
  BOX_MAX(1) = anew ? right : std::max(BOX_MAX(1), right);
  BOX_MAX(2) = anew ? bottom : std::max(BOX_MAX(2), bottom);
}

void dot_of_blocks(float X, float Y, bool anew) {
  int l = 0;
  int t = 0;
  int r = 0;
  int b = 0;
  DOT_SNAP(X, Y, PEN_SIZE, l, t, r, b);
  DRAW.DrawWidth(1);
  Line(DRAW, l, t, r, b, COL_A, LineForm::box_fill);
  grow_box(anew, l, t, r, b);
}

}  // namespace

void pset_press(float X, float Y) {
  PSet(DRAW, X, Y, COL_A);
  grow_box(true, to_int32(X), to_int32(Y), to_int32(X), to_int32(Y));
}

void pset_dot(float X, float Y) {
  PSet(DRAW, X, Y, COL_A);
  grow_box(false, to_int32(X), to_int32(Y), to_int32(X), to_int32(Y));
}

void freeline_press(float X, float Y) { PSet(DRAW, X, Y, COL_A); }

void freeline_drag(float X, float Y) {
  Line(DRAW, X, Y, PT_LAST(1), PT_LAST(2), COL_A);
  PT_LAST(1) = to_int32(X);
  PT_LAST(2) = to_int32(Y);
}

void block_dot_press(float X, float Y) { dot_of_blocks(X, Y, true); }
void block_dot(float X, float Y) { dot_of_blocks(X, Y, false); }

}  // namespace kiso
