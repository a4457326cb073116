#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <new>
#include <vector>

#include "platform/raster/bmp_file.h"
#include "platform/raster/bmp_pack.h"
#include "platform/raster/line_buffer.h"

namespace raster {

namespace fs = std::filesystem;

namespace {

constexpr size_t STRIP_BYTES = size_t{256} << 10;  // stays in the cache between packing and writing
constexpr size_t HEADER_BYTES = 54;

fs::path end_of_links(fs::path path) {
  for (int hops = 0; hops < 40; ++hops) {
    std::error_code no_link;
    const fs::path to = fs::read_symlink(path, no_link);
    if (no_link) return path;
    path = path.parent_path() / to;
  }
  throw RuntimeError(75);
}

// A new file beside the one that it will replace. It is removed unless it has taken that one's name.
class Replacement {
 public:
  explicit Replacement(const std::string& path) : target_(end_of_links(path)), handle_(create()) {}
  ~Replacement() {
    if (!temporary_.empty()) unlink(temporary_.c_str());
  }
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;

  void write(const uint8_t* bytes, size_t n) {
    while (n > 0) {
      const ssize_t put = ::write(handle_.get(), bytes, n);
      if (put < 0 && errno == EINTR) continue;
      if (put <= 0) throw file_error(put < 0 ? errno : ENOSPC, 76);
      bytes += put;
      n -= static_cast<size_t>(put);
    }
  }

  void replace() {
    if (exists_) take_over_rights();
    if (!handle_.close() || rename(temporary_.c_str(), target_.c_str()) != 0) throw file_error(errno, 76);
    temporary_.clear();
  }

 private:
  int create() {
    exists_ = stat(target_.c_str(), &old_) == 0;
    if (!exists_ && errno != ENOENT) throw file_error(errno, 76);
    if (!target_.has_filename() || (exists_ && !S_ISREG(old_.st_mode))) throw RuntimeError(75);
    // A new file could take the place of one that is protected against writing; it must not.
    if (exists_ && faccessat(AT_FDCWD, target_.c_str(), W_OK, AT_EACCESS) != 0) throw file_error(errno, 76);
    for (int n = 0;; ++n) {
      const std::string name = ".kiso-" + std::to_string(getpid()) + "-" + std::to_string(n) + ".tmp";
      temporary_ = target_.parent_path() / name;
      const int fd = open(temporary_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, exists_ ? 0600 : 0666);
      if (fd >= 0) return fd;
      const int error = errno;
      temporary_.clear();
      if (error != EEXIST) throw file_error(error, 76);
    }
  }

  // As far as the system allows: only root may give a file to another owner, a member may give it to the group, and
  // some file systems know no rights. None of this is a reason not to save.
  void take_over_rights() {
    const int fd = handle_.get();
    const bool group_kept =
        fchown(fd, old_.st_uid, old_.st_gid) == 0 || fchown(fd, static_cast<uid_t>(-1), old_.st_gid) == 0;
    // Rights that were meant for the old group are not for another one.
    fchmod(fd, old_.st_mode & (group_kept ? 07777u : 07707u));
  }

  fs::path target_;
  struct stat old_ {};
  bool exists_ = false;
  fs::path temporary_;
  FileHandle handle_;
};

void put32(uint8_t* to, uint32_t value) {
  for (int i = 0; i < 4; ++i) to[i] = static_cast<uint8_t>(value >> 8 * i);
}

void put_header(uint8_t* to, const Surface& s, size_t row_bytes) {
  const uint32_t pixel_bytes = static_cast<uint32_t>(row_bytes) * static_cast<uint32_t>(s.height());
  std::fill_n(to, HEADER_BYTES, uint8_t{0});
  to[0] = 'B', to[1] = 'M';
  put32(to + 2, HEADER_BYTES + pixel_bytes);
  put32(to + 10, HEADER_BYTES);
  put32(to + 14, 40);
  put32(to + 18, static_cast<uint32_t>(s.width()));
  put32(to + 22, static_cast<uint32_t>(s.height()));
  to[26] = 1;   // planes
  to[28] = 24;  // bits
  put32(to + 34, pixel_bytes);
}

// The surface's rows as 32-bit pixels.
class RowSource {
 public:
  explicit RowSource(const Surface& s) : s_(s) {
    if (s.depth() != 32) line_.resize(static_cast<size_t>(s.width()));
  }
  const uint32_t* row(int y) {
    if (line_.empty()) return s_.row32(y);
    load_row(s_, y, 0, s_.width(), line_.data());
    return line_.data();
  }

 private:
  const Surface& s_;
  std::vector<uint32_t> line_;  // empty: the rows are the surface's own
};

}  // namespace

void save_bmp(const Surface& s, const std::string& path) try {
  if (s.width() == 0 || s.height() == 0) throw RuntimeError(481);
  const size_t pixel_bytes = static_cast<size_t>(s.width()) * 3, row_bytes = (pixel_bytes + 3) / 4 * 4;
  std::vector<uint8_t> strip(std::max(STRIP_BYTES, HEADER_BYTES + row_bytes));
  put_header(strip.data(), s, row_bytes);
  size_t filled = HEADER_BYTES;
  RowSource rows(s);
  Replacement file(path);
  for (int y = s.height() - 1; y >= 0; --y) {
    if (filled + row_bytes > strip.size()) {
      file.write(strip.data(), filled);
      filled = 0;
    }
    uint8_t* row = &strip[filled];
    pack_24(rows.row(y), row, s.width());
    std::fill(row + pixel_bytes, row + row_bytes, uint8_t{0});
    filled += row_bytes;
  }
  file.write(strip.data(), filled);
  file.replace();
} catch (const std::bad_alloc&) {
  throw RuntimeError(7);
}

}  // namespace raster
