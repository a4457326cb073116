// The tools and their states: one row each. The pointer pipeline (pointer.cpp) walks the table.
#pragma once

#include <cstdint>
#include <span>

namespace kiso {

using PointProc = void (*)(float X, float Y);  // DRAW pixels

// What the release reads back into PIC. It is looked up after the release procedure, which may have moved CUR_TOOL.
enum class Commit : uint8_t {
  view,        // the whole view
  stroke_box,  // what the stroke has touched, widened by the pen; the whole view while UNDO_READY is 0
  block_box,   // the blocks that it has touched; the whole view while UNDO_READY is 0
  none,        // nothing, but undo is on from here
  open,        // nothing, the stroke goes on
};

struct ToolRow {
  int16_t number;
  const char* inf_cmd;  // status text
  const char* cursor;   // word for SET_CURSOR
  PointProc press, drag, hover, release;
  PointProc double_click;
  void (*tick)();         // Timer1 while the button is held
  int16_t after_release;  // state that the release procedure leads to, 0: it stays
  Commit commit;
};

std::span<const ToolRow> all_tools();  // by number
// The row of a number; a number that is no tool has a row in which nothing happens.
const ToolRow& tool_row(int number);

}  // namespace kiso
