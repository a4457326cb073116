// The colour dictionary at work: its cells in COL_WIN, and the letter keys that fetch and store a colour.
#include <algorithm>

#include "colour/col_win.h"
#include "colour/colour.h"

namespace kiso {

void DICT_CELL_SHOW(int index, int r, int g, int b) {
  Label& cell = COL_WIN.COLINDEX(index);
  cell.BackColor(RGB(std::max(r, 0), std::max(g, 0), std::max(b, 0)));
  double h, s, v;
  RGB_TO_HSV(r, g, b, h, s, v);
  cell.ForeColor(QBColor(255 * v < 70 ? 15 : 0));
}

void DICT_KEY(int letter, Colour pixel) {
  auto& cell = DICT_COL(DICT_CUR)(letter - 'A');
  if (DICT_WRITE == 1) {
    cell(1) = static_cast<int16_t>(pixel & 0xFF);
    cell(2) = static_cast<int16_t>(pixel >> 8 & 0xFF);
    cell(3) = static_cast<int16_t>(pixel >> 16 & 0xFF);
    DICT_CELL_SHOW(letter - 'A', cell(1), cell(2), cell(3));
  } else {
    CUR_R = cell(1);
    CUR_G = cell(2);
    CUR_B = cell(3);
    COL_UPDATE();
  }
}

}  // namespace kiso
