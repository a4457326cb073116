#include "platform/raster/wide_pen.h"

#include <bit>
#include <cmath>
#include <vector>

namespace raster {

namespace {

// Kept between figures, so that drawing allocates only while figures grow.
struct Scratch {
  std::vector<uint64_t> bits;  // the region: bit x % 64 of word x / 64, counted from the left of the bounds
  std::vector<int> dot_left;   // of each row of the dot, from the top: first column
  int dot_width = 0;           // the width that dot_left is for
};
thread_local Scratch scratch;

// A pixel belongs to the dot when its centre lies in the disc. In half pixels, so that the middle of an even width is
// whole. The disc is a quarter pixel smaller than its width (n * n - n / 2 for the square of n - 1/4), which keeps
// small dots round: with all of its width the one of 3 would be a square.
void shape_dot(int n) {
  if (scratch.dot_width == n) return;
  scratch.dot_width = n;
  scratch.dot_left.assign(static_cast<size_t>(n), 0);
  const int64_t even = 1 - n % 2;
  for (int j = 0; j < n; ++j) {
    const int64_t v = 2 * (int64_t{j} - n / 2) + even;
    int64_t left = -(n / 2);
    while (2 * ((2 * left + even) * (2 * left + even) + v * v) > 2 * int64_t{n} * n - n) ++left;
    scratch.dot_left[static_cast<size_t>(j)] = static_cast<int>(left);
  }
}

int dot_left(int j) { return scratch.dot_left[static_cast<size_t>(j)]; }
// Mirrored about the middle, which for even widths lies half a pixel to the left.
int dot_right(int j, int n) { return -dot_left(j) - (1 - n % 2); }

int64_t floor_div(int64_t a, int64_t b) { return a / b - (a % b < 0 ? 1 : 0); }  // b above 0

// The first column from x on that is in the region, or that is not; end if there is none before it.
int find(const uint64_t* row, int x, int end, bool inked) {
  if (x >= end) return end;
  const uint64_t flip = inked ? 0 : ~uint64_t{0};
  int i = x / 64;
  uint64_t word = (row[i] ^ flip) & ~uint64_t{0} << x % 64;
  while (word == 0) {
    if (++i * 64 >= end) return end;
    word = row[i] ^ flip;
  }
  return std::min(end, i * 64 + std::countr_zero(word));
}

}  // namespace

WidePen::WidePen(Surface& s, Rect path) : surface_(s), width_(std::clamp(s.draw.DrawWidth, 1, MAX_SIDE)) {
  shape_dot(width_);
  const int before = width_ / 2, after = (width_ - 1) / 2;
  bounds_ = {std::max(path.left - before, 0), std::max(path.top - before, 0), std::min(path.right + after, s.width()),
             std::min(path.bottom + after, s.height())};
  if (bounds_.empty()) bounds_ = Rect{};
  words_ = (bounds_.right - bounds_.left + 63) / 64;
  const size_t need = static_cast<size_t>(words_) * static_cast<size_t>(bounds_.bottom - bounds_.top);
  if (scratch.bits.size() < need) scratch.bits.resize(need);
  std::fill_n(scratch.bits.begin(), need, 0);
  s.touch(bounds_.left, bounds_.top, bounds_.right, bounds_.bottom);
}

void WidePen::mark(int y, int left, int right) {
  left = std::max(left, bounds_.left) - bounds_.left;
  right = std::min(right, bounds_.right) - bounds_.left;
  if (left >= right || y < bounds_.top || y >= bounds_.bottom) return;
  uint64_t* row = scratch.bits.data() + (y - bounds_.top) * words_;
  const int first = left / 64, last = (right - 1) / 64;
  const uint64_t head = ~uint64_t{0} << left % 64, tail = ~uint64_t{0} >> (63 - (right - 1) % 64);
  if (first == last) {
    row[first] |= head & tail;
    return;
  }
  row[first] |= head;
  for (int i = first + 1; i < last; ++i) row[i] = ~uint64_t{0};
  row[last] |= tail;
}

void WidePen::run(int y, int left, int right) {
  if (y + width_ <= bounds_.top || y - width_ >= bounds_.bottom || right + width_ <= bounds_.left ||
      left - width_ >= bounds_.right)
    return;
  for (int j = 0; j < width_; ++j) mark(y - width_ / 2 + j, left + dot_left(j), right + dot_right(j, width_) + 1);
}

// A stroke is all pixels whose centre is no farther from the segment than the dot's radius: the two end dots and the
// strip between them. Its rows have no gaps. u and v are a centre's place from the first end, in half pixels.
void WidePen::segment(Point from, Point to) {
  if (from.y > to.y) std::swap(from, to);
  if (from.y == to.y) return run(from.y, std::min(from.x, to.x), std::max(from.x, to.x));
  const int64_t dx = int64_t{to.x} - from.x, dy = int64_t{to.y} - from.y, even = 1 - width_ % 2;
  const int64_t length2 = dx * dx + dy * dy;
  const int64_t reach = static_cast<int64_t>(width_ * std::sqrt(static_cast<double>(length2)));

  const int before = width_ / 2;
  for (int y = std::max(from.y - before, bounds_.top); y < std::min(to.y + width_ - before, bounds_.bottom); ++y) {
    const int64_t v = 2 * (int64_t{y} - from.y) + even;
    // across: |u * dy - v * dx| <= reach; along: 0 <= u * dx + v * dy <= 2 * length2
    int64_t low = -floor_div(reach - v * dx, dy), high = floor_div(v * dx + reach, dy);
    if (dx == 0 && (v < 0 || v > 2 * dy)) high = low - 1;
    if (dx > 0) {
      low = std::max(low, -floor_div(v * dy, dx));
      high = std::min(high, floor_div(2 * length2 - v * dy, dx));
    } else if (dx < 0) {
      low = std::max(low, -floor_div(2 * length2 - v * dy, -dx));
      high = std::min(high, floor_div(v * dy, -dx));
    }
    int64_t left = FAR_OUT * int64_t{4}, right = -left;
    auto widen = [&](int64_t l, int64_t r) {
      left = std::min(left, l);
      right = std::max(right, r);
    };
    if (low <= high) widen(from.x - floor_div(even - low, 2), from.x + floor_div(high - even, 2));
    for (const Point& end : {from, to}) {
      const int64_t j = int64_t{y} - end.y + before;
      if (j >= 0 && j < width_)
        widen(end.x + dot_left(static_cast<int>(j)), end.x + dot_right(static_cast<int>(j), width_));
    }
    auto on_surface = [](int64_t x) { return static_cast<int>(std::clamp<int64_t>(x, -1, MAX_SIDE)); };
    mark(y, on_surface(left), on_surface(right) + 1);
  }
}

void WidePen::ink(Ink ink) {
  const int width = bounds_.right - bounds_.left;
  for (int y = bounds_.top; y < bounds_.bottom; ++y) {
    const uint64_t* row = scratch.bits.data() + (y - bounds_.top) * words_;
    for (int start = find(row, 0, width, true); start < width;) {
      const int end = find(row, start, width, false);
      ink_span(surface_, y, bounds_.left + start, bounds_.left + end, ink);
      start = find(row, end, width, true);
    }
  }
}

void WidePen::brush_around(int y, int left, int right, const Brush& brush) {
  if (y < bounds_.top || y >= bounds_.bottom) return;
  left = std::max(left, bounds_.left) - bounds_.left;
  right = std::min(right, bounds_.right) - bounds_.left;
  const uint64_t* row = scratch.bits.data() + (y - bounds_.top) * words_;
  for (int start = find(row, left, right, false); start < right;) {
    const int end = find(row, start, right, true);
    brush_span(surface_, y, bounds_.left + start, bounds_.left + end, brush);
    start = find(row, end, right, false);
  }
}

}  // namespace raster
