// The working colour and the two pens, the level bars.
#include "colour/colour.h"
#include "colour/colour_test.h"

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

}  // namespace
}  // namespace kiso
