// Copy at expansion: as Area copy, in whole blocks.
#include "tools_stage.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

const Picture CORNER = {"rgb.....", "ybr.....", "........", "........"};
const Picture CORNER_TWICE = {"rgb.....", "ybr.rgb.", "....ybr.", "........"};

float in_block(int rate, int pixel) { return static_cast<float>(rate) * (static_cast<float>(pixel) + 0.5F); }

void drag_blocks(int rate, int x1, int y1, int x2, int y2) {
  drag_area(11100, in_block(rate, x1), in_block(rate, y1), in_block(rate, x2), in_block(rate, y2));
}

class BlockCopy : public ::testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(Rates, BlockCopy, ::testing::Values(2, 4, 8));

TEST_P(BlockCopy, LiftsAndStampsWholeBlocks) {
  const int rate = GetParam();
  stage::stage(CORNER);
  zoom(rate);
  drag_blocks(rate, 0, 0, 2, 1);
  EXPECT_EQ(CUR_TOOL, 11101);
  EXPECT_EQ(AREA_W, 3 * rate);
  EXPECT_EQ(AREA_H, 2 * rate);
  EXPECT_EQ(text_of(WORK.Image()), enlarged({"rgb", "ybr"}, rate));
  expect_work_at(0, 0);
  // It jumps from block to block.
  hover(static_cast<float>(4 * rate), static_cast<float>(rate));
  expect_work_at(4 * rate, rate);
  hover(static_cast<float>(5 * rate - 1), static_cast<float>(2 * rate - 1));
  expect_work_at(4 * rate, rate);
  EXPECT_DRAW(enlarged(CORNER, rate));
  press(in_block(rate, 4), in_block(rate, 1));
  EXPECT_EQ(CUR_TOOL, 11102);
  EXPECT_FALSE(WORK.Visible());
  EXPECT_DRAW(enlarged(CORNER_TWICE, rate));
  release(in_block(rate, 4), in_block(rate, 1));
  EXPECT_EQ(CUR_TOOL, 11100);
  EXPECT_PIC(CORNER_TWICE);
  key(' ');
  EXPECT_PIC(CORNER);
  EXPECT_DRAW(enlarged(CORNER, rate));
}

TEST_P(BlockCopy, DragToTheTopLeftPutsThePointersBlockAtTheAreasEnd) {
  const int rate = GetParam();
  stage::stage(CORNER);
  zoom(rate);
  drag_blocks(rate, 2, 1, 0, 0);
  EXPECT_EQ(AREA_W, 3 * rate);
  EXPECT_EQ(AREA_H, 2 * rate);
  EXPECT_EQ(AREA_DX, -2 * rate);
  EXPECT_EQ(AREA_DY, -rate);
  expect_work_at(0, 0);
  hover(in_block(rate, 6), in_block(rate, 2));
  expect_work_at(4 * rate, rate);
  click(in_block(rate, 6), in_block(rate, 2));
  EXPECT_PIC(CORNER_TWICE);
}

TEST_P(BlockCopy, StampIsCutAtEachSideOfTheView) {
  const int rate = GetParam();
  const struct {
    int x, y;
    Picture wanted;
  } stamps[] = {
      // held by its first block, or by its last one
      {3, 3, {"rg..", "by..", "....", "...r"}},
      {0, 0, {"yg..", "by..", "....", "...."}},
  };
  stage::stage({"rg..", "by..", "....", "...."});
  for (const auto& stamp : stamps) {
    show({"rg..", "by..", "....", "...."});
    zoom(rate);
    stamp.x == 3 ? drag_blocks(rate, 0, 0, 1, 1) : drag_blocks(rate, 1, 1, 0, 0);
    click(in_block(rate, stamp.x), in_block(rate, stamp.y));
    EXPECT_PIC(stamp.wanted);
  }
}

TEST(BlockCopyAtX4, SelectionTellsItsSizeInPicturePixels) {
  stage_with_status(plain(6, 4, 'y'));
  zoom(4);
  select_tool(11100);
  press(in_block(4, 1), in_block(4, 1));
  EXPECT_DRAW(enlarged({"yyyyyy", "ybyyyy", "yyyyyy", "yyyyyy"}, 4));
  drag(in_block(4, 3), in_block(4, 2));
  EXPECT_EQ(INF_SUB.Caption(), "Size X= 3 Y= 2");
  EXPECT_DRAW(enlarged({"yyyyyy", "ybbbyy", "ybbbyy", "yyyyyy"}, 4));
  release(in_block(4, 3), in_block(4, 2));
  EXPECT_EQ(INF_SUB.Caption(), " ");
  EXPECT_DRAW(enlarged(plain(6, 4, 'y'), 4));
}

TEST(BlockCopyAtX4, RightButtonOrBlankWhileTheStampIsHeldTakesItBack) {
  stage::stage(CORNER);
  zoom(4);
  for (const bool by_blank : {false, true}) {
    drag_blocks(4, 0, 0, 2, 1);
    press(in_block(4, 4), in_block(4, 1));
    by_blank ? key(' ') : press(in_block(4, 4), in_block(4, 1), 2);
    EXPECT_EQ(CUR_TOOL, 11100);
    EXPECT_DRAW(enlarged(CORNER, 4));
    release(in_block(4, 4), in_block(4, 1));
    EXPECT_PIC(CORNER);
  }
}

TEST(BlockCopyAtX4, ScrollMovesThePictureUnderTheArea) {
  start();
  view(32, 32);
  Picture picture = plain(20, 10);
  picture[0] = "rgb.................";
  show(picture);
  zoom(4);
  drag_blocks(4, 0, 0, 2, 0);
  forms::enter([] { X_SC.Value(10); });
  EXPECT_EQ(CUR_TOOL, 11101);
  hover(in_block(4, 1), in_block(4, 2));
  click(in_block(4, 1), in_block(4, 2));
  picture[2] = "...........rgb......";
  EXPECT_PIC(picture);
}

TEST(BlockCopyAtX4, ZoomOutDropsTheFloatingArea) {
  stage::stage(CORNER);
  zoom(8);
  drag_blocks(8, 0, 0, 2, 1);
  forms::enter([] { CMD_WIN.EXP_M2(2).Click.fire(2); });
  EXPECT_EQ(EXP_RATE, 4);
  EXPECT_EQ(CUR_TOOL, 11100);
  EXPECT_FALSE(WORK.Visible());
  EXPECT_DRAW(enlarged(CORNER, 4));
  drag_blocks(4, 0, 0, 2, 1);
  forms::enter([] { CMD_WIN.EXP_M2(0).Click.fire(0); });
  EXPECT_EQ(EXP_RATE, 1);
  EXPECT_EQ(CUR_TOOL, 0);
  EXPECT_FALSE(WORK.Visible());
}

TEST(BlockCopyAtX4, ZoomInDropsTheFloatingArea) {
  stage::stage(CORNER);
  zoom(4);
  forms::enter([] { CMD_WIN.EXP_M1(6).Click.fire(6); });
  EXPECT_EQ(CUR_TOOL, 11100);
  drag_blocks(4, 0, 0, 2, 1);
  forms::enter([] { CMD_WIN.EXP_M2(3).Click.fire(3); });
  EXPECT_EQ(CUR_TOOL, 10008);
  EXPECT_FALSE(WORK.Visible());
  click(1, 1);
  EXPECT_EQ(CUR_TOOL, 11100);
  EXPECT_FALSE(WORK.Visible());
}

}  // namespace
