#include "engines/value.h"

#include "colour/colour.h"
#include "engines/area.h"
#include "engines/depth.h"
#include "platform/raster/fast.h"
#include "platform/raster/pixel.h"
#include "windows/windows.h"

namespace kiso {

double v_factor() { return HSET_V > 0 ? HSET_V / 100.0 : 0; }

Colour with_value(Colour c, double factor) {
  int32_t R = 0, G = 0, B = 0;
  unpack_colour(c, R, G, B);
  double h = 0, s = 0, v = 0, r = 0, g = 0, b = 0;
  RGB_TO_HSV(R, G, B, h, s, v);
  v *= factor;
  HSV_TO_RGB(h, s, v, r, g, b);
  return RGB(truncate(r * 255), truncate(g * 255), truncate(b * 255));
}

namespace {

void scale_plain(Surface& s, double factor) {
  each_pixel(
      s, s.width(), s.height(), [factor](int /*x*/, int /*y*/, Colour c) { return with_value(c, factor); },
      WAIT_PROGRESS);
}

#if defined(RASTER_AVX2)
// Both conversions on four pixels, operation by operation as RGB_TO_HSV and HSV_TO_RGB do them.

// What HSV_TO_RGB makes of a colour, as bytes of 0xFFmmppVV: V itself, the least component p, and the one between; and
// which of the six sectors says where each of them goes.
struct Parts {
  __m128i bytes, sector;
};

struct Hsv4 {
  __m256d h, s, v;
};

RASTER_AVX2 inline __m256d component(__m128i pixels, int shift) {
  const __m128i byte = _mm_and_si128(_mm_srli_epi32(pixels, shift), _mm_set1_epi32(255));
  return _mm256_div_pd(_mm256_cvtepi32_pd(byte), _mm256_set1_pd(255));
}

RASTER_AVX2 inline Hsv4 rgb_to_hsv(__m128i pixels) {
  const __m256d none = _mm256_setzero_pd();
  const __m256d r = component(pixels, 16);
  const __m256d g = component(pixels, 8);
  const __m256d b = component(pixels, 0);
  const __m256d max = _mm256_max_pd(_mm256_max_pd(r, g), b);
  const __m256d delta = _mm256_sub_pd(max, _mm256_min_pd(_mm256_min_pd(r, g), b));
  // Greys have no divisor: their S and H are 0.
  const __m256d colourful = _mm256_cmp_pd(delta, none, _CMP_NEQ_OQ);
  const __m256d s = _mm256_and_pd(_mm256_div_pd(delta, max), colourful);
  const __m256d red = _mm256_cmp_pd(r, max, _CMP_EQ_OQ);
  const __m256d green = _mm256_cmp_pd(g, max, _CMP_EQ_OQ);
  const __m256d part =
      _mm256_blendv_pd(_mm256_blendv_pd(_mm256_sub_pd(r, g), _mm256_sub_pd(b, r), green), _mm256_sub_pd(g, b), red);
  const __m256d start = _mm256_blendv_pd(_mm256_blendv_pd(_mm256_set1_pd(4), _mm256_set1_pd(2), green), none, red);
  const __m256d turn = _mm256_add_pd(_mm256_div_pd(part, delta), start);
  const __m256d h = _mm256_mul_pd(_mm256_and_pd(turn, colourful), _mm256_set1_pd(60));
  const __m256d below = _mm256_cmp_pd(h, none, _CMP_LT_OQ);
  return {_mm256_add_pd(h, _mm256_and_pd(below, _mm256_set1_pd(360))), s, max};
}

RASTER_AVX2 inline __m128i truncated(__m256d fraction) {
  return _mm256_cvttpd_epi32(_mm256_mul_pd(fraction, _mm256_set1_pd(255)));
}

RASTER_AVX2 inline Parts scaled(__m128i pixels, __m256d factor) {
  const __m256d one = _mm256_set1_pd(1);
  const Hsv4 c = rgb_to_hsv(pixels);
  const __m256d v = _mm256_min_pd(_mm256_mul_pd(c.v, factor), one);
  __m128i degrees = _mm256_cvtpd_epi32(c.h);  // to nearest, ties to even
  degrees = _mm_andnot_si128(_mm_cmpeq_epi32(degrees, _mm_set1_epi32(360)), degrees);
  const __m256d hh = _mm256_div_pd(_mm256_cvtepi32_pd(degrees), _mm256_set1_pd(60));
  const __m128i sector = _mm256_cvttpd_epi32(hh);
  const __m256d f = _mm256_sub_pd(hh, _mm256_cvtepi32_pd(sector));
  // In odd sectors the component between falls (q), in even ones it rises (t).
  const __m256d odd = _mm256_castsi256_pd(_mm256_slli_epi64(_mm256_cvtepi32_epi64(sector), 63));
  const __m256d way = _mm256_blendv_pd(_mm256_sub_pd(one, f), f, odd);
  const __m256d p = _mm256_mul_pd(v, _mm256_sub_pd(one, c.s));
  const __m256d m = _mm256_mul_pd(v, _mm256_sub_pd(one, _mm256_mul_pd(c.s, way)));
  const __m128i rest = _mm_or_si128(_mm_slli_epi32(truncated(p), 8), _mm_slli_epi32(truncated(m), 16));
  return {_mm_or_si128(_mm_or_si128(truncated(v), rest), _mm_set1_epi32(static_cast<int>(0xFF000000U))), sector};
}

RASTER_AVX2 inline __m256i scaled(__m256i pixels, __m256d factor) {
  const Parts low = scaled(_mm256_castsi256_si128(pixels), factor);
  const Parts high = scaled(_mm256_extracti128_si256(pixels, 1), factor);
  // By sector: the part that goes to each byte of 0xAARRGGBB; 0 is V, 1 p, 2 the one between.
  const __m256i places =
      _mm256_setr_epi32(0x03000201, 0x03020001, 0x03010002, 0x03010200, 0x03020100, 0x03000102, 0, 0);
  const __m256i lane = _mm256_setr_epi32(0, 0x04040404, 0x08080808, 0x0C0C0C0C, 0, 0x04040404, 0x08080808, 0x0C0C0C0C);
  const __m256i place = _mm256_permutevar8x32_epi32(places, _mm256_set_m128i(high.sector, low.sector));
  return _mm256_shuffle_epi8(_mm256_set_m128i(high.bytes, low.bytes), _mm256_add_epi32(place, lane));
}

// Rows are laid out as whole groups of eight. A group that is like the one before it is not computed again.
RASTER_AVX2 void row_avx2(uint32_t* pixels, int n, double factor) {
  const __m256d factors = _mm256_set1_pd(factor);
  __m256i before = _mm256_setzero_si256();  // no pixel is 0
  __m256i result = before;
  for (int x = 0; x < n; x += 8) {
    __m256i* at = reinterpret_cast<__m256i*>(pixels + x);
    const __m256i group = _mm256_load_si256(at);
    if (_mm256_movemask_epi8(_mm256_cmpeq_epi32(group, before)) != -1) result = scaled(group, factors);
    before = group;
    _mm256_store_si256(at, result);
  }
}

void scale_avx2(Surface& s, double factor) {
  each_row_told_by_columns(s.width(), s.height(), [&](int y) { row_avx2(s.row32(y), s.width(), factor); });
  s.touch_all();
}
#endif

}  // namespace

void scale_row(uint32_t* pixels, int n, double factor) {
#if defined(RASTER_AVX2)
  if (avx2()) return row_avx2(pixels, n, factor);
#endif
  for (int x = 0; x < n; ++x) pixels[x] = rgb32_of(with_value(colour_of(pixels[x]), factor));
}

void scale_value(Surface& s, double factor) {
  WAIT_PROGRESS(0, s.width());
#if defined(RASTER_AVX2)
  if (s.depth() == 32 && avx2()) return scale_avx2(s, factor);
#endif
  scale_plain(s, factor);
}

}  // namespace kiso
