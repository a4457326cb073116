// The view on the picture: its size, its scroll bars, what a commit reads back, and zooming.
#include "stage.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

Picture blank(int w, int h) { return Picture(static_cast<size_t>(h), std::string(static_cast<size_t>(w), '.')); }

TEST(View, APictureNarrowerThanTheWindowHasNoScrollBarThere) {
  start();
  view(100, 100);
  show(blank(30, 200));
  EXPECT_FALSE(X_SC.Enabled());
  EXPECT_EQ(X_SC.Max(), 0);
  EXPECT_EQ(VIEW_PIX(1), 30);
  EXPECT_EQ(DRAW.ScaleWidth(), 30);
  EXPECT_TRUE(Y_SC.Enabled());
  EXPECT_EQ(Y_SC.Max(), 100);
  zoom(2);
  EXPECT_EQ(DRAW.ScaleWidth(), 60);
  EXPECT_EQ(X_SC.Max(), 0);
}

TEST(View, AClickBesideTheSliderOfABarScrollsByOneView) {
  start();
  view(100, 60);
  show(blank(300, 200));
  EXPECT_EQ(X_SC.LargeChange(), 100);
  EXPECT_EQ(Y_SC.LargeChange(), 60);
  zoom(4);
  EXPECT_EQ(X_SC.LargeChange(), VIEW_PIX(1));
  EXPECT_EQ(Y_SC.LargeChange(), VIEW_PIX(2));
  EXPECT_LT(Y_SC.LargeChange(), 20);
}

TEST(View, AnOddWindowLosesOneColumnAndScrollingReachesTheRest) {
  start();
  view(101, 100);
  show(blank(150, 100));
  EXPECT_EQ(VIEW_PIX(1), 100);
  EXPECT_EQ(X_SC.Max(), 50);
  forms::enter([] { X_SC.Value(X_SC.Max()); });
  EXPECT_EQ(VIEW_ORG(1) + VIEW_PIX(1), PIC_SIZE(1));
}

TEST(View, AWholePictureMayBeOdd) {
  start();
  view(100, 100);
  show(blank(31, 17));
  EXPECT_EQ(VIEW_PIX(1), 31);
  EXPECT_EQ(VIEW_PIX(2), 17);
}

TEST(View, APictureOfJustTheWindowsSizeKeepsItsBarsEnabled) {
  start();
  view(100, 60);
  show(blank(100, 60));
  EXPECT_TRUE(X_SC.Enabled());
  EXPECT_EQ(X_SC.Max(), 0);
}

TEST(View, AtX4TheThirdColumnAndTheFirstRowOfABlockCount) {
  stage::stage(blank(4, 2));
  zoom(4);
  // One screen pixel each: block 0 at its column 1, block 1 at its column 2, block 2 at its column 2 but in its second
  // row.
  forms::enter([] {
    SetPixelV(DRAW, 1, 0, 0);
    SetPixelV(DRAW, 6, 0, 0);
    SetPixelV(DRAW, 10, 1, 0);
    VIEW_COMMIT();
  });
  EXPECT_PIC({".#..", "...."});
}

TEST(View, ACommitOfARectangleReadsThatRectangleAlone) {
  stage::stage(blank(6, 3));
  forms::enter([] {
    for (int x = 0; x < 6; ++x) SetPixelV(DRAW, x, 1, 0);
    double x1 = 1, y1 = -5, x2 = 3, y2 = 99;
    VIEW_COMMIT_RECT(x1, y1, x2, y2);
    EXPECT_EQ(y1, 0);  // clamped in place
    EXPECT_EQ(y2, 2);
  });
  EXPECT_PIC({"......", ".###..", "......"});
}

