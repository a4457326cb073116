// Polygon.
#include "tools_stage.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

const Picture TRIANGLE = {".......", ".#####.", ".####..", ".###...", ".##....", ".#.....", "......."};

TEST(Polygon, FillsWhenItsLastVertexIsPressedAgain) {
  stage::stage(plain(7, 7));
  first_edge(27, 1, 1, 5, 1);
  EXPECT_EQ(CUR_TOOL, 5027);
  EXPECT_EQ(POLY_N, 2);
  hover(1, 5);
  press(1, 5);
  EXPECT_EQ(CUR_TOOL, 6027);
  release(1, 5);
  EXPECT_EQ(CUR_TOOL, 5027);
  EXPECT_EQ(POLY_N, 3);
  EXPECT_PIC(plain(7, 7));
  EXPECT_EQ(UNDO_READY, 0);
  press(1, 5);
  EXPECT_EQ(CUR_TOOL, 7027);
  EXPECT_DRAW(TRIANGLE);
  release(1, 5);
  EXPECT_EQ(CUR_TOOL, 27);
  EXPECT_EQ(POLY_N, 0);
  EXPECT_PIC(TRIANGLE);
  EXPECT_EQ(UNDO_READY, 1);
  key(' ');
  EXPECT_PIC(plain(7, 7));
}

TEST(Polygon, PixelBesideTheLastVertexIsAFurtherVertex) {
  stage::stage(plain(7, 7));
  first_edge(27, 1, 1, 5, 1);
  next_vertex(5, 2);
  EXPECT_EQ(CUR_TOOL, 5027);
  EXPECT_EQ(POLY_N, 3);
}

TEST(Polygon, RubberLineStartsAtTheLastVertex) {
  stage::stage(plain(6, 4, 'y'));
  first_edge(27, 0, 0, 4, 0);
  // As a line from the pointer, its start left out.
  EXPECT_DRAW({"ybbbby", "yyyyyy", "yyyyyy", "yyyyyy"});
  hover(4, 3);
  // From the vertex, the pointer's pixel left out; at the vertex the two lines meet.
  EXPECT_DRAW({"ybbbyy", "yyyyby", "yyyyby", "yyyyyy"});
  hover(0, 0);
  EXPECT_DRAW({"yyyyyy", "yyyyyy", "yyyyyy", "yyyyyy"});
  hover(4, 0);
  EXPECT_DRAW({"ybbbby", "yyyyyy", "yyyyyy", "yyyyyy"});
}

TEST(Polygon, DoubleClickOnTheLastVertexFills) {
  stage::stage(plain(7, 7));
  first_edge(27, 1, 1, 5, 1);
  next_vertex(1, 5);
  double_click(1, 5);
  EXPECT_PIC(TRIANGLE);
  EXPECT_EQ(CUR_TOOL, 27);
  EXPECT_EQ(STROKE_STATE, 2);
  EXPECT_EQ(UNDO_READY, 1);
  EXPECT_EQ(PEN_DOWN, 0);
  EXPECT_TRUE(CMD_WIN.UNDO.Enabled());
}

TEST(Polygon, DoubleClickElsewhereDoesNothing) {
  stage::stage(plain(7, 7));
  first_edge(27, 1, 1, 5, 1);
  hover(1, 5);
  const Picture before = text_of(DRAW.target());
  double_click(1, 5);
  EXPECT_EQ(CUR_TOOL, 5027);
  EXPECT_EQ(POLY_N, 2);
  EXPECT_EQ(text_of(DRAW.target()), before);
}

TEST(Polygon, OverlapsAreFilledToo) {
  stage::stage(plain(9, 9));
  first_edge(27, 1, 1, 7, 1);
  // An outer square and an inner one, both clockwise: what lies in both winds twice.
  for (const auto& [x, y] : {std::pair{7, 7}, {1, 7}, {1, 1}, {3, 3}, {5, 3}, {5, 5}, {3, 5}, {3, 3}})
    next_vertex(static_cast<float>(x), static_cast<float>(y));
  next_vertex(3, 3);
  Picture square = plain(9, 9);
  for (size_t y = 1; y <= 7; ++y) square[y] = ".#######.";
  EXPECT_PIC(square);
}

