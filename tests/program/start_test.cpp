// Start and end of the program.
#include <fstream>

#include "palette_stage.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

// A 3 x 2 picture, and settings for the next start.
std::string picture_file(const std::string& name) {
  raster::Surface picture(3, 2, 32, colour_of('b'));
  const std::string path = home().path + "/" + name;
  raster::save_bmp(picture, path);
  return path;
}

void settings(const std::vector<std::string>& lines) {
  std::ofstream file(home().path + "/KISO.CNF");
  for (const std::string& line : lines) file << line << "\r\n";
  file << "[EOF]\r\n";
}

TEST(Start, WithoutAPictureBeginsANewOne) {
  settings({"PIWW , 30000"});
  start();
  EXPECT_EQ(P_WIN.Caption(), "Kiso :NEWFFILE");
  EXPECT_EQ(PIC_SIZE(1), 640);
  EXPECT_EQ(PIC_SIZE(2), 480);
  EXPECT_EQ(PIC_FILE, "");
  EXPECT_EQ(GetPixel(PIC, 0, 0), raster::WHITE);
  EXPECT_TRUE(P_WIN.Visible());
  EXPECT_FALSE(all_windows().empty());
}

TEST(Start, LoadsThePictureOfTheCommandLine) {
  const std::string path = picture_file("a.bmp");
  start(path);
  EXPECT_EQ(P_WIN.Caption(), "Kiso :" + path);
  EXPECT_EQ(PIC_SIZE(1), 3);
  EXPECT_EQ(GetPixel(PIC, 2, 1), colour_of('b'));
}

TEST(Start, EndsWhenThePictureOfTheCommandLineCanNotBeLoaded) {
  start("/no/such/picture.bmp");
  EXPECT_TRUE(forms::has_ended());
  EXPECT_EQ(forms::fatal_error(), 0);
  ASSERT_EQ(desk().boxes.size(), 1U);
  EXPECT_EQ(desk().boxes[0].style, 48);
}

TEST(Start, EndsForAPictureOfAnUnknownKind) {
  start("picture.xyz");
  EXPECT_TRUE(forms::has_ended());
  ASSERT_EQ(desk().boxes.size(), 1U);
  EXPECT_EQ(desk().boxes[0].text, "サポート外のファイル形式です。");
}

TEST(Start, NeverAsksToReloadBesideACommandLine) {
  const std::string path = picture_file("a.bmp");
  settings({"RPNX , 2", "RPNM , /other.bmp"});
  start(path);
  EXPECT_TRUE(desk().boxes.empty());
  EXPECT_EQ(PIC_FILE, path);
}

TEST(Start, AsksNothingWithoutANameToReload) {
  settings({"RPNX , 2", "RPNM , "});
  start();
  EXPECT_TRUE(desk().boxes.empty());
}

TEST(Start, AsksForTheLastPictureAndLoadsIt) {
  const std::string path = picture_file("last.bmp");
  settings({"RPNX , 2", "RPNM , " + path});
  desk().answers = {6};
  start();
  ASSERT_EQ(desk().boxes.size(), 1U);
  EXPECT_EQ(desk().boxes[0].style, 36);
  EXPECT_EQ(desk().boxes[0].title, "Kiso ");
  EXPECT_EQ(desk().boxes[0].text, "前回編集していたファイルを読み込みますか?\rファイル名 :" + path + "\r");
  EXPECT_EQ(P_WIN.Caption(), "Kiso :" + path);
  EXPECT_EQ(PIC_SIZE(1), 3);
}

TEST(Start, AnsweredNoForgetsTheLastPicture) {
  settings({"RPNX , 2", "RPNM , " + picture_file("last.bmp")});
  desk().answers = {7};
  start();
  EXPECT_EQ(PIC_FILE, "");
  EXPECT_EQ(PIC_SIZE(1), 640);
}

TEST(Start, ModeOneReloadsWithoutAQuestion) {
  const std::string path = picture_file("last.bmp");
  settings({"RPNX , 1", "RPNM , " + path});
  start();
  EXPECT_TRUE(desk().boxes.empty());
  EXPECT_EQ(PIC_SIZE(1), 3);
}

TEST(Start, GoesOnWithAnEmptyPictureWhenTheLastOneIsGone) {
  settings({"RPNX , 1", "RPNM , /no/such.bmp"});
  start();
  EXPECT_FALSE(forms::has_ended());
  ASSERT_EQ(desk().boxes.size(), 1U);
  EXPECT_EQ(PIC.ScaleWidth(), 640);
  EXPECT_TRUE(P_WIN.Visible());
}

TEST(Start, OnAFlatDisplayAsksFirst) {
  desk().depth = 8;
  desk().answers = {7};
  start();
  EXPECT_TRUE(forms::has_ended());
  ASSERT_EQ(desk().boxes.size(), 1U);
  EXPECT_EQ(desk().boxes[0].style, 52);
  EXPECT_EQ(desk().boxes[0].text,
            "Windowsの色数が足りません\r本Editorはカラーパレットには対応しませんので\r"
            "16Bit/24Bit/ 32Bit Colorでご利用ください。\rKisoを起動させますか ?");
}

