#include "windows/help_win.h"

#include <algorithm>

#include "frame/rooms.h"
#include "windows/help_page.h"
#include "windows/windows.h"

namespace kiso {

namespace {

constexpr int W = 600, H = 560;

// Beside the palettes, on the side that has more room, and no wider than that.
void place_help() {
  double palettes_left = screen_width();
  double palettes_right = 0;
  for (const Window* palette : ROOMS.side_windows) {
    palettes_left = std::min(palettes_left, palette->Left());
    palettes_right = std::max(palettes_right, palette->Left() + palette->Width());
  }
  const double room_right = screen_width() - palettes_right;
  const double width = std::min(HELP_WIN.Width(), std::max(palettes_left, room_right));
  const double left = room_right > palettes_left ? palettes_right : palettes_left - width;
  HELP_WIN.Move(left, (screen_height() - HELP_WIN.Height()) / 2, width, HELP_WIN.Height());
}

void design_help() {
  HELP_WIN.design(0, 0, W, H, "Kiso Help");
  HELP_WIN.escape_closes = true;
  HELP_WIN.Text1.design(0, 0, W, H);
  HELP_WIN.Text1.multi_line = true;
  HELP_WIN.Text1.read_only = true;
  HELP_WIN.Text1.BackColor(0x80000005);
  HELP_WIN.Text1.accessible_name = "Help";
  HELP_WIN.Text1.Text(HELP_PAGE);
}

void fill_window() { HELP_WIN.Text1.Move(0, 0, HELP_WIN.ScaleWidth(), HELP_WIN.ScaleHeight()); }

}  // namespace

HelpWin HELP_WIN;

HelpWin::HelpWin() : Window("HELP_WIN", Border::sizable, Scale::pixels, design_help) { Form_Resize = fill_window; }

void HELP_SHOW() {
  if (!HELP_WIN.Loaded()) place_help();
  HELP_WIN.Show();
  HELP_WIN.SetFocus();
}

}  // namespace kiso
