// Rounding to the integers of the system: ties to even, overflow at the ends of the type.
#include "platform/number.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace {

template <class F>
bool overflows(F convert, double value) {
  try {
    convert(value);
    return false;
  } catch (const RuntimeError& e) {
    return e.number == 6;
  }
}

TEST(Rounding, TiesGoToTheEvenNeighbour) {
  EXPECT_EQ(to_int16(0.5), 0);
  EXPECT_EQ(to_int16(1.5), 2);
  EXPECT_EQ(to_int16(2.5), 2);
  EXPECT_EQ(to_int16(-0.5), 0);
  EXPECT_EQ(to_int16(-1.5), -2);
  EXPECT_EQ(to_int32(100000.5), 100000);
  EXPECT_EQ(to_int32(-100001.5), -100002);
  EXPECT_EQ(to_int32(0.49999999999999994), 0);  // where adding one half would give 1
}

TEST(Rounding, WhatTheTypeCanNotHoldIsAnOverflow) {
  EXPECT_EQ(to_int16(32767.4999), 32767);
  EXPECT_TRUE(overflows(to_int16, 32767.5));
  EXPECT_EQ(to_int16(-32768.5), -32768);
  EXPECT_TRUE(overflows(to_int16, std::nextafter(-32768.5, -40000)));
  EXPECT_EQ(to_int32(2147483647.499), 2147483647);
  EXPECT_TRUE(overflows(to_int32, 2147483647.5));
  EXPECT_EQ(to_int32(-2147483648.5), std::numeric_limits<int32_t>::min());
  EXPECT_TRUE(overflows(to_int32, -2147483649.0));
  EXPECT_TRUE(overflows(to_int16, std::nan("")));
  EXPECT_TRUE(overflows(to_int32, 1e300));
  EXPECT_TRUE(overflows(to_int32, -std::numeric_limits<double>::infinity()));
}

TEST(Rounding, IsThatOfTheProcessor) {
  std::mt19937 random(7);
  for (int i = 0; i < 100000; ++i) {
    const double halves = static_cast<double>(random() % 400000) / 2 - 100000;
    const double value = halves + (i % 3 - 1) * 1e-9;
    ASSERT_EQ(to_int32(value), std::nearbyint(value)) << value;
  }
}

}  // namespace