TEST(Start, OnAFlatDisplayRunsIfTheUserSaysSo) {
  desk().depth = 8;
  desk().answers = {6};
  start();
  EXPECT_TRUE(P_WIN.Visible());
  click(1, 1);
  EXPECT_EQ(GetPixel(PIC, 1, 1), 0U);
}

TEST(Start, WithAPictureThePalettesComeUpWhereTheSettingsSay) {
  settings({"FEMD , 1", "COWL , 3000", "COWT , 450", "CMWL , 6000"});
  start(picture_file("a.bmp"));
  EXPECT_EQ(COL_WIN.Left(), 3000);
  EXPECT_EQ(COL_WIN.Top(), 450);
  EXPECT_EQ(CMD_WIN.Left(), 6000);
}

// --- the end

void close() {
  forms::enter([] { P_WIN.Unload(); });
}

TEST(End, AsksThoughNothingWasDrawn) {
  start();
  desk().answers = {6};
  close();
  ASSERT_EQ(desk().boxes.size(), 1U);
  EXPECT_EQ(desk().boxes[0].style, 547);
  EXPECT_EQ(desk().boxes[0].title, "Kiso 終了");
  EXPECT_EQ(desk().boxes[0].text, "Kisoを終了します\rファイルを保存せずに終了しますか ?\r");
  EXPECT_TRUE(forms::has_ended());
}

TEST(End, CancelledLeavesEverythingAsItWas) {
  start();
  desk().answers = {2};
  close();
  EXPECT_FALSE(forms::has_ended());
  EXPECT_EQ(FORM_CLOSING, 0);
  EXPECT_TRUE(P_WIN.Visible());
  EXPECT_TRUE(CMD_WIN.Visible());
  EXPECT_TRUE(COL_WIN.Visible());
}

TEST(End, SavesUnderTheNameOfTheDialogAfterAsking) {
  const std::string path = picture_file("a.bmp");
  start(path);
  click(0, 0);
  desk().answers = {7, 1};
  desk().files = {path};
  close();
  ASSERT_EQ(desk().dialogs.size(), 1U);
  EXPECT_TRUE(desk().dialogs[0].save);
  EXPECT_EQ(desk().dialogs[0].FileName, path);
  ASSERT_EQ(desk().boxes.size(), 2U);
  EXPECT_EQ(desk().boxes[1].style, 289);
  EXPECT_EQ(desk().boxes[1].text, path + "\rファイルが既に存在しています上書きしますか?");
  EXPECT_TRUE(forms::has_ended());
  EXPECT_EQ(GetPixel(raster::load_picture_file(path), 0, 0), 0U);
}

TEST(End, NotToOverwriteLeadsBackToTheQuestion) {
  const std::string path = picture_file("a.bmp");
  start(path);
  click(0, 0);
  desk().answers = {7, 2, 6};
  desk().files = {path};
  close();
  EXPECT_EQ(desk().boxes.size(), 3U);
  EXPECT_EQ(GetPixel(raster::load_picture_file(path), 0, 0), colour_of('b'));
}

TEST(End, AFailedSaveShowsOneBoxAndAsksAgain) {
  start();
  desk().answers = {7, 2};
  desk().files = {"/no/such/folder/a.bmp"};
  close();
  ASSERT_EQ(desk().boxes.size(), 3U);
  EXPECT_EQ(desk().boxes[1].text,
            "/no/such/folder/a.bmp\rパス又はファイル名が不正です　SAVEできません\r正しく入力し直してください。");
  EXPECT_EQ(desk().boxes[1].style, 48);
  EXPECT_EQ(desk().boxes[2].style, 547);
  EXPECT_FALSE(forms::has_ended());
}

TEST(End, CancelInTheSaveDialogLeadsBackToTheQuestion) {
  start();
  desk().answers = {7, 2};
  desk().files = {std::nullopt};
  close();
  ASSERT_EQ(desk().boxes.size(), 2U);
  EXPECT_EQ(desk().boxes[1].style, 547);
  EXPECT_FALSE(forms::has_ended());
}

TEST(End, ANewPictureIsSavedWithoutAQuestionAndIsTheLastOne) {
  start();
  const std::string path = home().path + "/new.bmp";
  desk().answers = {7};
  desk().files = {path};
  close();
  EXPECT_EQ(desk().dialogs[0].FileName, "");
  EXPECT_EQ(raster::load_picture_file(path).width(), 640);
  EXPECT_TRUE(forms::has_ended());
  EXPECT_EQ(PIC_FILE, path);
}

TEST(End, WritesTheSettings) {
  start();
  forms::enter([] { LINE_MODE = 1; });
  desk().answers = {6};
  close();
  std::ifstream file(home().path + "/KISO.CNF");
  const std::string all((std::istreambuf_iterator<char>(file)), {});
  EXPECT_NE(all.find("LMOD ,  1 "), std::string::npos);
}

TEST(End, WithoutADialogWhenTheProgramIsHandedOn) {
  start();
  forms::enter([] { QUIT_NOW = 1; });
  close();
  EXPECT_TRUE(desk().boxes.empty());
  EXPECT_TRUE(forms::has_ended());
}

}  // namespace
