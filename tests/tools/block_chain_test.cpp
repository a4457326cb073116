// Line(Type2) at expansion: PEN_DOWN stays 1 from the first press to the closing click.
#include "tools_stage.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

constexpr int RATE = 4;
float at(int pixel) { return static_cast<float>(RATE * pixel + 1); }

void first_segment(int x1, int y1, int x2, int y2) {
  select_tool(11029);
  press(at(x1), at(y1));
  drag(at(x2), at(y2));
  release(at(x2), at(y2));
}
void chain_click(int x, int y) {
  hover(at(x), at(y));
  click(at(x), at(y));
}

void stage_yellow() {
  stage::stage(plain(9, 6, 'y'));
  zoom(RATE);
  target_colour('r');
}
const Picture TWO_SEGMENTS = {"yyyyyyyyy", "yrrrrryyy", "yyyyyryyy", "yyyyyryyy", "yyyyyryyy", "yyyyyyyyy"};

TEST(BlockChain, GoesOnUntilItsLastVertexIsClicked) {
  stage_yellow();
  first_segment(1, 1, 5, 1);
  EXPECT_EQ(CUR_TOOL, 12029);
  EXPECT_EQ(PEN_DOWN, 1);
  EXPECT_EQ(UNDO_READY, 0);
  const Picture one = {"yyyyyyyyy", "yrrrrryyy", "yyyyyyyyy", "yyyyyyyyy", "yyyyyyyyy", "yyyyyyyyy"};
  EXPECT_DRAW(enlarged(one, RATE));
  hover(at(5), at(4));
  // The rubber line with a dot at both ends: at the vertex line and dot are one in XOR.
  EXPECT_DRAW(enlarged({"yyyyyyyyy", "yrrrrryyy", "yyyyybyyy", "yyyyybyyy", "yyyyybyyy", "yyyyyyyyy"}, RATE));
  press(at(5), at(4));
  EXPECT_EQ(CUR_TOOL, 11029);
  release(at(5), at(4));
  EXPECT_EQ(CUR_TOOL, 12029);
  EXPECT_DRAW(enlarged(TWO_SEGMENTS, RATE));
  EXPECT_PIC(plain(9, 6, 'y'));
  press(at(5), at(4));
  EXPECT_EQ(CUR_TOOL, 13029);
  release(at(5), at(4));
  EXPECT_EQ(CUR_TOOL, 11029);
  EXPECT_EQ(PEN_DOWN, 0);
  EXPECT_EQ(PREVIEW_ON, 0);
  EXPECT_TRUE(DRAW.AutoRedraw());
  EXPECT_EQ(UNDO_READY, 1);
  EXPECT_EQ(STROKE_STATE, 2);
  EXPECT_PIC(TWO_SEGMENTS);
  EXPECT_DRAW(enlarged(TWO_SEGMENTS, RATE));
  key(' ');
  EXPECT_PIC(plain(9, 6, 'y'));
}

TEST(BlockChain, DoubleClickOnTheLastVertexEndsIt) {
  stage_yellow();
  first_segment(1, 1, 5, 1);
  chain_click(5, 4);
  double_click(at(5), at(4));
  EXPECT_EQ(CUR_TOOL, 11029);
  EXPECT_EQ(PEN_DOWN, 0);
  EXPECT_PIC(TWO_SEGMENTS);
}

TEST(BlockChain, DoubleClickElsewhereIsAPressLikeAnyOther) {
  stage_yellow();
  first_segment(1, 1, 5, 1);
  hover(at(5), at(4));
  double_click(at(5), at(4));
  EXPECT_EQ(CUR_TOOL, 12029);
  EXPECT_DRAW(enlarged(TWO_SEGMENTS, RATE));
}

TEST(BlockChain, FurtherSegmentsMayBeDragged) {
  stage_yellow();
  first_segment(1, 1, 3, 1);
  hover(at(5), at(1));
  press(at(5), at(1));
  drag(at(7), at(5));
  drag(at(5), at(4));
  release(at(5), at(4));
  EXPECT_DRAW(enlarged(TWO_SEGMENTS, RATE));
}

