// Flood fills on blocks of 8 x 8 pixels, one bit a pixel: inside a block the fill spreads by shifts of one word, and
// only blocks that have been reached by new seeds are looked at again. A band of blocks is compared when the fill first
// comes to it, spread until nothing in it waits, and painted at once, while its pixels are in the cache; a band that
// the fill comes back to is painted once more at the end.
#include "platform/raster/flood.h"

#include <bit>
#include <vector>

#include "platform/raster/draw.h"
#include "platform/raster/pixel.h"

namespace raster {

namespace {

constexpr uint64_t LEFT_COLUMN = 0x0101010101010101, RIGHT_COLUMN = LEFT_COLUMN << 7;
constexpr uint64_t TOP_ROW = 0xFF, BOTTOM_ROW = TOP_ROW << 56;
constexpr int NONE = -1;

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

struct Band {
  int waiting = NONE;  // column of the first waiting block
  bool wanted = false, compared = false, visited = false;
  int late_first = 0, late_last = NONE;  // blocks filled after the first visit, and so not painted yet
};

// Kept between fills of views and pictures of common size; what a larger surface needs is given back.
struct Scratch {
  std::vector<FloodBlock> blocks;
  std::vector<Band> bands;
  std::vector<int> waiting;  // bands with waiting blocks, each once
};
thread_local Scratch scratch;
constexpr size_t KEPT_BLOCKS = size_t{1} << 18;

class Flood {
 public:
  Flood(Surface& s, const FloodRule& rule, uint32_t pixel)
      : surface_(s), rule_(rule), pixel_(pixel), across_((s.width() + 7) / 8), down_((s.height() + 7) / 8) {
    const size_t all = static_cast<size_t>(across_) * static_cast<size_t>(down_);
    if (scratch.blocks.size() < all) scratch.blocks.resize(all);
    scratch.bands.assign(static_cast<size_t>(down_), Band{});
    scratch.waiting.clear();
  }
  ~Flood() {
    if (scratch.blocks.size() > KEPT_BLOCKS) scratch = Scratch{};
  }
  Flood(const Flood&) = delete;
  Flood& operator=(const Flood&) = delete;

  void run(int x, int y) {
    flood_compare(surface_, y / 8, 0, across_, rule_, blocks(y / 8));
    band(y / 8).compared = true;
    reach(x / 8, y / 8, uint64_t{1} << (y % 8 * 8 + x % 8));
    while (!scratch.waiting.empty()) {
      const int by = scratch.waiting.back();
      scratch.waiting.pop_back();
      visit(by);
    }
    for (int by = 0; by < down_; ++by)
      if (const Band& b = band(by); b.late_first <= b.late_last)
        flood_paint(surface_, by, b.late_first, b.late_last, pixel_, blocks(by));
    touch();
  }

 private:
  Band& band(int by) { return scratch.bands[static_cast<size_t>(by)]; }
  FloodBlock* blocks(int by) { return scratch.blocks.data() + static_cast<ptrdiff_t>(by) * across_; }

  // Seeds of a band that is not compared yet are taken from its neighbour when that one's visit ends.
  void reach(int bx, int by, uint64_t seeds) {
    if (seeds == 0 || bx < 0 || by < 0 || bx >= across_ || by >= down_) return;
    Band& at = band(by);
    if (!at.compared) {
      at.wanted = true;
      return;
    }
    FloodBlock& b = blocks(by)[bx];
    seeds &= b.open;
    if (seeds == 0) return;
    if (b.seeds == 0) {
      if (at.waiting == NONE && by != current_) scratch.waiting.push_back(by);
      b.next = at.waiting;
      at.waiting = bx;
    }
    b.seeds |= seeds;
  }

  void fill(FloodBlock& b, int bx, int by, uint64_t fresh) {
    b.seeds = 0;
    b.open &= ~fresh;
    b.filled |= fresh;
    reach(bx, by - 1, (fresh & TOP_ROW) << 56);
    reach(bx, by + 1, (fresh & BOTTOM_ROW) >> 56);
    reach(bx - 1, by, (fresh & LEFT_COLUMN) << 7);
  }

