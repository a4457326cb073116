// What the tests of the drawing calls share: pictures as text, random surfaces, comparison.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <string>
#include <vector>

#include "platform/raster/draw.h"

namespace raster {

constexpr Colour BLACK = 0, RED = 0x0000FF, GREEN = 0x00FF00, BLUE = 0xFF0000;

// One character a pixel: '.' black, '#' white, 'r', 'g', 'b', '?' anything else.
inline std::string text_of(const Surface& s) {
  std::string text;
  for (int y = 0; y < s.height(); ++y) {
    for (int x = 0; x < s.width(); ++x) {
      switch (GetPixel(s, x, y)) {
        case BLACK: text += '.'; break;
        case WHITE: text += '#'; break;
        case RED: text += 'r'; break;
        case GREEN: text += 'g'; break;
        case BLUE: text += 'b'; break;
        default: text += '?';
      }
    }
    text += '\n';
  }
  return text;
}

inline std::string rows(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\n";
  return text;
}

// All colours of a surface, row by row.
inline std::vector<Colour> colours(const Surface& s) {
  std::vector<Colour> all;
  for (int y = 0; y < s.height(); ++y)
    for (int x = 0; x < s.width(); ++x) all.push_back(GetPixel(s, x, y));
  return all;
}

using Random = std::mt19937;
inline int between(Random& random, int low, int high) {
  return low + static_cast<int>(random() % static_cast<uint32_t>(high - low + 1));
}

// One of few colours or one of all, so that both equal and unequal neighbours are common.
inline Colour any_colour(Random& random) {
  static constexpr Colour FEW[] = {BLACK, WHITE, RED, GREEN};
  return random() % 2 != 0 ? FEW[random() % 4] : static_cast<Colour>(random() & 0xFFFFFF);
}

inline void make_noise(Surface& s, Random& random) {
  for (int y = 0; y < s.height(); ++y)
    for (int x = 0; x < s.width(); ++x) SetPixelV(s, x, y, any_colour(random));
}

inline Surface copy_of(const Surface& s) {
  Surface copy(s.width(), s.height(), s.depth());
  BitBlt(copy, 0, 0, s.width(), s.height(), s, 0, 0);
  copy.draw = s.draw;
  return copy;
}

// At depth 32 the fourth byte of every pixel must stay 0xFF.
inline void expect_opaque(const Surface& s) {
  for (int y = 0; y < s.height(); ++y)
    for (int x = 0; x < s.width(); ++x) ASSERT_EQ(s.row32(y)[x] >> 24, 0xFFu) << x << "," << y;
}

// A figure with all its coordinates, moved by (dx, dy) as it is drawn.
struct Figure {
  std::string name;
  std::function<void(Surface&, int dx, int dy)> draw;
};

// All figures, with the coordinates that place gives.
inline std::vector<Figure> figures(const std::function<int()>& place) {
  const int a = place(), b = place(), c = place(), d = place();
  const std::vector<Point> points = {{a, b}, {c, d}, {place(), place()}, {place(), place()}, {place(), place()}};
  auto moved = [points](int dx, int dy) {
    std::vector<Point> all = points;
    for (Point& p : all) p = {p.x + dx, p.y + dy};
    return all;
  };
  auto line = [=](LineForm form) {
    return [=](Surface& s, int dx, int dy) { Line(s, a + dx, b + dy, c + dx, d + dy, s.draw.ForeColor, form); };
  };
  return {
      {"line", line(LineForm::plain)},
      {"box", line(LineForm::box)},
      {"filled box", line(LineForm::box_fill)},
      {"dot", [=](Surface& s, int dx, int dy) { PSet(s, a + dx, b + dy, s.draw.ForeColor); }},
      {"ellipse", [=](Surface& s, int dx, int dy) { Ellipse(s, a + dx, b + dy, c + dx, d + dy); }},
      {"polygon", [=](Surface& s, int dx, int dy) { Polygon(s, moved(dx, dy).data(), 5); }},
      {"curve", [=](Surface& s, int dx, int dy) { PolyBezier(s, moved(dx, dy).data()); }},
  };
}

}  // namespace raster
