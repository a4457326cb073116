// The system's clipboard, as far as it holds pictures.
#pragma once

#include "platform/raster/surface.h"

namespace forms::Clipboard {

enum Format { BITMAP = 2, DIB = 8 };

// Whether there is a picture in that format. Every picture has both formats, and what can not be read as a picture is
// none.
bool GetFormat(int format);
// A copy of the picture, on white where it was transparent. Error 460 if there is none.
raster::Surface GetData();
// Puts a copy of the picture there. A format that is not one of a bitmap, or a surface without pixels, is error 460.
void SetData(const raster::Surface& picture, int format = BITMAP);
void Clear();

}  // namespace forms::Clipboard
