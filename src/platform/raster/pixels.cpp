// Single pixels, and the rows of a bitmap as bytes.
#include <cstring>

#include "platform/raster/draw.h"
#include "platform/raster/pixel.h"

namespace raster {

namespace {

bool inside(const Surface& s, int x, int y) { return x >= 0 && y >= 0 && x < s.width() && y < s.height(); }

// Bytes of a row in the byte form: the pixels' own, made even.
int32_t row_bytes(const Surface& s) { return (s.width() * (s.depth() / 8) + 1) & ~1; }

// Calls move(row, offset of the row in the bytes, number of the row's bytes) for the rows of the first count bytes.
template <class Move>
int32_t each_row(const Surface& s, int32_t count, Move move) {
  const int64_t line = row_bytes(s);
  const int64_t all = std::min<int64_t>(count, line * s.height());
  const int64_t pixels = static_cast<int64_t>(s.width()) * (s.depth() / 8);
  for (int64_t at = 0; at < all; at += line)
    move(static_cast<int>(at / line), at, static_cast<size_t>(std::min(pixels, all - at)));
  return static_cast<int32_t>(std::max<int64_t>(all, 0));
}

}  // namespace

Colour GetPixel(const Surface& s, int x, int y) {
  if (!inside(s, x, y)) return CLR_INVALID;
  if (s.depth() == 32) return colour_of(s.row32(y)[x]);
  return at_depth(s.depth(), [&](auto px) { return colour_of(px.to_rgb32(px.get(s.row(y) + x * px.bytes))); });
}

void SetPixelV(Surface& s, int x, int y, Colour colour) {
  if (!inside(s, x, y)) return;
  at_depth(s.depth(), [&](auto px) { px.put(s.row(y) + x * px.bytes, px.from_rgb32(rgb32_of(colour))); });
  s.touch(x, y, x + 1, y + 1);
}

BITMAP GetObjectA(const Surface& s) {
  return {0, s.width(), s.height(), row_bytes(s), 1, static_cast<int16_t>(s.depth())};
}

int32_t GetBitmapBits(const Surface& s, int32_t count, uint8_t* buffer) {
  const int32_t moved = each_row(s, count, [&](int y, int64_t at, size_t n) {
    std::memcpy(buffer + at, s.row(y), n);
    // The byte that makes an odd row even is no pixel's.
    if (n % 2 == 1 && at + static_cast<int64_t>(n) < count) buffer[at + static_cast<int64_t>(n)] = 0;
  });
  return moved;
}

int32_t SetBitmapBits(Surface& s, int32_t count, const uint8_t* buffer) {
  int rows = 0;
  const int32_t moved = each_row(s, count, [&](int y, int64_t at, size_t n) {
    std::memcpy(s.row(y), buffer + at, n);
    if (s.depth() == 32)
      for (size_t i = 0; i < (n + 3) / 4; ++i) s.row32(y)[i] |= OPAQUE;
    rows = y + 1;
  });
  s.touch(0, 0, s.width(), rows);
  return moved;
}

}  // namespace raster
