// The auto save: when it runs, where it writes, and all that it leaves alone.
#include <fstream>

#include "palette_stage.h"
#include "persist/persist.h"
#include "platform/text/text.h"
#include "windows/wait_win.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

std::string in_home(const std::string& name) { return home().path + "/" + name; }
bool exists(const std::string& path) { return std::filesystem::exists(path); }
std::string auto_file() { return in_home("AUTOSAVE.BMP"); }

void tick(int times = 1) {
  for (int i = 0; i < times; ++i) forms::enter([] { Timer2.Tick.fire(-1); });
}
void every(int minutes, int dest = 0) {
  AUTOSAVE_MIN = AUTOSAVE_LEFT = to_int16(minutes);
  AUTOSAVE_DEST = to_int16(dest);
}

TEST(AutoSave, TicksOnceAMinute) {
  start();
  EXPECT_EQ(Timer2.Interval(), 60000);
}

TEST(AutoSave, WritesThePictureWhenItsMinutesAreOver) {
  stage::stage({"#r", "gb"});
  every(5);
  tick(4);
  EXPECT_EQ(AUTOSAVE_LEFT, 1);
  EXPECT_FALSE(exists(auto_file()));
  tick();
  EXPECT_EQ(text_of(raster::load_picture_file(auto_file())), (Picture{"#r", "gb"}));
  EXPECT_EQ(AUTOSAVE_LEFT, 5);
}

TEST(AutoSave, DoesNothingWhenItIsOff) {
  start();
  every(0);
  AUTOSAVE_LEFT = 1;
  tick(3);
  EXPECT_EQ(AUTOSAVE_LEFT, 1);
  EXPECT_FALSE(exists(auto_file()));
}

TEST(AutoSave, APictureWithoutANameGoesToItsOwnFileWhateverTheSetting) {
  start();
  every(5, 1);
  tick(5);
  EXPECT_TRUE(exists(auto_file()));
}

TEST(AutoSave, TheEditedFileBecomesABmpWhateverItsEnding) {
  stage::stage({"r"});
  PIC_FILE = in_home("a.png");
  std::ofstream(PIC_FILE) << "a picture of another kind";
  every(5, 1);
  tick(5);
  EXPECT_EQ(text_of(raster::load_picture_file(PIC_FILE)), Picture{"r"});
  EXPECT_FALSE(exists(auto_file()));
}

TEST(AutoSave, ToItsOwnFileLeavesTheEditedOneAlone) {
  start();
  PIC_FILE = in_home("a.bmp");
  every(5, 0);
  tick(5);
  EXPECT_TRUE(exists(auto_file()));
  EXPECT_FALSE(exists(PIC_FILE));
}

TEST(AutoSave, FailsInSilenceAndTriesAgainInItsTime) {
  start();
  PIC_FILE = "/no/such/folder/a.bmp";
  every(2, 1);
  tick(2);
  EXPECT_TRUE(desk().boxes.empty());
  EXPECT_FALSE(forms::has_ended());
  EXPECT_EQ(AUTOSAVE_LEFT, 2);
  EXPECT_FALSE(WAIT_WIN.Loaded());
}

TEST(AutoSave, ChangesNothingElse) {
  stage::stage({"..", ".."});
  const std::string caption = P_WIN.Caption();
  stroke_at(0, 0);
  every(1);
  tick();
  EXPECT_EQ(PIC_FILE, "");
  EXPECT_EQ(P_WIN.Caption(), caption);
  EXPECT_EQ(UNDO_READY, 1);
  EXPECT_TRUE(P_WIN.Enabled());
  EXPECT_TRUE(CMD_WIN.Enabled());
  EXPECT_TRUE(COL_WIN.Enabled());
}

// A display that writes down what the wait window does.
struct Recorder : StageDesktop {
  void record(const char* kind, const std::string& entry) override {
    if (kind == std::string("progress")) seen.push_back(entry + (WAIT_WIN.is_visible() ? "" : " unseen"));
  }
  void record_progress(double done, double total) override {
    record("progress", "progress " + text::CStr(done) + " " + text::CStr(total));
  }
  std::vector<std::string> seen;
};

TEST(AutoSave, ShowsTheWaitWindowForAMoment) {
  start();
  Recorder recorder;
  forms::use_desktop(&recorder);
  every(1);
  tick();
  EXPECT_EQ(recorder.seen, (std::vector<std::string>{"caption \"タイマー保存中\"", "progress 0 1", "progress 1 1"}));
  EXPECT_FALSE(WAIT_WIN.Loaded());
  forms::use_desktop(&desk());
}

TEST(AutoSave, StandsStillAfterASaveUntilAPictureIsLoaded) {
  start();
  every(5);
  int result = 0;
  const std::string path = in_home("a.bmp");
  forms::enter([&] { SAVE_PICTURE(path); });
  EXPECT_FALSE(Timer2.Enabled());
  forms::enter([&] { LOAD_PICTURE(path, result); });
  EXPECT_TRUE(Timer2.Enabled());
  EXPECT_EQ(AUTOSAVE_LEFT, 5) << "the clock goes on where it stood";
}

}  // namespace
