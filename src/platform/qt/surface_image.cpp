#include "platform/qt/surface_image.h"

namespace qt {

namespace {

// 8 bits are 3-3-2, each field spread over the whole range.
QList<QRgb> colours_332(const raster::Surface& surface) {
  QList<QRgb> table(256);
  for (uint32_t pixel = 0; pixel < 256; ++pixel) {
    const raster::Colour c = surface.to_colour(pixel);
    table[pixel] = qRgb(static_cast<int>(c & 0xFF), static_cast<int>(c >> 8 & 0xFF), static_cast<int>(c >> 16 & 0xFF));
  }
  return table;
}

QImage::Format format_of(int depth) {
  switch (depth) {
    case 24: return QImage::Format_BGR888;
    case 16: return QImage::Format_RGB16;
    case 8: return QImage::Format_Indexed8;
    default: return QImage::Format_RGB32;
  }
}

}  // namespace

QImage image_over(const raster::Surface& surface) {
  QImage image(surface.row(0), surface.width(), surface.height(), surface.stride(), format_of(surface.depth()));
  if (surface.depth() == 8) image.setColorTable(colours_332(surface));
  return image;
}

}  // namespace qt
