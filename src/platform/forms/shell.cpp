#include "platform/forms/shell.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "platform/error.h"
#include "platform/forms/runtime.h"

namespace forms {

namespace {

constexpr int LOOK_MS = 2;  // between two looks at a program that runs

bool is_program(const std::string& path) {
  struct stat info {};
  return stat(path.c_str(), &info) == 0 && S_ISREG(info.st_mode) &&
         faccessat(AT_FDCWD, path.c_str(), X_OK, AT_EACCESS) == 0;
}

// The file of a program, "" if there is none of that name. An empty entry of PATH is no folder.
std::string find_program(const std::string& name) {
  if (name.empty()) return "";
  if (name.find('/') != std::string::npos) return is_program(name) ? name : "";
  const char* path = std::getenv("PATH");
  std::string_view folders = path ? path : "";
  while (!folders.empty()) {
    const std::string_view folder = folders.substr(0, folders.find(':'));
    folders.remove_prefix(std::min(folder.size() + 1, folders.size()));
    const std::string file = std::string(folder) + "/" + name;
    if (!folder.empty() && is_program(file)) return file;
  }
  return "";
}

// Where the longest beginning of the line that names a program ends, and that program's file: a file `My` beside a
// folder `My Kiso` is not run in place of what stands in there.
size_t program_end(const std::string& line, std::string& file) {
  size_t end = line.size() <= PATH_MAX ? line.size() : line.rfind(' ', PATH_MAX);
  for (; end != std::string::npos && end > 0; end = line.rfind(' ', end - 1)) {
    file = find_program(line.substr(0, end));
    if (!file.empty()) return end;
  }
  throw RuntimeError(53);
}

std::vector<std::string> cut_at_blanks(const std::string& rest) {
  std::vector<std::string> words;
  if (rest.empty()) return words;
  for (size_t at = 0;;) {
    const size_t blank = rest.find(' ', at);
    words.push_back(rest.substr(at, blank - at));
    if (blank == std::string::npos) return words;
    at = blank + 1;
  }
}

struct SpawnActions {
  SpawnActions() {
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, STDERR_FILENO, STDOUT_FILENO);
  }
  ~SpawnActions() { posix_spawn_file_actions_destroy(&actions); }
  SpawnActions(const SpawnActions&) = delete;
  SpawnActions& operator=(const SpawnActions&) = delete;
  posix_spawn_file_actions_t actions{};
};

}  // namespace

int Shell(const std::string& line) {
  if (line.find('\0') != std::string::npos) throw RuntimeError(53);
  std::string file;
  const size_t end = program_end(line, file);
  std::vector<std::string> words = {line.substr(0, end)};
  if (end < line.size())
    for (std::string& word : cut_at_blanks(line.substr(end + 1))) words.push_back(std::move(word));
  std::vector<char*> argv;
  argv.reserve(words.size() + 1);
  for (std::string& word : words) argv.push_back(word.data());
  argv.push_back(nullptr);
  const SpawnActions with;
  pid_t process = 0;
  if (posix_spawn(&process, file.c_str(), &with.actions, nullptr, argv.data(), environ) != 0) throw RuntimeError(53);
  desktop().record("shell", line);
  return process;
}

bool WaitForProgram(int process, int milliseconds) {
  for (int waited = 0; waitpid(process, nullptr, WNOHANG) == 0; waited += LOOK_MS) {
    if (waited >= milliseconds) return false;
    usleep(LOOK_MS * 1000);
  }
  return true;
}

}  // namespace forms
