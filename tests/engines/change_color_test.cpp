// Change color and its three relatives, by the events of a drag.
#include "engines/fuzzy.h"
#include "palette/palette.h"
#include "tools/tools_stage.h"
#include "tools/wiring.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

constexpr int EXACT = 17, NEAR = 24, EXACT_REV = 25, NEAR_REV = 26;
constexpr int ALL_FOUR[] = {EXACT, NEAR, EXACT_REV, NEAR_REV};

void target(char letter) { unpack_colour(colour_of(letter), TAR_R, TAR_G, TAR_B); }
void destination(char letter) { unpack_colour(colour_of(letter), DES_R, DES_G, DES_B); }
void ranges(int h, int s, int v) {
  FUZZY_H = to_int16(h);
  FUZZY_S = to_int16(s);
  FUZZY_V = to_int16(v);
}
void drag_over(int tool, float x1, float y1, float x2, float y2) {
  select_tool(tool);
  press(x1, y1);
  drag((x1 + x2) / 2, y2);
  drag(x2, y2);
  release(x2, y2);
}

struct ChangeColor : testing::TestWithParam<int> {
  void SetUp() override {
    desk().depth = GetParam();
    stage::stage({"..gg..", ".grrg.", "..gg..", "bbbbbb"});
    target('#');
    destination('g');
  }
};
INSTANTIATE_TEST_SUITE_P(Depths, ChangeColor, testing::Values(32, 24, 16));

TEST_P(ChangeColor, ReplacesTheDestinationColourInsideOfTheRectangle) {
  drag_over(EXACT, 0, 0, 3, 1);
  EXPECT_PIC({"..##..", ".#rrg.", "..gg..", "bbbbbb"});
}

TEST_P(ChangeColor, IsTheSameFromEveryCorner) {
  const float corners[4][4] = {{2, 0, 4, 1}, {4, 1, 2, 0}, {4, 0, 2, 1}, {2, 1, 4, 0}};
  for (const auto& c : corners) {
    drag_over(EXACT, c[0], c[1], c[2], c[3]);
    EXPECT_PIC({"..##..", ".grr#.", "..gg..", "bbbbbb"});
    key(' ');
    EXPECT_PIC({"..gg..", ".grrg.", "..gg..", "bbbbbb"});
  }
}

TEST_P(ChangeColor, ReverseReplacesAllButIt) {
  drag_over(EXACT_REV, 1, 1, 4, 3);
  EXPECT_PIC({"..gg..", ".g##g.", ".#gg#.", "b####b"});
}

TEST_P(ChangeColor, FuzzyWithoutAnyRangeIsTheExactOne) {
  ranges(0, 0, 0);
  drag_over(NEAR, 0, 0, 3, 1);
  EXPECT_PIC({"..##..", ".#rrg.", "..gg..", "bbbbbb"});
}

TEST_P(ChangeColor, FuzzyReverseWithoutAnyRangeTakesTheDestinationColourToo) {
  ranges(0, 0, 0);
  drag_over(NEAR_REV, 1, 0, 4, 2);
  EXPECT_PIC({".####.", ".####.", ".####.", "bbbbbb"});
}

TEST_P(ChangeColor, FuzzyTakesNeighbours) {
  destination('r');
  ranges(61, 255, 255);  // over yellow at 60 degrees, not to green at 120; white has the hue of red
  show({"ry.gb#"});
  drag_over(NEAR, 0, 0, 5, 0);
  EXPECT_PIC({"###gb#"});
  key(' ');
  drag_over(NEAR_REV, 0, 0, 5, 0);
  EXPECT_PIC({"ry.###"});
}

TEST_P(ChangeColor, EqualColoursChangeNothingOrAllOthers) {
  target('g');
  drag_over(EXACT, 0, 0, 5, 3);
  EXPECT_PIC({"..gg..", ".grrg.", "..gg..", "bbbbbb"});
  drag_over(EXACT_REV, 1, 0, 4, 3);
  EXPECT_PIC({".gggg.", ".gggg.", ".gggg.", "bggggb"});
}

TEST_P(ChangeColor, NeverTouchesTheTargetColour) {
  target('r');
  ranges(180, 255, 255);
  for (const int tool : ALL_FOUR) {
    drag_over(tool, 2, 1, 3, 1);
    EXPECT_EQ(text_of(PIC.Image())[1], ".grrg.") << tool;
  }
}

