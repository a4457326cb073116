#include "platform/disk/new_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "platform/disk/disk.h"
#include "platform/error.h"

namespace {

using disk::NewFile;
using disk::Place;
namespace fs = std::filesystem;

struct Files : testing::Test {
  void SetUp() override {
    char name[] = "/tmp/kiso_disk_XXXXXX";
    folder = std::string(mkdtemp(name)) + "/";
  }
  void TearDown() override { fs::remove_all(folder); }

  void put(const std::string& name, const std::string& bytes) const {
    std::ofstream(folder + name, std::ios::binary) << bytes;
  }
  std::string get(const std::string& name) const {
    std::ifstream in(folder + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
  std::vector<std::string> names() const {
    std::vector<std::string> out;
    for (const auto& entry : fs::directory_iterator(folder)) out.push_back(entry.path().filename());
    std::sort(out.begin(), out.end());
    return out;
  }
  using Names = std::vector<std::string>;
  std::string folder;
};

struct BothPlaces : Files, testing::WithParamInterface<Place> {
  void save(const std::string& name, const std::string& bytes) const {
    NewFile file(folder + name, GetParam());
    file.write(bytes.data(), bytes.size());
    file.take_its_name();
  }
};
INSTANTIATE_TEST_SUITE_P(NewFile, BothPlaces, testing::Values(Place::without_a_name_if_possible, Place::temporary_name),
                         [](const auto& info) {
                           return info.param == Place::temporary_name ? "TemporaryName" : "WithoutAName";
                         });

int error_of(auto f) {
  try {
    f();
  } catch (const RuntimeError& e) {
    return e.number;
  }
  return 0;
}

// A process that does something until it is killed.
pid_t in_another_process(auto run) {
  const pid_t child = fork();
  if (child != 0) return child;
  error_of(run);
  for (;;) pause();
}
void kill_and_wait(pid_t child) {
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
}

TEST_P(BothPlaces, TheNameComesWithTheWholeFile) {
  put("A", "old");
  {
    NewFile file(folder + "A", GetParam());
    file.write("ne", 2);
    file.write("w", 1);
    EXPECT_EQ(get("A"), "old");
    file.take_its_name();
    EXPECT_EQ(get("A"), "new");
  }
  EXPECT_EQ(names(), Names{"A"});
}

TEST_P(BothPlaces, WhatIsGivenUpLeavesNothing) {
  put("A", "old");
  { NewFile(folder + "A", GetParam()).write("new", 3); }
  { NewFile(folder + "B", GetParam()).write("new", 3); }
  EXPECT_EQ(get("A"), "old");
  EXPECT_EQ(names(), Names{"A"});
}

TEST_P(BothPlaces, ModeOwnerAndGroupStay) {
  for (const mode_t mode : {0600u, 0640u, 0666u, 0751u}) {
    put("A", "old");
    ASSERT_EQ(chmod((folder + "A").c_str(), mode), 0);
    const bool given = chown((folder + "A").c_str(), 12345, 12346) == 0;  // root alone can
    save("A", "new");
    struct stat now {};
    ASSERT_EQ(stat((folder + "A").c_str(), &now), 0);
    EXPECT_EQ(now.st_mode & 07777u, mode);
    EXPECT_EQ(now.st_uid, given ? 12345 : geteuid());
    EXPECT_EQ(now.st_gid, given ? 12346 : getegid());
  }
}

TEST_P(BothPlaces, ANewFileHasTheUsualMode) {
  umask(027);
  save("A", "new");
  EXPECT_EQ(fs::status(folder + "A").permissions(), fs::perms{0640});
}

TEST_P(BothPlaces, ALinkStaysAndItsFileIsReplaced) {
  fs::create_directory(folder + "sub");
  put("sub/A", "old");
  fs::create_symlink("sub/A", folder + "near");
  fs::create_symlink(folder + "near", folder + "far");
  fs::create_symlink("sub/B", folder + "to_nothing");
  save("far", "new");
  save("to_nothing", "first");
  EXPECT_EQ(get("sub/A"), "new");
  EXPECT_EQ(get("sub/B"), "first");
  for (const char* link : {"near", "far", "to_nothing"}) EXPECT_TRUE(fs::is_symlink(folder + link)) << link;
}

TEST_P(BothPlaces, AFullDiskIsToldAndTheOldFileStands) {
  put("A", "old");
  signal(SIGXFSZ, SIG_IGN);
  const rlimit small{1000, RLIM_INFINITY};  // stands for the full disk
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  EXPECT_EQ(error_of([&] { save("A", std::string(1001, 'x')); }), 61);
  EXPECT_EQ(get("A"), "old");
  EXPECT_EQ(names(), Names{"A"});
  EXPECT_EQ(error_of([&] { save("A", std::string(1000, 'x')); }), 0);
}

TEST_P(BothPlaces, AFileInAnothersFolderIsRefused) {
  put("A", "old");
  ASSERT_EQ(chmod((folder + "A").c_str(), 0666), 0);
  ASSERT_EQ(chmod(folder.c_str(), 0555), 0);
  const bool root = geteuid() == 0;
  if (root) ASSERT_EQ(seteuid(65534), 0);
  EXPECT_EQ(error_of([&] { save("A", "new"); }), 70);
  EXPECT_EQ(error_of([&] { save("B", "new"); }), 70);
  if (root) ASSERT_EQ(seteuid(0), 0);
  EXPECT_EQ(get("A"), "old");
  EXPECT_EQ(names(), Names{"A"});
}

TEST_F(Files, AKillWhileAFileWithoutANameIsWrittenLeavesNothing) {
  put("A", "old");
  const std::string bytes(1 << 20, 'x');
  for (int i = 0; i < 100; ++i) {
    const pid_t child = in_another_process([&] {
      for (;;) {
        NewFile file(folder + "A");
        for (int n = 0; n < 1000; ++n) file.write(bytes.data(), bytes.size());
      }
    });
    usleep(static_cast<useconds_t>(100 * i));
    kill_and_wait(child);
    ASSERT_EQ(names(), Names{"A"}) << "kill " << i;
  }
  EXPECT_EQ(get("A"), "old");
}

// Kills at any moment of many saves: what one of them leaves in its last step is gone with the next save.
TEST_P(BothPlaces, TheNextSaveRemovesWhatAKillHasLeft) {
  for (int i = 0; i < 100; ++i) {
    const pid_t child = in_another_process([&] {
      for (;;) save("A", std::string(5000, 'x'));
    });
    usleep(static_cast<useconds_t>(3000 + 37 * i));
    kill_and_wait(child);
    save("B", "new");
    ASSERT_LE(names().size(), 2u) << "kill " << i;
  }
  EXPECT_EQ(get("A"), std::string(5000, 'x'));
}

TEST_F(Files, WhatALiveProcessWritesIsNotRemoved) {
  int ready[2];
  ASSERT_EQ(pipe(ready), 0);
  const pid_t child = in_another_process([&] {
    static NewFile file(folder + "A", Place::temporary_name);
    if (write(ready[1], "", 1) != 1) _exit(1);
  });
  char byte = 0;
  ASSERT_EQ(read(ready[0], &byte, 1), 1);
  disk::write_whole(folder + "B", "b");
  const Names during = names();
  ASSERT_EQ(during.size(), 2u);
  EXPECT_EQ(during[0], ".kiso-" + std::to_string(child) + "-0.tmp");
  kill_and_wait(child);
  disk::write_whole(folder + "B", "b");
  EXPECT_EQ(names(), Names{"B"});
}

TEST_F(Files, ANameThatIsTakenIsPassedOver) {
  const std::string mine = ".kiso-" + std::to_string(getpid()) + "-0.tmp";
  for (const Place place : {Place::without_a_name_if_possible, Place::temporary_name}) {
    put(mine, "of a live process in another container");
    const int other = open((folder + mine).c_str(), O_RDONLY);
    ASSERT_EQ(flock(other, LOCK_EX), 0);
    {
      NewFile file(folder + "A", place);
      file.write("new", 3);
      file.take_its_name();
    }
    EXPECT_EQ(get("A"), "new");
    EXPECT_EQ(get(mine), "of a live process in another container");
    close(other);
  }
}

TEST_F(Files, OnlyNamesOfOursAreRemoved) {
  const Names others = {".kiso-.tmp", ".kiso-1-0.tmp.txt", ".kiso-mine.tmp", "kiso-1-0.tmp"};
  for (const std::string& name : others) put(name, "");
  fs::create_directory(folder + ".kiso-1-0.tmp");
  fs::create_symlink(".kiso-mine.tmp", folder + ".kiso-2-0.tmp");
  put(".kiso-3-0.tmp", "");
  disk::write_whole(folder + "A", "a");
  EXPECT_EQ(names(), (Names{".kiso-.tmp", ".kiso-1-0.tmp", ".kiso-1-0.tmp.txt", ".kiso-2-0.tmp", ".kiso-mine.tmp", "A",
                            "kiso-1-0.tmp"}));
}

TEST_F(Files, CheckWritableTellsWhatTheWriterWould) {
  put("A", "");
  fs::create_symlink("loop", folder + "loop");
  for (const std::string& path : {std::string(), folder, folder + "new/", folder + "none/A", folder + "A/B",
                                  folder + std::string(300, 'x'), folder + std::string("A\0B", 3), folder + "loop"}) {
    const int told = error_of([&] { disk::check_writable(path); });
    EXPECT_NE(told, 0) << path;
    EXPECT_EQ(told, error_of([&] { const NewFile file(path); })) << path;
  }
  EXPECT_EQ(error_of([&] { disk::check_writable(folder + "A"); }), 0);
  EXPECT_EQ(error_of([&] { disk::check_writable(folder + "B"); }), 0);
}

}  // namespace
