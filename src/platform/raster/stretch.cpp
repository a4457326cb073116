// StretchBlt. The axes are independent: each is first worked out as a table that gives, for each place of the
// destination that is drawn, the places of the source that it is made of.
#include <cstdlib>

#include "platform/raster/draw.h"
#include "platform/raster/line_buffer.h"
#include "platform/raster/pixel.h"

namespace raster {

namespace {

// Larger sizes and farther origins are taken for these: no surface comes near them.
constexpr int64_t FAR = int64_t{1} << 29;

enum class Keep { first, last, all };  // of the source places that fall on one destination place

// floor((2 * S * i + c) / (2 * D)) for i, i + 1, ...: all divisions of an axis are one division and a running
// remainder.
class Ladder {
 public:
  Ladder(int64_t S, int64_t D, int64_t c, int64_t i)
      : den_(2 * D), quotient_((2 * S * i + c) / den_), rest_((2 * S * i + c) % den_), up_(S / D), more_(2 * (S % D)) {}
  int64_t value() const { return quotient_; }
  void next() {
    quotient_ += up_;
    rest_ += more_;
    if (rest_ >= den_) {
      rest_ -= den_;
      ++quotient_;
    }
  }

 private:
  int64_t den_, quotient_, rest_, up_, more_;
};

// The indices i from 0 to count - 1 for which at + i * step lies in [0, limit), end excluded.
struct Span {
  int64_t from, to;
};
Span indices_inside(int64_t at, int step, int64_t count, int64_t limit) {
  if (step > 0) return {std::max<int64_t>(0, -at), std::min(count, limit - at)};
  return {std::max<int64_t>(0, at - limit + 1), std::min(count, at + 1)};
}

struct Axis {
  int start = 0, count = 0;  // destination places start to start + count - 1 are drawn
  // Source places low[k] to high[k] make up destination place start + k; the same one where a single place is kept.
  int32_t low[MAX_SIDE], high[MAX_SIDE];
};

void build_axis(Axis& axis, int dest_at, int dest_size, int dest_limit, int src_at, int src_size, int src_limit,
                Keep keep) {
  axis.count = 0;
  const int dest_step = dest_size < 0 ? -1 : 1, src_step = src_size < 0 ? -1 : 1;
  const int64_t D = std::min(std::abs(int64_t{dest_size}), FAR), S = std::min(std::abs(int64_t{src_size}), FAR);
  if (D == 0 || S == 0) return;
  const Span drawn = indices_inside(dest_at, dest_step, D, dest_limit);
  const Span held = indices_inside(src_at, src_step, D == 1 && S > 1 ? S - 1 : S, src_limit);
  if (drawn.from >= drawn.to || held.from >= held.to) return;

  const bool shrinking = D < S;
  Ladder ladder(S, D, shrinking ? D : S + 2 * D - 1, drawn.from);
  int64_t first_drawn = -1;
  for (int64_t i = drawn.from; i < drawn.to; ++i) {
    int64_t low = ladder.value();
    ladder.next();
    int64_t high = ladder.value() - 1;
    if (!shrinking) high = --low;
    low = std::max(low, held.from);
    high = std::min(high, held.to - 1);
    if (low > high) continue;  // these lie before and after the drawn ones, never between
    if (first_drawn < 0) first_drawn = i;
    if (keep == Keep::first) high = low;
    if (keep == Keep::last) low = high;
    if (src_step < 0) std::swap(low, high);
    axis.low[axis.count] = static_cast<int32_t>(src_at + src_step * low);
    axis.high[axis.count] = static_cast<int32_t>(src_at + src_step * high);
    ++axis.count;
  }
  axis.start = static_cast<int>(dest_at + dest_step * first_drawn);
  if (dest_step < 0) {
    axis.start -= axis.count - 1;
    std::reverse(axis.low, axis.low + axis.count);
    std::reverse(axis.high, axis.high + axis.count);
  }
}

// The bitwise AND or OR of all source pixels of each destination pixel of row k.
void gather_group(const Surface& src, const Axis& columns, int low_row, int high_row, Stretch mode, uint32_t* line) {
  const bool is_and = mode == Stretch::BLACKONWHITE;
  std::fill(line, line + columns.count, is_and ? 0xFFFFFFFF : 0);
  at_depth(src.depth(), [&](auto px) {
    for (int y = low_row; y <= high_row; ++y) {
      const uint8_t* p = src.row(y);
      for (int k = 0; k < columns.count; ++k) {
        for (int x = columns.low[k]; x <= columns.high[k]; ++x) {
          const uint32_t v = px.to_rgb32(px.get(p + x * px.bytes));
          line[k] = is_and ? line[k] & v : line[k] | v;
        }
      }
    }
  });
}

void gather_single(const Surface& src, const Axis& columns, int y, uint32_t* line) {
  at_depth(src.depth(), [&](auto px) {
    const uint8_t* p = src.row(y);
    for (int k = 0; k < columns.count; ++k) line[k] = px.to_rgb32(px.get(p + columns.low[k] * px.bytes));
  });
}

}  // namespace

void StretchBlt(Surface& dest, int x, int y, int w, int h, const Surface& src, int sx, int sy, int sw, int sh, Rop rop,
                Stretch mode) {
  if (&dest == &src) {
    Surface copy(src.width(), src.height(), src.depth());
    BitBlt(copy, 0, 0, src.width(), src.height(), src, 0, 0);
    StretchBlt(dest, x, y, w, h, copy, sx, sy, sw, sh, rop, mode);
    return;
  }
  const bool single = mode == Stretch::COLORONCOLOR;
  Axis columns, rows;
  build_axis(columns, x, w, dest.width(), sx, sw, src.width(), single ? Keep::last : Keep::all);
  build_axis(rows, y, h, dest.height(), sy, sh, src.height(), single ? Keep::first : Keep::all);
  if (columns.count == 0 || rows.count == 0) return;
  dest.touch(columns.start, rows.start, columns.start + columns.count, rows.start + rows.count);

  uint32_t line[MAX_SIDE];
  for (int k = 0; k < rows.count; ++k) {
    const bool repeated = k > 0 && rows.low[k] == rows.low[k - 1] && rows.high[k] == rows.high[k - 1];
    if (!repeated && single) gather_single(src, columns, rows.low[k], line);
    if (!repeated && !single) gather_group(src, columns, rows.low[k], rows.high[k], mode, line);
    store_row(dest, rows.start + k, columns.start, columns.count, line, rop);
  }
}

}  // namespace raster
