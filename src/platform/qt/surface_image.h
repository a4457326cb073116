// A surface as Qt sees it.
#pragma once

#include <QImage>

#include "platform/raster/surface.h"

namespace qt {

// The surface's own memory, without a copy: good for as long as the surface keeps its size.
QImage image_over(const raster::Surface& surface);

}  // namespace qt
