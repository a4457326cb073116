#include "stage.h"

// The main window alone.
void stage::start(const std::string& /*command_line*/) {
  home();
  forms::use_desktop(&desk());
  forms::enter([] { show_main_window(); });
}
