// Message boxes.
#pragma once

#include <string>

namespace qt {

// The answer: 1 OK, 2 Cancel, 6 Yes, 7 No.
int message_box(const std::string& text, int style, const std::string& title);

}  // namespace qt