TEST_P(ChangeColor, OnePixelIsAnArea) {
  drag_over(EXACT, 2, 0, 2, 0);
  EXPECT_PIC({"..#g..", ".grrg.", "..gg..", "bbbbbb"});
  EXPECT_EQ(WORK.Width(), 1);
  EXPECT_EQ(WORK.Height(), 1);
}

TEST_P(ChangeColor, BeyondTheViewNothingHappens) {
  drag_over(EXACT, 3, 1, 9, 7);
  EXPECT_PIC({"..gg..", ".grr#.", "..g#..", "bbbbbb"});
  EXPECT_EQ(WORK.Width(), 7);
  EXPECT_EQ(WORK.Height(), 7);
  key(' ');
  drag_over(EXACT, 2, 1, -3, -2);
  EXPECT_PIC({"..#g..", ".#rrg.", "..gg..", "bbbbbb"});
}

TEST_P(ChangeColor, TheReleasePointIsRounded) {
  drag_over(EXACT, 4, 0, 2.5F, 1.5F);  // to 2, 2
  EXPECT_PIC({"..##..", ".grr#.", "..##..", "bbbbbb"});
  EXPECT_EQ(WORK.Width(), 3);
  EXPECT_EQ(WORK.Height(), 3);
}

TEST_P(ChangeColor, WorksOnThePictureNotOnWhatLiesOnTheView) {
  SetPixelV(DRAW, 0, 0, colour_of('g'));
  drag_over(EXACT, 0, 0, 2, 0);
  EXPECT_PIC({"..#g..", ".grrg.", "..gg..", "bbbbbb"});
}

TEST_P(ChangeColor, InAScrolledViewItIsThePartThatShows) {
  show(Picture(60, std::string(60, 'g')));
  view(40, 40);
  forms::enter([] {
    X_SC.Value(3);
    Y_SC.Value(1);
  });
  drag_over(EXACT, 0, 0, 1, 2);
  Picture changed(60, std::string(60, 'g'));
  for (const size_t y : {1U, 2U, 3U}) changed[y].replace(3, 2, "##");
  EXPECT_PIC(changed);
}

TEST_P(ChangeColor, TheRubberBoxLeavesNothingBehind) {
  destination('y');
  drag_over(EXACT, 1, 0, 4, 3);
  EXPECT_DRAW({"..gg..", ".grrg.", "..gg..", "bbbbbb"});
  select_tool(EXACT);
  press(1, 0);
  drag(4, 3);
  press(4, 3, 2);
  release(4, 3);
  EXPECT_DRAW({"..gg..", ".grrg.", "..gg..", "bbbbbb"});
}

TEST(ChangeColorAt8Bits, WorksByPixelCalls) {
  desk().depth = 8;
  desk().answers = {6};  // the start asks whether to go on
  stage::stage({"gg.", "rgb"});
  target('#');
  destination('g');
  drag_over(EXACT, 0, 0, 2, 1);
  EXPECT_PIC({"##.", "r#b"});
}

// A display that writes down what it is told of progress, and the pointer's shape meanwhile.
struct Recorder : StageDesktop {
  void record(const char* kind, const std::string& entry) override {
    if (kind == std::string("progress")) seen.push_back(entry);
  }
  void record_progress(double done, double total) override {
    seen.push_back(std::to_string(static_cast<int>(done)) + "/" + std::to_string(static_cast<int>(total)));
    pointer = DRAW.MousePointer();
  }
  std::vector<std::string> seen;
  int pointer = 0;
};

std::vector<std::string> told(int depth, int tool, float right, float bottom) {
  Recorder recorder;
  recorder.depth = desk().depth = depth;
  forms::use_desktop(&recorder);
  home();
  forms::enter([] {
    wire_palette();
    wire_tools();
    show_main_window();
  });
  drag_over(tool, 0, 0, right, bottom);
  forms::use_desktop(&desk());
  EXPECT_EQ(recorder.pointer, 99);
  EXPECT_EQ(DRAW.MousePointer(), 1);
  EXPECT_TRUE(P_WIN.Enabled());
  return recorder.seen;
}
using Told = std::vector<std::string>;

