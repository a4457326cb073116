// The end of the program: the end dialog and the shutdown.
#include "colour/col_win.h"
#include "frame/p_win.h"
#include "frame/usr_sub.h"
#include "palette/cmd_win.h"
#include "palette/palette.h"
#include "persist/d_form.h"
#include "persist/persist.h"
#include "program/program.h"
#include "program/wiring.h"

namespace kiso {

namespace {

int ask_to_end() {
  return MsgBox("Kisoを終了します\rファイルを保存せずに終了しますか ?\r", YES_NO_CANCEL | QUESTION | THIRD_BUTTON,
                APP_TITLE + "終了");
}

// True if the picture has been saved.
bool save_before_end() {
  std::string name;
  if (!ask_save_name(name)) return false;
  SET_CURSOR("WAIT");
  const bool saved = SAVE_PICTURE(name);
  if (saved) PIC_FILE = name;
  TOOL_CHANGED();
  return saved;
}

void shut_down() {
  DRAW.Enabled(false);
  Timer1.Interval(0);
  Timer2.Interval(0);
  COL_TOP = to_int32(COL_WIN.Top());  // where the palettes stand now, for the settings
  COL_LEFT = to_int32(COL_WIN.Left());
  CMD_TOP = to_int32(CMD_WIN.Top());
  CMD_LEFT = to_int32(CMD_WIN.Left());
  WRITE_CNF();
  WRITE_CDI();
  COL_WIN.Unload();
  CMD_WIN.Unload();
  D_FORM.Unload();
  PARAM_WIN_UNLOAD();
}

}  // namespace

void END_PROGRAM(int& result) {
  PARAM_WIN_HIDE();
  result = 0;
  for (;;) {
    const int answer = ask_to_end();
    if (answer == CANCEL) {
      P_WIN.Show();
      PAL_SHOW();
      PARAM_WIN_SHOW_AGAIN();
      result = 1;
      return;
    }
    if (answer == YES || save_before_end()) break;
  }
  shut_down();
}

namespace p_win {

void Form_QueryUnload(int& /*Cancel*/) { FORM_CLOSING = 1; }

void Form_Unload(int& Cancel) {
  if (QUIT_NOW != 1) {
    int result = 0;
    END_PROGRAM(result);
    if (result == 1) {
      FORM_CLOSING = 0;
      Cancel = 1;
      return;
    }
  }
  QUIT_NOW = 0;
  End();
}

}  // namespace p_win
}  // namespace kiso
