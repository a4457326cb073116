#include "addin/addin.h"
#include "dialogs/set_win.h"
#include "palette/palette.h"
#include "persist/persist.h"
#include "stage.h"

// The main window with palettes, settings and files, and the button that opens the settings.
void stage::start(const std::string& /*command_line*/) {
  home();
  forms::use_desktop(&desk());
  forms::enter([] {
    wire_palette();
    wire_persist();
    button_starts(Group::SYS_B, 2, [] { SET_WIN.Show(&P_WIN); });
    APP_PATH = home().path;
    READ_AIN();
    READ_CNF();
    READ_CDI();
    show_main_window();
  });
}
