// How one pixel is stored at each depth. "rgb32" is 0xFFRRGGBB, the pixel of depth 32 and the form in which pixels pass
// between surfaces of different depths.
#pragma once

#include <cstring>

#include "platform/raster/surface.h"

namespace raster {

constexpr uint32_t OPAQUE = 0xFF000000;

constexpr uint32_t rgb32_of(Colour c) { return OPAQUE | (c & 0xFF) << 16 | (c & 0xFF00) | (c >> 16 & 0xFF); }
constexpr Colour colour_of(uint32_t rgb32) { return (rgb32 & 0xFF) << 16 | (rgb32 & 0xFF00) | (rgb32 >> 16 & 0xFF); }

// get and put take the address of the pixel's first byte.
template <int Depth>
struct Pixel;

template <>
struct Pixel<32> {
  static constexpr int bytes = 4;
  static uint32_t get(const uint8_t* p) {
    uint32_t v;
    std::memcpy(&v, p, 4);
    return v;
  }
  static void put(uint8_t* p, uint32_t v) { std::memcpy(p, &v, 4); }
  static uint32_t from_rgb32(uint32_t v) { return v | OPAQUE; }
  static uint32_t to_rgb32(uint32_t v) { return v | OPAQUE; }
};

template <>
struct Pixel<24> {
  static constexpr int bytes = 3;
  static uint32_t get(const uint8_t* p) {
    return static_cast<uint32_t>(p[0]) | static_cast<uint32_t>(p[1]) << 8 | static_cast<uint32_t>(p[2]) << 16;
  }
  static void put(uint8_t* p, uint32_t v) {
    p[0] = static_cast<uint8_t>(v);
    p[1] = static_cast<uint8_t>(v >> 8);
    p[2] = static_cast<uint8_t>(v >> 16);
  }
  static uint32_t from_rgb32(uint32_t v) { return v & 0xFFFFFF; }
  static uint32_t to_rgb32(uint32_t v) { return v | OPAQUE; }
};

// 5-6-5. Components are cut off on the way in and their high bits repeated on the way out, so that white stays white.
template <>
struct Pixel<16> {
  static constexpr int bytes = 2;
  static uint32_t get(const uint8_t* p) {
    uint16_t v;
    std::memcpy(&v, p, 2);
    return v;
  }
  static void put(uint8_t* p, uint32_t v) {
    const uint16_t w = static_cast<uint16_t>(v);
    std::memcpy(p, &w, 2);
  }
  static uint32_t from_rgb32(uint32_t v) { return (v >> 8 & 0xF800) | (v >> 5 & 0x07E0) | (v >> 3 & 0x001F); }
  static uint32_t to_rgb32(uint32_t v) {
    const uint32_t r = v >> 11 & 31, g = v >> 5 & 63, b = v & 31;
    return OPAQUE | (r << 3 | r >> 2) << 16 | (g << 2 | g >> 4) << 8 | (b << 3 | b >> 2);
  }
};

// 3-3-2, red in the high bits; widened by repetition as above.
template <>
struct Pixel<8> {
  static constexpr int bytes = 1;
  static uint32_t get(const uint8_t* p) { return *p; }
  static void put(uint8_t* p, uint32_t v) { *p = static_cast<uint8_t>(v); }
  static uint32_t from_rgb32(uint32_t v) { return (v >> 16 & 0xE0) | (v >> 11 & 0x1C) | (v >> 6 & 0x03); }
  static uint32_t to_rgb32(uint32_t v) {
    const uint32_t r = v >> 5 & 7, g = v >> 2 & 7, b = v & 3;
    return OPAQUE | (r << 5 | r << 2 | r >> 1) << 16 | (g << 5 | g << 2 | g >> 1) << 8 | b * 0x55;
  }
};

// Calls work with the Pixel of that depth.
template <class Work>
decltype(auto) at_depth(int depth, Work&& work) {
  switch (depth) {
    case 8: return work(Pixel<8>{});
    case 16: return work(Pixel<16>{});
    case 24: return work(Pixel<24>{});
    default: return work(Pixel<32>{});
  }
}

// n pixels from p on become v.
template <class Px>
void put_run(Px, uint8_t* p, int n, uint32_t v) {
  for (int i = 0; i < n; ++i) Px::put(p + i * Px::bytes, v);
}

}  // namespace raster
