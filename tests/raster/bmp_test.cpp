#include <gtest/gtest.h>

#include <random>

#include "platform/raster/bmp_pack.h"
#include "platform/raster/fast.h"
#include "raster/picture_builder.h"

using namespace raster;

namespace {

// Two by two, blue and green over red and white, rows of 6 bytes and 2 of padding.
const Bytes TWO_BY_TWO = {0, 0, 255, 255, 255, 255, 9, 9, 255, 0, 0, 0, 255, 0, 9, 9};
const Picture TWO_BY_TWO_SHOWN = {{B, G}, {R, W}};
const std::vector<uint32_t> FOUR_COLOURS = {K, R, G, B};

DibFile two_by_two() { return {.width = 2, .height = 2, .pixels = TWO_BY_TWO}; }

// Eight bits of a field of this width: its own from the top, over and over.
uint32_t spread(uint32_t value, uint32_t width) {
  uint32_t byte = 0;
  for (uint32_t i = 0; i < 8; ++i) byte |= (value >> (width - 1 - i % width) & 1) << (7 - i);
  return byte;
}

// One pixel of 16 or 32 bits.
uint32_t pixel_of(uint32_t bits, uint32_t value, const std::vector<uint32_t>& masks) {
  DibFile file{.bits = bits, .compression = masks.empty() ? 0u : 3u, .masks = masks};
  put32(file.pixels, value);
  return picture_of(file.bmp())[0][0];
}

}  // namespace

TEST(BmpRead, RowsGoUpwardsAndDownwardsWithNegativeHeight) {
  DibFile file = two_by_two();
  EXPECT_EQ(picture_of(file.bmp()), TWO_BY_TWO_SHOWN);
  file.height = -2;
  EXPECT_EQ(picture_of(file.bmp()), (Picture{{R, W}, {B, G}}));
}

TEST(BmpRead, EveryDepthOfAPalette) {
  EXPECT_EQ(
      picture_of(DibFile{.width = 10, .bits = 1, .pixels = {0b10100000, 0b01000000, 0, 0}, .palette = {K, R}}.bmp()),
      (Picture{{R, K, R, K, K, K, K, K, K, R}}));
  EXPECT_EQ(
      picture_of(
          DibFile{.width = 5, .bits = 2, .pixels = {0b00011011, 0b10000000, 0, 0}, .palette = FOUR_COLOURS}.bmp()),
      (Picture{{K, R, G, B, G}}));
  EXPECT_EQ(picture_of(DibFile{.width = 3, .bits = 4, .pixels = {0x13, 0x20, 0, 0}, .palette = FOUR_COLOURS}.bmp()),
            (Picture{{R, B, G}}));
  EXPECT_EQ(
      picture_of(
          DibFile{.width = 3, .bits = 8, .pixels = {3, 0, 2, 0}, .palette = FOUR_COLOURS, .palette_entries = 4}.bmp()),
      (Picture{{B, K, G}}));
}

TEST(BmpRead, IndexBeyondThePaletteIsBlack) {
  const DibFile file{.width = 3, .bits = 8, .pixels = {1, 2, 255, 0}, .palette = {R, W}, .palette_entries = 2};
  EXPECT_EQ(picture_of(file.bmp()), (Picture{{W, K, K}}));
}

TEST(BmpRead, PaletteEndsWhereThePixelsBegin) {
  // The header tells nothing, so 256 entries are meant, but there is room for two.
  const DibFile file{.width = 2, .bits = 8, .pixels = {1, 2, 0, 0}, .palette = {R, W}};
  EXPECT_EQ(picture_of(file.bmp()), (Picture{{W, K}}));
}

TEST(BmpRead, PaletteLongerThanTheDepth) {
  const DibFile file{.width = 4, .bits = 1, .pixels = {0x50, 0, 0, 0}, .palette = FOUR_COLOURS, .palette_entries = 4};
  EXPECT_EQ(picture_of(file.bmp()), (Picture{{K, R, K, R}}));
  std::vector<uint32_t> many(300, G);
  many[255] = B;
  const DibFile longer{.width = 2, .bits = 8, .pixels = {255, 254, 0, 0}, .palette = many, .palette_entries = 300};
  EXPECT_EQ(picture_of(longer.bmp()), (Picture{{B, G}}));
  // The colours that a picture of 24 bits recommends are passed over.
  DibFile deep = two_by_two();
  deep.palette = FOUR_COLOURS, deep.palette_entries = 4;
  EXPECT_EQ(picture_of(deep.bmp()), TWO_BY_TWO_SHOWN);
}

