#include <gtest/gtest.h>

#include "raster/picture_builder.h"

using namespace raster;

namespace {

// An icon or cursor of these pictures; the directory tells sizes of 1 by 1.
Bytes ico(const std::vector<Bytes>& pictures, uint32_t type = 1) {
  Bytes out;
  for (uint32_t v : {0u, type, static_cast<uint32_t>(pictures.size())}) put16(out, v);
  size_t at = 6 + 16 * pictures.size();
  for (const Bytes& picture : pictures) {
    append(out, {1, 1, 0, 0, 1, 0, 24, 0});
    put32(out, static_cast<uint32_t>(picture.size()));
    put32(out, static_cast<uint32_t>(at));
    at += picture.size();
  }
  for (const Bytes& picture : pictures) append(out, picture);
  return out;
}

// The header of an icon's bitmap counts the rows of colours and those of the mask.
Bytes entry(DibFile file, const Bytes& mask) {
  file.height *= 2;
  Bytes out = file.head();
  append(out, file.pixels);
  append(out, mask);
  return out;
}

// w by h in one colour of 24 bits without a hole.
Bytes plain(int w, int h, uint32_t colour) {
  Bytes pixels;
  for (int y = 0; y < h; ++y) {
    for (int x = 0; x < w; ++x) {
      for (int shift = 0; shift < 24; shift += 8) pixels.push_back(static_cast<uint8_t>(colour >> shift));
    }
    pixels.resize((pixels.size() + 3) / 4 * 4);
  }
  return entry({.width = w, .height = h, .pixels = pixels}, Bytes(static_cast<size_t>((w + 31) / 32 * 4 * h)));
}

// The beginning of a PNG, as far as it is looked at, and a byte that the decoder below looks at.
Bytes png(uint32_t w, uint32_t h, uint8_t depth, uint8_t kind, uint8_t alpha) {
  Bytes out{0x89, 'P', 'N', 'G', 13, 10, 26, 10, 0, 0, 0, 13, 'I', 'H', 'D', 'R'};
  for (uint32_t side : {w, h}) {
    for (int shift = 24; shift >= 0; shift -= 8) out.push_back(static_cast<uint8_t>(side >> shift));
  }
  append(out, {depth, kind, 0, 0, 0, alpha});
  return out;
}

// Red with the alpha of the last byte.
bool red_png(const uint8_t* bytes, size_t n, PngPicture& out) {
  out.width = bytes[19], out.height = bytes[23];
  for (int i = 0; i < out.width * out.height; ++i) append(out.bgra, {0, 0, 255, bytes[n - 1]});
  return true;
}
bool broken_png(const uint8_t*, size_t, PngPicture&) { return false; }
bool short_png(const uint8_t*, size_t, PngPicture& out) {
  out.width = 2, out.height = 2;
  out.bgra.resize(15);
  return true;
}
bool other_png(const uint8_t*, size_t, PngPicture& out) {
  out.width = 1, out.height = 1;
  out.bgra.resize(4);
  return true;
}

int error_of_png(const Bytes& bytes, PngDecoder decoder) {
  return error_of([&] { read(bytes, 32, decoder); });
}

}  // namespace

TEST(IcoRead, EveryDepthWithAMask) {
  const Bytes right_is_hole = {0x40, 0, 0, 0};
  const std::vector<uint32_t> colours = {K, R};
  for (const auto& [bits, pixels] :
       {std::pair<uint32_t, Bytes>{1, {0x80, 0, 0, 0}}, {4, {0x10, 0, 0, 0}}, {8, {1, 0, 0, 0}}}) {
    const DibFile file{.width = 2, .bits = bits, .pixels = pixels, .palette = colours, .palette_entries = 2};
    EXPECT_EQ(picture_of(ico({entry(file, right_is_hole)})), (Picture{{R, W}})) << bits;
  }
  const DibFile deep{.width = 2, .bits = 24, .pixels = {0, 0, 255, 0, 0, 0, 9, 9}};
  EXPECT_EQ(picture_of(ico({entry(deep, right_is_hole)})), (Picture{{R, W}}));
  const DibFile deepest{.width = 2, .bits = 32, .pixels = {0, 0, 255, 0, 0, 0, 0, 0}};
  EXPECT_EQ(picture_of(ico({entry(deepest, right_is_hole)})), (Picture{{R, W}})) << "all alpha is 0";
}

