// What the buttons of the palette start.
#include "dialogs/set_win.h"
#include "frame/p_win.h"
#include "frame/usr_sub.h"
#include "palette/palette.h"
#include "palette/palette_table.h"
#include "persist/persist.h"
#include "platform/forms/clipboard.h"
#include "program/wiring.h"
#include "windows/windows.h"

namespace kiso {

namespace {

void load() {
  int result = 0;
  CONFIRM_REPLACE(result);
  if (result != 0) return;
  std::string name;
  OPEN_DIALOG(result, name);
  if (!name.empty() && result == 0) LOAD_CHOSEN(name);
}

void save() {
  std::string name;
  if (!ask_save_name(name)) return;
  SET_CURSOR("WAIT");
  SAVE_PICTURE(name);
  TOOL_CHANGED();
  PIC_FILE = name;
  SHOW_NAME(PIC_FILE);
}

void load_from_clipboard() {
  int result = 0;
  CLIP_CHECK(result);
  if (result == 0) CONFIRM_REPLACE(result);
  if (result != 0) return;
  Surface picture;
  if (!clipboard_picture(picture)) return;  // who offered it may be gone by now
  PIC_FILE = "";
  SET_CURSOR("WAIT");
  PIC.AutoSize(true);
  PIC.Picture(std::move(picture));
  PIC.AutoSize(false);
  SHOW_NEW_PICTURE();
  SHOW_NAME("ClipBoard");
}

void save_to_clipboard() {
  if (STRETCH_OK != 1) {
    MsgBox("StretchBltとImageに問題のある機種では使えません");
    return;
  }
  Clipboard::Clear();
  SET_CURSOR("WAIT");
  PIC.Refresh();
  Clipboard::SetData(PIC.Image(), Clipboard::BITMAP);
  TOOL_CHANGED();
}

// The size stays, and the caption keeps the old name.
void new_picture() {
  int result = 0;
  CONFIRM_REPLACE(result);
  if (result != 0) return;
  PIC_FILE = "";
  Line(PIC, 0, 0, PIC_SIZE(1), PIC_SIZE(2), RGB(TAR_R, TAR_G, TAR_B), LineForm::box_fill);
  SHOW_FROM_ORIGIN();
}

constexpr struct {
  Group group;
  int index;
  void (*run)();
} COMMANDS[] = {
    {Group::FILE_B, 0, load},
    {Group::FILE_B, 1, save},
    {Group::FILE_B, 2, load_from_clipboard},
    {Group::FILE_B, 3, save_to_clipboard},
    {Group::FILE_B, 5, new_picture},
    {Group::SYS_B, 0, [] { P_WIN.Unload(); }},
    {Group::SYS_B, 1, ABOUT_SHOW},
    {Group::SYS_B, 2, [] { SET_WIN.Show(&P_WIN); }},
    {Group::OPT_W_B, 1, HELP_SHOW},
};

}  // namespace

void wire_commands() {
  for (const auto& row : COMMANDS) button_starts(row.group, row.index, row.run);
}

}  // namespace kiso