TEST(Polygon, ClickWithoutADragGivesTwoVerticesInOnePlace) {
  stage::stage(plain(5, 5, 'y'));
  select_tool(27);
  click(2, 2);
  EXPECT_EQ(POLY_N, 2);
  EXPECT_EQ(CUR_TOOL, 5027);
  click(2, 2);
  EXPECT_EQ(CUR_TOOL, 27);
  EXPECT_PIC(plain(5, 5, 'y'));  // a polygon without an area
  EXPECT_EQ(STROKE_STATE, 2);
  EXPECT_EQ(UNDO_READY, 1);
}

TEST(Polygon, TellsHowManyPointsAreLeft) {
  stage_with_status(plain(9, 9));
  select_tool(27);
  press(1, 1);
  EXPECT_EQ(INF_SUB.Caption(), "あと 255点");
  drag(5, 1);
  release(5, 1);
  next_vertex(5, 5);
  EXPECT_EQ(INF_SUB.Caption(), "あと 253点");
  next_vertex(1, 5);
  EXPECT_EQ(INF_SUB.Caption(), "あと 252点");
  next_vertex(1, 5);
  EXPECT_EQ(INF_SUB.Caption(), " ");
}

TEST(Polygon, TakesThe256thVertexAndDropsAllAtTheNextPress) {
  stage_with_status(plain(260, 6));
  longest_chain(27);
  EXPECT_EQ(POLY_N, 256);
  EXPECT_EQ(CUR_TOOL, 5027);
  EXPECT_EQ(INF_SUB.Caption(), "あと 0点");
  hover(100, 5);
  press(100, 5);
  EXPECT_EQ(CUR_TOOL, 7027);
  EXPECT_EQ(POLY_N, 0);
  EXPECT_DRAW(plain(260, 6));
  EXPECT_EQ(INF_SUB.Caption(), " ");
  release(100, 5);
  EXPECT_EQ(CUR_TOOL, 27);
  EXPECT_PIC(plain(260, 6));
}

TEST(Polygon, FillsWithAll256Vertices) {
  stage::stage(plain(260, 6));
  longest_chain(27);
  click(255, 1);
  EXPECT_EQ(CUR_TOOL, 27);
  const Picture filled = text_of(PIC.Image());
  EXPECT_NE(filled, plain(260, 6));
  // Every vertex is a pixel of the outline.
  for (size_t x = 0; x < 256; ++x) EXPECT_EQ(filled[x % 2][x], '#') << x;
}

TEST(Polygon, FirstEdgeOfAWidePenStaysBesideTheFill) {
  stage::stage(plain(9, 7));
  pen(3);
  target_colour('r');
  first_edge(27, 2, 2, 6, 2);
  next_vertex(4, 4);
  click(4, 4);
  const Picture painted = text_of(PIC.Image());
  EXPECT_EQ(painted[0], ".........");
  EXPECT_EQ(painted[1].substr(2, 5), "#####");  // the rubber line's upper row
  EXPECT_EQ(painted[2].substr(2, 5), "rrrrr");
  EXPECT_EQ(painted[3].substr(3, 3), "rrr");
  EXPECT_EQ(painted[4], "....r....");  // the other edges' rubber lines were one pixel wide
}

TEST(Polygon, RightButtonBetweenClicksOnlyTogglesThePalettes) {
  stage::stage(plain(7, 7));
  first_edge(27, 1, 1, 5, 1);
  hover(1, 5);
  const Picture before = text_of(DRAW.target());
  const int shown = PAL_SHOWN;
  press(1, 5, 2);
  release(1, 5, 2);
  EXPECT_EQ(PAL_SHOWN, 1 - shown);
  EXPECT_EQ(CUR_TOOL, 5027);
  EXPECT_EQ(text_of(DRAW.target()), before);
}

