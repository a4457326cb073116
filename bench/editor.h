// The editor without a display, for the rows that go through its event procedures: a view of 1920 x 1080 pixels on a
// picture of 4096 x 4096, if none else is told.
#pragma once

#include "frame/p_win.h"
#include "frame/usr_sub.h"
#include "pictures.h"

namespace bench {

// Started at the first call. The picture, and the view at that rate with its top left at the picture's.
void show(const kiso::Surface& picture, int rate, int view_w = VIEW_W, int view_h = VIEW_H);
void select_tool(int number, int pen_size);

inline void press(float x, float y) {
  forms::enter([&] { kiso::DRAW.MouseDown.fire(-1, 1, 0, x, y); });
}
// Button 1: a drag; 0: the button is up.
inline void move(float x, float y, int button) {
  forms::enter([&] { kiso::DRAW.MouseMove.fire(-1, button, 0, x, y); });
}
inline void release(float x, float y) {
  forms::enter([&] { kiso::DRAW.MouseUp.fire(-1, 1, 0, x, y); });
}

}  // namespace bench
