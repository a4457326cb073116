#include "platform/raster/read_back.h"

#include "platform/raster/draw.h"
#include "platform/raster/fast.h"

namespace raster {

namespace {

void by_columns(Surface& dest, int x, int y, int w, int h, const Surface& source, int rate) {
  int c = rate / 2;
  for (int p = x; p < x + w; ++p) {
    StretchBlt(dest, p, y, 1, h, source, c, 0, 1, h * rate);
    c += rate;
  }
}

// A single row leaves the last row of its block out of the stretch, which changes nothing: the first is kept.
void by_rows(Surface& dest, int x, int y, int w, int h, const Surface& source, int rate) {
  for (int row = 0; row < h; ++row) {
    const uint32_t* from = source.row32(row * rate) + rate / 2;
    uint32_t* to = dest.row32(y + row) + x;
    for (int i = 0; i < w; ++i, from += rate) to[i] = *from;
  }
  dest.touch(x, y, x + w, y + h);
}

}  // namespace

void read_back(Surface& dest, int x, int y, int w, int h, const Surface& source, int rate) {
  const bool inside = x >= 0 && y >= 0 && x + w <= dest.width() && y + h <= dest.height() &&
                      w * rate <= source.width() && h * rate <= source.height();
  if (fast_forms() && inside && dest.depth() == 32 && source.depth() == 32)
    return by_rows(dest, x, y, w, h, source, rate);
  by_columns(dest, x, y, w, h, source, rate);
}

}  // namespace raster
