#include "engines/fuzzy.h"

#include <array>
#include <bit>

#include "colour/colour.h"
#include "engines/area.h"
#include "engines/depth.h"
#include "platform/raster/fast.h"
#include "platform/raster/pixel.h"
#include "windows/windows.h"

namespace kiso {

FuzzyBounds fuzzy_bounds(int h_range, int s_range, int v_range, int r, int g, int b) {
  double h = 0, s = 0, v = 0;
  RGB_TO_HSV(r, g, b, h, s, v);
  FuzzyBounds out{h + h_range,       h - h_range, s * 255 + s_range, s * 255 - s_range, v * 255 + v_range,
                  v * 255 - v_range, false};
  if (out.hHigh > 360) {
    out.wrap = true;
    out.hHigh -= 360;
  }
  if (out.hLow < 0) {
    out.wrap = true;
    out.hLow += 360;
  }
  return out;
}

bool is_near(Colour c, const FuzzyBounds& bounds) {
  int32_t r = 0, g = 0, b = 0;
  unpack_colour(c, r, g, b);
  double h = 0, s = 0, v = 0;
  RGB_TO_HSV(r, g, b, h, s, v);
  if (s * 255 > bounds.sHigh || s * 255 < bounds.sLow || v * 255 > bounds.vHigh || v * 255 < bounds.vLow) return false;
  return bounds.wrap ? h < bounds.hHigh || h > bounds.hLow : h < bounds.hHigh && h > bounds.hLow;
}

namespace {

void change_plain(Surface& s, const FuzzyRule& rule) {
  each_pixel(
      s, s.width(), s.height(), [&](int /*x*/, int /*y*/, Colour c) { return rule.hits(c) ? rule.target : c; },
      WAIT_PROGRESS);
}

#if defined(RASTER_AVX2)
// HSV of eight pixels in single precision, within a ten thousandth of a degree or a step; and the bounds, moved in or
// out by much more than that. What lies inside of the narrow bounds is near, what lies outside of the wide ones is not,
// and only the few pixels between them are asked for exactly.
constexpr float MARGIN = 1.0F / 64;

struct Hsv8 {
  __m256 h, s, v;
};

struct Bounds8 {
  Bounds8(const FuzzyBounds& b, float wider)
      : hHigh(static_cast<float>(b.hHigh) + wider),
        hLow(static_cast<float>(b.hLow) - wider),
        sHigh(static_cast<float>(b.sHigh) + wider),
        sLow(static_cast<float>(b.sLow) - wider),
        vHigh(static_cast<float>(b.vHigh) + wider),
        vLow(static_cast<float>(b.vLow) - wider),
        wrap(b.wrap) {}
  float hHigh, hLow, sHigh, sLow, vHigh, vLow;
  bool wrap;
};

RASTER_AVX2 inline Hsv8 estimate(__m256i pixels) {
  const __m256i byte = _mm256_set1_epi32(255);
  const __m256i r = _mm256_and_si256(_mm256_srli_epi32(pixels, 16), byte);
  const __m256i g = _mm256_and_si256(_mm256_srli_epi32(pixels, 8), byte);
  const __m256i b = _mm256_and_si256(pixels, byte);
  const __m256i max = _mm256_max_epi32(_mm256_max_epi32(r, g), b);
  const __m256i delta = _mm256_sub_epi32(max, _mm256_min_epi32(_mm256_min_epi32(r, g), b));
  // Red wins over green and green over blue.
  const __m256i red = _mm256_cmpeq_epi32(r, max);
  const __m256i green = _mm256_cmpeq_epi32(g, max);
  const __m256i part = _mm256_blendv_epi8(_mm256_blendv_epi8(_mm256_sub_epi32(r, g), _mm256_sub_epi32(b, r), green),
                                          _mm256_sub_epi32(g, b), red);
  const __m256 sector =
      _mm256_blendv_ps(_mm256_blendv_ps(_mm256_set1_ps(240), _mm256_set1_ps(120), _mm256_castsi256_ps(green)),
                       _mm256_setzero_ps(), _mm256_castsi256_ps(red));
  // Where a divisor would be 0 the dividend is.
  const __m256 one = _mm256_set1_ps(1);
  const __m256 v = _mm256_cvtepi32_ps(max);
  const __m256 d = _mm256_cvtepi32_ps(delta);
  const __m256 s = _mm256_div_ps(_mm256_mul_ps(d, _mm256_set1_ps(255)), _mm256_max_ps(v, one));
  const __m256 turn = _mm256_div_ps(_mm256_mul_ps(_mm256_cvtepi32_ps(part), _mm256_set1_ps(60)), _mm256_max_ps(d, one));
  const __m256 h = _mm256_add_ps(turn, sector);
  const __m256 below = _mm256_cmp_ps(h, _mm256_setzero_ps(), _CMP_LT_OQ);
  return {_mm256_add_ps(h, _mm256_and_ps(below, _mm256_set1_ps(360))), s, v};
}

RASTER_AVX2 inline __m256 between(__m256 value, float low, float high) {
  return _mm256_and_ps(_mm256_cmp_ps(value, _mm256_set1_ps(low), _CMP_GE_OQ),
                       _mm256_cmp_ps(value, _mm256_set1_ps(high), _CMP_LE_OQ));
}

RASTER_AVX2 inline __m256i inside(const Hsv8& c, const Bounds8& b) {
  const __m256 below = _mm256_cmp_ps(c.h, _mm256_set1_ps(b.hHigh), _CMP_LT_OQ);
  const __m256 above = _mm256_cmp_ps(c.h, _mm256_set1_ps(b.hLow), _CMP_GT_OQ);
  const __m256 h = b.wrap ? _mm256_or_ps(below, above) : _mm256_and_ps(below, above);
  return _mm256_castps_si256(
      _mm256_and_ps(h, _mm256_and_ps(between(c.s, b.sLow, b.sHigh), between(c.v, b.vLow, b.vHigh))));
}

class FuzzyRows {
 public:
  explicit FuzzyRows(const FuzzyRule& rule) : rule_(rule), wide_(rule.bounds, MARGIN), narrow_(rule.bounds, -MARGIN) {}

