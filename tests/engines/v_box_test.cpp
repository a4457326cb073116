// V Box, by the events of a drag. Expected colours are reckoned by hand: hue in whole degrees, the rest exact, the
// result cut off to whole components.
#include "engines/value.h"
#include "tools/tools_stage.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

constexpr int AT_X1 = 32, AT_EXPANSION = 11006;

void v_box(int tool, float x1, float y1, float x2, float y2) {
  select_tool(tool);
  press(x1, y1);
  drag((x1 + x2) / 2, (y1 + y2) / 2);
  drag(x2, y2);
  release(x2, y2);
}

Colour scaled(Colour c, int percent) {
  HSET_V = to_int16(percent);
  return with_value(c, v_factor());
}

TEST(ValueOfAColour, NoneIsBlack) {
  EXPECT_EQ(scaled(RGB(200, 100, 50), 0), RGB(0, 0, 0));
  EXPECT_EQ(scaled(WHITE, 0), RGB(0, 0, 0));
  EXPECT_EQ(scaled(WHITE, -5), RGB(0, 0, 0));
}
TEST(ValueOfAColour, HalfKeepsHueAndSaturation) {
  EXPECT_EQ(scaled(RGB(200, 100, 50), 50), RGB(100, 50, 25));
  EXPECT_EQ(scaled(RGB(255, 255, 0), 50), RGB(127, 127, 0));
}
TEST(ValueOfAColour, StopsAtTheBrightest) {
  EXPECT_EQ(scaled(RGB(200, 100, 50), 150), RGB(255, 127, 63));
  EXPECT_EQ(scaled(RGB(200, 100, 50), 200), RGB(255, 127, 63));
}
TEST(ValueOfAColour, AGreyStaysGrey) {
  for (const int percent : {0, 33, 50, 100, 150, 200}) {
    const Colour c = scaled(RGB(77, 77, 77), percent);
    EXPECT_EQ(c & 255, c >> 8 & 255);
    EXPECT_EQ(c & 255, c >> 16);
  }
  EXPECT_EQ(scaled(RGB(77, 77, 77), 50), RGB(38, 38, 38));
}
TEST(ValueOfAColour, CuttingOffMayTakeOneAlsoAtAHundred) {
  EXPECT_EQ(scaled(RGB(201, 101, 51), 100), RGB(201, 101, 51));
  EXPECT_EQ(scaled(RGB(90, 200, 40), 100), RGB(90, 200, 39));
  // 342.35 degrees are 342
  EXPECT_EQ(scaled(RGB(255, 0, 1), 100), RGB(255, 0, 0));
}

struct VBox : testing::TestWithParam<int> {
  void SetUp() override {
    desk().depth = GetParam();
    desk().answers.assign(3, 6);  // at 8 bits each start asks whether to go on
  }
};
INSTANTIATE_TEST_SUITE_P(Depths, VBox, testing::Values(32, 24, 16, 8));

TEST_P(VBox, BlackensTheDraggedBoxFromEveryCorner) {
  const Picture picture = {"rgby", "rgby", "rgby"};
  stage::stage(picture);
  HSET_V = 0;
  const float corners[4][4] = {{1, 1, 2, 2}, {2, 2, 1, 1}, {1, 2, 2, 1}, {2, 1, 1, 2}};
  for (const auto& c : corners) {
    v_box(AT_X1, c[0], c[1], c[2], c[3]);
    EXPECT_PIC({"rgby", "r##y", "r##y"});
    key(' ');
    EXPECT_PIC(picture);
  }
}

TEST_P(VBox, ABoxBeyondTheViewIsCutToIt) {
  stage::stage({"rgby", "rgby", "rgby"});
  HSET_V = 0;
  v_box(AT_X1, 2, 1, 40, 50);
  EXPECT_PIC({"rgby", "rg##", "rg##"});
  EXPECT_EQ(WORK2.Width(), 2);
  EXPECT_EQ(WORK2.Height(), 2);
  v_box(AT_X1, 0, 0, -7, -7);
  EXPECT_PIC({"#gby", "rg##", "rg##"});
  EXPECT_EQ(WORK2.Width(), 1);
}

