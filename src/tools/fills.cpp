// Paint A fills the pixels of the clicked colour, Paint B all up to a border of the destination colour; both on DRAW,
// so that they end where the view ends.
#include "frame/p_win.h"
#include "frame/preview.h"
#include "tools/tools.h"

namespace kiso {

namespace {

// Readies the brush; answers the colour under the pointer.
Colour ready_to_fill(int x, int y) {
  DRAW.FillStyle(0);
  DRAW.FillColor(COL_A);
  const Colour clicked = GetPixel(DRAW, x, y);
  cover_preview();
  return clicked;
}

}  // namespace

void paint_a(float X, float Y) {
  const int x = to_int32(X);
  const int y = to_int32(Y);
  const Colour clicked = ready_to_fill(x, y);
  ExtFloodFill(DRAW, x, y, clicked);
}

void paint_b(float X, float Y) {
  const int x = to_int32(X);
  const int y = to_int32(Y);
  if (ready_to_fill(x, y) != COL_B) FloodFill(DRAW, x, y, COL_B);
}

}  // namespace kiso