TEST(Polygon, BlankCancelsIt) {
  stage_with_status(plain(7, 7));
  first_edge(27, 1, 1, 5, 1);
  next_vertex(1, 5);
  key(' ');
  EXPECT_EQ(CUR_TOOL, 27);
  EXPECT_EQ(POLY_N, 0);
  EXPECT_DRAW(plain(7, 7));
  EXPECT_EQ(INF_SUB.Caption(), " ");
  hover(3, 3);
  EXPECT_DRAW(plain(7, 7));
}

TEST(Polygon, RightButtonWhileHeldCancelsInEveryState) {
  stage::stage(plain(7, 7));
  select_tool(27);
  press(1, 1);
  drag(5, 1);
  press(5, 1, 2);
  release(5, 1);
  EXPECT_EQ(CUR_TOOL, 27);
  EXPECT_DRAW(plain(7, 7));

  first_edge(27, 1, 1, 5, 1);
  press(3, 3);
  EXPECT_EQ(CUR_TOOL, 6027);
  press(3, 3, 2);
  release(3, 3);
  EXPECT_EQ(CUR_TOOL, 27);
  EXPECT_EQ(POLY_N, 0);
  EXPECT_DRAW(plain(7, 7));

  first_edge(27, 1, 1, 5, 1);
  press(5, 1);
  EXPECT_EQ(CUR_TOOL, 7027);
  press(5, 1, 2);
  release(5, 1);
  EXPECT_EQ(CUR_TOOL, 27);
  EXPECT_DRAW(plain(7, 7));
  EXPECT_PIC(plain(7, 7));
}

TEST(Polygon, UndoButtonDropsItAndRepaints) {
  stage::stage(plain(7, 7));
  click(6, 6);  // Pset: something to undo
  first_edge(27, 1, 1, 5, 1);
  hover(3, 3);
  forms::enter([] { CMD_WIN.UNDO.Click.fire(-1); });
  EXPECT_EQ(CUR_TOOL, 27);
  Picture dot = plain(7, 7);
  dot[6][6] = '#';
  EXPECT_DRAW(dot);
  EXPECT_PIC(dot);
}

TEST(Polygon, ScrollDropsIt) {
  stage_with_status(plain(40, 20));
  view(20, 20);
  first_edge(27, 1, 1, 5, 1);
  next_vertex(3, 9);
  forms::enter([] { X_SC.Value(2); });
  EXPECT_EQ(CUR_TOOL, 27);
  EXPECT_EQ(POLY_N, 0);
  EXPECT_EQ(INF_SUB.Caption(), " ");
  hover(8, 8);
  EXPECT_DRAW(plain(20, 20));
}

TEST(Polygon, GoesOnAfterARepaintWithoutATrace) {
  stage::stage(plain(7, 7));
  first_edge(27, 1, 1, 5, 1);
  hover(6, 6);
  repaint();
  EXPECT_EQ(CUR_TOOL, 5027);
  hover(2, 6);
  next_vertex(1, 5);
  click(1, 5);
  EXPECT_PIC(TRIANGLE);
}

TEST(Polygon, PressWhereNoMoveHasLedLeavesNoTrace) {
  stage::stage(plain(7, 7));
  first_edge(27, 1, 1, 5, 1);
  hover(6, 6);
  click(1, 5);
  click(1, 5);
  EXPECT_PIC(TRIANGLE);
}

TEST(Polygon, ReleaseWhereNoMoveHasLedLeavesNoTrace) {
  stage::stage(plain(7, 7));
  select_tool(27);
  press(1, 1);
  drag(5, 6);
  release(5, 1);
  next_vertex(1, 5);
  click(1, 5);
  EXPECT_PIC(TRIANGLE);
}

}  // namespace
