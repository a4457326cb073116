// The tools that change no pixel: the Spoit, which picks a colour, and the zoom tools.
#include "colour/colour.h"
#include "frame/p_win.h"
#include "frame/usr_sub.h"
#include "palette/cmd_win.h"
#include "tools/tools.h"

namespace kiso {

void spoit(float X, float Y) {
  unpack_colour(GetPixel(DRAW, to_int32(X), to_int32(Y)), CUR_R, CUR_G, CUR_B);
  COL_UPDATE();
}

void zoom_press(float X, float Y) {
  SET_CURSOR("WAIT");
  cmd_win::show_expansion_palette();
  WORK.Visible(false);
  const auto rate = static_cast<int16_t>(CUR_TOOL - 10000);
  int16_t newX = 0;
  int16_t newY = 0;
  VIEW_CENTER(X, Y, rate, newX, newY);
  EXP_RATE = rate;
  VIEW_ORG(1) = newX;
  VIEW_ORG(2) = newY;
  VIEW_FIT();
  X_SC.Value(newX);
  Y_SC.Value(newY);
  TOOL_CHANGED();
}

// The commit goes by the tool that follows: its box, left from a stroke at another expansion, becomes the whole view.
void zoom_release(float /*X*/, float /*Y*/) {
  for (int axis : {1, 2}) {
    BOX_MIN(axis) = 0;
    BOX_MAX(axis) = VIEW_DOT(axis) - 1;
  }
  CUR_TOOL = EXP_TOOL;
  TOOL_CHANGED();
}

}  // namespace kiso
