// All 16,777,216 colours through both conversions.
#include "colour/colour.h"
#include "harness.h"

namespace bench {

namespace {

constexpr int REDS = 256, COLOURS_OF_A_RED = 1 << 16;

struct Hsv {
  double h, s, v;
};

// The colours of one red level, which stay in the cache.
std::vector<Hsv> hsv(COLOURS_OF_A_RED);
std::vector<kiso::Colour> back(COLOURS_OF_A_RED);

void convert(int red) {
  for (int i = 0; i < COLOURS_OF_A_RED; ++i) {
    Hsv& c = hsv[static_cast<size_t>(i)];
    kiso::RGB_TO_HSV(red, i >> 8, i & 255, c.h, c.s, c.v);
  }
}

double rgb_to_hsv() {
  return timed([] {
    for (int red = 0; red < REDS; ++red) convert(red);
  });
}

double hsv_to_rgb() {
  double time = 0;
  for (int red = 0; red < REDS; ++red) {
    convert(red);
    time += timed([] {
      for (size_t i = 0; i < hsv.size(); ++i) {
        double r = 0, g = 0, b = 0;
        kiso::HSV_TO_RGB(hsv[i].h, hsv[i].s, hsv[i].v, r, g, b);
        back[i] = kiso::RGB(to_int32(255 * r), to_int32(255 * g), to_int32(255 * b));
      }
    });
  }
  return time;
}

}  // namespace

void add_colour_rows(Rows& rows) {
  constexpr double COLOURS = double{REDS} * COLOURS_OF_A_RED;
  rows.push_back({"RGB_TO_HSV", "all 16,777,216 colours, a colour", rgb_to_hsv, {}, COLOURS, "ns"});
  rows.push_back({"HSV_TO_RGB", "the same back, rounded to bytes", hsv_to_rgb, {}, COLOURS, "ns"});
}

}  // namespace bench
