// The settings window: what it shows of the variables, and what OK, Cancel and the frame make of it.
#include "dialogs_test.h"

namespace kiso {
namespace {

struct SetWindow : Dialogs {};

// Every option and check box with its variable and the value that it stands for.
struct Mapping {
  OptionButton& option;
  int16_t& variable;
  int16_t value;
};
const Mapping OPTIONS[] = {
    {SET_WIN.Option1, BIRD_REWRITE, 2},   {SET_WIN.Option2, BIRD_REWRITE, 1},   {SET_WIN.Option3, STRETCH_OK, 1},
    {SET_WIN.Option4, STRETCH_OK, 0},     {SET_WIN.Option5(0), RELOAD_MODE, 0}, {SET_WIN.Option5(1), RELOAD_MODE, 1},
    {SET_WIN.Option5(2), RELOAD_MODE, 2}, {SET_WIN.Option8, AUTOSAVE_MIN, 0},   {SET_WIN.Option9, AUTOSAVE_MIN, 5},
    {SET_WIN.Option10, AUTOSAVE_MIN, 10}, {SET_WIN.Option11, AUTOSAVE_MIN, 15}, {SET_WIN.Option12, AUTOSAVE_MIN, 20},
    {SET_WIN.Option13, AUTOSAVE_MIN, 25}, {SET_WIN.Option14, AUTOSAVE_MIN, 30}, {SET_WIN.Option6, AUTOSAVE_DEST, 0},
    {SET_WIN.Option7, AUTOSAVE_DEST, 1},  {SET_WIN.Option15, LINE_MODE, 0},     {SET_WIN.Option16, LINE_MODE, 1},
};
struct CheckMapping {
  CheckBox& box;
  int16_t& variable;
};
const CheckMapping CHECKS[] = {
    {SET_WIN.Check5(0), LAUNCH_BACK.items[0]},
    {SET_WIN.Check5(1), LAUNCH_BACK.items[1]},
    {SET_WIN.Check1, POS_RESTORE},
    {SET_WIN.Check3, VDMD},
};

TEST_F(SetWindow, ShowsTheOptionOfEachValue) {
  for (const Mapping& row : OPTIONS) {
    row.variable = row.value;
    open();
    for (const Mapping& other : OPTIONS) {
      if (&other.variable != &row.variable) continue;
      EXPECT_EQ(other.option.Value(), &other.option == &row.option ? 1 : 0) << other.option.full_name() << row.value;
    }
    click(SET_WIN.CANCEL);
    EXPECT_EQ(row.variable, row.value) << row.option.full_name();
  }
}

TEST_F(SetWindow, EachOptionReachesItsVariableAtOkAndNotBefore) {
  for (const Mapping& row : OPTIONS) {
    const int16_t before = row.variable;
    open();
    choose(row.option);
    EXPECT_EQ(row.variable, before) << row.option.full_name();
    click(SET_WIN.OK);
    EXPECT_EQ(row.variable, row.value) << row.option.full_name();
  }
}

TEST_F(SetWindow, ChecksGoBothWays) {
  for (const CheckMapping& row : CHECKS) {
    for (const int16_t value : {1, 0}) {
      row.variable = value;
      open();
      EXPECT_EQ(row.box.Value(), value) << row.box.full_name();
      tick(row.box, 1 - value);
      EXPECT_EQ(row.variable, value) << row.box.full_name();
      click(SET_WIN.OK);
      EXPECT_EQ(row.variable, 1 - value) << row.box.full_name();
    }
  }
}

TEST_F(SetWindow, OkWithoutAChangeChangesNothing) {
  BIRD_REWRITE = 1, STRETCH_OK = 0, RELOAD_MODE = 2, POS_RESTORE = 1, AUTOSAVE_MIN = 25, AUTOSAVE_DEST = 1;
  LINE_MODE = 1, VDMD = 1, LAUNCH_BACK(1) = 1, LAUNCH_EXE(0) = "/usr/bin/a program", LAUNCH_EXE(1) = "";
  open();
  click(SET_WIN.OK);
  EXPECT_EQ(BIRD_REWRITE, 1);
  EXPECT_EQ(STRETCH_OK, 0);
  EXPECT_EQ(RELOAD_MODE, 2);
  EXPECT_EQ(POS_RESTORE, 1);
  EXPECT_EQ(AUTOSAVE_MIN, 25);
  EXPECT_EQ(AUTOSAVE_DEST, 1);
  EXPECT_EQ(LINE_MODE, 1);
  EXPECT_EQ(VDMD, 1);
  EXPECT_EQ(LAUNCH_BACK(0), 0);
  EXPECT_EQ(LAUNCH_BACK(1), 1);
  EXPECT_EQ(LAUNCH_EXE(0), "/usr/bin/a program");
  EXPECT_EQ(LAUNCH_EXE(1), "");
}

TEST_F(SetWindow, CancelChangesNothing) {
  open();
  for (const Mapping& row : OPTIONS) choose(row.option);
  for (const CheckMapping& row : CHECKS) tick(row.box, 1 - row.variable);
  const int16_t before[] = {BIRD_REWRITE, STRETCH_OK, RELOAD_MODE, AUTOSAVE_MIN, AUTOSAVE_DEST, LINE_MODE, POS_RESTORE};
  click(SET_WIN.CANCEL);
  const int16_t after[] = {BIRD_REWRITE, STRETCH_OK, RELOAD_MODE, AUTOSAVE_MIN, AUTOSAVE_DEST, LINE_MODE, POS_RESTORE};
  EXPECT_TRUE(std::ranges::equal(before, after));
  EXPECT_FALSE(SET_WIN.Loaded());
}

// A settings file that was edited by hand may hold any number.
TEST_F(SetWindow, OtherNumbersHaveTheirOption) {
  BIRD_REWRITE = 0, STRETCH_OK = 5, AUTOSAVE_MIN = 7, AUTOSAVE_DEST = -1, LINE_MODE = 3;
  open();
  EXPECT_EQ(SET_WIN.Option1.Value(), 1);
  EXPECT_EQ(SET_WIN.SW_REWRITE, 2);
  EXPECT_EQ(SET_WIN.Option4.Value(), 1);
  EXPECT_EQ(SET_WIN.SW_STRETCH, 0);
  EXPECT_EQ(SET_WIN.Option8.Value(), 1);
  EXPECT_EQ(SET_WIN.Option7.Value(), 1);
  EXPECT_EQ(SET_WIN.Option16.Value(), 1);
  click(SET_WIN.OK);
  EXPECT_EQ(BIRD_REWRITE, 2);
  EXPECT_EQ(STRETCH_OK, 0);
  EXPECT_EQ(AUTOSAVE_MIN, 0);
  EXPECT_EQ(AUTOSAVE_DEST, 1);
}

TEST_F(SetWindow, AReloadModeThatHasNoOptionStays) {
  RELOAD_MODE = 3;
  open();
  for (int i = 0; i < 3; ++i) EXPECT_EQ(SET_WIN.Option5(i).Value(), 0);
  click(SET_WIN.OK);
  EXPECT_EQ(RELOAD_MODE, 3);
}

TEST_F(SetWindow, FieldsFollowTheirOptions) {
  BIRD_REWRITE = 1, STRETCH_OK = 1, RELOAD_MODE = 2;
  open();
  EXPECT_EQ(SET_WIN.SW_REWRITE, 1);
  EXPECT_EQ(SET_WIN.SW_STRETCH, 1);
  EXPECT_EQ(SET_WIN.SW_RELOAD, 2);
  choose(SET_WIN.Option1);
  choose(SET_WIN.Option4);
  choose(SET_WIN.Option5(1));
  EXPECT_EQ(SET_WIN.SW_REWRITE, 2);
  EXPECT_EQ(SET_WIN.SW_STRETCH, 0);
  EXPECT_EQ(SET_WIN.SW_RELOAD, 1);
}

TEST_F(SetWindow, OkWithoutATickForgetsThatTheRightButtonPicks) {
  RCLICK_PICK = 1;
  open();
  EXPECT_EQ(SET_WIN.Check2.Value(), 0);
  click(SET_WIN.CANCEL);
  EXPECT_EQ(RCLICK_PICK, 1);
  open();
  click(SET_WIN.OK);
  EXPECT_EQ(RCLICK_PICK, 0);
  open();
  tick(SET_WIN.Check2);
  click(SET_WIN.OK);
  EXPECT_EQ(RCLICK_PICK, 1);
}

TEST_F(SetWindow, TheRightButtonAsSpoitGreysTheOverviewsCheck) {
  open();
  EXPECT_TRUE(SET_WIN.Check3.Enabled());
  tick(SET_WIN.Check2);
  EXPECT_FALSE(SET_WIN.Check3.Enabled());
  tick(SET_WIN.Check2, 0);
  EXPECT_TRUE(SET_WIN.Check3.Enabled());
}

TEST_F(SetWindow, TheClockStandsAndAfterCancelGoesOnWithItsOldCount) {
  AUTOSAVE_MIN = 10, AUTOSAVE_LEFT = 4;
  Timer2.Enabled(true);
  open();
  EXPECT_FALSE(Timer2.Enabled());
  choose(SET_WIN.Option9);
  click(SET_WIN.CANCEL);
  EXPECT_TRUE(Timer2.Enabled());
  EXPECT_EQ(AUTOSAVE_LEFT, 4);
  EXPECT_EQ(AUTOSAVE_MIN, 10);
}

TEST_F(SetWindow, OkStartsTheClockAnewOrStopsIt) {
  AUTOSAVE_MIN = 10, AUTOSAVE_LEFT = 4;
  open();
  click(SET_WIN.OK);
  EXPECT_TRUE(Timer2.Enabled());
  EXPECT_EQ(AUTOSAVE_LEFT, 10);
  open();
  choose(SET_WIN.Option8);
  click(SET_WIN.OK);
  EXPECT_FALSE(Timer2.Enabled());
  EXPECT_EQ(AUTOSAVE_LEFT, 0);
}

TEST_F(SetWindow, TheLineToolChangesWhenItIsChosenTheNextTime) {
  enter([] { CMD_WIN.CMD_B(2).Click.fire(2); });
  EXPECT_EQ(CUR_TOOL, 3);
  open();
  choose(SET_WIN.Option16);
  EXPECT_EQ(LINE_MODE, 0);
  click(SET_WIN.OK);
  EXPECT_EQ(LINE_MODE, 1);
  EXPECT_EQ(CUR_TOOL, 3);
  enter([] { CMD_WIN.CMD_B(2).Click.fire(2); });
  EXPECT_EQ(CUR_TOOL, 29);
}

TEST_F(SetWindow, StandsOverTheMiddleOfTheMainWindow) {
  enter([] { P_WIN.Move(3000, 1500, 12000, 9000); });
  open();
  EXPECT_DOUBLE_EQ(SET_WIN.Left() + SET_WIN.Width() / 2, 9000);
  EXPECT_DOUBLE_EQ(SET_WIN.Top() + SET_WIN.Height() / 2, 6000);
  EXPECT_EQ(SET_WIN.Caption(), "Kiso ");
  EXPECT_EQ(SET_WIN.owner(), &P_WIN);
  click(SET_WIN.CANCEL);
  enter([] { P_WIN.Move(0, 0, 3000, 3000); });
  open();
  EXPECT_DOUBLE_EQ(SET_WIN.Left(), 0);
  EXPECT_DOUBLE_EQ(SET_WIN.Top(), 0);
}

TEST_F(SetWindow, TheOtherWindowsWait) {
  open();
  EXPECT_FALSE(P_WIN.Enabled() || CMD_WIN.Enabled() || COL_WIN.Enabled());
  click(SET_WIN.OK);
  EXPECT_TRUE(P_WIN.Enabled() && CMD_WIN.Enabled() && COL_WIN.Enabled());
  EXPECT_EQ(CMD_WIN.SYS_B(2).cell_y(), 0) << "its button is raised again";
}

TEST_F(SetWindow, TheCopyOfTheRegistryIsThereExactlyWhileItIsOpen) {
  put("KISOAIN.TMP", {"left by a run that died"});
  for (CommandButton* end : {&SET_WIN.OK, &SET_WIN.CANCEL}) {
    open();
    EXPECT_EQ(content("KISOAIN.TMP"), content("KISO.AIN"));
    click(*end);
    EXPECT_FALSE(exists("KISOAIN.TMP"));
    EXPECT_TRUE(exists("KISO.AIN"));
  }
}

TEST_F(SetWindow, ClosedByItsFrameItTakesBackWhatCancelTakesBack) {
  registry({"ADIN,A,/a,Adder, 1"});
  AUTOSAVE_MIN = 5, AUTOSAVE_LEFT = 2;
  open();
  choose(SET_WIN.Option14);
  SET_WIN.List2.ListIndex(0);
  desk_.answers = {YES};
  click(SET_WIN.Command7);
  EXPECT_EQ(AD_CNT, 0);
  enter([] { SET_WIN.Unload(); });
  EXPECT_FALSE(exists("KISOAIN.TMP"));
  EXPECT_EQ(AD_CNT, 1);
  EXPECT_EQ(AUTOSAVE_MIN, 5);
  EXPECT_EQ(AUTOSAVE_LEFT, 2);
  EXPECT_TRUE(Timer2.Enabled());
  EXPECT_TRUE(P_WIN.Enabled() && CMD_WIN.Enabled() && COL_WIN.Enabled());
}

TEST_F(SetWindow, OpensAsItDidTheFirstTime) {
  open();
  choose(SET_WIN.Option16);
  tick(SET_WIN.Check2);
  click(SET_WIN.Command8);
  click(SET_WIN.CANCEL);
  open();
  EXPECT_EQ(SET_WIN.Option16.Value(), 0);
  EXPECT_EQ(SET_WIN.Check2.Value(), 0);
  EXPECT_TRUE(SET_WIN.Check3.Enabled());
  for (int i = 1; i < 6; ++i) EXPECT_GT(SET_WIN.Picture1(0).order(), SET_WIN.Picture1(i).order());
}

TEST_F(SetWindow, ARegistryThatIsGoneEndsTheProgram) {
  std::filesystem::remove(path("KISO.AIN"));
  enter([] { CMD_WIN.SYS_B(2).Click.fire(2); });
  EXPECT_EQ(fatal_error(), 53);
}

}  // namespace
}  // namespace kiso
