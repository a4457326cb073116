// Picture files beside plain reads and writes of the same bytes, on the memory file system.
#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "file_rows.h"
#include "harness.h"
#include "pictures.h"
#include "platform/raster/ico.h"

namespace bench {

namespace {

struct Files {
  Files() : folder("/dev/shm/kiso_bench-" + std::to_string(getpid())) {
    std::filesystem::create_directory(folder);
    raster::save_bmp(pictures().picture, folder + "/picture.bmp");
  }
  ~Files() {
    std::error_code failed;
    std::filesystem::remove_all(folder, failed);
  }
  Files(const Files&) = delete;
  Files& operator=(const Files&) = delete;
  std::string folder;
};

const std::string& folder() {
  static const Files files;
  return files.folder;
}

constexpr size_t FILE_SIZE = 54 + size_t{3} * picgen::W * picgen::H;
std::vector<char> plain_bytes;
raster::Surface loaded;

// The file's bytes pass through the call at once, to or from memory that is already there.
void transfer(const std::string& name, int flags, bool out) {
  plain_bytes.resize(FILE_SIZE, 1);
  const int file = open(name.c_str(), flags, 0600);
  const ssize_t done = out ? write(file, plain_bytes.data(), FILE_SIZE) : read(file, plain_bytes.data(), FILE_SIZE);
  if (done != std::ssize(plain_bytes) || close(file) != 0) std::abort();
}

double plain_read() {
  return timed([] { transfer(picture_file(), O_RDONLY, false); });
}
double plain_write() {
  return timed([] { transfer(folder() + "/plain", O_WRONLY | O_CREAT | O_TRUNC, true); });
}
// As the program does it: a new picture, and the one before is given back.
double bmp_load() {
  return timed([] { loaded = raster::load_picture_file(picture_file()); });
}
double bmp_save() {
  return timed([] { raster::save_bmp(pictures().picture, folder() + "/saved.bmp"); });
}

}  // namespace

std::string picture_file() { return folder() + "/picture.bmp"; }
std::string saved_file(const std::string& peer) { return folder() + "/" + peer + ".bmp"; }

void add_file_rows(Rows& rows) {
  rows.push_back({"plain read", "", plain_read});
  rows.push_back({"plain write", "", plain_write});
  rows.push_back(
      {"bmp_save", "4096 x 4096, 24 bits, memory file system", bmp_save, {{1.6, "plain write"}, {1.0, "OpenCV"}}});
  rows.push_back({"bmp_load", "the same", bmp_load, {{2.0, "plain read"}, {0.70, "OpenCV"}}});
}

}  // namespace bench
