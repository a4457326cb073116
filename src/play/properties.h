// The properties of windows and controls by their names.
#pragma once

#include <string>
#include <vector>

#include "platform/forms/runtime.h"

namespace play {

inline const std::string NO_PROPERTY = "\x01no property";

// The value as it is printed: truth as 1 and 0, colours as packed numbers. "unloaded" if the window is not loaded,
// NO_PROPERTY if it has none of that name. Nothing is loaded by asking.
std::string property_of(forms::Window& window, const std::string& property);
std::string property_of(forms::Control& control, const std::string& property, const std::vector<int>& indices);

// False if that is nothing that a user can change.
bool user_gives(forms::Window& window, const std::string& property, const std::string& value);
bool user_gives(forms::Control& control, const std::string& property, const std::string& value);

}  // namespace play
