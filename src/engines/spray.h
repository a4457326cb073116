// The generator of the dot sprays.
#pragma once

#include <cstdint>

namespace kiso {

// The next of a row of uniform numbers, from 0 up to but not including 1. Nothing ever seeds it: each run of the
// program has the same row.
float Rnd();
extern uint32_t RND_STATE;

}  // namespace kiso
