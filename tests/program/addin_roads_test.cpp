// The start with a picture of a foreign kind, and the end while an add-in runs.
#include "persist/roads.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

// The user closes the program while an add-in runs.
struct Closing : StageDesktop {
  void do_events() override {
    if (!forms::has_ended()) forms::enter([] { P_WIN.Unload(); });
  }
};

TEST_F(Roads, TheProgramEndsOverARunningAddIn) {
  Closing closing;
  closing.answers = {6};
  forms::use_desktop(&closing);
  write_addin("copy-in", "sleep 0.5");
  const std::string name = foreign("a.gif");
  int result = 0;
  EXPECT_FALSE(forms::enter([&] { LOAD_PICTURE(name, result); }));
  EXPECT_TRUE(forms::has_ended());
  EXPECT_EQ(forms::fatal_error(), 0);
  EXPECT_EQ(closing.boxes.size(), 1U);
  EXPECT_TRUE(std::filesystem::exists(in_home("KISO.CNF")));
  forms::use_desktop(&desk());
}

TEST(CommandLine, APictureOfAForeignKindComesUpWithThePalettesWhereTheSettingsSay) {
  write_addin("copy-in", "cp -- \"$name\" \"$temp\"");
  put(in_home("KISO.AIN"), "ADIN,IN," + in_home("copy-in") + ",n,0\r\nFFRD,IN,%FN %ON,,GIF\r\n[EOF]\r\n");
  std::string settings = bytes_of(in_home("DEFAULT.CNF"));
  for (const auto& [from, to] : {std::pair{"COWL , 12300", "COWL , 3000"}, {"COWT , 0", "COWT , 1500"}}) {
    const size_t at = settings.find(from);
    ASSERT_NE(at, std::string::npos) << from;
    settings.replace(at, std::string(from).size(), to);
  }
  put(in_home("KISO.CNF"), settings);
  const std::string name = foreign("a.gif");
  start(name);
  EXPECT_FALSE(forms::has_ended());
  EXPECT_PIC(FOREIGN);
  EXPECT_EQ(P_WIN.Caption(), "Kiso :" + name);
  EXPECT_TRUE(CMD_WIN.Visible());
  EXPECT_TRUE(COL_WIN.Visible());
  EXPECT_EQ(COL_WIN.Left(), 3000);
  EXPECT_EQ(COL_WIN.Top(), 1500);
}

}  // namespace
