// What the tests of the tools share beside the stage: colours, the status line, pictures of noise, comparisons.
#pragma once

#include <cstring>

#include "palette_stage.h"

namespace stage {

inline void target_colour(char letter) { unpack_colour(colour_of(letter), TAR_R, TAR_G, TAR_B); }
inline void destination_colour(char letter) { unpack_colour(colour_of(letter), DES_R, DES_G, DES_B); }

inline void show_status_line() {
  forms::enter([] {
    if (STATUS_ON != 1) RB.Click.fire(-1);
  });
}
// The editor started with its status line shown, that picture in a view that has room for it at x8.
inline void stage_with_status(const Picture& picture) {
  start();
  show_status_line();
  room_for(picture);
  show(picture);
}
inline Picture plain(int w, int h, char letter = '.') {
  return Picture(static_cast<size_t>(h), std::string(static_cast<size_t>(w), letter));
}

// The picture as text, each letter as a block of rate x rate.
inline Picture enlarged(const Picture& picture, int rate) {
  Picture large;
  for (const std::string& row : picture) {
    std::string wide;
    for (const char letter : row) wide += std::string(static_cast<size_t>(rate), letter);
    for (int i = 0; i < rate; ++i) large.push_back(wide);
  }
  return large;
}

inline bool same_pixels(const raster::Surface& a, const raster::Surface& b) {
  if (a.width() != b.width() || a.height() != b.height()) return false;
  for (int y = 0; y < a.height(); ++y) {
    if (std::memcmp(a.row(y), b.row(y), static_cast<size_t>(a.width()) * 4) != 0) return false;
  }
  return true;
}
inline raster::Surface copy_of(const raster::Surface& s) {
  raster::Surface copy(s.width(), s.height());
  raster::BitBlt(copy, 0, 0, s.width(), s.height(), s, 0, 0);
  return copy;
}
// What DRAW shows while no stroke is under way.
inline raster::Surface view_of_picture() {
  raster::Surface view(VIEW_DOT(1), VIEW_DOT(2));
  raster::StretchBlt(view, 0, 0, VIEW_DOT(1), VIEW_DOT(2), PIC, VIEW_ORG(1), VIEW_ORG(2), VIEW_PIX(1), VIEW_PIX(2));
  return view;
}

// --- tools of several clicks
// Drags the first edge of a tool of several clicks.
inline void first_edge(int tool, float x1, float y1, float x2, float y2) {
  select_tool(tool);
  press(x1, y1);
  drag(x2, y2);
  release(x2, y2);
}
inline void next_vertex(float x, float y) {
  hover(x, y);
  click(x, y);
}
// 256 vertices of a zigzag on rows 0 and 1, the last one at x = 255.
inline void longest_chain(int tool) {
  first_edge(tool, 0, 0, 1, 1);
  for (int i = 2; i < 256; ++i) next_vertex(static_cast<float>(i), static_cast<float>(i % 2));
}
inline void repaint() {
  forms::enter([] { VIEW_FIT(); });
}  // as after a change of the window's size

// --- floating areas
inline void drag_area(int tool, float x1, float y1, float x2, float y2) {
  select_tool(tool);
  press(x1, y1);
  drag(x2, y2);
  release(x2, y2);
}
inline void expect_work_at(double left, double top) {
  EXPECT_TRUE(WORK.Visible());
  EXPECT_EQ(WORK.Left(), left);
  EXPECT_EQ(WORK.Top(), top);
}

}  // namespace stage
