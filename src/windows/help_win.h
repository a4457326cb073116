// The help window: one page that lists tools, keys and mouse, in Japanese and under it in English.
#pragma once

#include "frame/usr_def.h"

namespace kiso {

struct HelpWin : Window {
  HelpWin();
  TextBox Text1{*this, "Text1"};
};
extern HelpWin HELP_WIN;

}  // namespace kiso
