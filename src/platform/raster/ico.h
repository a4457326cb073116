// Icons and cursors, and the one door for every picture file that is read without help.
#pragma once

#include <string>
#include <vector>

#include "platform/raster/bmp.h"

namespace raster {

// What a decoded PNG is handed over in: rows from the top, four bytes a pixel, blue, green, red and alpha, the colours
// not multiplied by alpha.
struct PngPicture {
  int width = 0, height = 0;
  std::vector<uint8_t> bgra;
};
// Answers false if the bytes are no PNG that it can read.
using PngDecoder = bool (*)(const uint8_t* bytes, size_t n, PngPicture& out);

// The picture with the most pixels, and of those the one with the most bits, laid on white. Where a mask is set the
// colour is XORed with the white, as drawing an icon does; where all alpha of 32 bits is 0, the mask counts. A null
// decoder passes over PNG entries. Errors are those of read_bmp.
Surface read_ico(const PictureBytes& bytes, int depth = 32, PngDecoder png = nullptr);

// BMP, icon or cursor, told by the content; anything else is error 481.
Surface read_picture(const PictureBytes& bytes, int depth = 32, PngDecoder png = nullptr);

// The same from a file. Errors besides those: 53 there is no such file, 76 a part of the path is no folder, 75 a folder
// or a path that can not be read, 70 permission denied, 7 out of memory.
Surface load_picture_file(const std::string& path, int depth = 32, PngDecoder png = nullptr);

}  // namespace raster
