// The square of picture pixels under a pen. It is fetched to WORK at picture scale, changed there, and put back as
// blocks.
#pragma once

#include "frame/p_win.h"

namespace kiso {

// Picture pixels count from the top left of the view.
struct Tile {
  int x, y;    // its first picture pixel
  int vx, vy;  // the same on DRAW
  int span;    // its side on DRAW
  // What of its height is moved: hc rows on DRAW, hp in WORK. At expansion the part below the view is left out, and
  // nothing is moved if they are not above 0.
  int hc, hp;
};

// Picture pixel of a DRAW pixel, truncated at every rate. What is farther out of sight than any picture is taken for
// less far.
int picture_pixel_at(float v);
// The tile of PEN_SIZE picture pixels round the pointer, which is told in DRAW pixels.
Tile tile_at(float X, float Y);

// WORK and the brushes' other tile are larger than the tile: the walks go one pixel beyond it.
inline constexpr int TILE_ROOM = 2;
void size_to_tile(PictureBox& box);

// The tile of a surface of the size of DRAW comes to the top left of WORK: of each block the pixel at the middle column
// and the first row. What lies outside of the surface leaves WORK as it was.
void TILE_IN(const Tile& tile, const Surface& source);

// Where a tile goes back to.
enum class TileOut : uint8_t {
  A,  // to DRAW, on its screen or in its image, as its AutoRedraw says
  B,  // to DRAW's screen, and to its image, which from then on is what shows
  C,  // to DRAW's screen and to M_REDRAW, from which the screen is painted anew
};
void TILE_OUT(const Tile& tile, TileOut form);

}  // namespace kiso
