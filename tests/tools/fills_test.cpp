// Paint A and Paint B.
#include "tools_stage.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

constexpr int PAINT_A = 8, PAINT_B = 9;

TEST(PaintA, FillsTheConnectedPixelsOfTheClickedColour) {
  stage::stage({"..#..",  //
                "..#y.",  //
                ".##..",  //
                "..#.."});
  select_tool(PAINT_A);
  target_colour('r');
  click(0, 0);
  EXPECT_PIC({"rr#..", "rr#y.", "r##..", "rr#.."});
}

TEST(PaintA, DoesNotGoThroughCorners) {
  stage::stage({".#", "#."});
  select_tool(PAINT_A);
  target_colour('r');
  click(0, 0);
  EXPECT_PIC({"r#", "#."});
}

TEST(PaintA, ShowsAtThePressAndCommitsAtTheRelease) {
  stage::stage(plain(3, 2));
  select_tool(PAINT_A);
  press(1, 1);
  EXPECT_DRAW(plain(3, 2, '#'));
  EXPECT_PIC(plain(3, 2));
  drag(2, 1);
  release(2, 1);
  EXPECT_PIC(plain(3, 2, '#'));
  EXPECT_EQ(UNDO_READY, 1);
  EXPECT_EQ(STROKE_STATE, 2);
  key(' ');
  EXPECT_PIC(plain(3, 2));
}

TEST(PaintA, WithTheColourThatIsThereChangesNothingAndCommits) {
  stage::stage({"##.", "##."});
  select_tool(PAINT_A);
  click(0, 0);
  EXPECT_PIC({"##.", "##."});
  EXPECT_EQ(UNDO_READY, 1);
}

// A fill leaves its brush on DRAW; the next press takes it off.
TEST(PaintA, LeavesTheBoxThatFollowsHollow) {
  stage::stage({"#.....", "#.....", "#.....", "#....."});
  select_tool(PAINT_A);
  target_colour('y');
  click(0, 0);
  select_tool(4);
  target_colour('r');
  press(1, 0);
  drag(5, 3);
  release(5, 3);
  EXPECT_PIC({"yrrrrr", "yr...r", "yr...r", "yrrrrr"});
}

TEST(PaintA, EndsWhereTheViewEnds) {
  stage::stage(plain(20, 2));
  view(16, 16);
  select_tool(PAINT_A);
  click(1, 1);
  EXPECT_PIC({"################....", "################...."});
}

TEST(PaintA, FillsWholeBlocksAtExpansion) {
  stage::stage({"..#.", "..#.", "###.", "...."});
  zoom(4);
  select_tool(PAINT_A);
  target_colour('r');
  click(5, 6);  // block 1, 1
  EXPECT_DRAW(enlarged({"rr#.", "rr#.", "###.", "...."}, 4));
  EXPECT_PIC({"rr#.", "rr#.", "###.", "...."});
}

TEST(PaintA, RightButtonTakesItBack) {
  stage::stage(plain(3, 2));
  select_tool(PAINT_A);
  press(1, 1);
  press(1, 1, 2);
  release(1, 1);
  EXPECT_DRAW(plain(3, 2));
  EXPECT_PIC(plain(3, 2));
}

TEST(PaintB, FillsUpToTheDestinationColour) {
  stage::stage({".y#g.",  //
                "b.#.#",  //
                "..#.."});
  select_tool(PAINT_B);
  target_colour('r');
  destination_colour('#');
  click(1, 1);
  EXPECT_PIC({"rr#g.", "rr#.#", "rr#.."});
}

TEST(PaintB, WithoutABorderFillsTheWholeView) {
  stage::stage({".y#gyyyyyyyyyyyyyyyy", "y.#.#yyyyyyyyyyyyyyy"});
  view(16, 16);
  select_tool(PAINT_B);
  target_colour('r');
  destination_colour('b');
  click(3, 1);
  EXPECT_PIC({"rrrrrrrrrrrrrrrryyyy", "rrrrrrrrrrrrrrrryyyy"});
}

TEST(PaintB, OnTheBorderDoesNothing) {
  const Picture picture = {".y#g.", "b.#.#"};
  stage::stage(picture);
  select_tool(PAINT_B);
  target_colour('r');
  destination_colour('#');
  click(2, 1);
  EXPECT_PIC(picture);
  EXPECT_EQ(UNDO_READY, 1);  // the release commits all the same
}

TEST(PaintB, LeavesWhatTheBorderEncloses) {
  stage::stage({".....", ".###.", ".#.#.", ".###.", "....."});
  select_tool(PAINT_B);
  target_colour('r');
  destination_colour('#');
  click(0, 0);
  EXPECT_PIC({"rrrrr", "r###r", "r#.#r", "r###r", "rrrrr"});
}

TEST(PaintB, FillsWholeBlocksAtExpansion) {
  stage::stage({"..#.", "y.#."});
  zoom(2);
  select_tool(PAINT_B);
  target_colour('r');
  destination_colour('#');
  click(1, 1);
  EXPECT_PIC({"rr#.", "rr#."});
  EXPECT_DRAW(enlarged({"rr#.", "rr#."}, 2));
}

TEST(Paint, HasTheBucketAsItsCursor) {
  stage::stage(plain(2, 2));
  for (const int tool : {PAINT_A, PAINT_B}) {
    select_tool(1);
    EXPECT_EQ(DRAW.MousePointer(), 1);
    select_tool(tool);
    EXPECT_EQ(DRAW.MousePointer(), 99);
    EXPECT_STREQ(DRAW.MouseIcon(), "Paint_ICO");
  }
}

}  // namespace
