// StretchBlt. The axes are independent: each is first worked out as a table that gives, for each place of the
// destination that is drawn, the places of the source that it is made of.
#include <cstdlib>
#include <cstring>

#include "platform/raster/draw.h"
#include "platform/raster/fast.h"
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
    rest_ += more_;
    const bool full = rest_ >= den_;
    quotient_ += up_ + full;
    rest_ -= full ? den_ : 0;
  }
  // The next n values, less a constant.
  void take(int32_t* out, int n, int64_t less) {
    if (more_ == 0) {
      const int32_t base = static_cast<int32_t>(quotient_ - less), up = static_cast<int32_t>(up_);
      for (int k = 0; k < n; ++k) out[k] = base + k * up;
      quotient_ += n * up_;
      return;
    }
    for (int k = 0; k < n; ++k, next()) out[k] = static_cast<int32_t>(quotient_ - less);
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
  int start = 0, count = 0;   // destination places start to start + count - 1 are drawn
  int factor = 0, phase = 0;  // of an enlargement by an integer that does not mirror: place k has index phase + k
  // Source places low[k] to high[k] make up destination place start + k. Where one place is kept it is low[k], and high
  // is not set.
  int32_t low[MAX_SIDE + 1], high[MAX_SIDE + 1];
};

// Destination indices of which at least one source index of held falls on them.
Span with_source(Span drawn, Span held, int64_t S, int64_t D) {
  if (D >= S) {
    auto source = [&](int64_t i) { return ((2 * i + 1) * S + 2 * D - 1) / (2 * D) - 1; };
    while (drawn.from < drawn.to && source(drawn.from) < held.from) ++drawn.from;
    while (drawn.from < drawn.to && source(drawn.to - 1) >= held.to) --drawn.to;
  } else {
    auto first = [&](int64_t i) { return (2 * S * i + D) / (2 * D); };
    while (drawn.from < drawn.to && first(drawn.from + 1) <= held.from) ++drawn.from;
    while (drawn.from < drawn.to && first(drawn.to - 1) >= held.to) --drawn.to;
  }
  return drawn;
}

void build_axis(Axis& axis, int dest_at, int dest_size, int dest_limit, int src_at, int src_size, int src_limit,
                Keep keep) {
  const int dest_step = dest_size < 0 ? -1 : 1, src_step = src_size < 0 ? -1 : 1;
  const int64_t D = std::min(std::abs(int64_t{dest_size}), FAR), S = std::min(std::abs(int64_t{src_size}), FAR);
  if (D == 0 || S == 0) return;
  const Span held = indices_inside(src_at, src_step, D == 1 && S > 1 ? S - 1 : S, src_limit);
  const Span drawn = with_source(indices_inside(dest_at, dest_step, D, dest_limit), held, S, D);
  if (drawn.from >= drawn.to || held.from >= held.to) return;
  const int n = static_cast<int>(drawn.to - drawn.from);
  axis.count = n;
  axis.start = static_cast<int>(dest_step > 0 ? dest_at + drawn.from : dest_at - drawn.to + 1);

  if (D >= S) {
    if (D % S == 0 && dest_step > 0 && src_step > 0) {
      axis.factor = static_cast<int>(D / S);
      axis.phase = static_cast<int>(drawn.from % axis.factor);
    }
    Ladder(S, D, S + 2 * D - 1, drawn.from).take(axis.low, n, 1);
    if (keep == Keep::all) std::copy(axis.low, axis.low + n, axis.high);
  } else {
    // A group ends before the next one begins; only the outermost ones can reach beyond the source.
    Ladder(S, D, D, drawn.from).take(axis.low, n + 1, 0);
    const int32_t end = static_cast<int32_t>(std::min<int64_t>(axis.low[n], held.to));
    axis.low[0] = static_cast<int32_t>(std::max<int64_t>(axis.low[0], held.from));
    axis.low[n] = end;
    int32_t* ends = keep == Keep::last ? axis.low : axis.high;
    if (keep != Keep::first)
      for (int k = 0; k < n; ++k) ends[k] = axis.low[k + 1] - 1;
  }
  auto to_places = [&](int32_t* places) {
    if (src_step > 0)
      for (int k = 0; k < n; ++k) places[k] = src_at + places[k];
    else
      for (int k = 0; k < n; ++k) places[k] = src_at - places[k];
    if (dest_step < 0) std::reverse(places, places + n);
  };
  to_places(axis.low);
  if (keep != Keep::all) return;
  to_places(axis.high);
  if (src_step < 0)
    for (int k = 0; k < n; ++k) std::swap(axis.low[k], axis.high[k]);
}

