// The sprays, through the events of the pointer and the ticks of their timer.
#include "engines/spray.h"
#include "engines/pen_engines.h"
#include "tools/tools_stage.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

void tick(int times = 1) {
  for (int i = 0; i < times; ++i) forms::enter([] { Timer1.Tick.fire(-1); });
}

// Where the dots of one tick land in the tile, by the generator's own row.
struct Dot {
  int x, y;
};
std::vector<Dot> dots_to_come(int pen_size) {
  const uint32_t state = RND_STATE;
  std::vector<Dot> out;
  const long n = std::lrint(pen_size * pen_size / 100.0);
  for (long i = 0; i <= n; ++i) {
    const long x = std::lrintf(Rnd() * static_cast<float>(pen_size));
    const long y = std::lrintf(Rnd() * static_cast<float>(pen_size));
    out.push_back({static_cast<int>(x), static_cast<int>(y)});
  }
  RND_STATE = state;
  return out;
}

TEST(Rnd, IsUniformFromZeroToBelowOneAndTheSameInEveryRun) {
  EXPECT_EQ(RND_STATE, 1U);
  int tenths[10] = {};
  for (int i = 0; i < 10000; ++i) {
    const float v = Rnd();
    ASSERT_GE(v, 0.0F);
    ASSERT_LT(v, 1.0F);
    ++tenths[static_cast<int>(v * 10)];
  }
  for (const int n : tenths) EXPECT_NEAR(n, 1000, 150);
}

TEST(Spray, PaintsAtTheTicksAlone) {
  stage::stage(plain(40, 40));
  select_tool(21);
  pen(25);
  press(20, 20);
  EXPECT_EQ(Timer1.Interval(), SPRAY_MS);
  EXPECT_EQ(text_of(DRAW), plain(40, 40));
  Picture expected = plain(40, 40);
  for (int t = 0; t < 5; ++t) {
    const std::vector<Dot> dots = dots_to_come(25);
    EXPECT_EQ(dots.size(), 7U);
    for (const Dot& d : dots) {
      if (d.x < 25 && d.y < 25) expected[static_cast<size_t>(8 + d.y)][static_cast<size_t>(8 + d.x)] = '#';
    }
    tick();
  }
  EXPECT_EQ(text_of(DRAW), expected);
  release(20, 20);
  EXPECT_EQ(Timer1.Interval(), 0);
  EXPECT_EQ(text_of(PIC), expected);
  key(' ');
  EXPECT_EQ(text_of(PIC), plain(40, 40));
}

TEST(Spray, FollowsThePointerWithoutPaintingOnTheWay) {
  stage::stage(plain(60, 20));
  select_tool(21);
  pen(9);
  press(10, 10);
  drag(40, 10);
  const std::vector<Dot> dots = dots_to_come(9);
  tick();
  Picture expected = plain(60, 20);
  for (const Dot& d : dots) {
    if (d.x < 9 && d.y < 9) expected[static_cast<size_t>(6 + d.y)][static_cast<size_t>(36 + d.x)] = '#';
  }
  release(40, 10);
  EXPECT_EQ(text_of(PIC), expected);
}

TEST(Spray, OfSizeOneLosesTheDotThatRoundsToOne) {
  stage::stage(plain(3, 1));
  select_tool(21);
  pen(1);
  press(1, 0);
  for (int i = 0; i < 20; ++i) {
    forms::enter([] { VIEW_REDRAW(); });
    const Dot d = dots_to_come(1)[0];
    tick();
    EXPECT_EQ(text_of(DRAW)[0], d.x == 0 && d.y == 0 ? ".#." : "...");
  }
}

TEST(MaskSpray, PaintsOverTheDestinationColourAlone) {
  stage::stage({"r.r.r.r.r", ".r.r.r.r.", "r.r.r.r.r"});
  select_tool(22);
  pen(9);
  press(4, 1);
  tick(2000);
  release(4, 1);
  EXPECT_PIC({"r#r#r#r#r", "#r#r#r#r#", "r#r#r#r#r"});
}

