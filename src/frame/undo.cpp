// One level of undo, as a swap. The snapshot is taken by the commits (view.cpp), just before PIC changes.
#include "frame/p_win.h"
#include "frame/preview.h"
#include "frame/usr_sub.h"

namespace kiso {

void DROP_STROKE() {
  PEN_DOWN = 0;
  drop_preview();
  p_win::show_info(" ");
  VIEW_REDRAW();
}

void UNDO_SWAP() {
  RUBBER_ON = 0;
  if (EXP_RATE == 1) {
    BitBlt(DRAW, 0, 0, VIEW_DOT(1), VIEW_DOT(2), UNDO, 0, 0);
  } else {
    StretchBlt(DRAW, 0, 0, VIEW_DOT(1), VIEW_DOT(2), UNDO, 0, 0, VIEW_PIX(1), VIEW_PIX(2));
  }
  VIEW_COMMIT();
}

}  // namespace kiso
