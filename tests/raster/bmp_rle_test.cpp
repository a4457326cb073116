#include <gtest/gtest.h>

#include "raster/picture_builder.h"

using namespace raster;

namespace {

const std::vector<uint32_t> COLOURS = {K, R, G, B};

DibFile rle8(int width, int height, const Bytes& codes) {
  return {.width = width, .height = height, .bits = 8, .pixels = codes, .palette = COLOURS, .compression = 1};
}
DibFile rle4(int width, int height, const Bytes& codes) {
  return {.width = width, .height = height, .bits = 4, .pixels = codes, .palette = COLOURS, .compression = 2};
}
DibFile rle24(int width, int height, const Bytes& codes) {
  return {.width = width, .height = height, .bits = 24, .pixels = codes, .length = 64, .compression = 4};
}

}  // namespace

TEST(BmpRunLengths, EightBits) {
  // Bottom row: two red, one green. Top row: blue, red, green one by one, with the byte that makes them even.
  const Bytes codes = {2, 1, 1, 2, 0, 0, 0, 3, 3, 1, 2, 0, 0, 1};
  EXPECT_EQ(picture_of(rle8(3, 2, codes).bmp()), (Picture{{B, R, G}, {R, R, G}}));
  EXPECT_EQ(picture_of(rle8(3, -2, codes).bmp()), (Picture{{R, R, G}, {B, R, G}}));
}

TEST(BmpRunLengths, FourBitsTakeTurns) {
  // Five pixels of red and green in turn; then five one by one, in three bytes and one to make them even.
  EXPECT_EQ(picture_of(rle4(5, 2, {5, 0x12, 0, 0, 0, 5, 0x12, 0x30, 0x10, 0, 0, 1}).bmp()),
            (Picture{{R, G, B, K, R}, {R, G, R, G, R}}));
  // Three pixels are two bytes, so nothing is between them and the end mark.
  EXPECT_EQ(picture_of(rle4(3, 1, {0, 3, 0x12, 0x30, 0, 1}).bmp()), (Picture{{R, G, B}}));
}

TEST(BmpRunLengths, TwentyFourBits) {
  // Two red; then three one by one, nine bytes and one to make them even.
  const Bytes codes = {2, 0, 0, 255, 1, 255, 0, 0, 0, 0, 0, 3, 1, 2, 3, 4, 5, 6, 7, 8, 9, 0, 0, 1};
  EXPECT_EQ(picture_of(rle24(3, 2, codes).bmp()), (Picture{{0x030201, 0x060504, 0x090807}, {R, R, B}}));
}

TEST(BmpRunLengths, SkippedPixelsTakeTheFirstColour) {
  // A green dot; two to the right and one up from behind it a blue one; the rest of the picture is not told.
  DibFile file = rle8(5, 4, {1, 2, 0, 2, 2, 1, 1, 3, 0, 1});
  EXPECT_EQ(picture_of(file.bmp()), (Picture{{K, K, K, K, K}, {K, K, K, K, K}, {K, K, K, B, K}, {G, K, K, K, K}}));
  file.palette[0] = W;
  EXPECT_EQ(picture_of(file.bmp()), (Picture{{W, W, W, W, W}, {W, W, W, W, W}, {W, W, W, B, W}, {G, W, W, W, W}}));
  EXPECT_EQ(picture_of(rle24(2, 1, {0, 2, 1, 0, 1, 255, 0, 0, 0, 1}).bmp()), (Picture{{K, B}}));
}

TEST(BmpRunLengths, EndOfLineLeavesTheRestOfARow) {
  EXPECT_EQ(picture_of(rle8(3, 3, {0, 0, 1, 1, 0, 0, 3, 2, 0, 1}).bmp()), (Picture{{G, G, G}, {R, K, K}, {K, K, K}}));
}

