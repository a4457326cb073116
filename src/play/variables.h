// The variables that a script can name.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "frame/usr_def.h"

namespace play {

using Variable = std::variant<int16_t*, int32_t*, uint32_t*, float*, double*, std::string*, raster::Point*>;

struct VariableRow {
  std::string_view name;
  int indices;                                   // how many it takes
  Variable (*at)(std::span<const int> indices);  // an index outside is RuntimeError 9
};

// Null if there is none of that name with so many indices.
const VariableRow* find_variable(std::string_view name, int indices);
std::string print(const Variable& variable);
void assign(const Variable& variable, const std::string& value);

}  // namespace play
