// The settings window: six pages on top of one another, and a row of buttons that bring one to the front. Its
// procedures stand in src/dialogs.
#pragma once

#include "frame/usr_def.h"

namespace kiso {

struct SetWin : Window {
  SetWin();

  // In the order in which Tab goes from one to the next.
  CommandButton Command1{*this, "Command1"}, Command2{*this, "Command2"}, Command3{*this, "Command3"},
      Command4{*this, "Command4"}, Command6{*this, "Command6"}, Command8{*this, "Command8"};  // one for each page
  Shape Shape1{*this, "Shape1"};  // marks the button of the page in front
  ControlArray<PictureBox, 6> Picture1{*this, "Picture1"};

  Frame Frame1{*this, "Frame1"};  // page 0
  OptionButton Option1{*this, "Option1"}, Option2{*this, "Option2"};
  Frame Frame2{*this, "Frame2"};
  OptionButton Option3{*this, "Option3"}, Option4{*this, "Option4"};
  Label Label1{*this, "Label1"};

  ControlArray<Frame, 2> RUN_BASE{*this, "RUN_BASE"};  // page 1
  ControlArray<CheckBox, 2> Check5{*this, "Check5"};
  ControlArray<CommandButton, 2> LAN_SET{*this, "LAN_SET"};
  ControlArray<Label, 2> LAN_NAME{*this, "LAN_NAME"};

  Frame Frame4{*this, "Frame4"};  // page 2
  ControlArray<OptionButton, 3> Option5{*this, "Option5"};
  CheckBox Check1{*this, "Check1"};

  Frame Frame6{*this, "Frame6"};  // page 3
  OptionButton Option8{*this, "Option8"}, Option9{*this, "Option9"}, Option10{*this, "Option10"},
      Option11{*this, "Option11"}, Option12{*this, "Option12"}, Option13{*this, "Option13"},
      Option14{*this, "Option14"};
  Frame Frame5{*this, "Frame5"};
  OptionButton Option6{*this, "Option6"}, Option7{*this, "Option7"};
  Label Label3{*this, "Label3"};

  Frame Frame7{*this, "Frame7"};  // page 4
  ControlArray<OptionButton, 4> DISP_MODE{*this, "DISP_MODE"};
  ListBox List1{*this, "List1"};
  Frame Frame8{*this, "Frame8"};
  ListBox List2{*this, "List2"};
  CommandButton Command7{*this, "Command7"}, Command5{*this, "Command5"};

  Frame Frame10{*this, "Frame10"};  // page 5
  OptionButton Option15{*this, "Option15"}, Option16{*this, "Option16"};
  Label Label4{*this, "Label4"};
  Frame Frame9{*this, "Frame9"};
  CheckBox Check2{*this, "Check2"}, Check3{*this, "Check3"};

  CommandButton OK{*this, "OK"}, CANCEL{*this, "CANCEL"};

  // What BIRD_REWRITE, STRETCH_OK and RELOAD_MODE get at OK.
  int16_t SW_REWRITE = 0, SW_STRETCH = 0, SW_RELOAD = 0;
  bool answered = false;  // OK or CANCEL was pressed
};
extern SetWin SET_WIN;

}  // namespace kiso