TEST(MaskSpray, WithBothColoursAlikePaintsNothing) {
  stage::stage(plain(9, 3));
  select_tool(22);
  pen(9);
  target_colour('.');
  press(4, 1);
  tick(100);
  release(4, 1);
  EXPECT_EQ(text_of(PIC), plain(9, 3));
}

// The cells of the row through the middle, as hundredths.
std::vector<int> middle_cells(int pen_size) {
  std::vector<int> out;
  for (int x = 0; x <= pen_size; ++x) {
    out.push_back(static_cast<int>(std::lrint(BRUSH_CELL(x)(pen_size / 2) * 100)));
  }
  return out;
}

TEST(AirSpray, BrushOfTenHasRingsOfTwentyHundredths) {
  stage::stage(plain(20, 20));
  select_tool(34);
  pen(10);
  press(10, 10);
  EXPECT_EQ(middle_cells(10), (std::vector<int>{0, 80, 60, 40, 20, 0, 20, 40, 60, 80, 0}));
  EXPECT_EQ(BRUSH_CELL(5)(1), 0.8F);
  EXPECT_EQ(BRUSH_CELL(0)(0), 0.0F);
}

TEST(AirSpray, BrushOfThreeIsOneRing) {
  // Radii 2, 1, 0 and a step of 66.67: the outer disc is black, the ring is grey 33.
  stage::stage(plain(9, 9));
  select_tool(34);
  pen(3);
  press(4, 4);
  EXPECT_EQ(middle_cells(3), (std::vector<int>{67, 0, 67, 0}));
}

TEST(AirSpray, OfSizesOneAndTwoChangesNothing) {
  stage::stage(plain(9, 9));
  for (const int size : {1, 2}) {
    select_tool(34);
    pen(size);
    press(4, 4);
    tick(10);
    release(4, 4);
    EXPECT_EQ(text_of(PIC), plain(9, 9));
    for (int x = 0; x <= 36; ++x) {
      for (int y = 0; y <= 36; ++y) EXPECT_EQ(BRUSH_CELL(x)(y), 0.0F);
    }
  }
}

// One step of a component: the share that stays in single precision, rounded to even.
int step(int old, int target, float cell) {
  return static_cast<int>(std::lrintf(static_cast<float>(old) * cell + (1 - cell) * static_cast<float>(target)));
}

TEST(AirSpray, EachTickMovesAPixelByItsShareAndRoundsIt) {
  stage::stage(plain(20, 20));
  select_tool(34);
  pen(10);
  press(10, 10);  // the tile's corner is 5, 5
  int rim = 255;
  int inner = 255;
  for (int i = 0; i < 30; ++i) {
    tick();
    rim = step(rim, 0, 0.8F);
    inner = step(inner, 0, 0.2F);
    ASSERT_EQ(GetPixel(DRAW, 6, 10), RGB(rim, rim, rim)) << i;
    ASSERT_EQ(GetPixel(DRAW, 9, 10), RGB(inner, inner, inner)) << i;
    ASSERT_EQ(GetPixel(DRAW, 10, 10), WHITE);
    ASSERT_EQ(GetPixel(DRAW, 5, 10), WHITE);
  }
  EXPECT_EQ(inner, 0);
  EXPECT_EQ(rim, 2);  // 2 x 0.8 rounds to 2 again
  release(10, 10);
  EXPECT_EQ(GetPixel(PIC, 6, 10), RGB(2, 2, 2));
}

TEST(AirSpray, PaintsAtMovesToo) {
  stage::stage(plain(20, 20));
  select_tool(34);
  pen(10);
  press(10, 10);
  EXPECT_EQ(text_of(DRAW), plain(20, 20));
  drag(12, 10);
  const int once = step(255, 0, 0.2F);
  EXPECT_EQ(GetPixel(DRAW, 11, 10), RGB(once, once, once));
  release(12, 10);
  EXPECT_EQ(GetPixel(PIC, 11, 10), RGB(once, once, once));
}

