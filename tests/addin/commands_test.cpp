// Temporary names, command templates, and the wait for a program.
#include <signal.h>
#include <sys/wait.h>

#include <chrono>

#include "addin/addin_test.h"

namespace kiso {
namespace {

struct Commands : AddinTest {
  Commands() { std::filesystem::create_directory(APP_PATH + "/A B"); }
  static std::string expanded(const std::string& command) {
    std::string result = "old";
    EXPAND_COMMAND(command, "/t/GT090507.BMP", result);
    return result;
  }
};

TEST_F(Commands, TemporaryNamesComeFromTheClock) {
  std::string name = "old";
  TEMP_NAME("/a b/GT", "BMP", name);
  EXPECT_EQ(name, "/a b/GT090507.BMP");
}

// Another run, until it is told to end.
struct OtherRun {
  explicit OtherRun(void (*run)()) {
    int ready[2];
    EXPECT_EQ(pipe(ready), 0);
    process = fork();
    if (process == 0) {
      run();
      if (write(ready[1], "", 1) == 1) pause();
      _exit(0);
    }
    char byte = 0;
    EXPECT_EQ(read(ready[0], &byte, 1), 1);
  }
  ~OtherRun() { end(); }
  OtherRun(const OtherRun&) = delete;
  OtherRun& operator=(const OtherRun&) = delete;
  void end() {
    if (process > 0) kill(process, SIGKILL);
    if (process > 0) waitpid(process, nullptr, 0);
    process = 0;
  }
  pid_t process;
};

void take_name() {
  std::string name;
  TEMP_NAME(APP_PATH + "/GT", "BMP", name);
}

TEST_F(Commands, ANameThatAnotherRunHoldsIsPassedOverUntilThatRunIsDone) {
  const auto name = [](const char* extension) {
    std::string result;
    TEMP_NAME(APP_PATH + "/GT", extension, result);
    return result.substr(APP_PATH.size());
  };
  OtherRun first(take_name), second(take_name);
  EXPECT_EQ(name("BMP"), "/GT090509.BMP");
  EXPECT_EQ(name("BMP"), "/GT090509.BMP") << "what this run holds itself does not count";
  EXPECT_EQ(name("TXT"), "/GT090507.TXT") << "only that very name";
  first.end();
  EXPECT_EQ(name("BMP"), "/GT090507.BMP");
  OtherRun done([] { take_name(), TEMP_FREE(); });
  EXPECT_EQ(name("BMP"), "/GT090507.BMP");
}

TEST_F(Commands, TheNameBehindTheLastSecondOfTheDayIsItsFirst) {
  desk.time = "23:59:59";
  const OtherRun other(take_name);
  std::string name;
  TEMP_NAME(APP_PATH + "/GT", "BMP", name);
  EXPECT_EQ(name, APP_PATH + "/GT000000.BMP");
}

TEST_F(Commands, NothingCanBeDroppedWhileAProgramRuns) {
  const std::string slow = program("slow", "sleep 0.7");
  desk.at_event_round = [] { EXPECT_FALSE(P_WIN.TakesFiles()); };
  RUN_AND_WAIT(slow);
  EXPECT_GE(desk.event_rounds, 1);
  EXPECT_TRUE(P_WIN.TakesFiles());
}

TEST_F(Commands, TokensAreReplacedAndAllElseIsCopied) {
  PIC_FILE = "/pictures/絵 一.BMP";
  EXPECT_EQ(expanded("-p %GP -t %FN -o %ON"), "-p " + APP_PATH + " -t /t/GT090507.BMP -o /pictures/絵 一.BMP");
  EXPECT_EQ(expanded("%OF.png"), "/pictures/絵 一.png");
  EXPECT_EQ(expanded("%fn %F N %X %"), "%fn %F N %X %");
  EXPECT_EQ(expanded("日本語 %FN"), "日本語 /t/GT090507.BMP");
  EXPECT_EQ(expanded(""), "");
}

TEST_F(Commands, ATokenAtTheEndIsMatchedAndHalfOfOneIsCopied) {
  PIC_FILE = "/a.BMP";
  EXPECT_EQ(expanded("x%ON"), "x/a.BMP");
  EXPECT_EQ(expanded("x%O"), "x%O");
  EXPECT_EQ(expanded("%%ON"), "%/a.BMP");  // two percents mean nothing here
}

TEST_F(Commands, AReplacementIsNotExpandedAgain) {
  PIC_FILE = "/%FN.BMP";
  EXPECT_EQ(expanded("%ON"), "/%FN.BMP");
}

TEST_F(Commands, AnEmptyPictureNameExpandsToNothing) {
  PIC_FILE = "";
  EXPECT_EQ(expanded("[%ON][%SO]"), "[][]");
  EXPECT_EQ(error_of([] { expanded("%OF"); }), 5);
  PIC_FILE = "abc";
  EXPECT_EQ(error_of([] { expanded("%OF"); }), 5);
  PIC_FILE = "絵.BM";  // characters count, not bytes
  EXPECT_EQ(expanded("[%OF]"), "[]");
}

TEST_F(Commands, TheShortDirectoryHasNoBlanksAndTheNameStaysLong) {
  PIC_FILE = APP_PATH + "/A B/X Y.BMP";
  const std::string name = expanded("%SO");
  const size_t slash = name.rfind('/');
  EXPECT_EQ(name.substr(slash), "/X Y.BMP");
  EXPECT_EQ(name.find(' '), slash + 2);
  put("A B/X Y.BMP", "picture");
  EXPECT_TRUE(std::filesystem::equivalent(name, PIC_FILE));
  PIC_FILE = "/tmp/X Y.BMP";
  EXPECT_EQ(expanded("%SO"), "/tmp/X Y.BMP");
  PIC_FILE = "/X.BMP";
  EXPECT_EQ(expanded("%SO"), "/X.BMP");
  PIC_FILE = "X Y.BMP";  // no directory, no name
  EXPECT_EQ(expanded("[%SO]"), "[]");
}

TEST_F(Commands, TheRunIsWaitedForWhileEventsRun) {
  const std::string slow = program("slow", "sleep 0.7; echo done > \"$1\"");
  EXPECT_TRUE(RUN_AND_WAIT(slow + " " + APP_PATH + "/out"));
  EXPECT_EQ(get("out"), "done\n");
  EXPECT_GE(desk.event_rounds, 1);
  EXPECT_LE(desk.event_rounds, 4);  // five times a second, not in a spin
  EXPECT_EQ(desk.records, std::vector<std::string>{"shell " + slow + " " + APP_PATH + "/out"});
}

TEST_F(Commands, AShortRunCostsNoPeriodOfTheWait) {
  using Clock = std::chrono::steady_clock;
  auto shortest = Clock::duration::max();
  for (int i = 0; i < 10; ++i) {
    const auto begin = Clock::now();
    EXPECT_TRUE(RUN_AND_WAIT("true"));
    shortest = std::min(shortest, Clock::now() - begin);
  }
  EXPECT_LT(shortest, std::chrono::milliseconds(100));
}

TEST_F(Commands, NothingIsLeftOfAProgramThatHasEnded) {
  RUN_AND_WAIT("true");
  RUN_AND_WAIT(program("killed", "kill -9 $$"));
  EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
}

TEST_F(Commands, TheExitCodeIsNotLookedAt) {
  EXPECT_TRUE(RUN_AND_WAIT("false"));
  EXPECT_TRUE(desk.boxes.empty());
}

TEST_F(Commands, AMissingProgramIsTold) {
  EXPECT_FALSE(RUN_AND_WAIT(APP_PATH + "/missing x"));
  ASSERT_EQ(desk.boxes.size(), 1u);
  EXPECT_EQ(desk.boxes[0].text, "Add_Inプログラムが見つかりません");
  EXPECT_EQ(desk.boxes[0].style, 0);
  EXPECT_EQ(desk.boxes[0].title, "");
  EXPECT_TRUE(desk.records.empty());
}

}  // namespace
}  // namespace kiso
