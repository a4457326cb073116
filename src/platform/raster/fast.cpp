#include "platform/raster/fast.h"

#include <cstdint>
#include <cstdlib>

namespace raster {

namespace {

enum class Forms : uint8_t { not_asked_yet, plain, fast };
Forms forms = Forms::not_asked_yet;

}  // namespace

void use_fast_forms(bool on) { forms = on ? Forms::fast : Forms::plain; }

bool fast_forms() {
  if (forms == Forms::not_asked_yet) {
    const char* plain = std::getenv("KISO_PLAIN");
    use_fast_forms(plain == nullptr || *plain == '\0');
  }
  return forms == Forms::fast;
}

bool avx2() {
#if defined(RASTER_AVX2)
  return fast_forms() && __builtin_cpu_supports("avx2");
#else
  return false;
#endif
}

}  // namespace raster
