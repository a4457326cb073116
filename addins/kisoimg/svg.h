// SVG, the one kind that is not pixels but says what is to be drawn.
#pragma once

#include <QIODevice>

#include "platform/raster/surface.h"

namespace kisoimg {

// Draws it on white, in the size that it tells; packed by gzip or not. What it says of files and addresses outside of
// itself is passed over. Errors are those of qt::read_image. A drawing that takes longer than SECONDS of the processor
// ends the process, with that as its message.
raster::Surface read_svg(QIODevice& file);

// The document without anything that leads out of it, as UTF-8. Of references what points at the document's own parts
// is left, and pictures in the document, if they are pixels. Error 481 if it is not well-formed.
QByteArray closed_svg(const QByteArray& document);

}  // namespace kisoimg
