// A surface: an array of pixels with a drawing state. Everything that the editor draws, it draws on one of these.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>

namespace raster {

// Packed colour R + 256 G + 65536 B, the platform's colour value.
using Colour = uint32_t;
constexpr Colour CLR_INVALID = 0xFFFFFFFF;  // what GetPixel answers outside the surface
constexpr Colour WHITE = 0xFFFFFF;
// Components above 255 count as 255; the caller keeps them from being negative.
constexpr Colour RGB(int r, int g, int b) {
  return static_cast<Colour>(std::min(r, 255)) | static_cast<Colour>(std::min(g, 255)) << 8 |
         static_cast<Colour>(std::min(b, 255)) << 16;
}

// right and bottom are excluded; empty when right <= left or bottom <= top.
struct Rect {
  int left = 0, top = 0, right = 0, bottom = 0;
  constexpr bool empty() const { return right <= left || bottom <= top; }
};
// The smallest rectangle that holds both.
constexpr Rect around(const Rect& a, const Rect& b) {
  if (a.empty()) return b;
  if (b.empty()) return a;
  return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right), std::max(a.bottom, b.bottom)};
}

enum PenMode : int { XOR = 7, COPY = 13 };

struct DrawState {
  int DrawMode = COPY;  // a PenMode
  int DrawWidth = 1;    // pixels, 1 or more
  int DrawStyle = 0;    // 0 solid, 2 dotted (width 1 only)
  int FillStyle = 1;    // 0 solid, 1 transparent, 7 diagonal cross
  Colour ForeColor = 0;
  Colour FillColor = 0;
};

constexpr int MAX_SIDE = 32767;

class Surface {
 public:
  // depth is 32, 24, 16 or 8 bits a pixel. A side below 0 or above MAX_SIDE is error 380, memory that can not be had is
  // error 7; the surface is then as it was.
  explicit Surface(int depth = 32) : depth_(depth) {}
  Surface(int width, int height, int depth = 32, Colour back = WHITE);
  Surface(const Surface&) = delete;
  Surface& operator=(const Surface&) = delete;
  // What is moved from is an empty surface of the same depth, or for the assignment what the other held.
  Surface(Surface&& other) noexcept : depth_(other.depth_) { swap(other); }
  Surface& operator=(Surface&& other) noexcept {
    swap(other);
    return *this;
  }
  // Its pixels are anything until they are written: for whoever writes them all.
  static Surface unpainted(int width, int height, int depth = 32);

  // What lies in both sizes stays, the rest takes the colour back. Memory is kept when the new size fits and is not
  // much smaller, so that a work surface may change its size at every use.
  void resize(int width, int height, Colour back = WHITE);
  void fill(Colour colour);

  int width() const { return width_; }
  int height() const { return height_; }
  int depth() const { return depth_; }
  // Bytes from one row to the next, a multiple of 64; rows begin at addresses that are.
  ptrdiff_t stride() const { return stride_; }
  // Rows go from the top down. Pixel bytes are blue, green, red and at depth 32 a fourth that is always 0xFF; 16 bits
  // are 5-6-5; 8 bits are 3-3-2 with red in the high bits.
  uint8_t* row(int y) { return bits_.get() + y * stride_; }
  const uint8_t* row(int y) const { return bits_.get() + y * stride_; }
  // depth 32 alone; a pixel is 0xFFRRGGBB
  uint32_t* row32(int y) { return reinterpret_cast<uint32_t*>(row(y)); }
  const uint32_t* row32(int y) const { return reinterpret_cast<const uint32_t*>(row(y)); }

  // The packed colour as a pixel of this depth, and back.
  uint32_t to_pixel(Colour colour) const;
  Colour to_colour(uint32_t pixel) const;

  DrawState draw;

  // What has been drawn on since the last take_touched: the smallest rectangle round it, cut to the surface.
  void touch(int left, int top, int right, int bottom);
  void touch_all() { touch(0, 0, width_, height_); }
  Rect take_touched();

 private:
  void swap(Surface& other) noexcept;

  struct FreeBits {
    void operator()(uint8_t* p) const;
  };
  void reshape(int width, int height);  // what lies in both sizes stays, the rest is anything
  std::unique_ptr<uint8_t[], FreeBits> bits_;
  size_t capacity_ = 0;
  ptrdiff_t stride_ = 0;
  int width_ = 0, height_ = 0, depth_ = 32;
  Rect touched_;
};

}  // namespace raster
