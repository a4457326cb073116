// A file that is written anew: it takes its name when it is whole and on the disk, in one step. Until then, and after a
// failure, what stood at the name stands there as it was.
//
// Nothing is left behind by a process that is killed while it writes: the file has no name yet, where the file system
// can do that. In the moment between its temporary name and its own, and elsewhere all the time, it is called
// .kiso-PROCESS-NUMBER.tmp; one whose process has gone is removed when the next file is written in that folder.
#pragma once

#include <sys/stat.h>

#include <cstddef>
#include <string>

#include "platform/disk/descriptor.h"

namespace disk {

// Where the bytes stand while they are written.
enum class Place { without_a_name_if_possible, temporary_name };

// What it throws is a RuntimeError of the numbers in errors.h; 76 the folder is missing, 75 the name can be no file's,
// or what has it is none.
class NewFile {
 public:
  // A symbolic link at the path stays, and the file that it leads to is the one that is replaced.
  explicit NewFile(const std::string& path, Place place = Place::without_a_name_if_possible);
  ~NewFile();
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  void write(const void* bytes, size_t n);

  // Once, behind the last write. The mode of a file that is replaced stays, and its owner and group where the system
  // allows that.
  void take_its_name();

 private:
  void open_without_a_name(Place place);
  void open_with_a_name();
  void next_temporary_name();

  std::string target_;
  struct stat old_ {};
  bool replaces_ = false;
  std::string temporary_;  // "": no such name stands on the disk
  int number_ = 0;         // of the temporary name
  Descriptor file_;
};

// Raises the error that a NewFile at the path would, as far as it can be told beforehand.
void check_writable(const std::string& path);

// The mode of an old file, and its owner and group as far as the system allows: only root may give a file to another
// owner, a member may give it to the group, and some file systems know no rights. None of this is an error.
void take_rights(int file, const struct stat& old);

}  // namespace disk
