// The event procedures of CMD_WIN, and how its buttons look.
#pragma once

#include "palette/palette_table.h"

namespace kiso {

// The button gets its pressed or its raised picture.
void show_button(Group group, int index, bool pressed);

// The group's pressed button is raised and, unless index is -1, that one pressed. The same index again leaves it
// pressed. For the groups that keep a pressed button.
void PAL_SET_PRESSED(Group group, int index);

// What the buttons choose that have more to say than their tool's number.
int16_t line_tool();  // a chain of lines while LINE_MODE is above 0
int16_t expanded_line_tool();
int16_t clipboard_copy_tool();   // 0 where pictures do not reach the clipboard; the user has been told
int16_t clipboard_paste_tool();  // WORK takes the clipboard's picture, to float above DRAW

namespace cmd_win {

void Form_Load();
void Form_Unload(int& cancel);

void ROOT_B_Click(int Index);
void EXP_B_Click(int Index);
void CMD_B_Click(int Index);
void EDIT_B_Click(int Index);
void FILE_B_Click(int Index);
void SYS_B_Click(int Index);
void EFCT_B_Click(int Index);
void EXP_M1_Click(int Index);
void EXP_M2_Click(int Index);
void OPT_W_B_Click(int Index);

void CMD_B_MouseDown(int Index, int Button, int Shift, float X, float Y);
void EXP_M1_MouseDown(int Index, int Button, int Shift, float X, float Y);
void FILE_B_MouseDown(int Index, int Button, int Shift, float X, float Y);

void PEN_SZ_SB_Change();

}  // namespace cmd_win
}  // namespace kiso
