#include "persist/persist.h"
#include "persist/persist_dir.h"

namespace kiso {
namespace {

struct Settings : PersistDir {
  static void read(std::initializer_list<const char*> texts) {
    put("KISO.CNF", lines(texts));
    READ_CNF();
  }
  static int error_of_reading(const std::string& bytes) {
    put("KISO.CNF", bytes);
    return harmless_error_of(READ_CNF);
  }
  // What the template of these lines becomes.
  static std::string written(std::initializer_list<const char*> texts) {
    put("DEFAULT.CNF", lines(texts));
    put("KISO.CNF", "");
    WRITE_CNF();
    return get("KISO.CNF");
  }
};

TEST_F(Settings, BuiltInValuesStandWithoutAnyKey) {
  POS_RESTORE = BIRD_ON = STATUS_ON = BIRD_REWRITE = VDMD = RELOAD_MODE = COL_PANE = 7;
  DROP_KEEP = ACHK_KEEP = AUTOSAVE_DEST = AUTOSAVE_MIN = AUTOSAVE_LEFT = MERGE_CHECK = 7;
  FUZZY_H = FUZZY_S = FUZZY_V = SPRAY_MS = RCLICK_PICK = LINE_MODE = HSET_V = LUPE_ON = DEEP_BAL = PRT_REDISP = 7;
  BIRD_AUTO = STRETCH_OK = LAUNCH_BACK(0) = LAUNCH_BACK(1) = 7;
  COL_LEFT = COL_TOP = CMD_LEFT = CMD_TOP = BIRD_TOP = BIRD_LEFT = BIRD_W = BIRD_H = LUPE_LEFT = LUPE_TOP = 7;
  LAUNCH_EXE(0) = LAUNCH_EXE(1) = "x";
  PIC_FILE = "picture.bmp";
  const double left = P_WIN.Left(), top = P_WIN.Top(), width = P_WIN.Width(), height = P_WIN.Height();
  read({});
  for (int v : {+POS_RESTORE, +BIRD_ON,   +STATUS_ON,     +BIRD_REWRITE,   +VDMD,           +RELOAD_MODE, +COL_PANE,
                +DROP_KEEP,   +ACHK_KEEP, +AUTOSAVE_DEST, +AUTOSAVE_MIN,   +AUTOSAVE_LEFT,  +MERGE_CHECK, +RCLICK_PICK,
                +LINE_MODE,   +HSET_V,    +LUPE_ON,       +LAUNCH_BACK(0), +LAUNCH_BACK(1), COL_TOP,      BIRD_TOP,
                BIRD_LEFT,    BIRD_W,     BIRD_H,         LUPE_LEFT,       LUPE_TOP})
    EXPECT_EQ(v, 0);
  EXPECT_EQ(COL_LEFT, 7920);
  EXPECT_EQ(CMD_LEFT, 7920);
  EXPECT_EQ(CMD_TOP, 3091);
  EXPECT_EQ(BIRD_AUTO, 1);
  EXPECT_EQ(STRETCH_OK, 1);
  EXPECT_EQ(FUZZY_H, 10);
  EXPECT_EQ(FUZZY_S, 10);
  EXPECT_EQ(FUZZY_V, 10);
  EXPECT_EQ(SPRAY_MS, 3);
  EXPECT_EQ(DEEP_BAL, 50);
  EXPECT_EQ(PRT_REDISP, 1);
  EXPECT_EQ(LAUNCH_EXE(0), "");
  EXPECT_EQ(LAUNCH_EXE(1), "");
  EXPECT_EQ(PIC_FILE, "picture.bmp");
  EXPECT_EQ(P_WIN.Left(), left);
  EXPECT_EQ(P_WIN.Top(), top);
  EXPECT_EQ(P_WIN.Width(), width);
  EXPECT_EQ(P_WIN.Height(), height);
}

TEST_F(Settings, StatusLineIsFivePixelsHigherThanItsText) {
  INF_POSX.Height(17);
  read({});
  EXPECT_EQ(STATUS_H, 22);
}

// Every key once, with a value of its own, through the file and back.
TEST_F(Settings, EveryKeyReachesItsVariableAndTheFile) {
  const std::string file =
      lines({"FEMD ,  1 ",   "PIWT ,  150 ", "PIWS ,  2 ",   "PIWL ,  165 ",     "PIWW ,  9000 ", "PIWH ,  7500 ",
             "COWL ,  101 ", "COWT ,  102 ", "CMWL ,  103 ", "CMWT ,  104 ",     "BEWT ,  105 ",  "BEWL ,  106 ",
             "BEWW ,  107 ", "BEWH ,  108 ", "BEWD ,  109 ", "IDSP ,  110 ",     "BEAU ,  1 ",    "BERM ,  111 ",
             "VDMD ,  112 ", "SZWM ,  113 ", "RPNX ,  114 ", "RPNM , 絵 A.bmp ", "CSEL ,  2 ",    "DROP ,  115 ",
             "LAN1 , one ",  "LAN2 , two ",  "LAM1 ,  116 ", "LAM2 ,  117 ",     "ASAM ,  118 ",  "ASAT ,  119 ",
             "MERM ,  120 ", "FUZH ,  121 ", "FUZS ,  122 ", "FUZV ,  123 ",     "SPRI ,  124 ",  "CDSP ,  125 ",
             "LMOD ,  126 ", "ACHK ,  127 ", "HSET ,  128 ", "MLLF ,  129 ",     "MLTP ,  130 ",  "MLDS ,  131 ",
             "THPD ,  132 ", "PRAD ,  133 "});
  put("KISO.CNF", file);
  READ_CNF();
  EXPECT_EQ(POS_RESTORE, 1);
  EXPECT_EQ(P_WIN.Top(), 150);
  EXPECT_EQ(P_WIN.WindowState(), 2);
  EXPECT_EQ(P_WIN.Left(), 165);
  EXPECT_EQ(P_WIN.Width(), 9000);
  EXPECT_EQ(P_WIN.Height(), 7500);
  const int longs[] = {COL_LEFT, COL_TOP, CMD_LEFT, CMD_TOP, BIRD_TOP, BIRD_LEFT, BIRD_W, BIRD_H};
  for (int i = 0; i < 8; ++i) EXPECT_EQ(longs[i], 101 + i);
  EXPECT_EQ(BIRD_AUTO, 1);
  EXPECT_EQ(COL_PANE, 2);
  const int shorts[] = {BIRD_ON,      STATUS_ON,   BIRD_REWRITE,   VDMD,           STRETCH_OK,
                        RELOAD_MODE,  DROP_KEEP,   LAUNCH_BACK(0), LAUNCH_BACK(1), AUTOSAVE_DEST,
                        AUTOSAVE_MIN, MERGE_CHECK, FUZZY_H,        FUZZY_S,        FUZZY_V,
                        SPRAY_MS,     RCLICK_PICK, LINE_MODE,      ACHK_KEEP,      HSET_V,
                        LUPE_LEFT,    LUPE_TOP,    LUPE_ON,        DEEP_BAL,       PRT_REDISP};
  for (int i = 0; i < 25; ++i) EXPECT_EQ(shorts[i], 109 + i);
  EXPECT_EQ(AUTOSAVE_LEFT, 119);
  EXPECT_EQ(PIC_FILE, "絵 A.bmp");
  EXPECT_EQ(LAUNCH_EXE(0), "one");
  EXPECT_EQ(LAUNCH_EXE(1), "two");
  put("DEFAULT.CNF", file);
  WRITE_CNF();
  EXPECT_EQ(get("KISO.CNF"), file);
}

TEST_F(Settings, NumbersAreRoundedToTheNearestEven) {
  read({"FUZH , 2.5", "FUZS , 3.5", "FUZV , -2.5 mm", "SPRI , 1 0", "THPD , abc", "HSET , 1e2"});
  EXPECT_EQ(FUZZY_H, 2);
  EXPECT_EQ(FUZZY_S, 4);
  EXPECT_EQ(FUZZY_V, -2);
  EXPECT_EQ(SPRAY_MS, 10);
  EXPECT_EQ(DEEP_BAL, 0);
  EXPECT_EQ(HSET_V, 100);
}

TEST_F(Settings, ANumberTooLargeForItsVariableIsAnOverflow) {
  EXPECT_EQ(error_of_reading(lines({"FUZH , 32767.4", "FUZS , -32768.5"})), 0);
  EXPECT_EQ(FUZZY_H, 32767);
  EXPECT_EQ(FUZZY_S, -32768);
  EXPECT_EQ(error_of_reading(lines({"FUZH , 32768"})), 6);
  EXPECT_EQ(error_of_reading(lines({"FUZH , 32767.5"})), 6);
  EXPECT_EQ(error_of_reading(lines({"FEMD , 1", "COWL , 2147483648"})), 6);
  EXPECT_EQ(error_of_reading(lines({"FEMD , 1", "PIWW , 1e39"})), 6);
  EXPECT_EQ(error_of_reading(lines({"FUZH , 1e999"})), 6);
}

TEST_F(Settings, AValueThatItsGateKeepsOutIsNotLookedAt) {
  EXPECT_EQ(error_of_reading(lines({"FEMD , 0", "COWL , 1e20", "PIWS , 99999", "BEAU , 1e20"})), 0);
}

TEST_F(Settings, ALineIsAKeyOfFourCharactersAndAValueBehindTheFirstComma) {
  read({"FUZH,11", "  FUZS  ,  12  ", "FUZVxyz , 13 'fourteen", "SPRI", "hset , 9", "QQQQ , 5", "", "x"});
  EXPECT_EQ(FUZZY_H, 11);
  EXPECT_EQ(FUZZY_S, 12);
  EXPECT_EQ(FUZZY_V, 13);
  EXPECT_EQ(SPRAY_MS, 0);  // without a comma the value is the whole line
  EXPECT_EQ(HSET_V, 0);    // keys are in upper case
}

TEST_F(Settings, ACommentBeginsInTheFirstColumnOrBehindAValue) {
  read({"'FUZH , 1", " 'FUZS , 1", "FUZV , 7'FUZH , 1"});
  EXPECT_EQ(FUZZY_H, 10);
  EXPECT_EQ(FUZZY_S, 10);
  EXPECT_EQ(FUZZY_V, 7);
}

TEST_F(Settings, FurtherCommasBelongToTheValue) {
  read({"LAN1 , a,b , c", "LAN2 , it's"});
  EXPECT_EQ(LAUNCH_EXE(0), "a,b , c");
  EXPECT_EQ(LAUNCH_EXE(1), "it");
}

TEST_F(Settings, TheLastOfTwoLinesCounts) {
  read({"FUZH , 1", "FUZH , 2"});
  EXPECT_EQ(FUZZY_H, 2);
}

TEST_F(Settings, OverviewIsAlwaysKeptCurrent) {
  read({"BEAU , 0"});
  EXPECT_EQ(BIRD_AUTO, 1);
}

TEST_F(Settings, MinutesOfTheAutoSaveRunTheClock) {
  read({"ASAT , 5"});
  EXPECT_EQ(AUTOSAVE_LEFT, 5);
  EXPECT_TRUE(Timer2.Enabled());
  read({"ASAT , 0"});
  EXPECT_EQ(AUTOSAVE_LEFT, 0);
  EXPECT_FALSE(Timer2.Enabled());
  read({"ASAT , -1"});
  EXPECT_TRUE(Timer2.Enabled());
}

TEST_F(Settings, LastPictureIsTakenOnlyIfItIsWanted) {
  read({"RPNX , 2", "RPNM , a.bmp"});
  EXPECT_EQ(PIC_FILE, "a.bmp");
  read({"RPNX , 1", "RPNM , b.bmp"});
  EXPECT_EQ(PIC_FILE, "a.bmp") << "a picture from the command line stays";
  PIC_FILE = "";
  read({"RPNX , 0", "RPNM , b.bmp"});
  EXPECT_EQ(PIC_FILE, "");
  read({"RPNM , b.bmp", "RPNX , 1"});
  EXPECT_EQ(PIC_FILE, "") << "the mode is still 0 at the name's line";
}

TEST_F(Settings, WithoutRestoreWindowsStandWhereTheyWereBuilt) {
  const double left = P_WIN.Left(), top = P_WIN.Top(), width = P_WIN.Width(), height = P_WIN.Height();
  read({"FEMD , 0", "PIWT , 300", "PIWS , 2", "PIWL , 300", "PIWW , 3000", "PIWH , 3000", "COWL , 1", "COWT , 1",
        "CMWL , 1", "CMWT , 1", "BEWD , 1", "MLLF , 1", "MLTP , 1", "MLDS , 1"});
  EXPECT_EQ(P_WIN.Left(), left);
  EXPECT_EQ(P_WIN.Top(), top);
  EXPECT_EQ(P_WIN.Width(), width);
  EXPECT_EQ(P_WIN.Height(), height);
  EXPECT_EQ(P_WIN.WindowState(), 0);
  EXPECT_EQ(COL_LEFT, 7920);
  EXPECT_EQ(COL_TOP, 0);
  EXPECT_EQ(CMD_LEFT, 7920);
  EXPECT_EQ(CMD_TOP, 3091);
  EXPECT_EQ(BIRD_ON, 0);
  EXPECT_EQ(LUPE_LEFT, 0);
  EXPECT_EQ(LUPE_TOP, 0);
  EXPECT_EQ(LUPE_ON, 0);
}

TEST_F(Settings, RestoreCountsFromItsLineOn) {
  read({"COWL , 111", "FEMD , 1", "COWT , 222", "FEMD , 2", "CMWL , 333"});
  EXPECT_EQ(COL_LEFT, 7920);
  EXPECT_EQ(COL_TOP, 222);
  EXPECT_EQ(CMD_LEFT, 7920);
}

// The screen is 19200 x 15360 twips.
TEST_F(Settings, AMainWindowOffTheScreenComesBack) {
  read({"FEMD , 1", "PIWT , -1", "PIWL , -0.5"});
  EXPECT_EQ(P_WIN.Top(), 0);
  EXPECT_EQ(P_WIN.Left(), 0);
  read({"FEMD , 1", "PIWT , 15360", "PIWL , 19200"});
  EXPECT_EQ(P_WIN.Top(), 15360);
  EXPECT_EQ(P_WIN.Left(), 19200);
  read({"FEMD , 1", "PIWT , 15361", "PIWL , 19201"});
  EXPECT_EQ(P_WIN.Top(), 0);
  EXPECT_EQ(P_WIN.Left(), 0);
  read({"FEMD , 1", "PIWW , 19198", "PIWH , 15358"});
  EXPECT_EQ(P_WIN.Width(), 19198);
  EXPECT_EQ(P_WIN.Height(), 15358);
  read({"FEMD , 1", "PIWW , 19199", "PIWH , 3e38"});
  EXPECT_EQ(P_WIN.Width(), 19200);
  EXPECT_EQ(P_WIN.Height(), 15360);
}

TEST_F(Settings, NoEventSeesAMainWindowBeyondTheScreen) {
  static double widest = 0;
  P_WIN.Form_Resize = [] { widest = std::max(widest, P_WIN.ScaleWidth()); };
  read({"FEMD , 1", "PIWW , 600000"});
  EXPECT_EQ(widest, 1280);
}

TEST_F(Settings, APaletteOffTheScreenComesBackWhole) {
  read({"FEMD , 1", "COWL , -1", "COWT , -1", "CMWL , 19198", "CMWT , 15358"});
  EXPECT_EQ(COL_LEFT, 0);
  EXPECT_EQ(COL_TOP, 0);
  EXPECT_EQ(CMD_LEFT, 19198);
  EXPECT_EQ(CMD_TOP, 15358);
  read({"FEMD , 1", "COWL , 19199", "COWT , 15359", "CMWL , 2000000000", "CMWT , 2000000000"});
  EXPECT_EQ(COL_LEFT, 19200 - 1680);
  EXPECT_EQ(COL_TOP, 15360 - 3150);
  EXPECT_EQ(CMD_LEFT, 19200 - 1680);
  EXPECT_EQ(CMD_TOP, 15360 - 3150);
}

TEST_F(Settings, ClampsRunBehindAShutGateButOnlyOnTheirLine) {
  Desktop small;
  small.screen_w = 400;  // 6000 twips, less than the built-in 7920
  small.screen_h = 150;  // 2250 twips, less than the built-in 3091
  use_desktop(&small);
  P_WIN.Move(7000, 3000, 9000, 6000);
  read({"FEMD , 0", "COWL , 5", "PIWT , 5", "PIWL , 5", "PIWW , 5", "PIWH , 5"});
  EXPECT_EQ(COL_LEFT, 6000 - 1680);
  EXPECT_EQ(CMD_LEFT, 7920);
  EXPECT_EQ(CMD_TOP, 3091);
  EXPECT_EQ(P_WIN.Left(), 0);
  EXPECT_EQ(P_WIN.Top(), 0);
  EXPECT_EQ(P_WIN.Width(), 6000);
  EXPECT_EQ(P_WIN.Height(), 2250);
  use_desktop(nullptr);
}

TEST_F(Settings, OverviewStandsBelowThePaletteUntilItWasMoved) {
  CMD_WIN.Move(600, 3000, 1500, 4500);
  COL_WIN.Move(750, 15);
  read({"FEMD , 0", "BEWT , 1", "BEWL , 2", "BEWW , 3", "BEWH , 4"});
  EXPECT_EQ(BIRD_TOP, 7500);
  EXPECT_EQ(BIRD_LEFT, 750);
  EXPECT_EQ(BIRD_W, 1500);
  EXPECT_EQ(BIRD_H, 780);
  read({"FEMD , 1", "BEWT , 1", "BEWL , 2", "BEWW , 0", "BEWH , -4"});
  EXPECT_EQ(BIRD_TOP, 1);
  EXPECT_EQ(BIRD_LEFT, 2);
  EXPECT_EQ(BIRD_W, 1680);
  EXPECT_EQ(BIRD_H, 780);
}

TEST_F(Settings, TheEndMarkStandsAloneInItsLine) {
  EXPECT_EQ(error_of_reading("FUZH , 1\r\n [EOF]\r\n"), 62);
  EXPECT_EQ(error_of_reading("FUZH , 1\r\n[EOF] \r\n"), 62);
  EXPECT_EQ(error_of_reading("FUZH , 1\r\n"), 62);
  EXPECT_EQ(error_of_reading(""), 62);
  EXPECT_EQ(error_of_reading("FUZH , 3\r\n[EOF]\r\nFUZH , 4\r\n"), 0);
  EXPECT_EQ(FUZZY_H, 3);
}

TEST_F(Settings, TheTemplatesEndMarkMayBeIndented) {
  put("DEFAULT.CNF", "  [EOF]  \r\n'behind\r\n");
  put("KISO.CNF", lines({}));
  WRITE_CNF();
  EXPECT_EQ(get("KISO.CNF"), "[EOF]\r\n");
}

TEST_F(Settings, RewriteKeepsTheTemplatesCommentsAndBlankLines) {
  put("DEFAULT.CNF", lines({"'設定", "", "  'indented", "FUZH , 1 '色相, H", "FUZS , 1"}));
  put("KISO.CNF", lines({"'typed by hand", "FUZH , 77 'mine", "FUZS , -8"}));
  READ_CNF();
  WRITE_CNF();
  EXPECT_EQ(get("KISO.CNF"), lines({"'設定", "", "'indented", "FUZH ,  77 '色相, H", "FUZS , -8 "}));
}

TEST_F(Settings, AKeyThatTheTemplateLacksDisappears) {
  put("DEFAULT.CNF", lines({"FUZS , 1"}));
  put("KISO.CNF", lines({"FUZH , 77", "FUZS , 8"}));
  READ_CNF();
  WRITE_CNF();
  EXPECT_EQ(get("KISO.CNF"), lines({"FUZS ,  8 "}));
}

TEST_F(Settings, AKeyThatNobodyKnowsKeepsTheTemplatesValue) {
  EXPECT_EQ(written({"QQQQ ,  a, b  'why", "WXYZ", "K , 5"}), lines({"QQQQ , a, b 'why", "WXYZ , WXYZ ", "K ,  , 5 "}));
}

TEST_F(Settings, AMinimizedWindowComesBack) {
  P_WIN.WindowState(1);
  EXPECT_EQ(written({"PIWS , 2"}), lines({"PIWS ,  0 "}));
  EXPECT_EQ(P_WIN.WindowState(), 0);
  P_WIN.WindowState(2);
  EXPECT_EQ(written({"PIWS , 0"}), lines({"PIWS ,  2 "}));
}

TEST_F(Settings, PlacesAreWrittenAsWholeTwips) {
  P_WIN.Move(100.5, -7.5, 6001, 4500);
  EXPECT_EQ(written({"PIWL , 0", "PIWT , 0", "PIWW , 0"}), lines({"PIWL ,  100 ", "PIWT , -8 ", "PIWW ,  6001 "}));
}

TEST_F(Settings, AnOldTemporaryIsOverwrittenAndGone) {
  put("KISOCNF.TMP", "left behind by a crash");
  EXPECT_EQ(written({"FUZH , 1"}), lines({"FUZH ,  10 "}));
  EXPECT_EQ(all_files().size(), 2u);
}

TEST_F(Settings, AFileOfTheCodePageStaysOne) {
  put("DEFAULT.CNF", lines({"'設定", "LAN1 , x"}));
  put("KISO.CNF", "LAN1 , \x8A\x47.exe\r\n[EOF]\r\n");
  READ_CNF();
  EXPECT_EQ(LAUNCH_EXE(0), "絵.exe");
  WRITE_CNF();
  EXPECT_EQ(get("KISO.CNF"), "'\x90\xDD\x92\xE8\r\nLAN1 , \x8A\x47.exe \r\n[EOF]\r\n");
}

TEST_F(Settings, ANameThatTheCodePageCanNotHoldSurvives) {
  put("DEFAULT.CNF", lines({"LAN1 , x"}));
  put("KISO.CNF", "'\x90\xDD\x92\xE8\r\n[EOF]\r\n");
  READ_CNF();
  LAUNCH_EXE(0) = "caf\xC3\xA9";
  WRITE_CNF();
  READ_CNF();
  EXPECT_EQ(LAUNCH_EXE(0), "caf\xC3\xA9");
}

TEST_F(Settings, ALineEndInANameDoesNotEndTheFile) {
  put("DEFAULT.CNF", lines({"RPNX , 0", "RPNM , x", "FUZH , 1"}));
  put("KISO.CNF", lines({"FUZH , 5"}));
  READ_CNF();
  RELOAD_MODE = 1;
  PIC_FILE = "a\n[EOF]\n.bmp";
  WRITE_CNF();
  PIC_FILE = "";
  READ_CNF();
  EXPECT_EQ(PIC_FILE, "a\n[EOF]\n.bmp");
  EXPECT_EQ(FUZZY_H, 5);
}

}  // namespace
}  // namespace kiso
