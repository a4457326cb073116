// The start of the program: the load event of the main window.
#include "addin/addin.h"
#include "colour/col_win.h"
#include "frame/p_win.h"
#include "frame/usr_sub.h"
#include "palette/cmd_win.h"
#include "persist/d_form.h"
#include "persist/persist.h"
#include "platform/text/program_directory.h"
#include "program/program.h"
#include "program/wiring.h"
#include "windows/splash_win.h"

namespace kiso {

namespace {

std::string command_line_picture;

void ask_for_deep_display() {
  if (bits_per_pixel() >= 16) return;
  const int answer = MsgBox(
      "Windowsの色数が足りません\r本Editorはカラーパレットには対応しませんので\r"
      "16Bit/24Bit/ 32Bit Colorでご利用ください。\rKisoを起動させますか ?",
      YES_NO | EXCLAMATION, APP_TITLE);
  if (answer == NO) End();
}

void tell_of_folder_of_the_run() {
  if (!text::is_folder_of_the_run()) return;
  MsgBox("設定を保存するフォルダに書き込めません。\r今回は次のフォルダを使います。\r" + APP_PATH, 48, APP_TITLE);
}

// The picture of the command line, or a new one. Gives the name for the caption.
std::string first_picture() {
  splash_win::show_status("Checking commandline..");
  if (command_line_picture.empty()) {
    PIC.Width(640);
    PIC.Height(480);
    PIC_FILE = "";
    return "NEWFFILE";
  }
  splash_win::show_status("Loading..\r" + command_line_picture);
  int result = 0;
  LOAD_PICTURE(command_line_picture, result);
  if (result != 0) End(1);  // LOAD_PICTURE has said why
  return command_line_picture;
}

void start_values() {
  TAR_R = TAR_G = TAR_B = 0;
  DES_R = DES_G = DES_B = 255;
  DOWN_BUSY = MOVE_BUSY = UP_BUSY = 0;
  PIC_SIZE(1) = to_int16(PIC.ScaleWidth());
  PIC_SIZE(2) = to_int16(PIC.ScaleHeight());
  EXP_RATE = 1;
  VIEW_ORG(1) = VIEW_ORG(2) = 0;
  CUR_TOOL = 1;
  PEN_SIZE = 1;
  PAL_SHOWN = 1;
}

bool wants_last_picture() {
  if (RELOAD_MODE == 1) return true;
  if (RELOAD_MODE != 2 || PIC_FILE.empty() || !command_line_picture.empty()) return false;
  if (MsgBox("前回編集していたファイルを読み込みますか?\rファイル名 :" + PIC_FILE + "\r", YES_NO | QUESTION,
             APP_TITLE) == YES)
    return true;
  PIC_FILE = "";
  return false;
}

void reload_last_picture() {
  if (!wants_last_picture()) return;
  splash_win::show_status("Loading..\r" + PIC_FILE);
  int result = 0;
  LOAD_PICTURE(PIC_FILE, result);
  SHOW_NAME(PIC_FILE);
}

// A picture of the command line has touched the palettes before the settings were read.
void place_palettes() {
  if (COL_WIN.Loaded()) {
    COL_WIN.Move(COL_LEFT, COL_TOP);
    col_win::show_pane();
  }
  if (CMD_WIN.Loaded()) CMD_WIN.Move(CMD_LEFT, COL_WIN.Height() + 1);
}

}  // namespace

void START_PROGRAM(const std::string& command_line) {
  command_line_picture = command_line;
  wire_rooms();
  P_WIN.Load();
}

void p_win::Form_Load() {
  LOADING_FLAG = 1;
  QUIT_NOW = 0;
  UNDO_READY = 0;
  SPLASH_WIN.Title.Caption(std::string("Paint Tool ") + VERSION);
  SPLASH_WIN.Show();
  splash_win::show_status("Starting...");
  APP_PATH = text::SHORT_PATH(text::program_directory());
  APP_TITLE = "Kiso ";
  ask_for_deep_display();
  tell_of_folder_of_the_run();
  READ_AIN();
  SHOW_NAME(first_picture());
  start_values();
  splash_win::show_status("Initilizing from kiso.cnf...");
  READ_CNF();
  reload_last_picture();
  RB.Cell("RB_IMG", 0, STATUS_ON * 14);
  READ_CDI();
  place_palettes();
  D_FORM.Load();
  LOADING_FLAG = 0;
  PAL_SHOW();
  UNDO_BUTTON(2);
  splash_win::show_status("Complete...");
  SPLASH_WIN.Unload();
  PREVIEW_ON = 0;
  P_WIN.Show();
  TOOL_CHANGED();
  DRAW.SetFocus();
}

}  // namespace kiso
