// Pictures of foreign kinds: the roads of LOAD_PICTURE and SAVE_PICTURE through an add-in, here scripts of the test's
// own.
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <fstream>

#include "addin/addin.h"
#include "persist/roads.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

const char* const UNKNOWN = "Add_In情報が不正です実行ファイルを見つけられません";

TEST_F(Roads, LoadBeginsAnewWithWhatTheReaderHasMade) {
  zoom(4, 0, 0);
  forms::enter([] { AUTOSAVE_MIN = 5; });
  const std::string name = foreign("a.gif");
  EXPECT_EQ(load(name), 0);
  EXPECT_PIC(FOREIGN);
  EXPECT_EQ(PIC_SIZE(1), 3);
  EXPECT_EQ(EXP_RATE, 1);
  EXPECT_EQ(PIC_FILE, name);
  EXPECT_TRUE(Timer2.Enabled());
  EXPECT_FALSE(PIC.AutoSize());
  EXPECT_TRUE(CMD_WIN.Visible());
  EXPECT_TRUE(COL_WIN.Visible());
  EXPECT_EQ(boxes(), "");
  EXPECT_EQ(left_behind(), 0);
}

// The names that people give, and those that they should not. 250 letters with the folder's path are no limit.
const std::string NAMES[] = {
    "a b.gif",         "  two  blanks  .gif",
    "q'u\"o`te.gif",   "$(touch hit).gif",
    ";touch hit;.gif", "|touch hit.gif",
    "&touch hit&.gif", ">hit.gif",
    "-rf.gif",         "%FN %ON.gif",
    "%%.gif",          "前回の絵　その二.gif",
    "tab\there.gif",   "line\nhere.gif",
    "back\\slash.gif", "\xFF\xFE no text.gif",
    "a,b.gif",         std::string(246, 'n') + ".gif",
};

TEST_F(Roads, EveryNameLoadsAsItselfAndRunsNothing) {
  std::filesystem::current_path(home().path);
  for (const std::string& name : NAMES) {
    show({"r."});
    EXPECT_EQ(load(foreign(name)), 0) << name;
    EXPECT_EQ(text_of(PIC.Image()), FOREIGN) << name;
    EXPECT_EQ(PIC_FILE, in_home(name));
    std::filesystem::remove(in_home(name));
    EXPECT_FALSE(std::filesystem::exists(in_home("hit"))) << name;
  }
  EXPECT_EQ(boxes(), "");
}

TEST_F(Roads, EveryNameIsSavedAsItselfAndRunsNothing) {
  std::filesystem::current_path(home().path);
  for (const std::string& name : NAMES) {
    EXPECT_TRUE(save(in_home(name))) << name;
    EXPECT_EQ(text_of(raster::load_picture_file(in_home(name))), (Picture{"r.", ".g"})) << name;
    std::filesystem::remove(in_home(name));
    EXPECT_FALSE(std::filesystem::exists(in_home("hit"))) << name;
  }
  EXPECT_EQ(boxes(), "");
}

TEST_F(Roads, EveryNameIsAlsoThatOfABitmap) {
  std::filesystem::current_path(home().path);
  for (std::string name : NAMES) {
    name = in_home(name.substr(0, name.size() - 4) + ".bmp");
    show({"r.", ".g"});
    EXPECT_TRUE(save(name)) << name;
    show({"b"});
    EXPECT_EQ(load(name), 0) << name;
    EXPECT_EQ(text_of(PIC.Image()), (Picture{"r.", ".g"})) << name;
    EXPECT_FALSE(std::filesystem::exists(in_home("hit"))) << name;
  }
  EXPECT_EQ(boxes(), "");
}

TEST_F(Roads, TheLastRowThatFitsWins) {
  forms::enter([] {
    FR_CNT = 3;
    FR_ID(0) = FR_ID(2) = "GONE", FR_ID(1) = "IN";
    FR_CMD(1) = "%FN %ON";
    FR_EXT(0) = FR_EXT(1) = "IF";  // the end of the name, without its dot
    FR_EXT(2) = "TIFF";
  });
  EXPECT_EQ(load(foreign("a.gif")), 0);
  EXPECT_EQ(load(foreign("a.tif")), 0);
  EXPECT_EQ(load(foreign("a.giff")), -2);
  EXPECT_EQ(load(foreign("agif ")), 0);
}

TEST_F(Roads, AnExtensionInSmallLettersFitsNothing) {
  forms::enter([] { FR_EXT(0) = FW_EXT(0) = "gif"; });
  EXPECT_EQ(load(foreign("a.gif")), -2);
  EXPECT_FALSE(save(in_home("b.gif")));
  EXPECT_EQ(boxes(), "サポート外のファイル形式です。\nサポート外のファイル形式です。\n");
}

