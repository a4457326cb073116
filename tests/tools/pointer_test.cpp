// The pointer pipeline: what all tools have in common.
#include "tools/tools_stage.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

TEST(Pointer, AMoveInsideOnePicturePixelCallsNoTool) {
  stage::stage({"....", "...."});
  zoom(8);
  select_tool(1);
  press(1, 1);
  drag(6, 6);  // still the first block
  EXPECT_EQ(GetPixel(DRAW, 1, 1), 0U);
  EXPECT_EQ(GetPixel(DRAW, 6, 6), raster::WHITE);
  drag(8, 0);
  EXPECT_EQ(GetPixel(DRAW, 8, 0), 0U);
}

TEST(Pointer, ARightClickTogglesThePalettes) {
  stage::stage({"...."});
  forms::enter([] { RCLICK_PICK = 0; });
  press(1, 0, 2);
  release(1, 0, 2);
  EXPECT_FALSE(CMD_WIN.Visible());
  EXPECT_EQ(PAL_SHOWN, 0);
  press(1, 0, 2);
  release(1, 0, 2);
  EXPECT_TRUE(CMD_WIN.Visible());
  EXPECT_EQ(PAL_SHOWN, 1);
}

TEST(Pointer, ARightClickPicksAColourWhenSetSo) {
  stage::stage({".r"});
  forms::enter([] { RCLICK_PICK = 1; });
  press(1, 0, 2);
  EXPECT_TRUE(CMD_WIN.Visible());
  EXPECT_EQ(CUR_R, 255);
  EXPECT_EQ(TAR_R, 255);
  EXPECT_EQ(TAR_G, 0);
}

TEST(Pointer, ARightClickOutsideThePictureTogglesWhateverItPicks) {
  stage::stage({"...."});
  forms::enter([] { RCLICK_PICK = 1; });
  forms::enter([] { DMY.MouseDown.fire(-1, 2, 0, 300.0F, 3.0F); });
  EXPECT_FALSE(CMD_WIN.Visible());
}

TEST(Pointer, TheRightButtonCancelsAStroke) {
  stage::stage({"....", "...."});
  press(0, 0);
  drag(2, 0);
  press(2, 0, 2);
  EXPECT_DRAW({"....", "...."});
  EXPECT_EQ(PEN_DOWN, 0);
  release(2, 0);
  EXPECT_PIC({"....", "...."});
  EXPECT_EQ(UNDO_READY, 0);
  EXPECT_TRUE(CMD_WIN.Visible());
}

TEST(Pointer, TheRightButtonStopsTheSprayTimer) {
  stage::stage({"....", "...."});
  select_tool(1);
  press(1, 1);
  forms::enter([] { Timer1.Interval(50); });
  press(1, 1, 2);
  EXPECT_EQ(Timer1.Interval(), 0);
}

TEST(Pointer, BetweenTheClicksOfAPolygonTheRightButtonOnlyToggles) {
  stage::stage({"......", "......", "......", "......"});
  select_tool(27);
  press(0, 0);
  drag(4, 0);
  release(4, 0);
  hover(4, 3);
  press(4, 3, 2);
  EXPECT_EQ(CUR_TOOL, 5027);
  EXPECT_FALSE(CMD_WIN.Visible());
  key(' ');
  EXPECT_EQ(CUR_TOOL, 27);
  EXPECT_DRAW({"......", "......", "......", "......"});
}

TEST(Pointer, APressDuringAStrokeIsIgnored) {
  stage::stage({"......"});
  press(0, 0);
  press(4, 0);
  EXPECT_DRAW({"#....."});
  EXPECT_EQ(PT_START(1), 0);
}

TEST(Pointer, ASecondEventInsideOfAnEventIsIgnored) {
  stage::stage({"......"});
  forms::enter([] { DOWN_BUSY = 1; });
  press(0, 0);
  EXPECT_EQ(PEN_DOWN, 0);
  forms::enter([] { DOWN_BUSY = 0; });
  press(0, 0);
  forms::enter([] { MOVE_BUSY = 1; });
  drag(3, 0);
  forms::enter([] {
    MOVE_BUSY = 0;
    UP_BUSY = 1;
  });
  release(3, 0);
  EXPECT_EQ(PEN_DOWN, 1);
  EXPECT_DRAW({"#....."});
}

