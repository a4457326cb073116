// Whole files on the disk. Every failure is the RuntimeError that files.h lists.
#pragma once

#include <cstddef>
#include <string>

namespace text::disk {

inline constexpr size_t LIMIT = size_t{64} << 20;  // bytes; whole files pass through memory

// True if something that is not a folder stands at the path.
bool is_file(const std::string& path);

// A file's bytes. One that has more than LIMIT is error 7.
std::string read_whole(const std::string& path);

// Raises the error that write_whole would, as far as it can be told beforehand.
void check_writable(const std::string& path);

// Makes the file at `path` hold these bytes, all or, after an error, none of them. An old file keeps its permissions; a
// link stays one and the file that it leads to is replaced.
void write_whole(const std::string& path, const std::string& bytes);

// Gives a file the permissions of an old one, if there is one; it must be one that may be written.
void take_permissions(const std::string& path, const std::string& old);

void remove(const std::string& path);

enum class Existing { kept, replaced };  // kept: a file of the new name is error 58
void rename(const std::string& from, const std::string& to, Existing existing);

}  // namespace text::disk
