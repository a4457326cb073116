// The Thru Pen: a flat round brush of a fixed density. Each dab is mixed from the picture as it was at the press, so
// that a stroke that crosses itself is not darker there.
#include "engines/brush.h"
#include "engines/pen_engines.h"

namespace kiso {

void PEN_THRU_PREP() {
  clear_brush_cells();
  clear_brush_picture(0);
  brush_disc(PEN_SIZE / 2, DEEP_BAL);
  for (int x = 0; x <= PEN_SIZE; ++x) {
    for (int y = 0; y <= PEN_SIZE; ++y) {
      const Colour c = GetPixel(WORK3, x, y);
      if (c == 0) continue;
      // Column and row PEN_SIZE lie outside of WORK3 and so get 2.55; they never go back to DRAW.
      const int share = c == 255 ? DEEP_BAL : static_cast<int>(c & 255);
      BRUSH_CELL(x)(y) = static_cast<float>(share) / 100;
    }
  }
}

void PEN_THRU(float X, float Y) {
  size_to_tile(WORK4);
  size_to_tile(WORK);
  WORK4.AutoRedraw(true);
  const Tile tile = tile_at(X, Y);
  TILE_IN(tile, DRAW);
  tile_of_undo(tile);
  mix_tile(Engine::PEN_THRU, WORK4);
  TILE_OUT(tile, TileOut::B);
}

}  // namespace kiso
