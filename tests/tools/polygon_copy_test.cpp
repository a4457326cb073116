// Polygon Copy: the cut shape floats as a rectangle of the picture with the shape in it.
#include "tools_stage.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

// A triangle from 1,1 to 5,1 and 1,5. Its box is 4 x 4: the last column and the last row of the outline are left out.
const Picture WITH_TRIANGLE = {
    "yyyyyyyyyyyy", "yr.#gyyyyyyy", "y#.ryyyyyyyy", "ybbyyyyyyyyy",
    "yg#yyyyyyyyy", "yyyyyyyyyyyy", "yyyyyyyyyyyy", "yyyyyyyyyyyy",
};
const Picture CUT = {"r.#g", "#.ry", "bb##", "g###"};  // on black; y belongs to the outline
// The triangle once more, six to the right and three down.
const Picture STAMPED = {
    "yyyyyyyyyyyy", "yr.#gyyyyyyy", "y#.ryyyyyyyy", "ybbyyyyyyyyy",
    "yg#yyyr.#gyy", "yyyyyy#.ryyy", "yyyyyybbyyyy", "yyyyyyg#yyyy",
};

void cut_triangle() {
  first_edge(28, 1, 1, 5, 1);
  next_vertex(1, 5);
  click(1, 5);
}
void expect_dropped() {
  EXPECT_EQ(CUR_TOOL, 28);
  EXPECT_FALSE(WORK.Visible());
}

TEST(PolygonCopy, IsCutFloatsAndIsStamped) {
  stage_with_status(WITH_TRIANGLE);
  select_tool(28);
  press(1, 1);
  EXPECT_EQ(INF_SUB.Caption(), "あと 255点");
  drag(5, 1);
  release(5, 1);
  EXPECT_EQ(CUR_TOOL, 5028);
  EXPECT_EQ(POLY_N, 2);
  EXPECT_EQ(UNDO_READY, 0);
  hover(1, 5);
  press(1, 5);
  EXPECT_EQ(CUR_TOOL, 6028);
  EXPECT_EQ(INF_SUB.Caption(), "あと 253点");
  release(1, 5);
  EXPECT_EQ(CUR_TOOL, 5028);
  press(1, 5);
  EXPECT_EQ(CUR_TOOL, 8028);
  EXPECT_EQ(INF_SUB.Caption(), " ");
  EXPECT_DRAW(WITH_TRIANGLE);  // the rubber lines are gone
  EXPECT_TRUE(WORK.Visible());
  EXPECT_EQ(WORK.Left(), 1);
  EXPECT_EQ(WORK.Top(), 1);
  EXPECT_EQ(text_of(WORK.Image()), (Picture{"r.#g", "#.ry", "bbyy", "g#yy"}));
  release(1, 5);
  EXPECT_EQ(CUR_TOOL, 8028);
  EXPECT_PIC(WITH_TRIANGLE);
  hover(6, 8);
  EXPECT_EQ(WORK.Left(), 6);
  EXPECT_EQ(WORK.Top(), 4);
  EXPECT_DRAW(WITH_TRIANGLE);
  press(6, 8);
  EXPECT_EQ(CUR_TOOL, 7028);
  EXPECT_FALSE(WORK.Visible());
  EXPECT_DRAW(STAMPED);
  EXPECT_PIC(WITH_TRIANGLE);
  release(6, 8);
  EXPECT_EQ(CUR_TOOL, 28);
  EXPECT_PIC(STAMPED);
  key(' ');
  EXPECT_PIC(WITH_TRIANGLE);
}

TEST(PolygonCopy, SpriteShowsThePictureAsTheStampWouldLeaveIt) {
  stage::stage(WITH_TRIANGLE);
  cut_triangle();
  // Over itself, two to the right: its own pixels, and round them what lies there.
  hover(3, 5);
  EXPECT_EQ(text_of(WORK.Image()), (Picture{"r.#g", "#.ry", "bbyy", "g#yy"}));
  hover(1, 4);
  EXPECT_EQ(text_of(WORK.Image()), (Picture{"r.#g", "#.ry", "bbyy", "g#yy"}));
  const Picture busy = {"rgbrgb", "gbrgbr", "brgbrg", "......", "......", "......"};
  show(busy);
  first_edge(28, 1, 3, 3, 3);
  next_vertex(1, 5);
  click(1, 5);
  hover(3, 2);  // the white triangle of 2 x 2 over the colours
  EXPECT_EQ(text_of(WORK.Image()), (Picture{"..", ".."}));
  first_edge(28, 0, 3, 4, 3);
  next_vertex(0, 5);
  click(0, 5);
  hover(1, 2);
  EXPECT_EQ(text_of(WORK.Image()), (Picture{"....", "...b"}));
}

