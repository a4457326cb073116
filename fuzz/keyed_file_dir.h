// A program directory for the files that a target is given, in memory where the system has such a place, and windows
// that load without starting the program.
#pragma once

#include <stdlib.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

#include "colour/col_win.h"
#include "frame/p_win.h"
#include "frame/usr_sub.h"
#include "palette/cmd_win.h"

namespace kiso {

inline void open_program_dir() {
  if (!APP_PATH.empty()) return;
  char in_memory[] = "/dev/shm/kiso_fuzz_XXXXXX", on_disk[] = "/tmp/kiso_fuzz_XXXXXX";
  APP_PATH = mkdtemp(in_memory) ? in_memory : mkdtemp(on_disk);
  atexit([] { std::filesystem::remove_all(APP_PATH); });
  for (Window* w : {static_cast<Window*>(&P_WIN), static_cast<Window*>(&CMD_WIN), static_cast<Window*>(&COL_WIN)})
    w->Form_Load = w->Form_Resize = [] {};
}

inline void put_file(const char* name, const uint8_t* data, size_t size) {
  std::ofstream(APP_PATH + "/" + name, std::ios::binary).write(reinterpret_cast<const char*>(data), size);
}

inline std::string get_file(const char* name) {
  std::ifstream in(APP_PATH + "/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

// False if f ends by a run-time error; anything else that it throws is a fault.
template <class F>
bool succeeds(F f) {
  try {
    f();
  } catch (const RuntimeError&) {
    return false;
  }
  return true;
}

}  // namespace kiso
