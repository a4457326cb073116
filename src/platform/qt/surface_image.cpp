#include "platform/qt/surface_image.h"

#include <QPainter>
#include <algorithm>

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

raster::Surface surface_of(const QImage& image) {
  constexpr int STRIP_ROWS = 16;  // stays in the cache between the decoding and the copy
  raster::Surface picture = raster::Surface::unpainted(image.width(), image.height());
  for (int y = 0; y < image.height(); y += STRIP_ROWS) {
    const int rows = std::min(STRIP_ROWS, image.height() - y);
    QImage from(image.constScanLine(y), image.width(), rows, image.bytesPerLine(), image.format());
    from.setColorTable(image.colorTable());
    QImage to(picture.row(y), picture.width(), rows, picture.stride(), QImage::Format_RGB32);
    if (image.hasAlphaChannel()) to.fill(Qt::white);
    QPainter(&to).drawImage(0, 0, from);
  }
  return picture;
}

}  // namespace qt
