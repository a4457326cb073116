// Which buttons look pressed, which panel lies in front, and how the two palettes replace each other.
#include "palette/palette_fixture.h"

namespace kiso {
namespace {

TEST_F(Palette, OpensWithTheDrawingPanelAndNoToolPressed) {
  EXPECT_EQ(pressed(CMD_WIN.ROOT_B), Pressed{0});
  EXPECT_EQ(pressed(CMD_WIN.EXP_B), Pressed{0});
  EXPECT_EQ(pressed(CMD_WIN.CMD_B), Pressed{});
  EXPECT_EQ(pressed(CMD_WIN.EDIT_B), Pressed{});
  EXPECT_EQ(pressed(CMD_WIN.EXP_M1), Pressed{});
  EXPECT_EQ(pressed(CMD_WIN.EXP_M2), Pressed{});
  EXPECT_TRUE(in_front(CMD_WIN.ROOT_B_BASE));
  EXPECT_TRUE(in_front(CMD_WIN.ROOT_M(0)));
  EXPECT_FALSE(in_front(CMD_WIN.EXP_B_BASE));
  EXPECT_FALSE(in_front(CMD_WIN.EXP_M(0)));
  for (int i = 1; i < 7; ++i) EXPECT_FALSE(CMD_WIN.ROOT_M(i).Visible()) << i;
}

TEST_F(Palette, OpensBelowTheColourWindow) {
  EXPECT_EQ(CMD_WIN.Caption(), "Kiso ");
  EXPECT_EQ(CMD_WIN.Top(), COL_WIN.Height() + 1);
  EXPECT_EQ(CMD_WIN.Left(), CMD_LEFT);
}

TEST_F(Palette, LeavesItsPlaceForTheSettings) {
  CMD_WIN.Move(1500, 3000);
  enter([] { CMD_WIN.Unload(); });
  EXPECT_EQ(CMD_LEFT, 1500);
  EXPECT_EQ(CMD_TOP, 3000);
}

TEST_F(Palette, ClosedByItsFrameItComesBackWithPenAndUndoAsTheyAre) {
  stage::pen(7);
  click(CMD_WIN.CMD_B(0));
  stage::click(20, 20);
  click(CMD_WIN.ROOT_B(4));
  enter([] { CMD_WIN.Unload(); });
  stage::press(20, 20, RIGHT);  // palettes away
  stage::release(20, 20, RIGHT);
  stage::press(20, 20, RIGHT);  // and back
  EXPECT_TRUE(CMD_WIN.Visible());
  EXPECT_EQ(CMD_WIN.PEN_SZ.Caption(), " 7");
  EXPECT_EQ(CMD_WIN.PEN_SZ_SB.Value(), 7);
  EXPECT_TRUE(CMD_WIN.UNDO.Enabled());
  EXPECT_EQ(pressed(CMD_WIN.ROOT_B), Pressed{0});
  EXPECT_TRUE(in_front(CMD_WIN.ROOT_M(0)));
  EXPECT_FALSE(CMD_WIN.ROOT_M(4).Visible());
}

TEST_F(Palette, AGroupButtonOpensItsPanelAlone) {
  for (int k : {3, 6, 1, 2, 4, 5, 0}) {
    click(CMD_WIN.ROOT_B(k));
    EXPECT_EQ(pressed(CMD_WIN.ROOT_B), Pressed{k});
    EXPECT_EQ(ROOT_GROUP, k);
    EXPECT_TRUE(in_front(CMD_WIN.ROOT_M(k)));
    for (int i = 0; i < 7; ++i) EXPECT_EQ(CMD_WIN.ROOT_M(i).Visible(), i == k) << i;
  }
}

TEST_F(Palette, TheSameGroupButtonAgainLeavesItsPanelOpen) {
  click(CMD_WIN.ROOT_B(4));
  click(CMD_WIN.ROOT_B(4));
  EXPECT_TRUE(in_front(CMD_WIN.ROOT_M(4)));
  EXPECT_EQ(pressed(CMD_WIN.ROOT_B), Pressed{4});
}

TEST_F(Palette, ToolsAndZoomsRaiseEachOther) {
  click(CMD_WIN.CMD_B(3));
  click(CMD_WIN.ROOT_B(1));
  click(CMD_WIN.EDIT_B(2));
  EXPECT_EQ(pressed(CMD_WIN.CMD_B), Pressed{});
  EXPECT_EQ(pressed(CMD_WIN.EDIT_B), Pressed{2});
  click(CMD_WIN.ROOT_B(0));
  click(CMD_WIN.CMD_B(4));
  EXPECT_EQ(pressed(CMD_WIN.CMD_B), Pressed{4});
  EXPECT_EQ(pressed(CMD_WIN.EDIT_B), Pressed{});
  click(CMD_WIN.CMD_B(4));
  EXPECT_EQ(pressed(CMD_WIN.CMD_B), Pressed{4}) << "the same button again stays pressed";
}

TEST_F(Palette, AButtonWithoutACommandComesUpAgainAndKeepsTheTool) {
  click(CMD_WIN.CMD_B(5));
  click(CMD_WIN.CMD_B(20));
  EXPECT_EQ(CUR_TOOL, 6);
  EXPECT_EQ(pressed(CMD_WIN.CMD_B), Pressed{5});
}

TEST_F(Palette, TheFileButtonsKnowWhichMouseButtonItWas) {
  click(CMD_WIN.ROOT_B(2));
  enter([] {
    CMD_WIN.FILE_B(7).Enabled(true);
    CMD_WIN.FILE_B(7).Visible(true);
  });
  click(CMD_WIN.FILE_B(7), RIGHT);
  EXPECT_EQ(CMD_WIN.FILE_B_RIGHT, 1);
  click(CMD_WIN.FILE_B(7));
  EXPECT_EQ(CMD_WIN.FILE_B_RIGHT, 0);
}

TEST_F(Palette, AZoomBringsTheExpansionPaletteAndX1TheRootPaletteBack) {
  click(CMD_WIN.CMD_B(3));
  expand(1, 100, 100);
  EXPECT_EQ(EXP_RATE, 4);
  EXPECT_TRUE(in_front(CMD_WIN.EXP_B_BASE));
  EXPECT_TRUE(in_front(CMD_WIN.EXP_M(0)));
  EXPECT_FALSE(in_front(CMD_WIN.ROOT_B_BASE));
  EXPECT_FALSE(in_front(CMD_WIN.ROOT_M(1)));

  click(CMD_WIN.EXP_B(2));
  click(CMD_WIN.EXP_M2(0));
  EXPECT_EQ(EXP_RATE, 1);
  EXPECT_EQ(CUR_TOOL, 0);
  EXPECT_TRUE(in_front(CMD_WIN.ROOT_B_BASE));
  EXPECT_TRUE(in_front(CMD_WIN.ROOT_M(1))) << "the panel that was open before";
  EXPECT_FALSE(in_front(CMD_WIN.EXP_B_BASE));
  EXPECT_EQ(pressed(CMD_WIN.EXP_M2), Pressed{});
  EXPECT_EQ(pressed(CMD_WIN.EDIT_B), Pressed{});
}

TEST_F(Palette, ThePalettesCoverEachOtherWhole) {
  expand(0, 100, 100);
  const auto bottom = [](PictureBox& p) { return p.Top() + p.Height(); };
  EXPECT_EQ(CMD_WIN.EXP_B_BASE.Top(), CMD_WIN.ROOT_B_BASE.Top());
  EXPECT_EQ(bottom(CMD_WIN.EXP_B_BASE), CMD_WIN.EXP_M(0).Top()) << "nothing shines through between them";
  EXPECT_EQ(bottom(CMD_WIN.ROOT_B_BASE), CMD_WIN.ROOT_M(0).Top());
  EXPECT_EQ(bottom(CMD_WIN.EXP_M(0)), bottom(CMD_WIN.ROOT_M(0)));
  EXPECT_LE(bottom(CMD_WIN.ROOT_M(0)), CMD_WIN.PEN_SZ_SB.Top());
}

TEST_F(Palette, ZoomingOutOpensTheFirstExpansionPanel) {
  expand(2, 100, 100);
  click(CMD_WIN.EXP_B(1));
  click(CMD_WIN.EXP_B(2));
  click(CMD_WIN.EXP_M2(1));
  EXPECT_EQ(EXP_RATE, 2);
  EXPECT_EQ(EXP_GROUP, 0);
  EXPECT_EQ(pressed(CMD_WIN.EXP_B), Pressed{0});
  EXPECT_TRUE(in_front(CMD_WIN.EXP_M(0)));
  EXPECT_FALSE(CMD_WIN.EXP_M(1).Visible());
  EXPECT_TRUE(CMD_WIN.EXP_M(2).Visible()) << "it stays, behind the first panel";
  EXPECT_EQ(pressed(CMD_WIN.EXP_M2), Pressed{1});
}

TEST_F(Palette, ExpansionGroupButtonsSwitchPanels) {
  expand(0, 100, 100);
  for (int k : {1, 2, 2, 0}) {
    click(CMD_WIN.EXP_B(k));
    EXPECT_EQ(EXP_GROUP, k);
    EXPECT_EQ(pressed(CMD_WIN.EXP_B), Pressed{k});
    EXPECT_TRUE(in_front(CMD_WIN.EXP_M(k)));
  }
}

}  // namespace
}  // namespace kiso
