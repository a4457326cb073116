// Every button of the palette, one row each: where it stands, what it chooses, what it says. The design, the click
// procedures and the tests read these rows.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "palette/cmd_win.h"
#include "palette/palette.h"

namespace kiso {

enum class Group : uint8_t { ROOT_B, EXP_B, CMD_B, EDIT_B, FILE_B, SYS_B, EFCT_B, EXP_M1, EXP_M2, OPT_W_B };

// Where a button stands. WINDOW: the row that always shows, at the foot of the window.
enum class Panel : uint8_t {
  ROOT_B_BASE,
  ROOT_M0,
  ROOT_M1,
  ROOT_M2,
  ROOT_M3,
  ROOT_M4,
  ROOT_M5,
  ROOT_M6,
  EXP_B_BASE,
  EXP_M0,
  EXP_M1,
  EXP_M2,
  WINDOW
};

constexpr int16_t NO_TOOL = -1;  // the button is a command

struct PalButton {
  Group group;
  int8_t index;
  Panel panel;
  int8_t row, column;
  Param right;  // what a right click opens
  int16_t tool;
  const char* name;      // null: the tool's status text says it
  const char* japanese;  // the same for a reader of Japanese
  bool coming = false;   // what it leads to is not there yet: it looks faint and says so, but takes every click
  // The tool that a click chooses, where that hangs on more than the button; NO_TOOL: none, the user has been told.
  int16_t (*chooses)() = nullptr;
};

// In the order of the groups, each by its index.
std::span<const PalButton> palette_buttons();

constexpr int CELL = 24;  // pixels; side of a button and step of the grid

// A button group: its sprite sheet (cell i raised at (i * CELL, 0), pressed at (i * CELL, CELL)), the index of its
// pressed button, -1 when none, and its controls. A group without pressed shows its buttons pressed by other rules.
struct PalGroup {
  Group group;
  int count;
  const char* sheet;
  int32_t* pressed;
  ImageBox& (*button)(int index);
};
const PalGroup& group_of(Group group);
std::span<const PalGroup> palette_groups();

// The row of a button. An index outside of the group is error 9.
const PalButton& row_of(Group group, int index);

// A panel's place in the window, in pixels; box gives its control, null for WINDOW.
struct PanelPlace {
  Panel panel;
  int16_t left, top, width, height;
  PictureBox* (*box)();
};
std::span<const PanelPlace> palette_panels();
const PanelPlace& place_of(Panel panel);

std::string name_of(const PalButton& button);  // what a screen reader says
// Name, Japanese name, whether it is still to come, and what a right click opens.
std::string tool_tip(const PalButton& button);

}  // namespace kiso
