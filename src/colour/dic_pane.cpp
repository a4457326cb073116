// Pane Dic: the open dictionary with its 26 cells, which are read or written by click and by letter key.
#include <string>

#include "colour/col_win_rules.h"
#include "colour/colour.h"
#include "platform/forms/layout.h"

namespace kiso::col_win {

namespace {

// A click is the letter key of that cell; what it stores is the selected colour, which CUR_ need not be.
void COLINDEX_Click(int Index) {
  DICT_KEY('A' + Index, COL_TARGET != 0 ? RGB(DES_R, DES_G, DES_B) : RGB(TAR_R, TAR_G, TAR_B));
}

void show_cells() {
  for (int cell = 0; cell < COL_WIN.COLINDEX.count; ++cell) {
    const auto& colour = DICT_COL(DICT_CUR)(cell);
    DICT_CELL_SHOW(cell, colour(1), colour(2), colour(3));
  }
}

void Combo1_Click() {
  // Of dictionaries with the same name the last one opens.
  for (int16_t i = 0; i <= 9; ++i) {
    if (COL_WIN.Combo1.Text() != DICT_NAME(i)) continue;
    DICT_CUR = i;
    show_cells();
  }
}

// Enter or Tab gives the open dictionary the name that has been typed.
void Combo1_KeyPress(int KeyAscii) {
  if (KeyAscii != 9 && KeyAscii != 13) return;
  const std::string name = COL_WIN.Combo1.Text();
  for (int i = 0; i <= 9; ++i) {
    if (name != DICT_NAME(i)) continue;
    MsgBox("既にその名前は使われています", OK_ONLY, APP_TITLE);
    return;
  }
  COL_WIN.Combo1.RemoveItem(DICT_CUR);
  COL_WIN.Combo1.AddItem(name, DICT_CUR);
  DICT_NAME(DICT_CUR) = name;
}

void set_write_mode(int16_t write) {
  COL_WIN.Command4.Visible(write == 0);
  COL_WIN.Command4.Enabled(write == 0);
  COL_WIN.Label7.BackColor(write == 0 ? 0x8000000F : RGB(255, 160, 160));  // a click now overwrites: a warning
  DICT_WRITE = write;
}
void Command4_Click() { set_write_mode(1); }
void Label7_Click() { set_write_mode(0); }

}  // namespace

void show_dictionaries() {
  COL_WIN.Combo1.Clear();
  for (int i = 0; i <= 9; ++i) COL_WIN.Combo1.AddItem(DICT_NAME(i));
  COL_WIN.Combo1.Text(DICT_NAME(DICT_CUR));
  show_cells();
}

void wire_dictionary(ColWin& win) {
  win.Combo1.Click = Combo1_Click;
  win.Combo1.KeyPress = Combo1_KeyPress;
  for (int i = 0; i < win.COLINDEX.count; ++i) win.COLINDEX(i).Click = COLINDEX_Click;
  win.Command4.Click = Command4_Click;
  win.Label7.Click = Label7_Click;
}

void design_dictionary() {
  PictureBox* pane = &COL_WIN.CSEL_BASE(2);
  place(COL_WIN.Combo1, 4, 1, 96, 21, pane);
  COL_WIN.Combo1.ToolTip("辞書 (名前を書き換えて Enter で改名)");

  // Six cells a row. The two of the last row leave the place of the mode, which decides the width of a cell.
  constexpr double MODE_LEFT = 550, MODE_TOP = 1440, MODE_WIDTH = 905, HEIGHT = 270;
  constexpr double WIDTH = MODE_WIDTH / 4;
  for (int i = 0; i < COL_WIN.COLINDEX.count; ++i) {
    Label& cell = COL_WIN.COLINDEX(i);
    const int row = i / 6;
    const int column = i % 6;
    cell.design(MODE_LEFT + (column - 2) * WIDTH, MODE_TOP + (row - 4) * HEIGHT, WIDTH, HEIGHT, pane);
    cell.transparent = false;
    cell.align = Label::Align::centre;
    cell.Caption(std::string(1, static_cast<char>('A' + i)));
  }
  COL_WIN.Label7.design(MODE_LEFT, MODE_TOP, MODE_WIDTH, HEIGHT, pane);
  COL_WIN.Label7.transparent = false;
  COL_WIN.Label7.align = Label::Align::centre;
  COL_WIN.Label7.Caption("WriteMode");
  Font font;
  font.size = 8;
  while (font.size > 4 && forms::text_width("WriteMode", font) > MODE_WIDTH / TWIPS) font.size -= 0.75;
  COL_WIN.Label7.font(font);
  COL_WIN.Label7.ToolTip("辞書に書き込み中 (押すと読み出しへ)");
  COL_WIN.Command4.design(MODE_LEFT, MODE_TOP, MODE_WIDTH, HEIGHT, pane);
  COL_WIN.Command4.Caption("ReadMode");
  COL_WIN.Command4.ToolTip("辞書から読み出し中 (押すと書き込みへ)");
}

}  // namespace kiso::col_win
