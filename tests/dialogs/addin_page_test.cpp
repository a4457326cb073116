// The page of the add-ins: what is listed, what a removal takes, what Cancel brings back.
#include "dialogs_test.h"

namespace kiso {
namespace {

struct AddinPage : Dialogs {
  // Two add-ins, of which the first does everything.
  static void two_addins() {
    registry({"ADIN,ONE,/one,Eins, 1", "ADIN,TWO,/two,Zwei, 2", "TWSL,ONE,select", "TWSC,ONE,scan",
              "FFRD,ONE,r1,A|*.A|,A", "FFRD,TWO,r2,B|*.B|,B", "FFWT,TWO,w2,B|*.B|,B", "FFWT,ONE,w1,C|*.C|,C",
              "SPOP,ONE,s1", "SPOP,TWO,s2"});
  }
};

TEST_F(AddinPage, ListsOpenOnTheScannerAndAllAddIns) {
  two_addins();
  open();
  EXPECT_EQ(lines_of(SET_WIN.List1), (Lines{"SetUp:Eins", "Scan :Eins"}));
  EXPECT_EQ(lines_of(SET_WIN.List2), (Lines{"Eins", "Zwei"}));
  EXPECT_EQ(SET_WIN.DISP_MODE(0).Value(), 1);
  EXPECT_EQ(SET_WIN.List2.ListIndex(), -1);
}

TEST_F(AddinPage, EachKindHasItsList) {
  two_addins();
  open();
  choose(SET_WIN.DISP_MODE(1));
  EXPECT_EQ(lines_of(SET_WIN.List1), (Lines{"*.A:Eins", "*.B:Zwei"}));
  choose(SET_WIN.DISP_MODE(2));
  EXPECT_EQ(lines_of(SET_WIN.List1), (Lines{"*.B:Zwei", "*.C:Eins"}));
  choose(SET_WIN.DISP_MODE(3));
  EXPECT_EQ(lines_of(SET_WIN.List1), (Lines{"Eins", "Zwei"}));
  choose(SET_WIN.DISP_MODE(0));
  EXPECT_EQ(lines_of(SET_WIN.List1), (Lines{"SetUp:Eins", "Scan :Eins"}));
}

// Flag and row cross over: the flag of the scan row shows the line of the selection row, which is empty here.
TEST_F(AddinPage, AScannerWithoutSelectionShowsAnUnknownAddIn) {
  registry({"ADIN,ONE,/one,Eins, 1", "TWSC,ONE,scan"});
  open();
  EXPECT_EQ(lines_of(SET_WIN.List1), (Lines{"SetUp:不明なADD_INです。"}));
}

TEST_F(AddinPage, ASelectionWithoutScannerShowsAnUnknownAddIn) {
  registry({"ADIN,ONE,/one,Eins, 1", "TWSL,ONE,select"});
  open();
  EXPECT_EQ(lines_of(SET_WIN.List1), (Lines{"Scan :不明なADD_INです。"}));
}

TEST_F(AddinPage, RowsOfUnknownAddInsSaySo) {
  registry({"FFRD,GONE,r,A|*.A|,A", "SPOP,GONE,s"});
  open();
  choose(SET_WIN.DISP_MODE(1));
  EXPECT_EQ(lines_of(SET_WIN.List1), (Lines{"*.A:不明なADD_INです。"}));
  choose(SET_WIN.DISP_MODE(3));
  EXPECT_EQ(lines_of(SET_WIN.List1), (Lines{"不明なADD_INです。"}));
}

TEST_F(AddinPage, DeleteWithNothingChosenDoesNothing) {
  two_addins();
  open();
  click(SET_WIN.Command7);
  EXPECT_TRUE(desk_.boxes.empty());
  EXPECT_EQ(AD_CNT, 2);
}

TEST_F(AddinPage, DeleteAsksAndNoKeepsTheAddIn) {
  two_addins();
  open();
  SET_WIN.List2.ListIndex(1);
  desk_.answers = {NO};
  click(SET_WIN.Command7);
  ASSERT_EQ(desk_.boxes.size(), 1U);
  EXPECT_EQ(desk_.boxes[0].text, "Zwei\rを削除いたします、本当によろしいですか?");
  EXPECT_EQ(desk_.boxes[0].style, 292);
  EXPECT_EQ(desk_.boxes[0].title, "Kiso ");
  EXPECT_EQ(AD_CNT, 2);
  EXPECT_EQ(content("KISO.AIN"), content("KISOAIN.TMP"));
}

TEST_F(AddinPage, DeleteTakesAllRowsOfTheAddInAndNoOthers) {
  two_addins();
  open();
  choose(SET_WIN.DISP_MODE(2));
  SET_WIN.List2.ListIndex(0);
  desk_.answers = {YES};
  click(SET_WIN.Command7);
  EXPECT_EQ(lines_of(SET_WIN.List2), (Lines{"Zwei"}));
  EXPECT_EQ(lines_of(SET_WIN.List1), Lines{});
  EXPECT_EQ(SET_WIN.DISP_MODE(0).Value(), 1);
  EXPECT_EQ(AD_CNT, 1);
  EXPECT_EQ(AD_ID(0), "TWO");
  EXPECT_EQ(FR_CNT, 1);
  EXPECT_EQ(FR_ID(0), "TWO");
  EXPECT_EQ(FW_CNT, 1);
  EXPECT_EQ(SP_CNT, 1);
  EXPECT_EQ(TWSL_ON, 0);
  EXPECT_EQ(TWSC_ON, 0);
  EXPECT_EQ(TW_ID(0) + TW_CMD(0) + TW_ID(1) + TW_CMD(1), "");
  EXPECT_EQ(content("KISO.AIN").find("ONE"), std::string::npos);
  EXPECT_NE(content("KISO.AIN").find("FFWT,TWO,w2,B|*.B|,B"), std::string::npos);
  EXPECT_FALSE(Timer2.Enabled());
}

TEST_F(AddinPage, CancelBringsARemovedAddInBack) {
  two_addins();
  const std::string before = content("KISO.AIN");
  open();
  SET_WIN.List2.ListIndex(0);
  desk_.answers = {YES};
  click(SET_WIN.Command7);
  click(SET_WIN.CANCEL);
  EXPECT_EQ(content("KISO.AIN"), before);
  EXPECT_EQ(AD_CNT, 2);
  EXPECT_EQ(TWSC_ON, 1);
}

TEST_F(AddinPage, TheScannersButtonFollowsAtOkAlone) {
  registry({"ADIN,ONE,/one,Eins, 1"});
  open();
  click(SET_WIN.OK);
  EXPECT_FALSE(CMD_WIN.FILE_B(7).Enabled() || CMD_WIN.FILE_B(7).Visible());
  two_addins();
  open();
  click(SET_WIN.CANCEL);
  EXPECT_FALSE(CMD_WIN.FILE_B(7).Enabled() || CMD_WIN.FILE_B(7).Visible());
  open();
  click(SET_WIN.OK);
  EXPECT_TRUE(CMD_WIN.FILE_B(7).Enabled() && CMD_WIN.FILE_B(7).Visible());
}

}  // namespace
}  // namespace kiso
