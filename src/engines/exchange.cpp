#include "engines/exchange.h"

#include "engines/depth.h"
#include "platform/raster/fast.h"
#include "platform/raster/pixel.h"
#include "windows/windows.h"

namespace kiso {

namespace {

void by_pixels(Surface& s, Colour key, Colour target, Chosen chosen) {
  const auto rule = [&](int /*x*/, int /*y*/, Colour c) { return (c == key) == (chosen == Chosen::key) ? target : c; };
  each_pixel(s, s.width(), s.height(), rule, WAIT_PROGRESS);
}

void by_bytes(Surface& s, Colour key, Colour target, Chosen chosen) {
  const uint32_t from = rgb32_of(key);
  const uint32_t to = rgb32_of(target);
  const auto rule = [&](int /*x*/, int /*y*/, uint8_t* bytes) {
    if ((Pixel<32>::get(bytes) == from) == (chosen == Chosen::key)) Pixel<32>::put(bytes, to);
  };
  each_bytes(s, rule, WAIT_PROGRESS);
}

#if defined(RASTER_AVX2)
// Whole cache lines of 16 pixels, as which rows are laid out; what does not change is not written.
RASTER_AVX2 void row_avx2(uint32_t* pixels, int n, uint32_t key, uint32_t target, Chosen chosen) {
  const __m256i from = _mm256_set1_epi32(static_cast<int>(key));
  const __m256i to = _mm256_set1_epi32(static_cast<int>(target));
  const __m256i flip = _mm256_set1_epi32(chosen == Chosen::key ? 0 : -1);
  for (int x = 0; x < n; x += 16) {
    __m256i* line = reinterpret_cast<__m256i*>(pixels + x);
    const __m256i low = _mm256_load_si256(line);
    const __m256i high = _mm256_load_si256(line + 1);
    const __m256i low_hit = _mm256_xor_si256(_mm256_cmpeq_epi32(low, from), flip);
    const __m256i high_hit = _mm256_xor_si256(_mm256_cmpeq_epi32(high, from), flip);
    const __m256i any = _mm256_or_si256(low_hit, high_hit);
    if (_mm256_testz_si256(any, any)) continue;
    _mm256_store_si256(line, _mm256_blendv_epi8(low, to, low_hit));
    _mm256_store_si256(line + 1, _mm256_blendv_epi8(high, to, high_hit));
  }
}

void by_rows_avx2(Surface& s, Colour key, Colour target, Chosen chosen) {
  for (int y = s.height() - 1; y >= 0; --y) {
    WAIT_PROGRESS(s.height() - y, s.height());
    row_avx2(s.row32(y), s.width(), rgb32_of(key), rgb32_of(target), chosen);
  }
  s.touch_all();
}
#endif

}  // namespace

void exchange_colour(Surface& s, Colour key, Colour target, Chosen chosen) {
  const Engine engine = chosen == Chosen::key ? Engine::CHG_COLOR : Engine::CHG_COLOR_REV;
  const bool bytes = way_of(engine, s) == Way::byte_buffer;
  WAIT_PROGRESS(0, bytes ? s.height() : s.width());
  if (!bytes) return by_pixels(s, key, target, chosen);
#if defined(RASTER_AVX2)
  if (avx2()) return by_rows_avx2(s, key, target, chosen);
#endif
  by_bytes(s, key, target, chosen);
}

}  // namespace kiso
