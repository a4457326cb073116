// Picture files built byte by byte, and pictures as rows of colours 0xRRGGBB.
#pragma once

#include <sys/resource.h>
#include <unistd.h>

#include <cstdint>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "platform/error.h"
#include "platform/raster/draw.h"
#include "platform/raster/ico.h"

using Bytes = std::vector<uint8_t>;
using Picture = std::vector<std::vector<uint32_t>>;

constexpr uint32_t K = 0x000000, W = 0xFFFFFF, R = 0xFF0000, G = 0x00FF00, B = 0x0000FF;

inline void put16(Bytes& to, uint32_t v) {
  to.push_back(static_cast<uint8_t>(v));
  to.push_back(static_cast<uint8_t>(v >> 8));
}
inline void put32(Bytes& to, uint32_t v) {
  put16(to, v & 0xFFFF);
  put16(to, v >> 16);
}
inline void append(Bytes& to, const Bytes& more) { to.insert(to.end(), more.begin(), more.end()); }

// A bitmap header with what follows it. The fields that a header of this length has not are left out.
struct DibFile {
  int32_t width = 1, height = 1;
  uint32_t bits = 24;
  Bytes pixels = {};
  std::vector<uint32_t> palette = {};  // 0xRRGGBB
  uint32_t length = 40;
  uint32_t compression = 0;
  std::vector<uint32_t> masks = {};  // behind a header of 40 bytes, inside of one of 52 or more
  uint32_t palette_entries = 0;      // as told in the header
  uint32_t gap = 0;                  // bytes between palette and pixels

  Bytes head() const {
    Bytes out;
    put32(out, length);
    if (length == 12) {
      for (uint32_t v : {static_cast<uint32_t>(width), static_cast<uint32_t>(height), 1u, bits}) put16(out, v);
    } else {
      put32(out, static_cast<uint32_t>(width));
      put32(out, static_cast<uint32_t>(height));
      put16(out, 1);
      put16(out, bits);
      for (uint32_t v : {compression, 0u, 0u, 0u, palette_entries, 0u}) put32(out, v);
      if (length > 40) masks_to(out);
      out.resize(length);
      if (length == 40) masks_to(out);
    }
    for (uint32_t colour : palette) {
      for (int shift = 0; shift < 24; shift += 8) out.push_back(static_cast<uint8_t>(colour >> shift));
      if (length != 12) out.push_back(0);
    }
    out.resize(out.size() + gap);
    return out;
  }
  Bytes bmp() const {
    const Bytes inner = head();
    Bytes out{'B', 'M'};
    const uint32_t pixels_at = static_cast<uint32_t>(14 + inner.size());
    for (uint32_t v : {static_cast<uint32_t>(pixels_at + pixels.size()), 0u, pixels_at}) put32(out, v);
    append(out, inner);
    append(out, pixels);
    return out;
  }

 private:
  void masks_to(Bytes& out) const {
    for (uint32_t mask : masks) put32(out, mask);
  }
};

// As long as it lives, no more than half a gigabyte of memory can be added.
class LittleMemory {
 public:
  LittleMemory() {
    getrlimit(RLIMIT_DATA, &before_);
    std::ifstream pages("/proc/self/statm");
    rlim_t data = 0;
    for (int field = 0; field < 6; ++field) pages >> data;
    const rlimit now{data * static_cast<rlim_t>(sysconf(_SC_PAGESIZE)) + (rlim_t{1} << 29), before_.rlim_max};
    setrlimit(RLIMIT_DATA, &now);
  }
  ~LittleMemory() { setrlimit(RLIMIT_DATA, &before_); }
  LittleMemory(const LittleMemory&) = delete;
  LittleMemory& operator=(const LittleMemory&) = delete;

 private:
  rlimit before_{};
};

inline raster::PictureBytes in_memory(const Bytes& bytes) { return {bytes.size(), bytes.data(), -1}; }

inline raster::Surface read(const Bytes& bytes, int depth = 32, raster::PngDecoder png = nullptr) {
  return raster::read_picture(in_memory(bytes), depth, png);
}

inline Picture picture_of(const raster::Surface& s) {
  Picture out;
  for (int y = 0; y < s.height(); ++y) {
    out.emplace_back();
    for (int x = 0; x < s.width(); ++x) {
      const raster::Colour c = raster::GetPixel(s, x, y);
      out.back().push_back((c & 0xFF) << 16 | (c & 0xFF00) | c >> 16);
    }
  }
  return out;
}
inline Picture picture_of(const Bytes& bytes) { return picture_of(read(bytes)); }

// The number of the error that the call ends with, 0 if it does not.
inline int error_of(const std::function<void()>& call) {
  try {
    call();
  } catch (const RuntimeError& error) {
    return error.number;
  }
  return 0;
}
inline int error_of(const Bytes& bytes) {
  return error_of([&] { read(bytes); });
}
