// The window that shows while the program starts: a line of what is being done.
#pragma once

#include "frame/usr_def.h"

namespace kiso {

constexpr const char* VERSION = "Kiso72W.2.58";

struct SplashWin : Window {
  SplashWin();
  Label Title{*this, "Title"};
  Label Status{*this, "Status"};
};
extern SplashWin SPLASH_WIN;

namespace splash_win {
void show_status(const std::string& text);  // repainted before it returns
}

}  // namespace kiso
