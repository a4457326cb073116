// The V pen: a stroke changes a pixel once, however often it passes.
#include "tools/tools_stage.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

constexpr Colour grey(int v) { return RGB(v, v, v); }

TEST(VPen, HalvesTheBrightnessOnceAStroke) {
  stage::stage(plain(6, 3));
  HSET_V = 50;
  select_tool(33);
  pen(1);
  press(1, 1);
  drag(3, 1);
  drag(1, 1);
  release(1, 1);
  EXPECT_EQ(GetPixel(PIC, 1, 1), grey(127));  // 127.5 truncated
  EXPECT_EQ(GetPixel(PIC, 2, 1), WHITE);
  EXPECT_EQ(GetPixel(PIC, 3, 1), grey(127));
  click(1, 1);
  EXPECT_EQ(GetPixel(PIC, 1, 1), grey(63));  // 63.5
}

TEST(VPen, AtZeroPaintsBlackAndAtTwoHundredStopsAtTheBrightest) {
  stage::stage({"r.#"});
  select_tool(33);
  pen(1);
  HSET_V = 200;
  click(0, 0);
  EXPECT_EQ(GetPixel(PIC, 0, 0), RGB(255, 0, 0));
  HSET_V = 0;
  click(0, 0);
  click(1, 0);
  EXPECT_PIC({"###"});
}

TEST(VPen, KeepsGreysGrey) {
  stage::stage(plain(1, 1));
  select_tool(33);
  pen(1);
  for (int v = 0; v < 256; ++v) {
    forms::enter([v] {
      SetPixelV(PIC, 0, 0, grey(v));
      VIEW_REDRAW();
    });
    HSET_V = to_int16(v % 201);
    click(0, 0);
    const Colour c = GetPixel(PIC, 0, 0);
    ASSERT_EQ(c, grey(static_cast<int>(c & 255)));
  }
}

TEST(VPen, IsMadeOfWholeBlocksAtX8) {
  stage::stage(plain(5, 5));
  zoom(8);
  HSET_V = 0;
  select_tool(33);
  pen(2);
  click(20, 20);  // the pixel 2, 2: the tile begins at 1, 1
  const Picture expected = {".....", ".##..", ".##..", ".....", "....."};
  EXPECT_PIC(expected);
  EXPECT_EQ(text_of(DRAW), enlarged(expected, 8));
}

}  // namespace
