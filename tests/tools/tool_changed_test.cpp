// What a change of tool does to the tool before.
#include "palette_stage.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

TEST(ToolChanged, AnOpenPolygonLeavesNothingForTheNextStrokeToCommit) {
  stage::stage({"......", "......", "......", "......"});
  select_tool(27);
  press(0, 0);
  drag(4, 0);
  release(4, 0);
  hover(4, 3);
  select_tool(2);
  EXPECT_DRAW({"......", "......", "......", "......"});
  click(0, 3);
  EXPECT_PIC({"......", "......", "......", "#....."});
}

TEST(ToolChanged, ABentCurveGoesToo) {
  stage::stage({"......", "......", "......", "......"});
  select_tool(31);
  press(0, 0);
  drag(5, 3);
  release(5, 3);
  hover(0, 3);
  select_tool(1);
  EXPECT_DRAW({"......", "......", "......", "......"});
}

TEST(ToolChanged, AnOpenChainAtExpansionEndsAndTheNextToolDrawsAtOnce) {
  stage::stage({"......", "......", "......", "......"});
  zoom(4);
  select_tool(11029);
  press(1, 1);
  drag(17, 1);
  release(17, 1);
  EXPECT_EQ(CUR_TOOL, 12029);
  select_tool(11001);
  EXPECT_EQ(PEN_DOWN, 0);
  EXPECT_EQ(PREVIEW_ON, 0);
  click(1, 13);
  EXPECT_PIC({"......", "......", "......", "#....."});
}

TEST(ToolChanged, SelectingTheOtherColourKeepsTheChain) {
  stage::stage({"......", "......", "......", "......"});
  select_tool(29);
  press(0, 0);
  release(4, 0);
  forms::enter([] { COL_WIN.DES_COL.Click.fire(-1); });
  EXPECT_EQ(CUR_TOOL, 5029);
  EXPECT_DRAW({"####..", "......", "......", "......"});
}

}  // namespace
