// The pictures of the palettes and the cursors, built into the program from the text art in assets/icons.
#pragma once

#include <cstdint>
#include <span>

namespace forms {

// A picture of width x height pixels, 0xAARRGGBB, rows from the top down without gaps. In a sheet of buttons cell i of
// side s is raised at (i * s, 0) and pressed at (i * s, s), and every pixel is opaque. A cursor has its hot spot told;
// everywhere else it is 0, 0.
struct Sheet {
  const char* name;
  int width, height;
  const uint32_t* pixels;
  int hot_x, hot_y;
};

// Every sheet, each name once.
std::span<const Sheet> all_sheets();

}  // namespace forms
