#include "platform/disk/lock.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>

#include "platform/disk/disk.h"

namespace {

namespace fs = std::filesystem;

struct Locks : testing::Test {
  void SetUp() override {
    char name[] = "/tmp/kiso_lock_XXXXXX";
    folder = mkdtemp(name);
  }
  void TearDown() override { fs::remove_all(folder); }
  std::string folder;
};

// Each of several processes adds one to a number in a file, again and again; without the lock some get lost.
TEST_F(Locks, OneProcessAtATimeInAFolder) {
  disk::write_whole(folder + "/N", "0");
  for (int process = 0; process < 4; ++process) {
    if (fork() != 0) continue;
    for (int i = 0; i < 25; ++i) {
      const disk::FolderLock lock(folder);
      const disk::FolderLock again(folder);
      disk::write_whole(folder + "/N", std::to_string(std::stoi(disk::read_whole(folder + "/N")) + 1));
    }
    _exit(0);
  }
  while (wait(nullptr) > 0) {
  }
  EXPECT_EQ(disk::read_whole(folder + "/N"), "100");
  EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 1) << "the lock leaves no file";
}

TEST_F(Locks, AStoppedProcessDoesNotStopTheOthers) {
  int ready[2];
  ASSERT_EQ(pipe(ready), 0);
  const pid_t child = fork();
  if (child == 0) {
    const disk::FolderLock lock(folder);
    if (write(ready[1], "", 1) == 1) pause();
    _exit(0);
  }
  char byte = 0;
  ASSERT_EQ(read(ready[0], &byte, 1), 1);
  const auto begin = std::chrono::steady_clock::now();
  { const disk::FolderLock lock(folder); }
  const auto waited = std::chrono::steady_clock::now() - begin;
  EXPECT_GE(waited, std::chrono::seconds(1));
  EXPECT_LT(waited, std::chrono::seconds(20));
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
}

TEST_F(Locks, AFolderThatIsNotThereIsNoError) { const disk::FolderLock lock(folder + "/none"); }

TEST_F(Locks, AByteHasOneHolder) {
  const std::string file = folder + "/LOCK";
  disk::ByteLock first(file, 5);
  EXPECT_TRUE(first.held());
  EXPECT_FALSE(disk::ByteLock(file, 5).held());
  EXPECT_TRUE(disk::ByteLock(file, 6).held());
  first = disk::ByteLock();
  EXPECT_TRUE(disk::ByteLock(file, 5).held());
  EXPECT_TRUE(disk::ByteLock(folder + "/none/LOCK", 5).held()) << "no file, no lock";
}

}  // namespace
