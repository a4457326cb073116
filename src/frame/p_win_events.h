// The event procedures of the main window: start, end, layout and view in this room, pointer and keys in src/tools.
#pragma once

#include <string>
#include <vector>

namespace kiso::p_win {

void Form_Load();
void Form_Resize();  // layout of the window's inside, also after the status line has come or gone
void Form_QueryUnload(int& Cancel);
void Form_Unload(int& Cancel);
void X_SC_Change();
void Y_SC_Change();
void RB_Click();
void DRAW_Paint();
void DRAW_Resize();

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
void Timer2_Timer();
void DROP_WNDPROC(const std::vector<std::string>& files);

}  // namespace kiso::p_win
