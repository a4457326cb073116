// The colour window: the two pen colours, their level bars, and three panes to change them. Its procedures stand in
// src/colour.
#pragma once

#include "frame/usr_def.h"

namespace kiso {

struct ColWin : Window {
  ColWin();

  PictureBox TAR_COL{*this, "TAR_COL"};
  Shape TAR_SEL{*this, "TAR_SEL"};  // mark inside TAR_COL: the target colour is selected
  PictureBox DES_COL{*this, "DES_COL"};
  Shape DES_SEL{*this, "DES_SEL"};
  PictureBox COL_RGB{*this, "COL_RGB"};  // the three level bars
  CommandButton Command1{*this, "Command1"}, Command2{*this, "Command2"}, Command3{*this, "Command3"};
  PictureBox CSEL_FRAME{*this, "CSEL_FRAME"};                 // where the panes lie
  ControlArray<PictureBox, 3> CSEL_BASE{*this, "CSEL_BASE"};  // the panes Rain, R/H, Dic
  // pane Rain
  ControlArray<ImageBox, 8> C_BUT{*this, "C_BUT"};
  ControlArray<ImageBox, 7> P_BUT{*this, "P_BUT"}, PP_BUT{*this, "PP_BUT"}, M_BUT{*this, "M_BUT"},
      MM_BUT{*this, "MM_BUT"};
  // pane R/H
  ScrollBar R_BAR{*this, "R_BAR", Lie::horizontal}, G_BAR{*this, "G_BAR", Lie::horizontal},
      B_BAR{*this, "B_BAR", Lie::horizontal}, H_BAR{*this, "H_BAR", Lie::horizontal},
      S_BAR{*this, "S_BAR", Lie::horizontal}, V_BAR{*this, "V_BAR", Lie::horizontal};
  Label R_VAL{*this, "R_VAL"}, G_VAL{*this, "G_VAL"}, B_VAL{*this, "B_VAL"}, H_VAL{*this, "H_VAL"},
      S_VAL{*this, "S_VAL"}, V_VAL{*this, "V_VAL"};
  Label Label1{*this, "Label1"}, Label2{*this, "Label2"}, Label3{*this, "Label3"}, Label4{*this, "Label4"},
      Label5{*this, "Label5"}, Label6{*this, "Label6"};
  // pane Dic
  ComboBox Combo1{*this, "Combo1"};
  ControlArray<Label, 26> COLINDEX{*this, "COLINDEX"};
  Label Label7{*this, "Label7"};              // "WriteMode", under Command4
  CommandButton Command4{*this, "Command4"};  // "ReadMode"
};
extern ColWin COL_WIN;

namespace col_win {

void show_pane();  // the pane of COL_PANE and no other

}  // namespace col_win

}  // namespace kiso
