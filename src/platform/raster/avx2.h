// The fast forms of hot loops are compiled for AVX2 beside the plain ones and taken where the machine has it.
#pragma once

#if defined(__x86_64__)
#include <immintrin.h>
#define RASTER_AVX2 __attribute__((target("avx2")))
namespace raster {
inline bool has_avx2() { return __builtin_cpu_supports("avx2"); }
}  // namespace raster
#endif
