// Picture files beside plain reads and writes of the same bytes, on the memory file system. Each row is a procedure
// that does its work once and gives the nanoseconds; 9 rounds, medians.
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "picgen.h"
#include "platform/raster/ico.h"

namespace {

constexpr int ROUNDS = 9;

raster::Surface picture(picgen::W, picgen::H), loaded;
std::vector<uint8_t> whole_file;
std::string saved_name, plain_name;

template <class Work>
double timed(Work&& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - start).count();
}

// The file's bytes pass through the call at once, to or from memory that is already there.
void transfer(const std::string& name, int flags, bool out) {
  const int file = open(name.c_str(), flags, 0600);
  const ssize_t size = std::ssize(whole_file);
  const ssize_t done =
      out ? write(file, whole_file.data(), whole_file.size()) : read(file, whole_file.data(), whole_file.size());
  if (done != size || close(file) != 0) std::abort();
}

double plain_read() {
  return timed([] { transfer(saved_name, O_RDONLY, false); });
}
double plain_write() {
  return timed([] { transfer(plain_name, O_WRONLY | O_CREAT | O_TRUNC, true); });
}
// As the program does it: a new picture, and the one before is given back.
double bmp_load() {
  return timed([] { loaded = raster::load_picture_file(saved_name); });
}
double bmp_save() {
  return timed([] { raster::save_bmp(picture, saved_name); });
}

struct Row {
  const char* name;
  double (*run)();
  double goal;  // ratio to the row above, 0 for none
  std::vector<double> times = {};
};
Row rows[] = {{"plain_read", plain_read, 0},
              {"bmp_load", bmp_load, 2.0},
              {"plain_write", plain_write, 0},
              {"bmp_save", bmp_save, 1.6}};

}  // namespace

int main() {
  const std::string folder = "/dev/shm/bmp_bench-" + std::to_string(getpid());
  saved_name = folder + "-saved", plain_name = folder + "-plain";
  picgen::picture(picture.row32(0));
  whole_file.assign(54 + size_t{3} * picgen::W * picgen::H, 1);
  raster::save_bmp(picture, saved_name);
  for (int round = 0; round < ROUNDS; ++round) {
    for (Row& row : rows) row.times.push_back(row.run());
  }
  double above = 0;
  for (Row& row : rows) {
    std::nth_element(row.times.begin(), row.times.begin() + ROUNDS / 2, row.times.end());
    const double median = row.times[ROUNDS / 2];
    std::printf("%-12s %10.0f us", row.name, median / 1000);
    if (row.goal > 0) std::printf("  x %.2f, at most %.1f", median / above, row.goal);
    std::printf("\n");
    above = median;
  }
  unlink(saved_name.c_str());
  unlink(plain_name.c_str());
}
