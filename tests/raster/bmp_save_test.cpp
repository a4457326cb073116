#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>

#include "raster/picture_builder.h"

namespace fs = std::filesystem;
using namespace raster;

namespace {

class Files : public testing::Test {
 protected:
  void SetUp() override {
    std::string name = fs::temp_directory_path() / "picture-files-XXXXXX";
    ASSERT_NE(mkdtemp(name.data()), nullptr);
    folder = name;
  }
  void TearDown() override { fs::remove_all(folder); }

  std::string in(const std::string& name) const { return folder / name; }
  std::vector<std::string> names() const {
    std::vector<std::string> out;
    for (const auto& entry : fs::directory_iterator(folder)) out.push_back(entry.path().filename());
    std::sort(out.begin(), out.end());
    return out;
  }
  fs::path folder;
};
using BmpSave = Files;
using PictureLoad = Files;

// For root nothing is forbidden, so it is somebody else for as long as this lives.
struct Somebody {
  Somebody() { become(65534); }
  ~Somebody() { become(0); }
  void become(uid_t user) const {
    if (root && seteuid(user) != 0) std::abort();
  }
  const bool root = geteuid() == 0;
};

Bytes content(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}
void put(const std::string& path, const Bytes& bytes) {
  std::ofstream(path, std::ios::binary).write(reinterpret_cast<const char*>(bytes.data()), std::ssize(bytes));
}
const Bytes OLD = {'o', 'l', 'd'};

mode_t mode_of(const std::string& path) {
  struct stat about {};
  return stat(path.c_str(), &about) == 0 ? about.st_mode & 07777 : 0;
}

Surface noise(int width, int height, int depth = 32, unsigned seed = 1) {
  std::mt19937 random(seed);
  Surface s(width, height, depth);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) SetPixelV(s, x, y, static_cast<Colour>(random() & 0xFFFFFF));
  }
  return s;
}

int error_of_save(const Surface& s, const std::string& path) {
  return error_of([&] { save_bmp(s, path); });
}
int error_of_load(const std::string& path) {
  return error_of([&] { load_picture_file(path); });
}

}  // namespace

TEST_F(BmpSave, BytesOfTheFile) {
  Surface s(2, 2);
  const Colour corner = raster::RGB(1, 2, 3);
  SetPixelV(s, 0, 1, corner);
  save_bmp(s, in("a.bmp"));
  const DibFile expected{
      .width = 2, .height = 2, .pixels = {3, 2, 1, 255, 255, 255, 0, 0, 255, 255, 255, 255, 255, 255, 0, 0}};
  Bytes bytes = expected.bmp();
  bytes[34] = 16;  // the bytes of the pixels
  EXPECT_EQ(content(in("a.bmp")), bytes);
}

TEST_F(BmpSave, ComesBackPixelByPixel) {
  for (int width = 1; width <= 40; ++width) {
    const Surface s = noise(width, 41 - width);
    save_bmp(s, in("a.bmp"));
    ASSERT_EQ(picture_of(load_picture_file(in("a.bmp"))), picture_of(s)) << width;
  }
  const Surface large = noise(1001, 301);  // several strips
  save_bmp(large, in("a.bmp"));
  EXPECT_EQ(picture_of(load_picture_file(in("a.bmp"))), picture_of(large));
}

TEST_F(BmpSave, SurfacesOfEveryDepthComeBack) {
  for (int depth : {24, 16, 8}) {
    const Surface s = noise(13, 7, depth);
    save_bmp(s, in("a.bmp"));
    EXPECT_EQ(picture_of(load_picture_file(in("a.bmp"))), picture_of(s)) << depth;
    EXPECT_EQ(picture_of(load_picture_file(in("a.bmp"), depth)), picture_of(s)) << depth;
  }
}

TEST_F(BmpSave, WidestAndTallestPictures) {
  for (const auto& [width, height] : {std::pair{32767, 2}, {2, 32767}}) {
    const Surface s = noise(width, height);
    save_bmp(s, in("a.bmp"));
    EXPECT_EQ(picture_of(load_picture_file(in("a.bmp"))), picture_of(s));
  }
}

