// Flood fills on blocks of 8 x 8 pixels, one bit a pixel: inside a block the fill spreads by shifts of one word, and
// only blocks that have been reached by new seeds are looked at again.
#include <vector>

#include "platform/raster/draw.h"
#include "platform/raster/pixel.h"

namespace raster {

namespace {

// Bit 8 * row + column. open: pixels that may be filled; filled: those reached; seeds: reached but not yet spread from.
struct Block {
  uint64_t open, filled, seeds;
};

constexpr uint64_t LEFT_COLUMN = 0x0101010101010101, RIGHT_COLUMN = LEFT_COLUMN << 7;
constexpr uint64_t TOP_ROW = 0xFF, BOTTOM_ROW = TOP_ROW << 56;

// All pixels of open that are connected with seeds, four-way.
uint64_t spread(uint64_t seeds, uint64_t open) {
  if (open == ~uint64_t{0}) return open;
  for (;;) {
    const uint64_t more =
        (seeds | seeds << 8 | seeds >> 8 | (seeds & ~RIGHT_COLUMN) << 1 | (seeds & ~LEFT_COLUMN) >> 1) & open;
    if (more == seeds) return seeds;
    seeds = more;
  }
}

class Flood {
 public:
  // Pixels equal to the value may be filled, or with border set those that differ from it.
  Flood(Surface& s, uint32_t value, bool border)
      : surface_(s), value_(value), border_(border), across_((s.width() + 7) / 8), down_((s.height() + 7) / 8) {
    blocks_.resize(static_cast<size_t>(across_) * static_cast<size_t>(down_));
    read_.resize(static_cast<size_t>(down_));
  }

  void run(int x, int y, uint32_t pixel) {
    reach(x / 8, y / 8, uint64_t{1} << (y % 8 * 8 + x % 8));
    while (!waiting_.empty()) {
      const uint32_t at = waiting_.back();
      waiting_.pop_back();
      leave(static_cast<int>(at % static_cast<uint32_t>(across_)),
            static_cast<int>(at / static_cast<uint32_t>(across_)));
    }
    paint(pixel);
  }

 private:
  Block& block(int bx, int by) {
    return blocks_[static_cast<size_t>(by) * static_cast<size_t>(across_) + static_cast<size_t>(bx)];
  }

  void reach(int bx, int by, uint64_t seeds) {
    if (seeds == 0 || bx < 0 || by < 0 || bx >= across_ || by >= down_) return;
    if (!read_[static_cast<size_t>(by)]) read_blocks(by);
    Block& b = block(bx, by);
    seeds &= b.open & ~b.filled;
    if (seeds == 0) return;
    if (b.seeds == 0)
      waiting_.push_back(static_cast<uint32_t>(by) * static_cast<uint32_t>(across_) + static_cast<uint32_t>(bx));
    b.seeds |= seeds;
  }

  void leave(int bx, int by) {
    Block& b = block(bx, by);
    const uint64_t fresh = spread(b.seeds, b.open & ~b.filled);
    b.seeds = 0;
    b.filled |= fresh;
    reach(bx, by - 1, (fresh & TOP_ROW) << 56);
    reach(bx, by + 1, (fresh & BOTTOM_ROW) >> 56);
    reach(bx - 1, by, (fresh & LEFT_COLUMN) << 7);
    reach(bx + 1, by, (fresh & RIGHT_COLUMN) >> 7);
  }

  void read_blocks(int by) {
    read_[static_cast<size_t>(by)] = true;
    at_depth(surface_.depth(), [&](auto px) {
      for (int y = by * 8; y < std::min(by * 8 + 8, surface_.height()); ++y) {
        const uint8_t* p = surface_.row(y);
        for (int x = 0; x < surface_.width(); ++x) {
          if ((px.get(p + x * px.bytes) == value_) != border_)
            block(x / 8, by).open |= uint64_t{1} << (y % 8 * 8 + x % 8);
        }
      }
    });
  }

  void paint(uint32_t pixel) {
    int left = surface_.width(), right = 0, top = surface_.height(), bottom = 0;
    at_depth(surface_.depth(), [&](auto px) {
      for (int by = 0; by < down_; ++by) {
        if (!read_[static_cast<size_t>(by)]) continue;
        for (int bx = 0; bx < across_; ++bx) {
          const uint64_t filled = block(bx, by).filled;
          for (int i = 0; i < 64; ++i) {
            if (!(filled >> i & 1)) continue;
            const int x = bx * 8 + i % 8, y = by * 8 + i / 8;
            px.put(surface_.row(y) + x * px.bytes, pixel);
            left = std::min(left, x);
            right = std::max(right, x + 1);
            top = std::min(top, y);
            bottom = std::max(bottom, y + 1);
          }
        }
      }
    });
    surface_.touch(left, top, right, bottom);
  }

  Surface& surface_;
  uint32_t value_;
  bool border_;
  int across_, down_;
  std::vector<Block> blocks_;
  std::vector<char> read_;  // rows of blocks whose open pixels are known
  std::vector<uint32_t> waiting_;
};

void fill_from(Surface& s, int x, int y, Colour colour, bool border) {
  if (x < 0 || y < 0 || x >= s.width() || y >= s.height()) return;
  const uint32_t value = s.to_pixel(colour);
  const bool acts = at_depth(s.depth(), [&](auto px) { return (px.get(s.row(y) + x * px.bytes) == value) != border; });
  if (acts) Flood(s, value, border).run(x, y, s.to_pixel(s.draw.FillColor));
}

}  // namespace

void ExtFloodFill(Surface& s, int x, int y, Colour colour) { fill_from(s, x, y, colour, false); }
void FloodFill(Surface& s, int x, int y, Colour border) { fill_from(s, x, y, border, true); }

}  // namespace raster
