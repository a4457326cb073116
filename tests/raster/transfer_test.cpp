#include "platform/raster/fast.h"
#include "raster_testing.h"

namespace raster {
namespace {

constexpr Rop ROPS[] = {SRCCOPY, SRCAND, SRCPAINT};
constexpr int DEPTHS[] = {32, 24, 16, 8};

Colour joined(Colour dest, Colour src, Rop rop) {
  return rop == SRCAND ? dest & src : rop == SRCPAINT ? dest | src : src;
}

// What the surface's depth makes of a colour.
Colour held(const Surface& s, Colour c) { return s.to_colour(s.to_pixel(c)); }

TEST(BitBlt, TakesEachPixelFromItsPlaceOfTheSource) {
  Random random(20);
  for (int round = 0; round < 2000; ++round) {
    use_fast_forms(random() % 4 != 0);
    Surface dest(between(random, 1, 40), between(random, 1, 30), DEPTHS[random() % 4]);
    Surface src(between(random, 1, 40), between(random, 1, 30), DEPTHS[random() % 4]);
    make_noise(dest, random);
    make_noise(src, random);
    const bool same = round % 3 == 0;
    const Surface from = copy_of(same ? dest : src), before = copy_of(dest);
    const int x = between(random, -20, 45), y = between(random, -20, 35), w = between(random, -3, 50),
              h = between(random, -3, 40), sx = between(random, -20, 45), sy = between(random, -20, 35);
    const Rop rop = ROPS[random() % 3];
    dest.take_touched();
    BitBlt(dest, x, y, w, h, same ? dest : src, sx, sy, rop);
    const Rect touched = dest.take_touched();
    for (int py = 0; py < dest.height(); ++py) {
      for (int px = 0; px < dest.width(); ++px) {
        const bool inside = px >= x && px < x + w && py >= y && py < y + h;
        const Colour s = inside ? GetPixel(from, sx + px - x, sy + py - y) : CLR_INVALID,
                     old = GetPixel(before, px, py);
        const Colour expected = s == CLR_INVALID ? old : joined(old, held(dest, s), rop);
        ASSERT_EQ(GetPixel(dest, px, py), expected) << "round " << round << " at " << px << "," << py;
        if (s == CLR_INVALID) continue;
        ASSERT_TRUE(px >= touched.left && px < touched.right && py >= touched.top && py < touched.bottom);
      }
    }
    if (dest.depth() == 32) expect_opaque(dest);
  }
}

TEST(BitBlt, FarPlacesAndSizesAreCut) {
  Surface dest(4, 1, 32, BLACK), src(4, 1, 32, RED);
  BitBlt(dest, INT32_MIN, 0, INT32_MAX, 1, src, INT32_MIN, 0);
  BitBlt(dest, 0, 0, 4, 1, src, INT32_MAX, INT32_MAX);
  BitBlt(dest, 2, INT32_MIN, INT32_MAX, INT32_MAX, src, 0, 0);
  EXPECT_EQ(text_of(dest), rows({"...."}));
  BitBlt(dest, 2, 0, INT32_MAX, INT32_MAX, src, 0, 0);
  EXPECT_EQ(text_of(dest), rows({"..rr"}));
}

// One axis of a stretch: the source indices that destination index i is made of, by the nearest centres, a half down.
std::vector<int> group(int i, int S, int D) {
  auto nearest = [](int64_t k, int64_t s, int64_t d) { return ((2 * k + 1) * s + 2 * d - 1) / (2 * d) - 1; };
  if (D >= S) return {static_cast<int>(nearest(i, S, D))};
  std::vector<int> all;
  for (int j = 0; j < S - (D == 1 ? 1 : 0); ++j)
    if (nearest(j, D, S) == i) all.push_back(j);
  return all;
}

struct StretchCase {
  int x, y, w, h, sx, sy, sw, sh;
  Stretch mode;
};

// What the stretch makes of destination pixel (px, py), CLR_INVALID if it leaves it.
Colour sampled(const Surface& src, const StretchCase& c, int px, int py) {
  const int i = c.w > 0 ? px - c.x : c.x - px, k = c.h > 0 ? py - c.y : c.y - py;
  if (i < 0 || k < 0 || i >= std::abs(c.w) || k >= std::abs(c.h) || c.sw == 0 || c.sh == 0) return CLR_INVALID;
  std::vector<int> columns, lines;
  for (const int j : group(i, std::abs(c.sw), std::abs(c.w))) {
    const int at = c.sx + (c.sw > 0 ? j : -j);
    if (at >= 0 && at < src.width()) columns.push_back(at);
  }
  for (const int j : group(k, std::abs(c.sh), std::abs(c.h))) {
    const int at = c.sy + (c.sh > 0 ? j : -j);
    if (at >= 0 && at < src.height()) lines.push_back(at);
  }
  if (columns.empty() || lines.empty()) return CLR_INVALID;
  if (c.mode == Stretch::COLORONCOLOR) return GetPixel(src, columns.back(), lines.front());
  const bool is_and = c.mode == Stretch::BLACKONWHITE;
  Colour all = is_and ? WHITE : BLACK;
  for (const int y : lines)
    for (const int x : columns) all = is_and ? all & GetPixel(src, x, y) : all | GetPixel(src, x, y);
  return all;
}

void expect_stretched(Random& random, Surface& dest, const Surface& src, const StretchCase& c, Rop rop) {
  make_noise(dest, random);
  const Surface from = copy_of(src), before = copy_of(dest);
  StretchBlt(dest, c.x, c.y, c.w, c.h, from, c.sx, c.sy, c.sw, c.sh, rop, c.mode);
  for (int y = 0; y < dest.height(); ++y) {
    for (int x = 0; x < dest.width(); ++x) {
      const Colour s = sampled(from, c, x, y), old = GetPixel(before, x, y);
      ASSERT_EQ(GetPixel(dest, x, y), s == CLR_INVALID ? old : joined(old, held(dest, s), rop))
          << "at " << x << "," << y << " of " << c.x << " " << c.y << " " << c.w << " " << c.h << " from " << c.sx
          << " " << c.sy << " " << c.sw << " " << c.sh << " mode " << static_cast<int>(c.mode) << " depth "
          << dest.depth();
    }
  }
  if (dest.depth() == 32) expect_opaque(dest);
}

TEST(StretchBlt, TakesEachPixelFromItsGroup) {
  Random random(21);
  for (int round = 0; round < 2000; ++round) {
    use_fast_forms(random() % 4 != 0);
    // depth 32 has loops of its own
    Surface dest(between(random, 1, 40), between(random, 1, 30), random() % 2 == 0 ? 32 : DEPTHS[random() % 4]);
    Surface src(between(random, 1, 40), between(random, 1, 30), random() % 2 == 0 ? 32 : DEPTHS[random() % 4]);
    make_noise(src, random);
    auto size = [&] { return random() % 6 == 0 ? between(random, -2, 2) : between(random, -60, 60); };
    const StretchCase c{between(random, -20, 50),      between(random, -20, 40), size(), size(),
                        between(random, -10, 50),      between(random, -10, 40), size(), size(),
                        Stretch{between(random, 1, 3)}};
    expect_stretched(random, dest, src, c, ROPS[random() % 3]);
    if (HasFatalFailure()) return;
  }
}

TEST(StretchBlt, ZoomsAndReadsBackWholeBlocks) {
  Random random(22);
  for (int round = 0; round < 300; ++round) {
    use_fast_forms(random() % 4 != 0);
    const int rate = 1 << random() % 4;
    Surface view(between(random, 20, 90), between(random, 20, 90)), picture(between(random, 5, 40), 12);
    make_noise(picture, random);
    const int x = between(random, -30, 10), y = between(random, -30, 10), w = between(random, 1, 20),
              h = between(random, 1, 12);
    expect_stretched(random, view, picture, {x, y, w * rate, h * rate, 2, 1, w, h, Stretch::COLORONCOLOR}, SRCCOPY);
    expect_stretched(random, picture, view, {3, 0, 1, h, x + rate / 2, y, 1, h * rate, Stretch::COLORONCOLOR}, SRCCOPY);
    if (HasFatalFailure()) return;
  }
}

TEST(StretchBlt, OnItselfBehavesAsIfTheSourceWereCopied) {
  Random random(23);
  Surface s(20, 20);
  make_noise(s, random);
  const Surface from = copy_of(s);
  const StretchCase c{3, 2, 15, 17, 1, 1, 6, 30, Stretch::COLORONCOLOR};
  StretchBlt(s, c.x, c.y, c.w, c.h, s, c.sx, c.sy, c.sw, c.sh);
  for (int y = 0; y < 20; ++y)
    for (int x = 0; x < 20; ++x) {
      const Colour p = sampled(from, c, x, y);
      ASSERT_EQ(GetPixel(s, x, y), p == CLR_INVALID ? GetPixel(from, x, y) : p);
    }
}

TEST(StretchBlt, HugeSizesAreCut) {
  Surface dest(4, 4, 32, BLACK), src(4, 4, 32, RED);
  StretchBlt(dest, -1000000, -1000000, 2000000, 2000000, src, 0, 0, 4, 4);
  EXPECT_EQ(text_of(dest), rows({"rrrr", "rrrr", "rrrr", "rrrr"}));
  dest.fill(BLACK);
  for (const int far : {INT32_MIN, INT32_MAX}) {
    StretchBlt(dest, 0, 0, far, far, src, 9, 9, 3, 3);
    StretchBlt(dest, far, far, 4, 4, src, 0, 0, 4, 4);
    StretchBlt(dest, 0, 0, 4, 4, src, far, far, far, far);
  }
  EXPECT_EQ(text_of(dest), rows({"....", "....", "....", "...."}));
}

TEST(StretchBlt, TouchesWhatItDraws) {
  Surface dest(10, 10), src(2, 2);
  dest.take_touched();
  StretchBlt(dest, 7, 3, 8, 4, src, 0, 0, 2, 2);
  const Rect r = dest.take_touched();
  EXPECT_EQ(r.left, 7);
  EXPECT_EQ(r.top, 3);
  EXPECT_EQ(r.right, 10);
  EXPECT_EQ(r.bottom, 7);
}

}  // namespace
}  // namespace raster
