// The strokes of the pixel engines that work as pens.
#include "engines/pen_engines.h"
#include "engines/tile.h"
#include "frame/preview.h"
#include "frame/usr_sub.h"
#include "palette/cmd_win.h"
#include "tools/tools.h"

namespace kiso {

namespace {

using Pen = void (*)(float X, float Y);

void press_with(Pen pen, float X, float Y) {
  begin_preview();
  WORK.DrawMode(13);
  size_to_tile(WORK);
  pen(X, Y);
}

void release_with(Pen pen, float X, float Y) {
  pen(X, Y);
  end_preview();
}

// While the UNDO button is off there is no snapshot of this view, and a commit of what the view shows takes one.
void take_first_snapshot() {
  if (CMD_WIN.UNDO.Enabled()) return;
  VIEW_COMMIT();
  UNDO_READY = 1;
}

void tick_with(Pen pen) { pen(PT_CUR(1), PT_CUR(2)); }

}  // namespace

void mask_press(float X, float Y) { press_with(PEN_MASK, X, Y); }
void mask_release(float X, float Y) { release_with(PEN_MASK, X, Y); }
void mask_rev_press(float X, float Y) { press_with(PEN_MASK_REV, X, Y); }
void mask_rev_release(float X, float Y) { release_with(PEN_MASK_REV, X, Y); }
void mask_fuzzy_press(float X, float Y) { press_with(PEN_MASK_FUZZY, X, Y); }
void mask_fuzzy_release(float X, float Y) { release_with(PEN_MASK_FUZZY, X, Y); }

void pen_v_press(float X, float Y) {
  WORK2.Move(0, 0, DRAW.Width(), DRAW.Height());
  WORK2.AutoRedraw(true);
  BitBlt(WORK2, 0, 0, VIEW_DOT(1), VIEW_DOT(2), DRAW, 0, 0);
  press_with(PEN_V, X, Y);
}
void pen_v_release(float X, float Y) { release_with(PEN_V, X, Y); }

// --- sprays: nothing is painted before the first tick

void spray_press(float /*X*/, float /*Y*/) { Timer1.Interval(SPRAY_MS); }
void spray_release(float /*X*/, float /*Y*/) { Timer1.Interval(0); }

void spray_air_press(float X, float Y) {
  SPRAY_AIR_PREP();
  spray_press(X, Y);
}

void spray_air_mask_press(float X, float Y) {
  take_first_snapshot();
  spray_air_press(X, Y);
}

void spray_dot_tick() { tick_with(SPRAY_DOT); }
void spray_mask_tick() { tick_with(SPRAY_MASK); }
void spray_air_tick() { tick_with(SPRAY_AIR); }
void spray_air_mask_tick() { tick_with(SPRAY_AIR_MASK); }

// --- Thru Pen, side change

void thru_press(float X, float Y) {
  take_first_snapshot();
  PEN_THRU_PREP();
  PEN_THRU(X, Y);
}

void side_change(float X, float Y) { SIDE_CHANGE(X, Y, CUR_TOOL - 11); }

}  // namespace kiso