TEST(View, ACommitOfARectangleAtX2ReadsWholeBlocks) {
  stage::stage(blank(6, 4));
  zoom(2);
  forms::enter([] {
    for (int y = 0; y < 8; ++y) {
      for (int x = 0; x < 12; ++x) SetPixelV(DRAW, x, y, 0);
    }
    double x1 = 2, y1 = 2, x2 = 5, y2 = 5;
    VIEW_COMMIT_RECT(x1, y1, x2, y2);
  });
  // The column loop takes in the column at the right edge as well; the rows end with the rectangle.
  EXPECT_PIC({"......", ".###..", ".###..", "......"});
}

// A rectangle that cuts blocks: its corners stay fractions of picture pixels, and the sums with the origin are rounded,
// ties to even.
TEST(View, ACommitOfACutRectangleRoundsTheSums) {
  for (const int origin : {0, 1}) {
    start();
    view(32, 32);
    show(blank(20, 20));
    zoom(4, origin, origin);
    forms::enter([] {
      const struct {
        int column;
        char letter;
      } columns[] = {{7, '#'}, {11, 'r'}, {15, 'b'}};  // 5 and half a block, then a block each
      for (const auto& [column, letter] : columns) {
        for (int y = 6; y <= 9; ++y) SetPixelV(DRAW, column, y, colour_of(letter));
      }
      double x1 = 5, y1 = 6, x2 = 10, y2 = 9;
      VIEW_COMMIT_RECT(x1, y1, x2, y2);
    });
    // Columns from round(1.25 + origin) through round(2.75 + origin), one row at round(1.5 + origin), which is 2 twice.
    Picture wanted = blank(20, 20);
    wanted[2].replace(static_cast<size_t>(1 + origin), 3, "#rb");
    EXPECT_PIC(wanted);
  }
}

TEST(View, ACommitOutsideTheViewChangesNothing) {
  stage::stage(blank(6, 3));
  forms::enter([] {
    double x1 = 40, y1 = 40, x2 = 50, y2 = 50;
    VIEW_COMMIT_RECT(x1, y1, x2, y2);
  });
  EXPECT_PIC(blank(6, 3));
}

TEST(View, AZoomPutsTheClickedPixelInTheMiddle) {
  start();
  view(80, 80);
  show(blank(200, 200));
  int16_t x = 0, y = 0;
  VIEW_CENTER(40, 44, 4, x, y);  // 20 pixels fit at x4
  EXPECT_EQ(x, 30);
  EXPECT_EQ(y, 34);
  VIEW_CENTER(3, 3, 4, x, y);
  EXPECT_EQ(x, 0);
}

TEST(View, SurvivesAPictureSmallerThanItsSizeSays) {
  start();
  view(900, 700);
  show(blank(1000, 1000));
  forms::enter([] {
    PIC.Width(640);
    PIC.Height(480);
    X_SC.Value(X_SC.Max());
    VIEW_FIT();
    VIEW_COMMIT();
  });
  EXPECT_EQ(VIEW_PIX(1), 900);
  EXPECT_EQ(VIEW_PIX(2), 700);
}

TEST(View, AWindowTooSmallLeavesTheLayoutAsItWas) {
  start();
  view(100, 100);
  show(blank(200, 200));
  forms::enter([] { P_WIN.inside(30, 300); });
  EXPECT_EQ(VIEW_PIX(1), 100);
  EXPECT_EQ(VIEW_PIX(2), 100);
}

TEST(View, TheStatusLineTakesRoomAndItsToggleGivesItBack) {
  start();
  view(100, 100);
  show(blank(200, 200));
  const int was_on = STATUS_ON;
  const double bar = X_SC.Top();
  forms::enter([] { RB.Click.fire(-1); });
  EXPECT_EQ(STATUS_ON, 1 - was_on);
  EXPECT_EQ(INF_CMD.Visible(), was_on == 0);
  EXPECT_EQ(RB.cell_y(), STATUS_ON * 14);
  EXPECT_EQ(X_SC.Top() - bar, was_on == 1 ? STATUS_H : -STATUS_H);
  EXPECT_EQ(STATUS_H, INF_POSX.Height() + 5);
}

}  // namespace
