// The shapes at expansion: whole blocks, and what they will be in the file.
#include "tools/tools.h"
#include "tools_stage.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

// DRAW's middle of a picture pixel.
float at(int pixel) { return static_cast<float>(EXP_RATE * pixel + EXP_RATE / 2); }

void block_press(int x, int y, int button = 1) { press(at(x), at(y), button); }
void block_drag(int x, int y) { drag(at(x), at(y)); }
void block_release(int x, int y) { release(at(x), at(y)); }
void block_stroke(int tool, int x1, int y1, int x2, int y2) {
  select_tool(tool);
  block_press(x1, y1);
  block_drag(x2, y2);
  block_release(x2, y2);
}

#define EXPECT_BLOCKS(...)                                        \
  do {                                                            \
    EXPECT_PIC(__VA_ARGS__);                                      \
    EXPECT_DRAW(enlarged(stage::Picture(__VA_ARGS__), EXP_RATE)); \
  } while (false)

// --- Pset

TEST(BlockPset, PenIsASquareOfPicturePixels) {
  stage::stage(plain(7, 5));
  zoom(4);
  pen(3);
  select_tool(11001);
  click(13, 9);  // block 3, 2
  EXPECT_BLOCKS({".......", "..###..", "..###..", "..###..", "......."});
}

TEST(BlockPset, EvenPenReachesOneFurtherUpToTheLeft) {
  stage::stage(plain(5, 5));
  zoom(2);
  pen(2);
  select_tool(11001);
  click(4, 5);  // block 2, 2
  EXPECT_BLOCKS({".....", ".##..", ".##..", ".....", "....."});
}

TEST(BlockPset, FastDragLeavesSeparateDotsAndCommitsThemAll) {
  stage::stage(plain(9, 3));
  for (const int strokes_before : {0, 1}) {  // the whole view is read back, then the box of the stroke alone
    show(plain(9, 3));
    zoom(8);
    UNDO_READY = static_cast<int16_t>(strokes_before);
    select_tool(11001);
    block_press(1, 1);
    block_drag(4, 1);
    block_drag(7, 0);
    block_release(7, 0);
    EXPECT_BLOCKS({".......#.", ".#..#....", "........."});
  }
}

TEST(BlockPset, IsCutAtTheEdgesOfTheView) {
  stage::stage(plain(5, 4));
  zoom(4);
  click(1, 1);
  pen(5);
  select_tool(11001);
  block_press(0, 0);
  block_release(0, 0);
  EXPECT_BLOCKS({"###..", "###..", "###..", "....."});
}

TEST(BlockPset, ZoomClickLeavesThePictureAsItIs) {
  stage::stage({".#yb....", "grb.....", "........", "........"});
  zoom(4);
  EXP_TOOL = 11001;
  pen(2);
  select_tool(11001);
  target_colour('.');
  block_press(2, 3);
  block_release(2, 3);
  block_press(2, 3);  // the box of this stroke, 4 to 11, has no edge of a block at x8
  block_release(2, 3);
  const Picture before = text_of(PIC.Image());
  select_tool(10008);
  click(1, 1);
  EXPECT_EQ(EXP_RATE, 8);
  EXPECT_EQ(CUR_TOOL, 11001);
  EXPECT_PIC(before);
}

// --- Boxfill

TEST(BlockBoxfill, HoldsTheBlocksOfBothCorners) {
  stage::stage(plain(6, 4));
  zoom(4);
  block_stroke(11002, 1, 1, 3, 2);
  EXPECT_BLOCKS({"......", ".###..", ".###..", "......"});
}

TEST(BlockBoxfill, HoldsTheBlockOfThePressOnEitherSide) {
  stage::stage(plain(6, 4));
  zoom(8);
  block_stroke(11002, 3, 2, 1, 1);
  EXPECT_BLOCKS({"......", ".###..", ".###..", "......"});
}

TEST(BlockBoxfill, CommitsTheWholeBoxAfterAnEarlierStroke) {
  stage::stage(plain(6, 4));
  zoom(4);
  block_stroke(11002, 5, 3, 5, 3);
  EXPECT_EQ(UNDO_READY, 1);
  block_stroke(11002, 3, 2, 1, 0);
  EXPECT_BLOCKS({".###..", ".###..", ".###..", ".....#"});
  key(' ');
  EXPECT_BLOCKS({"......", "......", "......", ".....#"});
}

TEST(BlockBoxfill, RubberBoxSnapsToBlocks) {
  stage::stage(plain(5, 3, 'y'));
  zoom(4);
  select_tool(11002);
  press(5, 4);  // near the top left of block 1, 1
  EXPECT_DRAW(enlarged({"yyyyy", "ybyyy", "yyyyy"}, 4));
  drag(15, 11);  // bottom right of block 3, 2
  EXPECT_DRAW(enlarged({"yyyyy", "ybbby", "ybbby"}, 4));
  drag(3, 3);
  EXPECT_DRAW(enlarged({"bbyyy", "bbyyy", "yyyyy"}, 4));
  EXPECT_PIC(plain(5, 3, 'y'));
}