TEST(BlockChain, RubberLineOfNoLengthIsTheDotOfAWidePen) {
  stage_yellow();
  pen(3);
  first_segment(2, 2, 5, 2);
  const auto vertex = [] { return letter_of(GetPixel(DRAW, static_cast<int>(at(5)), static_cast<int>(at(2)))); };
  EXPECT_NE(vertex(), 'r');
  hover(at(8), at(4));
  EXPECT_NE(vertex(), 'r');
  press(at(8), at(4));
  EXPECT_EQ(vertex(), 'r');
}

TEST(BlockChain, WideDotOfAVertexLeavesNoTrace) {
  stage_yellow();
  target_colour('y');
  pen(5);
  first_segment(2, 2, 6, 2);
  hover(at(1), at(5));
  hover(at(6), at(2));
  click(at(6), at(2));
  EXPECT_PIC(plain(9, 6, 'y'));
}

TEST(BlockChain, BlankDropsAllOfIt) {
  stage_yellow();
  first_segment(1, 1, 5, 1);
  chain_click(5, 4);
  hover(at(0), at(0));
  key(' ');
  EXPECT_EQ(CUR_TOOL, 11029);
  EXPECT_EQ(PEN_DOWN, 0);
  EXPECT_EQ(PREVIEW_ON, 0);
  EXPECT_DRAW(enlarged(plain(9, 6, 'y'), RATE));
  EXPECT_PIC(plain(9, 6, 'y'));
  first_segment(0, 0, 1, 0);
  EXPECT_DRAW(enlarged({"rryyyyyyy", "yyyyyyyyy", "yyyyyyyyy", "yyyyyyyyy", "yyyyyyyyy", "yyyyyyyyy"}, RATE));
}

TEST(BlockChain, ScrollDropsAllOfIt) {
  stage::stage(plain(24, 4, 'y'));
  view(64, 16);
  zoom(RATE);
  first_segment(1, 1, 5, 1);
  hover(at(3), at(3));
  forms::enter([] { X_SC.Value(2); });
  EXPECT_EQ(CUR_TOOL, 11029);
  EXPECT_EQ(PEN_DOWN, 0);
  EXPECT_DRAW(enlarged(plain(16, 4, 'y'), RATE));
}

TEST(BlockChain, NewSizeOfTheWindowDropsAllOfIt) {
  stage_yellow();
  first_segment(1, 1, 5, 1);
  repaint();
  EXPECT_EQ(CUR_TOOL, 11029);
  EXPECT_EQ(PEN_DOWN, 0);
  EXPECT_DRAW(enlarged(plain(9, 6, 'y'), RATE));
}

// The right button takes what was painted, not the state: the chain goes on from its last vertex.
TEST(BlockChain, RightButtonThrowsThePaintedSegmentsAway) {
  stage_yellow();
  first_segment(1, 1, 5, 1);
  hover(at(2), at(5));
  press(at(2), at(5), 2);
  release(at(2), at(5), 2);
  EXPECT_EQ(CUR_TOOL, 12029);
  EXPECT_EQ(PEN_DOWN, 0);
  EXPECT_DRAW(enlarged(plain(9, 6, 'y'), RATE));
  hover(at(8), at(0));
  EXPECT_DRAW(enlarged(plain(9, 6, 'y'), RATE));
  chain_click(5, 4);
  click(at(5), at(4));
  EXPECT_EQ(CUR_TOOL, 11029);
  EXPECT_PIC({"yyyyyyyyy", "yyyyyryyy", "yyyyyryyy", "yyyyyryyy", "yyyyyryyy", "yyyyyyyyy"});
}

TEST(BlockChain, RightButtonDuringTheClosingClickCommitsNothing) {
  stage_yellow();
  first_segment(1, 1, 5, 1);
  press(at(5), at(1));
  EXPECT_EQ(CUR_TOOL, 13029);
  press(at(5), at(1), 2);
  release(at(5), at(1));
  click(at(3), at(3));
  EXPECT_PIC(plain(9, 6, 'y'));
  EXPECT_EQ(CUR_TOOL, 11029);
}

TEST(BlockChain, KeysOfScrollAndPenAreDeafWhileItRuns) {
  stage::stage(plain(24, 4, 'y'));
  view(64, 16);
  zoom(RATE);
  first_segment(1, 1, 5, 1);
  key(33);  // page up
  key(39);  // right
  EXPECT_EQ(PEN_SIZE, 1);
  EXPECT_EQ(X_SC.Value(), 0);
  EXPECT_EQ(CUR_TOOL, 12029);
}

}  // namespace
