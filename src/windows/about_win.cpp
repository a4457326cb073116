#include "windows/about_win.h"
#include "windows/windows.h"

#include "frame/p_win.h"
#include "windows/splash_win.h"

namespace kiso {

namespace {

constexpr int W = 264, H = 132;

void design_about() {
  ABOUT_WIN.design(0, 0, W, H, "Kiso");
  ABOUT_WIN.Icon.design(24, 24, 48, 48);
  ABOUT_WIN.Icon.Cell("KISO_ICO", 0, 0);
  ABOUT_WIN.Icon.accessible_name = "Kiso";
  ABOUT_WIN.Title.design(90, 24, W - 106, 24);
  ABOUT_WIN.Title.font({.name = "", .size = 14, .bold = true});
  ABOUT_WIN.Title.Caption("Paint Tool");
  ABOUT_WIN.Version.design(90, 52, W - 106, 20);
  ABOUT_WIN.Version.Caption(VERSION);
  ABOUT_WIN.Command1.design((W - 80) / 2.0, H - 40, 80, 26);
  ABOUT_WIN.Command1.Caption("OK");
  ABOUT_WIN.Command1.is_default = true;
  ABOUT_WIN.Command1.is_cancel = true;
}

void Command1_Click() { ABOUT_WIN.Unload(); }

}  // namespace

AboutWin ABOUT_WIN;

AboutWin::AboutWin() : Window("ABOUT_WIN", Border::dialog, Scale::pixels, design_about) {
  Command1.Click = Command1_Click;
}

void ABOUT_SHOW() {
  ABOUT_WIN.Move(P_WIN.Left() + (P_WIN.Width() - ABOUT_WIN.Width()) / 2,
                 P_WIN.Top() + (P_WIN.Height() - ABOUT_WIN.Height()) / 2);
  ABOUT_WIN.Show(&P_WIN);
  ABOUT_WIN.Command1.SetFocus();
}

}  // namespace kiso