TEST(IcoRead, PaletteThatTheHeaderDoesNotCount) {
  std::vector<uint32_t> colours(16, K);
  colours[9] = G;
  const DibFile file{.width = 2, .bits = 4, .pixels = {0x90, 0, 0, 0}, .palette = colours};
  EXPECT_EQ(picture_of(ico({entry(file, Bytes(4))})), (Picture{{G, K}}));
}

TEST(IcoRead, RowsOfColoursAndMaskGoUpwards) {
  const DibFile file{.height = 2, .pixels = {0, 0, 255, 0, 255, 0, 0, 0}};
  EXPECT_EQ(picture_of(ico({entry(file, Bytes(8))})), (Picture{{B}, {R}}));
  const DibFile black{.height = 2, .pixels = Bytes(8)};
  EXPECT_EQ(picture_of(ico({entry(black, {0x80, 0, 0, 0, 0, 0, 0, 0})})), (Picture{{K}, {W}}));
}

TEST(IcoRead, ColourInAHoleInvertsTheWhite) {
  const DibFile file{.width = 2, .pixels = {255, 255, 255, 0, 0, 255, 0, 0}};
  EXPECT_EQ(picture_of(ico({entry(file, {0xC0, 0, 0, 0})})), (Picture{{K, 0x00FFFF}}));
}

TEST(IcoRead, AlphaIsBlendedOnWhite) {
  // full, none, and 51 of 255: one fifth of the colour and four fifths of white
  const DibFile file{.width = 3, .bits = 32, .pixels = {0, 0, 255, 255, 0, 0, 255, 0, 0, 100, 255, 51}};
  EXPECT_EQ(picture_of(ico({entry(file, {0xE0, 0, 0, 0})})), (Picture{{R, W, 0xFFE0CC}}))
      << "and the mask does not count";
  EXPECT_EQ(read(ico({entry(file, {0, 0, 0, 0})})).row32(0)[1], 0xFFFFFFFFu);
  EXPECT_EQ(picture_of(ico({entry(file, {})})), (Picture{{R, W, 0xFFE0CC}})) << "and need not be there";
}

TEST(IcoRead, WithoutAlphaAndMaskAllIsSolid) {
  const DibFile file{.width = 2, .bits = 32, .pixels = {0, 0, 255, 0, 255, 0, 0, 0}};
  EXPECT_EQ(picture_of(ico({entry(file, {})})), (Picture{{R, B}}));
  EXPECT_EQ(error_of(ico({entry({.width = 1, .pixels = {0, 0, 0, 0}}, {})})), 481) << "other depths need their mask";
}

TEST(IcoRead, LargestPictureThenTheDeepest) {
  const Bytes few{entry({.width = 3, .height = 2, .bits = 1, .pixels = Bytes(8, 0), .palette = {G, K}}, Bytes(8))};
  EXPECT_EQ(picture_of(ico({plain(2, 2, R), plain(3, 2, B), plain(1, 5, G)})), Picture(2, {B, B, B}));
  EXPECT_EQ(picture_of(ico({few, plain(3, 2, B)})), Picture(2, {B, B, B}));
  EXPECT_EQ(picture_of(ico({plain(3, 2, B), few})), Picture(2, {B, B, B}));
  EXPECT_EQ(picture_of(ico({plain(2, 2, B), few})), Picture(2, {G, G, G})) << "size counts before depth";
  EXPECT_EQ(picture_of(ico({plain(1, 1, R), plain(1, 1, B)})), Picture(1, {R})) << "the first of equals";
}

TEST(IcoRead, CursorsAreReadToo) {
  EXPECT_EQ(picture_of(ico({plain(2, 1, R)}, 2)), Picture(1, {R, R}));
  EXPECT_EQ(error_of(ico({plain(2, 1, R)}, 3)), 481);
  EXPECT_EQ(error_of(ico({plain(2, 1, R)}, 0)), 481);
}

TEST(IcoRead, BrokenPicturesArePassedOver) {
  Bytes odd = plain(9, 2, R);
  odd[8] = 3;  // rows of colours and mask can not be equally many
  Bytes packed = plain(9, 2, R);
  packed[16] = 1;
  const Bytes no_pixels = DibFile{.width = 100, .height = 200}.head();
  EXPECT_EQ(picture_of(ico({odd, packed, plain(1, 1, B), no_pixels, {}})), Picture(1, {B}));
  EXPECT_EQ(error_of(ico({odd})), 481);
  EXPECT_EQ(error_of(ico({})), 481);
  Bytes more_told = ico({plain(1, 1, B)});
  more_told[4] = more_told[5] = 255;
  EXPECT_EQ(picture_of(more_told), Picture(1, {B}));
}

