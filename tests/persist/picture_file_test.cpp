// The road of a picture between the disk and PIC, and what bad files and bad targets do to it: a box, and the program
// goes on.
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <fstream>

#include "palette_stage.h"
#include "persist/persist.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

std::string in_home(const std::string& name) { return home().path + "/" + name; }

std::string write_picture(const std::string& name, int w, int h, char letter = 'b') {
  raster::save_bmp(raster::Surface(w, h, 32, colour_of(letter)), in_home(name));
  return in_home(name);
}

std::string bytes_of(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}
void put(const std::string& path, const std::string& bytes) { std::ofstream(path, std::ios::binary) << bytes; }

// The header of a 24-bit picture of that size, and nothing behind it but so many bytes.
std::string header_of(uint32_t w, uint32_t h, size_t behind) {
  std::string bytes = bytes_of(write_picture("header.bmp", 1, 1)).substr(0, 54);
  for (int i = 0; i < 4; ++i) {
    bytes[18 + static_cast<size_t>(i)] = static_cast<char>(w >> 8 * i);
    bytes[22 + static_cast<size_t>(i)] = static_cast<char>(h >> 8 * i);
  }
  return bytes + std::string(behind, '\0');
}

int load(const std::string& name) {
  int result = 99;
  EXPECT_TRUE(forms::enter([&] { LOAD_PICTURE(name, result); }));
  return result;
}
bool save(const std::string& name) {
  bool saved = false;
  EXPECT_TRUE(forms::enter([&] { saved = SAVE_PICTURE(name); }));
  return saved;
}

std::string read_error(const std::string& number, const std::string& reason, const std::string& name) {
  return "ファイル読み込みエラー ( " + number + ")\r理由 : " + reason + "\rファイル名 : " + name +
         "\r読み込みを中止します";
}

const std::string UNSUPPORTED = "サポート外のファイル形式です。";

// For root nothing is forbidden, so it is somebody else for as long as this lives.
struct Somebody {
  Somebody() { become(65534); }
  ~Somebody() { become(0); }
  void become(uid_t user) const {
    if (root && seteuid(user) != 0) std::abort();
  }
  const bool root = geteuid() == 0;
};

TEST(LoadPicture, BeginsAnewWithThePictureAtX1) {
  start();
  view(80, 80);
  show(Picture(40, std::string(40, '.')));
  zoom(4, 10, 10);
  click(0, 0);
  forms::enter([] { AUTOSAVE_MIN = 5; });
  const std::string path = write_picture("a.bmp", 3, 2);
  EXPECT_EQ(load(path), 0);
  EXPECT_PIC({"bbb", "bbb"});
  EXPECT_DRAW({"bbb", "bbb"});
  EXPECT_EQ(PIC_SIZE(1), 3);
  EXPECT_EQ(PIC_SIZE(2), 2);
  EXPECT_EQ(EXP_RATE, 1);
  EXPECT_EQ(VIEW_ORG(1), 0);
  EXPECT_EQ(X_SC.Value(), 0);
  EXPECT_EQ(PIC_FILE, path);
  EXPECT_FALSE(PIC.AutoSize());
  EXPECT_TRUE(Timer2.Enabled());
  EXPECT_EQ(UNDO_READY, 0);
  EXPECT_FALSE(CMD_WIN.UNDO.Enabled());
  EXPECT_EQ(DRAW.MousePointer(), 1);
  EXPECT_TRUE(desk().boxes.empty());
}

TEST(LoadPicture, LeavesTheClockOffWithoutAutoSave) {
  start();
  forms::enter([] {
    AUTOSAVE_MIN = 0;
    Timer2.Enabled(true);
  });
  EXPECT_EQ(load(write_picture("a.bmp", 3, 2)), 0);
  EXPECT_FALSE(Timer2.Enabled());
}

TEST(LoadPicture, TakesSmallLettersAndJapaneseNamesAndBlanksAtTheEnd) {
  start();
  EXPECT_EQ(load(write_picture("前回の絵.bMp", 3, 2)), 0);
  // The name is tried as it stands: the blanks count for the file, not for the kind.
  EXPECT_EQ(load(write_picture("a.bmp ", 5, 4)), 0);
  EXPECT_EQ(PIC_SIZE(1), 5);
}

TEST(LoadPicture, GoesByTheContentOfAnIconsName) {
  start();
  EXPECT_EQ(load(write_picture("a.ico", 3, 2)), 0);
  EXPECT_EQ(PIC_SIZE(1), 3);
}

