// The tools and their states: one row each, which names only what differs from a tool at which nothing happens. The
// pointer pipeline (pointer.cpp) and TOOL_CHANGED walk the table.
#pragma once

#include <cstdint>
#include <span>

#include "palette/palette.h"

namespace kiso {

using PointProc = void (*)(float X, float Y);  // DRAW pixels
void nothing(float X, float Y);
void no_tick();

// What the release reads back into PIC. It is looked up after the release procedure, which may have moved CUR_TOOL.
enum class Commit : uint8_t {
  absent,      // nothing, and undo stays as it is: the tool is not there yet
  view,        // the whole view
  stroke_box,  // what the stroke has touched, widened by the pen; the whole view while UNDO_READY is 0
  block_box,   // the blocks that it has touched; the whole view while UNDO_READY is 0
  none,        // nothing, but undo is on from here
  open,        // nothing, the stroke goes on
};

// What floats above DRAW once the tool has been chosen.
enum class Floats : uint8_t { nothing, WORK, WORD };

struct ToolRow {
  int16_t number;
  const char* inf_cmd = "- - - -";  // status text
  const char* cursor = "NORMAL";    // word for SET_CURSOR
  PointProc press = nothing, drag = nothing, hover = nothing, release = nothing;
  PointProc double_click = nothing;
  void (*tick)() = no_tick;   // Timer1 while the button is held
  int16_t after_release = 0;  // state that the release procedure leads to, 0: it stays
  Commit commit = Commit::absent;
  int16_t after_commit = 0;   // state that the commit leads to, 0: it stays
  bool keeps_start = false;   // its press leaves PT_START and PT_LAST as the click before has set them
  bool holds_stroke = false;  // the stroke goes on between clicks: PEN_DOWN stays 1 after the release
  bool each_press = false;    // two fast clicks are two presses, not a press and a double click
  Floats floats = Floats::nothing;
  Param param = Param::none;  // the parameter window that stays open with it
};

// A tool of several clicks that waits for its next one; what lies on DRAW is its own.
constexpr bool between_clicks(const ToolRow& row) { return row.commit == Commit::open || row.keeps_start; }

std::span<const ToolRow> all_tools();  // by number
// The row of a number; a number that is no tool has a row in which nothing happens.
const ToolRow& tool_row(int number);

void show_tool();  // what TOOL_CHANGED shows of CUR_TOOL: marks, cursor, what floats, parameter windows, status text

}  // namespace kiso