TEST_P(VBox, TakesTheReleasePointRounded) {
  stage::stage({"rgbyrgby"});
  HSET_V = 0;
  v_box(AT_X1, 0, 0, 2.5F, 0);  // to 2
  EXPECT_PIC({"###yrgby"});
}

TEST_P(VBox, ReadsWhatLiesOnTheView) {
  stage::stage({"....", "...."});
  SetPixelV(DRAW, 1, 0, colour_of('r'));
  HSET_V = 200;
  v_box(AT_X1, 0, 0, 3, 1);
  EXPECT_PIC({".r..", "...."});
}

TEST_P(VBox, AtExpansionItTakesWholeBlocksOnBothSides) {
  const Picture picture = {"rgby", "rgby", "rgby", "rgby"};
  for (const int rate : {2, 4, 8}) {
    stage::stage(picture);
    zoom(rate);
    HSET_V = 0;
    const auto at = [rate](int block, int inside) { return static_cast<float>(block * rate + inside); };
    v_box(AT_EXPANSION, at(1, rate - 1), at(1, 0), at(2, 0), at(2, rate - 1));
    EXPECT_PIC({"rgby", "r##y", "r##y", "rgby"});
    key(' ');
    v_box(AT_EXPANSION, at(2, 0), at(3, 1), at(0, rate - 1), at(2, 0));
    EXPECT_PIC({"rgby", "rgby", "###y", "###y"});
    EXPECT_EQ(WORK2.Width(), 3);
    EXPECT_EQ(WORK2.Height(), 2);
    v_box(AT_EXPANSION, at(3, 0), at(0, 0), at(9, 0), at(0, 0));
    EXPECT_PIC({"rgb#", "rgby", "###y", "###y"});
  }
}

TEST_P(VBox, AtExpansionTheViewMayBeScrolled) {
  stage::stage(Picture(40, std::string(40, 'g')));
  zoom(8);
  view(80, 80);
  forms::enter([] {
    X_SC.Value(5);
    Y_SC.Value(7);
  });
  HSET_V = 0;
  v_box(AT_EXPANSION, 8, 8, 17, 12);
  Picture changed(40, std::string(40, 'g'));
  changed[8].replace(6, 2, "##");
  EXPECT_PIC(changed);
}

// The plain box of x1 at expansion: it reads columns from half a block right of its own edge on.
TEST_P(VBox, ABoxThatBeginsWithinABlockReadsFurtherRight) {
  stage::stage({"rgby"});
  zoom(8);
  HSET_V = 100;
  v_box(AT_X1, 6, 0, 15, 7);  // 10 pixels of two blocks: columns 10 and 18, so green and blue, 5 pixels each
  for (int x = 0; x < 32; ++x) {
    const char wanted = x < 6 ? 'r' : x < 11 ? 'g' : x < 16 ? 'b' : "rgby"[x / 8];
    EXPECT_EQ(letter_of(GetPixel(DRAW, x, 3)), wanted) << x;
  }
}

// A column that leads beyond DRAW keeps what the smear of the one before it has left.
TEST_P(VBox, ABoxThatReadsBeyondTheViewRepeatsItsLastColumn) {
  stage::stage({"rgby"});
  zoom(8);
  HSET_V = 100;
  v_box(AT_X1, 21, 0, 31, 7);  // columns 25 and 33: yellow, and beyond
  for (int x = 21; x < 32; ++x) EXPECT_EQ(letter_of(GetPixel(DRAW, x, 3)), 'y') << x;
}

TEST(VBoxAndTheScreen, TellsOfProgressByColumnsAndLeavesThePointer) {
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
  } recorder;
  stage::stage({"rgby", "rgby"});
  zoom(4);
  forms::use_desktop(&recorder);
  v_box(AT_EXPANSION, 0, 0, 4, 4);
  forms::use_desktop(&desk());
  EXPECT_EQ(recorder.seen,
            (std::vector<std::string>{"caption \"V_BOX Change Color処理中\"", "0/2", "0/2", "1/2", "2/2"}));
  EXPECT_EQ(recorder.pointer, 1);
  EXPECT_TRUE(P_WIN.Enabled());
}

}  // namespace
