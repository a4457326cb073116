#include "platform/raster/surface.h"

#include <sys/mman.h>

#include <cstdlib>
#include <cstring>
#include <utility>

#include "platform/error.h"
#include "platform/raster/pixel.h"

namespace raster {

namespace {

// Rows start on cache lines, so that a row's first pixel never shares one with the row before.
constexpr ptrdiff_t ROW_ALIGNMENT = 64;

ptrdiff_t stride_for(int width, int depth) {
  ptrdiff_t bytes = static_cast<ptrdiff_t>(width) * (depth / 8);
  return (bytes + ROW_ALIGNMENT - 1) / ROW_ALIGNMENT * ROW_ALIGNMENT;
}

// A surface that shrinks to less than a quarter gives its memory back, unless it is of the size of a view: work
// surfaces change between a pen's size and a view's all the time.
constexpr size_t VIEW = size_t{16} << 20;
bool worth_keeping(size_t capacity, size_t need) {
  return need <= capacity && (capacity <= VIEW || capacity / 4 <= need);
}

// A view grows as its window does, by little and often; pages of its room that are not reached cost nothing.
size_t with_room(size_t need) { return need <= VIEW ? need + need / 2 : need; }

// A whole picture stands on huge pages where the system has them: fresh memory is then had in half the time, and a walk
// down its columns misses no address translation. Null if there is no memory.
uint8_t* allocate(size_t bytes) {
  constexpr size_t HUGE_PAGE = size_t{2} << 20;
  const bool large = bytes >= 2 * HUGE_PAGE;
  void* p = nullptr;
  if (bytes == 0 || posix_memalign(&p, large ? HUGE_PAGE : ROW_ALIGNMENT, bytes) != 0) return nullptr;
  if (large) madvise(p, bytes, MADV_HUGEPAGE);  // may be refused, which costs time alone
  return static_cast<uint8_t*>(p);
}

}  // namespace

void Surface::FreeBits::operator()(uint8_t* p) const { std::free(p); }

Surface::Surface(int width, int height, int depth, Colour back) : depth_(depth) { resize(width, height, back); }

Surface Surface::unpainted(int width, int height, int depth) {
  Surface s(depth);
  s.reshape(width, height);
  return s;
}

void Surface::swap(Surface& other) noexcept {
  std::swap(draw, other.draw);
  std::swap(bits_, other.bits_);
  std::swap(capacity_, other.capacity_);
  std::swap(stride_, other.stride_);
  std::swap(width_, other.width_);
  std::swap(height_, other.height_);
  std::swap(depth_, other.depth_);
  std::swap(touched_, other.touched_);
}

void Surface::resize(int width, int height, Colour back) {
  const int kept_rows = std::min(height, height_), kept_columns = std::min(width, width_);
  reshape(width, height);
  const uint32_t pixel = to_pixel(back);
  at_depth(depth_, [&](auto px) {
    for (int y = 0; y < height; ++y) {
      const int x = y < kept_rows ? kept_columns : 0;
      put_run(px, row(y) + x * px.bytes, width - x, pixel);
    }
  });
}

void Surface::reshape(int width, int height) {
  if (width < 0 || height < 0 || width > MAX_SIDE || height > MAX_SIDE) throw RuntimeError(380);
  const ptrdiff_t stride = stride_for(width, depth_);
  const size_t need = static_cast<size_t>(stride) * static_cast<size_t>(height);
  const int kept_rows = std::min(height, height_), kept_columns = std::min(width, width_);
  const size_t kept_bytes = static_cast<size_t>(kept_columns) * static_cast<size_t>(depth_ / 8);

  if (worth_keeping(capacity_, need)) {
    // The rows move to their new places in the order in which none is overwritten before it has moved.
    auto move_row = [&](int y) { std::memmove(bits_.get() + y * stride, bits_.get() + y * stride_, kept_bytes); };
    if (kept_bytes > 0 && stride < stride_) {
      for (int y = 1; y < kept_rows; ++y) move_row(y);
    } else if (kept_bytes > 0 && stride > stride_) {
      for (int y = kept_rows - 1; y > 0; --y) move_row(y);
    }
  } else {
    const size_t room = capacity_ > 0 ? with_room(need) : need;
    std::unique_ptr<uint8_t[], FreeBits> fresh(allocate(room));
    if (need > 0 && !fresh) throw RuntimeError(7);
    for (int y = 0; y < kept_rows && kept_bytes > 0; ++y)
      std::memcpy(fresh.get() + y * stride, bits_.get() + y * stride_, kept_bytes);
    bits_ = std::move(fresh);
    capacity_ = room;
  }
  stride_ = stride;
  width_ = width;
  height_ = height;
  touched_ = Rect{};
  touch_all();
}

void Surface::fill(Colour colour) {
  const uint32_t pixel = to_pixel(colour);
  at_depth(depth_, [&](auto px) {
    for (int y = 0; y < height_; ++y) put_run(px, row(y), width_, pixel);
  });
  touch_all();
}

uint32_t Surface::to_pixel(Colour colour) const {
  return at_depth(depth_, [&](auto px) { return px.from_rgb32(rgb32_of(colour)); });
}

Colour Surface::to_colour(uint32_t pixel) const {
  return at_depth(depth_, [&](auto px) { return colour_of(px.to_rgb32(pixel)); });
}

void Surface::touch(int left, int top, int right, int bottom) {
  const Rect cut{std::max(left, 0), std::max(top, 0), std::min(right, width_), std::min(bottom, height_)};
  touched_ = around(touched_, cut);
}

Rect Surface::take_touched() {
  const Rect taken = touched_;
  touched_ = Rect{};
  return taken;
}

}  // namespace raster