TEST(ProgressOfAnArea, IsToldByRowsWhereBytesAreExchanged) {
  EXPECT_EQ(told(32, EXACT, 4, 2), (Told{"caption \"Change Color処理中\"", "0/3", "1/3", "2/3", "3/3"}));
}
TEST(ProgressOfAnArea, IsToldByRowsWhereBytesAreExchangedInReverse) {
  EXPECT_EQ(told(32, EXACT_REV, 4, 1), (Told{"caption \"Rev.Change Color処理中\"", "0/2", "1/2", "2/2"}));
}
TEST(ProgressOfAnArea, IsToldByColumnsAndOneMoreByPixelCalls) {
  EXPECT_EQ(told(24, EXACT, 1, 2), (Told{"caption \"Change Color処理中\"", "0/2", "0/2", "1/2", "2/2"}));
}
TEST(ProgressOfAnArea, IsToldByColumnsOfTheFuzzyOnes) {
  EXPECT_EQ(told(32, NEAR, 2, 9), (Told{"caption \"Fuzzy Change Color処理中\"", "0/3", "0/3", "1/3", "2/3", "3/3"}));
}
TEST(ProgressOfAnArea, OnePixelGoesToFullAtOnce) {
  EXPECT_EQ(told(16, NEAR_REV, 0, 0), (Told{"caption \"Reverse Fuzzy Change Color処理中\"", "0/1", "0/1", "1/1"}));
}

// --- what is near

bool near(int h, int s, int v, Colour destination, Colour c) {
  int32_t r = 0, g = 0, b = 0;
  unpack_colour(destination, r, g, b);
  return is_near(c, fuzzy_bounds(h, s, v, r, g, b));
}
constexpr Colour RED = RGB(255, 0, 0), YELLOW = RGB(255, 255, 0), CYAN = RGB(0, 255, 255), BLUE = RGB(0, 0, 255);

TEST(Fuzzy, BoundsOfHueDoNotBelongToIt) {
  EXPECT_FALSE(near(60, 0, 0, RED, YELLOW));
  EXPECT_TRUE(near(61, 0, 0, RED, YELLOW));
  EXPECT_FALSE(near(0, 255, 255, RED, RED));
}

TEST(Fuzzy, BoundsOfSAndVBelongToIt) {
  const Colour dark = RGB(51, 0, 0);  // V is a fifth: exactly 51 of 255
  EXPECT_TRUE(near(1, 0, 204, RED, dark));
  EXPECT_FALSE(near(1, 0, 203, RED, dark));
  EXPECT_TRUE(near(1, 0, 204, dark, RED));
  const Colour grey = RGB(100, 100, 100);  // S is 0, and H, as red's
  EXPECT_TRUE(near(1, 255, 255, grey, RED));
  EXPECT_FALSE(near(1, 254, 255, grey, RED));
  EXPECT_TRUE(near(1, 255, 255, RED, grey));
  EXPECT_FALSE(near(1, 254, 255, RED, grey));
}

TEST(Fuzzy, BoundsAreNotRounded) {
  const Colour half = RGB(200, 100, 100);  // S is 127.5 of 255
  EXPECT_TRUE(near(1, 0, 255, half, RGB(100, 50, 50)));
  EXPECT_FALSE(near(1, 0, 255, half, RGB(255, 127, 127)));  // 128
}

TEST(Fuzzy, AWindowGoesOverRed) {
  EXPECT_TRUE(near(30, 0, 0, RED, RGB(255, 0, 51)));  // 348 degrees
  EXPECT_TRUE(near(30, 0, 0, RED, RGB(255, 51, 0)));
  EXPECT_FALSE(near(30, 0, 0, RED, RGB(0, 255, 0)));
  EXPECT_TRUE(near(61, 0, 0, BLUE, RGB(255, 0, 255)) && near(130, 0, 0, BLUE, RED));  // 240 + 130 is 10
}

TEST(Fuzzy, AWindowThatEndsAtRedDoesNotGoOverIt) {
  EXPECT_FALSE(near(60, 0, 0, YELLOW, RED));  // from 0 on, without it
  EXPECT_TRUE(near(61, 0, 0, YELLOW, RED));
  EXPECT_FALSE(near(120, 0, 0, BLUE, RED));
  EXPECT_FALSE(near(120, 0, 0, BLUE, RGB(255, 51, 0)));
}

TEST(Fuzzy, TheWidestWindowRoundRedLeavesOutItsOpposite) {
  EXPECT_FALSE(near(180, 0, 0, RED, CYAN));
  EXPECT_TRUE(near(180, 0, 0, RED, RGB(0, 255, 250)));
  EXPECT_TRUE(near(180, 0, 0, RED, RGB(0, 250, 255)));
  EXPECT_TRUE(near(180, 255, 255, RED, RGB(9, 9, 9)));
}

}  // namespace
