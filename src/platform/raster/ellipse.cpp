#include <vector>

#include "platform/raster/wide_pen.h"

namespace raster {

namespace {

// Larger ellipses are cut to this size: beyond it the error terms would leave 64 bits.
constexpr int LARGEST = 1 << 18;

// The lower right quarter of the outline, from the middle row down to the last row, in offsets from the left and top.
// Each point touches the one before; no row is left out.
void walk_quarter(int w, int h, std::vector<Point>& out) {
  const int64_t a = w - 1, b = h - 1, odd = b % 2;
  int64_t dx = 4 * b * b * (1 - a), dy = 4 * a * a * (1 + odd), err = dx + dy + a * a * odd;
  int x = w - 1, y = h / 2;
  while (x >= w / 2) {
    out.push_back({x, y});
    const int64_t twice = 2 * err;
    if (twice >= dx) {
      --x;
      dx += 8 * b * b;
      err += dx;
    }
    if (twice <= dy) {
      ++y;
      dy += 8 * a * a;
      err += dy;
    }
  }
  // Tall thin ones arrive at the middle column before the last row.
  while (out.back().y < h - 1) out.push_back({out.back().x, out.back().y + 1});
}

thread_local std::vector<Point> quarter;  // kept, so that drawing does not allocate

// Calls visit(x, y) for all points of the outline, once round.
template <class Visit>
void each_outline_point(const Rect& r, Visit visit) {
  const int right = r.right - 1, bottom = r.bottom - 1;
  const size_t n = quarter.size();
  for (size_t i = 0; i < n; ++i) visit(r.left + quarter[i].x, r.top + quarter[i].y);
  for (size_t i = n; i-- > 0;) visit(right - quarter[i].x, r.top + quarter[i].y);
  for (size_t i = 0; i < n; ++i) visit(right - quarter[i].x, bottom - quarter[i].y);
  for (size_t i = n; i-- > 0;) visit(r.left + quarter[i].x, bottom - quarter[i].y);
}

// Calls visit(y, left, right) for all rows from the leftmost to the rightmost point of the outline, both included.
template <class Visit>
void each_row(const Rect& r, Visit visit) {
  int last = -1;
  for (const Point& p : quarter) {
    if (p.y == last) continue;
    last = p.y;
    const int left = r.right - 1 - p.x, right = r.left + p.x, mirrored = r.bottom - 1 - p.y;
    visit(r.top + p.y, left, right);
    if (mirrored != r.top + p.y) visit(mirrored, left, right);
  }
}

void thin_ellipse(Surface& s, const Rect& r, Ink pen, const Brush& brush) {
  if (brush.paints) each_row(r, [&](int y, int left, int right) { brush_span(s, y, left, right + 1, brush); });
  // The pen stays on a point while the next one is the same, and inks it when it leaves it.
  Point at{};
  int count = 0, inked = 0;
  const bool dotted = s.draw.DrawStyle == 2;
  auto leave = [&] {
    if (!dotted || inked++ % 6 < 3) ink_pixel(s, at.x, at.y, pen);
  };
  Point start{};
  each_outline_point(r, [&](int x, int y) {
    if (count++ == 0)
      start = {x, y};
    else if (x != at.x || y != at.y)
      leave();
    at = {x, y};
  });
  if (at.x != start.x || at.y != start.y) leave();
  s.touch(r.left, r.top, r.right, r.bottom);
}

void wide_ellipse(Surface& s, const Rect& r, Ink ink, const Brush& brush) {
  WidePen pen(s, r);
  each_outline_point(r, [&](int x, int y) { pen.run(y, x, x); });
  if (brush.paints) each_row(r, [&](int y, int left, int right) { pen.brush_around(y, left, right + 1, brush); });
  pen.ink(ink);
}

}  // namespace

void Ellipse(Surface& s, int left, int top, int right, int bottom) {
  auto cut = [](int v) { return std::clamp(v, -LARGEST, LARGEST); };
  const Rect r{cut(std::min(left, right)), cut(std::min(top, bottom)), cut(std::max(left, right)),
               cut(std::max(top, bottom))};
  if (r.empty()) return;
  const int w = r.right - r.left, h = r.bottom - r.top;
  const Ink ink = ink_of(s, s.draw.ForeColor);
  if (w <= 2 || h <= 2) {
    const Point corner[] = {{r.left, r.top}, {r.right - 1, r.top}, {r.right - 1, r.bottom - 1}, {r.left, r.bottom - 1}};
    if (s.draw.DrawWidth <= 1) {
      for (int i = 0; i < 4; ++i) thin_line(s, corner[i], corner[(i + 1) % 4], ink);
    } else {
      WidePen pen(s, r);
      for (int i = 0; i < 4; ++i) pen.segment(corner[i], corner[(i + 1) % 4]);
      pen.ink(ink);
    }
    return;
  }
  quarter.clear();
  walk_quarter(w, h, quarter);
  if (s.draw.DrawWidth <= 1) {
    thin_ellipse(s, r, ink, brush_of(s));
  } else {
    wide_ellipse(s, r, ink, brush_of(s));
  }
}

}  // namespace raster
