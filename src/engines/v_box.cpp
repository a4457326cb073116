// V_BOX.
#include "engines/area.h"
#include "engines/area_engines.h"
#include "engines/value.h"
#include "platform/raster/fast.h"

namespace kiso {

namespace {

// The blocks that the area touches, as picture pixels. The columns are read from half a block right of the area's left
// edge on; where that leads beyond DRAW, a column is what the one before it was.
void blocks_to_work2_plain(const Area& area, int pw, int ph) {
  int q = area.left + EXP_RATE / 2;
  for (int x = 0; x <= pw; ++x) {
    // Smeared to the right end, so that the next call leaves its first column alone.
    StretchBlt(WORK2, x, 0, pw, ph, DRAW, q, area.top, 1, area.h);
    q += EXP_RATE;
  }
}

void blocks_to_work2(const Area& area, int pw, int ph) {
  if (!fast_forms()) return blocks_to_work2_plain(area, pw, ph);
  const int first = area.left + EXP_RATE / 2;
  if (first >= VIEW_DOT(1)) return;
  const int last = (VIEW_DOT(1) - 1 - first) / EXP_RATE;
  for (int x = 0; x < pw; ++x) {
    const int q = first + std::min(x, last) * EXP_RATE;
    StretchBlt(WORK2, x, 0, 1, ph, DRAW, q, area.top, 1, area.h);
  }
}

void area_to_work2(const Area& area) {
  const auto blocks = [](int from, int length) { return (from + length - 1) / EXP_RATE - from / EXP_RATE + 1; };
  const int pw = blocks(area.left, area.w);
  const int ph = blocks(area.top, area.h);
  WORK2.AutoSize(false);
  WORK2.AutoRedraw(true);
  WORK2.Move(WORK2.Left(), WORK2.Top(), pw, ph);
  if (EXP_RATE == 1) {
    BitBlt(WORK2, 0, 0, pw, ph, DRAW, area.left, area.top);
  } else {
    blocks_to_work2(area, pw, ph);
  }
}

void work2_to_area(const Area& area) {
  if (EXP_RATE == 1) {
    BitBlt(DRAW, area.left, area.top, area.w, area.h, WORK2, 0, 0);
  } else {
    const Surface& blocks = WORK2.Image();
    StretchBlt(DRAW, area.left, area.top, area.w, area.h, blocks, 0, 0, blocks.width(), blocks.height());
  }
}

}  // namespace

void V_BOX(int x1, int y1, int x2, int y2) {
  const Area area = area_on_draw(x1, y1, x2, y2);
  area_to_work2(area);
  with_wait_win("V_BOX Change Color処理中", [] { scale_value(WORK2, v_factor()); });
  work2_to_area(area);
}

}  // namespace kiso
