// The Thru Pen: what a stroke leaves does not hang on how often it passes.
#include "tools/tools_stage.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

constexpr Colour grey(int v) { return RGB(v, v, v); }

// White under black at that balance: old * cell + (1 - cell) * 0, in single precision.
int thinned(int balance) { return static_cast<int>(std::lrintf(255.0F * (static_cast<float>(balance) / 100))); }

TEST(ThruPen, CrossingItsOwnStrokeIsNotDarkerThere) {
  stage::stage(plain(12, 9));
  DEEP_BAL = 70;
  select_tool(36);
  pen(5);
  press(3, 4);
  drag(8, 4);
  drag(3, 4);
  drag(8, 4);
  release(8, 4);
  int inked = 0;
  for (int y = 0; y < 9; ++y) {
    for (int x = 0; x < 12; ++x) {
      const Colour c = GetPixel(PIC, x, y);
      if (c == WHITE) continue;
      ++inked;
      EXPECT_EQ(c, grey(thinned(70)));
    }
  }
  EXPECT_GT(inked, 25);
}

TEST(ThruPen, IsADiscOfOneWeight) {
  stage::stage(plain(9, 9));
  DEEP_BAL = 50;
  select_tool(36);
  pen(5);
  press(4, 4);
  release(4, 4);
  // Radius 2, the corners left out.
  const Picture disc = {".###.", "#####", "#####", "#####", ".###."};
  for (int y = 0; y < 5; ++y) {
    for (int x = 0; x < 5; ++x) {
      const bool inside = disc[static_cast<size_t>(y)][static_cast<size_t>(x)] == '#';
      EXPECT_EQ(BRUSH_CELL(x)(y), inside ? 0.5F : 0.0F) << x << "," << y;
      EXPECT_EQ(GetPixel(PIC, 2 + x, 2 + y), inside ? grey(128) : WHITE);  // 127.5 to even
    }
  }
}

TEST(ThruPen, RunsFromTheTargetColourToThePictureItself) {
  stage::stage({".....", "..r..", "....."});
  select_tool(36);
  pen(1);
  const auto at_balance = [](int balance) {
    DEEP_BAL = to_int16(balance);
    click(2, 1);
    const Colour c = GetPixel(PIC, 2, 1);
    key(' ');
    return c;
  };
  target_colour('b');
  EXPECT_EQ(at_balance(100), RGB(255, 0, 0));
  EXPECT_EQ(at_balance(1), RGB(3, 0, 252));  // 2.55 and 252.45
  EXPECT_EQ(at_balance(0), RGB(255, 0, 0));
}

TEST(ThruPen, MixesFromAnOlderSnapshotWhereTheButtonIsOn) {
  stage::stage(plain(9, 3));
  select_tool(1);
  click(4, 1);  // black; the snapshot has white there
  DEEP_BAL = 50;
  select_tool(36);
  pen(1);
  click(4, 1);
  EXPECT_EQ(GetPixel(PIC, 4, 1), grey(128));
}

TEST(ThruPen, GivenUpLeavesThePicture) {
  stage::stage(plain(9, 9));
  for (const bool by_blank : {false, true}) {
    select_tool(36);
    pen(5);
    press(4, 4);
    EXPECT_EQ(UNDO_READY, 1);
    by_blank ? key(' ') : press(4, 4, 2);
    EXPECT_EQ(text_of(DRAW), plain(9, 9));
    release(4, 4);
    EXPECT_EQ(text_of(PIC), plain(9, 9));
  }
}

}  // namespace
