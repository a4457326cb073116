// Any bytes as the lines of a player's script: they are cut into words or refused, and a quoted text reads back as
// itself.
#include <cstdint>
#include <cstdlib>
#include <sstream>

#include "play/script.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const play::Variables variables = {{"1", "a b"}, {"HOME", "/home"}, {"TMP", ""}};
  std::istringstream script(std::string(data, data + size));
  for (std::string line; std::getline(script, line);) {
    try {
      for (const play::Word& word : play::cut_line(line, variables)) {
        play::fits(word.text, line);
        if (word.text.find('$') != std::string::npos) continue;  // would be replaced again
        const auto again = play::cut_line(play::quoted(word.text), variables);
        if (again.size() != 1 || again[0].text != word.text) abort();
        if (play::is_number(word.text)) play::number_text(play::real_number(word.text));
      }
    } catch (const play::ScriptError&) {
      // told to the user with its line
    }
  }
  return 0;
}