TEST(Pointer, APressTakesColoursAndPoint) {
  stage::stage({"......", "......"});
  forms::enter([] {
    TAR_R = 1, TAR_G = 2, TAR_B = 3;
    DES_R = 4, DES_G = 5, DES_B = 6;
  });
  press(2.5F, 0.5F);  // ties to even
  EXPECT_EQ(COL_A, 1U + 2 * 256 + 3 * 65536);
  EXPECT_EQ(COL_B, 4U + 5 * 256 + 6 * 65536);
  EXPECT_EQ(COL_XOR, raster::WHITE);
  EXPECT_EQ(PT_START(1), 2);
  EXPECT_EQ(PT_DOT(1), 2);
  EXPECT_EQ(PT_CUR(2), 0);
  EXPECT_EQ(DRAW.DrawMode(), 13);
  EXPECT_EQ(DRAW.FillStyle(), 1);
  EXPECT_EQ(STROKE_STATE, 1);
}

TEST(Pointer, ASpoitClickPicksAndTurnsUndoOn) {
  stage::stage({".g", ".."});
  forms::enter([] {
    PREV_TOOL = 1;
    CUR_TOOL = 1000;
    TOOL_CHANGED();
  });
  click(1, 0);
  EXPECT_EQ(TAR_G, 255);
  EXPECT_EQ(TAR_R, 0);
  EXPECT_EQ(CUR_TOOL, 1000);
  EXPECT_EQ(UNDO_READY, 1);
  EXPECT_TRUE(CMD_WIN.UNDO.Enabled());
}

TEST(Pointer, ToolZeroDrawsNothingAndStillCommits) {
  stage_with_status({"...."});
  select_tool(0);
  click(1, 0);
  EXPECT_PIC({"...."});
  EXPECT_EQ(UNDO_READY, 1);
  EXPECT_EQ(INF_CMD.Caption(), "No select");
}

TEST(Pointer, AZoomClickGivesTheLastToolOfTheExpansionPalette) {
  start();
  show_status_line();
  view(80, 80);
  show(Picture(100, std::string(100, '.')));
  select_tool(10004);
  EXPECT_EQ(INF_CMD.Caption(), "Expand to x4");
  EXPECT_EQ(DRAW.MousePointer(), 99);
  press(40, 40);
  EXPECT_EQ(EXP_RATE, 4);
  release(40, 40);
  EXPECT_EQ(CUR_TOOL, 0);  // no tool chosen there yet
  EXPECT_EQ(VIEW_ORG(1), 30);
  EXPECT_EQ(EXP_GROUP, 0);
}

TEST(Pointer, TheBoxOfAStrokeAloneIsReadBackOnceUndoIsOn) {
  stage::stage({"........", "........"});
  click(0, 0);                                     // the first stroke commits the whole view
  forms::enter([] { SetPixelV(DRAW, 7, 1, 0); });  // stands on the screen alone
  click(2, 0);
  EXPECT_PIC({"#.#.....", "........"});
}

TEST(Pointer, TheTimerDoesNothingWithoutAStroke) {
  stage::stage({"...."});
  select_tool(21);
  forms::enter([] { Timer1.Tick.fire(-1); });
  EXPECT_DRAW({"...."});
}

TEST(Pointer, AWheelScrolls) {
  start();
  view(40, 40);
  show(Picture(400, std::string(400, '.')));
  forms::enter([] { DRAW.Wheel.fire(-1, 0, 1); });
  EXPECT_GT(Y_SC.Value(), 0);
  EXPECT_EQ(X_SC.Value(), 0);
  press(1, 1);
  const int at = Y_SC.Value();
  forms::enter([] { DRAW.Wheel.fire(-1, 0, 1); });  // not under a running stroke
  EXPECT_EQ(Y_SC.Value(), at);
}

}  // namespace
