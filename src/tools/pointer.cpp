// The pointer pipeline: what all tools have in common from the press to the commit.
#include "frame/p_win.h"
#include "frame/preview.h"
#include "frame/state_families.h"
#include "frame/usr_sub.h"
#include "tools/p_win_events.h"
#include "tools/tool_table.h"
#include "tools/tools.h"

namespace kiso {

namespace {

void note_pointer(float X, float Y) {
  PT_CUR(1) = to_int16(X);
  PT_CUR(2) = to_int16(Y);
  p_win::show_position(X, Y);
}

void toggle_palettes() {
  if (PAL_SHOWN == 1) {
    PAL_HIDE();
    PAL_SHOWN = 0;
  } else {
    PAL_SHOWN = 1;
    PAL_SHOW();
  }
}

// The right button during a stroke.
void cancel_stroke() {
  p_win::show_info(" ");
  Timer1.Interval(0);
  PEN_DOWN = 0;
  cover_preview();
  fall_back(BY_RIGHT);
  VIEW_REDRAW();
}

void right_press(float X, float Y) {
  if (PEN_DOWN == 1) {
    cancel_stroke();
  } else if (RCLICK_PICK == 0) {
    toggle_palettes();
  } else {
    spoit(X, Y);
  }
}

void left_press(float X, float Y) {
  if (DOWN_BUSY != 0) return;
  const ToolRow& tool = tool_row(CUR_TOOL);
  if (PEN_DOWN != 0 && !tool.holds_stroke) return;
  DOWN_BUSY = 1;
  PEN_DOWN = 1;
  STROKE_STATE = 1;
  PT_DOT(1) = p_win::view_pixel(X);
  PT_DOT(2) = p_win::view_pixel(Y);
  COL_A = RGB(TAR_R, TAR_G, TAR_B);
  COL_B = RGB(DES_R, DES_G, DES_B);
  COL_XOR = WHITE;
  DRAW.DrawWidth(PEN_SIZE);
  DRAW.DrawMode(COPY);
  DRAW.FillStyle(1);
  if (!tool.keeps_start) {
    PT_START(1) = PT_LAST(1) = to_int32(X);
    PT_START(2) = PT_LAST(2) = to_int32(Y);
  }
  tool.press(X, Y);
  DOWN_BUSY = 0;
}

// A tool is not called again while the pointer stays in the same picture pixel.
bool enters_new_pixel(float X, float Y) {
  const int x = p_win::view_pixel(X);
  const int y = p_win::view_pixel(Y);
  if (x == PT_DOT(1) && y == PT_DOT(2)) return false;
  PT_DOT(1) = x;
  PT_DOT(2) = y;
  return true;
}

void commit_box(double x1, double y1, double x2, double y2) { VIEW_COMMIT_RECT(x1, y1, x2, y2); }

void commit(Commit what) {
  if (what == Commit::absent || what == Commit::none || what == Commit::open) return;
  if (what == Commit::view || UNDO_READY != 1) {
    VIEW_COMMIT();
    return;
  }
  if (what == Commit::stroke_box) {
    const double pen = PEN_SIZE / 2.0 + 1;
    for (int axis : {1, 2}) {
      BOX_MIN(axis) = to_int32(BOX_MIN(axis) - pen);
      BOX_MAX(axis) = to_int32(BOX_MAX(axis) + pen);
    }
  }
  commit_box(BOX_MIN(1), BOX_MIN(2), BOX_MAX(1), BOX_MAX(2));
}

void stroke_over(Commit what) {
  if (what == Commit::open) return;
  STROKE_STATE = 2;
  if (what == Commit::absent) return;
  UNDO_READY = 1;
  UNDO_BUTTON(0);
}

void left_release(float X, float Y) {
  UP_BUSY = 1;
  const ToolRow& released = tool_row(CUR_TOOL);
  released.release(X, Y);
  if (released.after_release != 0) CUR_TOOL = released.after_release;
  const ToolRow& reached = tool_row(CUR_TOOL);
  commit(reached.commit);
  stroke_over(reached.commit);
  if (!reached.holds_stroke) PEN_DOWN = 0;
  if (reached.after_commit != 0) CUR_TOOL = reached.after_commit;
  UP_BUSY = 0;
}

}  // namespace

namespace p_win {

void DRAW_MouseDown(int Button, int /*Shift*/, float X, float Y) {
  note_pointer(X, Y);
  if (Button == 2) right_press(X, Y);
  if (Button == 1) left_press(X, Y);
}

void DRAW_MouseMove(int Button, int /*Shift*/, float X, float Y) {
  note_pointer(X, Y);
  if (Button == 2) return;
  if (Button != 1) {
    tool_row(CUR_TOOL).hover(X, Y);
    return;
  }
  if (MOVE_BUSY != 0) return;
  MOVE_BUSY = 1;
  if (PEN_DOWN == 1 && enters_new_pixel(X, Y)) tool_row(CUR_TOOL).drag(X, Y);
  MOVE_BUSY = 0;
}

void DRAW_MouseUp(int Button, int /*Shift*/, float X, float Y) {
  show_position(X, Y);
  if (Button == 1 && UP_BUSY == 0 && PEN_DOWN == 1) left_release(X, Y);
}

void DRAW_DblClick() { tool_row(CUR_TOOL).double_click(PT_CUR(1), PT_CUR(2)); }

bool tool_wants_each_press() { return tool_row(CUR_TOOL).each_press; }

void DRAW_Wheel(int right, int down) {
  if (PEN_DOWN != 0) return;
  constexpr int STEP = 16;  // DRAW pixels
  const auto roll = [](ScrollBar& bar, int steps) {
    if (steps == 0 || !bar.Enabled()) return;
    bar.Value(std::clamp(bar.Value() + steps * std::max(1, 3 * STEP / EXP_RATE), bar.Min(), bar.Max()));
  };
  roll(X_SC, right);
  roll(Y_SC, down);
}

void DMY_MouseDown(int Button, int /*Shift*/, float /*X*/, float /*Y*/) {
  if (Button == 2) toggle_palettes();
}

void Timer1_Timer() {
  if (PEN_DOWN == 1) tool_row(CUR_TOOL).tick();
}

}  // namespace p_win
}  // namespace kiso
