// Where the program keeps its files, with a home and without.
#include "platform/text/program_directory.h"

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

namespace {

namespace fs = std::filesystem;
using namespace text;

struct ProgramDirectory : testing::Test {
  ProgramDirectory() {
    char name[] = "/tmp/kiso_home_XXXXXX";
    folder = mkdtemp(name);
    fs::permissions(folder, fs::perms::all);
    setenv("TMPDIR", folder.c_str(), 1);
    for (const char* variable : {"KISO_HOME", "XDG_DATA_HOME", "HOME"}) unsetenv(variable);
  }
  ~ProgramDirectory() override {
    if (getuid() == 0 && seteuid(0) != 0) abort();
    fs::remove_all(folder);
  }
  // For the superuser permissions do not count.
  static void be_somebody() {
    if (geteuid() == 0) ASSERT_EQ(seteuid(65534), 0);
  }
  std::string folder;
};

TEST_F(ProgramDirectory, IsTheOneThatIsSet) {
  setenv("KISO_HOME", folder.c_str(), 1);
  EXPECT_EQ(program_directory(), folder);
  EXPECT_FALSE(is_folder_of_the_run());
}

TEST_F(ProgramDirectory, OfARunWhoseHomeCanNotBeWrittenHasWhatCanBeReadThere) {
  const std::string home = folder + "/home";
  fs::create_directory(home);
  std::ofstream(home + "/KISO.CNF") << "mine";
  fs::permissions(home, fs::perms{0555});
  be_somebody();
  setenv("KISO_HOME", home.c_str(), 1);
  const std::string found = program_directory();
  EXPECT_NE(found, home);
  EXPECT_TRUE(is_folder_of_the_run());
  EXPECT_EQ(program_directory(), found) << "one folder for the whole run";
  EXPECT_EQ(fs::status(found).permissions(), fs::perms{0700});
  std::string text;
  std::ifstream(found + "/KISO.CNF") >> text;
  EXPECT_EQ(text, "mine");
}

TEST_F(ProgramDirectory, OfAUserWithoutAHomeIsAFolderOfTheRun) {
  const std::string templates = executable_directory() + "/DEFAULT.CNF";
  be_somebody();  // who may not write beside the program
  const std::string found = program_directory();
  EXPECT_TRUE(is_folder_of_the_run());
  EXPECT_TRUE(found.starts_with(folder + "/kiso-")) << found;
  EXPECT_EQ(fs::exists(found + "/DEFAULT.CNF"), fs::exists(templates));
}

}  // namespace
