// What paths say and what stands at them.
#pragma once

#include <string>

namespace disk {

// "." for a bare name, "/" for what stands in the root.
std::string folder_of(const std::string& path);

bool is_folder(const std::string& path);

// True if something that is not a folder stands at the path.
bool is_file(const std::string& path);

// What this user may do there: R_OK, W_OK, X_OK, or F_OK if it is there at all. errno tells why not.
bool may(const std::string& path, int what);

// Error 75 for a name that the system would not take or would cut: it could be another file's.
void check_name(const std::string& path);

}  // namespace disk
