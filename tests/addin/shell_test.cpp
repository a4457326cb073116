// A command line becomes one program and its arguments, whatever stands in it.
#include "platform/forms/shell.h"

#include <stdlib.h>

#include <csignal>

#include "addin/addin_test.h"

namespace kiso {
namespace {

struct ShellLine : AddinTest {
  // Writes its arguments into the file `args`, each in angle brackets.
  ShellLine()
      : brackets(program("brackets", "{ for a; do printf '<%s>' \"$a\"; done; } > \"$(dirname \"$0\")/args\"")) {}

  static bool run(const std::string& line) {
    int process = 0;
    if (error_of([&] { process = forms::Shell(line); }) != 0) return false;
    while (!forms::WaitForProgram(process, 1000)) {
    }
    return true;
  }
  std::string args_of(const std::string& rest) const {
    put("args", "not run");
    EXPECT_TRUE(run(brackets + rest));
    return get("args");
  }
  const std::string brackets;
};

TEST_F(ShellLine, IsCutAtEverySingleBlank) {
  EXPECT_EQ(args_of(""), "");
  EXPECT_EQ(args_of(" "), "");
  EXPECT_EQ(args_of(" a"), "<a>");
  EXPECT_EQ(args_of(" a bc d"), "<a><bc><d>");
  EXPECT_EQ(args_of("  a   b "), "<><a><><><b><>");
  EXPECT_EQ(args_of(" a\tb　c\nd"), "<a\tb　c\nd>");
}

TEST_F(ShellLine, ComesBackFromItsArgumentsByteForByte) {
  const std::string join = program("join", "IFS=' '; printf %s \"$*\" > \"$(dirname \"$0\")/args\"");
  for (const std::string rest :
       {"a", "read  x   y ", " leading", "絵 \"q\" 'r' $(x) `y`; \\z|&<>*?[]{}~#!%", "\xFF\xFE \x81"}) {
    EXPECT_TRUE(run(join + " " + rest));
    EXPECT_EQ(get("args"), rest);
  }
}

TEST_F(ShellLine, NothingInItIsACommand) {
  const std::string touched = APP_PATH + "/touched";
  for (const std::string word : {";touch T", "$(touch T)", "`touch T`", "|touch T", "&& touch T", "\ntouch T",
                                 "'; touch T; '", "\"$(touch T)\"", ">T", "> T", "$IFS", "*", "~"}) {
    std::string rest = " x" + word;
    for (size_t at = rest.find('T'); at != std::string::npos; at = rest.find('T', at + touched.size()))
      rest.replace(at, 1, touched);
    std::string expected = "<x" + rest.substr(2) + ">";
    for (size_t at = expected.find(' '); at != std::string::npos; at = expected.find(' '))
      expected.replace(at, 1, "><");
    EXPECT_EQ(args_of(rest), expected);
    EXPECT_FALSE(std::filesystem::exists(touched)) << rest;
  }
}

TEST_F(ShellLine, TakesTheLongestBeginningThatIsAProgram) {
  std::filesystem::create_directory(APP_PATH + "/a b");
  const std::string blanks = program("a b/my  program", "printf '<%s>' \"$@\" > \"$(dirname \"$0\")/../args\"");
  program("a", "printf beside > \"$(dirname \"$0\")/args\"");
  program("a b/my", "printf shorter > \"$(dirname \"$0\")/../args\"");
  EXPECT_TRUE(run(blanks + " x y"));
  EXPECT_EQ(get("args"), "<x><y>");
  // A folder and a file that may not be executed are no programs.
  put("a b/my  program z", "not a program");
  std::filesystem::create_directory(blanks + " z y");
  EXPECT_TRUE(run(blanks + " z y"));
  EXPECT_EQ(get("args"), "<z><y>");
  // Nor is a beginning that ends within a word.
  EXPECT_TRUE(run(APP_PATH + "/a b/my programs"));
  EXPECT_EQ(get("args"), "shorter");
}

TEST_F(ShellLine, FindsItsProgramHoweverLongTheRest) {
  EXPECT_EQ(args_of(" " + std::string(5000, ' ')).size(), 2U * 5001);
  EXPECT_EQ(args_of(" " + std::string(100000, 'x')).size(), 100002U);
  EXPECT_EQ(error_of([] { forms::Shell(std::string(100000, ' ') + "x"); }), 53);
}

TEST_F(ShellLine, FindsANameWithoutASlashInPathAlone) {
  std::filesystem::create_directory(APP_PATH + "/bin");
  program("bin/only-there", "printf found > \"$(dirname \"$0\")/../args\"");
  const std::string path = getenv("PATH");
  EXPECT_FALSE(run("only-there"));
  setenv("PATH", ("/no/such/folder:" + APP_PATH + "/bin:" + path).c_str(), 1);
  EXPECT_TRUE(run("only-there x"));
  EXPECT_EQ(get("args"), "found");
  // An empty entry is not the working directory.
  const auto old = std::filesystem::current_path();
  std::filesystem::current_path(APP_PATH + "/bin");
  setenv("PATH", (":" + path + "::").c_str(), 1);
  EXPECT_FALSE(run("only-there"));
  EXPECT_TRUE(run("./only-there"));
  std::filesystem::current_path(old);
  setenv("PATH", path.c_str(), 1);
}

TEST_F(ShellLine, WithoutAProgramIsError53) {
  put("plain", "no program");
  program("empty", "");
  put("empty", "");  // may be executed, and is nothing
  for (const std::string& line :
       {std::string(), std::string(" "), std::string("  x"), APP_PATH, APP_PATH + "/plain x", APP_PATH + "/empty",
        brackets + std::string(1, '\0') + "x", std::string("\"") + brackets + "\""})
    EXPECT_EQ(error_of([&] { forms::Shell(line); }), 53) << line;
  EXPECT_TRUE(desk.records.empty());
}

TEST_F(ShellLine, TheProgramReadsNothingOfOursAndSpeaksOnOurErrors) {
  const std::string talk = program("talk", "wc -c; echo told");
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  EXPECT_TRUE(run(talk));
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "0\ntold\n");
}

TEST_F(ShellLine, AWaitEndsAfterItsTime) {
  const int process = forms::Shell("sleep 5");
  EXPECT_FALSE(forms::WaitForProgram(process, 20));
  kill(process, SIGKILL);
  EXPECT_TRUE(forms::WaitForProgram(process, 5000));
  EXPECT_TRUE(forms::WaitForProgram(process, 5000));  // there is no such process any more
}

}  // namespace
}  // namespace kiso
