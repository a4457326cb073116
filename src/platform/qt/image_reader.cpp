#include "platform/qt/image_reader.h"

#include <QBuffer>
#include <algorithm>
#include <climits>

#include "platform/error.h"
#include "platform/qt/surface_image.h"
#include "platform/raster/bmp.h"
#include "platform/raster/memory.h"

namespace qt {

namespace {

constexpr uint64_t SURFACE_BYTES = 4;  // a pixel

// A kind that does not tell its format has one of the common ones.
uint64_t bytes_decoded(const QImageReader& reader) {
  const QImage::Format format = reader.imageFormat();
  const int bits = format == QImage::Format_Invalid ? 32 : QImage::toPixelFormat(format).bitsPerPixel();
  const bool turned = reader.autoTransform() && reader.transformation() != QImageIOHandler::TransformationNone;
  return static_cast<uint64_t>((bits + 7) / 8) * (turned ? 2 : 1);
}

void check_size(QSize size, const QImageReader& reader) {
  if (size.isEmpty()) throw RuntimeError(481, reader.errorString().toStdString());
  if (size.width() > raster::MAX_SIDE || size.height() > raster::MAX_SIDE) {
    throw RuntimeError(481, "larger than " + std::to_string(raster::MAX_SIDE) + " pixels");
  }
}

uint64_t pixels_in(QSize size) { return static_cast<uint64_t>(size.width()) * static_cast<uint64_t>(size.height()); }

void check_needs(QSize size, const QImageReader& reader) {
  check_size(size, reader);
  raster::check_memory(pixels_in(size) * (bytes_decoded(reader) + SURFACE_BYTES));
}

}  // namespace

QImage decode(QImageReader& reader) {
  const uint64_t megabytes = (raster::free_memory() / 2) >> 20;
  QImageReader::setAllocationLimit(static_cast<int>(std::clamp<uint64_t>(megabytes, 1, INT_MAX)));
  QImage image = reader.read();
  if (image.isNull()) throw RuntimeError(481, reader.errorString().toStdString());
  return image;
}

raster::Surface read_image(QImageReader& reader, QSize size) try {
  check_needs(size, reader);
  const QImage image = decode(reader);
  if (pixels_in(image.size()) > pixels_in(size)) check_needs(image.size(), reader);
  return surface_of(image);
} catch (const std::bad_alloc&) {
  throw RuntimeError(7);
}

bool is_drawing(const QImageReader& reader) { return reader.format().startsWith("svg"); }

raster::Surface picture_from_bytes(const QByteArray& bytes) {
  try {
    return raster::read_bmp(
        {.size = static_cast<uint64_t>(bytes.size()), .memory = reinterpret_cast<const uint8_t*>(bytes.constData())});
  } catch (const RuntimeError& e) {
    if (e.number != 481) throw;
  }
  QBuffer file;
  file.setData(bytes);
  QImageReader reader(&file);
  if (!reader.canRead() || is_drawing(reader)) throw RuntimeError(481);
  return read_image(reader);
}

}  // namespace qt
