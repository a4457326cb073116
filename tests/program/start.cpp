#include "program/program.h"
#include "stage.h"

// The whole program.
void stage::start(const std::string& command_line) {
  home();
  forms::use_desktop(&desk());
  forms::enter([&] { START_PROGRAM(command_line); });
}