TEST(PolygonCopy, BlackAndWhiteAreCarriedAsTheyAre) {
  stage::stage({".#.#rrrr", "#.#.rrrr", ".#.#rrrr", "#.#.rrrr", "rrrrrrrr"});
  first_edge(28, 0, 0, 4, 0);
  next_vertex(4, 4);
  next_vertex(0, 4);
  click(0, 4);
  hover(4, 4);
  click(4, 4);
  EXPECT_PIC({".#.#.#.#", "#.#.#.#.", ".#.#.#.#", "#.#.#.#.", "rrrrrrrr"});
}

TEST(PolygonCopy, DoubleClickOnTheLastVertexCuts) {
  stage::stage(WITH_TRIANGLE);
  first_edge(28, 1, 1, 5, 1);
  next_vertex(1, 5);
  double_click(1, 5);
  EXPECT_EQ(CUR_TOOL, 8028);
  EXPECT_TRUE(WORK.Visible());
  EXPECT_DRAW(WITH_TRIANGLE);
  EXPECT_EQ(PEN_DOWN, 0);
  hover(6, 8);
  click(6, 8);
  EXPECT_PIC(STAMPED);
}

TEST(PolygonCopy, DoubleClickElsewhereDoesNothing) {
  stage::stage(WITH_TRIANGLE);
  first_edge(28, 1, 1, 5, 1);
  hover(1, 5);
  double_click(1, 5);
  EXPECT_EQ(CUR_TOOL, 5028);
  EXPECT_EQ(POLY_N, 2);
}

TEST(PolygonCopy, StampsWhereItIsPressedWithoutAMoveBefore) {
  stage::stage(WITH_TRIANGLE);
  cut_triangle();
  click(6, 8);
  EXPECT_PIC(STAMPED);
}

TEST(PolygonCopy, FractionsAreRoundedToTheEvenPixel) {
  stage::stage(WITH_TRIANGLE);
  cut_triangle();
  hover(6.5F, 7.5F);
  EXPECT_EQ(WORK.Left(), 6.5);
  EXPECT_EQ(WORK.Top(), 3.5);
  click(6.5F, 7.5F);
  EXPECT_PIC(STAMPED);
}

TEST(PolygonCopy, StampIsCutAtEachSideOfTheView) {
  // Held by its lower left corner, 1,5.
  const struct {
    float x, y;
    std::vector<std::string> cut;  // what of it reaches the picture
    int at_x, at_y;
  } stamps[] = {
      {-2, 6, {"#g", "ry"}, 0, 2},
      {10, 6, {"r.", "#.", "bb", "g#"}, 10, 2},
      {7, 2, {"bb", "g#"}, 7, 0},
      {7, 10, {"r.#g", "#.r"}, 7, 6},
  };
  stage::stage(WITH_TRIANGLE);
  for (const auto& stamp : stamps) {
    show(WITH_TRIANGLE);
    cut_triangle();
    hover(stamp.x, stamp.y);
    click(stamp.x, stamp.y);
    Picture wanted = WITH_TRIANGLE;
    for (size_t i = 0; i < stamp.cut.size(); ++i) {
      wanted[static_cast<size_t>(stamp.at_y) + i].replace(static_cast<size_t>(stamp.at_x), stamp.cut[i].size(),
                                                          stamp.cut[i]);
    }
    EXPECT_PIC(wanted) << stamp.x << ", " << stamp.y;
  }
}

TEST(PolygonCopy, TwoEqualPointsCloseAnEmptyBox) {
  stage::stage(WITH_TRIANGLE);
  select_tool(28);
  click(3, 3);
  EXPECT_EQ(POLY_N, 2);
  EXPECT_EQ(CUR_TOOL, 5028);
  click(3, 3);
  EXPECT_EQ(CUR_TOOL, 8028);
  EXPECT_EQ(WORK.Width(), 0);
  EXPECT_EQ(WORK.Height(), 0);
  EXPECT_TRUE(WORK.Visible());
  hover(5, 5);
  click(5, 5);
  EXPECT_EQ(CUR_TOOL, 28);
  EXPECT_PIC(WITH_TRIANGLE);
}

TEST(PolygonCopy, CutsWithAll256Vertices) {
  Picture picture = plain(260, 6);
  picture[0] = std::string(260, 'r');
  stage_with_status(picture);
  longest_chain(28);
  EXPECT_EQ(POLY_N, 256);
  EXPECT_EQ(INF_SUB.Caption(), "あと 0点");
  click(255, 1);
  EXPECT_EQ(CUR_TOOL, 8028);
  EXPECT_EQ(WORK.Width(), 255);
  EXPECT_EQ(WORK.Height(), 1);
  hover(255, 4);
  click(255, 4);
  const Picture stamped = text_of(PIC.Image());
  for (size_t x = 0; x < 256; x += 2) EXPECT_EQ(stamped[3][x], 'r') << x;  // the vertices of the upper row
  EXPECT_EQ(stamped[3][253], '.');                                         // between two of them
  EXPECT_EQ(stamped[4], std::string(260, '.'));
}

