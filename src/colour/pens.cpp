// The colour that is being edited, on its way from the two pens and back to them.
#include <algorithm>

#include "colour/col_win_rules.h"
#include "colour/colour.h"

namespace kiso {

void COL_LOAD_WORK() {
  if (COL_TARGET != 0) {
    CUR_R = DES_R, CUR_G = DES_G, CUR_B = DES_B;
  } else {
    CUR_R = TAR_R, CUR_G = TAR_G, CUR_B = TAR_B;
  }
}

void mark_edited_colour() {
  Shape& selected = COL_TARGET == 0 ? COL_WIN.TAR_SEL : COL_WIN.DES_SEL;
  Shape& other = COL_TARGET == 0 ? COL_WIN.DES_SEL : COL_WIN.TAR_SEL;
  selected.FillColor(QBColor(CUR_TOOL == SPOIT ? 12 : 11));
  other.FillColor(0x8000000F);
}

void COL_UPDATE() {
  for (int32_t* component : {&CUR_R, &CUR_G, &CUR_B}) *component = std::clamp(*component, 0, 255);
  COL_DRAW_BARS(CUR_R, CUR_G, CUR_B);
  if (COL_PANE == 1) col_win::show_bars();
  if (COL_TARGET != 0) {
    DES_R = CUR_R, DES_G = CUR_G, DES_B = CUR_B;
    COL_WIN.DES_COL.BackColor(RGB(DES_R, DES_G, DES_B));
  } else {
    TAR_R = CUR_R, TAR_G = CUR_G, TAR_B = CUR_B;
    COL_WIN.TAR_COL.BackColor(RGB(TAR_R, TAR_G, TAR_B));
  }
}

void COL_DRAW_BARS(int R, int G, int B) {
  PictureBox& box = COL_WIN.COL_RGB;
  const struct {
    int component;
    uint32_t colour;
  } BANDS[] = {{R, QBColor(12)}, {G, QBColor(10)}, {B, QBColor(9)}};
  const double W = box.ScaleWidth();
  const double step = box.ScaleHeight() / 3;
  double y = 0;
  for (const auto& band : BANDS) {
    const double w = W * (band.component / 255.0);
    forms::Line(box, 0, y, w, y + step, band.colour, LineForm::box_fill);
    forms::Line(box, w, y, W, y + step, 0x8000000F, LineForm::box_fill);
    y += step;
  }
}

}  // namespace kiso
