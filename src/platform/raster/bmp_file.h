// Files by the operating system's calls, with its errors as the platform's numbers.
#pragma once

#include <string>

#include "platform/error.h"
#include "platform/raster/bmp.h"

namespace raster {

// The numbered error of an errno. What a missing name means is the caller's: 53 to a reader, 76 to a writer.
RuntimeError file_error(int error, int if_missing);

// An open file of the operating system, closed at the end.
class FileHandle {
 public:
  explicit FileHandle(int fd) : fd_(fd) {}
  ~FileHandle() { close(); }
  FileHandle(const FileHandle&) = delete;
  FileHandle& operator=(const FileHandle&) = delete;
  int get() const { return fd_; }
  // False if the system reports an error that it kept until now.
  bool close();

 private:
  int fd_;
};

// A regular file open for reading, with its size; anything else that has a name is error 75.
struct PictureFile {
  explicit PictureFile(const std::string& path);
  FileHandle handle;
  PictureBytes bytes;
};

}  // namespace raster
