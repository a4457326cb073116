// What holds for every figure: XOR, clipping, touched rectangles, depths.
#include "raster_testing.h"

namespace raster {
namespace {

constexpr int MODES[] = {13, 7}, FILL_STYLES[] = {0, 1, 7};

// Coordinates mostly near a surface of that side, some far outside.
std::function<int()> places(Random& random, int side) {
  return [&random, side] {
    const uint32_t kind = random() % 12;
    if (kind == 0) return between(random, -100000, 100000);
    if (kind == 1) return between(random, -5 * side, 5 * side);
    return between(random, -side / 4, side + side / 4);
  };
}

void any_state(Random& random, Surface& s, int mode, int width) {
  s.draw.DrawMode = mode;
  s.draw.DrawWidth = width;
  s.draw.DrawStyle = random() % 4 == 0 ? 2 : 0;
  s.draw.FillStyle = FILL_STYLES[random() % 3];
  s.draw.ForeColor = any_colour(random);
  s.draw.FillColor = any_colour(random);
}

TEST(Figures, DrawnTwiceInXorLeaveNothing) {
  Random random(4);
  for (int width = 1; width <= 33; ++width) {
    for (int round = 0; round < 3; ++round) {
      Surface s(64, 48);
      make_noise(s, random);
      any_state(random, s, 7, width);
      const std::vector<Colour> before = colours(s);
      for (const Figure& f : figures(places(random, 50))) {
        f.draw(s, 0, 0);
        f.draw(s, 0, 0);
        ASSERT_EQ(colours(s), before) << f.name << " width " << width;
      }
      expect_opaque(s);
    }
  }
}

TEST(Figures, AreNotShiftedByClipping) {
  Random random(5);
  constexpr int MARGIN = 96, W = 40, H = 32;  // the margin a multiple of 8, for the cross is anchored to the surface
  for (int round = 0; round < 100; ++round) {
    Surface large(W + 2 * MARGIN, H + 2 * MARGIN), small(W, H);
    any_state(random, small, MODES[random() % 2], random() % 2 == 0 ? 1 : between(random, 2, 33));
    large.draw = small.draw;
    for (const Figure& f : figures(places(random, 40))) {
      // Curves are halved toward zero, and so are not quite the same elsewhere.
      const int margin = f.name == "curve" ? 0 : MARGIN;
      large.fill(BLACK);
      small.fill(BLACK);
      f.draw(large, margin, margin);
      f.draw(small, 0, 0);
      Surface window(W, H);
      BitBlt(window, 0, 0, W, H, large, margin, margin);
      ASSERT_EQ(colours(window), colours(small)) << f.name << " round " << round;
    }
  }
}

TEST(Figures, TouchWhatTheyChange) {
  Random random(6);
  for (int round = 0; round < 100; ++round) {
    Surface s(60, 50);
    make_noise(s, random);
    any_state(random, s, 7, random() % 2 == 0 ? 1 : between(random, 2, 33));
    for (const Figure& f : figures(places(random, 50))) {
      const Surface before = copy_of(s);
      s.take_touched();
      f.draw(s, 0, 0);
      const Rect r = s.take_touched();
      ASSERT_TRUE(r.empty() || (r.left >= 0 && r.top >= 0 && r.right <= 60 && r.bottom <= 50)) << f.name;
      for (int y = 0; y < 50; ++y) {
        for (int x = 0; x < 60; ++x) {
          if (GetPixel(s, x, y) == GetPixel(before, x, y)) continue;
          ASSERT_TRUE(x >= r.left && x < r.right && y >= r.top && y < r.bottom) << f.name << " " << x << "," << y;
        }
      }
    }
  }
}

TEST(Figures, TouchNoMoreThanTheirRectangleAndThePen) {
  Surface s(100, 100);
  for (const int width : {1, 5}) {
    s.draw.DrawWidth = width;
    for (const Figure& f : figures([n = 0]() mutable { return 20 + n++ * 5; })) {  // places 20 to 65
      s.take_touched();
      f.draw(s, 0, 0);
      const Rect r = s.take_touched();
      EXPECT_FALSE(r.empty()) << f.name;
      EXPECT_GE(r.left, 20 - width / 2) << f.name;
      EXPECT_GE(r.top, 20 - width / 2) << f.name;
      EXPECT_LE(r.right, 66 + width / 2) << f.name;
      EXPECT_LE(r.bottom, 66 + width / 2) << f.name;
    }
  }
}

TEST(Figures, AreTheSameAtEveryDepth) {
  Random random(7);
  for (int round = 0; round < 60; ++round) {
    const int width = random() % 2 == 0 ? 1 : between(random, 2, 33), mode = MODES[random() % 2];
    Surface full(50, 40);
    any_state(random, full, mode, width);
    full.draw.ForeColor = RED;
    full.draw.FillColor = GREEN;
    const std::vector<Figure> all = figures(places(random, 45));
    for (const Figure& f : all) {
      full.fill(BLUE);
      f.draw(full, 0, 0);
      for (const int depth : {24, 16, 8}) {
        Surface s(50, 40, depth, BLUE);
        s.draw = full.draw;
        f.draw(s, 0, 0);
        ASSERT_EQ(colours(s), colours(full)) << f.name << " depth " << depth;
      }
    }
  }
}

TEST(Figures, OnNoSurfaceDoNothing) {
  Random random(8);
  Surface s;
  for (const int width : {1, 4}) {
    s.draw.DrawWidth = width;
    s.draw.FillStyle = 0;
    for (const Figure& f : figures(places(random, 20))) f.draw(s, 0, 0);
  }
  ExtFloodFill(s, 0, 0, 0);
  FloodFill(s, 0, 0, 0);
  s.resize(5, 0);
  for (const Figure& f : figures(places(random, 20))) f.draw(s, 0, 0);
  EXPECT_TRUE(s.take_touched().empty());
}

TEST(Figures, WithTheFarthestCoordinatesEnd) {
  constexpr int FAR[] = {INT32_MIN, INT32_MIN + 1, -1, 0, 3, INT32_MAX - 1, INT32_MAX};
  Random random(9);
  Surface s(16, 16);
  for (int round = 0; round < 60; ++round) {
    any_state(random, s, 7, round % 3 == 0 ? 1 : 7);
    for (const Figure& f : figures([&] { return FAR[random() % 7]; })) f.draw(s, 0, 0);
  }
  expect_opaque(s);
}

}  // namespace
}  // namespace raster
