// Side change: the first run of other colours beside the pointer.
#include "engines/pen_engines.h"
#include "tools/tools_stage.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

void side(int tool, int size, const Picture& picture) {
  stage::stage(picture);
  select_tool(tool);
  pen(size);
  target_colour('r');
}

TEST(SideChange, PaintsTheOutlineUpToItsFarSide) {
  side(13, 8, {"..##.#...."});
  click(0, 0);
  EXPECT_PIC({"..rr.#...."});
}

TEST(SideChange, LooksInEachOfTheFourDirections) {
  const Picture picture = {"..#..", "..#..", "##.##", "..#..", "..#.."};
  stage::stage(picture);
  const Picture painted[] = {{"..#..", "..#..", "rr.##", "..#..", "..#.."},
                             {"..#..", "..#..", "##.rr", "..#..", "..#.."},
                             {"..r..", "..r..", "##.##", "..#..", "..#.."},
                             {"..#..", "..#..", "##.##", "..r..", "..r.."}};
  for (int tool = 12; tool <= 15; ++tool) {
    show(picture);
    select_tool(tool);
    pen(2);
    target_colour('r');
    click(2, 2);
    EXPECT_EQ(text_of(PIC), painted[tool - 12]) << tool;
  }
}

TEST(SideChange, OnAnotherColourChangesNothing) {
  side(13, 4, {"g.##.."});
  click(0, 0);
  EXPECT_PIC({"g.##.."});
}

TEST(SideChange, OfSizeOneReachesTheNeighbourAlone) {
  side(12, 1, {"##.."});
  click(2, 0);
  EXPECT_PIC({"#r.."});
  click(3, 0);
  EXPECT_PIC({"#r.."});
}

TEST(SideChange, ALongRunIsPaintedAsFarAsTheTileReaches) {
  side(13, 4, {"..######"});
  click(0, 0);
  EXPECT_PIC({"..rrr###"});
}

TEST(SideChange, WithoutAnOutlineTheTileIsWrittenBackAllTheSame) {
  side(13, 3, {"....#"});
  press(0, 0);
  // What else has been put on DRAW in the stroke goes, where the tile lies.
  forms::enter([] {
    SetPixelV(DRAW, 2, 0, RGB(0, 255, 0));
    SetPixelV(DRAW, 4, 0, RGB(0, 255, 0));
  });
  drag(0.6F, 0);  // rounds into another pixel, and truncates into the same
  release(0.6F, 0);
  EXPECT_PIC({"....g"});
}

TEST(SideChange, ReadsThePictureAndNotWhatTheStrokeHasPainted) {
  side(13, 2, {".##."});
  press(0, 0);
  EXPECT_DRAW({".rr."});
  // The pixel 1 is red on DRAW, and still black in the picture.
  drag(1, 0);
  EXPECT_DRAW({".rr."});
  release(1, 0);
  EXPECT_PIC({".rr."});
}

TEST(SideChange, BeyondThePicturesEdgeNothingIsPainted) {
  side(12, 5, {"..#"});
  click(1, 0);
  EXPECT_PIC({"..#"});
  select_tool(13);
  click(1, 0);
  EXPECT_PIC({"..r"});
}

TEST(SideChange, AtX4PaintsWholeBlocks) {
  stage::stage({"..#.", "..#."});
  zoom(4);
  select_tool(13);
  pen(3);
  target_colour('r');
  press(6, 5);  // the pixel 1, 1
  EXPECT_EQ(text_of(DRAW), enlarged({"..#.", "..r."}, 4));
  EXPECT_EQ(PREVIEW_ON, 0);
  release(6, 5);
  EXPECT_PIC({"..#.", "..r."});
}

TEST(SideChange, TilesThatLeaveTheViewStayInside) {
  stage::stage({"....", "....", "....", "...."});
  zoom(2);
  pen(33);
  target_colour('r');
  for (int tool = 12; tool <= 15; ++tool) {
    select_tool(tool);
    press(4, 4);
    drag(-20, 4);
    drag(4, 200);
    release(4, 4);
  }
  EXPECT_PIC({"....", "....", "....", "...."});
}

}  // namespace
