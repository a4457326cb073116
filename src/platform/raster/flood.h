// Between the flood fills and their pixels: blocks of 8 x 8 pixels, bit 8 * row + column of a word each. A row of
// blocks is a band.
#pragma once

#include "platform/raster/surface.h"

namespace raster {

struct FloodBlock {
  uint64_t open;    // pixels that may be filled and are not yet
  uint64_t filled;  // those that are
  uint64_t seeds;   // those of the open ones that have been reached; the block waits while there are some
  int32_t next;     // column of the next waiting block of the band
};

// Pixels equal to the value may be filled, or with border those that differ from it.
struct FloodRule {
  uint32_t value;
  bool border;
  bool open(uint32_t pixel) const { return (pixel == value) != border; }
};

// Sets blocks first to end - 1 of a band: open by the rule, nothing filled.
void flood_compare(const Surface& s, int band, int first, int end, const FloodRule& rule, FloodBlock* blocks);
// Paints what is filled in blocks first to last of a band.
void flood_paint(Surface& s, int band, int first, int last, uint32_t pixel, const FloodBlock* blocks);

}  // namespace raster