TEST_F(Roads, AnAddInComesBeforeTheEditorsOwnKinds) {
  write_addin("copy-out", "echo mine > \"$name\"");
  forms::enter([] { FW_EXT(0) = "BMP"; });
  EXPECT_TRUE(save(in_home("a.bmp")));
  EXPECT_EQ(bytes_of(in_home("a.bmp")), "mine\n");
  write_addin("copy-in", "cp \"$home/other\" \"$temp\"");
  foreign("other");
  forms::enter([] { FR_EXT(0) = "BMP"; });
  EXPECT_EQ(load(in_home("a.bmp")), 0);
  EXPECT_PIC(FOREIGN);
}

TEST_F(Roads, LoadWithoutItsAddInChangesNoPictureButTheView) {
  zoom(4, 0, 0);
  forms::enter([] {
    FR_ID(0) = "GONE";
    Timer2.Enabled(true);
    AUTOSAVE_MIN = 0;
  });
  EXPECT_EQ(load(foreign("a.gif")), 1);
  EXPECT_EQ(boxes(), std::string(UNKNOWN) + "\n");
  EXPECT_EQ(desk().boxes[0].style, 0);
  EXPECT_EQ(desk().boxes[0].title, "");
  EXPECT_PIC({"r.", ".g"});
  EXPECT_EQ(EXP_RATE, 1);
  EXPECT_FALSE(PIC.AutoSize());
  EXPECT_FALSE(Timer2.Enabled());
  EXPECT_FALSE(CMD_WIN.Visible());
  EXPECT_FALSE(COL_WIN.Visible());
  EXPECT_EQ(PAL_SHOWN, 1);
}

TEST_F(Roads, AReaderThatMakesNothingIsAMissingFileUnderTheTemporaryName) {
  for (const std::string script : {"exit 0", "exit 3", "kill -9 $$"}) {
    desk().boxes.clear();
    write_addin("copy-in", script);
    EXPECT_EQ(load(foreign("a.gif")), -5) << script;
    ASSERT_EQ(desk().boxes.size(), 1U);
    EXPECT_NE(boxes().find("ファイル読み込みエラー ( 53)\r"), std::string::npos);
    EXPECT_NE(boxes().find("\rファイル名 : " + APP_PATH + "/GT"), std::string::npos);
    EXPECT_EQ(desk().boxes[0].style, 48);
    EXPECT_EQ(desk().boxes[0].title, "Kiso ");
    EXPECT_EQ(PIC_FILE, "");
    EXPECT_EQ(PIC.ScaleWidth(), 640);
    EXPECT_TRUE(CMD_WIN.Visible());
  }
  // A template that does not name the file puts none into the add-in's hand.
  forms::enter([] { FR_CMD(0) = "%ON"; });
  EXPECT_EQ(load(foreign("a.gif")), -5);
}

TEST_F(Roads, WhatAReaderMakesIsRemovedAlsoIfItIsNoPicture) {
  write_addin("copy-in", "echo no picture > \"$temp\"");
  EXPECT_EQ(load(foreign("a.gif")), -1);
  EXPECT_NE(boxes().find("( 481)"), std::string::npos);
  EXPECT_EQ(left_behind(), 0);
}

TEST_F(Roads, AMissingProgramIsToldBeforeTheMissingFile) {
  std::filesystem::remove(in_home("copy-in"));
  EXPECT_EQ(load(foreign("a.gif")), -5);
  ASSERT_EQ(desk().boxes.size(), 2U);
  EXPECT_EQ(desk().boxes[0].text, "Add_Inプログラムが見つかりません");
}

TEST_F(Roads, AShortNameRunsTheReaderWithWhatWasExpanded) {
  write_addin("copy-in", "echo \"$temp|$name\" > \"$home/said\"");
  forms::enter([] { FR_CMD(0) = "first %OF last"; });
  EXPECT_EQ(load("gif"), -5);
  EXPECT_EQ(bytes_of(in_home("said")), "first|\n");
}

TEST_F(Roads, PalettesThatAreNotWantedStayHidden) {
  forms::enter([] {
    PAL_HIDE();
    PAL_SHOWN = 0;
  });
  EXPECT_EQ(load(foreign("a.gif")), 0);
  EXPECT_FALSE(CMD_WIN.Visible());
  EXPECT_TRUE(save(in_home("b.gif")));
  EXPECT_FALSE(CMD_WIN.Visible());
}

