#include "play/player.h"

#include <cstdio>
#include <cstdlib>

#include "platform/error.h"

namespace play {

Player player;

void Player::say(const std::string& line) {
  std::fputs((line + "\n").c_str(), stdout);
  std::fflush(stdout);
}

namespace {

std::string place;  // SCRIPT:LINE of the command that runs

void tell(const std::string& what) { std::fprintf(stderr, "%s: %s\n", place.c_str(), what.c_str()); }

const Command& find_command(const std::string& word) {
  static const std::vector<Command> all = [] {
    std::vector<Command> commands = program_commands();
    for (const auto& family : {input_commands(), asking_commands(), expect_commands()}) {
      commands.insert(commands.end(), family.begin(), family.end());
    }
    return commands;
  }();
  for (const Command& command : all) {
    if (word == command.word) return command;
  }
  throw ScriptError("unknown command " + word);
}

void run_line(const std::vector<Word>& words) {
  const Command& command = find_command(words[0].text);
  const int count = static_cast<int>(words.size()) - 1;
  if (count < command.least || (command.most >= 0 && count > command.most)) {
    throw ScriptError("wrong count of arguments for " + words[0].text);
  }
  if (command.needs_window && !player.started) throw ScriptError(words[0].text + " comes before start");
  Args args;
  player.quoted.clear();
  for (auto word = words.begin() + 1; word != words.end(); ++word) {
    args.push_back(word->text);
    player.quoted.push_back(word->quoted);
  }
  command.run(args);
  fit_maximized();
  if (!player.failure.empty()) throw ScriptError(std::exchange(player.failure, {}));
}

// Number of the error that ended the command, 0 if none did.
int run_to_error(const std::vector<Word>& words, std::string& text) {
  const bool was_dead = forms::fatal_error() != 0;
  try {
    run_line(words);
  } catch (const RuntimeError& e) {
    text = e.what();
    return e.number;
  }
  text = error_text(forms::fatal_error());
  return was_dead ? 0 : forms::fatal_error();
}

}  // namespace

void Player::expect(bool holds, const std::string& wanted, const std::string& found) {
  if (holds) return;
  expectation_failed = true;
  tell(wanted + ", " + found);
}

int run_script(const std::string& path) {
  place = path;
  try {
    const std::vector<std::string> lines = read_script(path);
    int error = 0;
    std::string text;
    for (size_t i = 0; i < lines.size() && !player.stopped; ++i) {
      place = path + ":" + std::to_string(i + 1);
      const std::vector<Word> words = cut_line(lines[i], player.variables);
      if (words.empty()) continue;
      if (words[0].text == "expect-error") {
        if (words.size() != 2) throw ScriptError("wrong count of arguments for expect-error");
        player.expect(error == whole_number(words[1].text), "expected error " + words[1].text,
                      "there was " + (error == 0 ? std::string("none") : "error " + std::to_string(error)));
        error = 0;
        break;
      }
      if (error != 0) break;  // no one has expected it
      error = run_to_error(words, text);
    }
    if (error != 0) {
      player.say("error " + std::to_string(error) + " " + quoted(text));
      return RUNTIME_ERROR;
    }
  } catch (const ScriptError& e) {
    tell(e.what());
    return UNREADABLE;
  }
  return player.expectation_failed ? NOT_AS_EXPECTED : GOOD;
}

bool is_log(const std::string& kind) {
  for (const char* known : {"boxes", "dialogs", "progress", "splash", "shell", "printer", "beeps"}) {
    if (kind == known) return true;
  }
  return false;
}

std::vector<std::string> take_log(const std::string& kind) { return std::exchange(player.logs[kind], {}); }

}  // namespace play