TEST_F(BmpSave, LeavesNothingBesideTheFile) {
  save_bmp(noise(3, 3), in("絵 1.bmp"));
  save_bmp(noise(4, 4), in("絵 1.bmp"));
  EXPECT_EQ(names(), std::vector<std::string>{"絵 1.bmp"});
  EXPECT_EQ(load_picture_file(in("絵 1.bmp")).width(), 4);
  const std::string longest(251, 'a');
  save_bmp(noise(3, 3), in(longest + ".bmp"));
  EXPECT_EQ(load_picture_file(in(longest + ".bmp")).width(), 3);
}

TEST_F(BmpSave, NameWithoutAFolder) {
  fs::current_path(folder);
  save_bmp(noise(3, 3), "a.bmp");
  EXPECT_EQ(load_picture_file("a.bmp").width(), 3);
  fs::current_path("/");
}

TEST_F(BmpSave, NewFileHasTheUsualRights) {
  umask(027);
  save_bmp(noise(3, 3), in("a.bmp"));
  EXPECT_EQ(mode_of(in("a.bmp")), 0640u);
}

TEST_F(BmpSave, ReplacedFileKeepsItsRights) {
  for (mode_t mode : {0600u, 0640u, 0666u, 0751u}) {
    put(in("a.bmp"), OLD);
    ASSERT_EQ(chmod(in("a.bmp").c_str(), mode), 0);
    save_bmp(noise(3, 3), in("a.bmp"));
    EXPECT_EQ(mode_of(in("a.bmp")), mode);
    EXPECT_EQ(load_picture_file(in("a.bmp")).width(), 3);
  }
}

TEST_F(BmpSave, LinkStaysAndItsTargetIsReplaced) {
  fs::create_directory(in("other"));
  put(in("other/real.bmp"), OLD);
  fs::create_symlink("other/real.bmp", in("near.bmp"));
  fs::create_symlink(in("near.bmp"), in("far.bmp"));
  save_bmp(noise(3, 3), in("far.bmp"));
  EXPECT_TRUE(fs::is_symlink(in("far.bmp")));
  EXPECT_TRUE(fs::is_symlink(in("near.bmp")));
  EXPECT_FALSE(fs::is_symlink(in("other/real.bmp")));
  EXPECT_EQ(load_picture_file(in("other/real.bmp")).width(), 3);
  EXPECT_EQ(std::distance(fs::directory_iterator(in("other")), {}), 1);
}

TEST_F(BmpSave, LinkToNothingGetsItsTarget) {
  fs::create_symlink("new.bmp", in("link.bmp"));
  save_bmp(noise(3, 3), in("link.bmp"));
  EXPECT_TRUE(fs::is_symlink(in("link.bmp")));
  EXPECT_EQ(load_picture_file(in("new.bmp")).width(), 3);
}

TEST_F(BmpSave, LinksInACircleAreAnError) {
  fs::create_symlink("a.bmp", in("b.bmp"));
  fs::create_symlink("b.bmp", in("a.bmp"));
  EXPECT_EQ(error_of_save(noise(3, 3), in("a.bmp")), 75);
}

TEST_F(BmpSave, PathsThatCanNotBe) {
  put(in("file"), OLD);
  const Surface s = noise(3, 3);
  EXPECT_EQ(error_of_save(s, in("missing/a.bmp")), 76);
  EXPECT_EQ(error_of_save(s, in("file/a.bmp")), 76);
  EXPECT_EQ(error_of_save(s, folder), 75);
  EXPECT_EQ(error_of_save(s, in("new.bmp/")), 75);
  EXPECT_EQ(error_of_save(s, ""), 75);
  EXPECT_EQ(error_of_save(s, in(std::string(300, 'a'))), 75);
  EXPECT_EQ(names(), std::vector<std::string>{"file"});
  EXPECT_EQ(content(in("file")), OLD);
}

