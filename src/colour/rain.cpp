// Pane Rain: a matrix of buttons, a row for each pure colour. The square sets that colour, the other buttons move the
// selected colour toward it.
#include <string>

#include "colour/col_win_rules.h"
#include "colour/colour.h"

namespace kiso::col_win {

namespace {

enum Component : uint8_t { R = 1, G = 2, B = 4 };

// Plus adds to the components of the row's colour, minus takes from the others: both lead to the colour. The row of
// white is the exception, its minus takes from all three and leads to black.
struct RainRow {
  const char* name;
  uint8_t plus, minus;
};
constexpr RainRow RAIN[] = {
    {"青", B, R | G},
    {"赤", R, G | B},
    {"紫", R | B, G},
    {"緑", G, R | B},
    {"水色", G | B, R},
    {"黄", R | G, B},
    {"白", R | G | B, R | G | B},
    {"黒", 0, 0},
};

void add(int step, uint8_t components) {
  if (components & R) CUR_R += step;
  if (components & G) CUR_G += step;
  if (components & B) CUR_B += step;
}

void change(int step, uint8_t components) {
  COL_LOAD_WORK();
  add(step, components);
  COL_UPDATE();
  PICK_EXIT();
}

void P_BUT_Click(int Index) { change(1, RAIN[Index].plus); }
void PP_BUT_Click(int Index) { change(16, RAIN[Index].plus); }
void M_BUT_Click(int Index) { change(-1, RAIN[Index].minus); }
void MM_BUT_Click(int Index) { change(-16, RAIN[Index].minus); }

void C_BUT_Click(int Index) {
  CUR_R = CUR_G = CUR_B = 0;
  add(255, RAIN[Index].plus);
  COL_UPDATE();
  PICK_EXIT();
}

// A button looks pressed while the pointer's button is down on it.
void look(ImageBox& button, int cell_y) { button.Cell(button.sheet(), button.cell_x(), cell_y); }
template <auto BUTTONS>
void press(int Index, int /*Button*/, int /*Shift*/, float /*X*/, float /*Y*/) {
  look((COL_WIN.*BUTTONS)(Index), 16);
}
template <auto BUTTONS>
void release(int Index, int /*Button*/, int /*Shift*/, float /*X*/, float /*Y*/) {
  look((COL_WIN.*BUTTONS)(Index), 0);
}

template <auto BUTTONS>
void wire_column(ColWin& win, void (*click)(int)) {
  auto& column = win.*BUTTONS;
  for (int i = 0; i < column.count; ++i) {
    column(i).Click = click;
    column(i).MouseDown = press<BUTTONS>;
    column(i).MouseUp = release<BUTTONS>;
  }
}

// "緑へ R-16 B-16"; the square "緑" alone.
std::string tip(int row, int step) {
  if (step == 0) return RAIN[row].name;
  const uint8_t components = step > 0 ? RAIN[row].plus : RAIN[row].minus;
  const bool to_black = step < 0 && RAIN[row].plus == RAIN[row].minus;
  std::string text = std::string(to_black ? "黒" : RAIN[row].name) + "へ";
  const std::string amount = (step > 0 ? "+" : "") + std::to_string(step);
  if (components & R) text += " R" + amount;
  if (components & G) text += " G" + amount;
  if (components & B) text += " B" + amount;
  return text;
}

template <class Buttons>
void design_column(Buttons& buttons, int column, const char* sheet, int step) {
  for (int i = 0; i < buttons.count; ++i) {
    place(buttons(i), 4 + 20 * column, 1 + 16 * i, 16, 16, &COL_WIN.CSEL_BASE(0));
    buttons(i).Cell(sheet, 16 * i, 0);
    buttons(i).ToolTip(tip(i, step));
  }
}

}  // namespace

void wire_rain(ColWin& win) {
  wire_column<&ColWin::C_BUT>(win, C_BUT_Click);
  wire_column<&ColWin::P_BUT>(win, P_BUT_Click);
  wire_column<&ColWin::PP_BUT>(win, PP_BUT_Click);
  wire_column<&ColWin::M_BUT>(win, M_BUT_Click);
  wire_column<&ColWin::MM_BUT>(win, MM_BUT_Click);
}

void design_rain() {
  design_column(COL_WIN.C_BUT, 0, "C_BUT_IMG", 0);
  design_column(COL_WIN.P_BUT, 1, "P_BUT_IMG", 1);
  design_column(COL_WIN.PP_BUT, 2, "PP_BUT_IMG", 16);
  design_column(COL_WIN.M_BUT, 3, "M_BUT_IMG", -1);
  design_column(COL_WIN.MM_BUT, 4, "MM_BUT_IMG", -16);
}

}  // namespace kiso::col_win
