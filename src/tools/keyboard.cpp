// The keys of the picture: scrolling, pen size, the keypad as a pointer, undo, colours.
#include "colour/col_win.h"
#include "colour/colour.h"
#include "frame/p_win.h"
#include "frame/state_families.h"
#include "frame/usr_sub.h"
#include "palette/cmd_win.h"
#include "tools/p_win_events.h"

namespace kiso {

namespace {

enum Key { PAGE_UP = 33, PAGE_DOWN = 34, LEFT = 37, UP = 38, RIGHT = 39, DOWN = 40, PAD_0 = 96 };

struct KeypadStep {
  int key, dx, dy;
};
constexpr KeypadStep KEYPAD[] = {
    {97, -1, 1}, {98, 0, 1}, {99, 1, 1}, {100, -1, 0}, {102, 1, 0}, {103, -1, -1}, {104, 0, -1}, {105, 1, -1},
};

void scroll(ScrollBar& bar, int step) { bar.Value(std::clamp(bar.Value() + step, bar.Min(), bar.Max())); }

void step_pen(int step) {
  ScrollBar& bar = CMD_WIN.PEN_SZ_SB;
  bar.Value(std::clamp(bar.Value() + step, bar.Min(), bar.Max()));
}

void cancel_or_undo() {
  if (STROKE_STATE == 1) {
    DROP_STROKE();
  } else if (UNDO_READY == 1) {
    UNDO_SWAP();
  }
}

Colour pixel_under_pointer() { return GetPixel(DRAW, PT_CUR(1), PT_CUR(2)); }

// The pixel becomes one of the two pen colours; the bars follow if that is the one being edited.
void take_colour(int target) {
  if (PEN_DOWN != 0) return;
  const Colour pixel = pixel_under_pointer();
  if (target == 0) {
    unpack_colour(pixel, TAR_R, TAR_G, TAR_B);
    COL_A = RGB(TAR_R, TAR_G, TAR_B);
    COL_WIN.TAR_COL.BackColor(RGB(TAR_R, TAR_G, TAR_B));
  } else {
    unpack_colour(pixel, DES_R, DES_G, DES_B);
    COL_B = RGB(DES_R, DES_G, DES_B);
    COL_WIN.DES_COL.BackColor(RGB(DES_R, DES_G, DES_B));
  }
  if (COL_TARGET != target) return;
  COL_LOAD_WORK();
  COL_UPDATE();
}

}  // namespace

namespace p_win {

void DRAW_KeyDown(int KeyCode, int Shift) {
  KEY_MOVED = 0;
  if (PEN_DOWN != 0) return;  // the keypad does not steer a stroke that it holds
  const int step = Shift == 1 ? 16 : 1;
  switch (KeyCode) {
    case DOWN: scroll(Y_SC, step); return;
    case UP: scroll(Y_SC, -step); return;
    case RIGHT: scroll(X_SC, step); return;
    case LEFT: scroll(X_SC, -step); return;
    case PAGE_UP: step_pen(1); return;
    case PAGE_DOWN: step_pen(-1); return;
    case PAD_0:
      mouse_event(2, 1, 1);
      KEY_MOVED = 1;
      return;
    default: break;
  }
  for (const KeypadStep& pad : KEYPAD) {
    if (pad.key != KeyCode) continue;
    mouse_event(1, pad.dx, pad.dy);
    KEY_MOVED = 1;
  }
}

void DRAW_KeyUp(int KeyCode, int /*Shift*/) {
  if (KeyCode != PAD_0) return;
  mouse_event(4, 1, 1);
  KEY_MOVED = 1;
}

void DRAW_KeyPress(int KeyAscii) {
  if (KEY_MOVED == 1) return;
  if (KeyAscii >= 'a' && KeyAscii <= 'z') KeyAscii -= 32;
  if (KeyAscii == ' ') {
    fall_back(BY_BLANK);
    cancel_or_undo();
  } else if (KeyAscii == '1' || KeyAscii == '2') {
    take_colour(KeyAscii - '1');
  } else if (KeyAscii >= 'A' && KeyAscii <= 'Z') {
    DICT_KEY(KeyAscii, pixel_under_pointer());
  }
}

void DMY_KeyPress(int KeyAscii) {
  if (KeyAscii == ' ') {
    if (STROKE_STATE == 1) {
      PEN_DOWN = 0;
      VIEW_REDRAW();
    } else if (UNDO_READY == 1) {
      UNDO_SWAP();
    }
  } else if (KeyAscii == '1' || KeyAscii == '2') {
    Beep();
    COL_TARGET = static_cast<int16_t>(KeyAscii - '1');
    unpack_colour(pixel_under_pointer(), CUR_R, CUR_G, CUR_B);
    COL_UPDATE();
  }
}

}  // namespace p_win
}  // namespace kiso