TEST(BmpRead, HeadersOfEveryLength) {
  for (uint32_t length = 0; length <= 130; ++length) {
    DibFile file = two_by_two();
    file.length = length;
    Bytes bytes = file.bmp();
    bytes.resize(std::max<size_t>(bytes.size(), 200));
    if (length == 12 || (length >= 16 && length <= 124)) {
      EXPECT_EQ(picture_of(bytes), TWO_BY_TWO_SHOWN) << length;
    } else {
      EXPECT_EQ(error_of(bytes), 481) << length;
    }
  }
}

TEST(BmpRead, OldestHeaderHasPalettesOfThreeBytes) {
  const DibFile file{.width = 3, .bits = 4, .pixels = {0x12, 0x30, 0, 0}, .palette = FOUR_COLOURS, .length = 12};
  EXPECT_EQ(picture_of(file.bmp()), (Picture{{R, G, B}}));
  DibFile upright{.width = 1, .height = 65535, .bits = 1, .pixels = Bytes(size_t{65535} * 4), .length = 12};
  EXPECT_EQ(error_of(upright.bmp()), 481) << "its sides have no sign, so this is no picture from the top down";
}

TEST(BmpRead, PixelsBeginWhereTheHeaderSays) {
  DibFile file = two_by_two();
  file.gap = 37;
  EXPECT_EQ(picture_of(file.bmp()), TWO_BY_TWO_SHOWN);
  Bytes untold = two_by_two().bmp();
  untold[10] = 0;
  EXPECT_EQ(picture_of(untold), TWO_BY_TWO_SHOWN) << "nothing told: they follow the header";
  for (uint32_t at : {1u, 14u, 53u, 55u, 0xFFFFFFFFu}) {  // inside the header, or so that the last pixel is not there
    Bytes wrong = two_by_two().bmp();
    wrong.resize(wrong.size() - 2);
    for (size_t i = 0; i < 4; ++i) wrong[10 + i] = static_cast<uint8_t>(at >> 8 * i);
    EXPECT_EQ(error_of(wrong), 481) << at;
  }
}

TEST(BmpRead, PaddingOfTheLastRowMayBeMissing) {
  Bytes bytes = two_by_two().bmp();
  bytes.resize(bytes.size() - 2);
  EXPECT_EQ(picture_of(bytes), TWO_BY_TWO_SHOWN);
  bytes.pop_back();
  EXPECT_EQ(error_of(bytes), 481);
}

TEST(BmpRead, SixteenBitsAreFiveEachUnlessMasksSayOtherwise) {
  EXPECT_EQ(pixel_of(16, 0x7FFF, {}), W);
  EXPECT_EQ(pixel_of(16, 0xFFFF, {}), W) << "the highest bit says nothing";
  EXPECT_EQ(pixel_of(16, 0x7C00, {}), R);
  EXPECT_EQ(pixel_of(16, 0x03E0, {}), G);
  EXPECT_EQ(pixel_of(16, 0x001F, {}), B);
  EXPECT_EQ(pixel_of(16, 1 << 10 | 2 << 5 | 16, {}), 0x081084u);  // 00001 000, 00010 000, 10000 100
  EXPECT_EQ(pixel_of(16, 0xFFFF, {0xF800, 0x7E0, 0x1F}), W);
  EXPECT_EQ(pixel_of(16, 32 << 5, {0xF800, 0x7E0, 0x1F}), 130u << 8);  // 100000 10
  EXPECT_EQ(pixel_of(16, 24 << 11 | 48 << 5 | 24, {0xF800, 0x7E0, 0x1F}), 0xC6C3C6u) << "light grey";
  EXPECT_EQ(pixel_of(16, 0x1FFFF, {0x1F800, 0x7E0, 0x1F}), W) << "the part of a mask above 16 bits does not count";
}

TEST(BmpRead, SixteenBitsOfAFileAreThoseOfASurface) {
  for (uint32_t value = 0; value < 32; ++value) {
    const DibFile file{
        .bits = 16, .pixels = {static_cast<uint8_t>(value), 0, 0, 0}, .compression = 3, .masks = {0xF800, 0x7E0, 0x1F}};
    const Surface deep = read(file.bmp(), 32);
    const Surface same = read(file.bmp(), 16);
    EXPECT_EQ(GetPixel(deep, 0, 0), GetPixel(same, 0, 0)) << value;
  }
}

