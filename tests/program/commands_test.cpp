// What buttons of the palette start.
#include "dialogs/set_win.h"
#include "palette/palette_fixture.h"
#include "palette/palette_table.h"
#include "windows/about_win.h"
#include "windows/help_win.h"

namespace kiso {
namespace {

TEST_F(Palette, ExitEndsTheProgramUnlessThePersonStays) {
  click(CMD_WIN.ROOT_B(3));
  desktop_.answers = {2};
  click(CMD_WIN.SYS_B(0));
  ASSERT_EQ(desktop_.boxes.size(), 1U);
  EXPECT_EQ(desktop_.boxes[0].title, "Kiso 終了");
  EXPECT_FALSE(has_ended());
  EXPECT_EQ(pressed(CMD_WIN.SYS_B), Pressed{});
  desktop_.answers = {6};
  click(CMD_WIN.SYS_B(0));
  EXPECT_TRUE(has_ended());
  EXPECT_EQ(fatal_error(), 0);
}

TEST_F(Palette, TheAboutWindowShowsTheVersionOverTheMiddle) {
  click(CMD_WIN.ROOT_B(3));
  click(CMD_WIN.SYS_B(1));
  ASSERT_TRUE(ABOUT_WIN.Loaded());
  EXPECT_TRUE(ABOUT_WIN.Visible());
  EXPECT_EQ(ABOUT_WIN.owner(), &P_WIN);
  EXPECT_EQ(ABOUT_WIN.Version.Caption(), "Kiso72W.2.58");
  EXPECT_EQ(ABOUT_WIN.Left() + ABOUT_WIN.Width() / 2, P_WIN.Left() + P_WIN.Width() / 2);
  EXPECT_EQ(ABOUT_WIN.Top() + ABOUT_WIN.Height() / 2, P_WIN.Top() + P_WIN.Height() / 2);
  enter([] { ABOUT_WIN.Command1.Click.fire(-1); });
  EXPECT_FALSE(ABOUT_WIN.Loaded());
}

TEST_F(Palette, TheHelpWindowTellsEveryTool) {
  click(CMD_WIN.OPT_W_B(1));
  ASSERT_TRUE(HELP_WIN.Loaded());
  EXPECT_TRUE(HELP_WIN.Visible());
  const std::string& page = HELP_WIN.Text1.Text();
  for (const PalButton& b : palette_buttons()) {
    if (b.group != Group::CMD_B) continue;
    const std::string name = name_of(b);
    // the four sides share a line
    if (name.ends_with("side change")) continue;
    const size_t japanese = page.find(name);
    EXPECT_NE(japanese, std::string::npos) << name;
    EXPECT_GT(page.rfind(name), page.find("First steps")) << name << " in English";
    EXPECT_LT(japanese, page.find("First steps")) << name << " in Japanese";
  }
  for (const char* key : {"PageUp", "Space", "スペース", "マウス", "Mouse"}) {
    EXPECT_NE(page.find(key), std::string::npos) << key;
  }
  EXPECT_TRUE(HELP_WIN.escape_closes);
  HELP_WIN.inside(400, 300);
  EXPECT_EQ(HELP_WIN.Text1.Width(), 400);
  EXPECT_EQ(HELP_WIN.Text1.Height(), 300);
}

// On a screen of 1280 x 1024 pixels.
TEST_F(Palette, HelpOpensBesideThePalettes) {
  for (const int left : {0, 400, 528, 700, 1100}) {
    COL_WIN.Left(left * TWIPS);
    CMD_WIN.Left((left + 20) * TWIPS);
    click(CMD_WIN.OPT_W_B(1));
    const double right = CMD_WIN.Left() + CMD_WIN.Width();
    EXPECT_TRUE(HELP_WIN.Left() >= right || HELP_WIN.Left() + HELP_WIN.Width() <= COL_WIN.Left()) << left;
    EXPECT_GE(HELP_WIN.Left(), 0);
    EXPECT_LE(HELP_WIN.Left() + HELP_WIN.Width(), screen_width()) << left;
    EXPECT_GE(HELP_WIN.Width(), 500 * TWIPS) << left;
    HELP_WIN.Unload();
  }
}

TEST_F(Palette, MomentaryButtonsComeUpAgain) {
  click(CMD_WIN.ROOT_B(2));
  desktop_.answers = {NO, NO};  // to Load and to New
  desktop_.files = {std::nullopt};
  for (int i = 0; i < 7; ++i) click(CMD_WIN.FILE_B(i));
  EXPECT_EQ(pressed(CMD_WIN.FILE_B), Pressed{});
  click(CMD_WIN.ROOT_B(5));
  for (int i = 0; i < 6; ++i) click(CMD_WIN.EFCT_B(i));
  EXPECT_EQ(pressed(CMD_WIN.EFCT_B), Pressed{});
  click(CMD_WIN.ROOT_B(3));
  for (int i = 1; i < 5; ++i) {
    click(CMD_WIN.SYS_B(i));
    enter([] { SET_WIN.Unload(); });  // the palette waits for it
  }
  EXPECT_EQ(pressed(CMD_WIN.SYS_B), Pressed{});
  for (int i = 0; i < 3; ++i) click(CMD_WIN.OPT_W_B(i));
  EXPECT_EQ(pressed(CMD_WIN.OPT_W_B), Pressed{});
}

}  // namespace
}  // namespace kiso
