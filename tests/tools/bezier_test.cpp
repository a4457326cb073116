// Bezier Line: P0, P0, the pointer, P3.
#include "tools_stage.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

// Both are worked out by halving the points P0, P0, C, P3 in sixteenths of a pixel; the last point is left out.
const Picture BENT = {  // P0 2,1  C 6,7  P3 10,1
    "............", "..#.........", "...##....#..", ".....##.#...", ".......#....", "............", "............"};
const Picture STRAIGHT = {  // C between P0 and P3
    "............", "..########..", "............", "............", "............", "............", "............"};

void ends(float x1, float y1, float x2, float y2) {
  select_tool(31);
  press(x1, y1);
  drag(x2, y2);
  release(x2, y2);
}

TEST(Bezier, IsBentByThePointerAndPaintedByAPress) {
  stage::stage(plain(12, 7));
  ends(2, 1, 10, 1);
  EXPECT_EQ(CUR_TOOL, 1031);
  EXPECT_DRAW(STRAIGHT);  // the rubber curve, its inner point on P3
  hover(3, 6);
  EXPECT_EQ(CUR_TOOL, 1031);
  hover(6, 6);
  hover(6, 7);
  EXPECT_DRAW(BENT);
  EXPECT_PIC(plain(12, 7));
  press(6, 7);
  EXPECT_EQ(CUR_TOOL, 2031);
  release(6, 7);
  EXPECT_EQ(CUR_TOOL, 31);
  EXPECT_PIC(BENT);
  EXPECT_EQ(UNDO_READY, 1);
}

TEST(Bezier, AfterAClickBothEndsAreThere) {
  stage::stage(plain(12, 7));
  ends(2, 1, 10, 1);  // an end that the click has to take the place of
  press(6, 7);
  release(6, 7);
  press(4, 3);
  release(4, 3);
  EXPECT_EQ(CUR_TOOL, 5031);
  EXPECT_EQ(BEZ_P0(1), 4);
  EXPECT_EQ(BEZ_P0(2), 3);
  EXPECT_EQ(BEZ_P3(1), 4);
  EXPECT_EQ(BEZ_P3(2), 3);
  EXPECT_EQ(DRAW.ForeColor(), raster::WHITE);  // the rubber pen, though nothing shows yet
}

TEST(Bezier, RubberCurveIsInverted) {
  stage::stage(plain(12, 7, 'y'));
  target_colour('r');
  ends(2, 1, 10, 1);
  EXPECT_EQ(text_of(DRAW.target())[1], "yybbbbbbbbyy");
  hover(6, 1);
  EXPECT_EQ(text_of(DRAW.target())[1], "yybbbbbbbbyy");
  click(6, 1);
  EXPECT_EQ(text_of(PIC.Image())[1], "yyrrrrrrrryy");
}

TEST(Bezier, PressBendsItToThePressedPoint) {
  stage::stage(plain(12, 7));
  ends(2, 1, 10, 1);
  hover(3, 3);
  click(6, 7);
  EXPECT_PIC(BENT);
}

TEST(Bezier, ReleaseOfTheFirstDragCommitsNothingButTurnsUndoOn) {
  stage::stage(plain(12, 7));
  ends(2, 1, 10, 1);
  EXPECT_PIC(plain(12, 7));
  EXPECT_EQ(PEN_DOWN, 0);
  EXPECT_EQ(UNDO_READY, 1);
  EXPECT_TRUE(CMD_WIN.UNDO.Enabled());
}

TEST(Bezier, ClickWaitsForTheEndPoint) {
  stage_with_status(plain(12, 7));
  select_tool(31);
  click(2, 1);
  EXPECT_EQ(CUR_TOOL, 5031);
  EXPECT_EQ(INF_CMD.Caption(), "Bezier Line");
  EXPECT_DRAW(plain(12, 7));
  hover(5, 1);
  // From the pointer, the start left out.
  EXPECT_EQ(text_of(DRAW.target())[1], "...###......");
  hover(2, 4);
  hover(10, 1);
  press(10, 1);
  EXPECT_EQ(CUR_TOOL, 1031);
  EXPECT_DRAW(STRAIGHT);
  release(10, 1);
  EXPECT_EQ(CUR_TOOL, 1031);
  EXPECT_PIC(plain(12, 7));
  hover(6, 7);
  click(6, 7);
  EXPECT_PIC(BENT);
}

TEST(Bezier, EndPointOnTheStartIsNotTaken) {
  stage::stage(plain(12, 7));
  select_tool(31);
  click(2, 1);
  hover(7, 5);
  hover(2, 1);
  click(2, 1);
  EXPECT_EQ(CUR_TOOL, 5031);
  EXPECT_EQ(PEN_DOWN, 0);
  EXPECT_DRAW(plain(12, 7));
}

