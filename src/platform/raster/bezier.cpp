#include <cstdlib>

#include "platform/raster/wide_pen.h"

namespace raster {

namespace {

constexpr int MAX_DEPTH = 8;

// Control points in 1/16 pixel.
struct Fine {
  int64_t x, y;
};
struct Curve {
  Fine p[4];
};

int64_t whole(int64_t v) { return (v + 8) >> 4; }
Point whole(Fine f) { return {static_cast<int>(whole(f.x)), static_cast<int>(whole(f.y))}; }
Fine half(Fine a, Fine b) { return {(a.x + b.x + 1) / 2, (a.y + b.y + 1) / 2}; }

// Whether the inner points lie so near the chord that the straight line does. Along the chord's major axis they must
// lie between the ends. Ends are included but for the first inner point of a chord to the left or up: such a curve that
// leaves its start slowly is halved once more, and the platform's curves show it.
bool is_flat(const Curve& c) {
  const Fine chord{c.p[3].x - c.p[0].x, c.p[3].y - c.p[0].y};
  const bool by_x = std::abs(chord.x) >= std::abs(chord.y);
  const int64_t length = by_x ? chord.x : chord.y, rise = by_x ? chord.y : chord.x;
  int64_t along[2], off[2];  // of the inner points, from the start
  for (int i = 0; i < 2; ++i) {
    const int64_t dx = c.p[i + 1].x - c.p[0].x, dy = c.p[i + 1].y - c.p[0].y;
    along[i] = by_x ? dx : dy;
    off[i] = by_x ? dy : dx;
  }
  const bool between = length > 0 ? std::min(along[0], along[1]) >= 0 && std::max(along[0], along[1]) <= length
                                  : along[0] < 0 && along[1] <= 0 && std::min(along[0], along[1]) >= length;
  if (!between) return false;
  const int64_t pixels = whole(length);
  if (pixels == 0) return true;
  const int64_t slope = rise / pixels;
  return std::abs(off[0] - slope * whole(along[0])) <= 16 && std::abs(off[1] - slope * whole(along[1])) <= 16;
}

// Calls line(from, to) for the straight pieces of the curve in order.
template <class Line>
void each_piece(const Curve& c, int depth, Line line) {
  if (depth == MAX_DEPTH || is_flat(c)) return line(whole(c.p[0]), whole(c.p[3]));
  const Fine a = half(c.p[0], c.p[1]), b = half(c.p[1], c.p[2]), d = half(c.p[2], c.p[3]);
  const Fine ab = half(a, b), bd = half(b, d), middle = half(ab, bd);
  each_piece(Curve{{c.p[0], a, ab, middle}}, depth + 1, line);
  each_piece(Curve{{middle, bd, d, c.p[3]}}, depth + 1, line);
}

}  // namespace

void PolyBezier(Surface& s, const Point* points) {
  Curve curve;
  Rect path{FAR_OUT, FAR_OUT, -FAR_OUT, -FAR_OUT};
  for (int i = 0; i < 4; ++i) {
    const Point p = near_enough(points[i]);
    curve.p[i] = {int64_t{p.x} * 16, int64_t{p.y} * 16};
    path = {std::min(path.left, p.x), std::min(path.top, p.y), std::max(path.right, p.x + 1),
            std::max(path.bottom, p.y + 1)};
  }
  const Ink ink = ink_of(s, s.draw.ForeColor);
  if (s.draw.DrawWidth <= 1) {
    each_piece(curve, 0, [&](Point from, Point to) { thin_line(s, from, to, ink); });
    return;
  }
  WidePen pen(s, path);
  each_piece(curve, 0, [&](Point from, Point to) { pen.segment(from, to); });
  pen.ink(ink);
}

}  // namespace raster
