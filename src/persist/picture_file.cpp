// The road of a picture between the disk and PIC: BMP and ICO straight, every other kind through an add-in that is
// given a temporary BMP file.
#include <optional>

#include "addin/addin.h"
#include "frame/p_win.h"
#include "frame/usr_sub.h"
#include "persist/persist.h"
#include "platform/text/files.h"
#include "platform/text/paths.h"
#include "platform/text/text.h"

namespace kiso {

namespace {

constexpr int FILE_NOT_FOUND = 53;

// BMP and ICO are read and written without help. The name alone decides here, whatever stands in front of the ending.
bool ends_as_own_kind(const std::string& name) {
  const std::string ending = text::Right(text::UPPER_ASCII(text::Trim(name)), 4);
  return ending == ".BMP" || ending == ".ICO";
}

// The row of a table of readers or writers whose extension the name ends in, the last one of several; -1 for none. An
// extension in small letters fits no name.
int row_for(const std::string& name, const RecordTexts& extensions, int rows) {
  const std::string key = text::UPPER_ASCII(text::Trim(name));
  for (int i = rows - 1; i >= 0; --i)
    if (key.ends_with(extensions(i))) return i;
  return -1;
}

// False if the registry does not know the add-in; the user has been told.
bool find_program(const std::string& id, std::string& exe) {
  std::string title;
  int index = 0, result = 0;
  ADDIN_LOOKUP(id, title, exe, index, result);
  if (result != 0) MsgBox("Add_In情報が不正です実行ファイルを見つけられません");
  return result == 0;
}

// The name of a file that the picture crosses in, for this run alone while this lives.
struct TemporaryName {
  TemporaryName() { TEMP_NAME(APP_PATH + PATH_SEP + "GT", "BMP", name); }
  ~TemporaryName() { TEMP_FREE(); }
  TemporaryName(const TemporaryName&) = delete;
  TemporaryName& operator=(const TemporaryName&) = delete;
  std::string name;
};

// Runs the add-in with what of its template could be expanded.
bool run_addin(const std::string& exe, const std::string& command, const std::string& temp) {
  std::string args;
  ignore_errors([&] { EXPAND_COMMAND(command, temp, args); });
  return RUN_AND_WAIT(exe + " " + args);
}

std::optional<RuntimeError> failure_of(auto step) {
  try {
    step();
  } catch (const RuntimeError& e) {
    return e;
  }
  return std::nullopt;
}

void show_wanted_palettes() {
  if (PAL_SHOWN == 1) PAL_SHOW();
}

// PIC_FILE into PIC, through the temporary file. False if the add-in is not known: the palettes stay hidden then.
bool load_by_addin(int reader, const std::string& temp) {
  PAL_HIDE();
  std::string exe;
  if (!find_program(FR_ID(reader), exe)) return false;
  run_addin(exe, FR_CMD(reader), temp);
  const auto failure = failure_of([&] { PIC.Picture(LoadPicture(temp)); });
  P_WIN.Enabled(true);
  show_wanted_palettes();
  ignore_errors([&] { text::Kill(temp); });
  if (failure) throw RuntimeError(*failure);
  return true;
}

// False if the add-in is not known, can not be started, or has not made the file. A writer that has taken the temporary
// file away says by that that it failed: error 53.
bool save_by_addin(int writer, const std::string& name) {
  std::string exe;
  if (!find_program(FW_ID(writer), exe)) return false;
  PAL_HIDE();
  const TemporaryName temporary;
  const std::string& temp = temporary.name;
  const auto failure = failure_of([&] { SavePicture(PIC.Image(), temp); });
  PIC_FILE = name;
  // Without the picture a writer could only do harm to the target.
  const bool ran = !failure && run_addin(exe, FW_CMD(writer), temp);
  show_wanted_palettes();
  if (failure) throw RuntimeError(*failure);
  text::Kill(temp);
  return ran && !text::Dir(name).empty();
}

void tell_unsupported() { MsgBox("サポート外のファイル形式です。", EXCLAMATION, APP_TITLE); }

// What a failed load leaves: the old picture in a box of 640 x 480, and no name. PIC_SIZE stays as it was.
void leave_empty_box() {
  PIC.Width(640);
  PIC.Height(480);
  PIC_FILE = "";
  SET_CURSOR("NORMAL");
}

}  // namespace

void SHOW_NEW_PICTURE() {
  PIC_SIZE(1) = to_int16(PIC.ScaleWidth());
  PIC_SIZE(2) = to_int16(PIC.ScaleHeight());
  SHOW_FROM_ORIGIN();
  TOOL_CHANGED();
}

void SHOW_FROM_ORIGIN() {
  EXP_RATE = 1;
  VIEW_ORG(1) = VIEW_ORG(2) = 0;
  X_SC.Value(0);
  Y_SC.Value(0);
  VIEW_FIT();
  UNDO_READY = 0;
  UNDO_BUTTON(2);
}

void LOAD_PICTURE(const std::string& name, int& result) {
  result = 0;
  SET_CURSOR("WAIT");
  PIC_FILE = name;
  Timer2.Enabled(false);  // no auto save while PIC changes
  PIC.AutoSize(true);
  const int reader = row_for(name, FR_EXT, FR_CNT);
  if (reader < 0 && !ends_as_own_kind(name)) {
    tell_unsupported();
    leave_empty_box();
    result = -2;
    return;
  }
  std::optional<TemporaryName> temporary;
  if (reader >= 0) temporary.emplace();
  const std::string& file = temporary ? temporary->name : name;
  try {
    if (reader < 0)
      PIC.Picture(LoadPicture(file));
    else
      result = load_by_addin(reader, file) ? 0 : 1;
  } catch (const RuntimeError& e) {
    MsgBox("ファイル読み込みエラー (" + text::Str(e.number) + ")\r理由 : " + e.what() + "\rファイル名 : " + file +
               "\r読み込みを中止します",
           EXCLAMATION, APP_TITLE);
    result = e.number == FILE_NOT_FOUND ? -5 : -1;
    leave_empty_box();
    return;
  }
  PIC.AutoSize(false);
  Timer2.Enabled(AUTOSAVE_MIN != 0);
  SHOW_NEW_PICTURE();
}

void LOAD_CHOSEN(const std::string& name) {
  int result = 0;
  LOAD_PICTURE(name, result);
  PIC_FILE = name;
  SHOW_NAME(name);
}

// Timer2 stays off after a save, until a picture is loaded: the clock of the auto save stands still.
bool SAVE_PICTURE(const std::string& name) {
  SET_CURSOR("WAIT");
  Timer2.Enabled(false);
  const int writer = row_for(name, FW_EXT, FW_CNT);
  if (writer < 0 && !ends_as_own_kind(name)) {
    tell_unsupported();
    SET_CURSOR("NORMAL");
    return false;
  }
  try {
    if (writer >= 0) return save_by_addin(writer, name);
    SavePicture(PIC.Image(), name);
  } catch (const RuntimeError&) {
    MsgBox(name + "\rパス又はファイル名が不正です　SAVEできません\r正しく入力し直してください。", EXCLAMATION,
           APP_TITLE);
    return false;
  }
  return true;
}

}  // namespace kiso
