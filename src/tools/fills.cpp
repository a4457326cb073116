// Paint A fills the pixels of the clicked colour, Paint B all up to a border of the destination colour; both on DRAW,
// so that they end where the view ends.
#include "frame/p_win.h"
#include "tools/tools.h"

namespace kiso {

namespace {

Colour fill_pen(int x, int y) {
  DRAW.FillStyle(0);
  DRAW.FillColor(COL_A);
  DRAW.AutoRedraw(true);
  return GetPixel(DRAW, x, y);
}

}  // namespace

void paint_a(float X, float Y) {
  const int x = to_int32(X);
  const int y = to_int32(Y);
  ExtFloodFill(DRAW, x, y, fill_pen(x, y));
}

void paint_b(float X, float Y) {
  const int x = to_int32(X);
  const int y = to_int32(Y);
  if (fill_pen(x, y) != COL_B) FloodFill(DRAW, x, y, COL_B);
}

}  // namespace kiso
