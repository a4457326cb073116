// What a pen or a brush does to the pixels that it is given.
#pragma once

#include "platform/raster/draw.h"
#include "platform/raster/pixel.h"

namespace raster {

// Coordinates farther out are drawn as if they lay here: products of two of them stay within 64 bits.
constexpr int FAR_OUT = 1 << 29;
constexpr int near_enough(int v) { return std::clamp(v, -FAR_OUT, FAR_OUT); }
constexpr Point near_enough(Point p) { return {near_enough(p.x), near_enough(p.y)}; }

// A pixel p becomes (p & keep) ^ bits: one form for the copy pen and the XOR pen.
struct Ink {
  uint32_t keep, bits;
};
inline Ink ink_of(const Surface& s, Colour colour) {
  const uint32_t pixel = s.to_pixel(colour);
  if (s.draw.DrawMode != XOR) return {0, pixel};
  return {0xFFFFFFFF, s.depth() == 32 ? pixel & ~OPAQUE : pixel};
}

// Columns left to right - 1 of row y, cut to the surface.
void ink_span(Surface& s, int y, int left, int right, Ink ink);
void ink_pixel(Surface& s, int x, int y, Ink ink);

// FillColor in the surface's DrawMode and FillStyle. The diagonal cross of FillStyle 7 is anchored to the surface: row
// y has the columns y and 7 - y modulo 8.
struct Brush {
  Ink ink;
  bool paints, cross;
};
Brush brush_of(const Surface& s);
void brush_span(Surface& s, int y, int left, int right, const Brush& brush);

// Of width 1, without its end point. A dotted line has 3 pixels on, 3 off from its start.
void thin_line(Surface& s, Point from, Point to, Ink ink);

}  // namespace raster
