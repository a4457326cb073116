#include "frame/preview.h"

#include "frame/p_win.h"
#include "frame/p_win_events.h"

namespace kiso {

namespace {

void show_backing_store() { BitBlt(DRAW, 0, 0, VIEW_DOT(1), VIEW_DOT(2), M_REDRAW, 0, 0); }

}  // namespace

void begin_preview() {
  M_REDRAW.Move(0, 0, DRAW.Width(), DRAW.Height());
  BitBlt(M_REDRAW, 0, 0, VIEW_DOT(1), VIEW_DOT(2), DRAW, 0, 0);
  PREVIEW_ON = 1;
  DRAW.AutoRedraw(false);
}

void end_preview() {
  PREVIEW_ON = 0;
  DRAW.AutoRedraw(true);
  show_backing_store();
}

bool drop_preview() {
  if (PREVIEW_ON != 1) return false;
  DRAW.AutoRedraw(true);
  PREVIEW_ON = 0;
  return true;
}

void cover_preview() { DRAW.AutoRedraw(true); }

bool preview_shows() { return !DRAW.AutoRedraw(); }

// The window has been uncovered. With AutoRedraw on the box paints itself and this event does not come.
void p_win::DRAW_Paint() { show_backing_store(); }

}  // namespace kiso
