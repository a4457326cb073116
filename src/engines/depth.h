// How the engines reach the pixels of their work surfaces. Which way one takes hangs on the engine and on the depth of
// the surface, and stands in one table.
#pragma once

#include <cstdint>
#include <iterator>

#include "platform/raster/draw.h"

namespace kiso {

enum class Engine : uint8_t {
  PEN_MASK,
  PEN_MASK_FUZZY,
  PEN_MASK_REV,
  PEN_V,
  PEN_THRU,
  SPRAY_AIR,
  CHG_COLOR,
  CHG_COLOR_REV,
  SPRAY_AIR_MASK,
  SPRAY_DOT,
  SPRAY_MASK,
  V_BOX,
  CHG_COLOR_FUZZY,
  CHG_COLOR_FUZZY_REV,
  SIDE_CHANGE,
};

enum class Way : uint8_t {
  leave,        // the pixels stay as they are
  pixel_calls,  // one by one, as packed colours
  byte_buffer,  // as bytes, the whole surface
};

struct DepthRow {
  Engine engine;
  Way at32, at24, at16, other;
};

inline constexpr DepthRow DEPTH_SWITCH[] = {
    {Engine::PEN_MASK, Way::byte_buffer, Way::pixel_calls, Way::pixel_calls, Way::leave},
    {Engine::PEN_MASK_FUZZY, Way::byte_buffer, Way::pixel_calls, Way::pixel_calls, Way::leave},
    {Engine::PEN_MASK_REV, Way::byte_buffer, Way::pixel_calls, Way::pixel_calls, Way::pixel_calls},
    {Engine::PEN_V, Way::byte_buffer, Way::pixel_calls, Way::pixel_calls, Way::pixel_calls},
    {Engine::PEN_THRU, Way::byte_buffer, Way::pixel_calls, Way::pixel_calls, Way::pixel_calls},
    {Engine::SPRAY_AIR, Way::byte_buffer, Way::pixel_calls, Way::pixel_calls, Way::pixel_calls},
    {Engine::CHG_COLOR, Way::byte_buffer, Way::pixel_calls, Way::pixel_calls, Way::pixel_calls},
    {Engine::CHG_COLOR_REV, Way::byte_buffer, Way::pixel_calls, Way::pixel_calls, Way::pixel_calls},
    {Engine::SPRAY_AIR_MASK, Way::pixel_calls, Way::pixel_calls, Way::pixel_calls, Way::pixel_calls},
    {Engine::SPRAY_DOT, Way::pixel_calls, Way::pixel_calls, Way::pixel_calls, Way::pixel_calls},
    {Engine::SPRAY_MASK, Way::pixel_calls, Way::pixel_calls, Way::pixel_calls, Way::pixel_calls},
    {Engine::V_BOX, Way::pixel_calls, Way::pixel_calls, Way::pixel_calls, Way::pixel_calls},
    {Engine::CHG_COLOR_FUZZY, Way::pixel_calls, Way::pixel_calls, Way::pixel_calls, Way::pixel_calls},
    {Engine::CHG_COLOR_FUZZY_REV, Way::pixel_calls, Way::pixel_calls, Way::pixel_calls, Way::pixel_calls},
    {Engine::SIDE_CHANGE, Way::pixel_calls, Way::pixel_calls, Way::pixel_calls, Way::pixel_calls},
};
static_assert([] {
  int i = 0;
  for (const DepthRow& row : DEPTH_SWITCH) {
    if (static_cast<int>(row.engine) != i++) return false;
  }
  return true;
}());

constexpr Way way_of(Engine engine, int depth) {
  const DepthRow& row = DEPTH_SWITCH[static_cast<int>(engine)];
  switch (depth) {
    case 32: return row.at32;
    case 24: return row.at24;
    case 16: return row.at16;
    default: return row.other;
  }
}
inline Way way_of(Engine engine, const raster::Surface& s) { return way_of(engine, s.depth()); }

struct NoProgress {
  void operator()(int /*done*/, int /*total*/) const {}
};

// Columns 0 to w and rows 0 to h, both included, column by column: rule(x, y, colour) gives the new colour of a pixel,
// or the same. Outside of the surface the colour is CLR_INVALID and what the rule gives is lost. progress(x, w) is told
// before each column.
template <class Rule, class Progress = NoProgress>
void each_pixel(raster::Surface& s, int w, int h, Rule rule, Progress progress = {}) {
  for (int x = 0; x <= w; ++x) {
    progress(x, w);
    for (int y = 0; y <= h; ++y) {
      const raster::Colour c = GetPixel(s, x, y);
      const raster::Colour changed = rule(x, y, c);
      if (changed != c) SetPixelV(s, x, y, changed);
    }
  }
}

// The whole surface, at depth 32 alone, from the last row to the first: rule(x, y, bytes) may change a pixel's bytes
// blue, green and red, bytes[0] to bytes[2]. progress(i, height) is told before each row, i from 1.
template <class Rule, class Progress = NoProgress>
void each_bytes(raster::Surface& s, Rule rule, Progress progress = {}) {
  for (int y = s.height() - 1; y >= 0; --y) {
    progress(s.height() - y, s.height());
    uint8_t* bytes = s.row(y);
    for (int x = 0; x < s.width(); ++x, bytes += 4) rule(x, y, bytes);
  }
  s.touch_all();
}

}  // namespace kiso
