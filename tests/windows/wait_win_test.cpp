// The progress of a long command.
#include "windows/wait_win.h"

#include <gtest/gtest.h>

#include <chrono>

#include "frame/p_win.h"
#include "frame/rooms.h"
#include "windows/windows.h"

namespace kiso {
namespace {

// Stands in for the palettes, which are rooms above.
struct SideWindow : Window {
  explicit SideWindow(const char* name) : Window(name, Border::tool, Scale::pixels, [] {}) {}
};
SideWindow first("first"), second("second");

struct QuietTest : testing::Test {
  Desktop screen;
  QuietTest() {
    static constexpr Window* SIDE_WINDOWS[] = {&first, &second};
    use_desktop(&screen);
    ROOMS.side_windows = SIDE_WINDOWS;
  }
  ~QuietTest() override { use_desktop(nullptr); }
};

struct Progress : QuietTest {
  static int filled() {
    Surface& bar = WAIT_WIN.BAR.target();
    int n = 0;
    while (n < bar.width() && GetPixel(bar, n, bar.height() / 2) == QBColor(11)) ++n;
    return n;
  }
  Progress() { WAIT_SHOW("処理中"); }
};

TEST_F(Progress, TheBarGrowsAndEmpties) {
  const double W = WAIT_WIN.BAR.ScaleWidth();
  WAIT_PROGRESS(0, 0);  // the total is not looked at
  EXPECT_EQ(filled(), 0);
  WAIT_PROGRESS(1, 4);
  EXPECT_NEAR(filled(), W / 4, 1);
  WAIT_PROGRESS(2, 4);
  EXPECT_NEAR(filled(), W / 2, 1);
  WAIT_PROGRESS(4, 3);
  EXPECT_EQ(filled(), W);
  WAIT_PROGRESS(0, 2);
  EXPECT_EQ(filled(), 0);
}

TEST_F(Progress, NothingOutOfNothingIsADivisionByZero) {
  try {
    WAIT_PROGRESS(1, 0);
    FAIL() << "no error";
  } catch (const RuntimeError& e) {
    EXPECT_EQ(e.number, 11);
  }
}

TEST_F(Progress, TellsWhatIsBeingDone) {
  EXPECT_TRUE(WAIT_WIN.Visible());
  EXPECT_EQ(WAIT_WIN.owner(), &P_WIN);
  EXPECT_EQ(WAIT_WIN.FRAME.Caption(), "処理中");
  WAIT_SHOW("表示中");
  EXPECT_EQ(WAIT_WIN.FRAME.Caption(), "表示中");
}

TEST_F(Progress, TheOtherWindowsTakeNoEventsMeanwhile) {
  EXPECT_EQ(WAIT_WIN.Caption(), "Kiso 実行中");
  EXPECT_FALSE(P_WIN.Enabled());
  EXPECT_FALSE(first.Enabled());
  EXPECT_FALSE(second.Enabled());
  EXPECT_NEAR(2 * WAIT_WIN.Left() + WAIT_WIN.Width(), screen_width(), TWIPS);
  EXPECT_NEAR(2 * WAIT_WIN.Top() + WAIT_WIN.Height(), screen_height(), TWIPS);
  WAIT_WIN.Unload();
  EXPECT_TRUE(P_WIN.Enabled());
  EXPECT_TRUE(first.Enabled());
  EXPECT_TRUE(second.Enabled());
}

TEST_F(Progress, WithinAPixelItStaysAsItIs) {
  const double W = WAIT_WIN.BAR.ScaleWidth();
  WAIT_PROGRESS(0, 1);
  WAIT_PROGRESS(W / 2, W);
  WAIT_PROGRESS(W / 2 + 0.25, W);
  EXPECT_EQ(filled(), W / 2 + 1);
  WAIT_PROGRESS(1, W);  // what is filled stays filled
  EXPECT_EQ(filled(), W / 2 + 1);
}

TEST_F(Progress, StartsAnewWithTheWindow) {
  WAIT_PROGRESS(0, 2);
  WAIT_PROGRESS(2, 2);
  WAIT_WIN.Unload();
  WAIT_SHOW("次の処理");
  WAIT_PROGRESS(1, 2);
  EXPECT_NEAR(filled(), WAIT_WIN.BAR.ScaleWidth() / 2, 1);
}

// A peer that counts how often the bar is brought to the screen; nothing else is, once the window shows.
struct CountingDesktop : Desktop {
  int bar = 0, window = 0, calls = 0;
  struct CountingPeer : Peer {
    int& painted;
    explicit CountingPeer(int& n) : painted(n) {}
    void update(uint32_t /*changes*/) override {}
    void paint_now() override { ++painted; }
  };
  std::unique_ptr<Peer> show(Window& w) override {
    return &w == &WAIT_WIN ? std::make_unique<CountingPeer>(window) : nullptr;
  }
  std::unique_ptr<Peer> show(Control& control) override {
    return &control == &WAIT_WIN.BAR ? std::make_unique<CountingPeer>(bar) : nullptr;
  }
  void record_progress(double /*done*/, double /*total*/) override { ++calls; }
};

TEST_F(QuietTest, ManyStepsReachTheScreenNoMoreOftenThanItCanShow) {
  CountingDesktop counting;
  use_desktop(&counting);
  WAIT_SHOW("処理中");
  counting.window = counting.bar = 0;
  constexpr int STEPS = 2000;
  const auto begin = std::chrono::steady_clock::now();
  for (int i = 0; i <= STEPS; ++i) WAIT_PROGRESS(i, STEPS);
  const auto took = std::chrono::steady_clock::now() - begin;
  EXPECT_GE(counting.bar, 1);  // the empty one
  EXPECT_LE(counting.bar, 2 + took / std::chrono::milliseconds(16));
  EXPECT_EQ(counting.window, 0);
  EXPECT_EQ(counting.calls, STEPS + 1);  // who keeps a record hears of all of them
  WAIT_WIN.Unload();
  use_desktop(&screen);
}

}  // namespace
}  // namespace kiso
