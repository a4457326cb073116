// Any bytes are a picture whose pixels are all there, or error 481.
#include <cstdlib>

#include "platform/error.h"
#include "platform/raster/bmp.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  constexpr int DEPTHS[] = {32, 32, 24, 16, 8};
  try {
    const raster::Surface s = raster::read_bmp({size, data, -1}, DEPTHS[size % std::size(DEPTHS)]);
    if (s.width() < 1 || s.height() < 1) std::abort();
    for (int y = 0; y < s.height() && s.depth() == 32; ++y) {
      if (s.row32(y)[0] >> 24 != 0xFF || s.row32(y)[s.width() - 1] >> 24 != 0xFF) std::abort();
    }
  } catch (const RuntimeError& error) {
    if (error.number != 481) std::abort();
  }
  return 0;
}
