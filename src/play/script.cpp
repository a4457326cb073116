#include "play/script.h"

#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace play {

std::vector<std::string> read_script(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw ScriptError("can not be read");
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    lines.push_back(line);
  }
  if (file.bad()) throw ScriptError("can not be read");
  return lines;
}

namespace {

bool names_variable(char c) { return c == '_' || std::isalnum(static_cast<unsigned char>(c)) != 0; }

class Cutter {
 public:
  Cutter(const std::string& line, const Variables& variables) : line_(line), variables_(variables) {}

  std::vector<Word> cut() {
    std::vector<Word> words;
    for (;;) {
      while (at_ < line_.size() && (line_[at_] == ' ' || line_[at_] == '\t')) ++at_;
      if (at_ == line_.size() || line_[at_] == '#') return words;
      words.push_back(line_[at_] == '"' ? quoted_word() : plain_word());
    }
  }

 private:
  Word plain_word() {
    Word word;
    while (at_ < line_.size() && line_.find_first_of(" \t#", at_) != at_) take(word.text);
    return word;
  }

  Word quoted_word() {
    Word word{"", true};
    for (++at_; at_ < line_.size() && line_[at_] != '"';) {
      if (line_[at_] == '\\') {
        word.text += escaped();
      } else {
        take(word.text);
      }
    }
    if (at_ == line_.size()) throw ScriptError("a quote without its end");
    ++at_;
    return word;
  }

  char escaped() {
    const char c = at_ + 1 < line_.size() ? line_[at_ + 1] : '\0';
    at_ += 2;
    switch (c) {
      case '"': return '"';
      case '\\': return '\\';
      case 'n': return '\n';
      case 'r': return '\r';
      case 't': return '\t';
      default: throw ScriptError("unknown escape in quotes");
    }
  }

  // One character, or all that a $ name stands for. A $ with no capital letter and no digit but 0 behind it begins no
  // name and is itself, so that a script can write a shell script with "$@" and ${1}.
  void take(std::string& text) {
    const char first = line_[at_] == '$' && at_ + 1 < line_.size() ? line_[at_ + 1] : ' ';
    if ((first >= '1' && first <= '9') || (first >= 'A' && first <= 'Z')) {
      size_t end = at_ + 2;
      // $1 is one digit, so that $10 is the first argument and a 0
      while (first > '9' && end < line_.size() && names_variable(line_[end])) ++end;
      const auto found = variables_.find(line_.substr(at_ + 1, end - at_ - 1));
      if (found == variables_.end()) throw ScriptError("unknown name " + line_.substr(at_, end - at_));
      text += found->second;
      at_ = end;
      return;
    }
    text += line_[at_++];
  }

  const std::string& line_;
  const Variables& variables_;
  size_t at_ = 0;
};

}  // namespace

std::vector<Word> cut_line(const std::string& line, const Variables& variables) {
  return Cutter(line, variables).cut();
}

// Greedy match with one place to go back to: the last star.
bool fits(const std::string& text, const std::string& pattern) {
  size_t t = 0;
  size_t p = 0;
  size_t star = std::string::npos;
  size_t star_text = 0;
  while (t < text.size()) {
    if (p < pattern.size() && pattern[p] == '*') {
      star = p++;
      star_text = t;
    } else if (p < pattern.size() && pattern[p] == text[t]) {
      ++p;
      ++t;
    } else if (star != std::string::npos) {
      p = star + 1;
      t = ++star_text;
    } else {
      return false;
    }
  }
  while (p < pattern.size() && pattern[p] == '*') ++p;
  return p == pattern.size();
}

std::string quoted(const std::string& text) {
  std::string out = "\"";
  for (const char c : text) {
    switch (c) {
      case '"': out += "\\\""; break;
      case '\\': out += "\\\\"; break;
      case '\n': out += "\\n"; break;
      case '\r': out += "\\r"; break;
      case '\t': out += "\\t"; break;
      default: out += c;
    }
  }
  return out + "\"";
}

bool is_number(const std::string& text) {
  if (text.empty() || text.front() == ' ') return false;
  char* end = nullptr;
  std::strtod(text.c_str(), &end);
  return *end == '\0';
}

double real_number(const std::string& text) {
  if (!is_number(text)) throw ScriptError("no number: " + text);
  return std::strtod(text.c_str(), nullptr);
}

int whole_number(const std::string& text) {
  const double value = real_number(text);
  if (value != std::trunc(value) || std::fabs(value) > 2147483647.0) throw ScriptError("no whole number: " + text);
  return static_cast<int>(value);
}

std::string number_text(double value) {
  char out[64];
  if (value == std::trunc(value) && std::fabs(value) < 1e15) {
    std::snprintf(out, sizeof out, "%.0f", value == 0 ? 0.0 : value);
  } else {
    std::snprintf(out, sizeof out, "%g", value);
  }
  return out;
}

}  // namespace play
