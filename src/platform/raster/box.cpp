#include "platform/raster/wide_pen.h"

namespace raster {

namespace {

// The outline at width 1, clockwise from the top left corner, each pixel once.
void thin_outline(Surface& s, const Rect& r, Ink ink) {
  const int right = r.right - 1, bottom = r.bottom - 1;
  if (r.left == right || r.top == bottom) {
    if (s.draw.DrawStyle != 2) {
      for (int y = std::max(r.top, 0); y < std::min(r.bottom, s.height()); ++y) ink_span(s, y, r.left, r.right, ink);
      return;
    }
    thin_line(s, {r.left, r.top}, {r.left == right ? right : r.right, r.left == right ? r.bottom : bottom}, ink);
    return;
  }
  thin_line(s, {r.left, r.top}, {right, r.top}, ink);
  thin_line(s, {right, r.top}, {right, bottom}, ink);
  thin_line(s, {right, bottom}, {r.left, bottom}, ink);
  thin_line(s, {r.left, bottom}, {r.left, r.top}, ink);
}

}  // namespace

void draw_box(Surface& s, Point a, Point b, Ink ink, bool filled) {
  const Rect r{std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x) + 1, std::max(a.y, b.y) + 1};
  const Brush brush = filled ? Brush{ink, true, false} : brush_of(s);
  const int top = std::max(r.top, 0), bottom = std::min(r.bottom, s.height());
  s.touch(r.left, r.top, r.right, r.bottom);
  if (s.draw.DrawWidth <= 1) {
    if (filled) {
      for (int y = top; y < bottom; ++y) ink_span(s, y, r.left, r.right, ink);
      return;
    }
    for (int y = std::max(r.top + 1, 0); y < std::min(r.bottom - 1, s.height()); ++y)
      brush_span(s, y, r.left + 1, r.right - 1, brush);
    thin_outline(s, r, ink);
    return;
  }
  WidePen pen(s, r);
  const Point corner[] = {{r.left, r.top}, {r.right - 1, r.top}, {r.right - 1, r.bottom - 1}, {r.left, r.bottom - 1}};
  for (int i = 0; i < 4; ++i) pen.segment(corner[i], corner[(i + 1) % 4]);
  if (brush.paints)
    for (int y = top; y < bottom; ++y) pen.brush_around(y, r.left, r.right, brush);
  pen.ink(ink);
}

}  // namespace raster
