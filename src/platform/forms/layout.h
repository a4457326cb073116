// Dialogs by rows and columns: what stands in a window, a frame or a picture box comes in rows, and each size follows
// from the texts, so that any font fits. For the design of a window; all measures are pixels.
#pragma once

#include <span>
#include <string>

#include "platform/forms/controls.h"

namespace forms {

struct Cell {
  Control* control;
  Control* in;          // the frame or picture box that holds it, the window if null
  bool beside = false;  // in the row of the cell before it, one column further; else it begins a row
  int lines = 1;        // that a list shows, or a label has room for at least
};

constexpr int EDGE = 12;    // from the window's edge to what stands in it
constexpr int BETWEEN = 8;  // from button to button, from frame to frame

// Pixels of a line of that text.
int text_width(const std::string& text, const Font& font = {});
// Of any number of so many digits, with the blank that stands before one that is not negative.
int number_width(int digits);

// The text that a label, button, option, check box or frame shows.
const std::string& caption_of(const Control& control);
void give_caption(Control& control, const std::string& text);

// The width that all of `in` (null: the window) needs to be seen whole. Labels ask for none: their lines are broken.
int needed_width(std::span<const Cell> cells, const Control* in);
// Places all that stands in `in`, from `top` on and as wide as `width`, and gives the height that `in` then has.
// Labels, lists, frames and picture boxes take the width that is left in their row.
int arrange(std::span<const Cell> cells, Control* in, int top, int width);
// Places buttons in a row that ends at `right`, all as wide as the widest.
void arrange_buttons(std::span<CommandButton* const> buttons, int top, int right);
int button_width(std::span<CommandButton* const> buttons);  // of the widest
int button_height();

}  // namespace forms
