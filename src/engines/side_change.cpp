// Side change: the first run of other colours beside a pixel of the destination colour takes the target colour.
#include "engines/pen_engines.h"
#include "engines/tile.h"

namespace kiso {

namespace {

struct Direction {
  int dx, dy;
};
constexpr Direction DIRECTIONS[] = {{-1, 0}, {1, 0}, {0, -1}, {0, 1}};  // left, right, up, down

}  // namespace

// Reads the picture as it was committed, whatever this stroke has put on DRAW.
void SIDE_CHANGE(float X, float Y, int d) {
  const int x = picture_pixel_at(X);
  const int y = picture_pixel_at(Y);
  const int px = x + VIEW_ORG(1);
  const int py = y + VIEW_ORG(2);
  const Colour key = RGB(DES_R, DES_G, DES_B);
  if (GetPixel(PIC, px, py) != key) return;

  const auto [dx, dy] = DIRECTIONS[d - 1];
  const int w = dx == 0 ? 1 : PEN_SIZE;
  const int h = dy == 0 ? 1 : PEN_SIZE;
  // From the pixel beside the pointer on, or up to it.
  const int ox = dx < 0 ? -w : dx;
  const int oy = dy < 0 ? -h : dy;
  WORK.Move(WORK.Left(), WORK.Top(), w, h);
  BitBlt(WORK, 0, 0, w, h, PIC, px + ox, py + oy);

  // From the pointer outward. What lies beyond the picture's edge is not the key, and is not painted.
  bool found = false;
  for (int i = 1; i <= PEN_SIZE; ++i) {
    const int at_x = i * dx;
    const int at_y = i * dy;
    if (GetPixel(PIC, px + at_x, py + at_y) == key) {
      if (found) break;
    } else {
      SetPixelV(WORK, at_x - ox, at_y - oy, COL_A);
      found = true;
    }
  }

  if (EXP_RATE == 1) {
    BitBlt(DRAW, x + ox, y + oy, w, h, WORK, 0, 0);
  } else {
    StretchBlt(DRAW, EXP_RATE * (x + ox), EXP_RATE * (y + oy), EXP_RATE * w, EXP_RATE * h, WORK, 0, 0, w, h);
  }
}

}  // namespace kiso