TEST_F(BmpSave, WhatIsNoFileIsNotReplaced) {
  ASSERT_EQ(mkfifo(in("pipe").c_str(), 0600), 0);
  EXPECT_EQ(error_of_save(noise(3, 3), in("pipe")), 75);
  EXPECT_TRUE(fs::is_fifo(in("pipe")));
  EXPECT_EQ(error_of_save(noise(3, 3), "/dev/null"), 75);
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(BmpSave, SurfaceWithoutPixels) {
  put(in("a.bmp"), OLD);
  EXPECT_EQ(error_of_save(Surface(), in("a.bmp")), 481);
  EXPECT_EQ(error_of_save(Surface(0, 5), in("a.bmp")), 481);
  EXPECT_EQ(content(in("a.bmp")), OLD);
}

TEST_F(BmpSave, ProtectedFolderAndProtectedFile) {
  put(in("a.bmp"), OLD);
  ASSERT_EQ(chmod(in("a.bmp").c_str(), 0666), 0);
  ASSERT_EQ(chmod(folder.c_str(), 0555), 0);
  {
    const Somebody else_user;
    EXPECT_EQ(error_of_save(noise(3, 3), in("a.bmp")), 70);
    EXPECT_EQ(error_of_save(noise(3, 3), in("b.bmp")), 70);
  }
  ASSERT_EQ(chmod(in("a.bmp").c_str(), 0444), 0);
  ASSERT_EQ(chmod(folder.c_str(), 0777), 0);
  {
    const Somebody else_user;
    EXPECT_EQ(error_of_save(noise(3, 3), in("a.bmp")), 70);
  }
  EXPECT_EQ(content(in("a.bmp")), OLD);
  EXPECT_EQ(names(), std::vector<std::string>{"a.bmp"});
}

TEST_F(BmpSave, FullDiskLeavesTheOldFile) {
  put(in("a.bmp"), OLD);
  std::signal(SIGXFSZ, SIG_IGN);
  for (rlim_t room : {0, 53, 54, 100000, 300000, 903149}) {  // 903150 bytes are wanted
    const rlimit limit{room, RLIM_INFINITY};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    EXPECT_EQ(error_of_save(noise(301, 999), in("a.bmp")), 61) << room;
    EXPECT_EQ(content(in("a.bmp")), OLD);
    EXPECT_EQ(names(), std::vector<std::string>{"a.bmp"});
  }
  const rlimit enough{903150, RLIM_INFINITY};
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &enough), 0);
  EXPECT_EQ(error_of_save(noise(301, 999), in("a.bmp")), 0);
}

TEST_F(PictureLoad, PathsThatCanNotBe) {
  put(in("file"), OLD);
  EXPECT_EQ(error_of_load(in("missing.bmp")), 53);
  EXPECT_EQ(error_of_load(in("missing/a.bmp")), 53);
  EXPECT_EQ(error_of_load(""), 53);
  EXPECT_EQ(error_of_load(in("file/a.bmp")), 76);
  EXPECT_EQ(error_of_load(folder), 75);
  EXPECT_EQ(error_of_load("/dev/zero"), 75);
  EXPECT_EQ(error_of_load(in("file")), 481);
  ASSERT_EQ(mkfifo(in("pipe").c_str(), 0600), 0);
  EXPECT_EQ(error_of_load(in("pipe")), 75) << "and does not wait for a writer";
  ASSERT_EQ(chmod(in("file").c_str(), 0), 0);
  ASSERT_EQ(chmod(folder.c_str(), 0755), 0);
  const Somebody else_user;
  EXPECT_EQ(error_of_load(in("file")), 70);
}

TEST_F(PictureLoad, NameDoesNotTellTheKind) {
  save_bmp(noise(3, 3), in("a.ico"));
  EXPECT_EQ(load_picture_file(in("a.ico")).width(), 3);
}

TEST_F(PictureLoad, FileCutAtEveryLength) {
  const Surface s = noise(5, 4);
  save_bmp(s, in("a.bmp"));
  const Bytes whole = content(in("a.bmp"));
  for (size_t n = 0; n + 1 < whole.size(); ++n) {  // the last byte is padding
    put(in("a.bmp"), Bytes(whole.begin(), whole.begin() + static_cast<ptrdiff_t>(n)));
    EXPECT_EQ(error_of_load(in("a.bmp")), 481) << n;
  }
}
