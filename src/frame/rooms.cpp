#include "frame/rooms.h"

#include "frame/p_win.h"
#include "frame/usr_sub.h"

namespace kiso {

constinit Rooms ROOMS = {
    .show_tool = [] {},
    .tool_status = [](int /*tool*/) { return ""; },
    .undo_button = [](int /*n*/) {},
    .side_windows = {},
};

void TOOL_CHANGED() { ROOMS.show_tool(); }
const char* TOOL_STATUS(int tool) { return ROOMS.tool_status(tool); }
void UNDO_BUTTON(int n) { ROOMS.undo_button(n); }

// --- the main window and the palettes

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

}  // namespace

void SET_CURSOR(const std::string& word) {
  const char* sheet = nullptr;
  for (const CursorWord& cursor : CURSORS) {
    if (word == cursor.word) sheet = cursor.sheet;
  }
  point_with(DRAW, sheet);
  for (Window* window : ROOMS.side_windows) point_with(*window, sheet);
}

void PAL_SHOW() {
  if (LOADING_FLAG == 1 || PAL_SHOWN != 1) return;
  for (Window* window : ROOMS.side_windows) window->Show(&P_WIN);
}

void PAL_HIDE() {
  for (Window* window : ROOMS.side_windows) window->Hide();
}

void hold_editor() {
  P_WIN.hold();
  for (Window* window : ROOMS.side_windows) window->hold();
}

void release_editor() {
  P_WIN.release();
  for (Window* window : ROOMS.side_windows) window->release();
}

void SHOW_NAME(const std::string& name) { P_WIN.Caption(APP_TITLE + ":" + name); }

}  // namespace kiso
