// The stage with its palettes.
#pragma once

#include "colour/col_win.h"
#include "palette/cmd_win.h"
#include "stage.h"

namespace stage {

inline void pen(int size) {
  forms::enter([&] { CMD_WIN.PEN_SZ_SB.Value(size); });
}

}  // namespace stage
