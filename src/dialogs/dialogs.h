// What the dialogs of this room share.
#pragma once

#include "frame/usr_def.h"

namespace kiso {

void centre_over_main(Window& window);  // never off the screen at its left or top

namespace set_win {

// The lists of the window from the registry, as it opens with them.
void show_addins();

}  // namespace set_win
}  // namespace kiso