TEST(MaskAirSpray, BuildsUpWhereThePictureHadTheDestinationColourAtThePress) {
  stage::stage(plain(20, 20));
  forms::enter([] {
    SetPixelV(PIC, 9, 10, RGB(255, 0, 0));
    VIEW_REDRAW();
  });
  select_tool(35);
  pen(10);
  EXPECT_EQ(UNDO_READY, 0);
  press(10, 10);
  EXPECT_EQ(UNDO_READY, 1);
  tick(2);
  const int twice = step(step(255, 0, 0.2F), 0, 0.2F);
  EXPECT_EQ(GetPixel(DRAW, 11, 10), RGB(twice, twice, twice));
  EXPECT_EQ(GetPixel(DRAW, 9, 10), RGB(255, 0, 0));
  release(10, 10);
  EXPECT_EQ(GetPixel(PIC, 11, 10), RGB(twice, twice, twice));
}

TEST(MaskAirSpray, LooksAtAnOlderSnapshotWhereTheButtonIsOn) {
  stage::stage(plain(20, 20));
  // A stroke of another tool: the snapshot is the white picture, and the button is on.
  select_tool(1);
  click(11, 10);
  select_tool(35);
  pen(10);
  press(10, 10);
  tick();
  // The black dot was white in the snapshot, so it is mixed, black with black; its neighbour is tinted.
  const int once = step(255, 0, 0.4F);
  EXPECT_EQ(GetPixel(DRAW, 11, 10), RGB(0, 0, 0));
  EXPECT_EQ(GetPixel(DRAW, 12, 10), RGB(once, once, once));
  release(10, 10);
  // The snapshot of this press was not taken: it is that of its release.
  EXPECT_EQ(GetPixel(UNDO, 11, 10), RGB(0, 0, 0));
}

TEST(Sprays, GivenUpByTheRightButtonStopTheTimer) {
  stage::stage(plain(12, 12));
  for (const int tool : {21, 22, 34, 35}) {
    select_tool(tool);
    pen(9);
    press(6, 6);
    tick(5);
    press(6, 6, 2);
    EXPECT_EQ(Timer1.Interval(), 0);
    EXPECT_EQ(PEN_DOWN, 0);
    EXPECT_EQ(text_of(DRAW), plain(12, 12));
    tick(5);
    release(6, 6);
    EXPECT_EQ(text_of(DRAW), plain(12, 12));
    EXPECT_EQ(text_of(PIC), plain(12, 12));
  }
}

TEST(Sprays, GivenUpByBlankTickOnWithoutPainting) {
  stage::stage(plain(12, 12));
  select_tool(21);
  pen(9);
  press(6, 6);
  tick(5);
  key(' ');
  tick(5);
  EXPECT_EQ(text_of(DRAW), plain(12, 12));
  release(6, 6);
  EXPECT_EQ(text_of(PIC), plain(12, 12));
}

TEST(AirSpray, AtX4PaintsWholeBlocksAndOnlyInsideOfTheView) {
  stage::stage(plain(8, 8));
  zoom(4);
  select_tool(34);
  pen(10);
  press(16, 28);  // the tile's corner is the pixel -1, 2: it hangs out below, and left
  tick();
  const int inner = step(255, 0, 0.2F);
  for (int y = 28; y < 32; ++y) {
    for (int x = 12; x < 16; ++x) EXPECT_EQ(GetPixel(DRAW, x, y), RGB(inner, inner, inner));
  }
  release(16, 28);
  EXPECT_EQ(GetPixel(PIC, 3, 7), RGB(inner, inner, inner));
  EXPECT_EQ(GetPixel(PIC, 4, 7), WHITE);
}

}  // namespace
