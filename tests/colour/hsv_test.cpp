// RGB to HSV and back: exact values, the order of the hues, and what a full sweep of the colours must hold.
#include <gtest/gtest.h>

#include <cmath>

#include "colour/colour.h"

namespace kiso {
namespace {

struct Hsv {
  double h, s, v;
};
Hsv hsv(int r, int g, int b) {
  Hsv out{-1, -1, -1};
  RGB_TO_HSV(r, g, b, out.h, out.s, out.v);
  return out;
}

struct Rgb {
  double r = -1, g = -1, b = -1;
  double s, v;  // as the conversion leaves them
};
Rgb rgb(double h, double s, double v) {
  Rgb out{.s = s, .v = v};
  HSV_TO_RGB(h, out.s, out.v, out.r, out.g, out.b);
  return out;
}
void expect_rgb(const Rgb& got, double r, double g, double b) {
  EXPECT_DOUBLE_EQ(got.r, r);
  EXPECT_DOUBLE_EQ(got.g, g);
  EXPECT_DOUBLE_EQ(got.b, b);
}

TEST(RgbToHsv, GreysHaveNeitherHueNorSaturation) {
  for (int grey = 0; grey <= 255; ++grey) {
    const Hsv got = hsv(grey, grey, grey);
    EXPECT_EQ(got.h, 0);
    EXPECT_EQ(got.s, 0);
    EXPECT_EQ(got.v, grey / 255.0);
  }
}

TEST(RgbToHsv, PureColoursLieSixtyDegreesApart) {
  const int pure[][3] = {{255, 0, 0}, {255, 255, 0}, {0, 255, 0}, {0, 255, 255}, {0, 0, 255}, {255, 0, 255}};
  for (int i = 0; i < 6; ++i) {
    const Hsv got = hsv(pure[i][0], pure[i][1], pure[i][2]);
    EXPECT_DOUBLE_EQ(got.h, 60 * i);
    EXPECT_EQ(got.s, 1);
    EXPECT_EQ(got.v, 1);
  }
}

TEST(RgbToHsv, RedWinsOverGreenAndGreenOverBlue) {
  EXPECT_DOUBLE_EQ(hsv(200, 200, 0).h, 60);   // the red branch: (g - b) / delta = 1
  EXPECT_DOUBLE_EQ(hsv(200, 0, 200).h, 300);  // the red branch: -1, and a turn added
  EXPECT_DOUBLE_EQ(hsv(0, 200, 200).h, 180);  // the green branch: 1 + 2
}

TEST(RgbToHsv, HueStaysFractional) {
  EXPECT_NEAR(hsv(255, 0, 1).h, 360 - 60 / 255.0, 1e-9);
  EXPECT_EQ(to_int32(hsv(255, 0, 1).h), 360);
}

TEST(RgbToHsv, SaturationOfAHalfTintRoundsTo127) { EXPECT_EQ(to_int32(255 * hsv(255, 128, 128).s), 127); }

TEST(HsvToRgb, EachSectorHasItsForm) {
  // V 1, S 1/2, thirty degrees into each sector: p 1/2, q and t 3/4
  expect_rgb(rgb(30, 0.5, 1), 1, 0.75, 0.5);
  expect_rgb(rgb(90, 0.5, 1), 0.75, 1, 0.5);
  expect_rgb(rgb(150, 0.5, 1), 0.5, 1, 0.75);
  expect_rgb(rgb(210, 0.5, 1), 0.5, 0.75, 1);
  expect_rgb(rgb(270, 0.5, 1), 0.75, 0.5, 1);
  expect_rgb(rgb(330, 0.5, 1), 1, 0.5, 0.75);
}

TEST(HsvToRgb, AFullTurnIsNone) {
  expect_rgb(rgb(360, 1, 1), 1, 0, 0);
  expect_rgb(rgb(0, 1, 1), 1, 0, 0);
  expect_rgb(rgb(720 + 120, 1, 1), 0, 1, 0);
}

TEST(HsvToRgb, HueIsRoundedToWholeDegreesTiesToEven) {
  expect_rgb(rgb(59.5, 1, 1), 1, 1, 0);  // 60: sector 1 with nothing of it gone
  expect_rgb(rgb(60.5, 1, 1), 1, 1, 0);
  expect_rgb(rgb(61.5, 1, 1), 1 - 2 / 60.0, 1, 0);  // 62
  expect_rgb(rgb(0.5, 1, 1), 1, 0, 0);
}

TEST(HsvToRgb, AHueThatRoundsBelowZeroSetsNothing) {
  for (const double h : {-0.6, -1.0, -30.0, -59.0, -60.0, -359.0, -360.0, -720.0, -1000.0}) {
    const Rgb got = rgb(h, 2, -1);
    EXPECT_EQ(got.r, -1) << h;
    EXPECT_EQ(got.g, -1) << h;
    EXPECT_EQ(got.b, -1) << h;
    EXPECT_EQ(got.s, 1) << h;
    EXPECT_EQ(got.v, 0) << h;
  }
  expect_rgb(rgb(-0.5, 1, 1), 1, 0, 0);  // rounds to 0
}

TEST(HsvToRgb, SaturationAndValueAreClampedInPlace) {
  Rgb got = rgb(0, 1.5, 7);
  EXPECT_EQ(got.s, 1);
  EXPECT_EQ(got.v, 1);
  expect_rgb(got, 1, 0, 0);
  got = rgb(0, -0.5, -3);
  EXPECT_EQ(got.s, 0);
  EXPECT_EQ(got.v, 0);
  expect_rgb(got, 0, 0, 0);
}

TEST(Sweep, RangesGreysAndTheWayBack) {
  constexpr int STEP = 5;  // divides 255, so full levels are met
  for (int r = 0; r <= 255; r += STEP) {
    for (int g = 0; g <= 255; g += STEP) {
      for (int b = 0; b <= 255; b += STEP) {
        const Hsv got = hsv(r, g, b);
        ASSERT_TRUE(got.h >= 0 && got.h < 360 && got.s >= 0 && got.s <= 1 && got.v >= 0 && got.v <= 1)
            << r << " " << g << " " << b;
        ASSERT_EQ(got.s == 0, r == g && g == b);
        // The way back loses only the fraction of the hue: half a degree is 1/120 of a sector, so at most 255/120.
        const Rgb back = rgb(got.h, got.s, got.v);
        ASSERT_NEAR(255 * back.r, r, 255 / 120.0 + 1e-9);
        ASSERT_NEAR(255 * back.g, g, 255 / 120.0 + 1e-9);
        ASSERT_NEAR(255 * back.b, b, 255 / 120.0 + 1e-9);
      }
    }
  }
}

// Round the edge of the colours, at every value and two saturations, the hue only grows.
TEST(Sweep, HueGrowsFromRedOverGreenAndBlue) {
  for (int high = 2; high <= 255; ++high) {
    for (const int low : {0, high / 2}) {
      double last = -1;
      const auto step = [&](int r, int g, int b) {
        const Hsv got = hsv(r, g, b);
        ASSERT_GT(got.h, last) << r << " " << g << " " << b;
        ASSERT_EQ(got.v, high / 255.0);
        last = got.h;
      };
      for (int up = low; up < high; ++up) step(high, up, low);
      for (int down = high; down > low; --down) step(down, high, low);
      for (int up = low; up < high; ++up) step(low, high, up);
      for (int down = high; down > low; --down) step(low, down, high);
      for (int up = low; up < high; ++up) step(up, low, high);
      for (int down = high; down > low; --down) step(high, low, down);
    }
  }
}

}  // namespace
}  // namespace kiso
