// What stands between the parts of a path, and behind a program's name.
#pragma once

inline constexpr const char* PATH_SEP = "/";
inline constexpr const char* EXE_SUFFIX = "";
