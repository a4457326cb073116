#include "raster_testing.h"

namespace raster {
namespace {

// The pixels of a line of width 1, by looking for the nearest one on the other axis at each step, the smaller on a tie.
Surface line_by_distance(int width, int height, Point a, Point b) {
  Surface s(width, height, 32, BLACK);
  const int64_t dx = b.x - a.x, dy = b.y - a.y, n = std::max(std::abs(dx), std::abs(dy));
  for (int64_t i = 0; i < n; ++i) {
    const bool steep = std::abs(dy) > std::abs(dx);
    const int64_t d = steep ? dx : dy;
    int64_t best = -200;
    for (int64_t m = -199; m <= 200; ++m)
      if (std::abs(m * n - i * d) < std::abs(best * n - i * d)) best = m;
    const int64_t along = i * ((steep ? dy : dx) < 0 ? -1 : 1);
    SetPixelV(s, static_cast<int>(a.x + (steep ? best : along)), static_cast<int>(a.y + (steep ? along : best)), WHITE);
  }
  return s;
}

TEST(Line, LiesNearestToTheTrueLineWithoutItsLastPoint) {
  Random random(3);
  for (int round = 0; round < 400; ++round) {
    auto place = [&] { return Point{between(random, -30, 70), between(random, -30, 70)}; };
    const Point a = place(), b = place();
    Surface s(40, 40, 32, BLACK);
    Line(s, a.x, a.y, b.x, b.y, WHITE);
    ASSERT_EQ(text_of(s), text_of(line_by_distance(40, 40, a, b))) << a.x << "," << a.y << " " << b.x << "," << b.y;
  }
}

TEST(Line, OfNoLengthPaintsNothing) {
  Surface s(3, 3, 32, BLACK);
  s.take_touched();
  Line(s, 1, 1, 1, 1, WHITE);
  EXPECT_EQ(text_of(s), rows({"...", "...", "..."}));
  EXPECT_TRUE(s.take_touched().empty());
}

TEST(Line, FromFarOutsideIsTheDiagonalAndEndsSoon) {
  Surface s(6, 4, 32, BLACK);
  Line(s, -100000, -100000, 100000, 100000, WHITE);
  EXPECT_EQ(text_of(s), rows({"#.....", ".#....", "..#...", "...#.."}));
  s.fill(BLACK);
  // 500 million pixels long; only the clipped part may be walked.
  for (int i = 0; i < 1000; ++i) Line(s, -500000000, 2, 500000000, 2, i % 2 == 0 ? RED : WHITE);
  EXPECT_EQ(text_of(s), rows({"......", "......", "######", "......"}));
  s.fill(BLACK);
  Line(s, INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX, WHITE);
  EXPECT_EQ(text_of(s), rows({"#.....", ".#....", "..#...", "...#.."}));
}

TEST(Line, DottedIsThreeOnThreeOffFromItsStart) {
  Surface s(14, 2, 32, BLACK);
  s.draw.DrawStyle = 2;
  Line(s, 0, 0, 14, 0, WHITE);
  Line(s, 13, 1, -1, 1, WHITE);
  EXPECT_EQ(text_of(s), rows({"###...###...##", "##...###...###"}));
  // The start lies outside: the dots go on as if it did not.
  s.fill(BLACK);
  Line(s, -4, 0, 14, 0, WHITE);
  EXPECT_EQ(text_of(s), rows({"..###...###...", ".............."}));
  // XOR leaves the background of the gaps alone as well.
  s.fill(WHITE);
  s.draw.DrawMode = 7;
  Line(s, 0, 0, 14, 0, WHITE);
  EXPECT_EQ(text_of(s), rows({"...###...###..", "##############"}));
}

TEST(Line, WidePenIsNotDotted) {
  Surface s(8, 4, 32, BLACK);
  s.draw.DrawStyle = 2;
  s.draw.DrawWidth = 2;
  Line(s, 1, 2, 7, 2, WHITE);
  EXPECT_EQ(text_of(s), rows({"........", "########", "########", "........"}));
}

TEST(Line, XorFlipsTheColourAndTwiceBringsItBack) {
  Surface s(3, 1, 32, RGB(1, 2, 3));
  s.draw.DrawMode = 7;
  Line(s, 0, 0, 2, 0, WHITE);
  EXPECT_EQ(GetPixel(s, 0, 0), RGB(254, 253, 252));
  EXPECT_EQ(GetPixel(s, 2, 0), RGB(1, 2, 3));
  expect_opaque(s);
  Line(s, 0, 0, 2, 0, WHITE);
  EXPECT_EQ(GetPixel(s, 0, 0), RGB(1, 2, 3));
}

TEST(PSet, PaintsOnePixelInTheDrawMode) {
  Surface s(3, 3, 32, WHITE);
  PSet(s, 1, 1, RED);
  PSet(s, -1, 1, RED);
  PSet(s, 1, 3, RED);
  EXPECT_EQ(text_of(s), rows({"###", "#r#", "###"}));
  s.draw.DrawMode = 7;
  PSet(s, 1, 1, RED);
  EXPECT_EQ(text_of(s), rows({"###", "#.#", "###"}));
}

TEST(Box, OutlineHoldsBothCornersInAnyOrder) {
  const std::string expected = rows({".......", ".#####.", ".#...#.", ".#####.", "......."});
  const int corners[][4] = {{1, 1, 5, 3}, {5, 3, 1, 1}, {1, 3, 5, 1}, {5, 1, 1, 3}};
  for (const auto& c : corners) {
    for (const int mode : {13, 7}) {
      Surface s(7, 5, 32, BLACK);
      s.draw.DrawMode = mode;
      Line(s, c[0], c[1], c[2], c[3], WHITE, LineForm::box);
      EXPECT_EQ(text_of(s), expected) << mode;
    }
  }
}

TEST(Box, FlatOnesAreInkedOnceEvenInXor) {
  for (const LineForm form : {LineForm::box, LineForm::box_fill}) {
    Surface s(5, 3, 32, BLACK);
    s.draw.DrawMode = 7;
    Line(s, 0, 1, 4, 1, WHITE, form);
    EXPECT_EQ(text_of(s), rows({".....", "#####", "....."}));
    s.fill(BLACK);
    Line(s, 2, 0, 2, 2, WHITE, form);
    EXPECT_EQ(text_of(s), rows({"..#..", "..#..", "..#.."}));
    s.fill(BLACK);
    Line(s, 2, 1, 2, 1, WHITE, form);
    EXPECT_EQ(text_of(s), rows({".....", "..#..", "....."}));
    s.fill(BLACK);
    Line(s, 1, 0, 2, 1, WHITE, form);
    EXPECT_EQ(text_of(s), rows({".##..", ".##..", "....."}));
  }
}

TEST(Box, FilledIsTheRectangleInThePenColour) {
  Surface s(6, 4, 32, BLACK);
  s.draw.FillColor = RED;
  s.draw.FillStyle = 0;
  Line(s, 4, 3, 1, 1, WHITE, LineForm::box_fill);
  EXPECT_EQ(text_of(s), rows({"......", ".####.", ".####.", ".####."}));
  s.draw.DrawMode = 7;
  Line(s, 2, 2, 100000, -100000, WHITE, LineForm::box_fill);
  EXPECT_EQ(text_of(s), rows({"..####", ".#...#", ".#...#", ".####."}));
}

TEST(Box, TakesTheFillStyleForItsInside) {
  Surface s(6, 4, 32, BLACK);
  s.draw.FillColor = RED;
  s.draw.FillStyle = 0;
  Line(s, 0, 0, 5, 3, WHITE, LineForm::box);
  EXPECT_EQ(text_of(s), rows({"######", "#rrrr#", "#rrrr#", "######"}));
  s.fill(BLACK);
  s.draw.FillStyle = 7;
  Line(s, -1, -1, 6, 4, WHITE, LineForm::box);
  // the diagonals x = y and x = 7 - y of the surface
  EXPECT_EQ(text_of(s), rows({"r.....", ".r....", "..r..r", "...rr."}));
}

TEST(Box, WideOutlineIsARoundedRing) {
  Surface s(9, 9, 32, BLACK);
  s.draw.DrawWidth = 3;
  s.draw.FillStyle = 0;
  s.draw.FillColor = RED;
  Line(s, 2, 2, 6, 6, WHITE, LineForm::box);
  // The pen covers 1 to 3 and 5 to 7 on both axes.
  EXPECT_EQ(text_of(s), rows({".........", "..#####..", ".#######.", ".#######.", ".###r###.", ".#######.", ".#######.",
                              "..#####..", "........."}));
}

TEST(Box, WideFilledIsOneRegion) {
  Surface s(7, 7, 32, BLACK);
  s.draw.DrawWidth = 3;
  s.draw.DrawMode = 7;
  Line(s, 2, 2, 4, 4, WHITE, LineForm::box_fill);
  EXPECT_EQ(text_of(s), rows({".......", "..###..", ".#####.", ".#####.", ".#####.", "..###..", "......."}));
}

}  // namespace
}  // namespace raster
