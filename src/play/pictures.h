// What scripts ask of pictures.
#pragma once

#include <string>

#include "platform/raster/draw.h"

namespace play {

// "R G B", or "outside".
std::string pixel_text(const raster::Surface& surface, int x, int y);

}  // namespace play
