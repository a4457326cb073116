#include "windows/wait_win.h"

#include <chrono>

#include "colour/col_win.h"
#include "frame/p_win.h"
#include "palette/cmd_win.h"
#include "platform/text/text.h"
#include "windows/windows.h"

namespace kiso {

namespace wait_win {
namespace {

void design() {
  WAIT_WIN.design(0, 0, 264, 72);
  WAIT_WIN.FRAME.design(8, 6, 248, 58);
  WAIT_WIN.BAR.border = true;
  WAIT_WIN.BAR.design(12, 28, 224, 18, &WAIT_WIN.FRAME);
}

void enable_others(bool enabled) {
  P_WIN.Enabled(enabled);
  CMD_WIN.Enabled(enabled);
  COL_WIN.Enabled(enabled);
}

void Form_Load() {
  WAIT_WIN.Caption(APP_TITLE + "実行中");
  WAIT_WIN.Move((screen_width() - WAIT_WIN.Width()) / 2, (screen_height() - WAIT_WIN.Height()) / 2);
  WAIT_WIN.Refresh();
  enable_others(false);
}

void Form_Unload(int& /*Cancel*/) { enable_others(true); }

}  // namespace
}  // namespace wait_win

WaitWin::WaitWin() : Window("WAIT_WIN", Border::dialog, Scale::pixels, wait_win::design) {
  Form_Load = wait_win::Form_Load;
  Form_Unload = wait_win::Form_Unload;
}

WaitWin WAIT_WIN;

void WAIT_SHOW(const std::string& caption) {
  WAIT_WIN.Show(&P_WIN);
  WAIT_WIN.FRAME.Caption(caption);
  desktop().record("progress", "caption \"" + caption + "\"");
  WAIT_WIN.Refresh();
}

namespace {
constinit std::chrono::steady_clock::time_point last_shown{};
}

void WAIT_PROGRESS(double done, double total) {
  desktop().record("progress", "progress " + text::CStr(done) + " " + text::CStr(total));
  PictureBox& bar = WAIT_WIN.BAR;
  if (done == 0) {
    forms::Line(bar, 0, 0, bar.ScaleWidth(), bar.ScaleHeight(), 0x8000000F, LineForm::box_fill);
  } else {
    if (total == 0) throw RuntimeError(11);
    forms::Line(bar, 0, 0, bar.ScaleWidth() * (done / total), bar.ScaleHeight(), QBColor(11), LineForm::box_fill);
  }
  // A call for every column of a picture would spend more time on the screen than on the picture.
  constexpr auto FRAME_TIME = std::chrono::milliseconds(16);
  const auto now = std::chrono::steady_clock::now();
  if (done != 0 && done < total && now - last_shown < FRAME_TIME) return;
  last_shown = now;
  WAIT_WIN.Refresh();
}

}  // namespace kiso
