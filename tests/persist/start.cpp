#include "addin/addin.h"
#include "frame/rooms.h"
#include "palette/palette.h"
#include "persist/d_form.h"
#include "persist/persist.h"
#include "stage.h"

// The main window with palettes, settings and files, without tools.
void stage::start(const std::string& /*command_line*/) {
  home();
  forms::use_desktop(&desk());
  forms::enter([] {
    wire_palette();
    wire_persist();
    ROOMS.show_tool = [] { SET_CURSOR("NORMAL"); };  // of what a change of tool shows, what the tests look at
    APP_PATH = home().path;
    READ_AIN();
    READ_CNF();
    READ_CDI();
    D_FORM.Load();
    SHOW_NAME("NEWFFILE");
    show_main_window();
  });
}
