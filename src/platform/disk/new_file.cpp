#include "platform/disk/new_file.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <memory>

#include "platform/disk/errors.h"
#include "platform/disk/paths.h"

namespace disk {

namespace {

constexpr const char* TEMPORARY_BEGIN = ".kiso-";
constexpr const char* TEMPORARY_END = ".tmp";

// A name of ours; nobody else's file is removed.
bool is_temporary_name(std::string_view name) {
  const std::string_view begin = TEMPORARY_BEGIN, end = TEMPORARY_END;
  if (!name.starts_with(begin) || !name.ends_with(end) || name.size() <= begin.size() + end.size()) return false;
  const std::string_view middle = name.substr(begin.size(), name.size() - begin.size() - end.size());
  return middle.find_first_not_of("0123456789-") == std::string_view::npos;
}

void check(bool done) {
  if (!done) throw error_of(errno, 76);
}

// A link to nothing names the file that is to be made.
std::string end_of_links(std::string path) {
  char to[PATH_MAX];
  for (int hops = 0; hops < 40; ++hops) {
    const ssize_t length = readlink(path.c_str(), to, sizeof to);
    if (length < 0) return path;
    const std::string link(to, static_cast<size_t>(length));
    path = link.starts_with('/') ? link : folder_of(path) + "/" + link;
  }
  throw RuntimeError(75);
}

// What a file is to be written over: true if there is one. A new file could take the place of one that is protected
// against writing; it must not.
bool look_at_target(const std::string& target, struct stat& old) {
  if (target.ends_with('/')) throw RuntimeError(75);
  if (stat(target.c_str(), &old) != 0) {
    check(errno == ENOENT);
    return false;
  }
  if (!S_ISREG(old.st_mode)) throw RuntimeError(75);
  check(may(target, W_OK));
  return true;
}

std::string target_of(const std::string& path) {
  check_name(path);
  return end_of_links(path);
}

bool is_the_same(const struct stat& a, const struct stat& b) { return a.st_dev == b.st_dev && a.st_ino == b.st_ino; }

// Removes a file that its writer can not give its name any more: a live one holds the lock. While the lock is ours, the
// name stays that file's, as everyone removes it under the lock.
void remove_if_left_behind(const std::string& path) {
  const Descriptor file(open(path.c_str(), O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  struct stat opened {
  }, named{};
  if (!file.open() || fstat(file.number(), &opened) != 0 || !S_ISREG(opened.st_mode)) return;
  if (flock(file.number(), LOCK_EX | LOCK_NB) != 0) return;
  if (lstat(path.c_str(), &named) == 0 && is_the_same(opened, named)) unlink(path.c_str());
}

void sweep(const std::string& folder) {
  const std::unique_ptr<DIR, int (*)(DIR*)> names(opendir(folder.c_str()), closedir);
  if (!names) return;
  while (const dirent* entry = readdir(names.get()))
    if (is_temporary_name(entry->d_name)) remove_if_left_behind(folder + "/" + entry->d_name);
}

// True if the file still has a name: a sweep in another process may have found it before it was locked.
bool lock_with_its_name(int file) {
  struct stat now {};
  flock(file, LOCK_EX);  // without locks on the file system nobody sweeps either
  return fstat(file, &now) == 0 && now.st_nlink > 0;
}

std::string path_by_number(int file) { return "/proc/self/fd/" + std::to_string(file); }

// Everything that the system has put off is done here, and told if it fails.
void flush_to_disk(int file) {
  while (fsync(file) != 0) check(errno == EINTR);
}

}  // namespace

NewFile::NewFile(const std::string& path, Place place) : target_(target_of(path)) {
  replaces_ = look_at_target(target_, old_);
  sweep(folder_of(target_));
  open_without_a_name(place);
  if (!file_.open()) open_with_a_name();
}

NewFile::~NewFile() {
  if (!temporary_.empty()) unlink(temporary_.c_str());
}

// Only its user sees a file that is to replace one, until it has that one's mode.
void NewFile::open_without_a_name(Place place) {
  if (place == Place::temporary_name) return;
  file_ = Descriptor(open(folder_of(target_).c_str(), O_WRONLY | O_TMPFILE | O_CLOEXEC, replaces_ ? 0600 : 0666));
  if (!file_.open()) return;
  flock(file_.number(), LOCK_EX);
  if (!may(path_by_number(file_.number()), F_OK)) file_ = Descriptor();  // no way to a name without /proc
}

void NewFile::open_with_a_name() {
  do {
    next_temporary_name();
    file_ = Descriptor(open(temporary_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, replaces_ ? 0600 : 0666));
    const int error = errno;
    if (!file_.open()) temporary_.clear();
    if (!file_.open() && error != EEXIST) throw error_of(error, 76);
  } while (!file_.open() || !lock_with_its_name(file_.number()));
}

void NewFile::next_temporary_name() {
  temporary_ = folder_of(target_) + "/" + TEMPORARY_BEGIN + std::to_string(getpid()) + "-" + std::to_string(number_++) +
               TEMPORARY_END;
}

void NewFile::write(const void* bytes, size_t n) {
  for (const auto* next = static_cast<const uint8_t*>(bytes); n > 0;) {
    const ssize_t put = ::write(file_.number(), next, n);
    if (put < 0 && errno == EINTR) continue;
    if (put <= 0) throw error_of(put < 0 ? errno : ENOSPC, 76);
    next += put;
    n -= static_cast<size_t>(put);
  }
}

// A file without a name can only get one that is free, so it comes to its own through a temporary one.
void NewFile::take_its_name() {
  if (replaces_) take_rights(file_.number(), old_);
  flush_to_disk(file_.number());
  const std::string path = path_by_number(file_.number());
  while (temporary_.empty()) {
    next_temporary_name();
    if (linkat(AT_FDCWD, path.c_str(), AT_FDCWD, temporary_.c_str(), AT_SYMLINK_FOLLOW) == 0) break;
    temporary_.clear();
    check(errno == EEXIST);
  }
  check(rename(temporary_.c_str(), target_.c_str()) == 0);
  temporary_.clear();
}

void check_writable(const std::string& path) {
  struct stat old {};
  const std::string target = target_of(path), folder = folder_of(target);
  look_at_target(target, old);
  if (!is_folder(folder)) throw RuntimeError(76);
  check(may(folder, W_OK | X_OK));
}

void take_rights(int file, const struct stat& old) {
  const bool group_kept =
      fchown(file, old.st_uid, old.st_gid) == 0 || fchown(file, static_cast<uid_t>(-1), old.st_gid) == 0;
  // Rights that were meant for the old group are not for another one.
  fchmod(file, old.st_mode & (group_kept ? 07777u : 07707u));
}

}  // namespace disk
