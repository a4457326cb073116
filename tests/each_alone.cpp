// The main of the test programs: each test runs in a process of its own, so that globals start fresh and a crash or a
// hang is the failure of that test alone. The process is forked before anything of the test or of Qt exists; that is
// cheaper than a start of the program under sanitizers.
//
// Prints a line for each test: passed|FAILED SECONDS PROGRAM.SUITE.NAME, and for a failed one what it has said before.
// --gtest_filter chooses; with --gtest_break_on_failure all runs in this process, for a debugger.
#include <fnmatch.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sstream>
#include <string>

namespace {

constexpr unsigned LIMIT_SECONDS = 120;

bool fits_any(const std::string& patterns, const std::string& name) {
  std::istringstream in(patterns);
  for (std::string pattern; std::getline(in, pattern, ':');) {
    if (fnmatch(pattern.c_str(), name.c_str(), 0) == 0) return true;
  }
  return false;
}

// A filter of GoogleTest: PATTERN[:PATTERN...][-PATTERN[:PATTERN...]]
bool chosen(const std::string& filter, const std::string& name) {
  const size_t dash = filter.find('-');
  const std::string wanted = filter.substr(0, dash);
  const std::string unwanted = dash == std::string::npos ? "" : filter.substr(dash + 1);
  return (wanted.empty() || fits_any(wanted, name)) && !fits_any(unwanted, name);
}

[[noreturn]] void run_here(const std::string& name, FILE* said) {
  dup2(fileno(said), STDOUT_FILENO);
  dup2(fileno(said), STDERR_FILENO);
  alarm(LIMIT_SECONDS);
  GTEST_FLAG_SET(filter, name);
  std::exit(RUN_ALL_TESTS());
}

void copy_to_output(FILE* said) {
  std::rewind(said);
  char piece[4096];
  while (const size_t n = std::fread(piece, 1, sizeof piece, said)) std::fwrite(piece, 1, n, stdout);
}

// In a process of its own; true if it passed.
bool run_alone(const std::string& program, const std::string& name) {
  FILE* said = std::tmpfile();
  std::fflush(nullptr);  // else the child prints it once more
  const auto begin = std::chrono::steady_clock::now();
  const pid_t child = fork();
  if (child == 0) run_here(name, said);
  int status = -1;
  if (child > 0) waitpid(child, &status, 0);
  const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
  const bool passed = status == 0;
  if (!passed) copy_to_output(said);
  if (WIFSIGNALED(status)) std::printf("ended by signal: %s\n", strsignal(WTERMSIG(status)));
  std::printf("%s %.2f %s.%s\n", passed ? "passed" : "FAILED", took.count(), program.c_str(), name.c_str());
  std::fclose(said);
  return passed;
}

// PROGRAM is the name of the program without its folder and "_tests".
std::string program_name(const char* path) {
  const std::string name = std::strrchr(path, '/') ? std::strrchr(path, '/') + 1 : path;
  return name.substr(0, name.rfind("_tests"));
}

int run_each(const std::string& program) {
  const testing::UnitTest& all = *testing::UnitTest::GetInstance();
  const std::string filter = GTEST_FLAG_GET(filter);
  int run = 0;
  int failed = 0;
  for (int s = 0; s < all.total_test_suite_count(); ++s) {
    const testing::TestSuite& suite = *all.GetTestSuite(s);
    for (int t = 0; t < suite.total_test_count(); ++t) {
      const std::string name = std::string(suite.name()) + "." + suite.GetTestInfo(t)->name();
      if (!chosen(filter, name)) continue;
      ++run;
      failed += !run_alone(program, name);
    }
  }
  return run > 0 && failed == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (GTEST_FLAG_GET(list_tests) || GTEST_FLAG_GET(break_on_failure)) return RUN_ALL_TESTS();
  return run_each(program_name(argv[0]));
}
