// What a script can name: the editor's variables, its windows and controls, and their properties.
#pragma once

#include <string>

#include "frame/usr_def.h"

namespace play {

// The value that a name has, as it is printed. An unknown name is a ScriptError. A property of a window that is not
// loaded is "unloaded"; asking does not load it.
std::string value_of(const std::string& name);
// Gives a variable a value; no event runs.
void set_variable(const std::string& name, const std::string& value);
// The user gives a control or a window a new value, and the events that follow run (to be called inside of an event).
// False if the user can not reach it.
bool give_by_user(const std::string& name, const std::string& value);

forms::Window& window_named(const std::string& name);    // else ScriptError
forms::Control& control_named(const std::string& name);  // a bare name is one of P_WIN's
forms::PictureBox& surface_named(const std::string& name);

}  // namespace play
