// The event procedures of the main window that are this room's: layout and view. Those of pointer and keys are wired by
// tools, of the clock and of dropped files by persist, of start and end by program.
#pragma once

namespace kiso::p_win {

void Form_Resize();  // layout of the window's inside, also after the status line has come or gone
void X_SC_Change();
void Y_SC_Change();
void RB_Click();
void DRAW_Paint();
void DRAW_Resize();

}  // namespace kiso::p_win
