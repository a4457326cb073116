#include "palette/cmd_click.h"

#include <array>

#include "frame/p_win.h"
#include "frame/state_families.h"
#include "frame/usr_sub.h"
#include "palette/palette.h"
#include "platform/text/text.h"

namespace kiso {

void show_button(Group group, int index, bool pressed) {
  const PalGroup& g = group_of(group);
  g.button(index).Cell(g.sheet, index * CELL, pressed ? CELL : 0);
}

void PAL_SET_PRESSED(Group group, int index) {
  int32_t& pressed = *group_of(group).pressed;
  if (pressed != -1) show_button(group, pressed, false);
  if (index != -1) show_button(group, index, true);
  pressed = index;
}

namespace {

using Command = void (*)();

void nothing() {}

constexpr size_t GROUPS = 10, MOST_BUTTONS = 36;
constinit auto commands = [] {
  std::array<std::array<Command, MOST_BUTTONS>, GROUPS> empty{};
  for (auto& group : empty) group.fill(nothing);
  return empty;
}();

Command& command_of(Group group, int index) {
  return commands.at(static_cast<size_t>(group)).at(static_cast<size_t>(index));
}

// Groups whose buttons are pressed only while their command runs. The command may end in the palette being unloaded.
void press_while(Group group, int index) {
  show_button(group, index, true);
  group_of(group).button(index).Refresh();
  command_of(group, index)();
  if (CMD_WIN.Loaded()) show_button(group, index, false);
}

int16_t tool_of(const PalButton& button) { return button.chooses ? button.chooses() : button.tool; }

void choose(int16_t tool) {
  CUR_TOOL = tool;
  TOOL_CHANGED();
}

void open_parameters(const PalButton& button) {
  if (CMD_WIN.BTN_RIGHT == 1) PARAM_WIN_SHOW(button.right);
}

// The first panel of the expansion palette, with its group button.
void open_first_expansion_panel() {
  CMD_WIN.EXP_M(0).Visible(true);
  CMD_WIN.EXP_M(0).ToFront();
  PAL_SET_PRESSED(Group::EXP_B, 0);
}

}  // namespace

void button_starts(Group group, int index, void (*command)()) { command_of(group, index) = command; }

int16_t line_tool() { return LINE_MODE > 0 ? 29 : 3; }
int16_t expanded_line_tool() { return LINE_MODE > 0 ? 11029 : 11010; }

int16_t clipboard_copy_tool() {
  if (STRETCH_OK == 1) return 18;
  MsgBox("StretchBltとImageに問題のある機種では使えません");
  return 0;
}

int16_t clipboard_paste_tool() {
  Surface picture;
  if (!clipboard_picture(picture)) return NO_TOOL;
  WORK.AutoSize(true);
  WORK.Picture(std::move(picture));
  WORK.AutoSize(false);
  WORK.Move(0, 0);
  return 19;
}

namespace cmd_win {

void ROOT_B_Click(int Index) {
  CMD_WIN.ROOT_M(ROOT_GROUP).Visible(false);
  PAL_SET_PRESSED(Group::ROOT_B, Index);
  CMD_WIN.ROOT_M(Index).Visible(true);
  CMD_WIN.ROOT_M(Index).ToFront();
}

void EXP_B_Click(int Index) {
  CMD_WIN.EXP_M(EXP_GROUP).Visible(false);
  PAL_SET_PRESSED(Group::EXP_B, Index);
  CMD_WIN.EXP_M(Index).Visible(true);
  CMD_WIN.EXP_M(Index).ToFront();
}

void CMD_B_MouseDown(int /*Index*/, int Button, int /*Shift*/, float /*X*/, float /*Y*/) {
  CMD_WIN.BTN_RIGHT = Button == 2 ? 1 : 0;
}

void EXP_M1_MouseDown(int Index, int Button, int Shift, float X, float Y) {
  CMD_B_MouseDown(Index, Button, Shift, X, Y);
}

void FILE_B_MouseDown(int /*Index*/, int Button, int /*Shift*/, float /*X*/, float /*Y*/) {
  CMD_WIN.FILE_B_RIGHT = Button == 2 ? 1 : 0;
}

void CMD_B_Click(int Index) {
  const PalButton& button = row_of(Group::CMD_B, Index);
  if (button.tool == NO_TOOL) {
    press_while(Group::CMD_B, Index);
    return;
  }
  PAL_SET_PRESSED(Group::EDIT_B, -1);
  PAL_SET_PRESSED(Group::CMD_B, Index);
  const int16_t tool = tool_of(button);
  if (tool == NO_TOOL) return;
  choose(tool);
  open_parameters(button);
}

void EDIT_B_Click(int Index) {
  PAL_SET_PRESSED(Group::CMD_B, -1);
  PAL_SET_PRESSED(Group::EDIT_B, Index);
  choose(row_of(Group::EDIT_B, Index).tool);
}

void FILE_B_Click(int Index) { press_while(Group::FILE_B, Index); }
void EFCT_B_Click(int Index) { press_while(Group::EFCT_B, Index); }
void SYS_B_Click(int Index) { press_while(Group::SYS_B, Index); }
void OPT_W_B_Click(int Index) { press_while(Group::OPT_W_B, Index); }

void EXP_M1_Click(int Index) {
  const PalButton& button = row_of(Group::EXP_M1, Index);
  PAL_SET_PRESSED(Group::EXP_M1, Index);
  EXP_TOOL = tool_of(button);
  choose(EXP_TOOL);
  open_parameters(button);
}

void EXP_M2_Click(int Index) {
  const int16_t zoom_tool = row_of(Group::EXP_M2, Index).tool;
  const auto rate = static_cast<int16_t>(zoom_tool - 10000);
  PAL_SET_PRESSED(Group::EXP_M2, Index);
  if (Index == 0) {
    CMD_WIN.EXP_B_BASE.ToBack();
    CMD_WIN.ROOT_B_BASE.Visible(true);
    CMD_WIN.ROOT_B_BASE.ToFront();
    CMD_WIN.ROOT_M(ROOT_GROUP).Visible(true);
    CMD_WIN.ROOT_M(ROOT_GROUP).ToFront();
    PAL_SET_PRESSED(Group::EDIT_B, -1);
    choose(0);
    PAL_SET_PRESSED(Group::EXP_M2, -1);
  }
  if (rate > EXP_RATE) choose(zoom_tool);
  if (rate >= EXP_RATE) return;
  if (Index != 0) {
    CMD_WIN.EXP_M(1).Visible(false);
    open_first_expansion_panel();
  }
  DRAW.Visible(false);
  SET_CURSOR("WAIT");
  int16_t new_x = 0;
  int16_t new_y = 0;
  VIEW_CENTER(DRAW.ScaleWidth() / 2, DRAW.ScaleHeight() / 2, rate, new_x, new_y);
  EXP_RATE = rate;
  VIEW_ORG(1) = new_x;
  VIEW_ORG(2) = new_y;
  VIEW_FIT();
  X_SC.Value(new_x);
  Y_SC.Value(new_y);
  fall_back(BY_ZOOM_OUT);
  DRAW.Visible(true);
  TOOL_CHANGED();
}

void PEN_SZ_SB_Change() {
  PEN_SIZE = to_int16(CMD_WIN.PEN_SZ_SB.Value());
  CMD_WIN.PEN_SZ.Caption(text::Str(PEN_SIZE));
}

void UNDO_Click() {
  if (UNDO_READY != 1) return;
  fall_back(BY_UNDO);
  RB.Refresh();
  if (STROKE_STATE == 1) {
    DROP_STROKE();
  } else {
    UNDO_SWAP();
  }
  RB.Refresh();
}

void show_expansion_palette() {
  CMD_WIN.ROOT_B_BASE.ToBack();
  CMD_WIN.EXP_B_BASE.ToFront();
  open_first_expansion_panel();
}

}  // namespace cmd_win
}  // namespace kiso
