// The road of a picture between the disk and PIC.
#include "frame/p_win.h"
#include "frame/usr_sub.h"
#include "platform/text/text.h"

namespace kiso {

namespace {

constexpr int EXCLAMATION = 48, FILE_NOT_FOUND = 53;

// BMP and ICO are read and written without help. The name alone decides here, whatever stands in front of the ending.
bool ends_as_own_kind(const std::string& name) {
  const std::string ending = text::Right(text::UPPER_ASCII(text::Trim(name)), 4);
  return ending == ".BMP" || ending == ".ICO";
}

void tell_unsupported() { MsgBox("サポート外のファイル形式です。", EXCLAMATION, APP_TITLE); }

// What a failed load leaves: the old picture in a box of 640 x 480, and no name. PIC_SIZE stays as it was.
void leave_empty_box() {
  PIC.Width(640);
  PIC.Height(480);
  PIC_FILE = "";
  SET_CURSOR("NORMAL");
}

void show_new_picture() {
  PIC_SIZE(1) = to_int16(PIC.ScaleWidth());
  PIC_SIZE(2) = to_int16(PIC.ScaleHeight());
  EXP_RATE = 1;
  VIEW_ORG(1) = VIEW_ORG(2) = 0;
  X_SC.Value(0);
  Y_SC.Value(0);
  VIEW_FIT();
  TOOL_CHANGED();
  UNDO_READY = 0;
  UNDO_BUTTON(2);
}

}  // namespace

void LOAD_PICTURE(const std::string& name, int& result) {
  result = 0;
  SET_CURSOR("WAIT");
  PIC_FILE = name;
  Timer2.Enabled(false);  // no auto save while PIC changes
  PIC.AutoSize(true);
  if (!ends_as_own_kind(name)) {
    tell_unsupported();
    leave_empty_box();
    result = -2;
    return;
  }
  try {
    PIC.Picture(LoadPicture(name));
  } catch (const RuntimeError& e) {
    MsgBox("ファイル読み込みエラー (" + text::Str(e.number) + ")\r理由 : " + e.what() + "\rファイル名 : " + name +
               "\r読み込みを中止します",
           EXCLAMATION, APP_TITLE);
    result = e.number == FILE_NOT_FOUND ? -5 : -1;
    leave_empty_box();
    return;
  }
  PIC.AutoSize(false);
  Timer2.Enabled(AUTOSAVE_MIN != 0);
  show_new_picture();
}

// Timer2 stays off after a save, until a picture is loaded: the clock of the auto save stands still.
bool SAVE_PICTURE(const std::string& name) {
  SET_CURSOR("WAIT");
  Timer2.Enabled(false);
  if (!ends_as_own_kind(name)) {
    tell_unsupported();
    SET_CURSOR("NORMAL");
    return false;
  }
  try {
    SavePicture(PIC.Image(), name);
  } catch (const RuntimeError&) {
    MsgBox(name + "\rパス又はファイル名が不正です　SAVEできません\r正しく入力し直してください。", EXCLAMATION,
           APP_TITLE);
    return false;
  }
  return true;
}

}  // namespace kiso
