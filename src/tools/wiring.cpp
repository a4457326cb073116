#include "tools/wiring.h"

#include "frame/p_win.h"
#include "frame/rooms.h"
#include "tools/p_win_events.h"
#include "tools/tool_table.h"

namespace kiso {

void wire_tools() {
  DRAW.MouseDown = p_win::DRAW_MouseDown;
  DRAW.MouseMove = p_win::DRAW_MouseMove;
  DRAW.MouseUp = p_win::DRAW_MouseUp;
  DRAW.DblClick = p_win::DRAW_DblClick;
  DRAW.second_press_is_press = p_win::tool_wants_each_press;
  DRAW.KeyDown = p_win::DRAW_KeyDown;
  DRAW.KeyPress = p_win::DRAW_KeyPress;
  DRAW.KeyUp = p_win::DRAW_KeyUp;
  DRAW.Wheel = p_win::DRAW_Wheel;
  DMY.MouseDown = p_win::DMY_MouseDown;
  DMY.KeyPress = p_win::DMY_KeyPress;
  DMY.Wheel = p_win::DRAW_Wheel;
  Timer1.Tick = p_win::Timer1_Timer;
  ROOMS.show_tool = show_tool;
  ROOMS.tool_status = [](int tool) { return tool_row(tool).inf_cmd; };
}

}  // namespace kiso
