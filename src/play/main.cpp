// kiso-play: the editor driven by a script.
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "platform/raster/fast.h"
#include "platform/text/program_directory.h"
#include "play/options.h"
#include "play/play_desktop.h"
#include "play/player.h"

namespace play {

namespace fs = std::filesystem;

bool take_option(const std::string& name, const std::string& value) {
  forms::Desktop& desktop = forms::desktop();
  if (name == "--depth") {
    if (value != "32" && value != "24" && value != "16" && value != "8") return false;
    desktop.depth = std::atoi(value.c_str());
    return true;
  }
  int w = 0;
  int h = 0;
  char rest = 0;
  if (name != "--screen" || std::sscanf(value.c_str(), "%dx%d%c", &w, &h, &rest) != 2 || w <= 0 || h <= 0) return false;
  desktop.screen_w = w;
  desktop.screen_h = h;
  return true;
}

namespace {

// A directory of this run, removed at its end.
struct Scratch {
  Scratch() {
    std::string pattern = (fs::temp_directory_path() / "kiso-play-XXXXXX").string();
    if (mkdtemp(pattern.data())) path = pattern;
  }
  ~Scratch() {
    std::error_code failed;
    if (!path.empty()) fs::remove_all(path, failed);
  }
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;
  std::string path;
};

int usage() {
  std::fputs("kiso-play [--home DIR] [--depth 32|24|16|8] [--screen WxH] [--plain] SCRIPT [ARG ...]\n", stderr);
  return UNREADABLE;
}

// As before a first start: the templates alone.
void lay_out_home(const std::string& home) {
  std::error_code failed;
  fs::create_directories(home, failed);
  for (const auto& entry : fs::directory_iterator(text::executable_directory(), failed)) {
    const std::string name = entry.path().filename().string();
    if (name.starts_with("DEFAULT.")) fs::copy_file(entry.path(), fs::path(home) / name, failed);
  }
}

int run(int argc, char** argv) {
  std::string home;
  int at = 1;
  while (at + 1 < argc && std::string(argv[at]).starts_with("--")) {
    const std::string name = argv[at++];
    if (name == "--plain") {
      raster::use_fast_forms(false);
      continue;
    }
    const std::string value = argv[at++];
    if (name == "--home") {
      home = fs::absolute(value).string();
    } else if (!take_option(name, value)) {
      return usage();
    }
  }
  if (at >= argc || std::string(argv[at]).starts_with("--")) return usage();

  const Scratch scratch;
  if (home.empty()) {
    home = scratch.path + "/home";
    lay_out_home(home);
  }
  fs::create_directories(scratch.path + "/tmp");
  setenv("KISO_HOME", home.c_str(), 1);
  player.variables = {{"HOME", home},
                      {"TMP", scratch.path + "/tmp"},
                      {"DIR", fs::absolute(argv[at]).parent_path().string()},
                      {"ADDINS", text::executable_directory() + "/addins"}};
  for (int i = 1; i <= 9; ++i) {
    player.variables[std::to_string(i)] = at + i < argc ? argv[at + i] : "";
  }
  return run_script(argv[at]);
}

}  // namespace
}  // namespace play

int main(int argc, char** argv) {
  std::signal(SIGXFSZ, SIG_IGN);  // a file that may not grow is a failed save, not the end
  setenv("QT_LOGGING_RULES", "*.debug=false;*.warning=false", 0);  // standard error is for expectations
  play::PlayDesktop desktop(argv[0]);
  forms::use_desktop(&desktop);
  return play::run(argc, argv);
}
