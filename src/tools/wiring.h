// The one thing that the rooms above call here: everything else of this room answers events or ROOMS.
#pragma once

namespace kiso {

void wire_tools();  // pointer, keys and the spray clock of the main window, and the cells of ROOMS that are this room's

}  // namespace kiso
