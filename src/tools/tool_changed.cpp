// What a change of tool shows: marks, cursor, floating surfaces, parameter windows, status text.
#include "colour/colour.h"
#include "frame/p_win.h"
#include "frame/usr_sub.h"
#include "palette/palette.h"
#include "tools/tool_table.h"

namespace kiso {

namespace {

// Another tool ends what a tool of several clicks has begun; what it has put on DRAW is not to reach PIC with the next
// stroke. A tool that waits for its next click is still the same tool, and an event of the pointer minds its stroke
// itself.
void drop_open_chain() {
  if (between_clicks(tool_row(CUR_TOOL)) || DOWN_BUSY != 0 || UP_BUSY != 0) return;
  if (RUBBER_ON == 1 || (PREVIEW_ON == 1 && PEN_DOWN == 1)) DROP_STROKE();
}

}  // namespace

void show_tool() {
  drop_open_chain();
  mark_edited_colour();
  const ToolRow& tool = tool_row(CUR_TOOL);
  SET_CURSOR(tool.cursor);
  WORK.Visible(tool.floats == Floats::WORK);
  WORD.Visible(tool.floats == Floats::WORD);
  PARAM_WIN_CLOSE(tool.param);
  if (STATUS_ON == 1) INF_CMD.Caption(tool.inf_cmd);
}

}  // namespace kiso
