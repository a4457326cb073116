#include "platform/text/disk.h"

#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <memory>
#include <utility>

#include "platform/error.h"

namespace text::disk {

namespace {

struct ErrorRow {
  int system, number;
};
constexpr ErrorRow ERRORS[] = {
    {EACCES, 70}, {EPERM, 70},  {EROFS, 70},  {EBUSY, 70},   {ETXTBSY, 70}, {EISDIR, 75},       {EINVAL, 75},
    {ELOOP, 75},  {ENXIO, 75},  {ENODEV, 75}, {ENOTDIR, 76}, {ENOSPC, 61},  {EDQUOT, 61},       {EFBIG, 61},
    {EEXIST, 58}, {EMFILE, 67}, {ENFILE, 67}, {EXDEV, 74},   {ENOMEM, 7},   {ENAMETOOLONG, 75},
};

// "." for a bare name, "/" for what stands in the root.
std::string folder_of(const std::string& path) {
  const size_t slash = path.find_last_of('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

bool is_folder(const std::string& path) {
  struct stat info;
  return stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

// Raises what the system's last call on this path reported.
[[noreturn]] void fail(const std::string& path) {
  const int system = errno;
  if (system == ENOENT) throw RuntimeError(is_folder(folder_of(path)) ? 53 : 76);
  for (const ErrorRow& row : ERRORS)
    if (row.system == system) throw RuntimeError(row.number);
  throw RuntimeError(57);
}

void check(bool done, const std::string& path) {
  if (!done) fail(path);
}

// A name that the system would cut at a zero byte would be another file's.
void check_name(const std::string& path) {
  if (path.empty() || path.find('\0') != std::string::npos) throw RuntimeError(75);
}

class Descriptor {
 public:
  Descriptor(const std::string& path, int flags, mode_t mode = 0) : fd(open(path.c_str(), flags | O_CLOEXEC, mode)) {
    check(fd >= 0, path);
  }
  ~Descriptor() {
    if (fd >= 0) close(fd);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int release() { return std::exchange(fd, -1); }
  int fd;
};

bool may(const std::string& path, int what) { return faccessat(AT_FDCWD, path.c_str(), what, AT_EACCESS) == 0; }

// The file that a write to `path` replaces: a link is followed as far as it leads anywhere.
std::string target_of(const std::string& path) {
  const std::unique_ptr<char, decltype(&free)> real(realpath(path.c_str(), nullptr), free);
  return real ? real.get() : path;
}

void write_all(int fd, const std::string& bytes, const std::string& path) {
  for (size_t done = 0; done < bytes.size();) {
    const ssize_t n = write(fd, bytes.data() + done, bytes.size() - done);
    if (n < 0 && errno == EINTR) continue;
    check(n >= 0, path);
    done += static_cast<size_t>(n);
  }
}

}  // namespace

bool is_file(const std::string& path) {
  struct stat info;
  return path.find('\0') == std::string::npos && stat(path.c_str(), &info) == 0 && !S_ISDIR(info.st_mode);
}

std::string read_whole(const std::string& path) {
  check_name(path);
  const Descriptor file(path, O_RDONLY | O_NONBLOCK);  // a pipe at the path must not stop the program
  struct stat info;
  check(fstat(file.fd, &info) == 0, path);
  if (!S_ISREG(info.st_mode)) throw RuntimeError(75);
  std::string bytes;
  char buffer[65536];
  for (;;) {
    const ssize_t n = read(file.fd, buffer, sizeof buffer);
    if (n < 0 && errno == EINTR) continue;
    check(n >= 0, path);
    if (n == 0) return bytes;
    if (bytes.size() + static_cast<size_t>(n) > LIMIT) throw RuntimeError(7);
    bytes.append(buffer, static_cast<size_t>(n));
  }
}

void check_writable(const std::string& path) {
  check_name(path);
  const std::string target = target_of(path), folder = folder_of(target);
  struct stat info;
  if (stat(target.c_str(), &info) == 0) {
    if (!S_ISREG(info.st_mode)) throw RuntimeError(75);
    check(may(target, W_OK), target);
  } else if (errno != ENOENT) {
    fail(target);
  }
  if (!is_folder(folder)) throw RuntimeError(76);
  check(may(folder, W_OK | X_OK), folder);
}

void write_whole(const std::string& path, const std::string& bytes) {
  check_writable(path);
  const std::string target = target_of(path);
  const std::string temporary = folder_of(target) + "/.kiso" + std::to_string(getpid()) + ".tmp";
  ::unlink(temporary.c_str());  // left behind by a process of this number that did not come to its end
  Descriptor file(temporary, O_WRONLY | O_CREAT | O_EXCL, 0666);
  try {
    take_permissions(temporary, target);
    write_all(file.fd, bytes, target);
    check(fsync(file.fd) == 0, target);
    check(close(file.release()) == 0, target);
    rename(temporary, target, Existing::replaced);
  } catch (...) {
    ::unlink(temporary.c_str());
    throw;
  }
}

void take_permissions(const std::string& path, const std::string& old) {
  struct stat info;
  if (stat(old.c_str(), &info) != 0 || !S_ISREG(info.st_mode)) return;
  check(may(old, W_OK), old);
  if (chmod(path.c_str(), info.st_mode & 07777) != 0) return;  // a file system without permissions; the bytes count
}

void remove(const std::string& path) {
  check_name(path);
  check(::unlink(path.c_str()) == 0, path);
}

void rename(const std::string& from, const std::string& to, Existing existing) {
  check_name(from);
  check_name(to);
  check(may(from, F_OK), from);
  if (existing == Existing::replaced) {
    if (is_folder(to)) throw RuntimeError(75);
    check(::rename(from.c_str(), to.c_str()) == 0, to);
    return;
  }
  if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return;
  // Not every file system knows that call.
  check(errno == EINVAL || errno == ENOSYS, to);
  struct stat info;
  if (lstat(to.c_str(), &info) == 0) throw RuntimeError(58);
  check(::rename(from.c_str(), to.c_str()) == 0, to);
}

}  // namespace text::disk
