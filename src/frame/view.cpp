// The view: DRAW is a window on PIC, and what is painted on DRAW is read back into PIC.
#include "frame/p_win.h"
#include "frame/p_win_events.h"
#include "frame/preview.h"
#include "frame/state_families.h"
#include "frame/usr_sub.h"
#include "platform/raster/read_back.h"

namespace kiso {

namespace {

// Picture pixels that fit into DMY at that rate, whatever the picture's size: an even number.
int room_for(int rate, int axis) {
  const double free = axis == 1 ? DMY.ScaleWidth() - DRAW.Left() : DMY.ScaleHeight() - DRAW.Top();
  const int n = truncate((free - 2) / rate);
  return std::max(n - n % 2, 0);
}

void take_snapshot() { BitBlt(UNDO, 0, 0, VIEW_PIX(1), VIEW_PIX(2), PIC, VIEW_ORG(1), VIEW_ORG(2)); }

void bar_to_view(ScrollBar& bar, int axis) {
  bar.Enabled(room_for(EXP_RATE, axis) <= PIC_SIZE(axis));
  bar.LargeChange(std::max<int>(1, VIEW_PIX(axis)));
  bar.Min(0);
  bar.Max(PIC_SIZE(axis) - VIEW_PIX(axis));  // a Value that this cuts fires Change, which sets VIEW_ORG
}

void scrolled(ScrollBar& bar, int axis) {
  if (UNDO_READY == 1) {  // the snapshot belongs to one place of the view
    UNDO_READY = 0;
    UNDO_BUTTON(2);
  }
  fall_back(BY_SCROLL);
  if (drop_preview()) PEN_DOWN = 0;
  VIEW_ORG(axis) = to_int16(bar.Value());
  p_win::VIEW_SCROLL_SHOW();
}

}  // namespace

void VIEW_FIT() {
  if (drop_preview()) {
    fall_back(BY_FIT);
    PEN_DOWN = 0;
  }
  for (int axis : {1, 2}) {
    VIEW_PIX(axis) = to_int16(std::min<int>(room_for(EXP_RATE, axis), PIC_SIZE(axis)));
    VIEW_DOT(axis) = to_int16(EXP_RATE * VIEW_PIX(axis));
  }
  DRAW.Move(DRAW.Left(), DRAW.Top(), VIEW_DOT(1), VIEW_DOT(2));
  VIEW_REDRAW();
  bar_to_view(X_SC, 1);
  bar_to_view(Y_SC, 2);
}

void VIEW_REDRAW() {
  RUBBER_ON = 0;
  if (EXP_RATE == 1) {
    BitBlt(DRAW, 0, 0, VIEW_DOT(1), VIEW_DOT(2), PIC, VIEW_ORG(1), VIEW_ORG(2));
  } else {
    StretchBlt(DRAW, 0, 0, VIEW_DOT(1), VIEW_DOT(2), PIC, VIEW_ORG(1), VIEW_ORG(2), VIEW_PIX(1), VIEW_PIX(2));
  }
}

void VIEW_COMMIT() {
  if (EXP_RATE == 1) {
    // Strip by strip, so that the picture's rows are still in the cache when they are overwritten.
    constexpr int STRIP = 32;
    for (int y = 0; y < VIEW_PIX(2); y += STRIP) {
      const int h = std::min(STRIP, VIEW_PIX(2) - y);
      BitBlt(UNDO, 0, y, VIEW_PIX(1), h, PIC, VIEW_ORG(1), VIEW_ORG(2) + y);
      BitBlt(PIC, VIEW_ORG(1), VIEW_ORG(2) + y, VIEW_PIX(1), h, DRAW, 0, y);
    }
  } else {
    take_snapshot();
    read_back(PIC, VIEW_ORG(1), VIEW_ORG(2), VIEW_PIX(1), VIEW_PIX(2), DRAW, 0, 0, EXP_RATE);
  }
}

void VIEW_COMMIT_RECT(double& x1, double& y1, double& x2, double& y2) {
  x1 = std::max(x1, 0.0);
  y1 = std::max(y1, 0.0);
  x2 = std::min(x2, VIEW_DOT(1) - 1.0);
  y2 = std::min(y2, VIEW_DOT(2) - 1.0);
  take_snapshot();
  const int w = to_int32(x2 - x1 + 1);
  const int h = to_int32(y2 - y1 + 1);
  if (EXP_RATE == 1) {
    BitBlt(PIC, to_int32(x1 + VIEW_ORG(1)), to_int32(y1 + VIEW_ORG(2)), w, h, DRAW, to_int32(x1), to_int32(y1));
    return;
  }
  x2 += 1;
  y2 += 1;
  const double py1 = y1 / EXP_RATE;
  const double py2 = y2 / EXP_RATE;
  int c = to_int32(x1 + EXP_RATE / 2.0);
  const int last = to_int32(x2 / EXP_RATE + VIEW_ORG(1));
  for (int p = to_int32(x1 / EXP_RATE + VIEW_ORG(1)); p <= last; ++p) {
    StretchBlt(PIC, p, to_int32(py1 + VIEW_ORG(2)), 1, to_int32(py2 - py1), DRAW, c, to_int32(y1), 1, h);
    c += EXP_RATE;
  }
}

void VIEW_CENTER(double x, double y, int rate, int16_t& outX, int16_t& outY) {
  const auto origin = [rate](double at, int axis) {
    const int shown = std::min<int>(room_for(rate, axis), PIC_SIZE(axis));
    const int o = VIEW_ORG(axis) + truncate(at / EXP_RATE) - shown / 2;  // EXP_RATE: the old rate
    return to_int16(std::max(0, std::min(std::max(o, 0), PIC_SIZE(axis) - shown)));
  };
  outX = origin(x, 1);
  outY = origin(y, 2);
}

void DOT_SNAP(double x, double y, int n, int& left, int& top, int& right, int& bottom) {
  left = EXP_RATE * (truncate(x / EXP_RATE) - n / 2);
  top = EXP_RATE * (truncate(y / EXP_RATE) - n / 2);
  right = left + EXP_RATE * n - 1;
  bottom = top + EXP_RATE * n - 1;
}

namespace p_win {

void X_SC_Change() { scrolled(X_SC, 1); }
void Y_SC_Change() { scrolled(Y_SC, 2); }

void VIEW_SCROLL_SHOW() {
  VIEW_REDRAW();
  show_position(PT_CUR(1), PT_CUR(2));
}

void DRAW_Resize() {
  UNDO.Move(0, 0, DRAW.Width(), DRAW.Height());
  M_REDRAW.Move(0, 0, DRAW.Width(), DRAW.Height());
}

}  // namespace p_win
}  // namespace kiso