TEST_F(Roads, SaveGivesTheWriterThePictureAndItsName) {
  zoom(2, 0, 0);
  stroke_at(0, 0);
  const Picture picture = text_of(PIC.Image());
  const std::string name = in_home("out.gif");
  forms::enter([] {
    PIC_FILE = "before.bmp";
    Timer2.Enabled(true);
  });
  EXPECT_TRUE(save(name));
  EXPECT_EQ(text_of(raster::load_picture_file(name)), picture);
  EXPECT_EQ(PIC_FILE, name);
  EXPECT_EQ(boxes(), "");
  EXPECT_EQ(left_behind(), 0);
  EXPECT_EQ(UNDO_READY, 1);
  EXPECT_EQ(EXP_RATE, 2);
  EXPECT_FALSE(Timer2.Enabled());
  EXPECT_TRUE(CMD_WIN.Visible());
  EXPECT_EQ(DRAW.MousePointer(), 99);
}

TEST_F(Roads, SaveWithoutItsAddInTouchesNothing) {
  forms::enter([] { FW_ID(0) = "GONE"; });
  EXPECT_FALSE(save(in_home("out.gif")));
  EXPECT_EQ(boxes(), std::string(UNKNOWN) + "\n");
  EXPECT_EQ(PIC_FILE, "");
  EXPECT_TRUE(CMD_WIN.Visible());
  EXPECT_FALSE(std::filesystem::exists(in_home("out.gif")));
}

TEST_F(Roads, SaveIsNotDoneIfTheWriterIsMissingOrMakesNothing) {
  write_addin("copy-out", "kill -9 $$");
  EXPECT_FALSE(save(in_home("out.gif")));
  EXPECT_EQ(boxes(), "");  // it says why itself
  std::filesystem::remove(in_home("copy-out"));
  EXPECT_FALSE(save(in_home("out.gif")));
  EXPECT_EQ(boxes(), "Add_Inプログラムが見つかりません\n");
  EXPECT_EQ(left_behind(), 0);
}

TEST_F(Roads, AWriterSaysThatItFailedByTakingTheTemporaryFileAway) {
  const std::string name = in_home("out.gif");
  put(name, "old");
  write_addin("copy-out", "rm \"$temp\"");
  EXPECT_FALSE(save(name));
  EXPECT_EQ(boxes(), name + "\rパス又はファイル名が不正です　SAVEできません\r正しく入力し直してください。\n");
  EXPECT_EQ(bytes_of(name), "old");
  EXPECT_TRUE(CMD_WIN.Visible());
}

TEST_F(Roads, AFullDiskIsToldAndTheTargetIsLeftAlone) {
  const std::string name = in_home("out.gif");
  put(name, "old");
  forms::enter([] { APP_PATH = "/no/such/folder"; });  // there is no room for the temporary picture
  EXPECT_FALSE(save(name));
  EXPECT_EQ(boxes(), name + "\rパス又はファイル名が不正です　SAVEできません\r正しく入力し直してください。\n");
  EXPECT_EQ(desk().boxes[0].style, 48);
  EXPECT_EQ(desk().boxes[0].title, "Kiso ");
  EXPECT_EQ(bytes_of(name), "old");
  EXPECT_TRUE(CMD_WIN.Visible());
}

// The user sees the wait cursor and no palettes while an add-in runs.
struct Watching : StageDesktop {
  bool palettes = true, clock = true;
  int pointer = 0;
  void do_events() override {
    palettes = CMD_WIN.Visible() || COL_WIN.Visible();
    clock = Timer2.Enabled();
    pointer = DRAW.MousePointer();
  }
};

TEST_F(Roads, PalettesAndAutoSaveAreOffWhileAnAddInRuns) {
  for (const bool loading : {true, false}) {
    Watching watching;
    forms::use_desktop(&watching);
    forms::enter([] { Timer2.Enabled(true); });
    write_addin("copy-in", "sleep 0.5; cp \"$name\" \"$temp\"");
    write_addin("copy-out", "sleep 0.5; cp \"$temp\" \"$name\"");
    if (loading)
      EXPECT_EQ(load(foreign("a.gif")), 0);
    else
      EXPECT_TRUE(save(in_home("b.gif")));
    EXPECT_FALSE(watching.palettes);
    EXPECT_FALSE(watching.clock);
    EXPECT_EQ(watching.pointer, 99);
    forms::use_desktop(&desk());
  }
}

// The disk is full, and the writer could only spoil the target.
TEST_F(Roads, AWriterIsNotRunWithoutThePicture) {
  write_addin("copy-out", "rm \"$name\"");
  put(in_home("old.gif"), "old");
  std::signal(SIGXFSZ, SIG_IGN);
  const rlimit full{16, RLIM_INFINITY};
  setrlimit(RLIMIT_FSIZE, &full);
  EXPECT_FALSE(save(in_home("old.gif")));
  EXPECT_EQ(bytes_of(in_home("old.gif")), "old");
}

}  // namespace
