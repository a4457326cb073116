// Plain against fast: an engine paints the same random case with both forms, and what can be seen must be the same byte
// by byte. Each case hangs on its number alone: KISO_CASE=N repeats it alone.
#pragma once

#include <cstdlib>
#include <cstring>
#include <random>

#include "platform/raster/fast.h"
#include "stage.h"

namespace twin {

using namespace kiso;  // NOLINT(google-build-using-namespace)
using raster::Surface;

class Random {
 public:
  explicit Random(uint32_t seed) : engine_(seed) {}
  int between(int low, int high) { return low + static_cast<int>(engine_() % static_cast<uint32_t>(high - low + 1)); }
  bool once_in(int n) { return between(1, n) == 1; }
  template <class T, size_t N>
  T one_of(const T (&items)[N]) {
    return items[between(0, static_cast<int>(N) - 1)];
  }

 private:
  std::mt19937 engine_;
};

// Runs check(random) for cases 1 to `count`, and stops at the first that fails.
template <class Check>
void each_case(uint32_t count, Check check) {
  const char* only = std::getenv("KISO_CASE");
  const uint32_t first = only ? static_cast<uint32_t>(std::strtoul(only, nullptr, 10)) : 1;
  const uint32_t last = only ? first : count;
  for (uint32_t n = first; n <= last; ++n) {
    Random random(n);
    check(random);
    ASSERT_FALSE(testing::Test::HasFailure()) << "KISO_CASE=" << n << " repeats it alone";
  }
}

inline Surface copy_of(const Surface& s) {
  Surface copy(s.width(), s.height(), s.depth());
  BitBlt(copy, 0, 0, s.width(), s.height(), s, 0, 0);
  return copy;
}

inline void expect_same_bytes(const Surface& a, const Surface& b) {
  ASSERT_EQ(a.width(), b.width());
  ASSERT_EQ(a.height(), b.height());
  const size_t bytes = static_cast<size_t>(a.width()) * static_cast<size_t>(a.depth() / 8);
  for (int y = 0; y < a.height(); ++y) {
    ASSERT_EQ(std::memcmp(a.row(y), b.row(y), bytes), 0) << "row " << y << " at depth " << a.depth();
  }
}

// The surfaces of the window that hold pictures.
inline PictureBox* const BOXES[] = {&PIC, &DRAW, &WORK, &WORK2, &WORK3, &WORK4, &UNDO, &M_REDRAW};

// All surfaces empty and of that depth.
inline void use_depth(int depth) {
  stage::desk().depth = depth;
  for (PictureBox* box : BOXES) {
    box->AutoRedraw(true);
    box->Move(box->Left(), box->Top(), 0, 0);
    box->Move(box->Left(), box->Top(), 1, 1);
  }
}

// Pixels of few colours: the two pen colours, and others near and far.
inline void fill_with_noise(Surface& s, Random& random) {
  Colour colours[6] = {RGB(TAR_R, TAR_G, TAR_B), RGB(DES_R, DES_G, DES_B)};
  for (Colour& c : colours) {
    if (&c >= colours + 2) c = RGB(random.between(0, 255), random.between(0, 255), random.between(0, 255));
  }
  const bool near = random.once_in(2);
  for (int y = 0; y < s.height(); ++y) {
    for (int x = 0; x < s.width(); ++x) {
      Colour c = random.one_of(colours);
      if (near && random.once_in(2)) {
        const auto shifted = [&](int v) { return std::clamp(v + random.between(-12, 12), 0, 255); };
        c = RGB(shifted(DES_R), shifted(DES_G), shifted(DES_B));
      }
      SetPixelV(s, x, y, c);
    }
  }
}

}  // namespace twin
