// The command palette: two palettes that replace each other, the root palette for x1 and the expansion palette above
// it. Its procedures stand in src/palette.
#pragma once

#include "frame/usr_def.h"

namespace kiso {

struct CmdWin : Window {
  CmdWin();

  PictureBox ROOT_B_BASE{*this, "ROOT_B_BASE"};         // holds the seven group buttons
  ControlArray<PictureBox, 7> ROOT_M{*this, "ROOT_M"};  // the panels under them
  PictureBox EXP_B_BASE{*this, "EXP_B_BASE"};
  ControlArray<PictureBox, 3> EXP_M{*this, "EXP_M"};
  ControlArray<ImageBox, 7> ROOT_B{*this, "ROOT_B"};
  ControlArray<ImageBox, 3> EXP_B{*this, "EXP_B"};
  ControlArray<ImageBox, 36> CMD_B{*this, "CMD_B"};
  ControlArray<ImageBox, 3> EDIT_B{*this, "EDIT_B"};
  ControlArray<ImageBox, 8> FILE_B{*this, "FILE_B"};
  ControlArray<ImageBox, 5> SYS_B{*this, "SYS_B"};
  ControlArray<ImageBox, 6> EFCT_B{*this, "EFCT_B"};
  ControlArray<ImageBox, 20> EXP_M1{*this, "EXP_M1"};
  ControlArray<ImageBox, 4> EXP_M2{*this, "EXP_M2"};
  Label LoadLabel{*this, "Label2"}, SaveLabel{*this, "Label3"};
  ScrollBar PEN_SZ_SB{*this, "PEN_SZ_SB", Lie::horizontal};
  Label PEN_SZ{*this, "PEN_SZ"};
  Label PenSizeLabel{*this, "Label1"};
  CommandButton UNDO{*this, "UNDO"};
  ControlArray<ImageBox, 3> OPT_W_B{*this, "OPT_W_B"};
  ImageBox LUPE_ICO{*this, "LUPE_ICO"}, SPOIT_ICO{*this, "SPOIT_ICO"}, Paint_ICO{*this, "Paint_ICO"},
      WAIT_ICO{*this, "WAIT_ICO"};  // hidden, they only store cursors

  // Index of the pressed button of each group, -1 when none.
  int32_t CMD_B_pressed = -1, EDIT_B_pressed = -1, EXP_M1_pressed = -1, EXP_M2_pressed = -1;
  int16_t BTN_RIGHT = 0;     // 1: the last press on a CMD_B or EXP_M1 button came from the right button
  int16_t FILE_B_RIGHT = 0;  // the same for FILE_B
};
extern CmdWin CMD_WIN;

namespace cmd_win {

// The expansion palette with its first panel comes to the front; what the first press of a zoom tool does.
void show_expansion_palette();
void UNDO_Click();

}  // namespace cmd_win
}  // namespace kiso
