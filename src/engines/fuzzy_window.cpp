#include "engines/fuzzy_window.h"

#include "colour/colour.h"

namespace kiso {

namespace {

struct Hsv {
  float H, S, V;
  float s_level() const { return S * 255; }
  float v_level() const { return V * 255; }
};

Hsv single_hsv(int R, int G, int B) {
  double h = 0;
  double s = 0;
  double v = 0;
  RGB_TO_HSV(R, G, B, h, s, v);
  return {static_cast<float>(h), static_cast<float>(s), static_cast<float>(v)};
}

bool s_and_v_inside(const FuzzyWindow& w, const Hsv& c) {
  return c.s_level() >= w.sLow && c.s_level() <= w.sHigh && c.v_level() >= w.vLow && c.v_level() <= w.vHigh;
}

bool hue_inside(const FuzzyWindow& w, float h) {
  return w.wrap ? h < w.hHigh || h > w.hLow : w.hLow < h && h < w.hHigh;
}

// The first of from to end - 1 for which it is true, end if there is none; once true, it stays true.
template <class Test>
int first_true(int from, int end, Test test) {
  while (from < end) {
    const int middle = (from + end) / 2;
    if (test(middle)) {
      end = middle;
    } else {
      from = middle + 1;
    }
  }
  return from;
}

}  // namespace

FuzzyWindow fuzzy_window() {
  const Hsv c = single_hsv(DES_R, DES_G, DES_B);
  const auto bound = [](float level, int range) { return to_int16(level + static_cast<float>(range)); };
  FuzzyWindow w{c.H - FUZZY_H,
                c.H + FUZZY_H,
                bound(c.s_level(), -FUZZY_S),
                bound(c.s_level(), FUZZY_S),
                bound(c.v_level(), -FUZZY_V),
                bound(c.v_level(), FUZZY_V),
                false};
  if (w.hHigh > 360) {
    w.wrap = true;
    w.hHigh -= 360;
  }
  if (w.hLow < 0) {
    w.wrap = true;
    w.hLow += 360;
  }
  return w;
}

bool in_window(const FuzzyWindow& window, int R, int G, int B) {
  const Hsv c = single_hsv(R, G, B);
  return s_and_v_inside(window, c) && hue_inside(window, c.H);
}

void FuzzyLevels::set(const FuzzyWindow& window) {
  if (made_ && window == window_) return;
  window_ = window;
  made_ = true;
  last_pixel_ = 0;
  for (int greatest = 0; greatest < 256; ++greatest) {
    const auto level = [greatest](int least) { return single_hsv(greatest, least, least); };
    // S falls as the least component rises.
    const int first = first_true(0, greatest + 1, [&](int m) { return level(m).s_level() <= window.sHigh; });
    const int end = first_true(0, greatest + 1, [&](int m) { return level(m).s_level() < window.sLow; });
    const float v = level(greatest).v_level();
    const bool v_inside = v >= window.vLow && v <= window.vHigh;
    least_[static_cast<size_t>(greatest)] = v_inside ? Interval{first, end - 1} : Interval{1, 0};
  }
}

bool FuzzyLevels::holds(uint32_t rgb32) {
  const int R = rgb32 >> 16 & 255;
  const int G = rgb32 >> 8 & 255;
  const int B = rgb32 & 255;
  const int least = std::min({R, G, B});
  const Interval& passes = least_[static_cast<size_t>(std::max({R, G, B}))];
  if (least < passes.first || least > passes.last) return false;
  if (rgb32 != last_pixel_) {
    last_pixel_ = rgb32;
    last_answer_ = hue_inside(window_, single_hsv(R, G, B).H);
  }
  return last_answer_;
}

}  // namespace kiso
