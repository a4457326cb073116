// Shows what the parameter file of an add-in offers, and installs it. Owned by SET_WIN, which is disabled meanwhile.
// Its procedures stand in src/dialogs.
#pragma once

#include "frame/usr_def.h"

namespace kiso {

struct AddWin : Window {
  AddWin();

  Frame Frame2{*this, "Frame2"};
  Label Label1{*this, "Label1"};  // name of the add-in
  Frame Frame1{*this, "Frame1"};
  ControlArray<OptionButton, 4> DISP_MODE{*this, "DISP_MODE"};
  ListBox List1{*this, "List1"};
  CommandButton Command1{*this, "Command1"}, Command2{*this, "Command2"};
};
extern AddWin ADD_WIN;

}  // namespace kiso
