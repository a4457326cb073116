// Pictures by Qt's readers. A size is looked at before anything of it is decoded. No windows: the add-ins use this too.
#pragma once

#include <QImageReader>

#include "platform/raster/surface.h"

namespace qt {

// Decodes what the reader has. Qt's own limit is half of the free memory: some kinds hold pictures of other sizes than
// they tell. Error 481 with Qt's reason.
QImage decode(QImageReader& reader);

// The picture of a reader that has its file, or the first one of several; 32 bits, on white where it is transparent.
// size: what the file says, for the kinds of which Qt does not tell it. Errors, with the reason as their text: 481 not
// such a picture, 7 it needs more memory than check_memory grants.
raster::Surface read_image(QImageReader& reader, QSize size);
inline raster::Surface read_image(QImageReader& reader) { return read_image(reader, reader.size()); }

// True if what the reader has is not pixels, but drawn by what the file says (SVG). How long that takes and what it
// reads can not be told beforehand: the editor draws none.
bool is_drawing(const QImageReader& reader);

// Pixels of any kind that can be told by their beginning: BMP by the editor's own reader, which takes every kind of it,
// anything else by Qt. Errors are those of read_image.
raster::Surface picture_from_bytes(const QByteArray& bytes);

}  // namespace qt