TEST(LoadPicture, OfAnotherKindLeavesTheOldPictureInABoxOfTheNewSize) {
  stage::stage({"r.", ".."});
  forms::enter([] { AUTOSAVE_MIN = 5; });
  for (const char* name : {"/tmp/a.gif", "a", "bmp", ".BM", "", "abmp", "a.bmp.x"}) {
    desk().boxes.clear();
    EXPECT_EQ(load(name), -2) << name;
    ASSERT_EQ(desk().boxes.size(), 1U) << name;
    EXPECT_EQ(desk().boxes[0].text, UNSUPPORTED);
    EXPECT_EQ(desk().boxes[0].style, 48);
    EXPECT_EQ(desk().boxes[0].title, "Kiso ");
  }
  EXPECT_EQ(PIC.ScaleWidth(), 640);
  EXPECT_EQ(PIC.ScaleHeight(), 480);
  EXPECT_EQ(GetPixel(PIC, 0, 0), colour_of('r'));
  EXPECT_EQ(PIC_SIZE(1), 2);
  EXPECT_EQ(PIC_FILE, "");
  EXPECT_TRUE(PIC.AutoSize());
  EXPECT_FALSE(Timer2.Enabled());
  EXPECT_EQ(DRAW.MousePointer(), 1);
}

// The state after a load that has failed with that number; the program goes on.
void expect_failed_load(const std::string& path, int result, const std::string& number, const std::string& reason) {
  desk().boxes.clear();
  forms::enter([] { Timer2.Enabled(true); });
  EXPECT_EQ(load(path), result) << path;
  ASSERT_EQ(desk().boxes.size(), 1U) << path;
  EXPECT_EQ(desk().boxes[0].text, read_error(number, reason, path));
  EXPECT_EQ(desk().boxes[0].style, 48);
  EXPECT_EQ(desk().boxes[0].title, "Kiso ");
  EXPECT_EQ(PIC_FILE, "");
  EXPECT_EQ(PIC.ScaleWidth(), 640);
  EXPECT_EQ(PIC.ScaleHeight(), 480);
  EXPECT_TRUE(PIC.AutoSize());
  EXPECT_FALSE(Timer2.Enabled());
  EXPECT_EQ(DRAW.MousePointer(), 1);
  EXPECT_FALSE(forms::has_ended());
}

TEST(LoadPicture, OfAMissingFileIsCodeMinusFive) {
  start();
  expect_failed_load("/tmp/no-such-picture.bmp", -5, "53", error_text(53));
}

TEST(LoadPicture, OfAFolderOrAnUnreadableFileShowsNumberAndReason) {
  start();
  const std::string folder = in_home("folder.bmp");
  std::filesystem::create_directory(folder);
  expect_failed_load(folder, -1, "75", error_text(75));
  const std::string secret = write_picture("secret.bmp", 3, 2);
  chmod(secret.c_str(), 0);
  chmod(home().path.c_str(), 0755);
  const Somebody somebody;
  expect_failed_load(secret, -1, "70", error_text(70));
}

TEST(LoadPicture, OfSidesThatCanNotBeIsAnInvalidPicture) {
  start();
  const std::string path = in_home("bad.bmp");
  for (const auto& [w, h] :
       {std::pair{0U, 5U}, {5U, 0U}, {32768U, 1U}, {1U, 32768U}, {0x80000000U, 1U}, {1U, 0x80000000U}}) {
    put(path, header_of(w, h, 200000));
    expect_failed_load(path, -1, "481", error_text(481));
  }
}

TEST(LoadPicture, OfATruncatedOrHostileFileIsAnInvalidPicture) {
  start();
  const std::string path = in_home("bad.bmp");
  const std::string whole = bytes_of(write_picture("whole.bmp", 9, 7));
  for (const size_t length : {size_t{0}, size_t{1}, size_t{13}, size_t{53}, size_t{54}, whole.size() - 8}) {
    put(path, whole.substr(0, length));
    expect_failed_load(path, -1, "481", error_text(481));
  }
  put(path, header_of(32767, 32767, 10));  // three gigabytes that are not there
  expect_failed_load(path, -1, "481", error_text(481));
  put(path, std::string(1000, '\xFF'));
  expect_failed_load(path, -1, "481", error_text(481));
}

