#include "frame/p_win.h"
#include "persist/p_win_events.h"
#include "persist/persist.h"

namespace kiso {

void wire_persist() {
  Timer2.Tick = p_win::Timer2_Timer;
  P_WIN.Form_Drop = p_win::DROP_WNDPROC;
}

}  // namespace kiso
