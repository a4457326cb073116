#include "windows/wait_win.h"

#include <algorithm>
#include <chrono>

#include "frame/p_win.h"
#include "frame/usr_sub.h"
#include "windows/windows.h"

namespace kiso {

namespace {
constinit int bar_filled = -1;  // columns of pixels; -1: the bar has not been painted yet
constinit std::chrono::steady_clock::time_point bar_shown{};
}  // namespace

namespace wait_win {
namespace {

void design() {
  WAIT_WIN.design(0, 0, 264, 72);
  WAIT_WIN.FRAME.design(8, 6, 248, 58);
  WAIT_WIN.BAR.border = true;
  WAIT_WIN.BAR.design(12, 28, 224, 18, &WAIT_WIN.FRAME);
}

void Form_Load() {
  bar_filled = -1;
  WAIT_WIN.Caption(APP_TITLE + "実行中");
  WAIT_WIN.Move((screen_width() - WAIT_WIN.Width()) / 2, (screen_height() - WAIT_WIN.Height()) / 2);
  WAIT_WIN.Refresh();
  hold_editor();
}

void Form_Unload(int& /*Cancel*/) { release_editor(); }

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

// It is called for each column of a picture: a call that moves the bar by no pixel costs next to nothing, one that does
// paints what is new, and what is new reaches the screen no more often than that can show.
void WAIT_PROGRESS(double done, double total) {
  desktop().record_progress(done, total);
  if (done != 0 && total == 0) throw RuntimeError(11);
  PictureBox& bar = WAIT_WIN.BAR;
  const double width = bar.ScaleWidth();
  const int end = done == 0 ? 0 : to_int32(width * (done / total)) + 1;  // that column is filled, too
  if (done == 0 ? bar_filled == 0 : end <= bar_filled) return;
  if (done == 0) {
    forms::Line(bar, 0, 0, width, bar.ScaleHeight(), 0x8000000F, LineForm::box_fill);
  } else {
    forms::Line(bar, std::max(bar_filled, 0), 0, end - 1, bar.ScaleHeight(), QBColor(11), LineForm::box_fill);
  }
  bar_filled = end;
  constexpr auto FRAME_TIME = std::chrono::milliseconds(16);
  const auto now = std::chrono::steady_clock::now();
  if (done != 0 && done < total && now - bar_shown < FRAME_TIME) return;
  bar_shown = now;
  bar.Refresh();
}

}  // namespace kiso
