#include "platform/forms/clipboard.h"

#include "platform/error.h"
#include "platform/forms/runtime.h"
#include "platform/raster/draw.h"

namespace forms {

namespace {

bool is_bitmap(int format) { return format == Clipboard::BITMAP || format == Clipboard::DIB; }
bool has_pixels(const raster::Surface& s) { return s.width() > 0 && s.height() > 0; }

raster::Surface copy_of(const raster::Surface& s) {
  raster::Surface copy = raster::Surface::unpainted(s.width(), s.height(), s.depth());
  BitBlt(copy, 0, 0, s.width(), s.height(), s, 0, 0);
  return copy;
}

}  // namespace

bool Desktop::clipboard_has_picture() { return has_pixels(clipboard_); }

bool Desktop::read_clipboard(raster::Surface& picture) {
  if (!clipboard_has_picture()) return false;
  picture = copy_of(clipboard_);
  return true;
}

void Desktop::write_clipboard(const raster::Surface& picture) { clipboard_ = copy_of(picture); }

void Desktop::clear_clipboard() { clipboard_ = raster::Surface(); }

namespace Clipboard {

bool GetFormat(int format) { return is_bitmap(format) && desktop().clipboard_has_picture(); }

raster::Surface GetData() {
  raster::Surface picture;
  if (!desktop().read_clipboard(picture)) throw RuntimeError(460);
  return picture;
}

void SetData(const raster::Surface& picture, int format) {
  if (!is_bitmap(format) || !has_pixels(picture)) throw RuntimeError(460);
  desktop().write_clipboard(picture);
}

void Clear() { desktop().clear_clipboard(); }

}  // namespace Clipboard
}  // namespace forms
