// How the program is put together out of its rooms.
#pragma once

namespace kiso {

void wire_rooms();     // once, before P_WIN loads
void wire_commands();  // what the buttons of the palette start

namespace p_win {

void Form_Load();
void Form_QueryUnload(int& Cancel);
void Form_Unload(int& Cancel);

}  // namespace p_win
}  // namespace kiso
