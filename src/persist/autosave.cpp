// The picture goes to the disk every few minutes, whether it has changed or not. This is the bare writing of a BMP,
// with none of the care of a save by hand: no add-in runs, a failure is silent, and nothing of the picture's name
// changes.
#include "frame/p_win.h"
#include "persist/p_win_events.h"
#include "platform/error.h"
#include "platform/text/paths.h"
#include "windows/wait_win.h"
#include "windows/windows.h"

namespace kiso {

void p_win::Timer2_Timer() {
  if (AUTOSAVE_MIN == 0) return;
  AUTOSAVE_LEFT = to_int16(AUTOSAVE_LEFT - 1);
  if (AUTOSAVE_LEFT >= 1) return;
  WAIT_SHOW("タイマー保存中");
  const bool over_the_file = AUTOSAVE_DEST == 1 && !PIC_FILE.empty();
  const std::string target = over_the_file ? PIC_FILE : APP_PATH + PATH_SEP + "AUTOSAVE.BMP";
  WAIT_PROGRESS(0, 1);
  ignore_errors([&] { SavePicture(PIC.Image(), target); });
  WAIT_PROGRESS(1, 1);
  AUTOSAVE_LEFT = AUTOSAVE_MIN;
  WAIT_WIN.Unload();
}

}  // namespace kiso
