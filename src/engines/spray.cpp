// The sprays: dots by chance, and soft brushes that lay on more the longer they rest.
#include "engines/spray.h"

#include "engines/brush.h"
#include "engines/pen_engines.h"

namespace kiso {

uint32_t RND_STATE = 1;

// A linear congruential generator modulo 2^32; its high 24 bits are all that a single-precision number holds.
float Rnd() {
  RND_STATE = RND_STATE * 1664525 + 1013904223;
  return static_cast<float>(RND_STATE >> 8) / 16777216.0F;
}

namespace {

// Dots over the whole square, not over a disc. One that is rounded to PEN_SIZE does not go back to DRAW.
template <class May>
void spray_dots(float x, float y, May may) {
  size_to_tile(WORK);
  const Tile tile = tile_at(x, y);
  TILE_IN(tile, DRAW);
  const int n = to_int32(PEN_SIZE * PEN_SIZE / 100.0);
  for (int i = 0; i <= n; ++i) {
    const int px = to_int32(Rnd() * static_cast<float>(PEN_SIZE));
    const int py = to_int32(Rnd() * static_cast<float>(PEN_SIZE));
    if (may(GetPixel(WORK, px, py))) SetPixelV(WORK, px, py, COL_A);
  }
  TILE_OUT(tile, TileOut::A);
}

}  // namespace

void SPRAY_DOT(float x, float y) {
  spray_dots(x, y, [](Colour /*c*/) { return true; });
}

void SPRAY_MASK(float x, float y) {
  const Colour key = RGB(DES_R, DES_G, DES_B);
  spray_dots(x, y, [key](Colour c) { return c == key && c != COL_A; });
}

// Discs from the outside inward, each lighter than the one before: the rim keeps most of the old colour. The light of
// the innermost one is full, which leaves its pixel out.
void SPRAY_AIR_PREP() {
  clear_brush_cells();
  clear_brush_picture(1);
  const float step = 100 / (static_cast<float>(PEN_SIZE) / 2);
  for (int r = to_int32(PEN_SIZE / 2.0); r >= 0; --r) {
    brush_disc(r, to_int32(std::max(100 - static_cast<float>(r) * step, 0.0F)));
  }
  for (int x = 0; x <= PEN_SIZE; ++x) {
    for (int y = 0; y <= PEN_SIZE; ++y) {
      const Colour c = GetPixel(WORK3, x, y);
      if (c == 0) continue;
      const int share = 100 - static_cast<int>(c & 255);
      if (share > 0) BRUSH_CELL(x)(y) = static_cast<float>(std::min(share, 100)) / 100;
    }
  }
  size_to_tile(WORK);
}

void SPRAY_AIR(float x, float y) {
  size_to_tile(WORK);
  const Tile tile = tile_at(x, y);
  TILE_IN(tile, DRAW);
  mix_tile(Engine::SPRAY_AIR, WORK);
  TILE_OUT(tile, TileOut::B);
}

// What may be painted is told by the picture as it was at the press, so that a pixel that this stroke has tinted goes
// on building up.
void SPRAY_AIR_MASK(float x, float y) {
  size_to_tile(WORK);
  size_to_tile(WORK4);
  const Tile tile = tile_at(x, y);
  TILE_IN(tile, DRAW);
  tile_of_undo(tile);
  const Surface& stencil = WORK4;
  mix_tile(Engine::SPRAY_AIR_MASK, WORK, &stencil);
  TILE_OUT(tile, TileOut::B);
}

}  // namespace kiso