TEST(BlockBoxfill, ShowsItsSizeInPicturePixels) {
  stage_with_status(plain(20, 20));
  zoom(4);
  select_tool(11002);
  block_press(10, 10);
  block_drag(12, 3);
  EXPECT_EQ(INF_SUB.Caption(), "Size X= 3 Y= 8");
  block_release(12, 3);
  EXPECT_EQ(INF_SUB.Caption(), " ");
}

TEST(BlockBoxfill, KeepsItsSizeWithAWidePen) {
  stage::stage(plain(6, 4));
  zoom(2);
  pen(9);
  block_stroke(11002, 1, 1, 3, 2);
  EXPECT_BLOCKS({"......", ".###..", ".###..", "......"});
}

// --- Box, Line, Circle, Circlefill: on WORK

TEST(BlockBox, IsAnOutlineOfBlocks) {
  stage::stage(plain(6, 5));
  for (const int rate : {2, 4, 8}) {
    show(plain(6, 5));
    zoom(rate);
    block_stroke(11003, 4, 3, 1, 1);
    EXPECT_BLOCKS({"......", ".####.", ".#..#.", ".####.", "......"});
  }
}

TEST(BlockBox, OutlineHasTheWidthOfThePen) {
  stage::stage(plain(13, 13));
  zoom(2);
  pen(3);
  block_stroke(11003, 3, 3, 9, 9);
  EXPECT_EQ(text_of(PIC.Image())[6], "..###...###..");
  EXPECT_DRAW(enlarged(text_of(PIC.Image()), 2));
}

TEST(BlockLine, PaintsBothEndPixels) {
  stage::stage(plain(5, 5));
  for (const int rate : {2, 4, 8}) {
    show(plain(5, 5));
    zoom(rate);
    block_stroke(11010, 4, 4, 1, 1);
    EXPECT_BLOCKS({".....", ".#...", "..#..", "...#.", "....#"});
  }
}

TEST(BlockLine, RubberLineIsOfInvertedBlocks) {
  stage::stage(plain(5, 2, 'y'));
  zoom(4);
  select_tool(11010);
  block_press(1, 0);
  EXPECT_DRAW(enlarged({"ybyyy", "yyyyy"}, 4));
  block_drag(3, 0);
  EXPECT_DRAW(enlarged({"ybbby", "yyyyy"}, 4));
  block_drag(1, 1);
  EXPECT_DRAW(enlarged({"ybyyy", "ybyyy"}, 4));
  EXPECT_PIC(plain(5, 2, 'y'));
}

TEST(BlockLine, ReachesTheReleasePoint) {
  stage::stage(plain(5, 2, 'y'));
  zoom(4);
  select_tool(11010);
  block_press(0, 0);
  block_drag(3, 1);
  block_release(4, 0);
  EXPECT_BLOCKS({"#####", "yyyyy"});
}

const Picture FIVE_WIDE = {".......", "..###..", ".#...#.", ".#...#.", ".#...#.", "..###..", "......."};
const Picture FIVE_WIDE_FULL = {".......", "..###..", ".#####.", ".#####.", ".#####.", "..###..", "......."};

TEST(BlockCircle, IsAsLargeOnEitherSide) {
  stage::stage(plain(7, 7));
  for (const int far : {5, 1}) {
    show(plain(7, 7));
    zoom(4);
    block_stroke(11004, 3, 3, far, far);
    EXPECT_BLOCKS(FIVE_WIDE);
  }
}

TEST(BlockCircle, SolidDiagonalsMarkTheMiddleWhileItIsHeld) {
  stage::stage(plain(5, 5));
  zoom(2);
  pen(3);
  select_tool(11004);
  block_press(2, 2);
  // Where both meet, twice in XOR is nothing.
  EXPECT_DRAW(enlarged({"#...#", ".#.#.", ".....", ".#.#.", "#...#"}, 2));
  block_release(2, 2);
  EXPECT_BLOCKS(plain(5, 5));
}

TEST(BlockCirclefill, IsFilledInOneColour) {
  stage::stage(plain(7, 7));
  zoom(8);
  block_stroke(11005, 3, 3, 5, 1);
  EXPECT_BLOCKS(FIVE_WIDE_FULL);
}

TEST(BlockCirclefill, NextShapeIsNotFilled) {
  stage::stage(plain(7, 7));
  zoom(2);
  block_stroke(11005, 3, 3, 3, 3);
  block_stroke(11003, 1, 1, 5, 5);
  EXPECT_BLOCKS({".......", ".#####.", ".#...#.", ".#...#.", ".#...#.", ".#####.", "......."});
}

