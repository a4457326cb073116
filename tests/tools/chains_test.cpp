// Polygon and Line(Type2) at x1: tools of several clicks.
#include "tools_stage.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

// Drags the first edge of a tool of several clicks.
void first_edge(int tool, float x1, float y1, float x2, float y2) {
  select_tool(tool);
  press(x1, y1);
  drag(x2, y2);
  release(x2, y2);
}
void next_vertex(float x, float y) {
  hover(x, y);
  click(x, y);
}
void repaint() { forms::enter([] { VIEW_FIT(); }); }  // as after a change of the window's size

// 256 vertices of a zigzag on rows 0 and 1, the last one at x = 255.
void longest_chain(int tool) {
  first_edge(tool, 0, 0, 1, 1);
  for (int i = 2; i < 256; ++i) next_vertex(static_cast<float>(i), static_cast<float>(i % 2));
}

const Picture TRIANGLE = {".......", ".#####.", ".####..", ".###...", ".##....", ".#.....", "......."};

// --- Polygon

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
  stage::stage(plain(40, 20));
  view(20, 20);
  first_edge(27, 1, 1, 5, 1);
  next_vertex(3, 9);
  forms::enter([] { X_SC.Value(2); });
  EXPECT_EQ(CUR_TOOL, 27);
  EXPECT_EQ(POLY_N, 0);
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

// --- Line(Type2)

TEST(LineType2, PaintsEachSegmentAtOnceAndCommitsTheChainAsOne) {
  stage::stage(plain(9, 7, 'y'));
  target_colour('r');
  first_edge(29, 1, 1, 5, 1);
  EXPECT_EQ(CUR_TOOL, 5029);
  EXPECT_EQ(POLY_N, 2);
  // A line one pixel wide leaves out its last point.
  const Picture one = {"yyyyyyyyy", "yrrrryyyy", "yyyyyyyyy", "yyyyyyyyy", "yyyyyyyyy", "yyyyyyyyy", "yyyyyyyyy"};
  EXPECT_DRAW(one);
  hover(5, 4);
  press(5, 4);
  EXPECT_EQ(CUR_TOOL, 6029);
  release(5, 4);
  EXPECT_EQ(CUR_TOOL, 5029);
  const Picture two = {"yyyyyyyyy", "yrrrrryyy", "yyyyyryyy", "yyyyyryyy", "yyyyyyyyy", "yyyyyyyyy", "yyyyyyyyy"};
  EXPECT_DRAW(two);
  EXPECT_PIC(plain(9, 7, 'y'));
  EXPECT_EQ(UNDO_READY, 0);
  press(5, 4);
  EXPECT_EQ(CUR_TOOL, 7029);
  EXPECT_EQ(POLY_N, 0);
  release(5, 4);
  EXPECT_EQ(CUR_TOOL, 29);
  EXPECT_PIC(two);
  key(' ');
  EXPECT_PIC(plain(9, 7, 'y'));
}

TEST(LineType2, RubberLineOfTheFirstSegmentIsOnePixelWide) {
  stage::stage(plain(7, 3, 'y'));
  pen(9);
  select_tool(29);
  press(1, 1);
  EXPECT_DRAW(plain(7, 3, 'y'));
  drag(5, 1);
  EXPECT_DRAW({"yyyyyyy", "yybbbby", "yyyyyyy"});
}

TEST(LineType2, FirstSegmentIsOnePixelWideTheOthersAreAsWideAsThePen) {
  stage::stage(plain(13, 13));
  pen(3);
  first_edge(29, 2, 2, 9, 2);
  EXPECT_EQ(text_of(DRAW.target())[2], "..#######....");
  next_vertex(9, 10);
  EXPECT_EQ(text_of(DRAW.target())[6], "........###..");
}

TEST(LineType2, OneSegmentLeavesNoTraceOfItsRubberLine) {
  stage::stage(plain(7, 3, 'y'));
  target_colour('r');
  first_edge(29, 1, 1, 5, 1);
  click(5, 1);
  EXPECT_PIC({"yyyyyyy", "yrrrryy", "yyyyyyy"});
}

TEST(LineType2, EachSegmentHasTheColourOfItsPress) {
  stage::stage(plain(9, 3));
  target_colour('r');
  first_edge(29, 0, 1, 3, 1);
  target_colour('g');
  next_vertex(6, 1);
  target_colour('b');
  next_vertex(8, 1);
  EXPECT_EQ(POLY_COL(0), static_cast<int32_t>(colour_of('r')));
  EXPECT_EQ(POLY_COL(1), static_cast<int32_t>(colour_of('g')));
  EXPECT_EQ(POLY_COL(2), static_cast<int32_t>(colour_of('b')));
  click(8, 1);
  EXPECT_PIC({".........", "rrrgggbb.", "........."});
}

