// What the file dialogs are given and what they give back, and the questions before a picture is replaced.
#include "addin/addin.h"
#include "palette_stage.h"
#include "persist/d_form.h"
#include "persist/persist.h"
#include "platform/error.h"
#include "platform/forms/clipboard.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

using DialogProc = void (*)(int& result, std::string& name);

struct Answer {
  int result;
  std::string name;
};
Answer ask(DialogProc dialog, const std::optional<std::string>& chosen, const std::string& name = "") {
  Answer answer{99, name};
  desk().files.push_back(chosen);
  EXPECT_TRUE(forms::enter([&] { dialog(answer.result, answer.name); }));
  return answer;
}
const forms::FileDialog& given() { return desk().dialogs.back(); }

int index_for(DialogProc dialog, const std::string& name) {
  PIC_FILE = name;
  ask(dialog, std::nullopt);
  return given().FilterIndex;
}

void two_readers_and_a_writer() {
  FR_CNT = 2;
  FR_EXT(0) = "png", FR_FILTER(0) = "PNG(*.PNG)|*.PNG|";
  FR_EXT(1) = ".Jpg", FR_FILTER(1) = "JPEG(*.JPG)|*.JPG|";
  FW_CNT = 1;
  FW_EXT(0) = ".PNG", FW_FILTER(0) = "Out(*.PNG)|*.PNG|";
}

constexpr const char* OPEN_FILTER = "All Files(*.*)|*.*|BMP Files(*.BMP)|*.BMP|ICON Files(*.ICO)|*.ICO|";
constexpr const char* SAVE_FILTER = "BMP Files(*.BMP)|*.BMP|ICON Files(*.ICO)|*.ICO|";

TEST(OpenDialog, OffersThePicturesNameAndEveryKindThatCanBeRead) {
  start();
  two_readers_and_a_writer();
  PIC_FILE = "/p/a.bmp";
  const Answer answer = ask(OPEN_DIALOG, "/p/b.bmp");
  EXPECT_EQ(answer.result, 0);
  EXPECT_EQ(answer.name, "/p/b.bmp");
  EXPECT_FALSE(given().save);
  EXPECT_EQ(given().FileName, "/p/a.bmp");
  EXPECT_EQ(given().Filter, std::string(OPEN_FILTER) + "PNG(*.PNG)|*.PNG|JPEG(*.JPG)|*.JPG|");
  EXPECT_EQ(given().Flags, 4);
}

TEST(OpenDialog, TakesOneRowPastTheLast) {
  start();
  two_readers_and_a_writer();
  FR_CNT = 1;
  ask(OPEN_DIALOG, std::nullopt);
  EXPECT_EQ(given().Filter, std::string(OPEN_FILTER) + "PNG(*.PNG)|*.PNG|JPEG(*.JPG)|*.JPG|");
  FR_CNT = 21;
  ask(OPEN_DIALOG, std::nullopt);  // a full table has no row past the last
  EXPECT_EQ(given().Filter, std::string(OPEN_FILTER) + "PNG(*.PNG)|*.PNG|JPEG(*.JPG)|*.JPG|");
}

TEST(OpenDialog, RaisesTheReadersEndingsInPlaceAndSaveDialogDoesNot) {
  start();
  two_readers_and_a_writer();
  FW_EXT(0) = ".png";
  ask(SAVE_DIALOG, std::nullopt);
  EXPECT_EQ(FW_EXT(0), ".png");
  EXPECT_EQ(FR_EXT(0), "png");
  ask(OPEN_DIALOG, std::nullopt);
  EXPECT_EQ(FR_EXT(0), "PNG");
  EXPECT_EQ(FR_EXT(1), ".JPG");
  EXPECT_EQ(FW_EXT(0), ".png");
}

TEST(OpenDialog, PreselectsByTheNumbersOfTheSaveDialog) {
  start();
  two_readers_and_a_writer();
  EXPECT_EQ(index_for(OPEN_DIALOG, "/p/a.bmp"), 1);
  EXPECT_EQ(index_for(OPEN_DIALOG, "/p/a.Ico"), 2);
  EXPECT_EQ(index_for(OPEN_DIALOG, "/p/a.gif"), 1);
  EXPECT_EQ(index_for(OPEN_DIALOG, ""), 1);
  EXPECT_EQ(index_for(OPEN_DIALOG, "/p/a.png"), 4);
  EXPECT_EQ(index_for(OPEN_DIALOG, "/p/a.jpg"), 5);
  FR_EXT(1) = "G";
  EXPECT_EQ(index_for(OPEN_DIALOG, "/p/a.png"), 5) << "the last row that fits";
}

TEST(SaveDialog, OffersEveryKindThatCanBeWritten) {
  start();
  two_readers_and_a_writer();
  PIC_FILE = " /p/a.png ";
  const Answer answer = ask(SAVE_DIALOG, " /p/b.png  ");
  EXPECT_EQ(answer.result, 0);
  EXPECT_EQ(answer.name, "/p/b.png");
  EXPECT_TRUE(given().save);
  EXPECT_EQ(given().FileName, " /p/a.png ");
  EXPECT_EQ(given().Filter, std::string(SAVE_FILTER) + "Out(*.PNG)|*.PNG|");
  EXPECT_EQ(given().FilterIndex, 3);
  EXPECT_EQ(given().Flags, 1028);
}

