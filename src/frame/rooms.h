// What frame asks of the rooms above it: the one place from which a call goes up. A room fills its cells as the program
// starts; until then each is harmless, so that frame works alone and nobody tests for null.
#pragma once

#include <span>

#include "frame/usr_def.h"

namespace kiso {

struct Rooms {
  void (*show_tool)();                    // of tools: what TOOL_CHANGED shows
  const char* (*tool_status)(int tool);   // of tools: TOOL_STATUS
  void (*undo_button)(int n);             // of palette: UNDO_BUTTON
  std::span<Window* const> side_windows;  // the palettes, which come, go and take events with the main window
};
extern Rooms ROOMS;

}  // namespace kiso
