// What other programs offer on the clipboard.
#pragma once

#include <QObject>
#include <optional>

#include "platform/raster/surface.h"

class QMimeData;

namespace qt {

// Whether an offer is a picture shows when it is decoded, so that the answer keeps the picture until it is taken or the
// clipboard changes.
class ForeignPicture {
 public:
  ForeignPicture();
  bool is_there(const QMimeData& offer);
  raster::Surface take();  // what is there

 private:
  void forget();
  QObject scope_;  // of the connection to the clipboard
  bool looked_ = false;
  std::optional<raster::Surface> picture_;
};

}  // namespace qt
