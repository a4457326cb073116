// A picture in a file.
#pragma once

#include <string>

#include "platform/disk/descriptor.h"
#include "platform/error.h"
#include "platform/raster/bmp.h"

namespace raster {

// A regular file open for reading, with its size; anything else that has a name is error 75.
struct PictureFile {
  explicit PictureFile(const std::string& path);
  disk::Descriptor file;
  PictureBytes bytes;
};

}  // namespace raster
