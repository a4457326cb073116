// The device-independent bitmap inside of BMP files and icons: its header, and its pixels on the way into a surface.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "platform/raster/bmp.h"

namespace raster {

inline uint32_t little16(const uint8_t* p) { return p[0] | static_cast<uint32_t>(p[1]) << 8; }
inline uint32_t little32(const uint8_t* p) { return little16(p) | little16(p + 2) << 16; }

// One colour component of a pixel, at any place and of any width. All bits set is 255, and the values between are
// spread over the whole range and rounded to nearest. A mask of 0 is a component of 0.
class Field {
 public:
  Field() = default;
  explicit Field(uint32_t mask);
  uint32_t mask() const { return mask_; }
  uint32_t of(uint32_t pixel) const {
    const uint32_t value = (pixel & mask_) >> shift_;
    return full_ <= 255 ? scaled_[value] : scale(value);
  }

 private:
  uint32_t scale(uint32_t value) const;
  uint32_t mask_ = 0, full_ = 0;
  int shift_ = 0;
  std::array<uint8_t, 256> scaled_{};
};

enum class Packing : uint8_t { none, rle4, rle8, rle24 };

struct Dib {
  int width = 0, height = 0;
  bool top_down = false;
  int bits = 0;  // 1, 2, 4, 8, 16, 24 or 32
  Packing packing = Packing::none;
  bool fields = false;      // pixels are taken apart by red, green and blue
  bool keep_alpha = false;  // 32 bits without fields: the fourth byte comes along
  Field red, green, blue;
  std::array<uint32_t, 256> colours;  // 0xFFRRGGBB, black beyond the palette of the file
  uint64_t end = 0;                   // the first byte behind header, masks and palette

  uint64_t row_bytes() const { return (static_cast<uint64_t>(width) * static_cast<uint64_t>(bits) + 31) / 32 * 4; }
};

// The header at this place, of any length from 12 to 124, with masks and palette. pixels_at is where the pixels are
// said to begin, which may cut the palette short; 0 if nothing says so. Error 481 for what can not be a picture.
Dib read_dib(const PictureBytes& bytes, uint64_t at, uint64_t pixels_at);

uint64_t pixels_of(const Dib& dib);

// Bytes from the first to the last of rows that are padded to row_bytes; the last one may end at its last pixel.
uint64_t bytes_of_rows(uint64_t row_bytes, uint64_t last_row_bits, int rows);

// Error 481 if the bytes from `at` on can not be the pixels of the bitmap. To be asked before memory is taken.
void check_pixels(const PictureBytes& bytes, uint64_t at, const Dib& dib);

// Fill a surface of the bitmap's size and of any depth.
void read_rows(const PictureBytes& bytes, uint64_t at, const Dib& dib, Surface& into);
void read_run_lengths(const PictureBytes& bytes, uint64_t at, const Dib& dib, Surface& into);

// Takes the rows of a picture in the order of the file, as 32-bit pixels, to a surface of any depth.
class RowSink {
 public:
  RowSink(const Dib& dib, Surface& into);
  uint32_t* row(int i);  // where the pixels of the file's i-th row are to be put
  void done(int i);      // they are there

 private:
  Surface& into_;
  bool top_down_;
  std::vector<uint32_t> line_;  // empty: the rows are the surface's own
};

}  // namespace raster
