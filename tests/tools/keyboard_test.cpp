// The keys of the picture.
#include "palette_stage.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

constexpr int SHIFT = 1, CTRL = 2;
constexpr int PAGE_UP = 33, PAGE_DOWN = 34, LEFT = 37, RIGHT = 39, DOWN = 40;

void scrollable() {
  start();
  view(40, 40);
  show(Picture(60, std::string(60, '.')));
}

TEST(Keys, ArrowsScrollByOneAndWithShiftBySixteen) {
  scrollable();
  key(RIGHT);
  EXPECT_EQ(X_SC.Value(), 1);
  key(RIGHT, SHIFT);
  EXPECT_EQ(X_SC.Value(), 17);
  key(RIGHT, SHIFT);
  EXPECT_EQ(X_SC.Value(), 20);  // clipped
  key(LEFT, CTRL);
  EXPECT_EQ(X_SC.Value(), 19);
  key(DOWN, SHIFT | CTRL);  // not shift alone
  EXPECT_EQ(Y_SC.Value(), 1);
}

TEST(Keys, NothingScrollsDuringAStroke) {
  scrollable();
  press(1, 1);
  key(RIGHT);
  key(PAGE_UP);
  EXPECT_EQ(X_SC.Value(), 0);
  EXPECT_EQ(PEN_SIZE, 1);
}

TEST(Keys, PageKeysChangeThePenBetweenOneAndThirtyThree) {
  scrollable();
  key(PAGE_DOWN);
  EXPECT_EQ(PEN_SIZE, 1);
  key(PAGE_UP);
  EXPECT_EQ(PEN_SIZE, 2);
  EXPECT_EQ(CMD_WIN.PEN_SZ.Caption(), " 2");
  pen(33);
  key(PAGE_UP);
  EXPECT_EQ(PEN_SIZE, 33);
  key(PAGE_DOWN);
  EXPECT_EQ(PEN_SIZE, 32);
}

TEST(Keys, TheKeypadDrawsPixelByPixel) {
  stage::stage({"......", "......", "......"});
  hover(1, 1);
  key_down(96);
  EXPECT_EQ(PEN_DOWN, 1);
  key_up(96);
  EXPECT_EQ(PEN_DOWN, 0);
  key(102);  // right
  key(105);  // up and right
  key(96);
  EXPECT_PIC({"...#..", ".#....", "......"});
}

TEST(Keys, AHeldKeypadZeroPressesOnce) {
  stage::stage({"......"});
  hover(1, 0);
  key_down(96);
  key_down(96);  // auto-repeat
  key_down(96);
  key_up(96);
  EXPECT_EQ(PEN_DOWN, 0);
  EXPECT_PIC({".#...."});
}

TEST(Keys, TheKeypadDoesNotSteerAHeldStroke) {
  stage::stage({"......"});
  hover(1, 0);
  key_down(96);
  key(102);
  EXPECT_EQ(desk().x, 1);
  key_up(96);
}

TEST(Keys, KeypadFiveDoesNothing) {
  stage::stage({"r....."});
  hover(0, 0);
  key(101);
  EXPECT_EQ(desk().x, 0);
  EXPECT_EQ(TAR_R, 0);
}

TEST(Keys, TheCharacterOfAKeypadMoveIsNoColourKey) {
  stage::stage({"rr...."});
  hover(0, 0);
  key(97);  // its character is "1"
  EXPECT_EQ(TAR_R, 0);
  EXPECT_EQ(KEY_MOVED, 1);
  hover(0, 0);
  key('1');
  EXPECT_EQ(TAR_R, 255);
}

TEST(Keys, OneAndTwoTakeTheTwoColours) {
  stage::stage({"rb...."});
  hover(0, 0);
  key('1');
  EXPECT_EQ(TAR_R, 255);
  EXPECT_EQ(CUR_R, 255);  // the target colour is the one being edited
  EXPECT_EQ(COL_WIN.TAR_COL.BackColor(), colour_of('r'));
  hover(1, 0);
  key('2');
  EXPECT_EQ(DES_B, 255);
  EXPECT_EQ(DES_R, 0);
  EXPECT_EQ(CUR_R, 255);  // not the one being edited
  EXPECT_EQ(COL_WIN.DES_COL.BackColor(), colour_of('b'));
}

TEST(Keys, OneAndTwoWaitForTheEndOfAStroke) {
  stage::stage({"rb...."});
  press(0, 0);
  drag(1, 0);
  key('2');
  EXPECT_EQ(DES_B, 255);
  EXPECT_EQ(DES_R, 255);
}

TEST(Keys, BesideThePictureTheyBeepAndSelectTheColour) {
  stage::stage({"rb...."});
  hover(1, 0);
  forms::enter([] { DMY.KeyPress.fire(-1, '2'); });
  EXPECT_EQ(desk().beeps, 1);
  EXPECT_EQ(COL_TARGET, 1);
  EXPECT_EQ(DES_B, 255);
  EXPECT_EQ(DES_R, 0);
  forms::enter([] { DMY.KeyPress.fire(-1, '1'); });
  EXPECT_EQ(COL_TARGET, 0);
  EXPECT_EQ(desk().beeps, 2);
}

TEST(Keys, BesideThePictureBlankUndoes) {
  stage::stage({"......"});
  click(2, 0);
  forms::enter([] { DMY.KeyPress.fire(-1, ' '); });
  EXPECT_PIC({"......"});
  forms::enter([] { DMY.KeyPress.fire(-1, ' '); });
  EXPECT_PIC({"..#..."});
}

TEST(Keys, ALetterFetchesAColour) {
  stage::stage({"r....."});
  forms::enter([] {
    DICT_COL(0)(2)(1) = 10;
    DICT_COL(0)(2)(2) = 20;
    DICT_COL(0)(2)(3) = 30;
    DICT_WRITE = 0;
  });
  forms::enter([] { DRAW.KeyDown.fire(-1, 'C', 0); });
  forms::enter([] { DRAW.KeyPress.fire(-1, 'c'); });  // small letters count as capitals
  EXPECT_EQ(TAR_R, 10);
  EXPECT_EQ(TAR_B, 30);
}

}  // namespace
