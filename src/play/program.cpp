// Start and end of the program, files of its directory, answers to its questions.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>

#include "frame/p_win.h"
#include "play/names.h"
#include "play/options.h"
#include "play/player.h"
#include "program/program.h"

namespace play {

namespace fs = std::filesystem;
using namespace kiso;  // NOLINT(google-build-using-namespace)

namespace {

void start(const Args& args) {
  if (player.started) throw ScriptError("start comes once");
  player.started = true;
  const std::string command_line = args.empty() ? "" : args[0];
  enter([&] { START_PROGRAM(command_line); });
}

void view(const Args& args) {
  const int w = whole_number(args[0]) + static_cast<int>(DRAW.left_px() + 2 + Y_SC.width_px());
  int h = whole_number(args[1]) + static_cast<int>(DRAW.top_px() + 2 + X_SC.height_px());
  if (STATUS_ON == 1) h += STATUS_H;
  enter([&] { P_WIN.inside(w, h); });
}

void inside(const Args& args) {
  forms::Window& window = window_named(args[0]);
  const int w = whole_number(args[1]);
  const int h = whole_number(args[2]);
  if (reachable(window)) {
    enter([&] { window.inside(w, h); });
  } else {
    player.say("ignored " + args[0]);
  }
}

void close(const Args& /*args*/) {
  if (reachable(P_WIN)) {
    enter([] { P_WIN.Unload(); });
  } else {
    player.say("ignored P_WIN");
  }
}

void end(const Args& /*args*/) { player.stopped = true; }

void option(const Args& args) {
  if (player.started) throw ScriptError("option comes before start");
  if (!take_option(args[0], args[1])) throw ScriptError("unknown option " + args[0]);
}

// "HH:MM:SS"
void time(const Args& args) {
  const std::string& t = args[0];
  const bool formed =
      t.size() == 8 && t[2] == ':' && t[5] == ':' &&
      (t.substr(0, 2) + t.substr(3, 2) + t.substr(6)).find_first_not_of("0123456789") == std::string::npos;
  if (!formed || t.substr(0, 2) > "23" || t.substr(3, 2) > "59" || t.substr(6) > "59")
    throw ScriptError("no time of day: " + t);
  player.clock = t;
}

// --- files

void fail_if(bool failed, const std::string& what) {
  if (failed) throw ScriptError(what);
}

// No command makes a folder: a file comes with those that it needs.
void make_folders_for(const std::string& file) {
  std::error_code failed;  // shows when the file is written
  fs::create_directories(fs::path(file).parent_path(), failed);
}

void copy(const Args& args) {
  make_folders_for(args[1]);
  std::error_code failed;
  fs::copy_file(args[0], args[1], fs::copy_options::overwrite_existing, failed);
  fail_if(static_cast<bool>(failed), "can not copy " + args[0] + " to " + args[1]);
}

void remove(const Args& args) {
  std::error_code failed;
  fs::remove_all(args[0], failed);
}

void write_lines(const Args& args, const char* line_end) {
  make_folders_for(args[0]);
  std::ofstream file(args[0], std::ios::binary | std::ios::trunc);
  for (size_t i = 1; i < args.size(); ++i) file << args[i] << line_end;
  file.close();
  fail_if(!file, "can not write " + args[0]);
}
void write(const Args& args) { write_lines(args, "\r\n"); }
void write_unix(const Args& args) { write_lines(args, "\n"); }

void exec(const Args& args) {
  std::error_code failed;
  fs::permissions(args[0], fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec,
                  fs::perm_options::add, failed);
  fail_if(static_cast<bool>(failed), "can not make executable: " + args[0]);
}

// --- questions

struct AnswerWord {
  const char* word;
  int number;
};
constexpr AnswerWord ANSWER_WORDS[] = {{"ok", OK}, {"cancel", CANCEL}, {"yes", YES}, {"no", NO}};

void answer(const Args& args) {
  for (const std::string& arg : args) {
    bool known = false;
    for (const AnswerWord& a : ANSWER_WORDS) {
      if (arg != a.word) continue;
      player.answers.push_back(a.number);
      known = true;
    }
    if (!known) throw ScriptError("unknown answer " + arg);
  }
}

void choose(const Args& args) {
  const bool cancelled = args[0] == "cancel" && !player.quoted[0];
  player.files.push_back(cancelled ? std::nullopt : std::optional(args[0]));
}

}  // namespace

void fit_maximized() {
  struct Size {
    int w, h;
  };
  static std::map<forms::Window*, Size> before;
  for (forms::Window* w : forms::all_windows()) {
    if (!w->Loaded()) before.erase(w);
    if (!w->Loaded() || !w->is_visible() || w->border != forms::Border::sizable) continue;
    const auto kept = before.find(w);
    if (w->WindowState() == 2 && kept == before.end()) {
      before[w] = {w->inside_w(), w->inside_h()};
      const forms::Desktop& desktop = forms::desktop();
      enter([&] { w->inside(desktop.screen_w - w->frame_w(), desktop.screen_h - w->frame_h()); });
    } else if (w->WindowState() == 0 && kept != before.end()) {
      const Size size = kept->second;
      before.erase(kept);
      enter([&] { w->inside(size.w, size.h); });
    }
  }
}

std::vector<Command> program_commands() {
  return {
      {"start", 0, 1, false, start},  {"view", 2, 2, true, view},
      {"inside", 3, 3, true, inside}, {"close", 0, 0, true, close},
      {"end", 0, 0, false, end},      {"option", 2, 2, false, option},
      {"copy", 2, 2, false, copy},    {"remove", 1, 1, false, remove},
      {"write", 1, -1, false, write}, {"write-unix", 1, -1, false, write_unix},
      {"exec", 1, 1, false, exec},    {"answer", 1, -1, false, answer},
      {"time", 1, 1, false, time},    {"choose", 1, 1, false, choose},
  };
}

}  // namespace play
