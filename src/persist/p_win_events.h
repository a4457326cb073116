// The event procedures of the main window that are this room's.
#pragma once

#include <string>
#include <vector>

namespace kiso::p_win {

void Timer2_Timer();
void DROP_WNDPROC(const std::vector<std::string>& files);

}  // namespace kiso::p_win
