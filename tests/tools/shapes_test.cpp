// Line, Box, Boxfill, Reverse, Circle and Circlefill at x1.
#include "tools_stage.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

void stroke(int tool, float x1, float y1, float x2, float y2) {
  select_tool(tool);
  press(x1, y1);
  drag(x2, y2);
  release(x2, y2);
}

// --- Line

TEST(Line, PaintsBothEndPixelsWithThePenOfOne) {
  stage::stage(plain(7, 3));
  stroke(3, 1, 1, 5, 1);
  EXPECT_PIC({".......", ".#####.", "......."});
}

TEST(Line, GoesUpToTheLeftAsWell) {
  stage::stage(plain(5, 5));
  stroke(3, 4, 4, 1, 1);
  EXPECT_PIC({".....", ".#...", "..#..", "...#.", "....#"});
}

TEST(Line, RubberLineShowsInvertedColoursWithoutTheStart) {
  stage::stage(plain(6, 1, 'y'));
  select_tool(3);
  press(1, 0);
  drag(4, 0);
  // The start is the dot of the press, the rest the line; white over yellow in XOR is blue.
  EXPECT_DRAW({"ybbbby"});
  EXPECT_PIC({"yyyyyy"});
}

TEST(Line, ClickPaintsOneDot) {
  stage::stage(plain(3, 3));
  select_tool(3);
  click(1, 1);
  EXPECT_PIC({"...", ".#.", "..."});
}

TEST(Line, ReachesTheReleasePointAndLeavesNoRubberBehind) {
  stage::stage(plain(7, 3, 'y'));
  select_tool(3);
  press(1, 1);
  drag(5, 0);
  release(5, 1);
  EXPECT_PIC({"yyyyyyy", "y#####y", "yyyyyyy"});
}

TEST(Line, TakesTheColourOfThePress) {
  stage::stage(plain(4, 1));
  target_colour('r');
  stroke(3, 0, 0, 3, 0);
  EXPECT_PIC({"rrrr"});
}

TEST(Line, IsAsWideAsThePen) {
  stage::stage(plain(9, 7));
  pen(3);
  stroke(3, 3, 3, 5, 3);
  // Along the middle of the line, where no cap shows, three rows are inked.
  const Picture painted = text_of(PIC.Image());
  EXPECT_EQ(painted[1][4], '.');
  for (size_t y = 2; y <= 4; ++y) EXPECT_EQ(painted[y][4], '#');
  EXPECT_EQ(painted[5][4], '.');
}

TEST(Line, LeavesWhatLiesOutsideOfTheView) {
  stage::stage(plain(24, 2));
  view(16, 16);
  stroke(3, 0, 0, 19, 0);
  EXPECT_PIC({"################........", "........................"});
}

// --- Box

TEST(Box, IsAnOutline) {
  stage::stage(plain(6, 5));
  stroke(4, 4, 3, 1, 1);
  EXPECT_PIC({"......", ".####.", ".#..#.", ".####.", "......"});
}

TEST(Box, OutlineHasTheWidthOfThePen) {
  stage::stage(plain(13, 13));
  pen(3);
  stroke(4, 3, 3, 9, 9);
  const Picture painted = text_of(PIC.Image());
  EXPECT_EQ(painted[6], "..###...###..");
}

TEST(Box, RubberOutlineIsInverted) {
  stage::stage(plain(5, 4, 'y'));
  select_tool(4);
  press(1, 0);
  drag(3, 2);
  EXPECT_DRAW({"ybbby", "ybyby", "ybbby", "yyyyy"});
}

// --- Boxfill

TEST(Boxfill, HoldsBothCorners) {
  stage::stage(plain(5, 4));
  stroke(5, 1, 1, 3, 2);
  EXPECT_PIC({".....", ".###.", ".###.", "....."});
}

TEST(Boxfill, FromTheBottomRightIsTheSameBox) {
  stage::stage(plain(5, 4));
  stroke(5, 3, 2, 1, 1);
  EXPECT_PIC({".....", ".###.", ".###.", "....."});
}

TEST(Boxfill, KeepsItsSizeWithAWidePen) {
  stage::stage(plain(5, 4));
  pen(9);
  stroke(5, 1, 1, 3, 2);
  EXPECT_PIC({".....", ".###.", ".###.", "....."});
}

TEST(Boxfill, RubberBoxIsFilled) {
  stage::stage(plain(4, 3, 'y'));
  select_tool(5);
  press(0, 0);
  drag(2, 1);
  EXPECT_DRAW({"bbby", "bbby", "yyyy"});
}

TEST(Boxfill, ShowsItsSizeWhileItIsDragged) {
  stage_with_status(plain(20, 20));
  select_tool(5);
  press(10, 10);
  EXPECT_EQ(INF_SUB.Caption(), "Size X= 1 Y= 1");
  drag(2, 13);
  EXPECT_EQ(INF_SUB.Caption(), "Size X= 9 Y= 4");
  release(2, 13);
  EXPECT_EQ(INF_SUB.Caption(), " ");
}

TEST(Boxfill, BlankTakesTheSizeAwayToo) {
  stage_with_status(plain(20, 20));
  select_tool(5);
  press(10, 10);
  drag(2, 13);
  key(' ');
  EXPECT_EQ(INF_SUB.Caption(), " ");
  EXPECT_DRAW(plain(20, 20));
}

TEST(Boxfill, RightButtonCancels) {
  stage_with_status(plain(4, 4));
  select_tool(5);
  press(0, 0);
  drag(2, 2);
  press(2, 2, 2);
  EXPECT_DRAW(plain(4, 4));
  EXPECT_EQ(INF_SUB.Caption(), " ");
  release(2, 2, 2);
  release(2, 2);  // finds no stroke
  EXPECT_PIC(plain(4, 4));
}

