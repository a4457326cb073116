#include "addin/addin.h"
#include "palette/palette.h"
#include "persist/persist.h"
#include "stage.h"

// The main window with palettes, settings and files, without tools.
void stage::start(const std::string& /*command_line*/) {
  home();
  forms::use_desktop(&desk());
  forms::enter([] {
    wire_palette();
    wire_persist();
    APP_PATH = home().path;
    READ_AIN();
    READ_CNF();
    READ_CDI();
    show_main_window();
  });
}
