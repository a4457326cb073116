// The exact exchange of one colour.
#pragma once

#include "platform/raster/draw.h"

namespace kiso {

enum class Chosen : bool { key, all_but_key };

// The pixels of the key colour, or all others, become target. The way follows the surface's depth, and with it what
// WAIT_PROGRESS is told: 0, then rows 1 to the height, or columns 0 to the width.
void exchange_colour(raster::Surface& s, raster::Colour key, raster::Colour target, Chosen chosen);

}  // namespace kiso
