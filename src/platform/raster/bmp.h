// Picture files: where their bytes come from, and the BMP format in both directions.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "platform/raster/surface.h"

namespace raster {

// The bytes of a picture, in an open file or in memory.
struct PictureBytes {
  uint64_t size = 0;
  const uint8_t* memory = nullptr;
  int file = -1;  // below 0: the bytes are those in memory

  // Bytes that are not all there are error 481, others a file that can not be read (disk/errors.h).
  void read(uint64_t at, void* to, size_t n) const;
};

// A picture of any BMP kind with 1, 2, 4, 8, 16, 24 or 32 bits, as a new surface of that depth (32, 24, 16 or 8). The
// alpha of 32 bits is ignored; an index beyond the palette is black; pixels that run-length rows skip take palette
// colour 0, or black if there is no palette. Anything else is error 481, and memory is taken only for a size that the
// bytes can hold; one that is too much for check_memory is error 7.
Surface read_bmp(const PictureBytes& bytes, int depth = 32);

// Writes 24 bits, bottom row first: the whole file or, on any error, none of it (disk/new_file.h). A surface without
// pixels is error 481.
void save_bmp(const Surface& s, const std::string& path);

}  // namespace raster
