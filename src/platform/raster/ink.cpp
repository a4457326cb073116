#include "platform/raster/ink.h"

namespace raster {

void ink_span(Surface& s, int y, int left, int right, Ink ink) {
  left = std::max(left, 0);
  right = std::min(right, s.width());
  if (y < 0 || y >= s.height() || left >= right) return;
  at_depth(s.depth(), [&](auto px) {
    uint8_t* p = s.row(y) + left * px.bytes;
    if (ink.keep == 0) return put_run(px, p, right - left, ink.bits);
    for (int i = 0; i < right - left; ++i) px.put(p + i * px.bytes, px.get(p + i * px.bytes) ^ ink.bits);
  });
}

void ink_pixel(Surface& s, int x, int y, Ink ink) {
  if (x < 0 || y < 0 || x >= s.width() || y >= s.height()) return;
  at_depth(s.depth(), [&](auto px) {
    uint8_t* p = s.row(y) + x * px.bytes;
    px.put(p, (px.get(p) & ink.keep) ^ ink.bits);
  });
}

Brush brush_of(const Surface& s) {
  const int style = s.draw.FillStyle;
  return {ink_of(s, s.draw.FillColor), style == 0 || style == 7, style == 7};
}

void brush_span(Surface& s, int y, int left, int right, const Brush& brush) {
  if (!brush.paints) return;
  if (!brush.cross) return ink_span(s, y, left, right, brush.ink);
  left = std::max(left, 0);
  right = std::min(right, s.width());
  for (const int column : {y & 7, 7 - (y & 7)})
    for (int x = left + ((column - left) & 7); x < right; x += 8) ink_pixel(s, x, y, brush.ink);
}

}  // namespace raster
