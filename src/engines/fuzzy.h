// Colours that are near to the destination colour, by FUZZY_H, FUZZY_S and FUZZY_V.
#pragma once

#include "frame/usr_def.h"

namespace kiso {

// Real numbers: H in degrees, S and V from 0 to 255. With wrap the window of hues goes over 0 degrees.
struct FuzzyBounds {
  double hHigh, hLow, sHigh, sLow, vHigh, vLow;
  bool wrap;
};
FuzzyBounds fuzzy_bounds(int h_range, int s_range, int v_range, int r, int g, int b);
// The bounds of S and V belong to them, those of H do not.
bool is_near(Colour c, const FuzzyBounds& bounds);

// Which pixels become target. The reverse has no shortcut for the destination colour itself: while the window of hues
// is empty it is not near to itself.
struct FuzzyRule {
  FuzzyBounds bounds;
  Colour destination, target;
  bool reverse;
  bool hits(Colour c) const {
    if (c == target) return false;
    if (!reverse && c == destination) return true;
    return is_near(c, bounds) != reverse;
  }
};
// WAIT_PROGRESS is told 0, then columns 0 to the width.
void change_fuzzy(Surface& s, const FuzzyRule& rule);

}  // namespace kiso
