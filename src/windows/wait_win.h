// The window of a long command: what is being done, and how far it is. While it is loaded the main window and the
// palettes take no events. Its procedures stand in src/colour.
#pragma once

#include "frame/usr_def.h"

namespace kiso {

struct WaitWin : Window {
  WaitWin();

  Frame FRAME{*this, "FRAME"};  // its caption tells what is being done
  PictureBox BAR{*this, "BAR"};
};
extern WaitWin WAIT_WIN;

}  // namespace kiso
