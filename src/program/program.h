// Start and end of the program.
#pragma once

#include <string>

#include "frame/usr_def.h"

namespace kiso {

void START_PROGRAM(const std::string& command_line);  // loads P_WIN with that command line
// Runs the end dialog and the shutdown. result 0: the program is really to end, 1: the user cancelled.
void END_PROGRAM(int& result);

}  // namespace kiso
