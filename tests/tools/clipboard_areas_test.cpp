// Copy to Clipboard and Copy from Clipboard.
#include "persist/persist.h"
#include "platform/forms/clipboard.h"
#include "tools_stage.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

raster::Surface surface_of(const Picture& picture) {
  raster::Surface s(static_cast<int>(picture[0].size()), static_cast<int>(picture.size()));
  for (int y = 0; y < s.height(); ++y) {
    for (int x = 0; x < s.width(); ++x) {
      raster::SetPixelV(s, x, y, colour_of(picture[static_cast<size_t>(y)][static_cast<size_t>(x)]));
    }
  }
  return s;
}
void on_clipboard(const Picture& picture) {
  forms::enter([&] { forms::Clipboard::SetData(surface_of(picture)); });
}
Picture clipboard_picture() { return text_of(forms::Clipboard::GetData()); }
void choose(int button) {
  forms::enter([&] { CMD_WIN.CMD_B(button).Click.fire(button); });
}

const Picture COLOURS = {"rgbyr.", "gbyrg.", "byrgb.", "yrgby.", "rgbyr.", "gbyrg."};

TEST(CopyToClipboard, OddSizesBecomeEven) {
  stage_with_status(COLOURS);
  choose(18);
  EXPECT_EQ(CUR_TOOL, 18);
  press(0, 0);
  drag(2, 4);
  EXPECT_EQ(INF_SUB.Caption(), "Size X= 3 Y= 5");
  release(2, 4);
  EXPECT_EQ(clipboard_picture(), (Picture{"rgby", "gbyr", "byrg", "yrgb", "rgby", "gbyr"}));
  EXPECT_EQ(CUR_TOOL, 18);
  EXPECT_FALSE(WORK.Visible());
  EXPECT_EQ(INF_SUB.Caption(), " ");
  EXPECT_DRAW(COLOURS);
  EXPECT_PIC(COLOURS);
  press(1, 0);  // the next area takes the place of the one before
  drag(2, 1);
  release(2, 1);
  EXPECT_EQ(clipboard_picture(), (Picture{"gb", "by"}));
}

TEST(CopyToClipboard, DragToTheTopLeftCopiesTheSameArea) {
  stage::stage(COLOURS);
  choose(18);
  press(2, 4);
  drag(0, 0);
  release(0, 0);
  EXPECT_EQ(clipboard_picture(), (Picture{"rgby", "gbyr", "byrg", "yrgb", "rgby", "gbyr"}));
}

TEST(CopyToClipboard, SelectionGivenUpCopiesNothing) {
  stage::stage(COLOURS);
  on_clipboard({"b"});
  choose(18);
  press(0, 0);
  drag(2, 4);
  press(2, 4, 2);
  release(2, 4);
  EXPECT_EQ(clipboard_picture(), Picture{"b"});
  EXPECT_DRAW(COLOURS);
}

TEST(CopyFromClipboard, PointerHoldsThePictureByItsBottomRightCorner) {
  stage::stage(plain(8, 5));
  on_clipboard({"rgb", "byr"});
  choose(19);
  EXPECT_EQ(CUR_TOOL, 19);
  EXPECT_TRUE(WORK.Visible());
  EXPECT_EQ(WORK.Left(), 0);
  EXPECT_EQ(WORK.Top(), 0);
  EXPECT_EQ(text_of(WORK.Image()), (Picture{"rgb", "byr"}));
  hover(7, 4);
  EXPECT_EQ(WORK.Left(), 4);
  EXPECT_EQ(WORK.Top(), 2);
  EXPECT_DRAW(plain(8, 5));
  const Picture stamped = {"........", "........", "....rgb.", "....byr.", "........"};
  press(7, 4);
  EXPECT_EQ(CUR_TOOL, 0);
  EXPECT_FALSE(WORK.Visible());
  EXPECT_DRAW(stamped);
  EXPECT_PIC(plain(8, 5));
  release(7, 4);
  EXPECT_PIC(stamped);
  EXPECT_EQ(UNDO_READY, 1);
  key(' ');
  EXPECT_PIC(plain(8, 5));
}

TEST(CopyFromClipboard, TellsThatThereIsNoPictureAndKeepsTheTool) {
  stage::stage(plain(4, 4));
  forms::enter([] { forms::Clipboard::Clear(); });
  choose(1);
  choose(19);
  ASSERT_EQ(desk().boxes.size(), 1U);
  EXPECT_EQ(desk().boxes[0].text, "クリップボードには絵が入っていません。");
  EXPECT_EQ(desk().boxes[0].style, 48);
  EXPECT_EQ(desk().boxes[0].title, APP_TITLE);
  EXPECT_EQ(CUR_TOOL, 2);
  EXPECT_FALSE(WORK.Visible());
}

TEST(CopyFromClipboard, FractionsAreRoundedToTheEvenPixel) {
  stage::stage(plain(6, 2));
  on_clipboard({"r"});
  choose(19);
  hover(3.5F, 1.5F);
  EXPECT_EQ(WORK.Left(), 2.5);
  click(3.5F, 1.5F);
  EXPECT_PIC({"..r...", "......"});
}

TEST(CopyFromClipboard, PictureLargerThanTheViewIsCut) {
  start();
  view(16, 16);
  show(plain(20, 20));
  Picture large = plain(30, 30, 'y');
  large.back() = std::string(30, 'r');
  on_clipboard(large);
  choose(19);
  EXPECT_EQ(WORK.Width(), 30);
  hover(6, 4);
  click(6, 4);
  Picture wanted = plain(20, 20);
  for (size_t y = 0; y < 4; ++y) wanted[y].replace(0, 6, y == 3 ? "rrrrrr" : "yyyyyy");
  EXPECT_PIC(wanted);
}

TEST(CopyFromClipboard, RightButtonWhileItFloatsOnlyTogglesThePalettes) {
  stage::stage(plain(4, 4));
  on_clipboard({"r"});
  choose(19);
  press(2, 2, 2);
  release(2, 2, 2);
  EXPECT_FALSE(CMD_WIN.Visible());
  EXPECT_EQ(CUR_TOOL, 19);
  EXPECT_TRUE(WORK.Visible());
}

TEST(CopyFromClipboard, RightButtonWhileTheStampIsHeldTakesItBack) {
  stage::stage(plain(4, 4));
  on_clipboard({"r"});
  choose(19);
  press(2, 2);
  press(2, 2, 2);
  EXPECT_DRAW(plain(4, 4));
  release(2, 2);
  EXPECT_PIC(plain(4, 4));
  EXPECT_EQ(CUR_TOOL, 0);
}

TEST(CopyFromClipboard, AnotherToolDropsThePictureAndAScrollDoesNot) {
  start();
  view(16, 16);
  Picture picture = plain(30, 16);
  show(picture);
  on_clipboard({"rg"});
  choose(19);
  forms::enter([] { X_SC.Value(10); });
  EXPECT_EQ(CUR_TOOL, 19);
  hover(3, 1);
  click(3, 1);
  picture[0].replace(11, 2, "rg");
  EXPECT_PIC(picture);
  choose(19);
  choose(0);
  EXPECT_FALSE(WORK.Visible());
}

}  // namespace
