// One run of a script: what it has been told, what it has seen, and how it stands.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "frame/usr_def.h"
#include "play/script.h"

namespace play {

using Args = std::vector<std::string>;

// The exit statuses of a run.
enum Status { GOOD = 0, NOT_AS_EXPECTED = 1, UNREADABLE = 2, RUNTIME_ERROR = 3 };

struct Player {
  Variables variables;  // what $ names stand for
  bool started = false;
  bool expectation_failed = false;
  bool stopped = false;  // by the command end, or by expect-error
  std::string clock;     // the time that the clock shows, "" for the real one

  // Where the pointer is, and what it holds.
  forms::Control* under_pointer = nullptr;
  float x = 0, y = 0;
  int held = 0;
  std::deque<std::function<void()>> keypad;  // moves and presses of the keypad, not yet delivered

  std::deque<int> answers;                               // of boxes to come
  std::deque<std::optional<std::string>> files;          // of file dialogs to come; none: Cancel
  std::map<std::string, std::vector<std::string>> logs;  // by kind, since it was last printed
  std::deque<std::vector<std::string>> boxes;            // not yet asked about: style, title, text
  std::string failure;                                   // a ScriptError found inside of an event
  std::string expected;                                  // what the running expectation wants, for its message
  std::vector<bool> quoted;                              // which arguments of the running command stood in quotes

  void say(const std::string& line);  // on standard output
  void expect(bool holds, const std::string& wanted, const std::string& found);
};

extern Player player;

struct Command {
  const char* word;
  int least, most;  // count of arguments; most -1: any
  bool needs_window;
  void (*run)(const Args& args);
};

// The commands, one table a family.
std::vector<Command> program_commands();  // start and end, files, questions
std::vector<Command> input_commands();    // pointer, keys, controls
std::vector<Command> asking_commands();   // pictures, asking
std::vector<Command> expect_commands();

// Runs the script to its end; the status of the process.
int run_script(const std::string& path);
// The display in memory sizes no window by itself: a maximized one fills the screen, and gets its size back after.
void fit_maximized();
// Delivers what the keypad has moved and pressed.
void deliver_keypad();

// Calls a shared procedure; its by-reference results, blank between.
std::string call_procedure(const std::string& name, const Args& args);
// Prints nothing, answers the entries of a record and clears it.
std::vector<std::string> take_log(const std::string& kind);
bool is_log(const std::string& kind);

}  // namespace play
