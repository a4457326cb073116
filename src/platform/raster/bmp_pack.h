// Rows between three and four bytes a pixel.
#pragma once

#include <cstdint>

namespace raster {

// n pixels blue, green, red become 0xFFRRGGBB.
void expand_24(const uint8_t* bgr, uint32_t* pixels, int n);

// The way back; writes exactly 3 n bytes.
void pack_24(const uint32_t* pixels, uint8_t* bgr, int n);

}  // namespace raster