TEST(IcoRead, PngPicturesGoThroughTheDecoder) {
  const Bytes bytes = ico({plain(2, 2, B), png(3, 1, 8, 6, 255), png(3, 2, 8, 6, 51)});
  EXPECT_EQ(picture_of(read(bytes, 32, red_png)), Picture(2, {0xFFCCCC, 0xFFCCCC, 0xFFCCCC}));
  EXPECT_EQ(picture_of(bytes), Picture(2, {B, B})) << "without a decoder they are passed over";
  EXPECT_EQ(error_of(ico({png(3, 2, 8, 6, 51)})), 481);
  const Bytes equal = ico({plain(2, 2, B), png(2, 2, 8, 6, 255)});
  EXPECT_EQ(picture_of(read(equal, 32, red_png)), Picture(2, {R, R})) << "32 bits before 24";
}

TEST(IcoRead, PngThatCanNotBeRead) {
  const Bytes bytes = ico({png(2, 2, 8, 6, 255)});
  EXPECT_EQ(error_of_png(bytes, red_png), 0);
  EXPECT_EQ(error_of_png(bytes, broken_png), 481);
  EXPECT_EQ(error_of_png(bytes, short_png), 481);
  EXPECT_EQ(error_of_png(bytes, other_png), 481);
  EXPECT_EQ(error_of_png(ico({png(0, 2, 8, 6, 255)}), red_png), 481);
  EXPECT_EQ(error_of_png(ico({png(0x80000002, 2, 8, 6, 255)}), red_png), 481);
  EXPECT_EQ(error_of_png(ico({png(2, 2, 8, 5, 255)}), red_png), 481) << "no such kind";
  Bytes shorter_told = bytes;
  shorter_told[14] = 25;
  EXPECT_EQ(error_of_png(shorter_told, red_png), 481) << "its header is 26 bytes";
  const LittleMemory little;
  EXPECT_EQ(error_of(ico({DibFile{.width = 32767, .height = 32766, .bits = 32, .pixels = Bytes(1000)}.head()})), 481);
  EXPECT_EQ(error_of_png(ico({png(20000, 20000, 8, 6, 255)}), red_png), 481) << "so few bytes can not hold it";
}

TEST(IcoRead, SurfacesOfEveryDepth) {
  for (int depth : {24, 16, 8}) {
    const Surface s = read(ico({plain(3, 2, B)}), depth);
    EXPECT_EQ(s.depth(), depth);
    EXPECT_EQ(picture_of(s), Picture(2, {B, B, B}));
  }
}

TEST(IcoRead, FileCutAtEveryLength) {
  const DibFile alpha{.width = 2, .bits = 32, .pixels = {0, 0, 255, 255, 0, 0, 255, 1}};
  for (const Bytes& whole :
       {ico({plain(3, 2, R)}), ico({entry(alpha, Bytes(4))}), ico({plain(1, 1, B), png(2, 2, 8, 6, 255)})}) {
    for (size_t n = 0; n < whole.size(); ++n) {
      const Bytes cut(whole.begin(), whole.begin() + static_cast<ptrdiff_t>(n));
      const int error = error_of_png(cut, red_png);
      EXPECT_TRUE(error == 0 || error == 481) << n << ' ' << error;
    }
  }
  const Bytes whole = ico({plain(3, 2, R)});
  for (size_t n = 0; n + 3 < whole.size(); ++n) {  // of the last row of the mask three bytes are padding
    EXPECT_EQ(error_of(Bytes(whole.begin(), whole.begin() + static_cast<ptrdiff_t>(n))), 481) << n;
  }
}

TEST(IcoRead, AnyByteChangedGivesAPictureOrAnInvalidOne) {
  const Bytes whole = ico({plain(3, 2, R), png(2, 2, 8, 6, 255)});
  for (size_t i = 0; i < whole.size(); ++i) {
    for (uint8_t value : {0, 1, 2, 4, 16, 32, 127, 128, 255}) {
      Bytes changed = whole;
      changed[i] = value;
      const int error = error_of_png(changed, red_png);
      EXPECT_TRUE(error == 0 || error == 481) << i << ' ' << error;
    }
  }
}
