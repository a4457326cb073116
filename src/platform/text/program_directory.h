// Where the program keeps its files.
#pragma once

#include <string>

#include "platform/disk/lock.h"

namespace text {

// The directory of settings, registry and dictionary, without a separator at its end: KISO_HOME where that is set; the
// program's own directory when it holds the templates and can be written to; else a directory of the user's, made and
// filled with the templates when it is first asked for. Where the one it should be can not be written, or there is no
// home, it is a private folder that this run has made.
std::string program_directory();
bool is_folder_of_the_run();
// The directory of the running program itself.
std::string executable_directory();

// A name that no other process holds, for as long as the lock lives; not held if another one does.
disk::ByteLock hold_name(const std::string& path);

// A path without blanks to the same file or directory: the path itself if it has none, otherwise through a link in a
// private run-time directory. It ends in a separator if the path does. "" if it does not exist.
std::string SHORT_PATH(const std::string& path);

}  // namespace text
