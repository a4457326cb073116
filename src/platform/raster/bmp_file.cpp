#include "platform/raster/bmp_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace raster {

RuntimeError file_error(int error, int if_missing) {
  static constexpr struct {
    int error, number;
  } NUMBERS[] = {
      {ENOTDIR, 76}, {EACCES, 70}, {EPERM, 70},  {EROFS, 70}, {EBUSY, 70},
      {ETXTBSY, 70}, {ENOSPC, 61}, {EDQUOT, 61}, {EFBIG, 61}, {ENOMEM, 7},
  };
  if (error == ENOENT) return RuntimeError(if_missing);
  for (const auto& row : NUMBERS) {
    if (row.error == error) return RuntimeError(row.number);
  }
  return RuntimeError(75);
}

bool FileHandle::close() {
  const int fd = fd_;
  fd_ = -1;
  return fd < 0 || ::close(fd) == 0;
}

namespace {

// Opening a device can do something or wait, so that what is no file is not opened; without O_NONBLOCK a pipe that
// takes the name after the look would wait for a writer.
int open_to_read(const std::string& path) {
  struct stat about {};
  if (path.find('\0') != std::string::npos) throw RuntimeError(75);  // the system would take it for another name
  if (stat(path.c_str(), &about) != 0) throw file_error(errno, 53);
  if (!S_ISREG(about.st_mode)) throw RuntimeError(75);
  return open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
}

}  // namespace

PictureFile::PictureFile(const std::string& path) : handle(open_to_read(path)) {
  struct stat about {};
  if (handle.get() < 0 || fstat(handle.get(), &about) != 0) throw file_error(errno, 53);
  if (!S_ISREG(about.st_mode)) throw RuntimeError(75);
  bytes.size = static_cast<uint64_t>(about.st_size);
  bytes.file = handle.get();
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
    if (got < 0) throw file_error(errno, 75);
    if (got == 0) throw RuntimeError(481);  // the file has become shorter since it was opened
    next += got;
    at += static_cast<uint64_t>(got);
    n -= static_cast<size_t>(got);
  }
}

}  // namespace raster
