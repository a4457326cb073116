// The copies of a rectangle. A part of the view, or the clipboard's picture, lies on WORK, which floats above DRAW with
// the pointer; DRAW itself changes only at the stamp.
#include <cstdlib>

#include "frame/p_win.h"
#include "frame/usr_sub.h"
#include "platform/forms/clipboard.h"
#include "tools/tools.h"

namespace kiso {

namespace {

// WORK stands over that part of DRAW and holds its pixels. What lies outside of DRAW is white.
void lift(int left, int top, int w, int h) {
  WORK.Move(left, top, w, h);
  WORK.Cls();
  BitBlt(WORK, 0, 0, w, h, DRAW, left, top);
}

// A selection along one axis, from the press to the release.
struct Span {
  int from, length;
  int offset;  // from the pointer to where the floating area begins
};

// It ends within the size of the picture: DRAW may end before.
Span selected(float v, int axis, bool even) {
  v = std::clamp(v, 0.0F, static_cast<float>(PIC_SIZE(axis)));
  const auto start = static_cast<float>(PT_START(axis));
  int length = to_int32(std::abs(v - start) + 1);
  if (even) length += length % 2;
  return {std::min(PT_START(axis), to_int32(v)), length, v >= start ? 0 : -length};
}

void lift_selection(float X, float Y, bool even) {
  area_erase();
  DRAW.DrawMode(COPY);
  const Span x = selected(X, 1, even);
  const Span y = selected(Y, 2, even);
  AREA_DX = x.offset;
  AREA_DY = y.offset;
  lift(x.from, y.from, x.length, y.length);
}

// The block of the pointer, moved by the area's offset.
Point block_place(float X, float Y) {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
  DOT_SNAP(X, Y, 1, left, top, right, bottom);
  return {left + AREA_DX, top + AREA_DY};
}

}  // namespace

void stamp_work(double left, double top, int w, int h) {
  BitBlt(DRAW, to_int32(left), to_int32(top), w, h, WORK, 0, 0);
  WORK.Visible(false);
}

// --- Area copy: one lift, one stamp

void area_copy_release(float X, float Y) {
  lift_selection(X, Y, false);
  AREA_W = to_int32(WORK.Width());
  AREA_H = to_int32(WORK.Height());
  WORK.Visible(true);
  CUR_TOOL = 20001;
}

void area_hover(float X, float Y) { WORK.Move(X + static_cast<float>(AREA_DX), Y + static_cast<float>(AREA_DY)); }

void area_stamp(float X, float Y) {
  stamp_work(X + static_cast<float>(AREA_DX), Y + static_cast<float>(AREA_DY), AREA_W, AREA_H);
  CUR_TOOL = 20002;
}

// --- Copy at expansion: the same in whole blocks

void block_copy_release(float X, float Y) {
  snap_erase();
  snap_to_pointer(X, Y);
  AREA_W = std::abs(RECT_OLD(3) - RECT_OLD(1)) + 1;
  AREA_H = std::abs(RECT_OLD(4) - RECT_OLD(2)) + 1;
  AREA_DX = X >= static_cast<float>(PT_START(1)) ? 0 : EXP_RATE - AREA_W;
  AREA_DY = Y >= static_cast<float>(PT_START(2)) ? 0 : EXP_RATE - AREA_H;
  lift(RECT_OLD(1), RECT_OLD(2), AREA_W, AREA_H);
  WORK.Visible(true);
  CUR_TOOL = 11101;
}

void block_copy_hover(float X, float Y) {
  const Point place = block_place(X, Y);
  WORK.Move(place.x, place.y);
}

void block_copy_stamp(float X, float Y) {
  const Point place = block_place(X, Y);
  stamp_work(place.x, place.y, AREA_W, AREA_H);
  CUR_TOOL = 11102;
}

// --- the clipboard

// Other programs get a picture of even width and height.
void clipboard_copy_release(float X, float Y) {
  lift_selection(X, Y, true);
  Clipboard::Clear();
  Clipboard::SetData(WORK.Image());
}

// The palette has put the clipboard's picture on WORK; the pointer holds it by its bottom right corner.
void clipboard_hover(float X, float Y) { WORK.Move(X - WORK.Width(), Y - WORK.Height()); }

void clipboard_stamp(float X, float Y) {
  stamp_work(X - WORK.Width(), Y - WORK.Height(), to_int32(WORK.Width()), to_int32(WORK.Height()));
  CUR_TOOL = 0;
}

}  // namespace kiso
