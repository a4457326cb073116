// A hot loop has a plain form, which says what it does, and where it pays a fast form beside it, which gives the same
// bytes. Whatever has both asks here which of them to take:
//
//     if (fast_forms() && <what the fast form is for>) return rows_fast(...);
//     rows_plain(...);
//
// and of a form that is compiled for AVX2, between #if defined(RASTER_AVX2) and #endif, asks avx2().
#pragma once

#if defined(__x86_64__)
#include <immintrin.h>
#define RASTER_AVX2 __attribute__((target("avx2")))  // before a procedure
#endif

namespace raster {

// True unless they have been switched off: by the call below, or from the start by KISO_PLAIN in the environment, set
// and not empty.
bool fast_forms();
void use_fast_forms(bool on);

// The fast forms are on and the machine has AVX2.
bool avx2();

}  // namespace raster
