#include "platform/raster/bmp_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "platform/disk/errors.h"

namespace raster {

namespace {

// Opening a device can do something or wait, so that what is no file is not opened; without O_NONBLOCK a pipe that
// takes the name after the look would wait for a writer.
int open_to_read(const std::string& path) {
  struct stat about {};
  if (path.find('\0') != std::string::npos) throw RuntimeError(75);  // the system would take it for another name
  if (stat(path.c_str(), &about) != 0) throw disk::error_of(errno, 53);
  if (!S_ISREG(about.st_mode)) throw RuntimeError(75);
  return open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
}

}  // namespace

PictureFile::PictureFile(const std::string& path) : file(open_to_read(path)) {
  struct stat about {};
  if (!file.open() || fstat(file.number(), &about) != 0) throw disk::error_of(errno, 53);
  if (!S_ISREG(about.st_mode)) throw RuntimeError(75);
  bytes.size = static_cast<uint64_t>(about.st_size);
  bytes.file = file.number();
}

void PictureBytes::read(uint64_t at, void* to, size_t n) const {
  if (at > size || n > size - at) throw RuntimeError(481);
  if (file < 0) {
    if (n > 0) std::memcpy(to, memory + at, n);
    return;
  }
  for (auto* next = static_cast<uint8_t*>(to); n > 0;) {
    const ssize_t got = pread(file, next, n, static_cast<off_t>(at));
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) throw disk::error_of(errno, 75);
    if (got == 0) throw RuntimeError(481);  // the file has become shorter since it was opened
    next += got;
    at += static_cast<uint64_t>(got);
    n -= static_cast<size_t>(got);
  }
}

}  // namespace raster
