// The pictures and surfaces that the rows work on, and that their peers work on too.
#pragma once

#include "picgen.h"
#include "platform/raster/draw.h"

namespace bench {

constexpr int VIEW_W = 1920, VIEW_H = 1080;
constexpr int CELLS_W = VIEW_W / 8, CELLS_H = VIEW_H / 8;  // the picture pixels of a view at x8
constexpr int THUMB = 200;                                 // side of the overview
// The fills start at the first pixel of the maze's corridors and fill with this colour.
constexpr raster::Colour FILL = raster::RGB(0x20, 0x50, 0xC0);
constexpr int FILL_START = 1;

struct Pictures {
  raster::Surface picture{picgen::W, picgen::H};  // picgen's, seed 1
  raster::Surface maze{picgen::W, picgen::H};
  raster::Surface target{picgen::W, picgen::H};  // for whole-picture results
  raster::Surface view{VIEW_W, VIEW_H}, other_view{VIEW_W, VIEW_H};
  raster::Surface cells{CELLS_W, CELLS_H};
  raster::Surface thumbnail{THUMB, THUMB};
};
Pictures& pictures();

inline size_t bytes(const raster::Surface& s) {
  return static_cast<size_t>(s.stride()) * static_cast<size_t>(s.height());
}

}  // namespace bench
