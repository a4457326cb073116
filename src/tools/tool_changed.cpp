// What a change of tool shows: marks, cursor, floating surfaces, parameter windows, status text.
#include "colour/col_win.h"
#include "frame/p_win.h"
#include "frame/usr_sub.h"
#include "palette/cmd_win.h"
#include "palette/palette.h"
#include "tools/tool_table.h"

namespace kiso {

namespace {

struct CursorWord {
  const char* word;
  const char* sheet;
};
constexpr CursorWord CURSORS[] = {
    {"LUPE", "LUPE_ICO"}, {"SPOIT", "SPOIT_ICO"}, {"PAINT", "Paint_ICO"}, {"WAIT", "WAIT_ICO"}};

template <class T>
void point_with(T& shown, const char* sheet) {
  if (sheet) shown.MouseIcon(sheet);
  shown.MousePointer(sheet ? 99 : 1);
}

void mark_selected_colour() {
  Shape& selected = COL_TARGET == 0 ? COL_WIN.TAR_SEL : COL_WIN.DES_SEL;
  Shape& other = COL_TARGET == 0 ? COL_WIN.DES_SEL : COL_WIN.TAR_SEL;
  selected.FillColor(QBColor(CUR_TOOL == SPOIT ? 12 : 11));
  other.FillColor(0x8000000F);
}

// Another tool ends what a tool of several clicks has begun; what it has put on DRAW is not to reach PIC with the next
// stroke. A tool that waits for its next click is still the same tool, and an event of the pointer minds its stroke
// itself.
void drop_open_chain() {
  if (between_clicks(tool_row(CUR_TOOL)) || DOWN_BUSY != 0 || UP_BUSY != 0) return;
  if (RUBBER_ON == 1 || (PREVIEW_ON == 1 && PEN_DOWN == 1)) DROP_STROKE();
}

}  // namespace

void SET_CURSOR(const std::string& word) {
  const char* sheet = nullptr;
  for (const CursorWord& cursor : CURSORS) {
    if (word == cursor.word) sheet = cursor.sheet;
  }
  point_with(DRAW, sheet);
  point_with(CMD_WIN, sheet);
  point_with(COL_WIN, sheet);
}

const char* TOOL_STATUS(int tool) { return tool_row(tool).inf_cmd; }

void TOOL_CHANGED() {
  drop_open_chain();
  mark_selected_colour();
  const ToolRow& tool = tool_row(CUR_TOOL);
  SET_CURSOR(tool.cursor);
  WORK.Visible(tool.floats == Floats::WORK);
  WORD.Visible(tool.floats == Floats::WORD);
  PARAM_WIN_CLOSE(tool.param);
  if (STATUS_ON == 1) INF_CMD.Caption(tool.inf_cmd);
}

}  // namespace kiso
