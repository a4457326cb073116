// Whole files on the disk. Every failure is a RuntimeError of the numbers in errors.h; 53 no such file.
#pragma once

#include <cstddef>
#include <string>

namespace disk {

inline constexpr size_t LIMIT = size_t{64} << 20;  // bytes; whole files pass through memory

// A file's bytes. One that has more than LIMIT is error 7.
std::string read_whole(const std::string& path);

// Makes the file at `path` hold these bytes, all or, after an error, none of them (new_file.h).
void write_whole(const std::string& path, const std::string& bytes);

// Gives a file the mode and the owner of an old one, if there is one; it must be one that may be written.
void take_rights_of(const std::string& path, const std::string& old);

void remove(const std::string& path);

enum class Existing { kept, replaced };  // kept: a file of the new name is error 58
void rename(const std::string& from, const std::string& to, Existing existing);

}  // namespace disk