TEST(Bezier, DragBackToTheStartIsAClick) {
  stage::stage(plain(12, 7));
  select_tool(31);
  press(2, 1);
  drag(8, 5);
  release(2, 1);
  EXPECT_EQ(CUR_TOOL, 5031);
  EXPECT_DRAW(plain(12, 7));
  hover(10, 1);
  click(10, 1);
  hover(6, 7);
  click(6, 7);
  EXPECT_PIC(BENT);
}

TEST(Bezier, RightButtonBetweenClicksOnlyTogglesThePalettes) {
  stage::stage(plain(12, 7));
  ends(2, 1, 10, 1);
  const int shown = PAL_SHOWN;
  press(6, 7, 2);
  release(6, 7, 2);
  EXPECT_EQ(PAL_SHOWN, 1 - shown);
  EXPECT_EQ(CUR_TOOL, 1031);
  EXPECT_DRAW(STRAIGHT);
}

TEST(Bezier, RightButtonWhileHeldCancelsInEveryState) {
  stage::stage(plain(12, 7));
  select_tool(31);
  press(2, 1);
  drag(8, 5);
  press(8, 5, 2);
  release(8, 5);
  EXPECT_EQ(CUR_TOOL, 31);
  EXPECT_DRAW(plain(12, 7));

  ends(2, 1, 10, 1);
  press(6, 7);
  EXPECT_EQ(CUR_TOOL, 2031);
  press(6, 7, 2);
  release(6, 7);
  EXPECT_EQ(CUR_TOOL, 31);
  EXPECT_DRAW(plain(12, 7));
  EXPECT_PIC(plain(12, 7));

  select_tool(31);
  click(2, 1);
  press(10, 1);
  EXPECT_EQ(CUR_TOOL, 1031);
  press(10, 1, 2);
  release(10, 1);
  EXPECT_EQ(CUR_TOOL, 31);
  EXPECT_DRAW(plain(12, 7));
}

// The release that opens a curve counts as a stroke, so there is none to drop: the stroke before is undone with it.
TEST(Bezier, BlankTakesTheCurveAwayAndUndoesTheStrokeBefore) {
  stage::stage(plain(12, 7));
  click(11, 6);
  ends(2, 1, 10, 1);
  key(' ');
  EXPECT_EQ(CUR_TOOL, 31);
  EXPECT_DRAW(plain(12, 7));
  EXPECT_PIC(plain(12, 7));
  hover(5, 5);
  EXPECT_DRAW(plain(12, 7));
}

TEST(Bezier, SmallerPenLeavesNoTraceOfTheWiderCurve) {
  stage::stage(plain(12, 7));
  pen(5);
  ends(2, 1, 10, 1);
  hover(3, 3);
  pen(1);
  hover(6, 6);
  hover(6, 7);
  click(6, 7);
  EXPECT_PIC(BENT);
}

TEST(Bezier, SmallerPenLeavesNoTraceOfTheWiderLineToItsEnd) {
  stage::stage(plain(12, 7));
  pen(5);
  select_tool(31);
  click(2, 1);
  hover(3, 3);
  pen(1);
  hover(10, 1);
  click(10, 1);
  EXPECT_DRAW(STRAIGHT);
  hover(6, 7);
  click(6, 7);
  EXPECT_PIC(BENT);
}

TEST(Bezier, OutlivesAScrollWithoutATrace) {
  stage::stage(plain(30, 20));
  view(20, 20);
  ends(2, 1, 10, 1);
  hover(3, 6);
  forms::enter([] { X_SC.Value(4); });
  EXPECT_EQ(CUR_TOOL, 1031);
  EXPECT_DRAW(plain(20, 20));
  hover(5, 6);
  hover(6, 7);
  click(6, 7);
  Picture scrolled = plain(30, 20);
  for (size_t y = 0; y < BENT.size(); ++y) scrolled[y].replace(4, 12, BENT[y]);
  EXPECT_PIC(scrolled);
}

TEST(Bezier, OutlivesAnUndoWithoutATrace) {
  stage::stage(plain(12, 7));
  click(11, 6);
  ends(2, 1, 10, 1);
  hover(3, 6);
  forms::enter([] { CMD_WIN.UNDO.Click.fire(-1); });
  EXPECT_EQ(CUR_TOOL, 1031);
  EXPECT_DRAW(plain(12, 7));
  hover(6, 7);
  EXPECT_DRAW(BENT);
}

TEST(Bezier, LineToItsEndOutlivesARepaintWithoutATrace) {
  stage::stage(plain(12, 7));
  pen(3);
  select_tool(31);
  click(2, 1);
  hover(6, 6);
  forms::enter([] { VIEW_FIT(); });
  EXPECT_DRAW(plain(12, 7));
  hover(9, 3);
  hover(2, 1);
  EXPECT_DRAW(plain(12, 7));
}

}  // namespace
