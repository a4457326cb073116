// Any bytes are a picture whose pixels are all there, or error 481. The PNG decoder here lets the bytes decide what it
// answers, right or wrong.
#include <cstdlib>

#include "platform/error.h"
#include "platform/raster/ico.h"

static bool decode(const uint8_t* bytes, size_t n, raster::PngPicture& out) {
  const uint8_t mood = bytes[n - 1];
  out.width = bytes[19];
  out.height = bytes[23] + mood / 254;
  out.bgra.assign(4 * static_cast<size_t>(out.width) * static_cast<size_t>(out.height) + mood / 255, bytes[n / 2]);
  return mood != 7;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  constexpr int DEPTHS[] = {32, 32, 24, 16, 8};
  try {
    const raster::PictureBytes bytes{size, data, -1};
    const raster::Surface s =
        raster::read_picture(bytes, DEPTHS[size % std::size(DEPTHS)], size % 3 ? decode : nullptr);
    if (s.width() < 1 || s.height() < 1) std::abort();
    for (int y = 0; y < s.height() && s.depth() == 32; ++y) {
      if (s.row32(y)[0] >> 24 != 0xFF || s.row32(y)[s.width() - 1] >> 24 != 0xFF) std::abort();
    }
  } catch (const RuntimeError& error) {
    if (error.number != 481) std::abort();
  }
  return 0;
}
