// The shared procedures of the palette and of the parameter windows that its buttons open.
#pragma once

namespace kiso {

void SCANNER_BUTTON();  // FILE_B(7) is there as long as a scanner is installed

void PARAM_WIN_SHOW(int tool);  // the parameter window of that tool, if it has one
void PARAM_WIN_CLOSE();         // unloads those that do not belong to CUR_TOOL
void PARAM_WIN_HIDE();          // the open ones, while the program asks whether to end
void PARAM_WIN_SHOW_AGAIN();
void PARAM_WIN_UNLOAD();

}  // namespace kiso
