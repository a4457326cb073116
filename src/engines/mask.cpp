// The mask pens: the whole square of the tile, where the destination colour serves as a stencil.
#include "engines/change_tile.h"
#include "engines/depth.h"
#include "engines/fuzzy_window.h"
#include "engines/pen_engines.h"
#include "frame/usr_sub.h"
#include "platform/raster/pixel.h"

namespace kiso {

namespace {

bool is_colour(const uint8_t* bytes, int R, int G, int B) { return bytes[2] == R && bytes[1] == G && bytes[0] == B; }
bool is_destination(const uint8_t* bytes) { return is_colour(bytes, DES_R, DES_G, DES_B); }
bool is_target(const uint8_t* bytes) { return is_colour(bytes, TAR_R, TAR_G, TAR_B); }

void store_target(uint8_t* bytes) {
  bytes[0] = static_cast<uint8_t>(TAR_B);
  bytes[1] = static_cast<uint8_t>(TAR_G);
  bytes[2] = static_cast<uint8_t>(TAR_R);
}

uint32_t target_pixel() { return rgb32_of(RGB(TAR_R, TAR_G, TAR_B)); }
uint32_t destination_pixel() { return rgb32_of(RGB(DES_R, DES_G, DES_B)); }

FuzzyLevels levels;  // of the window that the pen had last

}  // namespace

void PEN_MASK(float X, float Y) {
  const Tile tile = tile_at(X, Y);
  TILE_IN(tile, M_REDRAW);
  change_tile(
      Engine::PEN_MASK, [](Colour c) { return c == COL_B && c != COL_A ? COL_A : c; },
      [](uint8_t* bytes) {
        if (is_destination(bytes)) store_target(bytes);
      },
      word_by_word([key = destination_pixel(), paint = target_pixel()](uint32_t p) { return p == key ? paint : p; }));
  TILE_OUT(tile, TileOut::C);
}

void PEN_MASK_REV(float X, float Y) {
  const Tile tile = tile_at(X, Y);
  TILE_IN(tile, M_REDRAW);
  change_tile(
      Engine::PEN_MASK_REV, [key = RGB(DES_R, DES_G, DES_B)](Colour c) { return c != key && c != COL_A ? COL_A : c; },
      [](uint8_t* bytes) {
        if (!is_destination(bytes)) store_target(bytes);
      },
      word_by_word([key = destination_pixel(), paint = target_pixel()](uint32_t p) { return p == key ? p : paint; }));
  TILE_OUT(tile, TileOut::C);
}

// Without a shortcut for the destination colour itself: while FUZZY_H is 0 the pen paints nothing at all.
void PEN_MASK_FUZZY(float X, float Y) {
  const FuzzyWindow window = fuzzy_window();
  const Tile tile = tile_at(X, Y);
  TILE_IN(tile, M_REDRAW);
  if (fast_forms()) levels.set(window);
  change_tile(
      Engine::PEN_MASK_FUZZY,
      [&](Colour c) {
        int32_t R = 0;
        int32_t G = 0;
        int32_t B = 0;
        unpack_colour(c, R, G, B);
        return c != COL_A && in_window(window, R, G, B) ? COL_A : c;
      },
      [&](uint8_t* bytes) {
        if (!is_target(bytes) && in_window(window, bytes[2], bytes[1], bytes[0])) store_target(bytes);
      },
      word_by_word([paint = target_pixel()](uint32_t p) { return p != paint && levels.holds(p) ? paint : p; }));
  TILE_OUT(tile, TileOut::C);
}

}  // namespace kiso
