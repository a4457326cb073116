// What the Fuzzy Mask Pen takes for near to the destination colour. It reckons in single precision, with whole bounds.
#pragma once

#include <array>
#include <cstdint>

#include "frame/usr_def.h"

namespace kiso {

// Hues between the bounds, in degrees and without them, or with wrap outside of both; S and V from 0 to 255 with
// theirs.
struct FuzzyWindow {
  float hLow, hHigh;
  int16_t sLow, sHigh, vLow, vHigh;
  bool wrap;
  bool operator==(const FuzzyWindow&) const = default;
};

FuzzyWindow fuzzy_window();  // by FUZZY_H, FUZZY_S, FUZZY_V round the destination colour
bool in_window(const FuzzyWindow& window, int R, int G, int B);

// The same, faster: S and V hang on a pixel's greatest and least component alone, and for each greatest one the least
// ones that pass are an interval.
class FuzzyLevels {
 public:
  void set(const FuzzyWindow& window);  // nothing if it has been set to the same
  bool holds(uint32_t rgb32);

 private:
  FuzzyWindow window_{};
  bool made_ = false;
  struct Interval {
    int first, last;
  };
  std::array<Interval, 256> least_{};  // by the greatest component
  uint32_t last_pixel_ = 0;            // no pixel is 0
  bool last_answer_ = false;
};

}  // namespace kiso
