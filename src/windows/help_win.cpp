#include "windows/help_win.h"
#include "windows/windows.h"

#include "windows/help_page.h"

namespace kiso {

namespace {

constexpr int W = 600, H = 560;

void design_help() {
  HELP_WIN.design((screen_width() - W * TWIPS) / 2, (screen_height() - H * TWIPS) / 2, W, H, "Kiso Help");
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
  HELP_WIN.Show();
  HELP_WIN.SetFocus();
}

}  // namespace kiso
