#include <algorithm>
#include <new>
#include <vector>

#include "platform/disk/new_file.h"
#include "platform/error.h"
#include "platform/raster/bmp.h"
#include "platform/raster/bmp_pack.h"
#include "platform/raster/line_buffer.h"

namespace raster {

namespace {

constexpr size_t STRIP_BYTES = size_t{256} << 10;  // stays in the cache between packing and writing
constexpr size_t HEADER_BYTES = 54;

void put32(uint8_t* to, uint32_t value) {
  for (int i = 0; i < 4; ++i) to[i] = static_cast<uint8_t>(value >> 8 * i);
}

void put_header(uint8_t* to, const Surface& s, size_t row_bytes) {
  const uint32_t pixel_bytes = static_cast<uint32_t>(row_bytes) * static_cast<uint32_t>(s.height());
  std::fill_n(to, HEADER_BYTES, uint8_t{0});
  to[0] = 'B', to[1] = 'M';
  put32(to + 2, HEADER_BYTES + pixel_bytes);
  put32(to + 10, HEADER_BYTES);
  put32(to + 14, 40);
  put32(to + 18, static_cast<uint32_t>(s.width()));
  put32(to + 22, static_cast<uint32_t>(s.height()));
  to[26] = 1;   // planes
  to[28] = 24;  // bits
  put32(to + 34, pixel_bytes);
}

// The surface's rows as 32-bit pixels.
class RowSource {
 public:
  explicit RowSource(const Surface& s) : s_(s) {
    if (s.depth() != 32) line_.resize(static_cast<size_t>(s.width()));
  }
  const uint32_t* row(int y) {
    if (line_.empty()) return s_.row32(y);
    load_row(s_, y, 0, s_.width(), line_.data());
    return line_.data();
  }

 private:
  const Surface& s_;
  std::vector<uint32_t> line_;  // empty: the rows are the surface's own
};

}  // namespace

void save_bmp(const Surface& s, const std::string& path) try {
  if (s.width() == 0 || s.height() == 0) throw RuntimeError(481);
  const size_t pixel_bytes = static_cast<size_t>(s.width()) * 3, row_bytes = (pixel_bytes + 3) / 4 * 4;
  std::vector<uint8_t> strip(std::max(STRIP_BYTES, HEADER_BYTES + row_bytes));
  put_header(strip.data(), s, row_bytes);
  size_t filled = HEADER_BYTES;
  RowSource rows(s);
  disk::NewFile file(path);
  for (int y = s.height() - 1; y >= 0; --y) {
    if (filled + row_bytes > strip.size()) {
      file.write(strip.data(), filled);
      filled = 0;
    }
    uint8_t* row = &strip[filled];
    pack_24(rows.row(y), row, s.width());
    std::fill(row + pixel_bytes, row + row_bytes, uint8_t{0});
    filled += row_bytes;
  }
  file.write(strip.data(), filled);
  file.take_its_name();
} catch (const std::bad_alloc&) {
  throw RuntimeError(7);
}

}  // namespace raster
