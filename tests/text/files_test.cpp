#include "platform/text/files.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "platform/error.h"
#include "platform/text/paths.h"

namespace {

using namespace text;
namespace fs = std::filesystem;

template <class F>
int error_of(F f) {
  try {
    f();
  } catch (const RuntimeError& e) {
    return e.number;
  }
  return 0;
}

struct Files : testing::Test {
  void SetUp() override {
    char name[] = "/tmp/kiso_text_XXXXXX";
    folder = std::string(mkdtemp(name)) + PATH_SEP;
  }
  void TearDown() override { fs::remove_all(folder); }

  void put(const std::string& name, const std::string& bytes) {
    std::ofstream(folder + name, std::ios::binary) << bytes;
  }
  std::string get(const std::string& name) {
    std::ifstream in(folder + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
  size_t count() { return static_cast<size_t>(std::distance(fs::directory_iterator(folder), {})); }

  // Permissions bind the superuser's effective user alone.
  void give_up_rights() {
    if (geteuid() != 0) return;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
      ASSERT_EQ(chown(entry.path().c_str(), 65534, 65534), 0);
    }
    ASSERT_EQ(chown(folder.c_str(), 65534, 65534), 0);
    ASSERT_EQ(seteuid(65534), 0);
  }
  void take_rights_back() {
    if (getuid() == 0) {
      ASSERT_EQ(seteuid(0), 0);
    }
  }

  std::string folder;
};

TEST_F(Files, LinesGoOutAndComeBack) {
  Open(folder + "A.TXT", Mode::Output, 1);
  Print(1, "'コメント");
  Print(1, "");
  Print(1, "FEMD ,  1 ");
  Close(1);
  EXPECT_EQ(get("A.TXT"), "'コメント\r\n\r\nFEMD ,  1 \r\n");
  Open(folder + "A.TXT", Mode::Input, 1);
  EXPECT_EQ(LineInput(1), "'コメント");
  EXPECT_EQ(LineInput(1), "");
  EXPECT_EQ(LineInput(1), "FEMD ,  1 ");
  EXPECT_EQ(error_of([] { LineInput(1); }), 62);
  EXPECT_EQ(error_of([] { LineInput(1); }), 62);
  Close(1);
}

TEST_F(Files, TwoNumbersAtOnce) {
  put("A.TXT", "a\r\nb\r\n");
  Open(folder + "A.TXT", Mode::Input, 1);
  Open(folder + "B.TXT", Mode::Output, 2);
  Print(2, LineInput(1));
  Print(2, LineInput(1));
  Close(1);
  Close(2);
  EXPECT_EQ(get("B.TXT"), "a\r\nb\r\n");
}

TEST_F(Files, NumbersAreChecked) {
  put("A.TXT", "a\r\n");
  EXPECT_EQ(error_of([] { LineInput(1); }), 52);
  EXPECT_EQ(error_of([] { Print(1, "x"); }), 52);
  EXPECT_EQ(error_of([&] { Open(folder + "A.TXT", Mode::Input, 0); }), 52);
  EXPECT_EQ(error_of([&] { Open(folder + "A.TXT", Mode::Input, 512); }), 52);
  EXPECT_EQ(error_of([] { Close(1); }), 0);
  Open(folder + "A.TXT", Mode::Input, 1);
  EXPECT_EQ(error_of([&] { Open(folder + "A.TXT", Mode::Input, 1); }), 55);
  EXPECT_EQ(error_of([] { Print(1, "x"); }), 54);
  Close(1);
  EXPECT_EQ(error_of([] { LineInput(1); }), 52);
  Open(folder + "B.TXT", Mode::Output, 1);
  EXPECT_EQ(error_of([] { LineInput(1); }), 54);
}

TEST_F(Files, AFailedOpenLeavesTheNumberFree) {
  EXPECT_EQ(error_of([&] { Open(folder + "NONE.TXT", Mode::Input, 1); }), 53);
  EXPECT_EQ(error_of([&] { Open(folder + "A.TXT", Mode::Output, 1); }), 0);
}

TEST_F(Files, OpenTellsWhatIsWrong) {
  EXPECT_EQ(error_of([&] { Open(folder + "NONE.TXT", Mode::Input, 1); }), 53);
  EXPECT_EQ(error_of([&] { Open(folder + "NONE/A.TXT", Mode::Input, 1); }), 76);
  EXPECT_EQ(error_of([&] { Open(folder + "NONE/A.TXT", Mode::Output, 1); }), 76);
  EXPECT_EQ(error_of([&] { Open(folder, Mode::Input, 1); }), 75);
  EXPECT_EQ(error_of([&] { Open(folder, Mode::Output, 1); }), 75);
  EXPECT_EQ(error_of([&] { Open("", Mode::Input, 1); }), 75);
  EXPECT_EQ(error_of([&] { Open("", Mode::Output, 1); }), 75);
  EXPECT_EQ(error_of([&] { Open(folder + std::string(300, 'x'), Mode::Output, 1); }), 75);
  EXPECT_EQ(error_of([&] { Open(folder + std::string("A\0B", 3), Mode::Output, 1); }), 75);
  put("A.TXT", "");
  EXPECT_EQ(error_of([&] { Open(folder + "A.TXT/B.TXT", Mode::Input, 1); }), 76);
  EXPECT_EQ(error_of([&] { Open(folder + "A.TXT/B.TXT", Mode::Output, 1); }), 76);
}

TEST_F(Files, APipeDoesNotStopTheProgram) {
  ASSERT_EQ(mkfifo((folder + "PIPE").c_str(), 0600), 0);
  EXPECT_EQ(error_of([&] { Open(folder + "PIPE", Mode::Input, 1); }), 75);
  EXPECT_EQ(error_of([&] { Open(folder + "PIPE", Mode::Output, 1); }), 75);
  EXPECT_EQ(error_of([&] { FileCopy(folder + "PIPE", folder + "B"); }), 75);
}

TEST_F(Files, AFileTooLargeIsOutOfMemory) {
  put("A.TXT", "");
  ASSERT_EQ(truncate((folder + "A.TXT").c_str(), off_t{65} << 20), 0);
  EXPECT_EQ(error_of([&] { Open(folder + "A.TXT", Mode::Input, 1); }), 7);
}

TEST_F(Files, PermissionDenied) {
  put("A.TXT", "a\r\n");
  put("B.TXT", "b\r\n");
  put("C.TXT", "c\r\n");
  ASSERT_EQ(chmod((folder + "A.TXT").c_str(), 0), 0);
  ASSERT_EQ(chmod((folder + "B.TXT").c_str(), 0444), 0);
  give_up_rights();
  EXPECT_EQ(error_of([&] { Open(folder + "A.TXT", Mode::Input, 1); }), 70);
  EXPECT_EQ(error_of([&] { Open(folder + "B.TXT", Mode::Output, 1); }), 70);
  EXPECT_EQ(error_of([&] { FileCopy(folder + "A.TXT", folder + "D.TXT"); }), 70);
  EXPECT_EQ(error_of([&] { Replace(folder + "C.TXT", folder + "B.TXT"); }), 70);  // a file protected by its user
  ASSERT_EQ(chmod(folder.c_str(), 0555), 0);
  EXPECT_EQ(error_of([&] { Open(folder + "NEW.TXT", Mode::Output, 1); }), 70);
  EXPECT_EQ(error_of([&] { Kill(folder + "B.TXT"); }), 70);
  EXPECT_EQ(error_of([&] { Name(folder + "B.TXT", folder + "D.TXT"); }), 70);
  EXPECT_EQ(error_of([&] { Replace(folder + "C.TXT", folder + "D.TXT"); }), 70);
  EXPECT_EQ(error_of([&] { FileCopy(folder + "B.TXT", folder + "D.TXT"); }), 70);
  take_rights_back();
  ASSERT_EQ(chmod(folder.c_str(), 0755), 0);
}

TEST_F(Files, AnOutputShowsOnlyWhenItIsClosed) {
  put("A.TXT", "old\r\n");
  Open(folder + "A.TXT", Mode::Output, 1);
  Print(1, "new");
  EXPECT_EQ(get("A.TXT"), "old\r\n");
  EXPECT_EQ(count(), 1u);
  Close(1);
  EXPECT_EQ(get("A.TXT"), "new\r\n");
  EXPECT_EQ(count(), 1u);
}

TEST_F(Files, ANumberIsFreeBehindItsScopeAndNothingIsWritten) {
  put("A.TXT", "a\r\n");
  try {
    const NumberScope in(1), out(2);
    Open(folder + "A.TXT", Mode::Input, 1);
    Open(folder + "B.TXT", Mode::Output, 2);
    Print(2, LineInput(1));
    LineInput(1);
  } catch (const RuntimeError& e) {
    EXPECT_EQ(e.number, 62);
  }
  EXPECT_EQ(count(), 1u);
  EXPECT_EQ(error_of([] { LineInput(1); }), 52);
  EXPECT_EQ(error_of([] { Print(2, ""); }), 52);
}

TEST_F(Files, TheFileThatAnErrorInterruptsIsKnown) {
  put("A.TXT", "a\r\n");
  const auto read_on = [&] {
    const NumberScope in(1);
    Open(folder + "A.TXT", Mode::Input, 1);
    LineInput(1);
    if (Dir(folder + "A.TXT").empty()) return;
    throw RuntimeError(6);  // what its line says is no number of ours, say
  };
  EXPECT_EQ(error_of(read_on), 6);
  EXPECT_EQ(interrupted_file(), folder + "A.TXT");
  {
    const NumberScope in(1);
    Open(folder + "A.TXT", Mode::Input, 1);
  }
  EXPECT_EQ(interrupted_file(), "");
  EXPECT_EQ(error_of([&] { FileCopy(folder + "NONE.TXT", folder + "B.TXT"); }), 53);
  EXPECT_EQ(interrupted_file(), folder + "NONE.TXT");
  EXPECT_EQ(error_of([&] {
              const NumberScope in(1), out(2);
              Open(folder + "A.TXT", Mode::Input, 1);
              Open(folder + "B.TXT", Mode::Output, 2);
              throw RuntimeError(9);
            }),
            9);
  EXPECT_EQ(interrupted_file(), folder + "A.TXT");
}

// The limit on a file's size stands for the full disk.
TEST_F(Files, AFullDiskIsToldAndTheOldFileStands) {
  put("A.TXT", "old\r\n");
  put("LONG.TXT", std::string(5000, 'x'));
  signal(SIGXFSZ, SIG_IGN);
  const rlimit small{1000, RLIM_INFINITY};
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  Open(folder + "A.TXT", Mode::Output, 1);
  Print(1, std::string(5000, 'x'));
  EXPECT_EQ(error_of([] { Close(1); }), 61);
  EXPECT_EQ(error_of([&] { FileCopy(folder + "LONG.TXT", folder + "A.TXT"); }), 61);
  EXPECT_EQ(get("A.TXT"), "old\r\n");
  EXPECT_EQ(count(), 2u);
  EXPECT_EQ(error_of([&] { Open(folder + "B.TXT", Mode::Output, 1); }), 0);  // the number is free again
}

TEST_F(Files, TheNewFileKeepsTheOldOnesPermissionsAndLink) {
  put("A.TXT", "old\r\n");
  ASSERT_EQ(chmod((folder + "A.TXT").c_str(), 0640), 0);
  ASSERT_EQ(symlink("A.TXT", (folder + "LINK").c_str()), 0);
  Open(folder + "LINK", Mode::Output, 1);
  Print(1, "new");
  Close(1);
  EXPECT_TRUE(fs::is_symlink(folder + "LINK"));
  EXPECT_EQ(get("A.TXT"), "new\r\n");
  EXPECT_EQ(fs::status(folder + "A.TXT").permissions(), fs::perms{0640});
}

TEST_F(Files, EncodingFollowsTheFileThatIsReplaced) {
  put("OLD.TXT", "\x90\x46\r\n");
  EXPECT_EQ(encoding_of(folder + "OLD.TXT"), Encoding::cp932);
  EXPECT_EQ(encoding_of(folder + "NONE.TXT"), Encoding::utf8);
  Open(folder + "NEW.TXT", Mode::Output, 1, encoding_of(folder + "OLD.TXT"));
  Print(1, "色");
  Close(1);
  EXPECT_EQ(get("NEW.TXT"), "\x90\x46\r\n");
  Open(folder + "NEW.TXT", Mode::Input, 1);
  EXPECT_EQ(LineInput(1), "色");
}

TEST_F(Files, DirGivesTheNameOfAFile) {
  put("A 色.TXT", "");
  ASSERT_EQ(mkdir((folder + "SUB").c_str(), 0755), 0);
  EXPECT_EQ(Dir(folder + "A 色.TXT"), "A 色.TXT");
  EXPECT_EQ(Dir(folder + "a 色.txt"), "");
  EXPECT_EQ(Dir(folder + "B.TXT"), "");
  EXPECT_EQ(Dir(folder + "SUB"), "");
  EXPECT_EQ(Dir(folder), "");
  EXPECT_EQ(Dir(""), "");
  EXPECT_EQ(Dir(folder + "NONE/B.TXT"), "");
  EXPECT_EQ(Dir(folder + std::string("A 色.TXT\0", 10)), "");
}

TEST_F(Files, KillRemovesAFile) {
  put("A.TXT", "");
  Kill(folder + "A.TXT");
  EXPECT_EQ(count(), 0u);
  EXPECT_EQ(error_of([&] { Kill(folder + "A.TXT"); }), 53);
  EXPECT_EQ(error_of([&] { Kill(folder + "NONE/A.TXT"); }), 76);
  EXPECT_EQ(error_of([&] { Kill(folder); }), 75);
}

TEST_F(Files, FileCopyCopiesEveryByte) {
  const std::string bytes("\x00\r\n\xFF\x90\x46\xE3", 7);
  put("A.TXT", bytes);
  FileCopy(folder + "A.TXT", folder + "B.TXT");
  EXPECT_EQ(get("B.TXT"), bytes);
  put("B.TXT", "a longer text");
  FileCopy(folder + "A.TXT", folder + "B.TXT");
  EXPECT_EQ(get("B.TXT"), bytes);
  FileCopy(folder + "A.TXT", folder + "A.TXT");
  EXPECT_EQ(get("A.TXT"), bytes);
  EXPECT_EQ(count(), 2u);
}

TEST_F(Files, FileCopyTellsWhatIsWrong) {
  put("A.TXT", "a");
  EXPECT_EQ(error_of([&] { FileCopy(folder + "NONE.TXT", folder + "B.TXT"); }), 53);
  EXPECT_EQ(error_of([&] { FileCopy(folder + "A.TXT", folder + "NONE/B.TXT"); }), 76);
  EXPECT_EQ(error_of([&] { FileCopy(folder + "A.TXT", folder); }), 75);
  EXPECT_EQ(error_of([&] { FileCopy(folder, folder + "B.TXT"); }), 75);
  EXPECT_EQ(count(), 1u);
}

TEST_F(Files, ACopyOfAProtectedTemplateCanBeWritten) {
  put("DEFAULT.CNF", "x");
  ASSERT_EQ(chmod((folder + "DEFAULT.CNF").c_str(), 0444), 0);
  FileCopy(folder + "DEFAULT.CNF", folder + "KISO.CNF");
  EXPECT_NE(fs::status(folder + "KISO.CNF").permissions() & fs::perms::owner_write, fs::perms::none);
}

TEST_F(Files, NameDoesNotReplace) {
  put("A.TXT", "a");
  put("B.TXT", "b");
  EXPECT_EQ(error_of([&] { Name(folder + "A.TXT", folder + "B.TXT"); }), 58);
  EXPECT_EQ(get("B.TXT"), "b");
  Name(folder + "A.TXT", folder + "C.TXT");
  EXPECT_EQ(get("C.TXT"), "a");
  EXPECT_EQ(count(), 2u);
  EXPECT_EQ(error_of([&] { Name(folder + "A.TXT", folder + "D.TXT"); }), 53);
  EXPECT_EQ(error_of([&] { Name(folder + "C.TXT", folder + "NONE/D.TXT"); }), 76);
}

TEST_F(Files, ReplaceTakesTheNameInOneStep) {
  put("A.TMP", "new");
  put("A.TXT", "old");
  ASSERT_EQ(chmod((folder + "A.TXT").c_str(), 0600), 0);
  Replace(folder + "A.TMP", folder + "A.TXT");
  EXPECT_EQ(get("A.TXT"), "new");
  EXPECT_EQ(fs::status(folder + "A.TXT").permissions(), fs::perms{0600});
  EXPECT_EQ(count(), 1u);
  EXPECT_EQ(error_of([&] { Replace(folder + "A.TMP", folder + "A.TXT"); }), 53);
  EXPECT_EQ(error_of([&] { Replace(folder + "A.TXT", folder); }), 75);
  EXPECT_EQ(get("A.TXT"), "new");
}

}  // namespace
