#include "platform/raster/surface.h"

#include <sys/resource.h>
#include <unistd.h>

#include <fstream>

#include "platform/error.h"
#include "raster_testing.h"

// Memory that can not be had is for a sanitizer's allocator the end of the program, unless it is told otherwise.
extern "C" const char* __asan_default_options() { return "allocator_may_return_null=1"; }  // NOLINT: the name is given

namespace raster {
namespace {

// No more than 512 MiB beyond what the program has now: a sanitizer has terabytes of addresses from the start.
void allow_little_memory() {
  rlim_t pages = 0;
  std::ifstream("/proc/self/statm") >> pages;
  const rlim_t limit = pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE)) + (512u << 20);
  const rlimit little{limit, limit};
  ASSERT_EQ(setrlimit(RLIMIT_AS, &little), 0);
}

int error_of(const std::function<void()>& work) {
  try {
    work();
  } catch (const RuntimeError& e) {
    return e.number;
  }
  return 0;
}

TEST(Surface, StartsInTheColourAsked) {
  for (const int depth : {32, 24, 16, 8}) {
    const Surface s(3, 2, depth, RED);
    EXPECT_EQ(text_of(s), rows({"rrr", "rrr"})) << depth;
  }
}

TEST(Surface, ResizeKeepsWhatLiesInBothSizes) {
  Random random(1);
  for (const int depth : {32, 24, 16, 8}) {
    for (int round = 0; round < 60; ++round) {
      Surface s(between(random, 0, 50), between(random, 0, 50), depth);
      make_noise(s, random);
      // A larger size before makes that memory is kept and rows move inside it.
      if (round % 2 == 0) s.resize(s.width() + 70, s.height() + 3);
      const Surface before = copy_of(s);
      const int w = between(random, 0, 120), h = between(random, 0, 60);
      s.resize(w, h, GREEN);
      ASSERT_EQ(s.width(), w);
      ASSERT_EQ(s.height(), h);
      for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x) {
          const bool kept = x < before.width() && y < before.height();
          ASSERT_EQ(GetPixel(s, x, y), kept ? GetPixel(before, x, y) : GREEN) << depth << " at " << x << "," << y;
        }
      }
    }
  }
}

TEST(Surface, ResizeTouchesAllOfIt) {
  Surface s(4, 4);
  s.take_touched();
  s.resize(7, 5);
  const Rect r = s.take_touched();
  EXPECT_EQ(r.right, 7);
  EXPECT_EQ(r.bottom, 5);
}

TEST(Surface, SizesBeyondTheLimitsAreInvalid) {
  Surface s(3, 3, 32, RED);
  EXPECT_EQ(error_of([&] { s.resize(-1, 3); }), 380);
  EXPECT_EQ(error_of([&] { s.resize(3, -1); }), 380);
  EXPECT_EQ(error_of([&] { s.resize(MAX_SIDE + 1, 1); }), 380);
  EXPECT_EQ(error_of([&] { s.resize(1, MAX_SIDE + 1); }), 380);
  EXPECT_EQ(error_of([&] { Surface(1, MAX_SIDE + 1); }), 380);
  EXPECT_EQ(text_of(s), rows({"rrr", "rrr", "rrr"}));
  s.resize(MAX_SIDE, 1, BLUE);
  EXPECT_EQ(GetPixel(s, MAX_SIDE - 1, 0), BLUE);
  s.resize(1, MAX_SIDE, GREEN);
  EXPECT_EQ(GetPixel(s, 0, MAX_SIDE - 1), GREEN);
  EXPECT_EQ(GetPixel(s, 0, 0), RED);
  s.resize(0, 0);
  EXPECT_EQ(GetPixel(s, 0, 0), CLR_INVALID);
}

TEST(Surface, MemoryThatCanNotBeHadIsErrorSevenAndChangesNothing) {
  Surface s(3, 1, 32, RED);
  allow_little_memory();
  EXPECT_EQ(error_of([&] { s.resize(MAX_SIDE, MAX_SIDE); }), 7);
  EXPECT_EQ(text_of(s), rows({"rrr"}));
}

TEST(Surface, WhatIsMovedFromIsEmptyAndMayBeUsedAgain) {
  Surface a(3, 1, 16, RED);
  Surface b = std::move(a);
  EXPECT_EQ(text_of(b), rows({"rrr"}));
  EXPECT_EQ(a.width(), 0);  // NOLINT(bugprone-use-after-move): that is the promise
  a.resize(2, 1, BLUE);
  EXPECT_EQ(text_of(a), rows({"bb"}));
}

TEST(Surface, TouchedIsTheSmallestRectangleRoundAllCutToTheSurface) {
  Surface s(20, 10);
  s.take_touched();
  EXPECT_TRUE(s.take_touched().empty());
  s.touch(5, 6, 7, 8);
  s.touch(30, 2, 40, 4);  // outside
  s.touch(4, 4, 4, 9);    // empty
  s.touch(-5, 7, 6, 99);
  const Rect r = s.take_touched();
  EXPECT_EQ(r.left, 0);
  EXPECT_EQ(r.top, 6);
  EXPECT_EQ(r.right, 7);
  EXPECT_EQ(r.bottom, 10);
  EXPECT_TRUE(s.take_touched().empty());
}

TEST(Surface, EachDepthKeepsWhatItCanOfAColour) {
  const Colour c = RGB(0xAB, 0xCD, 0xEF);
  EXPECT_EQ(Surface(32).to_pixel(c), 0xFFABCDEFu);
  EXPECT_EQ(Surface(24).to_pixel(c), 0xABCDEFu);
  // 5-6-5: AB = 10101|011, CD = 110011|01, EF = 11101|111
  EXPECT_EQ(Surface(16).to_pixel(c), 0b10101'110011'11101u);
  // 3-3-2: 101|01011, 110|01101, 11|101111
  EXPECT_EQ(Surface(8).to_pixel(c), 0b101'110'11u);
  for (const int depth : {32, 24, 16, 8}) {
    const Surface s(depth);
    EXPECT_EQ(s.to_colour(s.to_pixel(WHITE)), WHITE);
    EXPECT_EQ(s.to_colour(s.to_pixel(BLACK)), BLACK);
    EXPECT_EQ(s.to_colour(s.to_pixel(RED)), RED);
    // What a surface holds comes back the same when it is put in again.
    for (Colour k = 0; k < 0x1000000; k += 0x010307) {
      const Colour held = s.to_colour(s.to_pixel(k));
      ASSERT_EQ(s.to_colour(s.to_pixel(held)), held) << depth;
    }
  }
}

TEST(Surface, ComponentsAbove255CountAs255) {
  EXPECT_EQ(RGB(300, 256, 255), WHITE);
  EXPECT_EQ(RGB(1, 2, 3), 0x030201u);
}

}  // namespace
}  // namespace raster