// The bitwise AND or OR of all source pixels of each destination pixel of a row.
void gather_group(const Surface& src, const Axis& columns, int low_row, int high_row, Stretch mode, uint32_t* line) {
  at_depth(src.depth(), [&](auto px) {
    auto gather = [&](uint32_t neutral, auto join) {
      std::fill(line, line + columns.count, neutral);
      for (int y = low_row; y <= high_row; ++y) {
        const uint8_t* p = src.row(y);
        for (int k = 0; k < columns.count; ++k) {
          uint32_t v = line[k];
          for (int x = columns.low[k]; x <= columns.high[k]; ++x) v = join(v, px.to_rgb32(px.get(p + x * px.bytes)));
          line[k] = v;
        }
      }
    };
    if (mode == Stretch::BLACKONWHITE) return gather(0xFFFFFFFF, [](uint32_t a, uint32_t b) { return a & b; });
    gather(0, [](uint32_t a, uint32_t b) { return a | b; });
  });
}

void gather_single(const Surface& src, const Axis& columns, int y, uint32_t* line) {
  at_depth(src.depth(), [&](auto px) {
    const uint8_t* p = src.row(y);
    for (int k = 0; k < columns.count; ++k) line[k] = px.to_rgb32(px.get(p + columns.low[k] * px.bytes));
  });
}

// Each source pixel F times, the first only for what is left of it after phase of them: whole blocks of a zoomed view.
template <int F>
void repeat_pixels(const uint32_t* from, int phase, uint32_t* to, int n) {
  const int lead = std::min(phase > 0 ? F - phase : 0, n);
  std::fill_n(to, lead, *from);
  from += lead > 0;
  int i = lead;
  for (; i + F <= n; i += F) std::fill_n(to + i, F, *from++);
  if (i < n) std::fill_n(to + i, n - i, *from);
}

void gather_row(const Axis& columns, const uint32_t* from, uint32_t* to) {
  switch (columns.factor) {
    case 2: return repeat_pixels<2>(from + columns.low[0], columns.phase, to, columns.count);
    case 4: return repeat_pixels<4>(from + columns.low[0], columns.phase, to, columns.count);
    case 8: return repeat_pixels<8>(from + columns.low[0], columns.phase, to, columns.count);
    default:
      for (int i = 0; i < columns.count; ++i) to[i] = from[columns.low[i]];
  }
}

// Places that are made of one source pixel each go straight from surface to surface at depth 32.
void copy_singles(Surface& dest, const Axis& columns, const Axis& rows, const Surface& src) {
  if (columns.count == 1) {
    uint32_t* to = dest.row32(rows.start) + columns.start;
    const uint32_t* from = src.row32(0) + columns.low[0];
    const ptrdiff_t to_step = dest.stride() / 4, from_step = src.stride() / 4;
    for (int k = 0; k < rows.count; ++k) to[k * to_step] = from[rows.low[k] * from_step];
    return;
  }
  // A row that several rows of the destination show is gathered once, to where it stays in the nearest cache.
  uint32_t line[MAX_SIDE];
  for (int k = 0; k < rows.count; ++k) {
    uint32_t* to = dest.row32(rows.start + k) + columns.start;
    const uint32_t* from = src.row32(rows.low[k]);
    const bool shown = k > 0 && rows.low[k] == rows.low[k - 1];
    if (!shown && (k + 1 == rows.count || rows.low[k] != rows.low[k + 1])) {
      gather_row(columns, from, to);
      continue;
    }
    if (!shown) gather_row(columns, from, line);
    std::memcpy(to, line, static_cast<size_t>(columns.count) * 4);
  }
}

// Any depth, operation and mode: each row is gathered, then stored.
void gather_rows(Surface& dest, const Axis& columns, const Axis& rows, const Surface& src, Rop rop, Stretch mode) {
  const bool single = mode == Stretch::COLORONCOLOR;
  uint32_t line[MAX_SIDE];
  for (int k = 0; k < rows.count; ++k) {
    const bool repeated = k > 0 && rows.low[k] == rows.low[k - 1] && (single || rows.high[k] == rows.high[k - 1]);
    if (!repeated && single) gather_single(src, columns, rows.low[k], line);
    if (!repeated && !single) gather_group(src, columns, rows.low[k], rows.high[k], mode, line);
    store_row(dest, rows.start + k, columns.start, columns.count, line, rop);
  }
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

  const bool one_each =
      single || (std::abs(int64_t{w}) >= std::abs(int64_t{sw}) && std::abs(int64_t{h}) >= std::abs(int64_t{sh}));
  if (fast_forms() && one_each && rop == SRCCOPY && dest.depth() == 32 && src.depth() == 32)
    return copy_singles(dest, columns, rows, src);
  gather_rows(dest, columns, rows, src, rop, mode);
}

}  // namespace raster