// --- Reverse

TEST(Reverse, InvertsTheRectangle) {
  stage::stage({".#yb", "....", ".#yb"});
  stroke(16, 0, 0, 3, 1);
  EXPECT_PIC({"#.by", "####", ".#yb"});
}

TEST(Reverse, TwiceRestores) {
  const Picture picture = {".#ybr", "grb#.", ".#ybg"};
  stage::stage(picture);
  stroke(16, 0, 0, 3, 1);
  stroke(16, 3, 1, 0, 0);
  EXPECT_PIC(picture);
}

TEST(Reverse, TakesNoNoticeOfTheTargetColour) {
  stage::stage(plain(3, 1, 'y'));
  target_colour('r');
  stroke(16, 0, 0, 1, 0);
  EXPECT_PIC({"bby"});
}

TEST(Reverse, ShowsItsSize) {
  stage_with_status(plain(20, 20));
  select_tool(16);
  press(4, 4);
  drag(5, 15);
  EXPECT_EQ(INF_SUB.Caption(), "Size X= 2 Y= 12");
  release(5, 15);
  EXPECT_EQ(INF_SUB.Caption(), " ");
}

// --- Circle: half axes of 2 to the right and down give 2 * 2 + 1 columns and rows, to the left and up 2 * 2 - 1

const Picture FIVE_WIDE = {".......", "..###..", ".#...#.", ".#...#.", ".#...#.", "..###..", "......."};
const Picture FIVE_WIDE_FULL = {".......", "..###..", ".#####.", ".#####.", ".#####.", "..###..", "......."};
const Picture THREE_WIDE = {".......", ".......", "...#...", "..#.#..", "...#...", ".......", "......."};

TEST(Circle, HasThePressAsItsMiddle) {
  stage::stage(plain(7, 7));
  stroke(6, 3, 3, 5, 5);
  EXPECT_PIC(FIVE_WIDE);
}

TEST(Circle, IsSmallerByAPixelOnEachSideWhenDraggedUpToTheLeft) {
  stage::stage(plain(7, 7));
  stroke(6, 3, 3, 1, 1);
  EXPECT_PIC(THREE_WIDE);
}

TEST(Circle, HasTwoHalfAxes) {
  stage::stage(plain(7, 5));
  stroke(6, 3, 2, 5, 2);
  // No height but the middle row: five columns, one row.
  EXPECT_PIC({".......", ".......", ".#####.", ".......", "......."});
}

TEST(Circle, ClickPaintsNothing) {
  stage::stage(plain(5, 5));
  select_tool(6);
  click(2, 2);
  EXPECT_PIC(plain(5, 5));
}

TEST(Circle, DottedDiagonalsMarkTheMiddleWhileItIsHeld) {
  stage::stage(plain(7, 7));
  select_tool(6);
  press(3, 3);
  // They start 2000 pixels away, 3 on and 3 off: the middle is pixel 2000 of each, the third of three that are on.
  // There both meet, and twice in XOR is nothing.
  EXPECT_DRAW({".......", ".#...#.", "..#.#..", ".......", ".......", ".......", "......."});
  release(3, 3);
  EXPECT_DRAW(plain(7, 7));
}

TEST(Circle, PaintsTheRubberEllipseOfTheLastMove) {
  stage::stage(plain(7, 7));
  select_tool(6);
  press(3, 3);
  drag(5, 5);
  release(6, 6);
  EXPECT_PIC(FIVE_WIDE);
}

TEST(Circlefill, IsFilledInOneColour) {
  stage::stage(plain(7, 7));
  stroke(7, 3, 3, 5, 5);
  EXPECT_PIC(FIVE_WIDE_FULL);
}

TEST(Circlefill, PaintsItsRimAsWideAsThePen) {
  stage::stage(plain(17, 17));
  pen(5);
  stroke(7, 8, 8, 12, 12);
  // Nine columns and rows, and two more of the pen on each side.
  const Picture painted = text_of(PIC.Image());
  EXPECT_EQ(painted[8], "..#############..");
}

TEST(Circlefill, NextShapeIsNotFilled) {
  stage::stage(plain(7, 7));
  stroke(7, 3, 3, 3, 3);
  EXPECT_EQ(DRAW.FillStyle(), 1);
  stroke(4, 1, 1, 5, 5);
  EXPECT_PIC({".......", ".#####.", ".#...#.", ".#...#.", ".#...#.", ".#####.", "......."});
}

// --- all of them

TEST(Shapes, AreUndoneAsOneStroke) {
  const Picture picture = {".#ybr", "grb#.", ".#ybg", "#####"};
  stage::stage(picture);
  for (const int tool : {3, 4, 5, 6, 7, 16}) {
    stroke(tool, 2, 2, 4, 3);
    EXPECT_NE(text_of(PIC.Image()), picture) << tool;
    key(' ');
    EXPECT_PIC(picture) << tool;
  }
}

TEST(Shapes, HaveNoTimer) {
  stage::stage(plain(9, 9));
  for (const int tool : {3, 4, 5, 6, 7, 16, 27, 29, 31}) {
    select_tool(tool);
    press(4, 4);
    drag(6, 7);
    const Picture held = text_of(DRAW.target());
    forms::enter([] { Timer1.Tick.fire(-1); });
    EXPECT_EQ(text_of(DRAW.target()), held) << tool;
    press(6, 7, 2);
  }
}

TEST(Shapes, ScrolledViewCommitsAtItsPlace) {
  stage::stage(plain(24, 3));
  view(16, 16);
  forms::enter([] { X_SC.Value(3); });
  stroke(3, 0, 1, 2, 1);
  EXPECT_PIC({"........................", "...###..................", "........................"});
}

}  // namespace
