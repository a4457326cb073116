// A text file's bytes and its lines. A file whose bytes are valid UTF-8 as a whole is UTF-8, any other is code page
// 932.
//
// Nothing is lost on the way in or out. In memory a byte that its file's encoding gives no character for stands as that
// byte. What a line can hold and a UTF-8 file can not - such a byte, as from a file name, and a line end within the
// line - is written as the private character U+F700 + byte, and read back as the byte.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace text {

enum class Encoding { utf8, cp932 };

// The encoding of a file's bytes; UTF-8 if both fit.
Encoding encoding_of_bytes(std::string_view bytes);

// The lines of a file, each ended by CR LF, LF or a lone CR, the last one also by the end of the file. A byte order
// mark of UTF-8 is dropped.
std::vector<std::string> decode(std::string_view bytes);

// The bytes of a file of these lines, each ended by CR LF. Lines that would not come back whole from code page 932 are
// written as UTF-8 although the former was asked for.
std::string encode(const std::vector<std::string>& lines, Encoding encoding);

}  // namespace text
