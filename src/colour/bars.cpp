// Pane R/H: two groups of three bars that follow each other. Each group has a lock that is set while code moves its
// bars, so that their Change events, which fire at once, do not come back to the colour.
#include <algorithm>

#include "colour/col_win_rules.h"
#include "colour/colour.h"
#include "platform/forms/layout.h"
#include "platform/text/text.h"

namespace kiso::col_win {

namespace {

void show_hsv() {
  double H, S, V;
  RGB_TO_HSV(CUR_R, CUR_G, CUR_B, H, S, V);
  COL_HSV_LOCK = 1;
  COL_WIN.H_BAR.Value(to_int32(H));
  COL_WIN.S_BAR.Value(to_int32(255 * S));
  COL_WIN.V_BAR.Value(to_int32(255 * V));
  COL_HSV_LOCK = 0;
}

void show_rgb() {
  COL_WIN.B_BAR.Value(CUR_B);
  COL_WIN.R_BAR.Value(CUR_R);
  COL_WIN.G_BAR.Value(CUR_G);
}

void rgb_changed(const ScrollBar& bar, Label& value, int32_t& component) {
  component = bar.Value();
  value.Caption(text::Str(bar.Value()));
  if (COL_RGB_LOCK != 0) return;
  COL_UPDATE();
  PICK_EXIT();
  show_hsv();
}
void R_BAR_Change() { rgb_changed(COL_WIN.R_BAR, COL_WIN.R_VAL, CUR_R); }
void G_BAR_Change() { rgb_changed(COL_WIN.G_BAR, COL_WIN.G_VAL, CUR_G); }
void B_BAR_Change() { rgb_changed(COL_WIN.B_BAR, COL_WIN.B_VAL, CUR_B); }

// The labels of these three have no leading blank, unlike those of R, G and B.
void hsv_changed(const ScrollBar& bar, Label& value) {
  value.Caption(std::to_string(bar.Value()));
  if (COL_HSV_LOCK != 0) return;
  double S = COL_WIN.S_BAR.Value() / 255.0;
  double V = COL_WIN.V_BAR.Value() / 255.0;
  double r = 0, g = 0, b = 0;
  HSV_TO_RGB(COL_WIN.H_BAR.Value(), S, V, r, g, b);
  COL_RGB_LOCK = 1;
  CUR_R = to_int32(255 * r);
  CUR_G = to_int32(255 * g);
  CUR_B = to_int32(255 * b);
  show_rgb();
  // With the pane closed for the length of the call, these three keep what the user has set instead of being computed
  // from the rounded colour: at V 0, H and S stay although the colour is black.
  COL_PANE = 0;
  COL_UPDATE();
  COL_PANE = 1;
  COL_RGB_LOCK = 0;
  PICK_EXIT();
}
void H_BAR_Change() { hsv_changed(COL_WIN.H_BAR, COL_WIN.H_VAL); }
void S_BAR_Change() { hsv_changed(COL_WIN.S_BAR, COL_WIN.S_VAL); }
void V_BAR_Change() { hsv_changed(COL_WIN.V_BAR, COL_WIN.V_VAL); }

struct BarRow {
  ScrollBar ColWin::*bar;
  Label ColWin::*value;
  Label ColWin::*letter;
  const char *caption, *name, *start_value;
  int max;
  Colour ink;
  void (*change)();
};
constexpr BarRow BARS[] = {
    {&ColWin::R_BAR, &ColWin::R_VAL, &ColWin::Label1, "R", "赤", " 0", 255, RGB(176, 0, 0), R_BAR_Change},
    {&ColWin::G_BAR, &ColWin::G_VAL, &ColWin::Label2, "G", "緑", " 0", 255, RGB(0, 112, 0), G_BAR_Change},
    {&ColWin::B_BAR, &ColWin::B_VAL, &ColWin::Label3, "B", "青", " 0", 255, RGB(0, 0, 208), B_BAR_Change},
    {&ColWin::H_BAR, &ColWin::H_VAL, &ColWin::Label4, "H", "色相", "0", 360, 0, H_BAR_Change},
    {&ColWin::S_BAR, &ColWin::S_VAL, &ColWin::Label5, "S", "彩度", "0", 255, 0, S_BAR_Change},
    {&ColWin::V_BAR, &ColWin::V_VAL, &ColWin::Label6, "V", "明度", "0", 255, 0, V_BAR_Change},
};

}  // namespace

void show_bars() {
  COL_RGB_LOCK = 1;
  show_rgb();
  COL_RGB_LOCK = 0;
  show_hsv();
}

void wire_bars(ColWin& win) {
  for (const BarRow& row : BARS) (win.*row.bar).Change = row.change;
}

// A letter, its bar, and the number, which has room for its widest; the bar takes what is left.
void design_bars() {
  constexpr int LEFT = 4, RIGHT = 101, LETTER = 10;
  int letter_width = LETTER;
  for (const BarRow& row : BARS) letter_width = std::max(letter_width, forms::text_width(row.caption));
  const int bar_left = LEFT + letter_width + 1;
  const int value_left = RIGHT - forms::number_width(3);
  PictureBox* pane = &COL_WIN.CSEL_BASE(1);
  double top = 3;
  for (const BarRow& row : BARS) {
    ScrollBar& bar = COL_WIN.*row.bar;
    Label& value = COL_WIN.*row.value;
    Label& letter = COL_WIN.*row.letter;
    place(letter, LEFT, top + 1, letter_width, 16, pane);
    letter.Caption(row.caption);
    letter.ForeColor(row.ink);
    place(bar, bar_left, top, value_left - bar_left, 16, pane);
    bar.range(0, row.max, 0, 1, 16);
    bar.ToolTip(row.name);
    place(value, value_left, top + 1, RIGHT - value_left, 16, pane);
    value.align = Label::Align::right;
    value.Caption(row.start_value);
    top += row.bar == &ColWin::B_BAR ? 24 : 20;
  }
}

}  // namespace kiso::col_win
