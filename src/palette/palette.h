// The shared procedures of the palette and of the parameter windows that its buttons open.
#pragma once

#include <cstdint>

namespace kiso {

void wire_palette();  // the cells of ROOMS that are the palettes'
// What a button without a tool starts. One that is given nothing starts nothing.
enum class Group : uint8_t;  // palette_table.h
void button_starts(Group group, int index, void (*command)());

void SCANNER_BUTTON();  // FILE_B(7) is there as long as a scanner is installed

// The parameter windows.
enum class Param : int8_t { none = -1, FUZZY_WIN, SPRAY_WIN, HSET_WIN, DEEP_WIN };

void PARAM_WIN_SHOW(Param window);
void PARAM_WIN_CLOSE(Param but);  // unloads all but that one
void PARAM_WIN_HIDE();            // the open ones, while the program asks whether to end
void PARAM_WIN_SHOW_AGAIN();
void PARAM_WIN_UNLOAD();

}  // namespace kiso
