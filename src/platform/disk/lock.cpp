#include "platform/disk/lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

namespace disk {

namespace {

constexpr int WAIT_MS = 2000, LOOK_MS = 5;

constinit int depth = 0;
Descriptor locked_folder;

bool is_locked_by_another(int folder) { return flock(folder, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK; }

}  // namespace

FolderLock::FolderLock(const std::string& folder) {
  if (depth++ > 0) return;
  locked_folder = Descriptor(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!locked_folder.open()) return;
  for (int waited = 0; waited < WAIT_MS && is_locked_by_another(locked_folder.number()); waited += LOOK_MS)
    usleep(LOOK_MS * 1000);
}

FolderLock::~FolderLock() {
  if (--depth == 0) locked_folder = Descriptor();
}

ByteLock::ByteLock(const std::string& file, off_t byte)
    : file_(open(file.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600)), held_(true) {
  if (!file_.open()) return;
  struct flock range {};
  range.l_type = F_WRLCK;
  range.l_whence = SEEK_SET;
  range.l_start = byte;
  range.l_len = 1;
  held_ = fcntl(file_.number(), F_OFD_SETLK, &range) == 0 || (errno != EAGAIN && errno != EACCES);
}

}  // namespace disk
