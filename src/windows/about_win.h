// The about window: which version this is.
#pragma once

#include "frame/usr_def.h"

namespace kiso {

struct AboutWin : Window {
  AboutWin();
  ImageBox Icon{*this, "Icon"};
  Label Title{*this, "Title"};
  Label Version{*this, "Version"};
  CommandButton Command1{*this, "Command1"};  // "OK"
};
extern AboutWin ABOUT_WIN;

}  // namespace kiso
