// A surface as Qt sees it, and what Qt has read as a surface.
#pragma once

#include <QImage>

#include "platform/raster/surface.h"

namespace qt {

// The surface's own memory, without a copy: good for as long as the surface keeps its size.
QImage image_over(const raster::Surface& surface);

// A picture out of a file's bytes, of any kind that Qt reads, on white where it is transparent; 32 bits. False if it
// can not be read, or its memory can not be had.
bool picture_from_bytes(const QByteArray& bytes, raster::Surface& picture);
// The same of a picture that Qt has read.
bool picture_from_image(const QImage& image, raster::Surface& picture);

}  // namespace qt
