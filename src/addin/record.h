// The form that KISO.AIN, DEFAULT.AIN and the parameter files share: lines "KEY,field,field 'comment" up to the line
// "[EOF]". Blanks within a field belong to it. The end of the file is never looked for: without "[EOF]" it is error 62.
#pragma once

#include <functional>
#include <string>

#include "platform/number.h"

namespace kiso {

inline constexpr const char* END_MARK = "[EOF]";

// The key and what follows it. They are not cleared between lines: what a line does not have, it takes from the line
// before.
using Fields = Array<std::string, 0, 10>;

// Cuts a trimmed line at its commas into the fields; a twelfth is error 9. The line gets a comma at its end and loses
// its comment, in this order: a last field needs a comma of its own in front of a comment, else it is lost.
void split_record(std::string& L, Fields& field);

// Gives the fields of each line of the open file `number` to `take`.
void read_records(int number, const std::function<void(const Fields&)>& take);

}  // namespace kiso
