// Files dropped on the main window.
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>

#include "palette_stage.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

std::string picture(const std::string& name) {
  const std::string path = home().path + "/" + name;
  raster::save_bmp(raster::Surface(3, 2, 32, colour_of('g')), path);
  return path;
}
void drop(const std::vector<std::string>& files) {
  forms::enter([&] { P_WIN.Form_Drop.fire(-1, files); });
}

TEST(Drop, LoadsAfterTheQuestion) {
  start();
  const std::string path = picture("a.bmp");
  desk().answers = {6};
  drop({path});
  ASSERT_EQ(desk().boxes.size(), 1U);
  EXPECT_EQ(desk().boxes[0].style, 36);
  EXPECT_EQ(desk().boxes[0].title, "Kiso ");
  EXPECT_EQ(desk().boxes[0].text, path + "がドロップされました\r現在の画像は保存されませんがそれでもよろしいですか?");
  EXPECT_PIC({"ggg", "ggg"});
  EXPECT_EQ(PIC_FILE, path);
  EXPECT_EQ(P_WIN.Caption(), "Kiso :" + path);
}

TEST(Drop, NoKeepsThePicture) {
  start();
  desk().answers = {7};
  drop({picture("a.bmp")});
  EXPECT_EQ(PIC_SIZE(1), 640);
  EXPECT_EQ(PIC_FILE, "");
  EXPECT_EQ(P_WIN.Caption(), "Kiso :NEWFFILE");
}

TEST(Drop, TakesTheFirstOfSeveralAlone) {
  start();
  desk().answers = {6};
  const std::string first = picture("a.bmp");
  drop({first, picture("b.bmp")});
  EXPECT_EQ(desk().boxes.size(), 1U);
  EXPECT_EQ(PIC_FILE, first);
}

TEST(Drop, OfAnUnknownKindIsAskedAboutFirstAndLeavesItsName) {
  start();
  desk().answers = {6};
  drop({"/p/a.xyz"});
  ASSERT_EQ(desk().boxes.size(), 2U);
  EXPECT_EQ(desk().boxes[0].style, 36);
  EXPECT_EQ(desk().boxes[1].text, "サポート外のファイル形式です。");
  EXPECT_EQ(PIC_FILE, "/p/a.xyz");
  EXPECT_EQ(P_WIN.Caption(), "Kiso :/p/a.xyz");
}

TEST(Drop, OfWhatIsNoFileIsAFailedLoadAndDoesNotWait) {
  start();
  const std::string pipe = home().path + "/pipe.bmp", folder = home().path + "/folder.bmp";
  const std::string device = home().path + "/device.bmp", cut = picture("a.bmp") + std::string(1, '\0') + ".bmp";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  std::filesystem::create_directory(folder);
  std::filesystem::create_symlink("/dev/ptmx", device);
  for (const std::string& name : {pipe, folder, device, cut}) {
    desk().boxes.clear();
    desk().answers = {6};
    drop({name});
    ASSERT_EQ(desk().boxes.size(), 2U);
    EXPECT_EQ(desk().boxes[1].text.substr(0, desk().boxes[1].text.find('\r')), "ファイル読み込みエラー ( 75)") << name;
    EXPECT_NE(desk().boxes[1].text.find("ファイル名 : " + name), std::string::npos);
  }
}

TEST(Drop, ThatNeedsMoreThanHalfOfTheFreeMemoryIsAFailedLoad) {
  start();
  setenv("KISO_FREE_MEMORY", "47", 1);  // twice 3 x 2 pixels of four bytes, less one
  desk().answers = {6};
  drop({picture("a.bmp")});
  ASSERT_EQ(desk().boxes.size(), 2U);
  EXPECT_EQ(desk().boxes[1].text.substr(0, desk().boxes[1].text.find('\r')), "ファイル読み込みエラー ( 7)");
  EXPECT_EQ(PIC_SIZE(1), 640);
  unsetenv("KISO_FREE_MEMORY");
}

TEST(Drop, WhileTheQuestionStandsOpenIsGone) {
  start();
  desk().answers = {7};
  desk().while_asking = [] { drop({"/p/b.bmp"}); };
  drop({"/p/a.bmp"});
  EXPECT_EQ(desk().boxes.size(), 1U);
  desk().while_asking = [] {};
  desk().answers = {7};
  drop({"/p/b.bmp"});
  EXPECT_EQ(desk().boxes.size(), 2U);
}

TEST(Drop, WhileAProgramOfAnAddInRunsIsGone) {
  start();
  P_WIN.TakesFiles(false);
  drop({picture("a.bmp")});
  EXPECT_TRUE(desk().boxes.empty());
  EXPECT_EQ(PIC_FILE, "");
}

// The name as the question shows it.
std::string asked_for(const std::string& name) {
  desk().answers = {7};
  drop({name});
  const std::string text = desk().boxes.back().text;
  return text.substr(0, text.find("がドロップ"));
}

TEST(Drop, CutsANameAfter126BytesBetweenCharacters) {
  start();
  const std::string longest = "/" + std::string(125, 'a');
  EXPECT_EQ(asked_for(longest), longest);
  EXPECT_EQ(asked_for(longest + "b"), longest);
  std::string wide;
  for (int i = 0; i < 60; ++i) wide += "絵";
  EXPECT_EQ(asked_for("/" + wide), "/" + wide.substr(0, 123)) << "a third of a letter is none";
  EXPECT_EQ(asked_for(wide), wide.substr(0, 126));
  EXPECT_EQ(asked_for(std::string(200, '\xe7')), std::string(126, '\xe7')) << "no letters at all";
}

TEST(Drop, OfNothingIsNothing) {
  start();
  drop({});
  EXPECT_TRUE(desk().boxes.empty());
}

TEST(Drop, WorksInAnEnlargedView) {
  start();
  view(80, 80);
  show(Picture(40, std::string(40, '.')));
  zoom(4, 10, 10);
  select_tool(11010);
  press(8, 8);
  desk().answers = {6};
  drop({picture("a.bmp")});
  release(12, 12);
  EXPECT_EQ(EXP_RATE, 1);
  EXPECT_EQ(VIEW_ORG(1), 0);
  EXPECT_EQ(PIC_SIZE(1), 3);
  EXPECT_FALSE(forms::has_ended());
}

}  // namespace
