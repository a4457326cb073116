// The clipboard that all programs share. What the editor puts there Qt offers to others as PNG, BMP and the other kinds
// that it writes; at the editor's end it hands it over to a clipboard manager, where one runs.
#include "platform/qt/clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include "platform/error.h"
#include "platform/qt/desktop.h"
#include "platform/qt/image_reader.h"
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

// The first that can be read; one that needs too much memory is none.
std::optional<raster::Surface> picture_in(const QMimeData& offer) {
  std::optional<raster::Surface> picture;
  for (const QString& kind : kinds(offer)) {
    if (ignore_errors([&] { picture = picture_from_bytes(offer.data(kind)); }) == 0) break;
  }
  return picture;
}

const QMimeData* offered() { return QGuiApplication::clipboard()->mimeData(); }

}  // namespace

ForeignPicture::ForeignPicture() {
  QObject::connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, &scope_, [this] { forget(); });
}

bool ForeignPicture::is_there(const QMimeData& offer) {
  if (!looked_) picture_ = picture_in(offer);
  looked_ = true;
  return picture_.has_value();
}

raster::Surface ForeignPicture::take() {
  raster::Surface picture = std::move(*picture_);
  forget();
  return picture;
}

void ForeignPicture::forget() {
  looked_ = false;
  picture_.reset();
}

bool QtDesktop::clipboard_has_picture() {
  const QMimeData* offer = offered();
  if (!offer) return false;
  if (dynamic_cast<const OwnPicture*>(offer)) return true;
  if (!foreign_picture_) foreign_picture_ = std::make_unique<ForeignPicture>();
  return foreign_picture_->is_there(*offer);
}

bool QtDesktop::read_clipboard(raster::Surface& picture) {
  if (!clipboard_has_picture()) return false;
  const auto* own = dynamic_cast<const OwnPicture*>(offered());
  picture = own ? surface_of(qvariant_cast<QImage>(own->imageData())) : foreign_picture_->take();
  return true;
}

void QtDesktop::write_clipboard(const raster::Surface& picture) {
  auto* offer = new OwnPicture;  // NOLINT(cppcoreguidelines-owning-memory): the clipboard takes it
  offer->setImageData(image_over(picture).convertToFormat(QImage::Format_RGB32).copy());
  QGuiApplication::clipboard()->setMimeData(offer);
}

void QtDesktop::clear_clipboard() { QGuiApplication::clipboard()->clear(); }

}  // namespace qt