TEST(BmpRead, FieldsOfEveryWidthAreSpreadOverTheWholeRange) {
  for (uint32_t width = 1; width <= 32; ++width) {
    for (uint32_t shift = 0; shift + width <= 32; shift += 3) {
      const uint32_t full = width == 32 ? 0xFFFFFFFF : (1u << width) - 1;
      for (uint32_t value : {0u, 1u, full / 3, full / 2, full - 1, full}) {
        const uint32_t mask = full << shift;
        EXPECT_EQ(pixel_of(32, value << shift | ~mask, {mask, 0, 0}), spread(value, width) << 16)
            << width << ' ' << value;
        EXPECT_EQ(pixel_of(32, value << shift | ~mask, {0, mask, mask}), spread(value, width) * 0x101) << width;
      }
    }
  }
}

TEST(BmpRead, MasksBehindTheHeaderOrInsideOfIt) {
  const std::vector<uint32_t> masks = {0xFF, 0xFF00, 0xFF0000, 0xFF000000};
  for (uint32_t length : {40u, 52u, 56u, 108u, 124u}) {
    for (uint32_t compression : {3u, 6u}) {
      DibFile file{.bits = 32, .pixels = {1, 2, 3, 4}, .length = length, .compression = compression, .masks = masks};
      if (compression == 3 || length == 52) file.masks.pop_back();
      EXPECT_EQ(picture_of(file.bmp()), (Picture{{0x010203}})) << length << ' ' << compression;
      file.masks = {0xFF0000, 0, 0xFF, 0};
      EXPECT_EQ(picture_of(file.bmp()), (Picture{{0x030001}})) << length << ' ' << compression;
    }
  }
  const DibFile usual{.bits = 32, .pixels = {1, 2, 3, 4}, .compression = 3, .masks = {0xFF0000, 0xFF00, 0xFF}};
  EXPECT_EQ(picture_of(usual.bmp()), (Picture{{0x030201}})) << "the usual order";
}

TEST(BmpRead, AlphaIsIgnored) {
  const DibFile file{.width = 2, .bits = 32, .pixels = {1, 2, 3, 0, 4, 5, 6, 128}};
  EXPECT_EQ(picture_of(file.bmp()), (Picture{{0x030201, 0x060504}}));
  EXPECT_EQ(read(file.bmp()).row32(0)[0], 0xFF030201u);
}

TEST(BmpRead, SurfacesOfEveryDepth) {
  for (int depth : {24, 16, 8}) {
    const Surface s = read(two_by_two().bmp(), depth);
    EXPECT_EQ(s.depth(), depth);
    EXPECT_EQ(picture_of(s), TWO_BY_TWO_SHOWN) << depth;
  }
  const DibFile grey{.pixels = {100, 100, 100, 0}};
  const Surface s = read(grey.bmp(), 16);
  EXPECT_EQ(GetPixel(s, 0, 0), s.to_colour(s.to_pixel(raster::RGB(100, 100, 100))));
}

TEST(BmpRead, WhatIsNoPictureIsInvalid) {
  EXPECT_EQ(error_of(Bytes{}), 481);
  EXPECT_EQ(error_of(Bytes{'B'}), 481);
  EXPECT_EQ(error_of(Bytes{'G', 'I', 'F', '8', '9', 'a', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}), 481);
  for (const auto& [compression, bits] : {std::pair{1u, 4u},
                                          {1u, 24u},
                                          {2u, 8u},
                                          {3u, 24u},
                                          {3u, 8u},
                                          {4u, 24u},
                                          {4u, 0u},
                                          {5u, 0u},
                                          {6u, 24u},
                                          {7u, 8u},
                                          {0u, 0u},
                                          {0u, 3u},
                                          {0u, 64u}}) {
    const DibFile file{.bits = bits, .pixels = Bytes(64), .compression = compression, .masks = {1, 2, 4}};
    EXPECT_EQ(error_of(file.bmp()), 481) << compression << ' ' << bits;
  }
  const DibFile fax{.bits = 1, .pixels = Bytes(64), .length = 64, .compression = 3};
  EXPECT_EQ(error_of(fax.bmp()), 481);
}

