// A program directory, and the palettes, which hold some of what the files tell.
#pragma once

#include "colour/col_win.h"
#include "palette/cmd_win.h"
#include "program_dir.h"

namespace kiso {

struct PersistDir : ProgramDir {
  PersistDir() {
    load_quietly(CMD_WIN);
    load_quietly(COL_WIN);
  }
};

}  // namespace kiso
