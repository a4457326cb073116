#include "program/wiring.h"

#include "frame/p_win.h"
#include "palette/palette.h"
#include "persist/persist.h"
#include "tools/wiring.h"

namespace kiso {

void wire_rooms() {
  P_WIN.Form_Load = p_win::Form_Load;
  P_WIN.Form_QueryUnload = p_win::Form_QueryUnload;
  P_WIN.Form_Unload = p_win::Form_Unload;
  wire_palette();
  wire_tools();
  wire_persist();
  wire_commands();
}

}  // namespace kiso
