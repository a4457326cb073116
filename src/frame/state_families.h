// Multi-click tools keep how far they have come in CUR_TOOL. What makes them fall back to their first state, and what
// else falls with it, stands in one table.
#pragma once

#include <cstdint>

namespace kiso {

enum FallCause : uint8_t { BY_SCROLL = 1, BY_RIGHT = 2, BY_BLANK = 4, BY_UNDO = 8, BY_FIT = 16, BY_ZOOM_OUT = 32 };

// The family of CUR_TOOL goes back to its base, if that cause makes it fall.
void fall_back(FallCause cause);

}  // namespace kiso