TEST(PolygonCopy, OneVertexMoreDropsTheShape) {
  stage_with_status(plain(260, 6));
  longest_chain(28);
  hover(100, 5);
  press(100, 5);
  EXPECT_EQ(CUR_TOOL, 7028);
  EXPECT_EQ(POLY_N, 0);
  EXPECT_DRAW(plain(260, 6));
  EXPECT_EQ(INF_SUB.Caption(), " ");
  release(100, 5);
  expect_dropped();
}

TEST(PolygonCopy, TakesItsPixelsFromThePlaceOfTheView) {
  start();
  view(16, 16);
  Picture picture = plain(30, 30);
  picture[9].replace(11, 3, "rgb");
  picture[10].replace(11, 3, "bgr");
  show(picture);
  forms::enter([] {
    X_SC.Value(10);
    Y_SC.Value(8);
  });
  first_edge(28, 1, 1, 4, 1);
  next_vertex(4, 3);
  next_vertex(1, 3);
  click(1, 3);
  EXPECT_EQ(text_of(WORK.Image()), (Picture{"rgb", "bgr"}));
  hover(3, 6);
  click(3, 6);
  picture[12].replace(13, 3, "rgb");
  picture[13].replace(13, 3, "bgr");
  EXPECT_PIC(picture);
}

TEST(PolygonCopy, ScrollDropsTheShape) {
  start();
  view(16, 16);
  show(plain(30, 30, 'y'));
  first_edge(28, 1, 1, 5, 1);
  next_vertex(1, 5);
  click(1, 5);
  ASSERT_EQ(CUR_TOOL, 8028);
  forms::enter([] { X_SC.Value(4); });
  expect_dropped();
  EXPECT_EQ(POLY_N, 0);
  hover(4, 4);
  EXPECT_FALSE(WORK.Visible());
}

TEST(PolygonCopy, BlankDropsTheShape) {
  stage::stage(WITH_TRIANGLE);
  cut_triangle();
  key(' ');
  expect_dropped();
  EXPECT_EQ(POLY_N, 0);
  EXPECT_PIC(WITH_TRIANGLE);
  first_edge(28, 1, 1, 5, 1);
  hover(3, 3);
  key(' ');
  expect_dropped();
  EXPECT_DRAW(WITH_TRIANGLE);
}

TEST(PolygonCopy, UndoButtonDropsTheShape) {
  stage::stage(WITH_TRIANGLE);
  cut_triangle();
  forms::enter([] { CMD_WIN.UNDO.Click.fire(-1); });
  expect_dropped();
  EXPECT_PIC(WITH_TRIANGLE);
}

TEST(PolygonCopy, RightButtonTogglesThePalettesUnlessTheStampIsHeld) {
  stage::stage(WITH_TRIANGLE);
  cut_triangle();
  press(6, 6, 2);
  release(6, 6, 2);
  EXPECT_FALSE(CMD_WIN.Visible());
  EXPECT_EQ(CUR_TOOL, 8028);
  EXPECT_TRUE(WORK.Visible());
  press(6, 8);
  press(6, 8, 2);
  expect_dropped();
  EXPECT_EQ(POLY_N, 0);
  EXPECT_DRAW(WITH_TRIANGLE);
  release(6, 8);
  EXPECT_PIC(WITH_TRIANGLE);
}

TEST(PolygonCopy, AnotherToolDropsTheShapeAndTheSpoitOnlyHidesIt) {
  stage::stage(WITH_TRIANGLE);
  cut_triangle();
  select_tool(1000);
  EXPECT_FALSE(WORK.Visible());
  select_tool(8028);
  hover(6, 8);
  EXPECT_TRUE(WORK.Visible());
  select_tool(1);
  EXPECT_FALSE(WORK.Visible());
  hover(4, 1);
  EXPECT_FALSE(WORK.Visible());
  EXPECT_DRAW(WITH_TRIANGLE);
}

TEST(PolygonCopy, AnotherToolTakesItsRubberLinesAway) {
  stage::stage(WITH_TRIANGLE);
  first_edge(28, 1, 1, 5, 1);
  hover(3, 4);
  select_tool(1);
  EXPECT_DRAW(WITH_TRIANGLE);
}

}  // namespace
