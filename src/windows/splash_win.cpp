#include "windows/splash_win.h"

namespace kiso {

SplashWin SPLASH_WIN;

namespace {

constexpr int W = 360, H = 120;

void design_splash() {
  const int left = (desktop().screen_w - W) / 2;
  const int top = (desktop().screen_h - H) / 2;
  SPLASH_WIN.design(left * TWIPS, top * TWIPS, W, H, "Kiso");
  SPLASH_WIN.Title.design(20, 22, W - 40, 28);
  SPLASH_WIN.Title.font({.name = "", .size = 15, .bold = true});
  SPLASH_WIN.Status.design(20, 62, W - 40, 40);
}

}  // namespace

SplashWin::SplashWin() : Window("SPLASH_WIN", Border::splash, Scale::pixels, design_splash) {}

void splash_win::show_status(const std::string& text) {
  SPLASH_WIN.Status.Caption(text);
  desktop().record("splash", text);
  SPLASH_WIN.Refresh();
}

}  // namespace kiso
