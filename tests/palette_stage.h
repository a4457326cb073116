// The stage with its palettes.
#pragma once

#include "colour/col_win.h"
#include "palette/cmd_win.h"
#include "stage.h"

namespace stage {

inline void pen(int size) {
  forms::enter([&] { CMD_WIN.PEN_SZ_SB.Value(size); });
}

// A black pixel of DRAW committed as a stroke is, for tests that link no tools.
inline void stroke_at(int x, int y) {
  forms::enter([&] {
    SetPixelV(DRAW, x, y, 0);
    VIEW_COMMIT();
    UNDO_READY = 1;
    UNDO_BUTTON(0);
  });
}

}  // namespace stage
