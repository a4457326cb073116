// What processes that share files agree on among themselves. A lock ends with its process, however that ends. On file
// systems that know no locks everyone goes on as if the lock were theirs.
#pragma once

#include <sys/types.h>

#include <string>

#include "platform/disk/descriptor.h"

namespace disk {

// One process at a time in a folder, while this lives. It may be taken again by who holds it, for the same folder.
// Never held across a box or a wait, it is soon free again: after two seconds of waiting everyone goes on without it.
class FolderLock {
 public:
  explicit FolderLock(const std::string& folder);
  ~FolderLock();
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;
};

// One byte of a file that only serves for locking; it is made if it is missing.
class ByteLock {
 public:
  ByteLock() = default;
  ByteLock(const std::string& file, off_t byte);
  // False if someone else holds the byte, be it in this process.
  bool held() const { return held_; }

 private:
  Descriptor file_;
  bool held_ = false;
};

}  // namespace disk
