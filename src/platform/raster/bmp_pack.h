// Rows between three and four bytes a pixel. The plain forms say what the fast ones do.
#pragma once

#include <cstdint>

namespace raster {

// n pixels blue, green, red become 0xFFRRGGBB.
void expand_24_plain(const uint8_t* bgr, uint32_t* pixels, int n);
void expand_24(const uint8_t* bgr, uint32_t* pixels, int n);

// The way back; writes exactly 3 n bytes.
void pack_24_plain(const uint32_t* pixels, uint8_t* bgr, int n);
void pack_24(const uint32_t* pixels, uint8_t* bgr, int n);

}  // namespace raster
