// A script as text: its lines cut into words, and what a line may be wrong about.
#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace play {

// The script can not be read; the run ends there.
struct ScriptError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

struct Word {
  std::string text;
  bool quoted = false;
};

struct Line {
  int number = 0;  // from 1
  std::vector<Word> words;
};

// $1 to $9, $HOME and the like, by their name without the dollar.
using Variables = std::map<std::string, std::string>;

// The lines of a script that hold a command. A file that can not be read is a ScriptError.
std::vector<std::string> read_script(const std::string& path);
// Cuts one line; no words if it holds nothing but a comment. $ names are replaced, inside quotes too.
std::vector<Word> cut_line(const std::string& line, const Variables& variables);

// Whether a text fits a pattern in which * stands for any run of characters.
bool fits(const std::string& text, const std::string& pattern);
// A text in double quotes, with \" \\ \n \r \t.
std::string quoted(const std::string& text);

int whole_number(const std::string& text);    // else ScriptError
double real_number(const std::string& text);  // else ScriptError
bool is_number(const std::string& text);
std::string number_text(double value);  // whole numbers plain, others as %g

}  // namespace play
