#include "platform/raster/fast.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace raster {
namespace {

TEST(FastForms, AreOnUnlessTheEnvironmentSaysPlain) {
  setenv("KISO_PLAIN", "", 1);
  EXPECT_TRUE(fast_forms());
  setenv("KISO_PLAIN", "1", 1);
  EXPECT_TRUE(fast_forms()) << "asked once";
}

TEST(FastForms, AreOffWhereTheEnvironmentSaysPlain) {
  setenv("KISO_PLAIN", "1", 1);
  EXPECT_FALSE(fast_forms());
  EXPECT_FALSE(avx2());
}

TEST(FastForms, AreSwitchedBothWays) {
  use_fast_forms(false);
  EXPECT_FALSE(fast_forms());
  EXPECT_FALSE(avx2());
  use_fast_forms(true);
  EXPECT_TRUE(fast_forms());
}

}  // namespace
}  // namespace raster