TEST(LoadPicture, WorksAgainAfterAFailure) {
  start();
  load("/tmp/no-such-picture.bmp");
  EXPECT_EQ(load(write_picture("a.bmp", 3, 2)), 0);
  EXPECT_PIC({"bbb", "bbb"});
}

TEST(SavePicture, WritesPicAndChangesNothingElse) {
  stage::stage({"r.", ".b"});
  zoom(2);
  stroke_at(0, 0);
  const std::string path = in_home("out.BMP");
  forms::enter([] { Timer2.Enabled(true); });
  EXPECT_TRUE(save(path));
  EXPECT_EQ(text_of(raster::load_picture_file(path)), text_of(PIC.Image()));
  EXPECT_EQ(UNDO_READY, 1);
  EXPECT_EQ(EXP_RATE, 2);
  EXPECT_EQ(PIC_FILE, "");
  EXPECT_FALSE(Timer2.Enabled());
  EXPECT_EQ(DRAW.MousePointer(), 99);  // the wait cursor stays for the caller to take away
  EXPECT_TRUE(desk().boxes.empty());
}

TEST(SavePicture, UnderAnIconsNameIsABitmapToo) {
  stage::stage({"r."});
  EXPECT_TRUE(save(in_home("a.ico")));
  EXPECT_EQ(bytes_of(in_home("a.ico")).substr(0, 2), "BM");
}

TEST(SavePicture, OfAnotherKindWritesNothing) {
  stage::stage({"r."});
  for (const std::string name : {"a", "bmp", "a.gif", ".BM"}) {
    desk().boxes.clear();
    EXPECT_FALSE(save(in_home("sub-" + name)));
    ASSERT_EQ(desk().boxes.size(), 1U);
    EXPECT_EQ(desk().boxes[0].text, UNSUPPORTED);
    EXPECT_FALSE(std::filesystem::exists(in_home("sub-" + name)));
  }
  EXPECT_EQ(DRAW.MousePointer(), 1);
}

// The box of a failed save, and nothing lost.
void expect_failed_save(const std::string& path) {
  desk().boxes.clear();
  EXPECT_FALSE(save(path));
  ASSERT_EQ(desk().boxes.size(), 1U) << path;
  EXPECT_EQ(desk().boxes[0].text,
            path + "\rパス又はファイル名が不正です　SAVEできません\r正しく入力し直してください。");
  EXPECT_EQ(desk().boxes[0].style, 48);
  EXPECT_EQ(desk().boxes[0].title, "Kiso ");
  EXPECT_FALSE(forms::has_ended());
  EXPECT_EQ(DRAW.MousePointer(), 99);
}

TEST(SavePicture, ToATargetThatCanNotBeShowsTheBox) {
  stage::stage({"r."});
  expect_failed_save("/no/such/folder/a.bmp");
  std::filesystem::create_directory(in_home("folder.bmp"));
  expect_failed_save(in_home("folder.bmp"));
  EXPECT_TRUE(std::filesystem::is_directory(in_home("folder.bmp")));
}

TEST(SavePicture, ToAReadOnlyTargetLeavesTheOldFile) {
  stage::stage({"r."});
  const std::string path = in_home("old.bmp");
  put(path, "old");
  chmod(path.c_str(), 0444);
  chmod(home().path.c_str(), 0777);
  {
    const Somebody somebody;
    expect_failed_save(path);
  }
  chmod(path.c_str(), 0666);
  chmod(home().path.c_str(), 0555);
  {
    const Somebody somebody;
    expect_failed_save(path);
    expect_failed_save(in_home("new.bmp"));
  }
  chmod(home().path.c_str(), 0755);
  EXPECT_EQ(bytes_of(path), "old");
  EXPECT_FALSE(std::filesystem::exists(in_home("new.bmp")));
}

TEST(SavePicture, ToAFullDiskLeavesTheOldFile) {
  start();  // 640 x 480, which is more than the disk takes
  const std::string path = in_home("old.bmp");
  put(path, "old");
  std::signal(SIGXFSZ, SIG_IGN);
  const rlimit small{4096, RLIM_INFINITY};
  setrlimit(RLIMIT_FSIZE, &small);
  expect_failed_save(path);
  const rlimit none{RLIM_INFINITY, RLIM_INFINITY};
  setrlimit(RLIMIT_FSIZE, &none);
  EXPECT_EQ(bytes_of(path), "old");
  for (const auto& entry : std::filesystem::directory_iterator(home().path)) {
    EXPECT_NE(entry.path().extension(), ".tmp") << entry.path();
  }
}

}  // namespace
