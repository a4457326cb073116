// How the pens that change each pixel by itself change their tile.
#pragma once

#include "engines/depth.h"
#include "engines/tile.h"
#include "platform/raster/fast.h"

namespace kiso {

// Changes WORK's tile the way that the depth asks for: by_call gives the new colour of a packed one, by_bytes changes
// the bytes of a pixel, and by_row is the fast form of that: it changes n pixels 0xFFRRGGBB.
template <class ByCall, class ByBytes, class ByRow>
void change_tile(Engine engine, ByCall by_call, ByBytes by_bytes, ByRow by_row) {
  Surface& work = WORK;
  switch (way_of(engine, work)) {
    case Way::leave: return;
    case Way::pixel_calls:
      return each_pixel(work, PEN_SIZE, PEN_SIZE, [&](int /*x*/, int /*y*/, Colour c) { return by_call(c); });
    case Way::byte_buffer: break;
  }
  if (!fast_forms()) return each_bytes(work, [&](int /*x*/, int /*y*/, uint8_t* bytes) { by_bytes(bytes); });
  for (int y = 0; y < PEN_SIZE; ++y) by_row(work.row32(y), PEN_SIZE);
}

// A rule that gives a pixel's new value, for a row.
template <class Rule>
auto word_by_word(Rule rule) {
  return [rule](uint32_t* row, int n) {
    for (int x = 0; x < n; ++x) row[x] = rule(row[x]);
  };
}

}  // namespace kiso
