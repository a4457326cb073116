// The V pen. It reads its tile from WORK2, the view as it was at the press, which no dab changes.
#include "engines/change_tile.h"
#include "engines/pen_engines.h"
#include "engines/value.h"
#include "platform/raster/pixel.h"

namespace kiso {

void PEN_V(float X, float Y) {
  const double factor = v_factor();
  const Tile tile = tile_at(X, Y);
  TILE_IN(tile, WORK2);
  change_tile(
      Engine::PEN_V, [factor](Colour c) { return with_value(c, factor); },
      [factor](uint8_t* bytes) {
        const uint32_t changed = rgb32_of(with_value(RGB(bytes[2], bytes[1], bytes[0]), factor));
        Pixel<32>::put(bytes, changed);
      },
      [factor](uint32_t* row, int n) { scale_row(row, n, factor); });
  TILE_OUT(tile, TileOut::C);
}

}  // namespace kiso
