// GLASS_MIRROR.
#include <algorithm>
#include <cstdint>
#include <numeric>
#include <vector>

#include "engines/area.h"
#include "engines/area_engines.h"
#include "platform/raster/fast.h"

namespace kiso {

namespace {

// Block transfers, a column and a row each. The last, narrower band of columns is mirrored like the others. That of
// rows is not: its loop goes by the counter of the loop before it, which is at PEN_SIZE, so nothing lands inside; or,
// in an area lower than PEN_SIZE, at 0, so row 0 takes the last row and the others stay.
void mirror_plain(int w, int h) {
  const int size = PEN_SIZE;
  for (int x = 0; x < w; ++x) {
    const int base = x / size * size;
    const int band = std::min(size, w - base);
    BitBlt(WORK, x, 0, 1, h, WORK2, base + (band - 1) - (x - base), 0);
  }
  BitBlt(WORK2, 0, 0, w, h, WORK, 0, 0);
  const int bands = h / size;
  int j = 0;
  for (int k = 0; k < bands; ++k) {
    for (j = 0; j < size; ++j) BitBlt(WORK, 0, k * size + j, w, 1, WORK2, 0, k * size + size - j - 1);
  }
  const int base = size * bands;
  for (int i = 0; i < h - base; ++i) BitBlt(WORK, 0, base + j, w, 1, WORK2, 0, base + (h - base - 1) - j);
}

void mirror_area_plain(const Area& area) {
  for (PictureBox* box : {&WORK2, &WORK}) BitBlt(*box, 0, 0, area.w, area.h, DRAW, area.left, area.top);
  mirror_plain(area.w, area.h);
  BitBlt(DRAW, area.left, area.top, area.w, area.h, WORK, 0, 0);
}

// Where the column or row at each place comes from.
std::vector<int> columns_mirrored(int w) {
  std::vector<int> from(static_cast<size_t>(w));
  std::iota(from.begin(), from.end(), 0);
  for (auto band = from.begin(); band != from.end();) {
    const auto end = band + std::min<ptrdiff_t>(PEN_SIZE, from.end() - band);
    std::reverse(band, end);
    band = end;
  }
  return from;
}
std::vector<int> rows_mirrored(int h) {
  std::vector<int> from = columns_mirrored(h);
  const int rest = h % PEN_SIZE;
  std::iota(from.end() - rest, from.end(), h - rest);
  if (h < PEN_SIZE) from[0] = h - 1;
  return from;
}

// No row leaves its band: DRAW is taken and given back band by band, by way of WORK.
void mirror_area_fast(const Area& area) {
  const std::vector<int> columns = columns_mirrored(area.w);
  const std::vector<int> rows = rows_mirrored(area.h);
  Surface& draw = DRAW;
  Surface& work = WORK;
  for (int top = 0; top < area.h; top += PEN_SIZE) {
    const int h = std::min<int>(PEN_SIZE, area.h - top);
    for (int y = top; y < top + h; ++y) {
      const uint32_t* from = draw.row32(area.top + rows[static_cast<size_t>(y)]) + area.left;
      uint32_t* to = work.row32(y);
      for (const int x : columns) *to++ = from[x];
    }
    BitBlt(draw, area.left, area.top + top, area.w, h, work, 0, top);
  }
  work.touch_all();
}

}  // namespace

void GLASS_MIRROR(int x1, int y1, int x2, int y2) {
  const Area area = area_on_draw(x1, y1, x2, y2);
  for (PictureBox* box : {&WORK2, &WORK}) {
    box->AutoSize(false);
    box->AutoRedraw(true);
    box->Move(box->Left(), box->Top(), area.w, area.h);
  }
  if (fast_forms() && DRAW.Image().depth() == 32) return mirror_area_fast(area);
  mirror_area_plain(area);
}

}  // namespace kiso
