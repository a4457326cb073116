#include "platform/qt/images.h"

#include <QBuffer>
#include <cstring>

#include "platform/disk/disk.h"
#include "platform/error.h"
#include "platform/qt/image_reader.h"
#include "platform/qt/surface_image.h"
#include "platform/raster/draw.h"

namespace qt {

bool decode_png(const uint8_t* bytes, size_t n, raster::PngPicture& out) {
  if (n > INT32_MAX) return false;
  QBuffer file;
  file.setData(reinterpret_cast<const char*>(bytes), static_cast<int>(n));
  QImageReader reader(&file, "PNG");
  QImage image;
  if (ignore_errors([&] { image = decode(reader); }) != 0) return false;
  image.convertTo(QImage::Format_ARGB32);
  out.width = image.width();
  out.height = image.height();
  const size_t row = static_cast<size_t>(image.width()) * 4;  // blue, green, red, alpha in memory
  out.bgra.resize(row * static_cast<size_t>(image.height()));
  for (int y = 0; y < image.height(); ++y) {
    std::memcpy(out.bgra.data() + row * static_cast<size_t>(y), image.constScanLine(y), row);
  }
  return true;
}

bool save_png(const raster::Surface& surface, const std::string& path) {
  raster::Surface copy(surface.width(), surface.height());
  BitBlt(copy, 0, 0, surface.width(), surface.height(), surface, 0, 0);
  QBuffer bytes;
  if (!image_over(copy).save(&bytes, "PNG")) return false;
  return ignore_errors([&] { disk::write_whole(path, bytes.data().toStdString()); }) == 0;
}

raster::Surface load_any_picture(const std::string& path) {
  try {
    return raster::load_picture_file(path, 32, decode_png);
  } catch (const RuntimeError& e) {
    if (e.number != 481) throw;
  }
  return picture_from_bytes(QByteArray::fromStdString(disk::read_whole(path)));
}

}  // namespace qt
