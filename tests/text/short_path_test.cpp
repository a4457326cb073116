// Paths without blanks to what has blanks in its path.
#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/stat.h>

#include <filesystem>

#include "platform/text/program_directory.h"

namespace {

namespace fs = std::filesystem;
using text::SHORT_PATH;

struct ShortPath : testing::Test {
  ShortPath() {
    char name[] = "/tmp/kiso_short_XXXXXX";
    folder = mkdtemp(name);
    chmod(folder.c_str(), 0700);
    setenv("XDG_RUNTIME_DIR", folder.c_str(), 1);
    fs::create_directories(folder + "/a b/絵  c");
    fs::create_directories(folder + "/plain");
  }
  ~ShortPath() override { fs::remove_all(folder); }
  std::string folder;
};

TEST_F(ShortPath, IsThePathItselfIfItHasNoBlank) {
  EXPECT_EQ(SHORT_PATH(folder + "/plain"), folder + "/plain");
  EXPECT_EQ(SHORT_PATH(folder + "/plain/"), folder + "/plain/");
  EXPECT_EQ(SHORT_PATH("/"), "/");
}

TEST_F(ShortPath, LeadsToTheSamePlaceWithoutABlank) {
  for (const std::string& path : {folder + "/a b", folder + "/a b/絵  c"}) {
    const std::string found = SHORT_PATH(path);
    EXPECT_EQ(found.find(' '), std::string::npos) << found;
    EXPECT_TRUE(fs::equivalent(found, path));
    EXPECT_EQ(SHORT_PATH(path), found);  // one link for one path
  }
  EXPECT_NE(SHORT_PATH(folder + "/a b"), SHORT_PATH(folder + "/a b/絵  c"));
}

TEST_F(ShortPath, KeepsASeparatorAtTheEnd) {
  const std::string path = folder + "/a b/";
  EXPECT_EQ(SHORT_PATH(path), SHORT_PATH(folder + "/a b") + "/");
  EXPECT_TRUE(fs::equivalent(SHORT_PATH(path), path));
}

TEST_F(ShortPath, OfWhatDoesNotExistIsEmpty) {
  EXPECT_EQ(SHORT_PATH(folder + "/missing"), "");
  EXPECT_EQ(SHORT_PATH(folder + "/a b/missing/"), "");
  EXPECT_EQ(SHORT_PATH(""), "");
}

TEST_F(ShortPath, ALinkThatLeadsElsewhereIsMadeAnew) {
  const std::string link = SHORT_PATH(folder + "/a b");
  fs::remove(link);
  fs::create_symlink(folder + "/plain", link);
  EXPECT_EQ(SHORT_PATH(folder + "/a b"), link);
  EXPECT_TRUE(fs::equivalent(link, folder + "/a b"));
}

}  // namespace
