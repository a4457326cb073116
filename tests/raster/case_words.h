// The words of a command line of a case file, taken one after the other; what does not keep to the format is a BadCase.
#pragma once

#include <charconv>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/raster/draw.h"

namespace raster {

struct BadCase : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// Colours in the files are RRGGBB.
inline Colour swapped(uint32_t rrggbb) { return (rrggbb & 0xFF) << 16 | (rrggbb & 0xFF00) | rrggbb >> 16; }

inline uint32_t number_in(const std::string& word, int base) {
  const bool negative = base == 10 && word[0] == '-';
  uint32_t value = 0;
  const char *first = word.data() + (negative ? 1 : 0), *end = word.data() + word.size();
  const auto [stop, error] = std::from_chars(first, end, value, base);
  if (error != std::errc{} || stop != end || first == end) throw BadCase("no number: '" + word + "'");
  return negative ? 0 - value : value;
}

// A command's words, taken one after the other.
class Words {
 public:
  explicit Words(const std::string& line) {
    size_t at = 0;
    for (;;) {
      const size_t blank = line.find(' ', at);
      words_.push_back(line.substr(at, blank - at));
      if (words_.back().empty()) throw BadCase("words are parted by one blank: '" + line + "'");
      if (blank == std::string::npos) break;
      at = blank + 1;
    }
  }
  std::string word() {
    if (next_ == words_.size()) throw BadCase("a word is missing");
    return words_[next_++];
  }
  int number() { return static_cast<int>(number_in(word(), 10)); }
  uint32_t hex() { return number_in(word(), 16); }
  Colour colour() {
    const std::string w = word();
    if (w.size() != 6) throw BadCase("no colour: '" + w + "'");
    return swapped(number_in(w, 16));
  }
  Rop rop() {
    const Rop rop{hex()};
    if (rop != SRCCOPY && rop != SRCAND && rop != SRCPAINT) throw BadCase("no raster operation");
    return rop;
  }
  void end() const {
    if (next_ != words_.size()) throw BadCase("too many words, from '" + words_[next_] + "'");
  }

 private:
  std::vector<std::string> words_;
  size_t next_ = 0;
};

}  // namespace raster
