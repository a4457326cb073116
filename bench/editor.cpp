#include "editor.h"
#include "program/program.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "palette/cmd_win.h"

namespace bench {

using namespace kiso;  // NOLINT(google-build-using-namespace)

namespace {

// A screen that is large enough for the view, and nobody looks at it.
struct WideDesktop : forms::Desktop {
  WideDesktop() { screen_w = 4096, screen_h = 2160; }
};

// The editor on the screen, in a program directory of its own.
struct Editor {
  Editor() : home(std::filesystem::temp_directory_path() / "kiso-bench-XXXXXX") {
    if (!mkdtemp(home.data())) std::abort();
    for (const char* name : {"DEFAULT.CNF", "DEFAULT.CDI", "DEFAULT.AIN"}) {
      std::error_code missing;
      std::filesystem::copy_file(std::string(KISO_ASSETS) + "/" + name, home + "/" + name, missing);
    }
    setenv("KISO_HOME", home.c_str(), 1);
    forms::use_desktop(&desk);
    forms::enter([] { START_PROGRAM(""); });
  }
  ~Editor() {
    std::error_code failed;
    std::filesystem::remove_all(home, failed);
  }
  Editor(const Editor&) = delete;
  Editor& operator=(const Editor&) = delete;
  std::string home;
  WideDesktop desk;
};

void give_room(int view_w, int view_h) {
  const int status = STATUS_ON == 1 ? STATUS_H : 0;
  P_WIN.inside(view_w + static_cast<int>(DRAW.left_px() + 2 + Y_SC.width_px()),
               view_h + static_cast<int>(DRAW.top_px() + 2 + X_SC.height_px()) + status);
}

}  // namespace

void show(const Surface& picture, int rate, int view_w, int view_h) {
  static const Editor editor;
  forms::enter([&] {
    give_room(view_w, view_h);
    PIC.Move(0, 0, picture.width(), picture.height());
    BitBlt(PIC, 0, 0, picture.width(), picture.height(), picture, 0, 0);
    PIC_SIZE(1) = to_int16(PIC.ScaleWidth());
    PIC_SIZE(2) = to_int16(PIC.ScaleHeight());
    EXP_RATE = to_int16(rate);
    VIEW_ORG(1) = VIEW_ORG(2) = 0;
    VIEW_FIT();
    X_SC.Value(0);
    Y_SC.Value(0);
  });
}

void select_tool(int number, int pen_size) {
  forms::enter([&] {
    CMD_WIN.PEN_SZ_SB.Value(pen_size);
    CUR_TOOL = to_int16(number);
    PEN_DOWN = 0;
    TOOL_CHANGED();
  });
}

}  // namespace bench
