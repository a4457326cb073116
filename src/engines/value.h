// The brightness of pixels by a factor, hue and saturation kept.
#pragma once

#include "frame/usr_def.h"

namespace kiso {

// HSET_V as a factor, 0 or more.
double v_factor();
// V times factor, at most 1. The new components are truncated, so that also a factor of 1 may take one off.
Colour with_value(Colour c, double factor);
// n pixels of a row of a surface at depth 32, from its first one; those behind them, as many as make groups of eight,
// may change too.
void scale_row(uint32_t* pixels, int n, double factor);
// WAIT_PROGRESS is told 0, then columns 0 to the width.
void scale_value(Surface& s, double factor);

}  // namespace kiso
