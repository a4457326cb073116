#include "platform/qt/surface_image.h"

#include <QPainter>

#include "platform/error.h"
#include "platform/raster/bmp.h"

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

bool picture_from_image(const QImage& image, raster::Surface& picture) {
  if (image.isNull() || image.width() > raster::MAX_SIDE || image.height() > raster::MAX_SIDE) return false;
  try {
    picture = raster::Surface(image.width(), image.height());
  } catch (const RuntimeError&) {
    return false;
  }
  QImage shown(picture.row(0), picture.width(), picture.height(), picture.stride(), QImage::Format_RGB32);
  QPainter(&shown).drawImage(0, 0, image);
  return true;
}

// BMP by the editor's own reader: it takes every kind of it.
bool picture_from_bytes(const QByteArray& bytes, raster::Surface& picture) {
  try {
    picture = raster::read_bmp(
        {.size = static_cast<uint64_t>(bytes.size()), .memory = reinterpret_cast<const uint8_t*>(bytes.constData())});
    return true;
  } catch (const RuntimeError&) {
    return picture_from_image(QImage::fromData(bytes), picture);
  }
}

}  // namespace qt
