// The started editor, and hands for its palette.
#pragma once

#include <vector>

#include "palette/param_win.h"
#include "palette_stage.h"

namespace kiso {

class Palette : public ::testing::Test {
 protected:
  Palette() { stage::start(); }
  ~Palette() override { reset_runtime(); }

  stage::StageDesktop& desktop_ = stage::desk();
};

constexpr int LEFT = 1, RIGHT = 2;
constexpr int YES = 6, NO = 7;

// A click as the display delivers it, of a button that can be reached.
inline void click(ImageBox& button, int with = LEFT) {
  ASSERT_TRUE(reachable(button)) << button.full_name();
  enter([&] {
    button.MouseDown.fire(button.index, with, 0, 5.0F, 5.0F);
    button.MouseUp.fire(button.index, with, 0, 5.0F, 5.0F);
    button.Click.fire(button.index);
  });
}

inline bool is_pressed(const ImageBox& button) { return button.cell_y() == 24; }

// Indices of the pressed buttons of a group.
template <class Buttons>
std::vector<int> pressed(Buttons& buttons) {
  std::vector<int> found;
  for (int i = 0; i < Buttons::count; ++i) {
    if (is_pressed(buttons(i))) found.push_back(i);
  }
  return found;
}
using Pressed = std::vector<int>;

// The panel that a person sees: shown, and above everything that overlaps it.
inline bool in_front(const Control& panel) {
  if (!panel.is_visible()) return false;
  for (const Control* other : panel.window.controls()) {
    if (other == &panel || other->container != panel.container || !other->is_visible()) continue;
    const bool apart = other->left_px() >= panel.left_px() + panel.width_px() ||
                       panel.left_px() >= other->left_px() + other->width_px() ||
                       other->top_px() >= panel.top_px() + panel.height_px() ||
                       panel.top_px() >= other->top_px() + other->height_px();
    if (!apart && other->order() > panel.order()) return false;
  }
  return true;
}

// From x1 to an enlarged view round a place of DRAW. button 0 to 2: x2, x4, x8.
inline void expand(int button, float x, float y) {
  click(CMD_WIN.ROOT_B(1));
  click(CMD_WIN.EDIT_B(button));
  stage::click(x, y);
}

}  // namespace kiso