TEST(BlockShapes, AreUndoneAsOneStroke) {
  const Picture picture = {".#ybr#", "grb#..", ".#ybg.", "#####y"};
  stage::stage(picture);
  zoom(4);
  for (const int tool : {11001, 11002, 11003, 11004, 11005, 11010}) {
    target_colour('y');
    block_stroke(tool, 1, 1, 3, 2);
    EXPECT_NE(text_of(PIC.Image()), picture) << tool;
    key(' ');
    SCOPED_TRACE(tool);
    EXPECT_BLOCKS(picture);
  }
}

TEST(BlockShapes, ScreenIsPaintedFromTheBackingStoreWhileTheyAreDragged) {
  stage::stage(plain(7, 7, 'y'));
  zoom(4);
  for (const int tool : {11003, 11004, 11005, 11010, 11029}) {
    select_tool(tool);
    block_press(3, 3);
    block_drag(5, 4);
    EXPECT_EQ(PREVIEW_ON, 1) << tool;
    EXPECT_FALSE(DRAW.AutoRedraw()) << tool;
    const Picture held = text_of(DRAW.target());
    forms::enter([] { DRAW.Paint.fire(-1); });
    EXPECT_EQ(text_of(DRAW.target()), held) << tool;
    key(' ');
    EXPECT_EQ(PREVIEW_ON, 0) << tool;
    EXPECT_TRUE(DRAW.AutoRedraw()) << tool;
    EXPECT_DRAW(enlarged(plain(7, 7, 'y'), 4)) << tool;
  }
}

TEST(BlockShapes, RightButtonCancels) {
  stage::stage(plain(7, 7, 'y'));
  zoom(4);
  for (const int tool : {11001, 11002, 11003, 11004, 11005, 11010, 11029}) {
    select_tool(tool);
    block_press(3, 3);
    block_drag(5, 4);
    block_press(5, 4, 2);
    EXPECT_DRAW(enlarged(plain(7, 7, 'y'), 4)) << tool;
    EXPECT_EQ(PEN_DOWN, 0) << tool;
    EXPECT_TRUE(DRAW.AutoRedraw()) << tool;
    EXPECT_EQ(CUR_TOOL, tool);
    block_release(5, 4);
    EXPECT_PIC(plain(7, 7, 'y')) << tool;
  }
}

TEST(BlockLine, CancelGivesWorkItsThinCopyPenBack) {
  stage::stage(plain(7, 7));
  zoom(4);
  pen(5);
  select_tool(11010);
  block_press(3, 3);
  block_press(3, 3, 2);
  EXPECT_EQ(WORK.DrawWidth(), 1);
  EXPECT_EQ(WORK.DrawMode(), 13);
}

TEST(BlockShapes, CommitAtThePlaceOfAScrolledView) {
  stage::stage(plain(24, 4));
  view(64, 16);  // 16 x 4 picture pixels at x4
  zoom(4, 5, 0);
  block_stroke(11010, 0, 1, 3, 1);
  Picture painted = plain(24, 4);
  painted[1] = ".....####...............";
  EXPECT_PIC(painted);
}

// --- WORK_TO_VIEW

TEST(WorkToView, ShowsTheRectangleWidenedByThePen) {
  stage::stage(plain(9, 9));
  zoom(2);
  select_tool(11010);
  block_press(8, 8);  // WORK and the backing store are ready
  for (const int size : {1, 5}) {
    WORK.Image().fill(colour_of('r'));
    forms::enter([&] {
      PEN_SIZE = static_cast<int16_t>(size);
      WORK.DrawWidth(size);
      WORK_TO_VIEW(4, 4, 4, 4);
    });
    // By round(size / 2 + 1) on either side, right and bottom left out: 2 to 5, then 0 to 7.
    const Picture shown = text_of(DRAW.target());
    EXPECT_EQ(shown[8], size == 1 ? "....rrrrrrrr......" : "rrrrrrrrrrrrrrrr..");
    EXPECT_EQ(shown[3][8], size == 1 ? '.' : 'r');
  }
}

TEST(WorkToView, BesideTheViewShowsNothing) {
  stage::stage(plain(9, 9));
  zoom(2);
  select_tool(11010);
  block_press(0, 0);
  block_drag(0, 1);
  const Picture before = text_of(DRAW.target());
  WORK.Image().fill(colour_of('r'));
  forms::enter([] {
    WORK_TO_VIEW(30, 30, 40, 40);
    WORK_TO_VIEW(-40, -40, -30, -30);
  });
  EXPECT_EQ(text_of(DRAW.target()), before);
}

}  // namespace
