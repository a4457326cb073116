// The event procedures of the main window that are this room's: pointer and keys.
#pragma once

namespace kiso::p_win {

void DRAW_MouseDown(int Button, int Shift, float X, float Y);
void DRAW_MouseMove(int Button, int Shift, float X, float Y);
void DRAW_MouseUp(int Button, int Shift, float X, float Y);
void DRAW_DblClick();
bool tool_wants_each_press();  // the second press of a double click is one more press
void DRAW_Wheel(int right, int down);
void DRAW_KeyDown(int KeyCode, int Shift);
void DRAW_KeyPress(int KeyAscii);
void DRAW_KeyUp(int KeyCode, int Shift);
void DMY_MouseDown(int Button, int Shift, float X, float Y);
void DMY_KeyPress(int KeyAscii);
void Timer1_Timer();

}  // namespace kiso::p_win
