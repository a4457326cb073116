// The text of the help window, built into the program from assets/help.
#pragma once

namespace kiso {
extern const char* const HELP_PAGE;
}
