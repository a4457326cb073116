#include "platform/disk/paths.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/error.h"

namespace disk {

std::string folder_of(const std::string& path) {
  const size_t slash = path.find_last_of('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

bool is_folder(const std::string& path) {
  struct stat info;
  return stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

bool is_file(const std::string& path) {
  struct stat info;
  return path.find('\0') == std::string::npos && stat(path.c_str(), &info) == 0 && !S_ISDIR(info.st_mode);
}

bool may(const std::string& path, int what) { return faccessat(AT_FDCWD, path.c_str(), what, AT_EACCESS) == 0; }

void check_name(const std::string& path) {
  if (path.empty() || path.find('\0') != std::string::npos) throw RuntimeError(75);
}

}  // namespace disk
