// The clipboard of a program without a display.
#include "platform/forms/clipboard.h"

#include <gtest/gtest.h>

#include <cstring>

#include "platform/error.h"
#include "platform/raster/draw.h"

namespace {

using namespace forms;

raster::Surface motley(int depth) {
  raster::Surface s(5, 3, depth);
  for (int y = 0; y < 3; ++y) {
    for (int x = 0; x < 5; ++x)
      SetPixelV(s, x, y, static_cast<raster::Colour>(0x123456 * (x + 1) * (y + 2)) & 0xFFFFFF);
  }
  return s;
}

int number_of(void (*procedure)()) {
  try {
    procedure();
  } catch (const RuntimeError& e) {
    return e.number;
  }
  return 0;
}

TEST(Clipboard, HoldsNothingAtFirst) {
  EXPECT_FALSE(Clipboard::GetFormat(2));
  EXPECT_FALSE(Clipboard::GetFormat(8));
  EXPECT_EQ(number_of([] { Clipboard::GetData(); }), 460);
}

TEST(Clipboard, GivesAPictureBackAsItWasInEveryDepth) {
  for (const int depth : {32, 24, 16, 8}) {
    const raster::Surface given = motley(depth);
    Clipboard::SetData(given, 2);
    for (int times = 0; times < 2; ++times) {
      const raster::Surface got = Clipboard::GetData();
      ASSERT_EQ(got.depth(), depth);
      ASSERT_EQ(got.width(), 5);
      ASSERT_EQ(got.height(), 3);
      for (int y = 0; y < 3; ++y) {
        for (int x = 0; x < 5; ++x) ASSERT_EQ(GetPixel(got, x, y), GetPixel(given, x, y));
      }
    }
  }
}

TEST(Clipboard, KeepsItsCopyWhenThePictureChanges) {
  raster::Surface picture = motley(32);
  const raster::Colour was = GetPixel(picture, 1, 1);
  Clipboard::SetData(picture);
  picture.fill(0);
  EXPECT_EQ(GetPixel(Clipboard::GetData(), 1, 1), was);
}

TEST(Clipboard, HasAPictureInBothFormatsAndInNoOther) {
  Clipboard::SetData(motley(32), 8);
  EXPECT_TRUE(Clipboard::GetFormat(2));
  EXPECT_TRUE(Clipboard::GetFormat(8));
  EXPECT_FALSE(Clipboard::GetFormat(1));
}

TEST(Clipboard, ForgetsWhenCleared) {
  Clipboard::SetData(motley(32));
  Clipboard::Clear();
  EXPECT_FALSE(Clipboard::GetFormat(2));
}

TEST(Clipboard, TakesNoFormatButThoseOfBitmapsAndNoEmptySurface) {
  EXPECT_EQ(number_of([] { Clipboard::SetData(motley(32), 1); }), 460);
  EXPECT_EQ(number_of([] { Clipboard::SetData(raster::Surface()); }), 460);
}

}  // namespace
