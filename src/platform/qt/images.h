// Pictures that are not the editor's own format: PNG, and whatever else Qt reads. A size is looked at before anything
// of it is decoded. No windows: the add-ins use this too.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "platform/raster/ico.h"
#include "platform/raster/surface.h"

namespace qt {

// For the PNG entries of icons.
bool decode_png(const uint8_t* bytes, size_t n, raster::PngPicture& out);

// Written whole or not at all; false if it could not be.
bool save_png(const raster::Surface& surface, const std::string& path);

// BMP and ICO by the editor's own readers, anything else by Qt, on white where it is transparent; 32 bits. Errors are
// those of raster::load_picture_file.
raster::Surface load_any_picture(const std::string& path);

}  // namespace qt
