#include "engines/brush.h"

#include "frame/usr_sub.h"
#include "platform/raster/fast.h"
#include "platform/raster/pixel.h"

namespace kiso {

namespace {

// What each cell is mixed with, and where.
struct Mix {
  const Surface& old;
  const Surface* stencil;
  Colour key = RGB(DES_R, DES_G, DES_B);
  bool reaches(int x, int y) const {
    return BRUSH_CELL(x)(y) != 0 && (stencil == nullptr || GetPixel(*stencil, x, y) == key);
  }
};

int mixed(int old, int target, float cell) {
  const float rest = 1 - cell;
  const float sum = static_cast<float>(old) * cell + rest * static_cast<float>(target);
  return std::clamp(to_int32(sum), 0, 255);
}

void mix_by_calls(const Mix& mix) {
  each_pixel(WORK, PEN_SIZE, PEN_SIZE, [&](int x, int y, Colour c) {
    if (!mix.reaches(x, y)) return c;
    const float cell = BRUSH_CELL(x)(y);
    int32_t R = 0;
    int32_t G = 0;
    int32_t B = 0;
    unpack_colour(GetPixel(mix.old, x, y), R, G, B);
    return RGB(mixed(R, TAR_R, cell), mixed(G, TAR_G, cell), mixed(B, TAR_B, cell));
  });
}

// The cells beyond PEN_SIZE are 0.
void mix_by_bytes(const Mix& mix) {
  each_bytes(WORK, [&](int x, int y, uint8_t* bytes) {
    if (!mix.reaches(x, y)) return;
    const float cell = BRUSH_CELL(x)(y);
    const uint8_t* old = mix.old.row(y) + ptrdiff_t{4} * x;
    bytes[0] = static_cast<uint8_t>(mixed(old[0], TAR_B, cell));
    bytes[1] = static_cast<uint8_t>(mixed(old[1], TAR_G, cell));
    bytes[2] = static_cast<uint8_t>(mixed(old[2], TAR_R, cell));
  });
}

#if defined(RASTER_AVX2)
// A pixel's components side by side.
RASTER_AVX2 inline uint32_t mixed_avx2(uint32_t old, __m128 target, float cell) {
  const __m128 components = _mm_cvtepi32_ps(_mm_cvtepu8_epi32(_mm_cvtsi32_si128(static_cast<int>(old))));
  const __m128 sum = _mm_add_ps(_mm_mul_ps(components, _mm_set1_ps(cell)), _mm_mul_ps(_mm_set1_ps(1 - cell), target));
  const __m128i words = _mm_packs_epi32(_mm_cvtps_epi32(sum), _mm_setzero_si128());
  return static_cast<uint32_t>(_mm_cvtsi128_si32(_mm_packus_epi16(words, words))) | OPAQUE;
}

// Only what goes back to DRAW.
RASTER_AVX2 void mix_avx2(const Mix& mix) {
  const __m128 target = _mm_cvtepi32_ps(_mm_setr_epi32(TAR_B, TAR_G, TAR_R, 255));
  const uint32_t key = rgb32_of(mix.key);
  Surface& work = WORK;
  for (int y = 0; y < PEN_SIZE; ++y) {
    uint32_t* to = work.row32(y);
    const uint32_t* old = mix.old.row32(y);
    const uint32_t* stencil = mix.stencil ? mix.stencil->row32(y) : nullptr;
    for (int x = 0; x < PEN_SIZE; ++x) {
      const float cell = BRUSH_CELL(x)(y);
      if (cell == 0 || (stencil && stencil[x] != key)) continue;
      to[x] = mixed_avx2(old[x], target, cell);
    }
  }
}
#endif

}  // namespace

void clear_brush_cells() {
  for (int x = 0; x <= 34; ++x) {
    for (int y = 0; y <= 34; ++y) BRUSH_CELL(x)(y) = 0;
  }
}

void clear_brush_picture(int rim) {
  WORK3.Move(WORK3.Left(), WORK3.Top(), PEN_SIZE, PEN_SIZE);
  WORK3.AutoRedraw(true);
  Line(WORK3, -rim, -rim, PEN_SIZE + rim, PEN_SIZE + rim, RGB(0, 0, 0), LineForm::box_fill);
}

void brush_disc(int r, int grey) {
  const Colour colour = RGB(grey, grey, grey);
  const int middle = PEN_SIZE / 2;
  WORK3.FillStyle(0);
  WORK3.ForeColor(colour);
  WORK3.FillColor(colour);
  if (r == 0) {
    SetPixelV(WORK3, middle, middle, colour);  // an ellipse of one pixel is none
  } else {
    Ellipse(WORK3, middle - r, middle - r, middle + r + 1, middle + r + 1);
  }
  WORK3.FillStyle(1);
}

void mix_tile(Engine engine, const Surface& old, const Surface* stencil) {
  const Mix mix{old, stencil};
#if defined(RASTER_AVX2)
  if (avx2() && WORK.target().depth() == 32) return mix_avx2(mix);
#endif
  switch (way_of(engine, WORK)) {
    case Way::leave: return;
    case Way::pixel_calls: return mix_by_calls(mix);
    case Way::byte_buffer: return mix_by_bytes(mix);
  }
}

void tile_of_undo(const Tile& tile) {
  int h = PEN_SIZE;
  if (EXP_RATE > 1 && tile.y + h > VIEW_PIX(2)) h = VIEW_PIX(2) - tile.y;
  BitBlt(WORK4, 0, 0, PEN_SIZE, h, UNDO, tile.x, tile.y);
}

}  // namespace kiso
