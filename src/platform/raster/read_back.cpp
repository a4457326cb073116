#include "platform/raster/read_back.h"

#include "platform/raster/draw.h"
#include "platform/raster/fast.h"
#include "platform/raster/pixel.h"

namespace raster {

namespace {

void by_columns(Surface& dest, int x, int y, int w, int h, const Surface& source, int sx, int sy, int rate) {
  int c = sx + rate / 2;
  for (int p = x; p < x + w; ++p) {
    StretchBlt(dest, p, y, 1, h, source, c, sy, 1, h * rate);
    c += rate;
  }
}

// Cuts n places from `from` on, every step-th of the source from `at` on, to those inside of both.
void cut(int& from, int& n, int limit, int& at, int step, int source_limit) {
  const int skip = std::max({0, -from, at < 0 ? (-at + step - 1) / step : 0});
  from += skip;
  at += skip * step;
  n = std::min({n - skip, limit - from, (source_limit - at + step - 1) / step});
}

// A single row leaves the last row of its block out of the stretch, which changes nothing: the first is kept.
void by_rows(Surface& dest, int x, int y, int w, int h, const Surface& source, int sx, int sy, int rate) {
  sx += rate / 2;
  cut(x, w, dest.width(), sx, rate, source.width());
  cut(y, h, dest.height(), sy, rate, source.height());
  if (w <= 0 || h <= 0) return;
  at_depth(dest.depth(), [&](auto px) {
    for (int row = 0; row < h; ++row) {
      const uint8_t* from = source.row(sy + row * rate) + sx * px.bytes;
      uint8_t* to = dest.row(y + row) + x * px.bytes;
      for (int i = 0; i < w; ++i) px.put(to + i * px.bytes, px.get(from + i * rate * px.bytes));
    }
  });
  dest.touch(x, y, x + w, y + h);
}

}  // namespace

void read_back(Surface& dest, int x, int y, int w, int h, const Surface& source, int sx, int sy, int rate) {
  // Of a block that is cut at the top the first row that is there counts.
  const bool whole_blocks = sy >= 0 || sy % rate == 0;
  if (fast_forms() && h > 0 && whole_blocks && dest.depth() == source.depth())
    return by_rows(dest, x, y, w, h, source, sx, sy, rate);
  by_columns(dest, x, y, w, h, source, sx, sy, rate);
}

}  // namespace raster
