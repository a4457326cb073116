// Where the program keeps its files.
#pragma once

#include <string>

namespace text {

// The directory of settings, registry and dictionary, without a separator at its end: KISO_HOME where that is set; the
// program's own directory when it holds the templates and can be written to; else a directory of the user's, made and
// filled with the templates when it is first asked for.
std::string program_directory();
// The directory of the running program itself.
std::string executable_directory();

// A path without blanks to the same file or directory: the path itself if it has none, otherwise through a link in a
// private run-time directory. It ends in a separator if the path does. "" if it does not exist.
std::string SHORT_PATH(const std::string& path);

}  // namespace text