TEST(BmpRead, SidesThatCanNotBeAreInvalid) {
  for (const auto& [width, height] : {std::pair{0, 1},
                                      {1, 0},
                                      {-1, 1},
                                      {32768, 1},
                                      {1, 32768},
                                      {1, -32768},
                                      {1, INT32_MIN},
                                      {INT32_MIN, 1},
                                      {INT32_MAX, INT32_MAX}}) {
    for (uint32_t compression : {0u, 1u}) {
      const DibFile file{
          .width = width, .height = height, .bits = 8, .pixels = Bytes(200000), .compression = compression};
      EXPECT_EQ(error_of(file.bmp()), 481) << width << ' ' << height;
    }
  }
  const DibFile widest{.width = 32767, .bits = 1, .pixels = Bytes(4096, 255), .palette = {K, R}};
  EXPECT_EQ(picture_of(widest.bmp()), (Picture{std::vector<uint32_t>(32767, R)}));
  const DibFile tallest{.height = 32767, .bits = 1, .pixels = Bytes(size_t{4} * 32767, 255), .palette = {K, R}};
  EXPECT_EQ(picture_of(tallest.bmp()), Picture(32767, {R}));
}

TEST(BmpRead, SizeThatTheFileCanNotHoldTakesNoMemory) {
  const LittleMemory little;  // more would be error 7
  for (uint32_t bits : {1u, 8u, 24u, 32u}) {
    EXPECT_EQ(error_of(DibFile{.width = 32767, .height = 32767, .bits = bits, .pixels = Bytes(1000)}.bmp()), 481);
  }
}

TEST(BmpRead, FileCutAtEveryLength) {
  std::vector<DibFile> files = {two_by_two()};
  for (uint32_t length : {12u, 16u, 64u, 124u}) files.push_back(two_by_two()), files.back().length = length;
  for (uint32_t bits : {1u, 2u, 4u, 8u}) {
    const Bytes rows(bits == 8 ? 24 : 12, 0x1B);
    files.push_back({.width = 5, .height = 3, .bits = bits, .pixels = rows, .palette = FOUR_COLOURS});
    files.back().palette_entries = 4;
  }
  files.push_back(
      {.width = 3, .height = 2, .bits = 16, .pixels = Bytes(16), .compression = 3, .masks = {15, 240, 3840}});
  for (const DibFile& file : files) {
    const Bytes whole = file.bmp();
    EXPECT_EQ(error_of(whole), 0);
    for (size_t n = 0; n + 3 < whole.size(); ++n) {  // at most 3 bytes of padding may be missing
      EXPECT_EQ(error_of(Bytes(whole.begin(), whole.begin() + static_cast<ptrdiff_t>(n))), 481) << n;
    }
  }
}

TEST(BmpRead, AnyByteChangedGivesAPictureOrAnInvalidOne) {
  DibFile file{.width = 5, .height = 3, .bits = 4, .pixels = Bytes(12, 0x1B), .palette = FOUR_COLOURS};
  const Bytes whole = file.bmp();
  for (size_t i = 0; i < whole.size(); ++i) {
    for (uint8_t value : {0, 1, 2, 3, 4, 12, 127, 128, 255}) {
      Bytes changed = whole;
      changed[i] = value;
      const int error = error_of(changed);
      EXPECT_TRUE(error == 0 || error == 481) << i << ' ' << error;
    }
  }
}

TEST(BmpPack, PlainAndFastGiveTheSame) {
  std::mt19937 random(1);
  for (int n = 0; n < 200; ++n) {
    Bytes bgr(static_cast<size_t>(3 * n));  // exactly as long as the row, so that the sanitizer sees a byte too much
    for (auto& byte : bgr) byte = static_cast<uint8_t>(random());
    std::vector<uint32_t> plain(static_cast<size_t>(n)), fast(static_cast<size_t>(n));
    use_fast_forms(false);
    expand_24(bgr.data(), plain.data(), n);
    use_fast_forms(true);
    expand_24(bgr.data(), fast.data(), n);
    ASSERT_EQ(plain, fast) << n;
    for (auto& pixel : plain) pixel ^= static_cast<uint32_t>(random()) << 24;  // the fourth byte must not matter
    Bytes packed_plain(bgr.size()), packed_fast(bgr.size());
    use_fast_forms(false);
    pack_24(plain.data(), packed_plain.data(), n);
    use_fast_forms(true);
    pack_24(plain.data(), packed_fast.data(), n);
    ASSERT_EQ(packed_plain, bgr) << n;
    ASSERT_EQ(packed_fast, bgr) << n;
  }
}
