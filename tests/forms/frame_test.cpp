// Windows and the frames that the display puts round them.
#include <gtest/gtest.h>

#include "platform/forms/runtime.h"

namespace {

using namespace forms;

int resizes = 0;

void lay_out();
struct Framed : Window {
  Framed() : Window("FRAMED", Border::sizable_tool, Scale::pixels, lay_out) {
    Form_Resize = [] { ++resizes; };
  }
} window;
void lay_out() { window.design(150, 300, 200, 100); }

// A display whose window manager's frame is known, or believed, to have that size.
class Frames : public testing::Test {
 protected:
  Frames() { use_desktop(&desktop_); }
  ~Frames() override {
    reset_runtime();
    use_desktop(nullptr);
  }
  void expect_frame(int w, int h) { desktop_.frame_w = w, desktop_.frame_h = h; }
  Desktop desktop_;
};

TEST_F(Frames, DesignedInsideHoldsWhateverTheFrame) {
  expect_frame(2, 25);
  window.Load();
  EXPECT_EQ(window.Width(), 202 * TWIPS);
  window.framed(10, 30);
  EXPECT_EQ(window.ScaleWidth(), 200);
  EXPECT_EQ(window.ScaleHeight(), 100);
  EXPECT_EQ(window.Width(), 210 * TWIPS);
  EXPECT_EQ(window.Height(), 130 * TWIPS);
  EXPECT_EQ(resizes, 0);
}

TEST_F(Frames, SizeThatTheProgramGaveHoldsWithItsFrame) {
  window.Width(300 * TWIPS);
  window.Height(200 * TWIPS);
  resizes = 0;
  window.framed(10, 30);
  EXPECT_EQ(window.Width(), 300 * TWIPS);
  EXPECT_EQ(window.Height(), 200 * TWIPS);
  EXPECT_EQ(window.ScaleWidth(), 290);
  EXPECT_EQ(window.ScaleHeight(), 170);
  EXPECT_EQ(resizes, 1);
}

TEST_F(Frames, SizeThatTheUserGaveCountsItsFrame) {
  window.Width(300 * TWIPS);
  window.framed(10, 30);
  window.inside(400, 250);
  EXPECT_EQ(window.Width(), 410 * TWIPS);
  EXPECT_EQ(window.Height(), 280 * TWIPS);
}

TEST_F(Frames, SavedSizeComesBackStartAfterStart) {
  double width = 4321;  // no whole pixels
  double height = 3210;
  for (int start = 0; start < 5; ++start) {
    expect_frame(0, start);  // the frame is learned anew each time, from a guess
    window.Load();
    window.Width(width);
    window.Height(height);
    window.framed(10, 30);
    EXPECT_EQ(window.Width(), 4321);
    EXPECT_EQ(window.Height(), 3210);
    width = window.Width();
    height = window.Height();
    window.Unload();
  }
}

TEST_F(Frames, SplashHasNone) {
  static void (*design_splash)() = nullptr;
  struct Splash : Window {
    Splash() : Window("SPLASH", Border::splash, Scale::pixels, [] { design_splash(); }) {}
  } static splash;
  design_splash = [] { splash.design(0, 0, 200, 100); };
  expect_frame(10, 30);
  EXPECT_EQ(splash.Width(), 200 * TWIPS);
}

}  // namespace
