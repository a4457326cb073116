#include "platform/disk/disk.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "platform/disk/errors.h"
#include "platform/disk/new_file.h"
#include "platform/disk/paths.h"

namespace disk {

namespace {

// Raises what the system's last call on this path reported.
void check(bool done, const std::string& path) {
  if (done) return;
  const int error = errno;
  throw error_of(error, is_folder(folder_of(path)) ? 53 : 76);
}

}  // namespace

std::string read_whole(const std::string& path) {
  check_name(path);
  // A pipe at the path must not stop the program.
  const Descriptor file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  check(file.open(), path);
  struct stat info;
  check(fstat(file.number(), &info) == 0, path);
  if (!S_ISREG(info.st_mode)) throw RuntimeError(75);
  std::string bytes;
  char buffer[65536];
  for (;;) {
    const ssize_t n = read(file.number(), buffer, sizeof buffer);
    if (n < 0 && errno == EINTR) continue;
    check(n >= 0, path);
    if (n == 0) return bytes;
    if (bytes.size() + static_cast<size_t>(n) > LIMIT) throw RuntimeError(7);
    bytes.append(buffer, static_cast<size_t>(n));
  }
}

void write_whole(const std::string& path, const std::string& bytes) {
  NewFile file(path);
  file.write(bytes.data(), bytes.size());
  file.take_its_name();
}

void take_rights_of(const std::string& path, const std::string& old) {
  struct stat info;
  if (stat(old.c_str(), &info) != 0 || !S_ISREG(info.st_mode)) return;
  check(may(old, W_OK), old);
  const Descriptor file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  check(file.open(), path);
  take_rights(file.number(), info);
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

}  // namespace disk
