#include <vector>

#include "platform/raster/wide_pen.h"

namespace raster {

namespace {

// An edge while rows pass over it: where the row's pixels begin on its right, ceil of the exact crossing.
struct Edge {
  int top, bottom;  // rows top to bottom - 1
  int winding;
  int64_t x, rest;         // exact crossing = x - rest / dy, rest from 0 to dy - 1
  int64_t step, more, dy;  // per row the crossing moves by step - more / dy, more from 0 to dy - 1
};

int64_t ceil_div(int64_t a, int64_t b) { return a / b + (a % b > 0 ? 1 : 0); }  // b above 0

thread_local std::vector<Edge> edges;  // kept, so that drawing does not allocate
thread_local std::vector<Edge*> active;

void collect_edges(const Surface& s, const Point* points, int n) {
  edges.clear();
  for (int i = 0; i < n; ++i) {
    Point a = near_enough(points[i]), b = near_enough(points[(i + 1) % n]);
    const int winding = a.y < b.y ? 1 : -1;
    if (a.y > b.y) std::swap(a, b);
    const int top = std::max(a.y, 0), bottom = std::min(b.y, s.height());
    if (top >= bottom) continue;
    const int64_t dx = int64_t{b.x} - a.x, dy = int64_t{b.y} - a.y, moved = (int64_t{top} - a.y) * dx;
    const int64_t x = ceil_div(moved, dy), step = ceil_div(dx, dy);
    edges.push_back({top, bottom, winding, a.x + x, x * dy - moved, step, step * dy - dx, dy});
  }
  std::sort(edges.begin(), edges.end(), [](const Edge& a, const Edge& b) { return a.top < b.top; });
}

// Calls span(y, left, right), right excluded, for what lies inside by winding number, within the surface's rows.
template <class Paint>
void each_span(const Surface& s, const Point* points, int n, Paint paint) {
  collect_edges(s, points, n);
  active.clear();
  size_t next = 0;
  auto clamp_x = [&](int64_t x) { return static_cast<int>(std::clamp<int64_t>(x, -1, s.width())); };
  for (int y = edges.empty() ? 0 : edges[0].top; next < edges.size() || !active.empty(); ++y) {
    if (active.empty()) y = edges[next].top;
    while (next < edges.size() && edges[next].top == y) active.push_back(&edges[next++]);
    // Nearly in order from the row before, so insertion is the cheapest sort.
    for (size_t i = 1; i < active.size(); ++i)
      for (size_t k = i; k > 0 && active[k]->x < active[k - 1]->x; --k) std::swap(active[k], active[k - 1]);
    int winding = 0;
    int64_t left = 0;
    for (const Edge* e : active) {
      if (winding == 0) left = e->x;
      winding += e->winding;
      if (winding == 0 && left < e->x) paint(y, clamp_x(left), clamp_x(e->x));
    }
    std::erase_if(active, [y](const Edge* e) { return e->bottom == y + 1; });
    for (Edge* e : active) {
      e->x += e->step;
      e->rest += e->more;
      if (e->rest >= e->dy) {
        e->rest -= e->dy;
        --e->x;
      }
    }
  }
}

}  // namespace

void Polygon(Surface& s, const Point* points, int n) {
  if (n <= 0) return;
  Rect path{FAR_OUT, FAR_OUT, -FAR_OUT, -FAR_OUT};
  for (int i = 0; i < n; ++i) {
    const Point p = near_enough(points[i]);
    path = {std::min(path.left, p.x), std::min(path.top, p.y), std::max(path.right, p.x + 1),
            std::max(path.bottom, p.y + 1)};
  }
  s.touch(path.left, path.top, path.right, path.bottom);
  const Ink ink = ink_of(s, s.draw.ForeColor);
  const Brush brush = brush_of(s);
  if (s.draw.DrawWidth <= 1) {
    if (brush.paints)
      each_span(s, points, n, [&](int y, int left, int right) { brush_span(s, y, left, right, brush); });
    for (int i = 0; i < n; ++i) thin_line(s, points[i], points[(i + 1) % n], ink);
    return;
  }
  WidePen pen(s, path);
  for (int i = 0; i < n; ++i) pen.segment(near_enough(points[i]), near_enough(points[(i + 1) % n]));
  if (brush.paints)
    each_span(s, points, n, [&](int y, int left, int right) { pen.brush_around(y, left, right, brush); });
  pen.ink(ink);
}

}  // namespace raster
