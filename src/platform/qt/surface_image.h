// A surface as Qt sees it, and what Qt has read as a surface.
#pragma once

#include <QImage>

#include "platform/raster/surface.h"

namespace qt {

// The surface's own memory, without a copy: good for as long as the surface keeps its size.
QImage image_over(const raster::Surface& surface);

// A picture that Qt has read, on white where it is transparent; 32 bits. Errors: 380 no size of a surface, 7 its memory
// can not be had.
raster::Surface surface_of(const QImage& image);

}  // namespace qt
