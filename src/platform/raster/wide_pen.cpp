#include "platform/raster/wide_pen.h"

#include <bit>
#include <vector>

namespace raster {

namespace {

// Kept between figures, so that drawing allocates only while figures grow.
struct Scratch {
  std::vector<uint64_t> bits;         // the region: bit x % 64 of word x / 64, counted from the left of the bounds
  std::vector<int> dot_left;          // of each row of the dot, from the top: first column
  std::vector<int> row_min, row_max;  // of each row of a segment: its true place, rounded up and down
  int dot_width = 0;                  // the width that dot_left is for
};
thread_local Scratch scratch;

// A pixel belongs to the disc when its centre does. In half pixels, so that the middle of an even width is whole.
void shape_dot(int n) {
  if (scratch.dot_width == n) return;
  scratch.dot_width = n;
  scratch.dot_left.assign(static_cast<size_t>(n), 0);
  const int64_t even = 1 - n % 2;
  for (int j = 0; j < n; ++j) {
    const int64_t v = 2 * (j - n / 2) + even;
    int left = -(n / 2);
    while ((2 * left + even) * (2 * left + even) + v * v > int64_t{n} * n) ++left;
    scratch.dot_left[static_cast<size_t>(j)] = left;
  }
}

int dot_left(int j) { return scratch.dot_left[static_cast<size_t>(j)]; }
// Mirrored about the middle, which for even widths lies half a pixel to the left.
int dot_right(int j, int n) { return -dot_left(j) - (1 - n % 2); }

int64_t floor_div(int64_t a, int64_t b) { return a / b - (a % b < 0 ? 1 : 0); }  // b above 0

}  // namespace

WidePen::WidePen(Surface& s, Rect path) : surface_(s), width_(std::max(s.draw.DrawWidth, 1)) {
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
  for (int j = 0; j < width_; ++j) mark(y - width_ / 2 + j, left + dot_left(j), right + dot_right(j, width_) + 1);
}

// The stroke is the convex hull of its two end dots. The outermost place in a row belongs to one row of the dot, moved
// along the line to a whole row: between them the hull's edge is straight.
void WidePen::segment(Point from, Point to) {
  if (from.y > to.y) std::swap(from, to);
  if (from.y == to.y) return run(from.y, std::min(from.x, to.x), std::max(from.x, to.x));
  const int before = width_ / 2;
  const int top = std::max(from.y, bounds_.top - width_), bottom = std::min(to.y, bounds_.bottom + width_);
  if (top > bottom) return;
  const int64_t dx = int64_t{to.x} - from.x, dy = int64_t{to.y} - from.y;
  const size_t rows = static_cast<size_t>(bottom - top) + 1;
  if (scratch.row_min.size() < rows) {
    scratch.row_min.resize(rows);
    scratch.row_max.resize(rows);
  }
  for (int y = top; y <= bottom; ++y) {
    const int64_t moved = (int64_t{y} - from.y) * dx, down = floor_div(moved, dy);
    const size_t k = static_cast<size_t>(y - top);
    scratch.row_max[k] = static_cast<int>(from.x + down);
    scratch.row_min[k] = static_cast<int>(from.x + down + (down * dy != moved ? 1 : 0));
  }
  for (int y = std::max(top - before, bounds_.top); y < std::min(bottom + width_, bounds_.bottom); ++y) {
    int left = FAR_OUT * 2 - 1, right = -left;
    for (int j = std::max(0, y + before - bottom); j < std::min(width_, y + before - top + 1); ++j) {
      const size_t k = static_cast<size_t>(y + before - j - top);
      left = std::min(left, scratch.row_min[k] + dot_left(j));
      right = std::max(right, scratch.row_max[k] + dot_right(j, width_) + 1);
    }
    mark(y, left, right);
  }
}

void WidePen::ink(Ink ink) {
  for (int y = bounds_.top; y < bounds_.bottom; ++y) {
    const uint64_t* row = scratch.bits.data() + (y - bounds_.top) * words_;
    int start = -1;  // of the run that goes on, -1 outside runs
    for (int i = 0; i < words_; ++i) {
      int bit = 0;
      while (bit < 64) {
        const uint64_t rest = row[i] >> bit;
        // The zeros that the shift brings in do not count: a run may go on in the next word.
        const int same = std::min(64 - bit, start < 0 ? std::countr_zero(rest) : std::countr_one(rest));
        bit += same;
        if (bit == 64) break;
        if (start < 0) {
          start = i * 64 + bit;
        } else {
          ink_span(surface_, y, bounds_.left + start, bounds_.left + i * 64 + bit, ink);
          start = -1;
        }
      }
    }
    if (start >= 0) ink_span(surface_, y, bounds_.left + start, bounds_.right, ink);
  }
}

void WidePen::brush_around(int y, int left, int right, const Brush& brush) {
  if (y < bounds_.top || y >= bounds_.bottom) return;
  left = std::max(left, bounds_.left);
  right = std::min(right, bounds_.right);
  const uint64_t* row = scratch.bits.data() + (y - bounds_.top) * words_;
  auto inked = [&](int x) { return row[(x - bounds_.left) / 64] >> (x - bounds_.left) % 64 & 1; };
  for (int x = left; x < right;) {
    const int start = x;
    while (x < right && !inked(x)) ++x;
    if (x > start) brush_span(surface_, y, start, x, brush);
    while (x < right && inked(x)) ++x;
  }
}

}  // namespace raster
