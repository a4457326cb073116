#include "palette/palette.h"
#include "stage.h"
#include "tools/wiring.h"

// The main window with palettes and tools, without settings and files.
void stage::start(const std::string& /*command_line*/) {
  home();
  forms::use_desktop(&desk());
  forms::enter([] {
    wire_palette();
    wire_tools();
    show_main_window();
  });
}
