// The window that installs an add-in: the file that it asks for, what it shows of it, how it leaves the settings
// window.
#include "dialogs_test.h"

namespace kiso {
namespace {

class AddWindow : public Dialogs {
 protected:
  AddWindow() {
    put("all.AIP", {"ADIN,ALL,%%all,Alles,1", "TWSL,select", "TWSC,scan", "FFRD,r,A|*.A|,A", "FFRD,r,B|*.B|,B",
                    "FFWT,w,C|*.C|,C", "SPOP,s", "[EOF]"});
    put("reader.AIP", {"ADIN,READER,/reader,Leser,1", "FFRD,r,A|*.A|,A", "[EOF]"});
    put("broken.AIP", {"ADIN,BROKEN,/b,Broken,1"});
    open();
  }
  // Presses the button of the settings window and answers its dialog.
  void add(const std::string& file) {
    desk_.files.emplace_back(path(file));
    click(SET_WIN.Command5);
  }
};

TEST_F(AddWindow, ADialogThatIsCancelledLeavesTheSettingsWindowAsItWas) {
  for (int i = 0; i < 2; ++i) {
    desk_.files.emplace_back(std::nullopt);
    click(SET_WIN.Command5);
    EXPECT_FALSE(ADD_WIN.Loaded() || ADD_WIN.is_visible());
    EXPECT_TRUE(SET_WIN.Enabled());
    EXPECT_FALSE(has_ended());
  }
  add("reader.AIP");
  EXPECT_TRUE(ADD_WIN.Visible()) << "it opens the next time";
}

TEST_F(AddWindow, AFileThatCanNotBeReadOpensNoWindow) {
  for (const char* name : {"broken.AIP", "missing.AIP"}) {
    add(name);
    EXPECT_FALSE(ADD_WIN.Loaded()) << name;
    EXPECT_TRUE(SET_WIN.Enabled()) << name;
    EXPECT_FALSE(has_ended()) << name;
  }
  EXPECT_EQ(AD_CNT, 0);
}

TEST_F(AddWindow, StandsOverTheMainWindowWhileTheSettingsWindowWaits) {
  enter([] { P_WIN.Move(3000, 1500, 12000, 9000); });
  add("all.AIP");
  EXPECT_EQ(ADD_WIN.owner(), &SET_WIN);
  EXPECT_EQ(ADD_WIN.Caption(), "Kiso ");
  EXPECT_DOUBLE_EQ(ADD_WIN.Left() + ADD_WIN.Width() / 2, 9000);
  EXPECT_DOUBLE_EQ(ADD_WIN.Top() + ADD_WIN.Height() / 2, 6000);
  EXPECT_FALSE(SET_WIN.Enabled());
  click(ADD_WIN.Command2);
  EXPECT_FALSE(ADD_WIN.Loaded());
  EXPECT_TRUE(SET_WIN.Enabled());
  EXPECT_EQ(AD_CNT, 0);
  EXPECT_EQ(content("KISO.AIN"), content("KISOAIN.TMP"));
}

TEST_F(AddWindow, ShowsTheScannerFirst) {
  add("all.AIP");
  EXPECT_EQ(ADD_WIN.Label1.Caption(), "Alles");
  EXPECT_EQ(lines_of(ADD_WIN.List1), (Lines{"SetUp:Alles", "Scan :Alles"}));
  click(ADD_WIN.Command2);
  add("reader.AIP");
  EXPECT_EQ(lines_of(ADD_WIN.List1), Lines{});
}

TEST_F(AddWindow, ListsWhatTheFileOffers) {
  add("all.AIP");
  choose(ADD_WIN.DISP_MODE(1));
  EXPECT_EQ(lines_of(ADD_WIN.List1), (Lines{"*.A:Alles", "*.B:Alles"}));
  choose(ADD_WIN.DISP_MODE(2));
  EXPECT_EQ(lines_of(ADD_WIN.List1), (Lines{"*.C:Alles"}));
  choose(ADD_WIN.DISP_MODE(3));
  EXPECT_EQ(lines_of(ADD_WIN.List1), (Lines{"Alles"}));
  choose(ADD_WIN.DISP_MODE(0));
  EXPECT_EQ(lines_of(ADD_WIN.List1), (Lines{"SetUp:Alles", "Scan :Alles"}));
}

TEST_F(AddWindow, SaysWhatTheFileDoesNotOffer) {
  add("reader.AIP");
  choose(ADD_WIN.DISP_MODE(0));
  EXPECT_EQ(lines_of(ADD_WIN.List1), (Lines{"SetUp: No TWAIN Select module", "Scan : No TWAIN Scan module"}));
  choose(ADD_WIN.DISP_MODE(2));
  EXPECT_EQ(lines_of(ADD_WIN.List1), Lines{});
  choose(ADD_WIN.DISP_MODE(3));
  EXPECT_EQ(lines_of(ADD_WIN.List1), (Lines{"Leser"})) << "whether it has a special option or not";
}

TEST_F(AddWindow, AnInstallShowsInTheSettingsWindowAndInTheFile) {
  choose(SET_WIN.DISP_MODE(3));
  add("all.AIP");
  click(ADD_WIN.Command1);
  EXPECT_FALSE(ADD_WIN.Loaded());
  EXPECT_TRUE(SET_WIN.Enabled());
  EXPECT_EQ(lines_of(SET_WIN.List2), (Lines{"Alles"}));
  EXPECT_EQ(lines_of(SET_WIN.List1), (Lines{"SetUp:Alles", "Scan :Alles"}));
  EXPECT_EQ(SET_WIN.DISP_MODE(0).Value(), 1);
  EXPECT_NE(content("KISO.AIN").find("ADIN,ALL," + path("all") + ",Alles"), std::string::npos);
}

TEST_F(AddWindow, CancelAfterAnInstallTakesItOutOfFileAndTables) {
  const std::string before = content("KISO.AIN");
  add("all.AIP");
  click(ADD_WIN.Command1);
  EXPECT_EQ(AD_CNT + FR_CNT + FW_CNT + SP_CNT + TWSC_ON, 1 + 2 + 1 + 1 + 1);
  click(SET_WIN.CANCEL);
  EXPECT_EQ(content("KISO.AIN"), before);
  EXPECT_EQ(AD_CNT + FR_CNT + FW_CNT + SP_CNT + TWSC_ON, 0);
}

TEST_F(AddWindow, TheSameAddInAgainIsToldOnceAndTheWindowStays) {
  add("all.AIP");
  click(ADD_WIN.Command1);
  add("all.AIP");
  const std::string before = content("KISO.AIN");
  click(ADD_WIN.Command1);
  ASSERT_EQ(desk_.boxes.size(), 1U);
  EXPECT_EQ(desk_.boxes[0].text, "同じ名前で既にAllesが\rインストールされています。");
  EXPECT_EQ(desk_.boxes[0].style, 0);
  EXPECT_TRUE(ADD_WIN.Loaded());
  EXPECT_EQ(content("KISO.AIN"), before);
  EXPECT_EQ(AD_CNT, 1);
}

TEST_F(AddWindow, ASecondScannerIsRefusedAndTheWindowStays) {
  add("all.AIP");
  click(ADD_WIN.Command1);
  put("second.AIP", {"ADIN,SECOND,/s,Second,1", "TWSC,scan", "[EOF]"});
  add("second.AIP");
  click(ADD_WIN.Command1);
  ASSERT_EQ(desk_.boxes.size(), 1U);
  EXPECT_EQ(desk_.boxes[0].text, "既にSCANNERは指定されています。");
  EXPECT_TRUE(ADD_WIN.Loaded());
  EXPECT_EQ(AD_CNT, 1);
}

TEST_F(AddWindow, TheLaunchPageTakesTheChosenProgramAtOk) {
  desk_.files = {std::nullopt, "/usr/bin/a program"};
  click(SET_WIN.LAN_SET(1));
  EXPECT_EQ(SET_WIN.LAN_NAME(1).Caption(), "");
  click(SET_WIN.LAN_SET(1));
  EXPECT_EQ(SET_WIN.LAN_NAME(1).Caption(), "/usr/bin/a program");
  EXPECT_EQ(LAUNCH_EXE(1), "");
  click(SET_WIN.OK);
  EXPECT_EQ(LAUNCH_EXE(1), "/usr/bin/a program");
  EXPECT_EQ(LAUNCH_EXE(0), "");
}

}  // namespace
}  // namespace kiso
