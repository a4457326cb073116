#include "platform/qt/images.h"

#include <QSaveFile>
#include <cstring>

#include "platform/error.h"
#include "platform/qt/surface_image.h"
#include "platform/raster/draw.h"

namespace qt {

bool decode_png(const uint8_t* bytes, size_t n, raster::PngPicture& out) {
  if (n > INT32_MAX) return false;
  const QImage image = QImage::fromData(bytes, static_cast<int>(n), "PNG").convertToFormat(QImage::Format_ARGB32);
  if (image.isNull()) return false;
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
  const QImage image(copy.row(0), copy.width(), copy.height(), static_cast<qsizetype>(copy.stride()),
                     QImage::Format_RGB32);
  QSaveFile file(QString::fromStdString(path));
  return file.open(QIODevice::WriteOnly) && image.save(&file, "PNG") && file.commit();
}

raster::Surface load_any_picture(const std::string& path) {
  try {
    return raster::load_picture_file(path, 32, decode_png);
  } catch (const RuntimeError& e) {
    if (e.number != 481) throw;
  }
  raster::Surface picture;
  if (!picture_from_image(QImage(QString::fromStdString(path)), picture)) throw RuntimeError(481);
  return picture;
}

}  // namespace qt
