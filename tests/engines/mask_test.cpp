// The mask pens, through the events of the pointer.
#include "engines/twin.h"
#include "tools/tools_stage.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

void colours(Colour target, Colour destination) {
  unpack_colour(target, TAR_R, TAR_G, TAR_B);
  unpack_colour(destination, DES_R, DES_G, DES_B);
}

void fuzzy(int h, int s, int v) {
  FUZZY_H = to_int16(h);
  FUZZY_S = to_int16(s);
  FUZZY_V = to_int16(v);
}

// A picture of one row in those colours, all of it under one dab of the Fuzzy Mask Pen in black.
void dab_over(const std::vector<Colour>& row) {
  stage::stage(plain(static_cast<int>(row.size()), 1));
  forms::enter([&] {
    for (size_t x = 0; x < row.size(); ++x) SetPixelV(PIC, static_cast<int>(x), 0, row[x]);
    VIEW_REDRAW();
  });
  select_tool(23);
  pen(33);
}
std::vector<bool> painted(Colour destination) {
  colours(RGB(1, 2, 3), destination);
  click(3, 0);
  std::vector<bool> out;
  for (int x = 0; x < PIC_SIZE(1); ++x) out.push_back(GetPixel(PIC, x, 0) == RGB(1, 2, 3));
  return out;
}

TEST(MaskPen, PaintsOverTheDestinationColourAlone) {
  stage::stage({"..r..", ".r...", "....."});
  select_tool(10);
  pen(3);
  target_colour('b');
  destination_colour('.');
  press(1, 1);
  EXPECT_DRAW({"bbr..", "brb..", "bbb.."});
  EXPECT_PIC({"..r..", ".r...", "....."});
  EXPECT_EQ(PREVIEW_ON, 1);
  EXPECT_EQ(WORK.Width(), 5);
  EXPECT_EQ(WORK.Height(), 5);
  drag(3, 1);
  release(3, 1);
  EXPECT_PIC({"bbrbb", "brbbb", "bbbbb"});
  EXPECT_EQ(PREVIEW_ON, 0);
  EXPECT_TRUE(DRAW.AutoRedraw());
  key(' ');
  EXPECT_PIC({"..r..", ".r...", "....."});
}

TEST(ReverseMaskPen, PaintsOverAllButTheDestinationColour) {
  stage::stage({"..r..", ".r.g.", "....#"});
  select_tool(11);
  pen(3);
  target_colour('b');
  destination_colour('.');
  press(2, 1);
  drag(3, 1);
  release(3, 1);
  EXPECT_PIC({"..b..", ".b.b.", "....b"});
}

TEST(MaskPens, WithBothColoursAlikeChangeNothingToSee) {
  stage::stage({"r.g", ".r."});
  for (const int tool : {10, 23}) {
    select_tool(tool);
    pen(3);
    fuzzy(10, 10, 10);
    target_colour('r');
    destination_colour('r');
    click(1, 1);
    EXPECT_PIC({"r.g", ".r."});
  }
}

TEST(MaskPen, OfSizeOneIsThePixelOfThePointer) {
  stage::stage({"...", "..."});
  select_tool(10);
  pen(1);
  target_colour('r');
  click(1, 1);
  EXPECT_PIC({"...", ".r."});
}

TEST(MaskPen, OfEvenSizeReachesFartherToTheLeftAndTheTop) {
  stage::stage(plain(5, 4));
  select_tool(10);
  pen(2);
  target_colour('r');
  click(2, 2);
  EXPECT_PIC({".....", ".rr..", ".rr..", "....."});
}

TEST(MaskPen, TruncatesThePointerAtX1) {
  stage::stage(plain(4, 1));
  select_tool(10);
  pen(1);
  target_colour('r');
  click(1.9F, 0);
  EXPECT_PIC({".r.."});
}

TEST(MaskPen, HangsOverEachSideOfTheView) {
  stage::stage(plain(6, 5));
  for (const int rate : {1, 2, 4, 8}) {
    show(plain(6, 5));
    zoom(rate);
    select_tool(10);
    pen(3);
    target_colour('r');
    const auto at = [rate](int v) { return static_cast<float>(v * rate); };
    click(at(0), at(0));
    click(at(5), at(4));
    EXPECT_PIC({"rr....", "rr....", "......", "....rr", "....rr"});
    EXPECT_EQ(text_of(DRAW), enlarged({"rr....", "rr....", "......", "....rr", "....rr"}, rate));
  }
}

TEST(MaskPen, BelowTheViewAtExpansionPaintsTheRowsInsideInFullWidth) {
  stage::stage(plain(8, 8));
  zoom(4);
  select_tool(10);
  pen(5);
  target_colour('r');
  press(16, 16);
  drag(16, 38);  // two rows below the picture: the tile's first row is the view's last
  release(16, 38);
  EXPECT_PIC({"........", "........", "..rrrrr.", "..rrrrr.", "..rrrrr.", "..rrrrr.", "..rrrrr.", "..rrrrr."});
}

TEST(MaskPen, FarOutsideOfTheViewPaintsNothing) {
  stage::stage(plain(4, 4));
  zoom(2);
  select_tool(10);
  pen(3);
  press(4, 4);
  drag(4, 300);
  drag(-200, 2);
  release(4, 3000);
  EXPECT_PIC({"....", ".###", ".###", ".###"});
}

