// The settings window as a table: it is built, filled and taken over from these rows.
#pragma once

#include <span>
#include <variant>

#include "dialogs/set_win.h"
#include "platform/forms/layout.h"

namespace kiso::set_win {

// A page, its button and the button's caption.
struct PageRow {
  CommandButton* button;
  const char* caption;
};
std::span<const PageRow> page_rows();  // row i is that of Picture1(i)

// When an option or check box is on as the window opens.
enum class On : uint8_t {
  value,   // the variable has the row's value
  others,  // that, or a value that no row of the variable has
  never    // whatever the variable holds
};

struct SetRow {
  Cell cell;
  const char* caption;
  std::variant<std::nullptr_t, int16_t*, std::string*> variable = nullptr;  // a label shows a text as it stands
  int16_t value = 0;                                                        // of the variable while the control is on
  On on = On::value;
  int16_t* field = nullptr;  // what the variable gets at OK in place of the value
};
std::span<const SetRow> set_rows();

constexpr int MARK_HEIGHT = 3;  // pixels of the mark under the button of the page in front

void design();
void fill();       // the controls from the variables, and the fields with them
void take_over();  // the variables from the controls and the fields

}  // namespace kiso::set_win
