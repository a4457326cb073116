// What the windows of this room are opened by, and the progress of a long command.
#pragma once

#include <string>

#include "frame/usr_def.h"

namespace kiso {

// Shows WAIT_WIN above P_WIN with that caption, at once. Whoever shows it unloads it.
void WAIT_SHOW(const std::string& caption);
void WAIT_PROGRESS(double done, double total);

void ABOUT_SHOW();  // over the middle of P_WIN, owned by it
void HELP_SHOW();   // opens the page, or brings the open one forward

}  // namespace kiso