TEST(BmpRunLengths, PixelsBeyondTheEdgesAreLost) {
  EXPECT_EQ(picture_of(rle8(2, 2, {255, 1, 255, 2, 0, 0, 1, 3, 0, 4, 2, 2, 2, 2, 0, 1}).bmp()),
            (Picture{{B, G}, {R, R}}));
  EXPECT_EQ(picture_of(rle8(2, 1, {2, 1, 0, 0, 2, 2, 0, 1}).bmp()), (Picture{{R, R}})) << "a row too many";
  EXPECT_EQ(picture_of(rle8(2, 2, {0, 2, 255, 255, 9, 1, 0, 1}).bmp()), (Picture{{K, K}, {K, K}})) << "jump out of it";
  EXPECT_EQ(picture_of(rle8(2, 2, {0, 2, 255, 1, 9, 1, 0, 1}).bmp()), (Picture{{K, K}, {K, K}})) << "jump to the right";
}

TEST(BmpRunLengths, EndMarkMayBeMissingBehindTheLastPixel) {
  EXPECT_EQ(picture_of(rle8(2, 2, {2, 1, 0, 0, 2, 2}).bmp()), (Picture{{G, G}, {R, R}}));
  EXPECT_EQ(error_of(rle8(2, 2, {2, 1, 0, 0, 1, 2}).bmp()), 481);
}

TEST(BmpRunLengths, DataCutAtEveryLength) {
  const DibFile files[] = {rle8(3, 2, {2, 1, 1, 2, 0, 0, 0, 3, 3, 1, 2, 0, 0, 1}),
                           rle8(5, 4, {1, 2, 0, 2, 2, 1, 1, 3, 0, 1}),
                           rle4(5, 2, {5, 0x12, 0, 0, 0, 5, 0x12, 0x30, 0x10, 0, 0, 1}),
                           rle24(3, 2, {2, 0, 0, 255, 1, 255, 0, 0, 0, 0, 0, 3, 1, 2, 3, 4, 5, 6, 7, 8, 9, 0, 0, 1})};
  for (const DibFile& file : files) {
    const Bytes whole = file.bmp();
    const Picture shown = picture_of(whole);
    for (size_t n = 0; n < whole.size(); ++n) {
      const Bytes cut(whole.begin(), whole.begin() + static_cast<ptrdiff_t>(n));
      if (error_of(cut) == 0) {
        EXPECT_EQ(picture_of(cut), shown) << n;
        EXPECT_GE(n, whole.size() - 2) << "more than the end mark is missing";
      } else {
        EXPECT_EQ(error_of(cut), 481) << n;
      }
    }
  }
}

TEST(BmpRunLengths, FewBytesAreNoHugePicture) {
  const LittleMemory little;
  for (const Bytes& codes :
       {Bytes{0, 1}, Bytes{0, 2, 255, 255, 0, 2, 255, 255, 0, 2, 255, 255, 0, 2, 255, 255, 0, 1}}) {
    EXPECT_EQ(error_of(rle8(32767, 32767, codes).bmp()), 481);
    EXPECT_EQ(error_of(rle4(32767, 32767, codes).bmp()), 481);
    EXPECT_EQ(error_of(rle24(32767, 32767, codes).bmp()), 481);
  }
}

TEST(BmpRunLengths, EmptyRowsAreAPicture) {
  const Surface ended = read(rle8(1000, 1000, {0, 1}).bmp());
  EXPECT_EQ(GetPixel(ended, 999, 0), K);
  // More than the size that is never doubted: every row is ended by its own mark, and that must do.
  Bytes marks(size_t{2} * 513, 0);
  append(marks, {0, 1});
  const Surface rows = read(rle8(32767, 513, marks).bmp(), 8);
  EXPECT_EQ(rows.height(), 513);
  EXPECT_EQ(GetPixel(rows, 32766, 512), K);
}

TEST(BmpRunLengths, SurfacesOfEveryDepth) {
  for (int depth : {24, 16, 8}) {
    EXPECT_EQ(picture_of(read(rle8(3, 2, {2, 1, 1, 2, 0, 0, 0, 2, 1, 0, 1, 3, 0, 1}).bmp(), depth)),
              (Picture{{K, B, K}, {R, R, G}}))
        << depth;
  }
}
