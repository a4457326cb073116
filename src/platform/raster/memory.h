// How much memory a picture may take.
#pragma once

#include <cstdint>
#include <string>

namespace raster {

// Bytes that can be had without pushing anything out: the machine's, or what is left to the control groups of this
// process if that is less; the largest number where the system tells nothing. A number in the environment variable
// KISO_FREE_MEMORY stands for all that. root: where the system's files are.
uint64_t free_memory(const std::string& root = "");

// Error 7 if a picture that needs so many bytes would take more than half of them.
void check_memory(uint64_t bytes);

}  // namespace raster
