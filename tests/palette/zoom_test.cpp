// The zoom buttons of the expansion palette, the pen bar and the UNDO button.
#include "palette/palette_fixture.h"

namespace kiso {
namespace {

TEST_F(Palette, ZoomingInAsksForAClick) {
  expand(0, 100, 100);
  click(CMD_WIN.EXP_B(2));
  click(CMD_WIN.EXP_M2(3));
  EXPECT_EQ(CUR_TOOL, 10008);
  EXPECT_EQ(EXP_RATE, 2);
  EXPECT_EQ(pressed(CMD_WIN.EXP_M2), Pressed{3});
  stage::click(100, 100);
  EXPECT_EQ(EXP_RATE, 8);
}

TEST_F(Palette, ThePresentRateChangesNothing) {
  expand(1, 100, 100);
  click(CMD_WIN.EXP_M1(3));
  click(CMD_WIN.EXP_B(2));
  const int x = VIEW_ORG(1);
  const int y = VIEW_ORG(2);
  click(CMD_WIN.EXP_M2(2));
  EXPECT_EQ(CUR_TOOL, 10);
  EXPECT_EQ(EXP_RATE, 4);
  EXPECT_EQ(VIEW_ORG(1), x);
  EXPECT_EQ(VIEW_ORG(2), y);
  EXPECT_EQ(EXP_GROUP, 2);
  EXPECT_TRUE(in_front(CMD_WIN.EXP_M(2)));
}

TEST_F(Palette, ZoomingOutKeepsTheCentreAtOnce) {
  expand(2, 320, 240);
  const double x = VIEW_ORG(1) + VIEW_PIX(1) / 2.0;
  const double y = VIEW_ORG(2) + VIEW_PIX(2) / 2.0;
  click(CMD_WIN.EXP_M1(3));
  click(CMD_WIN.EXP_B(2));
  click(CMD_WIN.EXP_M2(2));
  EXPECT_EQ(EXP_RATE, 4);
  EXPECT_EQ(CUR_TOOL, 10) << "the tool stays";
  EXPECT_NEAR(VIEW_ORG(1) + VIEW_PIX(1) / 2.0, x, 1);
  EXPECT_NEAR(VIEW_ORG(2) + VIEW_PIX(2) / 2.0, y, 1);
  EXPECT_EQ(X_SC.Value(), VIEW_ORG(1));
  EXPECT_EQ(Y_SC.Value(), VIEW_ORG(2));
  EXPECT_TRUE(DRAW.Visible());
}

TEST_F(Palette, AFloatingAreaIsDroppedByAZoomOut) {
  expand(2, 320, 240);
  click(CMD_WIN.EXP_M1(6));
  CUR_TOOL = 11101;
  WORK.Visible(true);
  click(CMD_WIN.EXP_B(2));
  click(CMD_WIN.EXP_M2(1));
  EXPECT_EQ(CUR_TOOL, 11100);
  EXPECT_FALSE(WORK.Visible());
}

TEST_F(Palette, AfterAZoomClickTheToolIsTheLastOneOfTheExpansionPalette) {
  expand(0, 100, 100);
  EXPECT_EQ(CUR_TOOL, 0) << "none has been chosen so far";
  click(CMD_WIN.EXP_M1(13));
  click(CMD_WIN.EXP_B(2));
  click(CMD_WIN.EXP_M2(2));
  stage::click(100, 100);
  EXPECT_EQ(EXP_RATE, 4);
  EXPECT_EQ(CUR_TOOL, 11003);
}

TEST_F(Palette, ThePenBarSetsThePen) {
  EXPECT_EQ(CMD_WIN.PEN_SZ_SB.Min(), 1);
  EXPECT_EQ(CMD_WIN.PEN_SZ_SB.Max(), 33);
  EXPECT_EQ(CMD_WIN.PEN_SZ.Caption(), " 1");
  enter([] { CMD_WIN.PEN_SZ_SB.Value(12); });
  EXPECT_EQ(PEN_SIZE, 12);
  EXPECT_EQ(CMD_WIN.PEN_SZ.Caption(), " 12");
}

TEST_F(Palette, ThePageKeysMoveThePenBar) {
  stage::key(33);
  stage::key(33);
  EXPECT_EQ(PEN_SIZE, 3);
  EXPECT_EQ(CMD_WIN.PEN_SZ.Caption(), " 3");
  stage::key(34);
  EXPECT_EQ(PEN_SIZE, 2);
  EXPECT_EQ(CMD_WIN.PEN_SZ.Caption(), " 2");
  enter([] { CMD_WIN.PEN_SZ_SB.Value(33); });
  stage::key(33);
  EXPECT_EQ(CMD_WIN.PEN_SZ.Caption(), " 33");
}

TEST_F(Palette, UndoIsLitByAStrokeAndTakesItBack) {
  EXPECT_FALSE(CMD_WIN.UNDO.Enabled());
  const Colour before = GetPixel(PIC, 20, 20);
  click(CMD_WIN.CMD_B(0));
  stage::click(20, 20);
  EXPECT_TRUE(CMD_WIN.UNDO.Enabled());
  const Colour drawn = GetPixel(PIC, 20, 20);
  EXPECT_NE(drawn, before);
  enter([] { CMD_WIN.UNDO.Click.fire(-1); });
  EXPECT_EQ(GetPixel(PIC, 20, 20), before);
  enter([] { CMD_WIN.UNDO.Click.fire(-1); });
  EXPECT_EQ(GetPixel(PIC, 20, 20), drawn) << "a second time it is a redo";
}

TEST_F(Palette, UndoButtonNumbers) {
  for (const auto& [n, enabled] : {std::pair{0, true}, {2, false}, {1, true}, {-1, false}}) {
    UNDO_BUTTON(n);
    EXPECT_EQ(CMD_WIN.UNDO.Enabled(), enabled) << n;
  }
}

TEST_F(Palette, UndoDropsAPolygonThatIsBeingDrawn) {
  click(CMD_WIN.CMD_B(0));
  stage::click(20, 20);
  CUR_TOOL = 5027;
  enter([] { CMD_WIN.UNDO.Click.fire(-1); });
  EXPECT_EQ(CUR_TOOL, 27);
  CUR_TOOL = 12029;
  WORK.Visible(true);
  enter([] { CMD_WIN.UNDO.Click.fire(-1); });
  EXPECT_EQ(CUR_TOOL, 11029);
  EXPECT_FALSE(WORK.Visible());
}

}  // namespace
}  // namespace kiso
