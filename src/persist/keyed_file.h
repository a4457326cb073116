// The form that KISO.CNF and KISO.CDI share: lines "KEY , value 'comment" up to the line "[EOF]", among blank lines and
// comment lines. The end of the file is never looked for: without "[EOF]" it is error 62.
#pragma once

#include <functional>
#include <string>

namespace kiso {

struct KeyedLine {
  std::string key;      // the first four characters
  std::string value;    // behind the first comma, trimmed; the whole line if it has no comma
  std::string comment;  // from the first ' on, "" without one
};

// The path of a file in the program directory.
std::string in_app_path(const std::string& file_name);

// Gives each line of the open file `number` to `take`. "[EOF]" and a comment count only as they stand in the line's
// first column; what is indented is a line with an odd key.
void read_keyed_lines(int number, const std::function<void(const KeyedLine&)>& take);

// Writes `target` anew over the lines of `from`: blank lines and comments stand as they are, any other line is written
// as `update` leaves it. Lines lose their indentation, and so "[EOF]" ends the walk indented too. All goes into
// `temporary`, which then takes the place of `target` in one step and keeps its encoding; a `target` that does not
// exist is error 53. Nothing has changed after an error.
void rewrite_keyed_file(const std::string& from, const std::string& target, const std::string& temporary,
                        const std::function<void(KeyedLine&)>& update);

}  // namespace kiso
