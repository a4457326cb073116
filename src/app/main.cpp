// KISO72: the editor on the desktop. The whole command line is one picture file name.
#include <algorithm>
#include <csignal>
#include <filesystem>
#include <string>
#include <vector>

#include "addin/addin.h"
#include "platform/disk/lock.h"
#include "platform/qt/desktop.h"
#include "platform/text/files.h"
#include "platform/text/paths.h"
#include "platform/text/program_directory.h"
#include "program/program.h"

namespace {

namespace fs = std::filesystem;

std::vector<std::string> shipped_addins() {
  std::vector<std::string> files;
  std::error_code failed;
  for (const auto& entry : fs::directory_iterator(text::executable_directory() + PATH_SEP + "addins", failed)) {
    if (entry.path().extension() == ".AIP") files.push_back(entry.path().string());
  }
  std::sort(files.begin(), files.end());
  return files;
}

// A program directory that has never been used gets the add-ins that lie beside the program. Later the registry is the
// user's own, also when it is empty.
void install_shipped_addins() {
  kiso::APP_PATH = text::SHORT_PATH(text::program_directory());
  const disk::FolderLock lock(kiso::APP_PATH);  // of several first starts one installs, the others wait for it
  for (const char* file : {"KISO.CNF", "KISO.AIN"}) {
    if (!text::Dir(kiso::APP_PATH + PATH_SEP + file).empty()) return;
  }
  kiso::READ_AIN();
  for (const std::string& file : shipped_addins()) {
    kiso::AIP_READ(file);
    kiso::AIP_INSTALL();
  }
}

void start(const std::string& command_line) {
  install_shipped_addins();
  kiso::START_PROGRAM(command_line);
}

}  // namespace

int main(int argc, char** argv) {
  std::signal(SIGXFSZ, SIG_IGN);  // a file that may not grow is a failed save, not the end
  return qt::run_desktop(argc, argv, "KISO_ICO", start);
}
