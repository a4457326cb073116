#include <cstdlib>

#include "platform/raster/draw.h"
#include "platform/raster/ink.h"
#include "platform/raster/wide_pen.h"

namespace raster {

namespace {

constexpr int64_t floor_div(int64_t a, int64_t b) { return a / b - (a % b < 0 ? 1 : 0); }  // b above 0
constexpr int64_t ceil_div(int64_t a, int64_t b) { return -floor_div(-a, b); }

// A line as n pixels, i = 0 to n - 1, one step on the major axis each. On the minor axis pixel i lies at
// from + floor((2 * i * slope + n - 1) / (2 * n)): the true line rounded, an exact half to the smaller coordinate.
struct Walk {
  bool steep;            // the major axis is y
  int64_t major, minor;  // the start
  int64_t step, slope, n;
  int64_t first, last;  // the pixels that lie inside the surface
};

Walk clipped_walk(const Surface& s, Point from, Point to) {
  const int64_t dx = int64_t{to.x} - from.x, dy = int64_t{to.y} - from.y;
  Walk w{};
  w.steep = std::abs(dy) > std::abs(dx);
  w.major = w.steep ? from.y : from.x;
  w.minor = w.steep ? from.x : from.y;
  w.step = (w.steep ? dy : dx) < 0 ? -1 : 1;
  w.slope = w.steep ? dx : dy;
  w.n = std::max(std::abs(dx), std::abs(dy));
  const int64_t major_limit = w.steep ? s.height() : s.width(), minor_limit = w.steep ? s.width() : s.height();
  w.first = std::max<int64_t>(0, w.step > 0 ? -w.major : w.major - major_limit + 1);
  w.last = std::min(w.n - 1, w.step > 0 ? major_limit - 1 - w.major : w.major);

  // 2 * i * slope must lie from low to high for the minor coordinate to lie inside
  const int64_t low = 2 * w.n * -w.minor - w.n + 1, high = 2 * w.n * (minor_limit - w.minor) - w.n;
  if (w.slope > 0) {
    w.first = std::max(w.first, ceil_div(low, 2 * w.slope));
    w.last = std::min(w.last, floor_div(high, 2 * w.slope));
  } else if (w.slope < 0) {
    w.first = std::max(w.first, ceil_div(-high, -2 * w.slope));
    w.last = std::min(w.last, floor_div(-low, -2 * w.slope));
  } else if (w.minor < 0 || w.minor >= minor_limit) {
    w.last = -1;
  }
  return w;
}

template <class Px>
void ink_walk(Surface& s, const Walk& w, Ink ink, bool dotted) {
  const int64_t start = 2 * w.first * w.slope + w.n - 1;
  int64_t minor = floor_div(start, 2 * w.n), rest = start - minor * 2 * w.n;
  minor += w.minor;
  const int64_t major = w.major + w.first * w.step;
  const ptrdiff_t along = w.step * (w.steep ? s.stride() : Px::bytes), across = w.steep ? Px::bytes : s.stride();
  uint8_t* p = s.row(static_cast<int>(w.steep ? major : minor)) + (w.steep ? minor : major) * Px::bytes;
  int dash = static_cast<int>(w.first % 6);
  for (int64_t i = w.first; i <= w.last; ++i) {
    if (!dotted || dash < 3) Px::put(p, (Px::get(p) & ink.keep) ^ ink.bits);
    dash = dash == 5 ? 0 : dash + 1;
    p += along;
    rest += 2 * w.slope;
    if (rest >= 2 * w.n) {
      rest -= 2 * w.n;
      p += across;
    } else if (rest < 0) {
      rest += 2 * w.n;
      p -= across;
    }
  }
}

}  // namespace

void thin_line(Surface& s, Point from, Point to, Ink ink) {
  from = near_enough(from);
  to = near_enough(to);
  if (from.x == to.x && from.y == to.y) return;
  const Walk w = clipped_walk(s, from, to);
  if (w.first > w.last) return;
  const bool dotted = s.draw.DrawStyle == 2;
  at_depth(s.depth(), [&](auto px) { ink_walk<decltype(px)>(s, w, ink, dotted); });
  s.touch(std::min(from.x, to.x), std::min(from.y, to.y), std::max(from.x, to.x) + 1, std::max(from.y, to.y) + 1);
}

void Line(Surface& s, int x1, int y1, int x2, int y2, Colour colour, LineForm form) {
  const Point from = near_enough(Point{x1, y1}), to = near_enough(Point{x2, y2});
  const Ink ink = ink_of(s, colour);
  if (form != LineForm::plain) return draw_box(s, from, to, ink, form == LineForm::box_fill);
  if (s.draw.DrawWidth <= 1) return thin_line(s, from, to, ink);
  WidePen pen(
      s, Rect{std::min(from.x, to.x), std::min(from.y, to.y), std::max(from.x, to.x) + 1, std::max(from.y, to.y) + 1});
  pen.segment(from, to);
  pen.ink(ink);
}

void PSet(Surface& s, int x, int y, Colour colour) {
  const Point at = near_enough(Point{x, y});
  const Ink ink = ink_of(s, colour);
  if (s.draw.DrawWidth <= 1) {
    ink_pixel(s, at.x, at.y, ink);
    s.touch(at.x, at.y, at.x + 1, at.y + 1);
    return;
  }
  WidePen pen(s, Rect{at.x, at.y, at.x + 1, at.y + 1});
  pen.segment(at, at);
  pen.ink(ink);
}

}  // namespace raster