TEST(SaveDialog, PreselectsByTheEnding) {
  start();
  two_readers_and_a_writer();
  EXPECT_EQ(index_for(SAVE_DIALOG, "/p/a.BMP"), 1);
  EXPECT_EQ(index_for(SAVE_DIALOG, "/p/a.ico "), 2);
  EXPECT_EQ(index_for(SAVE_DIALOG, "/p/a.jpg"), 1);
}

TEST(FileDialogs, HideThePalettesWhileTheyStandOpen) {
  start();
  for (const DialogProc dialog : {OPEN_DIALOG, SAVE_DIALOG}) {
    bool seen = true;
    desk().while_asking = [&] { seen = CMD_WIN.Visible() || COL_WIN.Visible(); };
    ask(dialog, std::nullopt);
    EXPECT_FALSE(seen);
    EXPECT_TRUE(CMD_WIN.Visible());
    EXPECT_TRUE(COL_WIN.Visible());
  }
}

TEST(FileDialogs, LeavePalettesHiddenThatAreNotWanted) {
  start();
  PAL_SHOWN = 0;
  forms::enter([] { PAL_HIDE(); });
  ask(OPEN_DIALOG, std::nullopt);
  EXPECT_FALSE(CMD_WIN.Visible());
}

TEST(FileDialogs, CancelAndFailureKeepTheName) {
  start();
  for (const DialogProc dialog : {OPEN_DIALOG, SAVE_DIALOG, AIP_DIALOG, EXE_DIALOG}) {
    desk().while_asking = [] {};
    Answer answer = ask(dialog, std::nullopt, "/p/kept");
    EXPECT_EQ(answer.result, 1);
    EXPECT_EQ(answer.name, "/p/kept");
    desk().while_asking = [] { throw RuntimeError(7); };
    answer = ask(dialog, "/p/other", "/p/kept");
    desk().files.clear();
    EXPECT_EQ(answer.result, 1);
    EXPECT_EQ(answer.name, "/p/kept");
    EXPECT_TRUE(CMD_WIN.Visible());
  }
}

TEST(FileDialogs, StartAfreshEachTime) {
  start();
  EXPECT_TRUE(D_FORM.Loaded());
  EXPECT_FALSE(D_FORM.Visible());
  EXPECT_EQ(D_FORM.Caption(), "Kiso ");
  PIC_FILE = "/p/a.ico";
  ask(SAVE_DIALOG, "/p/b.ico");
  EXPECT_FALSE(D_FORM.Loaded());
  ask(AIP_DIALOG, std::nullopt);
  EXPECT_EQ(given().FilterIndex, 0) << "nothing of the dialog before";
}

TEST(AipDialog, LooksForParameterFilesInTheProgramDirectory) {
  start();
  forms::enter([] { PAL_HIDE(); });
  bool seen = true;
  desk().while_asking = [&] { seen = CMD_WIN.Visible(); };
  EXPECT_EQ(ask(AIP_DIALOG, "/p/x.aip").name, "/p/x.aip");
  EXPECT_EQ(given().FileName, APP_PATH + "/ * .AIP");
  EXPECT_EQ(given().Filter, "Add_In Parameter Files(*.AIP)|*.AIP|");
  EXPECT_EQ(given().Flags, 4);
  EXPECT_FALSE(seen);
  EXPECT_TRUE(CMD_WIN.Visible()) << "they come though nothing has hidden them";
}

TEST(ExeDialog, StartsAtTheNameThatItIsGiven) {
  start();
  const Answer answer = ask(EXE_DIALOG, "/bin/true", "/bin/false");
  EXPECT_EQ(answer.result, 0);
  EXPECT_EQ(answer.name, "/bin/true");
  EXPECT_EQ(given().FileName, "/bin/false");
  EXPECT_EQ(given().Filter, "ProgramFiles(*.EXE)|*.EXE|");
  EXPECT_EQ(given().FilterIndex, 1);
  EXPECT_TRUE(D_FORM.Loaded());
}

TEST(ConfirmReplace, AnythingButYesKeepsThePicture) {
  start();
  for (const int answer : {6, 7}) {
    int result = 99;
    desk().answers = {answer};
    forms::enter([&] { CONFIRM_REPLACE(result); });
    EXPECT_EQ(result, answer == 6 ? 0 : 1);
    EXPECT_EQ(desk().boxes.back().text, "現在表示している画像に上書きされます\rよろしいですか?");
    EXPECT_EQ(desk().boxes.back().style, 292);
    EXPECT_EQ(desk().boxes.back().title, "Kiso ");
  }
}

TEST(ClipCheck, TellsThatThereIsNoPicture) {
  start();
  int result = 99;
  forms::enter([&] { CLIP_CHECK(result); });
  EXPECT_EQ(result, 1);
  ASSERT_EQ(desk().boxes.size(), 1U);
  EXPECT_EQ(desk().boxes[0].text, "クリップボードには絵が入っていません。");
  EXPECT_EQ(desk().boxes[0].style, 48);
  EXPECT_EQ(desk().boxes[0].title, "Kiso ");
  Clipboard::SetData(raster::Surface(1, 1));
  forms::enter([&] { CLIP_CHECK(result); });
  EXPECT_EQ(result, 0);
  EXPECT_EQ(desk().boxes.size(), 1U);
}

}  // namespace
