#include "engines/tile.h"

#include "platform/raster/read_back.h"

namespace kiso {

namespace {

void put(const Tile& t, Surface& dest) {
  if (EXP_RATE == 1) {
    BitBlt(dest, t.vx, t.vy, t.span, t.span, WORK, 0, 0);
  } else {
    StretchBlt(dest, t.vx, t.vy, t.span, t.hc, WORK, 0, 0, PEN_SIZE, t.hp);
  }
}

}  // namespace

int picture_pixel_at(float v) {
  constexpr int FAR_OUT = 1 << 20;
  return std::clamp(truncate(v / static_cast<float>(EXP_RATE)), -FAR_OUT, FAR_OUT);
}

Tile tile_at(float X, float Y) {
  const int half = PEN_SIZE / 2;
  Tile t{};
  t.x = picture_pixel_at(X) - half;
  t.y = picture_pixel_at(Y) - half;
  t.vx = EXP_RATE * t.x;
  t.vy = EXP_RATE * t.y;
  t.span = EXP_RATE * PEN_SIZE;
  t.hc = t.span;
  t.hp = PEN_SIZE;
  if (EXP_RATE > 1 && t.vy + t.span > VIEW_DOT(2)) {
    t.hc = VIEW_DOT(2) - t.vy;
    t.hp = t.hc / EXP_RATE;
  }
  return t;
}

void size_to_tile(PictureBox& box) {
  const int side = PEN_SIZE + TILE_ROOM;
  box.Move(box.Left(), box.Top(), side, side);
}

void TILE_IN(const Tile& t, const Surface& source) {
  if (EXP_RATE == 1) {
    BitBlt(WORK, 0, 0, PEN_SIZE, PEN_SIZE, source, t.vx, t.vy);
  } else {
    read_back(WORK, 0, 0, PEN_SIZE + 1, t.hp, source, t.vx, t.vy, EXP_RATE);
  }
}

void TILE_OUT(const Tile& t, TileOut form) {
  if (form == TileOut::B) {
    DRAW.AutoRedraw(false);
    put(t, DRAW);
    DRAW.AutoRedraw(true);
  }
  put(t, DRAW);
  if (form == TileOut::C) put(t, M_REDRAW);
}

}  // namespace kiso
