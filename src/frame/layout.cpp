// What Form_Resize lays out, and the status line.
#include <cstdio>

#include "frame/p_win.h"
#include "frame/p_win_events.h"
#include "frame/usr_sub.h"
#include "platform/text/text.h"

namespace kiso::p_win {

namespace {

int16_t palettes_restored = 1;  // 0 while the window is minimized

void follow_window_state() {
  if (P_WIN.WindowState() == 1) {
    PAL_HIDE();
    palettes_restored = 0;
  } else if (palettes_restored == 0) {
    PAL_SHOW();
    palettes_restored = 1;
  }
}

void lay_out() {
  const double W = P_WIN.ScaleWidth();
  const double H = P_WIN.ScaleHeight() - (STATUS_ON == 1 ? STATUS_H : 0);
  if (W <= 30 || H <= 30) return;
  const double h = X_SC.Height();
  const double w = Y_SC.Width();
  DMY.Move(DMY.Left(), DMY.Top(), W - w, H - h);
  RB.Move(W - h, H - w);  // width and height crossed: right for square scroll bars alone
  for (Label* label : {&INF_POSX, &INF_POSY, &INF_CMD, &INF_SUB}) {
    if (STATUS_ON == 1) label->Top(H + 4);
    label->Visible(STATUS_ON == 1);
  }
  X_SC.Move(X_SC.Left(), H - h, W - w, h);
  Y_SC.Move(W - w, Y_SC.Top(), w, H - h);
  VIEW_FIT();
}

}  // namespace

void Form_Resize() {
  follow_window_state();
  if (P_WIN.WindowState() != 1) lay_out();
}

void RB_Click() {
  STATUS_ON = STATUS_ON == 1 ? 0 : 1;
  RB.Cell("RB_IMG", 0, STATUS_ON * 14);
  lay_out();
}

int view_pixel(double v) { return EXP_RATE == 1 ? to_int32(v) : truncate(v / EXP_RATE); }

void show_position(double X, double Y) {
  if (STATUS_ON != 1) return;
  INF_POSX.Caption("X=" + text::Str(VIEW_ORG(1) + view_pixel(X)));
  INF_POSY.Caption("Y=" + text::Str(VIEW_ORG(2) + view_pixel(Y)));
}

void show_info(std::string_view text) {
  if (STATUS_ON == 1) INF_SUB.Caption(text);
}

void show_size(int w, int h) {
  char text[48];
  std::snprintf(text, sizeof text, "Size X= %d Y= %d", w, h);
  show_info(text);
}

void show_points_left(int placed) {
  char text[32];
  std::snprintf(text, sizeof text, "あと %d点", 256 - placed);
  show_info(text);
}

}  // namespace kiso::p_win
