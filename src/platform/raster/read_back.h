// The read-back of an expanded view: the picture pixel of each block is the one at the middle column and the first row
// of it.
#pragma once

#include "platform/raster/surface.h"

namespace raster {

// w x h picture pixels of dest from x, y on, from the blocks of rate x rate pixels of source from sx, sy on. What lies
// outside of source leaves dest as it was.
void read_back(Surface& dest, int x, int y, int w, int h, const Surface& source, int sx, int sy, int rate);

}  // namespace raster
