// Which tool, which window each button chooses, against lists written by hand.
#include "palette/palette_fixture.h"

namespace kiso {
namespace {

constexpr int AS_IT_WAS = -1;

struct Choice {
  int index, group, tool;  // group: the ROOT_B or EXP_B button that opens its panel
  Window* right = nullptr;
};

const Choice CMD[] = {
    {0, 0, 1},
    {1, 0, 2},
    {2, 0, 3},
    {3, 0, 4},
    {4, 0, 5},
    {5, 0, 6},
    {6, 0, 7},
    {7, 0, 8},
    {8, 0, 9},
    {9, 0, 10},
    {10, 0, 11},
    {11, 4, 20000},
    {12, 4, 12},
    {13, 4, 13},
    {14, 4, 14},
    {15, 4, 15},
    {16, 4, 16},
    {17, 6, 17},
    {18, 4, 18},
    {19, 4, AS_IT_WAS},
    {20, 0, AS_IT_WAS},
    {21, 4, 21, &SPRAY_WIN},
    {22, 4, 22, &SPRAY_WIN},
    {23, 4, 23, &FUZZY_WIN},
    {24, 6, 24, &FUZZY_WIN},
    {25, 6, 25},
    {26, 6, 26, &FUZZY_WIN},
    {27, 4, 27},
    {28, 6, 28},
    {29, 6, 30},
    {30, 6, 31},
    {31, 6, 32, &HSET_WIN},
    {32, 6, 33, &HSET_WIN},
    {33, 6, 34, &SPRAY_WIN},
    {34, 6, 35, &SPRAY_WIN},
    {35, 6, 36, &DEEP_WIN},
};

const Choice EXP[] = {
    {0, 0, 11001},
    {1, 0, 8},
    {2, 0, 9},
    {3, 0, 10},
    {4, 0, 11},
    {5, 0, 11002},
    {6, 0, 11100},
    {7, 1, 12},
    {8, 1, 13},
    {9, 1, 14},
    {10, 1, 15},
    {11, 0, 23, &FUZZY_WIN},
    {12, 0, 11010},
    {13, 0, 11003},
    {14, 0, 11004},
    {15, 0, 11005},
    {16, 1, 33, &HSET_WIN},
    {17, 1, 11006, &HSET_WIN},
    {18, 1, 34, &SPRAY_WIN},
    {19, 1, 35},
};

Window* const PARAM_WINDOWS[] = {&FUZZY_WIN, &SPRAY_WIN, &HSET_WIN, &DEEP_WIN};

void expect_open(const Window* wanted, const std::string& where) {
  for (const Window* w : PARAM_WINDOWS) {
    EXPECT_EQ(w->Loaded() && w->is_visible(), w == wanted) << where << ": " << w->name;
  }
}

void close_all() {
  for (Window* w : PARAM_WINDOWS) enter([w] { w->Unload(); });
}

TEST_F(Palette, EachRootButtonChoosesItsTool) {
  ASSERT_EQ(std::size(CMD), 36U);
  for (const Choice& c : CMD) {
    CUR_TOOL = 0;
    click(CMD_WIN.ROOT_B(c.group));
    click(CMD_WIN.CMD_B(c.index));
    EXPECT_EQ(CUR_TOOL, c.tool == AS_IT_WAS ? 0 : c.tool) << c.index;
    expect_open(nullptr, "CMD_B " + std::to_string(c.index));
    if (c.tool == AS_IT_WAS) continue;
    EXPECT_EQ(pressed(CMD_WIN.CMD_B), Pressed{c.index});
  }
}

TEST_F(Palette, ARightClickOnARootButtonAlsoOpensItsParameters) {
  for (const Choice& c : CMD) {
    close_all();
    click(CMD_WIN.ROOT_B(c.group));
    CUR_TOOL = 0;
    click(CMD_WIN.CMD_B(c.index), RIGHT);
    EXPECT_EQ(CUR_TOOL, c.tool == AS_IT_WAS ? 0 : c.tool) << c.index;
    expect_open(c.right, "CMD_B " + std::to_string(c.index));
  }
}

TEST_F(Palette, EachExpansionButtonChoosesItsTool) {
  ASSERT_EQ(std::size(EXP), 20U);
  expand(0, 100, 100);
  for (const Choice& c : EXP) {
    click(CMD_WIN.EXP_B(c.group));
    click(CMD_WIN.EXP_M1(c.index));
    EXPECT_EQ(CUR_TOOL, c.tool) << c.index;
    EXPECT_EQ(EXP_TOOL, c.tool) << c.index;
    EXPECT_EQ(pressed(CMD_WIN.EXP_M1), Pressed{c.index});
    expect_open(nullptr, "EXP_M1 " + std::to_string(c.index));
  }
}

TEST_F(Palette, ARightClickOnAnExpansionButtonAlsoOpensItsParameters) {
  expand(0, 100, 100);
  for (const Choice& c : EXP) {
    close_all();
    click(CMD_WIN.EXP_B(c.group));
    click(CMD_WIN.EXP_M1(c.index), RIGHT);
    EXPECT_EQ(CUR_TOOL, c.tool) << c.index;
    expect_open(c.right, "EXP_M1 " + std::to_string(c.index));
  }
}

TEST_F(Palette, ALeftClickAfterARightClickOpensNothing) {
  click(CMD_WIN.ROOT_B(4));
  click(CMD_WIN.CMD_B(21), RIGHT);
  close_all();
  click(CMD_WIN.CMD_B(22));
  expect_open(nullptr, "left click");
}

TEST_F(Palette, TheWindowOfTheExpandedVBoxClosesAtTheNextTool) {
  expand(0, 100, 100);
  click(CMD_WIN.EXP_B(1));
  click(CMD_WIN.EXP_M1(17), RIGHT);
  EXPECT_TRUE(HSET_WIN.Loaded());
  click(CMD_WIN.EXP_M1(18));
  EXPECT_FALSE(HSET_WIN.Loaded());
}

TEST_F(Palette, TheSettingForChainsOfLinesChangesBothLineButtons) {
  LINE_MODE = 1;
  click(CMD_WIN.CMD_B(2));
  EXPECT_EQ(CUR_TOOL, 29);
  expand(0, 100, 100);
  click(CMD_WIN.EXP_M1(12));
  EXPECT_EQ(CUR_TOOL, 11029);
  EXPECT_EQ(EXP_TOOL, 11029);
}

TEST_F(Palette, EachZoomButtonChoosesItsZoomTool) {
  click(CMD_WIN.ROOT_B(1));
  const int tools[] = {10002, 10004, 10008};
  for (int i = 0; i < 3; ++i) {
    click(CMD_WIN.EDIT_B(i));
    EXPECT_EQ(CUR_TOOL, tools[i]);
    EXPECT_EQ(pressed(CMD_WIN.EDIT_B), Pressed{i});
    EXPECT_EQ(EXP_RATE, 1) << "the zoom waits for a click on the picture";
  }
}

TEST_F(Palette, CopyToTheClipboardIsRefusedWhereStretchingIsBroken) {
  STRETCH_OK = 0;
  click(CMD_WIN.ROOT_B(4));
  click(CMD_WIN.CMD_B(18));
  ASSERT_EQ(desktop_.boxes.size(), 1U);
  EXPECT_EQ(desktop_.boxes[0].text, "StretchBltとImageに問題のある機種では使えません");
  EXPECT_EQ(desktop_.boxes[0].style, 0);
  EXPECT_EQ(CUR_TOOL, 0);
  STRETCH_OK = 1;
  click(CMD_WIN.CMD_B(18));
  EXPECT_EQ(desktop_.boxes.size(), 1U);
  EXPECT_EQ(CUR_TOOL, 18);
}

TEST_F(Palette, TheStatusLineNamesTheChosenTool) {
  STATUS_ON = 1;
  click(CMD_WIN.CMD_B(10));
  EXPECT_EQ(INF_CMD.Caption(), "Reverse mask pen");
}

}  // namespace
}  // namespace kiso
