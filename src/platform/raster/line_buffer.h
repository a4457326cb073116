// Rows of pixels on their way from one surface to another, in the form rgb32.
#pragma once

#include "platform/raster/draw.h"

namespace raster {

// Columns x to x + n - 1 of row y, all inside the surface.
void load_row(const Surface& s, int y, int x, int n, uint32_t* out);
void store_row(Surface& s, int y, int x, int n, const uint32_t* in, Rop rop);

constexpr uint32_t combine(uint32_t dest, uint32_t src, Rop rop) {
  return rop == SRCAND ? dest & src : rop == SRCPAINT ? dest | src : src;
}

}  // namespace raster
