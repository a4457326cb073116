// KISO72: the editor on the desktop. The whole command line is one picture file name.
#include <csignal>
#include <string>

#include "frame/usr_sub.h"
#include "platform/qt/desktop.h"

int main(int argc, char** argv) {
  std::signal(SIGXFSZ, SIG_IGN);  // a file that may not grow is a failed save, not the end
  return qt::run_desktop(argc, argv, kiso::START_PROGRAM);
}