  // Rows are laid out as whole groups of eight.
  RASTER_AVX2 void change(uint32_t* pixels, int n) {
    const __m256i target = _mm256_set1_epi32(static_cast<int>(rgb32_of(rule_.target)));
    __m256i before = _mm256_setzero_si256();  // no pixel is 0
    __m256i hits = before;
    for (int x = 0; x < n; x += 8) {
      __m256i* at = reinterpret_cast<__m256i*>(pixels + x);
      const __m256i group = _mm256_load_si256(at);
      if (_mm256_movemask_epi8(_mm256_cmpeq_epi32(group, before)) != -1) hits = hits_of(group);
      before = group;
      if (!_mm256_testz_si256(hits, hits)) _mm256_store_si256(at, _mm256_blendv_epi8(group, target, hits));
    }
  }

 private:
  RASTER_AVX2 __m256i hits_of(__m256i group) {
    const Hsv8 hsv = estimate(group);
    const __m256i maybe = inside(hsv, wide_);
    const __m256i sure = inside(hsv, narrow_);
    __m256i hits = _mm256_andnot_si256(maybe, _mm256_set1_epi32(-1));
    __m256i ask = _mm256_andnot_si256(sure, maybe);
    if (!rule_.reverse) {
      const int destination = static_cast<int>(rgb32_of(rule_.destination));
      hits = _mm256_or_si256(sure, _mm256_cmpeq_epi32(group, _mm256_set1_epi32(destination)));
      ask = _mm256_andnot_si256(hits, ask);
    }
    const int open = _mm256_movemask_ps(_mm256_castsi256_ps(ask));
    return open == 0 ? hits : _mm256_or_si256(hits, exactly(group, open));
  }

  RASTER_AVX2 __m256i exactly(__m256i group, int open) {
    alignas(32) std::array<uint32_t, 8> pixels{}, hits{};
    _mm256_store_si256(reinterpret_cast<__m256i*>(pixels.data()), group);
    for (unsigned left = static_cast<unsigned>(open); left != 0; left &= left - 1) {
      const auto i = static_cast<size_t>(std::countr_zero(left));
      hits[i] = asked(pixels[i]) ? ~0U : 0U;
    }
    return _mm256_load_si256(reinterpret_cast<const __m256i*>(hits.data()));
  }

  // A colour that has been asked for is remembered until another takes its place.
  bool asked(uint32_t pixel) {
    Answer& a = answers_[(pixel * 0x9E3779B1U) >> 24];
    if (a.pixel != pixel) a = {pixel, rule_.hits(colour_of(pixel))};
    return a.hit;
  }

  struct Answer {
    uint32_t pixel = 0;
    bool hit = false;
  };
  const FuzzyRule& rule_;
  Bounds8 wide_, narrow_;
  std::array<Answer, 256> answers_{};
};

void change_avx2(Surface& s, const FuzzyRule& rule) {
  FuzzyRows rows(rule);
  each_row_told_by_columns(s.width(), s.height(), [&](int y) { rows.change(s.row32(y), s.width()); });
  s.touch_all();
}
#endif

}  // namespace

void change_fuzzy(Surface& s, const FuzzyRule& rule) {
  WAIT_PROGRESS(0, s.width());
#if defined(RASTER_AVX2)
  if (s.depth() == 32 && avx2()) return change_avx2(s, rule);
#endif
  change_plain(s, rule);
}

}  // namespace kiso