  // Fills all that is connected with the waiting blocks inside the band.
  void visit(int by) {
    current_ = by;
    Band& at = band(by);
    FloodBlock* row = blocks(by);
    int first = across_, last = NONE;
    while (at.waiting != NONE) {
      const int bx = at.waiting;
      first = std::min(first, bx);
      last = std::max(last, bx);
      FloodBlock& b = row[bx];
      at.waiting = b.next;
      const uint64_t fresh = spread(b.seeds, b.open);
      fill(b, bx, by, fresh);
      reach(bx + 1, by, (fresh & RIGHT_COLUMN) >> 7);
    }
    current_ = NONE;
    if (at.visited) {
      at.late_first = at.late_first > at.late_last ? first : std::min(at.late_first, first);
      at.late_last = std::max(at.late_last, last);
    } else {
      at.visited = true;
      if (first <= last) flood_paint(surface_, by, first, last, pixel_, row);
    }
    for (const int next : {by - 1, by + 1})
      if (next >= 0 && next < down_ && band(next).wanted && !band(next).compared) compare(next, by);
  }

  // Compares a band that is reached from the one beside it. What lies wholly open is filled and painted on the way, a
  // strip at a time, while it is in the nearest cache: large empty areas are passed over once.
  void compare(int by, int from) {
    band(by).compared = true;
    FloodBlock* row = blocks(by);
    const FloodBlock* beside = blocks(from);
    bool open_left = false;  // the block to the left has just been filled
    for (int start = 0; start < across_; start += STRIP) {
      const int end = std::min(start + STRIP, across_);
      flood_compare(surface_, by, start, end, rule_, row);
      int first = end, last = NONE;
      for (int bx = start; bx < end; ++bx) {
        const uint64_t edge = from < by ? (beside[bx].filled & BOTTOM_ROW) >> 56 : (beside[bx].filled & TOP_ROW) << 56;
        if ((edge != 0 || open_left) && row[bx].open == ~uint64_t{0}) {
          fill(row[bx], bx, by, ~uint64_t{0});
          open_left = true;
          first = std::min(first, bx);
          last = bx;
        } else {
          reach(bx, by, edge | (open_left ? LEFT_COLUMN : 0));
          open_left = false;
        }
      }
      if (first <= last) flood_paint(surface_, by, first, last, pixel_, row);
    }
    if (band(by).waiting == NONE) scratch.waiting.push_back(by);  // so that it hands on what was filled on the way
  }

  void touch() {
    Rect box{MAX_SIDE, 0, 0, 0};  // left and right in pixels, top and bottom in bands
    box.top = down_;
    for (int by = 0; by < down_; ++by) {
      if (!band(by).compared) continue;
      const FloodBlock* row = blocks(by);
      int first = 0, last = across_ - 1;
      while (first <= last && row[first].filled == 0) ++first;
      if (first > last) continue;
      while (row[last].filled == 0) --last;
      box.left = std::min(box.left, first * 8 + std::countr_zero(columns(row[first].filled)));
      box.right = std::max(box.right, last * 8 + 8 - std::countl_zero(columns(row[last].filled)));
      box.top = std::min(box.top, by);
      box.bottom = by;
    }
    uint64_t upper = 0, lower = 0;
    for (int bx = 0; bx < across_; ++bx) {
      upper |= blocks(box.top)[bx].filled;
      lower |= blocks(box.bottom)[bx].filled;
    }
    surface_.touch(box.left, box.top * 8 + std::countr_zero(upper) / 8, box.right,
                   box.bottom * 8 + 8 - std::countl_zero(lower) / 8);
  }

  static uint8_t columns(uint64_t bits) {
    bits |= bits >> 32;
    bits |= bits >> 16;
    return static_cast<uint8_t>(bits | bits >> 8);
  }

  static constexpr int STRIP = 8;

  Surface& surface_;
  const FloodRule rule_;
  const uint32_t pixel_;
  const int across_, down_;
  int current_ = NONE;  // the band that is being visited
};

void fill_from(Surface& s, int x, int y, Colour colour, bool border) {
  if (x < 0 || y < 0 || x >= s.width() || y >= s.height()) return;
  const FloodRule rule{s.to_pixel(colour), border};
  const bool acts = at_depth(s.depth(), [&](auto px) { return rule.open(px.get(s.row(y) + x * px.bytes)); });
  if (acts) Flood(s, rule, s.to_pixel(s.draw.FillColor)).run(x, y);
}

}  // namespace

void ExtFloodFill(Surface& s, int x, int y, Colour colour) { fill_from(s, x, y, colour, false); }
void FloodFill(Surface& s, int x, int y, Colour border) { fill_from(s, x, y, border, true); }

}  // namespace raster
