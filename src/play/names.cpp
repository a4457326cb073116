#include "play/names.h"

#include <optional>
#include <vector>

#include "platform/error.h"
#include "play/properties.h"
#include "play/script.h"
#include "play/variables.h"

namespace play {

using forms::Control;
using forms::Kind;
using forms::Window;

namespace {

// One part of a name: "CMD_B(7)" or "DICT_COL(0,3,1)".
struct Part {
  std::string name;
  std::vector<int> indices;
};

Part read_part(const std::string& text) {
  const size_t bracket = text.find('(');
  if (bracket == std::string::npos) return {text, {}};
  if (text.back() != ')') throw ScriptError("unknown name " + text);
  Part part{text.substr(0, bracket), {}};
  size_t at = bracket + 1;
  while (at < text.size()) {
    const size_t end = text.find_first_of(",)", at);
    part.indices.push_back(whole_number(text.substr(at, end - at)));
    at = end + 1;
  }
  return part;
}

std::vector<Part> read_name(const std::string& name) {
  std::vector<Part> parts;
  size_t at = 0;
  while (true) {
    const size_t dot = name.find('.', at);
    parts.push_back(read_part(name.substr(at, dot - at)));
    if (dot == std::string::npos) return parts;
    at = dot + 1;
  }
}

Window* find_window(const std::string& name) {
  for (Window* w : forms::all_windows()) {
    if (name == w->name) return w;
  }
  return nullptr;
}

Control* find_control(Window& window, const Part& part) {
  const int index = part.indices.empty() ? -1 : part.indices[0];
  for (Control* c : window.controls()) {
    if (part.name == c->name && c->index == index && part.indices.size() <= 1) return c;
  }
  return nullptr;
}

Window& main_window() { return window_named("P_WIN"); }

std::optional<Variable> variable_named(const std::string& name, const std::vector<Part>& parts) {
  const std::vector<int>& indices = parts.back().indices;
  const size_t bracket = name.rfind('(');
  const std::string plain = indices.empty() ? name : name.substr(0, bracket);
  const VariableRow* row = find_variable(plain, static_cast<int>(indices.size()));
  if (!row) return std::nullopt;
  try {
    return row->at(indices);
  } catch (const RuntimeError&) {
    throw ScriptError("no such index: " + name);
  }
}

// A name taken apart: a property of a window, or of one of its controls.
struct Target {
  Window* window = nullptr;
  Control* control = nullptr;
  Part property;
};

Target find_target(const std::string& name, const std::vector<Part>& parts) {
  if (parts.size() < 2 || parts.size() > 3) throw ScriptError("unknown name " + name);
  Target target;
  target.property = parts.back();
  target.window = parts[0].indices.empty() ? find_window(parts[0].name) : nullptr;
  if (target.window && parts.size() == 2) return target;
  const bool bare = !target.window;
  if (bare && parts.size() == 3) throw ScriptError("unknown name " + name);
  if (bare) target.window = &main_window();
  target.control = find_control(*target.window, parts[bare ? 0 : 1]);
  if (!target.control) throw ScriptError("unknown name " + name);
  return target;
}

}  // namespace

Window& window_named(const std::string& name) {
  Window* window = find_window(name);
  if (!window) throw ScriptError("unknown window " + name);
  return *window;
}

Control& control_named(const std::string& name) {
  const std::vector<Part> parts = read_name(name);
  Control* control = nullptr;
  if (parts.size() == 1) control = find_control(main_window(), parts[0]);
  if (parts.size() == 2) control = find_control(window_named(parts[0].name), parts[1]);
  if (!control) throw ScriptError("unknown control " + name);
  return *control;
}

forms::PictureBox& surface_named(const std::string& name) {
  Control& control = control_named(name);
  if (control.kind != Kind::picture) throw ScriptError("no surface: " + name);
  if (!control.window.Loaded()) throw ScriptError(name + " is unloaded");
  return static_cast<forms::PictureBox&>(control);
}

std::string value_of(const std::string& name) {
  const std::vector<Part> parts = read_name(name);
  if (const auto variable = variable_named(name, parts)) return print(*variable);
  const Target target = find_target(name, parts);
  const std::string value = target.control ? property_of(*target.control, target.property.name, target.property.indices)
                                           : property_of(*target.window, target.property.name);
  if (value == NO_PROPERTY) throw ScriptError("unknown name " + name);
  return value;
}

void set_variable(const std::string& name, const std::string& value) {
  const auto variable = variable_named(name, read_name(name));
  if (!variable) throw ScriptError("unknown variable " + name);
  assign(*variable, value);
}

bool give_by_user(const std::string& name, const std::string& value) {
  const Target target = find_target(name, read_name(name));
  const bool reached = target.control ? forms::reachable(*target.control) : forms::reachable(*target.window);
  if (!reached) return false;
  const bool given = target.control ? user_gives(*target.control, target.property.name, value)
                                    : user_gives(*target.window, target.property.name, value);
  if (!given) throw ScriptError("the user can not change " + name);
  return true;
}

}  // namespace play
