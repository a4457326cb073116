#include "platform/raster/bmp_pack.h"

#include <cstddef>

#include "platform/raster/fast.h"

namespace raster {

namespace {

void expand_24_plain(const uint8_t* bgr, uint32_t* pixels, int n) {
  for (int i = 0; i < n; ++i, bgr += 3) {
    pixels[i] = 0xFF000000u | static_cast<uint32_t>(bgr[2]) << 16 | static_cast<uint32_t>(bgr[1]) << 8 | bgr[0];
  }
}

void pack_24_plain(const uint32_t* pixels, uint8_t* bgr, int n) {
  for (int i = 0; i < n; ++i, bgr += 3) {
    bgr[0] = static_cast<uint8_t>(pixels[i]);
    bgr[1] = static_cast<uint8_t>(pixels[i] >> 8);
    bgr[2] = static_cast<uint8_t>(pixels[i] >> 16);
  }
}

#if defined(RASTER_AVX2)

// Both stop where a load or store of whole registers would leave the row, and answer the pixels done.
RASTER_AVX2 int expand_24_avx2(const uint8_t* bgr, uint32_t* pixels, int n) {
  const __m256i spread = _mm256_setr_epi8(0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11, -1,  //
                                          0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11, -1);
  const __m256i opaque = _mm256_set1_epi32(static_cast<int>(0xFF000000u));
  int i = 0;
  for (; i + 10 <= n; i += 8, bgr += 24) {  // reads 28 bytes
    const __m128i low = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bgr));
    const __m128i high = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bgr + 12));
    const __m256i both = _mm256_inserti128_si256(_mm256_castsi128_si256(low), high, 1);
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(pixels + i),
                        _mm256_or_si256(_mm256_shuffle_epi8(both, spread), opaque));
  }
  return i;
}

RASTER_AVX2 int pack_24_avx2(const uint32_t* pixels, uint8_t* bgr, int n) {
  const __m256i squeeze = _mm256_setr_epi8(0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, -1, -1, -1, -1,  //
                                           0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, -1, -1, -1, -1);
  const __m256i join = _mm256_setr_epi32(0, 1, 2, 4, 5, 6, 3, 7);
  int i = 0;
  for (; i + 11 <= n; i += 8, bgr += 24) {  // writes 32 bytes
    const __m256i eight = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(pixels + i));
    const __m256i packed = _mm256_permutevar8x32_epi32(_mm256_shuffle_epi8(eight, squeeze), join);
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(bgr), packed);
  }
  return i;
}

#endif

}  // namespace

void expand_24(const uint8_t* bgr, uint32_t* pixels, int n) {
  int done = 0;
#if defined(RASTER_AVX2)
  if (avx2()) done = expand_24_avx2(bgr, pixels, n);
#endif
  expand_24_plain(bgr + ptrdiff_t{3} * done, pixels + done, n - done);
}

void pack_24(const uint32_t* pixels, uint8_t* bgr, int n) {
  int done = 0;
#if defined(RASTER_AVX2)
  if (avx2()) done = pack_24_avx2(pixels, bgr, n);
#endif
  pack_24_plain(pixels + done, bgr + ptrdiff_t{3} * done, n - done);
}

}  // namespace raster
