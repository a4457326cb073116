// The colour window as a person has it, without a display and without the start of the program.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "colour/col_win.h"
#include "colour/colour.h"
#include "frame/p_win.h"
#include "frame/rooms.h"
#include "frame/usr_sub.h"

namespace kiso {

struct QuietDesktop : Desktop {
  std::vector<std::string> boxes;
  int message_box(const std::string& text, int style, const std::string& title) override {
    boxes.push_back(std::to_string(style) + "|" + title + "|" + text);
    return 1;
  }
};

struct ColourTest : testing::Test {
  QuietDesktop screen;
  ColourTest() {
    use_desktop(&screen);
    P_WIN.Form_Load = [] {};               // settings and dictionaries stay as this test sets them
    ROOMS.show_tool = mark_edited_colour;  // of what a change of tool shows, this room's part
    COL_WIN.Show();
    TOOL_CHANGED();
  }
  ~ColourTest() override { use_desktop(nullptr); }

  static void set_target(int r, int g, int b) { TAR_R = r, TAR_G = g, TAR_B = b; }
  static void set_destination(int r, int g, int b) { DES_R = r, DES_G = g, DES_B = b; }
  template <class Buttons>
  static void click(Buttons& buttons, int index) {
    buttons(index).Click.fire(index);
  }
  template <class Control>
  static void click(Control& control) {
    control.Click.fire(-1);
  }
};

struct Three {
  int a, b, c;
  bool operator==(const Three&) const = default;
};
inline std::ostream& operator<<(std::ostream& out, const Three& t) {
  return out << "(" << t.a << ", " << t.b << ", " << t.c << ")";
}
inline Three target() { return {TAR_R, TAR_G, TAR_B}; }
inline Three destination() { return {DES_R, DES_G, DES_B}; }
inline Three working() { return {CUR_R, CUR_G, CUR_B}; }
inline Three rgb_bars() { return {COL_WIN.R_BAR.Value(), COL_WIN.G_BAR.Value(), COL_WIN.B_BAR.Value()}; }
inline Three hsv_bars() { return {COL_WIN.H_BAR.Value(), COL_WIN.S_BAR.Value(), COL_WIN.V_BAR.Value()}; }

constexpr uint32_t FACE = 0x8000000F;

}  // namespace kiso
