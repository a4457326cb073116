#include <bit>

#include "platform/raster/fast.h"
#include "platform/raster/flood.h"
#include "platform/raster/pixel.h"

namespace raster {

namespace {

int rows_of(const Surface& s, int band) { return std::min(8, s.height() - band * 8); }

void compare_plain(const Surface& s, int band, int first, int end, const FloodRule& rule, FloodBlock* blocks) {
  std::fill(blocks + first, blocks + end, FloodBlock{});
  at_depth(s.depth(), [&](auto px) {
    for (int r = 0; r < rows_of(s, band); ++r) {
      const uint8_t* p = s.row(band * 8 + r);
      for (int x = first * 8; x < std::min(end * 8, s.width()); ++x)
        blocks[x / 8].open |= uint64_t{rule.open(px.get(p + x * px.bytes))} << (r * 8 + x % 8);
    }
  });
}

void paint_plain(Surface& s, int band, int first, int last, uint32_t pixel, const FloodBlock* blocks) {
  at_depth(s.depth(), [&](auto px) {
    for (int bx = first; bx <= last; ++bx) {
      for (uint64_t left = blocks[bx].filled; left != 0; left &= left - 1) {
        const int bit = std::countr_zero(left);
        px.put(s.row(band * 8 + bit / 8) + (bx * 8 + bit % 8) * px.bytes, pixel);
      }
    }
  });
}

#if defined(RASTER_AVX2)
// Reads whole blocks: rows are padded to 16 pixels at depth 32, and what lies beyond the width is taken out again.
RASTER_AVX2 void compare_avx2(const Surface& s, int band, int first, int end, const FloodRule& rule,
                              FloodBlock* blocks) {
  const __m256i value = _mm256_set1_epi32(static_cast<int>(rule.value));
  const int rows = rows_of(s, band);
  const uint64_t flip = rule.border ? ~uint64_t{0} : 0, there = ~uint64_t{0} >> (64 - rows * 8);
  const uint8_t* top = s.row(band * 8);
  for (int bx = first; bx < end; ++bx) {
    uint64_t same = 0;
    for (int r = 0; r < rows; ++r) {
      const __m256i pixels =
          _mm256_load_si256(reinterpret_cast<const __m256i*>(top + r * s.stride() + ptrdiff_t{bx} * 32));
      const __m256i equal = _mm256_cmpeq_epi32(pixels, value);
      same |= uint64_t{static_cast<unsigned>(_mm256_movemask_ps(_mm256_castsi256_ps(equal)))} << r * 8;
    }
    blocks[bx] = {(same ^ flip) & there, 0, 0, 0};
  }
  if (end * 8 > s.width()) blocks[end - 1].open &= 0x0101010101010101 * ((1U << s.width() % 8) - 1);
}

RASTER_AVX2 void paint_avx2(Surface& s, int band, int first, int last, uint32_t pixel, const FloodBlock* blocks) {
  const __m256i paint = _mm256_set1_epi32(static_cast<int>(pixel));
  const __m256i lane = _mm256_setr_epi32(1, 2, 4, 8, 16, 32, 64, 128);
  for (int r = 0; r < rows_of(s, band); ++r) {
    __m256i* p = reinterpret_cast<__m256i*>(s.row(band * 8 + r));
    for (int bx = first; bx <= last; ++bx) {
      const int bits = blocks[bx].filled >> r * 8 & 0xFF;
      if (bits == 0xFF) {
        _mm256_store_si256(p + bx, paint);
      } else if (bits != 0) {
        const __m256i chosen = _mm256_cmpeq_epi32(_mm256_and_si256(_mm256_set1_epi32(bits), lane), lane);
        _mm256_maskstore_epi32(reinterpret_cast<int*>(p + bx), chosen, paint);
      }
    }
  }
}
#endif

}  // namespace

void flood_compare(const Surface& s, int band, int first, int end, const FloodRule& rule, FloodBlock* blocks) {
#if defined(RASTER_AVX2)
  if (s.depth() == 32 && avx2()) return compare_avx2(s, band, first, end, rule, blocks);
#endif
  compare_plain(s, band, first, end, rule, blocks);
}

void flood_paint(Surface& s, int band, int first, int last, uint32_t pixel, const FloodBlock* blocks) {
#if defined(RASTER_AVX2)
  if (s.depth() == 32 && avx2()) return paint_avx2(s, band, first, last, pixel, blocks);
#endif
  paint_plain(s, band, first, last, pixel, blocks);
}

}  // namespace raster
