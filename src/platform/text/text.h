// The text operations of the system. Text is UTF-8 in memory; lengths and positions count characters from 1. A byte
// that is no part of valid UTF-8 counts as one character and passes through every operation unharmed.
#pragma once

#include <concepts>
#include <cstddef>
#include <string>
#include <string_view>

namespace text {

// Bytes of the character that begins at byte `at`, which must lie inside s; 0 if the byte there begins no valid one.
size_t utf8_bytes(std::string_view s, size_t at);
bool is_utf8(std::string_view s);

// Characters in s.
int Len(std::string_view s);

// The first n characters, the last n characters; all of s if it has fewer. A negative n is error 5.
std::string Left(std::string_view s, int n);
std::string Right(std::string_view s, int n);

// n characters from the character `start` on, or all that follow; "" behind the end. A start below 1 or a negative n is
// error 5.
std::string Mid(std::string_view s, int start);
std::string Mid(std::string_view s, int start, int n);

// 1-based place of the first t in s, 0 if it is not there. An empty t stands at 1 of any text that is not empty.
int InStr(std::string_view s, std::string_view t);

// s without the blanks at both ends; tabs and wide blanks stay.
std::string Trim(std::string_view s);

// s with "a" to "z" raised, every other character as it is.
std::string UPPER_ASCII(std::string_view s);

// The number that s begins with: sign, digits, decimal point, exponent after E or D. Blanks, tabs and line feeds are
// skipped wherever they stand, the first character that can not continue the number ends it, and no number is 0. A
// number that a double can not hold is error 6.
double Val(std::string_view s);

// A number as text, without a blank in front: up to 15 significant digits, an exponent ("1E+15") outside 0.0001 to
// 1E15.
std::string CStr(double value);

// A number as text, with a blank in front if it is not negative; a fraction has no 0 before its point (" .5").
std::string Str(double value);
template <std::integral Integer>
std::string Str(Integer value) {
  return (value < 0 ? "" : " ") + std::to_string(value);
}

// A number in the pattern " ######0.00": a blank, then two decimals, halves rounded away from zero as the 15
// significant digits show them. A minus sign stands before the blank ("- 1.50"); what rounds to zero has none. No
// number is error 6.
std::string Format(double value);

}  // namespace text
