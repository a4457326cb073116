// The numbers of the system: rounding to nearest with ties to even, overflow as error 6, arrays that know their bounds.
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>

#include "platform/error.h"

// Nearest integer, ties to even. A value that the type can not hold is an overflow, error 6. The default floating-point
// rounding mode is relied on; lrint is one instruction, where nearbyint is a call. The bounds are the last values that
// round into the type: half below the lowest goes to it, half above the highest goes beyond it.
inline int16_t to_int16(double value) {
  if (!(value >= -32768.5 && value < 32767.5)) throw RuntimeError(6);
  return static_cast<int16_t>(std::lrint(value));
}

inline int32_t to_int32(double value) {
  if (!(value >= -2147483648.5 && value < 2147483647.5)) throw RuntimeError(6);
  return static_cast<int32_t>(std::lrint(value));
}

// Toward zero.
inline int32_t truncate(double value) {
  const double t = std::trunc(value);
  if (!(t >= INT32_MIN && t <= INT32_MAX)) throw RuntimeError(6);
  return static_cast<int32_t>(t);
}

// An array with the index base First: Array<int16_t, 1, 2> has the elements (1) and (2). An index outside is error 9.
template <class T, int First, int Last>
struct Array {
  std::array<T, static_cast<size_t>(Last - First + 1)> items{};

  T& operator()(int i) { return items[place(i)]; }
  const T& operator()(int i) const { return items[place(i)]; }
  static constexpr int lowest = First, highest = Last;

 private:
  static size_t place(int i) {
    if (i < First || i > Last) throw RuntimeError(9);
    return static_cast<size_t>(i - First);
  }
};
