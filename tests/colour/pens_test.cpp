// The working colour and the two pens, the level bars, the progress of a long command.
#include "colour/colour.h"
#include "colour/colour_test.h"
#include "windows/wait_win.h"
#include "windows/windows.h"

namespace kiso {
namespace {

struct Pens : ColourTest {};

TEST_F(Pens, TheProgramBeginsWithBlackOnWhite) {
  EXPECT_EQ(target(), (Three{0, 0, 0}));
  EXPECT_EQ(destination(), (Three{255, 255, 255}));
  EXPECT_EQ(COL_WIN.TAR_COL.BackColor(), RGB(0, 0, 0));
  EXPECT_EQ(COL_WIN.DES_COL.BackColor(), RGB(255, 255, 255));
}

TEST_F(Pens, TheSelectedPenIsLoadedForWork) {
  set_target(1, 2, 3);
  set_destination(4, 5, 6);
  COL_LOAD_WORK();
  EXPECT_EQ(working(), (Three{1, 2, 3}));
  COL_TARGET = 1;
  COL_LOAD_WORK();
  EXPECT_EQ(working(), (Three{4, 5, 6}));
}

TEST_F(Pens, AnUpdateClampsBeforeAnythingShowsIt) {
  COL_PANE = 1;
  CUR_R = 300, CUR_G = -5, CUR_B = 7;
  COL_UPDATE();
  EXPECT_EQ(working(), (Three{255, 0, 7}));
  EXPECT_EQ(target(), (Three{255, 0, 7}));
  EXPECT_EQ(rgb_bars(), (Three{255, 0, 7}));
  EXPECT_EQ(COL_WIN.TAR_COL.BackColor(), RGB(255, 0, 7));
  EXPECT_EQ(destination(), (Three{255, 255, 255}));
}

TEST_F(Pens, AnUpdateGoesToTheSelectedPenAlone) {
  COL_TARGET = 1;
  CUR_R = 10, CUR_G = 20, CUR_B = 30;
  COL_UPDATE();
  EXPECT_EQ(destination(), (Three{10, 20, 30}));
  EXPECT_EQ(COL_WIN.DES_COL.BackColor(), RGB(10, 20, 30));
  EXPECT_EQ(target(), (Three{0, 0, 0}));
  EXPECT_EQ(COL_WIN.TAR_COL.BackColor(), RGB(0, 0, 0));
}

TEST_F(Pens, AnUpdateShowsHueAndSaturationRounded) {
  COL_PANE = 1;
  CUR_R = 255, CUR_G = 0, CUR_B = 1;
  COL_UPDATE();
  EXPECT_EQ(hsv_bars(), (Three{360, 255, 255}));  // 359.76 degrees
  CUR_R = 255, CUR_G = 128, CUR_B = 128;
  COL_UPDATE();
  EXPECT_EQ(hsv_bars(), (Three{0, 127, 255}));
}

TEST_F(Pens, AClosedPaneKeepsItsBars) {
  for (const int16_t pane : {0, 2}) {
    COL_PANE = pane;
    CUR_R = 200, CUR_G = 100, CUR_B = 50;
    COL_UPDATE();
    EXPECT_EQ(rgb_bars(), (Three{0, 0, 0}));
    EXPECT_EQ(hsv_bars(), (Three{0, 0, 0}));
    EXPECT_EQ(COL_WIN.TAR_COL.BackColor(), RGB(200, 100, 50));
    EXPECT_EQ(GetPixel(COL_WIN.COL_RGB, 0, 0), QBColor(12));
  }
}

TEST_F(Pens, AnUpdateTouchesNeitherToolNorStatusLine) {
  CUR_TOOL = 1000;
  INF_CMD.Caption("as it was");
  STATUS_ON = 1;
  COL_UPDATE();
  EXPECT_EQ(CUR_TOOL, 1000);
  EXPECT_EQ(INF_CMD.Caption(), "as it was");
}

// The bands lie one under the other, each as long as its component, the rest wiped.
TEST_F(Pens, LevelBarsShowTheThreeComponents) {
  Surface& s = COL_WIN.COL_RGB.target();
  const int W = s.width();
  const int third = s.height() / 3;
  ASSERT_EQ(third * 3, s.height());
  COL_DRAW_BARS(255, 255, 255);
  COL_DRAW_BARS(255, 128, 0);
  const int half = to_int32(W * (128 / 255.0));
  const Colour face = GetPixel(s, W - 1, s.height() - 1);
  for (int x = 0; x < W; ++x) {
    for (int y = 0; y < s.height(); ++y) {
      const Colour expected = y < third ? QBColor(12) : y < 2 * third && x < half ? QBColor(10) : face;
      ASSERT_EQ(GetPixel(s, x, y), expected) << x << " " << y;
    }
  }
  COL_DRAW_BARS(0, 0, 255);
  EXPECT_EQ(GetPixel(s, 0, 0), face);
  EXPECT_EQ(GetPixel(s, W - 1, s.height() - 1), QBColor(9));
}

struct Progress : ColourTest {
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
  EXPECT_FALSE(CMD_WIN.Enabled());
  EXPECT_FALSE(COL_WIN.Enabled());
  EXPECT_NEAR(2 * WAIT_WIN.Left() + WAIT_WIN.Width(), screen_width(), TWIPS);
  EXPECT_NEAR(2 * WAIT_WIN.Top() + WAIT_WIN.Height(), screen_height(), TWIPS);
  WAIT_WIN.Unload();
  EXPECT_TRUE(P_WIN.Enabled());
  EXPECT_TRUE(CMD_WIN.Enabled());
  EXPECT_TRUE(COL_WIN.Enabled());
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
struct CountingDesktop : QuietDesktop {
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

TEST_F(ColourTest, ManyStepsReachTheScreenNoMoreOftenThanItCanShow) {
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
