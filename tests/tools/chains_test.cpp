// Line(Type2) at x1: a chain of segments.
#include "tools_stage.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

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
