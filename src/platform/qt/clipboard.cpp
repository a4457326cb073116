// The clipboard that all programs share. What the editor puts there Qt offers to others as PNG, BMP and the other kinds
// that it writes; at the editor's end it hands it over to a clipboard manager, where one runs.
#include <QClipboard>
#include <QGuiApplication>
#include <QImageReader>
#include <QMimeData>

#include "platform/qt/desktop.h"
#include "platform/qt/surface_image.h"

namespace qt {

namespace {

// What the editor has put there. The clipboard gives the object itself back as long as it is the editor's.
struct OwnPicture : QMimeData {};

// The kinds of picture that are asked for, the exact ones first.
QStringList kinds(const QMimeData& offer) {
  QStringList found;
  for (const char* exact : {"image/png", "image/bmp", "image/x-bmp", "image/x-MS-bmp"}) found += exact;
  for (const QByteArray& other : QImageReader::supportedMimeTypes()) found += QString::fromLatin1(other);
  found.removeDuplicates();
  found.removeIf([&](const QString& kind) { return !offer.hasFormat(kind); });
  return found;
}

}  // namespace

bool QtDesktop::read_clipboard(raster::Surface& picture) {
  const QMimeData* offer = QGuiApplication::clipboard()->mimeData();
  if (!offer) return false;
  if (dynamic_cast<const OwnPicture*>(offer)) {
    return picture_from_image(qvariant_cast<QImage>(offer->imageData()), picture);
  }
  for (const QString& kind : kinds(*offer)) {
    if (picture_from_bytes(offer->data(kind), picture)) return true;
  }
  return false;
}

void QtDesktop::write_clipboard(const raster::Surface& picture) {
  auto* offer = new OwnPicture;  // NOLINT(cppcoreguidelines-owning-memory): the clipboard takes it
  offer->setImageData(image_over(picture).convertToFormat(QImage::Format_RGB32).copy());
  QGuiApplication::clipboard()->setMimeData(offer);
}

void QtDesktop::clear_clipboard() { QGuiApplication::clipboard()->clear(); }

}  // namespace qt
