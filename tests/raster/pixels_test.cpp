#include "raster_testing.h"

namespace raster {
namespace {

TEST(Pixels, OutsideAnswersAllBitsSetAndPaintsNothing) {
  for (const int depth : {32, 24, 16, 8}) {
    Surface s(3, 2, depth, RED);
    s.take_touched();
    const int outside[][2] = {{-1, 0}, {0, -1}, {3, 0}, {0, 2}, {INT32_MIN, 0}, {INT32_MAX, INT32_MAX}};
    for (const auto& p : outside) {
      EXPECT_EQ(GetPixel(s, p[0], p[1]), 0xFFFFFFFFu);
      SetPixelV(s, p[0], p[1], BLUE);
    }
    EXPECT_EQ(text_of(s), rows({"rrr", "rrr"}));
    EXPECT_TRUE(s.take_touched().empty());
    SetPixelV(s, 2, 1, BLUE);
    EXPECT_EQ(text_of(s), rows({"rrr", "rrb"}));
    const Rect r = s.take_touched();
    EXPECT_EQ(r.left, 2);
    EXPECT_EQ(r.top, 1);
    EXPECT_EQ(r.right, 3);
    EXPECT_EQ(r.bottom, 2);
  }
}

TEST(Pixels, RecordTellsSizeAndRowBytesMadeEven) {
  const struct {
    int depth, width, row_bytes;
  } expected[] = {{32, 3, 12}, {24, 3, 10}, {24, 4, 12}, {24, 1, 4}, {16, 3, 6}, {8, 3, 4}, {8, 4, 4}, {8, 0, 0}};
  for (const auto& e : expected) {
    const BITMAP b = GetObjectA(Surface(e.width, 7, e.depth));
    EXPECT_EQ(b.bmType, 0);
    EXPECT_EQ(b.bmWidth, e.width);
    EXPECT_EQ(b.bmHeight, 7);
    EXPECT_EQ(b.bmWidthBytes, e.row_bytes) << e.depth << " " << e.width;
    EXPECT_EQ(b.bmPlanes, 1);
    EXPECT_EQ(b.bmBitsPixel, e.depth);
  }
}

TEST(Pixels, BytesAreBlueGreenRedFromTheTopRow) {
  Surface s(1, 2, 32, RGB(1, 2, 3));
  SetPixelV(s, 0, 1, RGB(4, 5, 6));
  uint8_t bytes[8] = {};
  EXPECT_EQ(GetBitmapBits(s, 8, bytes), 8);
  const uint8_t expected[] = {3, 2, 1, 0xFF, 6, 5, 4, 0xFF};
  for (int i = 0; i < 8; ++i) EXPECT_EQ(bytes[i], expected[i]) << i;

  // An odd row has one more byte, which is no pixel's.
  Surface t(1, 2, 24, RGB(1, 2, 3));
  SetPixelV(t, 0, 1, RGB(4, 5, 6));
  EXPECT_EQ(GetBitmapBits(t, 8, bytes), 8);
  const uint8_t odd[] = {3, 2, 1, 0, 6, 5, 4, 0};
  for (int i = 0; i < 8; ++i) EXPECT_EQ(bytes[i], odd[i]) << i;
}

TEST(Pixels, BytesGoOutAndInAtEveryDepthAndWidth) {
  Random random(2);
  for (const int depth : {32, 24, 16, 8}) {
    for (int width = 1; width <= 20; ++width) {
      Surface s(width, 5, depth), t(width, 5, depth);
      make_noise(s, random);
      const BITMAP b = GetObjectA(s);
      const int size = b.bmWidthBytes * b.bmHeight;
      std::vector<uint8_t> bytes(static_cast<size_t>(size));
      EXPECT_EQ(GetBitmapBits(s, size + 100, bytes.data()), size);
      EXPECT_EQ(SetBitmapBits(t, size + 100, bytes.data()), size);
      EXPECT_EQ(colours(s), colours(t));
    }
  }
}

TEST(Pixels, FewerBytesMoveFewerPixels) {
  Surface s(2, 3, 32, RED);
  s.take_touched();
  const uint8_t blue[] = {255, 0, 0, 0, 255, 0, 0, 0, 255, 0, 0, 0};
  EXPECT_EQ(SetBitmapBits(s, 12, blue), 12);
  EXPECT_EQ(text_of(s), rows({"bb", "br", "rr"}));
  EXPECT_EQ(s.take_touched().bottom, 2);
  EXPECT_EQ(SetBitmapBits(s, 0, blue), 0);
  EXPECT_EQ(SetBitmapBits(s, -4, blue), 0);
  uint8_t bytes[12] = {9, 9, 9, 9, 9, 9};
  EXPECT_EQ(GetBitmapBits(s, 5, bytes), 5);
  EXPECT_EQ(bytes[4], 255);
  EXPECT_EQ(bytes[5], 9);
  EXPECT_EQ(GetBitmapBits(s, -1, bytes), 0);
}

TEST(Pixels, TheFourthByteIsForced) {
  Surface s(2, 1);
  const uint8_t bytes[] = {1, 2, 3, 0, 4, 5, 6, 7};
  SetBitmapBits(s, 8, bytes);
  expect_opaque(s);
  EXPECT_EQ(GetPixel(s, 1, 0), RGB(6, 5, 4));
}

}  // namespace
}  // namespace raster
