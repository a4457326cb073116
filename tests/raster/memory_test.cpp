// What is free is read from files as the system writes them, and a picture that needs more than half of it is refused.
#include "platform/raster/memory.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>

#include "raster/picture_builder.h"

using namespace raster;

namespace {

namespace fs = std::filesystem;

constexpr uint64_t MB = uint64_t{1} << 20;

// An icon of one picture.
Bytes icon_of(const Bytes& picture) {
  Bytes out;
  for (const uint32_t v : {0u, 1u, 1u}) put16(out, v);
  append(out, {1, 1, 0, 0, 1, 0, 24, 0});
  put32(out, static_cast<uint32_t>(picture.size()));
  put32(out, 22);
  append(out, picture);
  return out;
}

struct Memory : testing::Test {
  Memory() : root((fs::temp_directory_path() / "memoryXXXXXX").string()) { EXPECT_NE(mkdtemp(root.data()), nullptr); }
  ~Memory() override { fs::remove_all(root); }
  void put(const std::string& file, const std::string& text) const {
    fs::create_directories(fs::path(root + file).parent_path());
    std::ofstream(root + file) << text;
  }
  void machine() const {
    put("/proc/meminfo", "MemTotal:       16384000 kB\nMemFree:          102400 kB\nMemAvailable:    8192000 kB\n");
  }
  std::string root;
};

TEST_F(Memory, IsWhatTheMachineCanGive) {
  machine();
  EXPECT_EQ(free_memory(root), 8000 * MB);
}

TEST_F(Memory, HasNoEndWhereNothingIsTold) {
  EXPECT_EQ(free_memory(root), UINT64_MAX);
  put("/proc/meminfo", "MemTotal: much\nMemAvailable: rubbish\n");
  put("/proc/self/cgroup", "rubbish\n0:\n\n0::\n:memory:\n3:memory:none\n");
  EXPECT_EQ(free_memory(root), UINT64_MAX);
}

TEST_F(Memory, IsWhatTheControlGroupLeaves) {
  machine();
  put("/proc/self/cgroup", "0::/user/app\n");
  put("/sys/fs/cgroup/user/app/memory.max", "max\n");
  put("/sys/fs/cgroup/user/app/memory.current", std::to_string(900 * MB));
  EXPECT_EQ(free_memory(root), 8000 * MB);
  put("/sys/fs/cgroup/user/memory.max", std::to_string(1000 * MB));
  put("/sys/fs/cgroup/user/memory.current", std::to_string(900 * MB));
  EXPECT_EQ(free_memory(root), 100 * MB) << "the group around it counts too";
  put("/sys/fs/cgroup/user/memory.stat",
      "anon 5\nactive_file 7\ninactive_file " + std::to_string(300 * MB) + "\nzero 0\n");
  EXPECT_EQ(free_memory(root), 400 * MB) << "read pages can be had";
  put("/sys/fs/cgroup/user/app/memory.max", std::to_string(800 * MB));
  EXPECT_EQ(free_memory(root), 0U) << "it holds more than it may";
}

TEST_F(Memory, KnowsTheGroupsOfOlderSystems) {
  machine();
  put("/proc/self/cgroup", "12:cpu,cpuacct:/a\n4:memory:/docker/b\n0::/\n");
  put("/sys/fs/cgroup/memory/memory.limit_in_bytes", std::to_string(500 * MB));
  put("/sys/fs/cgroup/memory/memory.usage_in_bytes", std::to_string(300 * MB));
  put("/sys/fs/cgroup/memory/memory.stat", "inactive_file 1\ntotal_inactive_file " + std::to_string(50 * MB) + "\n");
  EXPECT_EQ(free_memory(root), 250 * MB);
}

TEST_F(Memory, IsToldByTheEnvironmentWhereThatHasANumber) {
  machine();
  setenv("KISO_FREE_MEMORY", "12345", 1);
  EXPECT_EQ(free_memory(root), 12345U);
  EXPECT_NO_THROW(check_memory(6172));
  EXPECT_THROW(check_memory(6173), RuntimeError);
  setenv("KISO_FREE_MEMORY", "", 1);
  EXPECT_EQ(free_memory(root), 8000 * MB);
  unsetenv("KISO_FREE_MEMORY");
}

// The least free memory with which the picture is read; below it, it is error 7.
uint64_t least_free(const Bytes& file, int depth, raster::PngDecoder png = nullptr) {
  uint64_t free = 0;
  for (;; ++free) {
    setenv("KISO_FREE_MEMORY", std::to_string(free).c_str(), 1);
    const int number = error_of([&] { read(file, depth, png); });
    if (number == 0) break;
    EXPECT_EQ(number, 7);
    if (number != 7) break;
  }
  unsetenv("KISO_FREE_MEMORY");
  return free;
}

TEST_F(Memory, IsTwiceWhatAPictureNeeds) {
  const DibFile file{.width = 3, .height = 2, .pixels = Bytes(24)};
  EXPECT_EQ(least_free(file.bmp(), 32), 2U * 3 * 2 * 4);
  EXPECT_EQ(least_free(file.bmp(), 16), 2U * 3 * 2 * 2);
  DibFile inner = file;
  inner.height = 4;  // an icon's header counts the mask's rows too
  Bytes dib = inner.head();
  dib.resize(dib.size() + 24 + 8);
  EXPECT_EQ(least_free(icon_of(dib), 32), 2U * 3 * 2 * 4);
  EXPECT_EQ(least_free(icon_of(dib), 24), 2U * 3 * 2 * (4 + 3)) << "first at 32 bits";
}

TEST_F(Memory, IsLookedAtBeforeAPngIsDecoded) {
  static bool decoded = false;
  const auto decoder = [](const uint8_t* /*bytes*/, size_t /*n*/, PngPicture& out) {
    decoded = true;
    out.width = 3, out.height = 2;
    out.bgra.resize(24);
    return true;
  };
  Bytes png{0x89, 'P', 'N', 'G', 13, 10, 26, 10, 0, 0, 0, 13, 'I', 'H', 'D', 'R', 0, 0, 0, 3, 0, 0, 0, 2, 8, 6};
  setenv("KISO_FREE_MEMORY", "143", 1);
  EXPECT_EQ(error_of([&] { read(icon_of(png), 32, decoder); }), 7);
  EXPECT_FALSE(decoded);
  EXPECT_EQ(least_free(icon_of(png), 32, decoder), 2U * 3 * 2 * 12);
}

}  // namespace
