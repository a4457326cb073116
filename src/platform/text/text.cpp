#include "platform/text/text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <locale>
#include <sstream>

#include "platform/error.h"

namespace text {

namespace {

// The lead bytes of UTF-8 and the range of the byte behind each, which shuts out overlong forms, surrogates and what
// lies above U+10FFFF. The bytes after that one are 0x80 to 0xBF.
struct Lead {
  uint8_t first, last, second_low, second_high, bytes;
};
constexpr Lead LEADS[] = {
    {0x00, 0x7F, 0x00, 0x00, 1}, {0xC2, 0xDF, 0x80, 0xBF, 2}, {0xE0, 0xE0, 0xA0, 0xBF, 3},
    {0xE1, 0xEC, 0x80, 0xBF, 3}, {0xED, 0xED, 0x80, 0x9F, 3}, {0xEE, 0xEF, 0x80, 0xBF, 3},
    {0xF0, 0xF0, 0x90, 0xBF, 4}, {0xF1, 0xF3, 0x80, 0xBF, 4}, {0xF4, 0xF4, 0x80, 0x8F, 4},
};

bool between(std::string_view s, size_t at, uint8_t low, uint8_t high) {
  return at < s.size() && static_cast<uint8_t>(s[at]) >= low && static_cast<uint8_t>(s[at]) <= high;
}

// The byte behind the character at `at`.
size_t next(std::string_view s, size_t at) {
  const size_t bytes = utf8_bytes(s, at);
  return at + (bytes == 0 ? 1 : bytes);
}

// The byte where character number n + 1 begins; the end of s if it has no more than n.
size_t byte_of(std::string_view s, int n) {
  size_t at = 0;
  while (n-- > 0 && at < s.size()) at = next(s, at);
  return at;
}

// Takes the characters of a number from a text, over the blanks that Val skips.
struct NumberText {
  std::string_view rest;
  std::string number;

  void skip() { rest.remove_prefix(std::min(rest.find_first_not_of(" \t\n"), rest.size())); }
  bool take_one_of(std::string_view characters) {
    skip();
    if (rest.empty() || characters.find(rest.front()) == std::string_view::npos) return false;
    number += rest.front();
    rest.remove_prefix(1);
    return true;
  }
  bool take_digits() {
    const size_t before = number.size();
    while (take_one_of("0123456789")) {
    }
    return number.size() > before;
  }
};

// 15 significant digits of a value, the point behind the first, and the power of ten.
struct Digits {
  std::string digits;
  int exponent;
};

Digits digits_of(double value) {
  char buffer[32];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::scientific, 14).ptr;
  const std::string shown(buffer, end);  // d.dddddddddddddde+xx
  const size_t e = shown.find('e');
  return {shown.substr(0, 1) + shown.substr(2, e - 2), std::stoi(shown.substr(e + 1))};
}

// Adds one in the last place of a decimal number.
void count_up(std::string& digits) {
  size_t i = digits.size();
  while (i > 0 && digits[i - 1] == '9') digits[--i] = '0';
  if (i == 0)
    digits.insert(0, 1, '1');
  else
    ++digits[i - 1];
}

}  // namespace

size_t utf8_bytes(std::string_view s, size_t at) {
  for (const Lead& lead : LEADS) {
    if (!between(s, at, lead.first, lead.last)) continue;
    if (lead.bytes > 1 && !between(s, at + 1, lead.second_low, lead.second_high)) return 0;
    for (size_t i = 2; i < lead.bytes; ++i)
      if (!between(s, at + i, 0x80, 0xBF)) return 0;
    return lead.bytes;
  }
  return 0;
}

bool is_utf8(std::string_view s) {
  for (size_t at = 0; at < s.size();) {
    const size_t bytes = utf8_bytes(s, at);
    if (bytes == 0) return false;
    at += bytes;
  }
  return true;
}

int Len(std::string_view s) {
  int characters = 0;
  for (size_t at = 0; at < s.size(); at = next(s, at)) ++characters;
  return characters;
}

std::string Left(std::string_view s, int n) {
  if (n < 0) throw RuntimeError(5);
  return std::string(s.substr(0, byte_of(s, n)));
}

std::string Right(std::string_view s, int n) {
  if (n < 0) throw RuntimeError(5);
  return std::string(s.substr(byte_of(s, Len(s) - n)));
}

std::string Mid(std::string_view s, int start) { return Mid(s, start, std::numeric_limits<int>::max()); }

std::string Mid(std::string_view s, int start, int n) {
  if (start < 1) throw RuntimeError(5);
  return Left(s.substr(byte_of(s, start - 1)), n);
}

int InStr(std::string_view s, std::string_view t) {
  int character = 1;
  for (size_t at = 0; at < s.size(); at = next(s, at), ++character)
    if (s.substr(at, t.size()) == t) return character;
  return 0;
}

std::string Trim(std::string_view s) {
  const size_t first = s.find_first_not_of(' ');
  if (first == std::string_view::npos) return "";
  return std::string(s.substr(first, s.find_last_not_of(' ') - first + 1));
}

std::string UPPER_ASCII(std::string_view s) {
  std::string raised(s);
  for (char& c : raised)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 32);
  return raised;
}

double Val(std::string_view s) {
  NumberText n{s, ""};
  n.take_one_of("+-");
  const bool whole = n.take_digits();
  const bool fraction = n.take_one_of(".") && n.take_digits();
  if (!whole && !fraction) return 0;
  NumberText exponent{n.rest, ""};
  if (exponent.take_one_of("eEdD")) {
    exponent.take_one_of("+-");
    if (exponent.take_digits()) n.number += "e" + exponent.number.substr(1);
  }
  std::istringstream in(n.number);
  in.imbue(std::locale::classic());
  double value = 0;
  if (!(in >> value)) throw RuntimeError(6);
  return value;
}

std::string CStr(double value) {
  if (value == 0) value = 0;  // minus zero shows as zero
  char buffer[32];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 15).ptr;
  return UPPER_ASCII({buffer, end});
}

std::string Str(double value) {
  std::string shown = CStr(std::fabs(value));
  if (shown.starts_with("0.")) shown.erase(0, 1);
  return (value < 0 ? "-" : " ") + shown;
}

std::string Format(double value) {
  if (!std::isfinite(value)) throw RuntimeError(6);
  // The value in hundredths, as text: digits up to two places behind the point, then the digit that rounds them.
  Digits d = digits_of(std::fabs(value));
  if (d.exponent < -3) d = {"000", 0};
  if (d.exponent < 0) d.digits.insert(0, static_cast<size_t>(-d.exponent), '0');
  const size_t kept = static_cast<size_t>(std::max(d.exponent, 0)) + 3;
  d.digits.resize(std::max(d.digits.size(), kept + 1), '0');
  const bool up = d.digits[kept] >= '5';
  d.digits.resize(kept);
  if (up) count_up(d.digits);
  const bool zero = d.digits.find_first_not_of('0') == std::string::npos;
  d.digits.insert(d.digits.size() - 2, 1, '.');
  return (value < 0 && !zero ? "- " : " ") + d.digits;
}

}  // namespace text
