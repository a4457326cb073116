#include "platform/text/program_directory.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "platform/disk/paths.h"
#include "platform/error.h"
#include "platform/text/files.h"

namespace text {

namespace fs = std::filesystem;

namespace {

constexpr const char* TEMPLATES[] = {"DEFAULT.CNF", "DEFAULT.AIN", "DEFAULT.CDI"};

std::string environment(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

bool holds_templates(const std::string& directory) {
  return !Dir(directory + "/DEFAULT.CNF").empty() && disk::may(directory, W_OK);
}

// "" for a user without a home.
std::string users_directory() {
  std::string base = environment("XDG_DATA_HOME");
  if (!base.empty()) return base + "/kiso";
  const std::string home = environment("HOME");
  return home.empty() ? "" : home + "/.local/share/kiso";
}

// A template that the user has changed stays.
void fill_with_templates(const std::string& directory) {
  std::error_code failed;
  fs::create_directories(directory, failed);
  for (const char* name : TEMPLATES) {
    const std::string from = executable_directory() + "/" + name;
    const std::string to = directory + "/" + name;
    if (Dir(to).empty() && !Dir(from).empty()) FileCopy(from, to);
  }
}

// A directory of this user's alone, "" if there can be none.
std::string private_directory() {
  std::string base = environment("XDG_RUNTIME_DIR");
  base = base.empty() ? "/tmp/kiso-" + std::to_string(getuid()) : base + "/kiso";
  mkdir(base.c_str(), 0700);
  struct stat found {};
  const bool ours = lstat(base.c_str(), &found) == 0 && S_ISDIR(found.st_mode) && found.st_uid == getuid();
  return ours && (found.st_mode & 077) == 0 ? base : "";
}

// FNV-1a.
uint64_t hash_of(const std::string& path) {
  uint64_t hash = 1469598103934665603U;
  for (const unsigned char c : path) hash = (hash ^ c) * 1099511628211U;
  return hash;
}

// The same path has the same link from run to run.
std::string link_name(const std::string& path) {
  char name[17];
  std::snprintf(name, sizeof name, "%016llx", static_cast<unsigned long long>(hash_of(path)));
  return name;
}

bool can_be_written(const std::string& directory) { return disk::may(directory, W_OK | X_OK); }

// A folder of this run, for who has none that can be written. It has the templates and what can be read of the user's
// own files, and stays behind the run: an auto save may lie in it.
std::string make_folder_of_the_run(const std::string& users) {
  std::string folder = (fs::temp_directory_path() / "kiso-XXXXXX").string();
  if (!mkdtemp(folder.data())) return users;
  for (const char* name : {"KISO.CNF", "KISO.AIN", "KISO.CDI", "DEFAULT.CNF", "DEFAULT.AIN", "DEFAULT.CDI"})
    ignore_errors([&] { FileCopy(users + "/" + name, folder + "/" + name); });
  fill_with_templates(folder);
  return folder;
}

std::string& folder_of_the_run() {
  static std::string folder;
  return folder;
}

}  // namespace

std::string executable_directory() {
  std::error_code failed;
  return fs::read_symlink("/proc/self/exe", failed).parent_path().string();
}

std::string program_directory() {
  if (is_folder_of_the_run()) return folder_of_the_run();
  std::string directory = environment("KISO_HOME");
  if (directory.empty() && holds_templates(executable_directory())) return executable_directory();
  if (directory.empty()) {
    directory = users_directory();
    if (!directory.empty()) ignore_errors([&] { fill_with_templates(directory); });
  }
  if (!can_be_written(directory)) directory = folder_of_the_run() = make_folder_of_the_run(directory);
  return directory;
}

bool is_folder_of_the_run() { return !folder_of_the_run().empty(); }

// FNV-1a of the name is the byte that stands for it.
disk::ByteLock hold_name(const std::string& path) {
  const std::string directory = private_directory();
  return {directory.empty() ? "" : directory + "/LOCK", static_cast<off_t>(hash_of(path) >> 1)};
}

std::string SHORT_PATH(const std::string& path) {
  std::error_code failed;
  if (!fs::exists(path, failed)) return "";
  if (path.find(' ') == std::string::npos) return path;
  if (path.ends_with('/') && path.find_last_not_of('/') != std::string::npos)
    return SHORT_PATH(path.substr(0, path.find_last_not_of('/') + 1)) + "/";
  const std::string absolute = fs::absolute(path, failed).string();
  const std::string directory = private_directory();
  if (directory.empty()) return path;
  const std::string link = directory + "/" + link_name(absolute);
  if (fs::read_symlink(link, failed) == absolute) return link;
  fs::remove(link, failed);
  fs::create_symlink(absolute, link, failed);
  return failed ? path : link;
}

}  // namespace text