TEST(MaskPen, AtX8IsCalledOnceAPicturePixel) {
  stage::stage(plain(6, 4));
  zoom(8);
  select_tool(10);
  pen(2);
  target_colour('r');
  press(16, 16);
  // What another hand puts on M_REDRAW shows whether the pen comes again.
  forms::enter([] { SetPixelV(M_REDRAW, 12, 8, RGB(255, 255, 255)); });
  drag(23, 23);
  EXPECT_EQ(GetPixel(M_REDRAW, 12, 8), WHITE);
  forms::enter([] { SetPixelV(M_REDRAW, 12, 8, RGB(255, 0, 0)); });
  drag(24, 23);
  release(24, 23);
  EXPECT_PIC({"......", ".rrr..", ".rrr..", "......"});
}

TEST(MaskPen, DrawsNothingAt8BitsWhereTheReverseOneDoes) {
  stage::start();
  twin::use_depth(8);
  view(100, 100);
  for (const int tool : {10, 23, 11}) {
    show({"...", "..."});
    select_tool(tool);
    fuzzy(180, 255, 255);
    target_colour('r');
    if (tool == 11) destination_colour('b');
    click(1, 1);
    EXPECT_PIC({"...", tool == 11 ? ".r." : "..."});
  }
}

TEST(MaskPens, PaintTheSameBySingleCallsAsByBytes) {
  stage::start();
  view(100, 100);
  for (const int depth : {32, 24, 16}) {
    twin::use_depth(depth);
    show({"r.g.", ".rg.", "b..."});
    pen(3);
    target_colour('y');
    destination_colour('.');
    select_tool(10);
    click(1, 1);
    destination_colour('y');
    target_colour('#');
    select_tool(11);
    click(2, 2);
    EXPECT_PIC({"ryg.", "y###", "byy#"});
  }
}

TEST(FuzzyMaskPen, WithNoRangeOfHuesPaintsNothing) {
  dab_over({RGB(200, 40, 40), RGB(201, 40, 40)});
  fuzzy(0, 255, 255);
  EXPECT_EQ(painted(RGB(200, 40, 40)), (std::vector<bool>{false, false}));
}

TEST(FuzzyMaskPen, TakesRedsOnBothSidesOfZero) {
  // Hues 0, 4.0, 356, 15.1 and 344.7; all of about the same S and V.
  dab_over({RGB(255, 0, 0), RGB(255, 17, 0), RGB(255, 0, 17), RGB(255, 64, 0), RGB(255, 0, 65)});
  fuzzy(10, 10, 10);
  EXPECT_EQ(painted(RGB(255, 0, 0)), (std::vector<bool>{true, true, true, false, false}));
}

TEST(FuzzyMaskPen, WithHalfATurnTakesAllHuesButTheBound) {
  // Around red the bound is cyan, 180 degrees; the window lies outside of it on both sides.
  dab_over({RGB(255, 0, 0), RGB(0, 255, 0), RGB(0, 0, 255), RGB(0, 255, 255), RGB(0, 255, 254)});
  fuzzy(180, 255, 255);
  EXPECT_EQ(painted(RGB(255, 0, 0)), (std::vector<bool>{true, true, true, false, true}));
}

TEST(FuzzyMaskPen, GreysHaveTheHueZero) {
  // Of grey hue and saturation 0; a red of little saturation is within reach, a green one is not.
  dab_over({RGB(120, 120, 120), RGB(128, 126, 126), RGB(126, 128, 126), RGB(140, 140, 140)});
  fuzzy(20, 10, 10);
  EXPECT_EQ(painted(RGB(128, 128, 128)), (std::vector<bool>{true, true, false, false}));
}

TEST(FuzzyMaskPen, IncludesTheBoundsOfSAndVAndRoundsThemToEven) {
  // S of the destination is half of 255: 127.5, which rounds to 128 with 0 and to 138 with 10.
  // V levels 200, 210, 211 and 190, 189.
  dab_over({RGB(200, 100, 100), RGB(210, 105, 105), RGB(211, 105, 105), RGB(190, 95, 95), RGB(189, 94, 94)});
  fuzzy(30, 2, 10);
  EXPECT_EQ(painted(RGB(200, 100, 100)), (std::vector<bool>{true, true, false, true, false}));
}

TEST(FuzzyMaskPen, WithNoRangeOfSMissesTheDestinationWhoseBoundsAreRounded) {
  // Both bounds of S are 128, its level is 127.5.
  dab_over({RGB(200, 100, 100)});
  fuzzy(30, 0, 10);
  EXPECT_EQ(painted(RGB(200, 100, 100)), (std::vector<bool>{false}));
}

TEST(MaskPen, GivenUpByTheRightButtonLeavesThePicture) {
  stage::stage(plain(4, 2));
  select_tool(10);
  pen(1);
  press(1, 1);
  press(2, 1, 2);
  EXPECT_EQ(PEN_DOWN, 0);
  EXPECT_EQ(PREVIEW_ON, 1);
  EXPECT_EQ(STROKE_STATE, 1);
  EXPECT_TRUE(DRAW.AutoRedraw());
  release(2, 1);
  EXPECT_PIC({"....", "...."});
  EXPECT_DRAW({"....", "...."});
  // The next stroke is whole again.
  click(0, 0);
  EXPECT_PIC({"#...", "...."});
  EXPECT_EQ(PREVIEW_ON, 0);
}

TEST(MaskPen, GivenUpByBlankLeavesThePictureAndTheSnapshot) {
  stage::stage(plain(4, 2));
  select_tool(10);
  pen(1);
  click(0, 0);
  press(1, 1);
  key(' ');
  EXPECT_EQ(PREVIEW_ON, 0);
  EXPECT_EQ(PEN_DOWN, 0);
  EXPECT_DRAW({"#...", "...."});
  release(1, 1);
  EXPECT_PIC({"#...", "...."});
  EXPECT_EQ(text_of(UNDO)[0], "....");
}

}  // namespace