TEST(LineType2, DoubleClickOnTheLastVertexEndsIt) {
  stage::stage(plain(9, 3));
  first_edge(29, 0, 1, 3, 1);
  next_vertex(6, 1);
  double_click(6, 1);
  EXPECT_EQ(CUR_TOOL, 29);
  EXPECT_EQ(PEN_DOWN, 0);
  EXPECT_EQ(STROKE_STATE, 2);
  EXPECT_EQ(UNDO_READY, 1);
  EXPECT_PIC({".........", "######...", "........."});
}

TEST(LineType2, DoubleClickElsewhereIsAPressLikeAnyOther) {
  stage::stage(plain(9, 3));
  first_edge(29, 0, 1, 3, 1);
  hover(6, 1);
  forms::enter([] { DRAW.DblClick.fire(-1); });
  EXPECT_EQ(CUR_TOOL, 6029);
  EXPECT_EQ(PEN_DOWN, 1);
  release(6, 1);
  EXPECT_EQ(CUR_TOOL, 5029);
  EXPECT_EQ(PEN_DOWN, 0);
  EXPECT_EQ(POLY_N, 3);
  EXPECT_DRAW({".........", "######...", "........."});
}

TEST(LineType2, TellsHowManyPointsAreLeft) {
  stage_with_status(plain(9, 9));
  first_edge(29, 1, 1, 5, 1);
  next_vertex(5, 5);
  EXPECT_EQ(INF_SUB.Caption(), "あと 253点");
  click(5, 5);
  EXPECT_EQ(INF_SUB.Caption(), " ");
}

TEST(LineType2, PressPastTheLimitDropsTheWholeChain) {
  stage_with_status(plain(260, 6));
  longest_chain(29);
  EXPECT_EQ(POLY_N, 256);
  EXPECT_NE(text_of(DRAW.target()), plain(260, 6));
  hover(100, 5);
  press(100, 5);
  EXPECT_EQ(CUR_TOOL, 7029);
  EXPECT_EQ(POLY_N, 0);
  EXPECT_DRAW(plain(260, 6));
  EXPECT_EQ(INF_SUB.Caption(), " ");
  release(100, 5);
  EXPECT_EQ(CUR_TOOL, 29);
  EXPECT_PIC(plain(260, 6));
}

TEST(LineType2, BlankDropsTheWholeChain) {
  stage::stage(plain(9, 7));
  first_edge(29, 1, 1, 5, 1);
  next_vertex(5, 4);
  hover(2, 2);
  key(' ');
  EXPECT_EQ(CUR_TOOL, 29);
  EXPECT_EQ(POLY_N, 0);
  EXPECT_DRAW(plain(9, 7));
  EXPECT_PIC(plain(9, 7));
}

TEST(LineType2, RightButtonWhileHeldDropsTheWholeChain) {
  stage::stage(plain(9, 7));
  first_edge(29, 1, 1, 5, 1);
  press(5, 4);
  press(5, 4, 2);
  release(5, 4);
  EXPECT_EQ(CUR_TOOL, 29);
  EXPECT_EQ(POLY_N, 0);
  EXPECT_DRAW(plain(9, 7));
}

TEST(LineType2, SmallerPenLeavesNoTraceOfTheWiderRubberLine) {
  stage::stage(plain(15, 15, 'y'));
  target_colour('r');
  first_edge(29, 1, 7, 5, 7);
  pen(7);
  next_vertex(9, 7);
  hover(9, 2);
  hover(9, 13);  // a rubber line seven pixels wide
  pen(1);
  click(9, 13);
  // The wide segment is one region seven rows high; only the new one lies below it.
  const Picture painted = text_of(DRAW.target());
  EXPECT_EQ(painted[11], "yyyyyyyyyryyyyy");
  EXPECT_EQ(painted[12], "yyyyyyyyyryyyyy");
  EXPECT_EQ(painted[13], "yyyyyyyyyyyyyyy");
  for (const std::string& row : painted) EXPECT_EQ(row.find_first_not_of("yr"), std::string::npos) << row;
}

TEST(LineType2, GoesOnAfterARepaintWithoutATrace) {
  stage::stage(plain(9, 7));
  first_edge(29, 1, 1, 5, 1);
  hover(8, 6);
  repaint();
  EXPECT_EQ(CUR_TOOL, 5029);
  hover(2, 6);
  next_vertex(5, 4);
  // What was painted before the repaint is gone.
  EXPECT_DRAW({".........", ".....#...", ".....#...", ".....#...", ".........", ".........", "........."});
}

}  // namespace
