#include "platform/text/encoding.h"

#include <iconv.h>

#include <cerrno>
#include <cstdint>
#include <optional>

#include "platform/text/text.h"

namespace text {

namespace {

constexpr std::string_view BYTE_ORDER_MARK = "\xEF\xBB\xBF";
constexpr unsigned PRIVATE = 0xF700;  // + byte

class Converter {
 public:
  Converter(const char* to, const char* from) : handle_(iconv_open(to, from)) {}
  ~Converter() {
    if (usable()) iconv_close(handle_);
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  // Converts from the start of `in` as far as it goes, appends to `out` and takes what was converted off `in`.
  void run(std::string_view& in, std::string& out) {
    while (usable() && !in.empty()) {
      char buffer[4096];
      char* from = const_cast<char*>(in.data());  // iconv does not write there
      char* to = buffer;
      size_t from_left = in.size(), to_left = sizeof buffer;
      const size_t result = iconv(handle_, &from, &from_left, &to, &to_left);
      const bool full = result == static_cast<size_t>(-1) && errno == E2BIG;
      out.append(buffer, to);
      in.remove_prefix(in.size() - from_left);
      if (!full) return;
    }
  }

 private:
  bool usable() const { return handle_ != reinterpret_cast<iconv_t>(-1); }
  iconv_t handle_;
};

std::string from_cp932(std::string_view bytes) {
  Converter converter("UTF-8", "CP932");
  std::string out;
  while (!bytes.empty()) {
    converter.run(bytes, out);
    if (bytes.empty()) break;
    out += bytes.front();
    bytes.remove_prefix(1);
  }
  return out;
}

// Nothing if s has a character that the code page does not.
std::optional<std::string> to_cp932(std::string_view s) {
  Converter converter("CP932", "UTF-8");
  std::string out;
  while (!s.empty()) {
    converter.run(s, out);
    if (s.empty()) break;
    if (utf8_bytes(s, 0) != 0) return std::nullopt;
    out += s.front();
    s.remove_prefix(1);
  }
  return out;
}

// The byte that the private character at `at` stands for; -1 if another character stands there.
int private_byte(std::string_view s, size_t at) {
  if (utf8_bytes(s, at) != 3) return -1;
  const auto part = [&](size_t i, unsigned mask) { return static_cast<uint8_t>(s[at + i]) & mask; };
  const unsigned code = part(0, 0x0F) << 12 | part(1, 0x3F) << 6 | part(2, 0x3F);
  return code >= PRIVATE && code <= PRIVATE + 0xFF ? static_cast<int>(code - PRIVATE) : -1;
}

void append_private(std::string& out, char byte) {
  const unsigned code = PRIVATE + static_cast<uint8_t>(byte);
  out += static_cast<char>(0xE0 | code >> 12);
  out += static_cast<char>(0x80 | (code >> 6 & 0x3F));
  out += static_cast<char>(0x80 | (code & 0x3F));
}

// A private character that stands in the line itself goes byte by byte too, so that reading gives it back.
std::string line_to_utf8(std::string_view line) {
  std::string out;
  for (size_t at = 0; at < line.size();) {
    const size_t bytes = utf8_bytes(line, at);
    const bool plain = bytes != 0 && line[at] != '\r' && line[at] != '\n' && private_byte(line, at) < 0;
    const size_t taken = bytes == 0 ? 1 : bytes;
    for (size_t i = at; i < at + taken; ++i) {
      if (plain)
        out += line[i];
      else
        append_private(out, line[i]);
    }
    at += taken;
  }
  return out;
}

std::string line_from_utf8(std::string_view line) {
  std::string out;
  for (size_t at = 0; at < line.size();) {
    const size_t bytes = utf8_bytes(line, at);
    const int byte = private_byte(line, at);
    if (byte < 0)
      out += line.substr(at, bytes);
    else
      out += static_cast<char>(byte);
    at += bytes;
  }
  return out;
}

std::vector<std::string> split(std::string_view s) {
  std::vector<std::string> lines;
  while (!s.empty()) {
    const size_t end = s.find_first_of("\r\n");
    lines.emplace_back(s.substr(0, end));
    if (end == std::string_view::npos) break;
    s.remove_prefix(end + (s.substr(end).starts_with("\r\n") ? 2 : 1));
  }
  return lines;
}

std::string join(const std::vector<std::string>& lines) {
  std::string s;
  for (const std::string& line : lines) s += line + "\r\n";
  return s;
}

}  // namespace

Encoding encoding_of_bytes(std::string_view bytes) { return is_utf8(bytes) ? Encoding::utf8 : Encoding::cp932; }

std::vector<std::string> decode(std::string_view bytes) {
  if (encoding_of_bytes(bytes) == Encoding::cp932) return split(from_cp932(bytes));
  if (bytes.starts_with(BYTE_ORDER_MARK)) bytes.remove_prefix(BYTE_ORDER_MARK.size());
  std::vector<std::string> lines = split(bytes);
  for (std::string& line : lines) line = line_from_utf8(line);
  return lines;
}

std::string encode(const std::vector<std::string>& lines, Encoding encoding) {
  if (encoding == Encoding::cp932) {
    const std::optional<std::string> bytes = to_cp932(join(lines));
    if (bytes && decode(*bytes) == lines) return *bytes;
  }
  std::string bytes;
  for (const std::string& line : lines) bytes += line_to_utf8(line) + "\r\n";
  if (bytes.starts_with(BYTE_ORDER_MARK)) bytes.insert(0, BYTE_ORDER_MARK);  // reading drops one
  return bytes;
}

}  // namespace text
