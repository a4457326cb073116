// All 16,777,216 colours through RGB_TO_HSV and back: nanoseconds a conversion, and what the way back loses.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <vector>

#include "frame/usr_sub.h"

using namespace kiso;

namespace {

constexpr int COLOURS = 1 << 24;

template <class F>
double nanoseconds_each(F&& run) {
  const std::clock_t begin = std::clock();  // time of the processor, which other programs do not lengthen
  run();
  return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC * 1e9 / COLOURS;
}

}  // namespace

int main() {
  struct Hsv {
    double h, s, v;
  };
  std::vector<Hsv> one_red(1 << 16);  // the colours of one red level, which stay in the cache between the two ways
  double there = 0, back = 0;
  int exact = 0, largest_loss = 0;
  for (int r = 0; r < 256; ++r) {
    there += nanoseconds_each([&] {
      for (int i = 0; i < 1 << 16; ++i) {
        Hsv& c = one_red[static_cast<size_t>(i)];
        RGB_TO_HSV(r, i >> 8, i & 255, c.h, c.s, c.v);
      }
    });
    std::vector<uint32_t> colours(1 << 16);
    back += nanoseconds_each([&] {
      for (size_t i = 0; i < one_red.size(); ++i) {
        double R = 0, G = 0, B = 0;
        HSV_TO_RGB(one_red[i].h, one_red[i].s, one_red[i].v, R, G, B);
        colours[i] = RGB(to_int32(255 * R), to_int32(255 * G), to_int32(255 * B));
      }
    });
    for (int i = 0; i < 1 << 16; ++i) {
      int32_t R, G, B;
      unpack_colour(colours[static_cast<size_t>(i)], R, G, B);
      const int loss = std::max({std::abs(R - r), std::abs(G - (i >> 8)), std::abs(B - (i & 255))});
      exact += loss == 0;
      largest_loss = std::max(largest_loss, loss);
    }
  }
  std::printf("RGB_TO_HSV %.1f ns a colour\nHSV_TO_RGB %.1f ns a colour, rounded to bytes\n", there, back);
  std::printf("%d of %d colours come back exactly, the others within %d\n", exact, COLOURS, largest_loss);
}
