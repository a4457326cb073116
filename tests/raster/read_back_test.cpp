#include "platform/raster/read_back.h"

#include "platform/raster/fast.h"
#include "raster_testing.h"

namespace raster {
namespace {

Surface blocks(int w, int h, int rate, int depth, uint32_t seed) {
  Random random(seed);
  Surface s(w * rate, h * rate, depth);
  make_noise(s, random);
  return s;
}

TEST(ReadBack, TakesTheMiddleColumnAndTheFirstRowOfEachBlock) {
  for (const bool fast : {false, true}) {
    use_fast_forms(fast);
    for (const int depth : {32, 16}) {
      for (const int rate : {2, 4, 8, 16}) {
        const Surface source = blocks(5, 3, rate, depth, 7);
        Surface dest(9, 6, depth, BLUE);
        read_back(dest, 2, 1, 5, 3, source, 0, 0, rate);
        for (int y = 0; y < 6; ++y) {
          for (int x = 0; x < 9; ++x) {
            const bool inside = x >= 2 && x < 7 && y >= 1 && y < 4;
            const Colour expected = inside ? GetPixel(source, (x - 2) * rate + rate / 2, (y - 1) * rate) : BLUE;
            ASSERT_EQ(GetPixel(dest, x, y), expected) << rate << " " << x << "," << y;
          }
        }
      }
    }
  }
}

TEST(ReadBack, LeavesWhatLiesOutsideOfTheSource) {
  for (const bool fast : {false, true}) {
    use_fast_forms(fast);
    const Surface source = blocks(3, 2, 4, 32, 9);
    Surface dest(5, 4, 32, BLUE);
    read_back(dest, 0, 0, 5, 4, source, -4, -8, 4);  // its top left is the block -1, -2
    for (int y = 0; y < 4; ++y) {
      for (int x = 0; x < 5; ++x) {
        const bool inside = x >= 1 && x < 4 && y >= 2;
        const Colour expected = inside ? GetPixel(source, (x - 1) * 4 + 2, (y - 2) * 4) : BLUE;
        ASSERT_EQ(GetPixel(dest, x, y), expected) << x << "," << y;
      }
    }
  }
}

TEST(ReadBack, PlainAndFastGiveTheSame) {
  Random random(8);
  for (uint32_t round = 0; round < 2000; ++round) {
    const int rate = 1 << between(random, 1, 4), depth = 8 * between(random, 1, 4);
    const Surface source = blocks(between(random, 1, 9), between(random, 1, 9), rate, depth, round);
    const int w = between(random, 1, 10), h = between(random, -2, 10), x = between(random, -2, 8),
              y = between(random, -2, 8), sx = between(random, -40, 40), sy = between(random, -40, 40);
    Surface fast(12, 10, depth), plain(12, 10, depth);
    use_fast_forms(true);
    read_back(fast, x, y, w, h, source, sx, sy, rate);
    use_fast_forms(false);
    read_back(plain, x, y, w, h, source, sx, sy, rate);
    ASSERT_EQ(colours(fast), colours(plain)) << round;
  }
}

}  // namespace
}  // namespace raster
