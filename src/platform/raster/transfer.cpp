#include <cstring>

#include "platform/raster/draw.h"
#include "platform/raster/fast.h"
#include "platform/raster/line_buffer.h"
#include "platform/raster/pixel.h"

namespace raster {

namespace {

// Cuts the n places from dest and src on to those that lie in both [0, dest_limit) and [0, src_limit).
void clip_axis(int64_t& dest, int64_t& src, int64_t& n, int64_t dest_limit, int64_t src_limit) {
  const int64_t skip = std::max<int64_t>({0, -dest, -src});
  dest += skip;
  src += skip;
  n = std::min({n - skip, dest_limit - dest, src_limit - src});
}

void copy_rows(Surface& dest, int x, int y, int w, int h, const Surface& src, int sx, int sy) {
  const ptrdiff_t bytes = dest.depth() / 8;
  const size_t n = static_cast<size_t>(w * bytes);
  if (w == dest.width() && w == src.width()) {  // whole rows lie behind one another
    const size_t all = static_cast<size_t>(h - 1) * static_cast<size_t>(dest.stride()) + n;
    std::memmove(dest.row(y), src.row(sy), all);
    return;
  }
  const bool upward = &dest == &src && y > sy;  // the order in which no row is overwritten before it is read
  for (int i = 0; i < h; ++i) {
    const int k = upward ? h - 1 - i : i;
    std::memmove(dest.row(y + k) + x * bytes, src.row(sy + k) + sx * bytes, n);
  }
}

// SRCAND or SRCPAINT between two surfaces of one depth: bit by bit, so a pixel need not be taken out of its bytes.
void combine_rows(Surface& dest, int x, int y, int w, int h, const Surface& src, int sx, int sy, Rop rop) {
  const ptrdiff_t bytes = dest.depth() / 8;
  const ptrdiff_t n = w * bytes;
  for (int i = 0; i < h; ++i) {
    uint8_t* __restrict to = dest.row(y + i) + x * bytes;
    const uint8_t* __restrict from = src.row(sy + i) + sx * bytes;
    if (rop == SRCAND) {
      for (ptrdiff_t k = 0; k < n; ++k) to[k] &= from[k];
    } else {
      for (ptrdiff_t k = 0; k < n; ++k) to[k] |= from[k];
    }
  }
}

}  // namespace

void load_row(const Surface& s, int y, int x, int n, uint32_t* out) {
  at_depth(s.depth(), [&](auto px) {
    const uint8_t* p = s.row(y) + x * px.bytes;
    for (int i = 0; i < n; ++i) out[i] = px.to_rgb32(px.get(p + i * px.bytes));
  });
}

void store_row(Surface& s, int y, int x, int n, const uint32_t* in, Rop rop) {
  at_depth(s.depth(), [&](auto px) {
    uint8_t* p = s.row(y) + x * px.bytes;
    auto each = [&](auto rule) {
      for (int i = 0; i < n; ++i) px.put(p + i * px.bytes, rule(px.get(p + i * px.bytes), px.from_rgb32(in[i])));
    };
    switch (rop) {
      case SRCAND: return each([](uint32_t d, uint32_t v) { return d & v; });
      case SRCPAINT: return each([](uint32_t d, uint32_t v) { return d | v; });
      case SRCCOPY: return each([](uint32_t, uint32_t v) { return v; });
    }
  });
}

void BitBlt(Surface& dest, int x, int y, int w, int h, const Surface& src, int sx, int sy, Rop rop) {
  int64_t dx = x, dy = y, fx = sx, fy = sy, nx = w, ny = h;
  clip_axis(dx, fx, nx, dest.width(), src.width());
  clip_axis(dy, fy, ny, dest.height(), src.height());
  if (nx <= 0 || ny <= 0) return;
  const int left = static_cast<int>(dx), top = static_cast<int>(dy), width = static_cast<int>(nx),
            height = static_cast<int>(ny), from_x = static_cast<int>(fx), from_y = static_cast<int>(fy);
  dest.touch(left, top, left + width, top + height);
  const bool as_bytes = fast_forms() && dest.depth() == src.depth();
  if (as_bytes && rop == SRCCOPY) return copy_rows(dest, left, top, width, height, src, from_x, from_y);
  if (as_bytes && &dest != &src) return combine_rows(dest, left, top, width, height, src, from_x, from_y, rop);
  uint32_t line[MAX_SIDE];
  const bool upward = &dest == &src && top > from_y;
  for (int i = 0; i < height; ++i) {
    const int k = upward ? height - 1 - i : i;
    load_row(src, from_y + k, from_x, width, line);
    store_row(dest, top + k, left, width, line, rop);
  }
}

}  // namespace raster
