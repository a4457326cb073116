// The options of a run; a script may set --depth and --screen itself before the start.
#pragma once

#include <string>

namespace play {

// False if there is no such option or it can not have that value.
bool take_option(const std::string& name, const std::string& value);

}  // namespace play
