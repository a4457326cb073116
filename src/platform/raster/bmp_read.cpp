#include <algorithm>
#include <vector>

#include "platform/error.h"
#include "platform/raster/bmp_dib.h"
#include "platform/raster/bmp_pack.h"
#include "platform/raster/line_buffer.h"
#include "platform/raster/memory.h"

namespace raster {

namespace {

constexpr size_t STRIP_BYTES = size_t{128} << 10;  // stays in the cache between the read and the decoding

using DecodeRow = void (*)(const Dib& dib, const uint8_t* bytes, uint32_t* pixels);

template <int Bits>
void indexed_row(const Dib& dib, const uint8_t* bytes, uint32_t* pixels) {
  constexpr int per_byte = 8 / Bits;
  for (int x = 0; x < dib.width; ++x) {
    const int shift = 8 - Bits - x % per_byte * Bits;  // the first pixel is in the high bits
    pixels[x] = dib.colours[static_cast<size_t>(bytes[x / per_byte] >> shift & ((1 << Bits) - 1))];
  }
}

template <int Bytes>
void fields_row(const Dib& dib, const uint8_t* bytes, uint32_t* pixels) {
  for (int x = 0; x < dib.width; ++x, bytes += Bytes) {
    const uint32_t pixel = Bytes == 2 ? little16(bytes) : little32(bytes);
    pixels[x] = 0xFF000000u | dib.red.of(pixel) << 16 | dib.green.of(pixel) << 8 | dib.blue.of(pixel);
  }
}

void row_24(const Dib& dib, const uint8_t* bytes, uint32_t* pixels) { expand_24(bytes, pixels, dib.width); }

void row_32(const Dib& dib, const uint8_t* bytes, uint32_t* pixels) {
  const uint32_t set = dib.keep_alpha ? 0 : 0xFF000000u;
  for (int x = 0; x < dib.width; ++x, bytes += 4) pixels[x] = little32(bytes) | set;
}

DecodeRow decoder_of(const Dib& dib) {
  switch (dib.bits) {
    case 1: return indexed_row<1>;
    case 2: return indexed_row<2>;
    case 4: return indexed_row<4>;
    case 8: return indexed_row<8>;
    case 16: return fields_row<2>;
    case 24: return row_24;
    default: return dib.fields ? fields_row<4> : row_32;
  }
}

// Run lengths can leave a whole row out with two bytes, so a byte may stand for this many pixels of the widest picture.
constexpr uint64_t PIXELS_PER_BYTE = (MAX_SIDE + 1) / 2;
// Few bytes may also end a picture early or jump far down, so a size that is common is never doubted.
constexpr uint64_t UNDOUBTED_PIXELS = uint64_t{4096} * 4096;

}  // namespace

uint64_t pixels_of(const Dib& dib) { return static_cast<uint64_t>(dib.width) * static_cast<uint64_t>(dib.height); }

uint64_t bytes_of_rows(uint64_t row_bytes, uint64_t last_row_bits, int rows) {
  return row_bytes * static_cast<uint64_t>(rows - 1) + (last_row_bits + 7) / 8;
}

void check_pixels(const PictureBytes& bytes, uint64_t at, const Dib& dib) {
  if (at > bytes.size) throw RuntimeError(481);
  const uint64_t left = bytes.size - at;
  const uint64_t width = static_cast<uint64_t>(dib.width);
  const bool enough = dib.packing == Packing::none
                          ? bytes_of_rows(dib.row_bytes(), width * static_cast<uint64_t>(dib.bits), dib.height) <= left
                          : pixels_of(dib) <= std::max(UNDOUBTED_PIXELS, left * PIXELS_PER_BYTE);
  if (!enough) throw RuntimeError(481);
}

RowSink::RowSink(const Dib& dib, Surface& into) : into_(into), top_down_(dib.top_down) {
  if (into.depth() != 32) line_.resize(static_cast<size_t>(into.width()));
}

uint32_t* RowSink::row(int i) {
  if (!line_.empty()) return line_.data();
  return into_.row32(top_down_ ? i : into_.height() - 1 - i);
}

void RowSink::done(int i) {
  if (line_.empty()) return;
  store_row(into_, top_down_ ? i : into_.height() - 1 - i, 0, into_.width(), line_.data(), SRCCOPY);
}

void read_rows(const PictureBytes& bytes, uint64_t at, const Dib& dib, Surface& into) {
  const DecodeRow decode = decoder_of(dib);
  const size_t row_bytes = dib.row_bytes();
  const int per_strip = static_cast<int>(std::max<size_t>(1, STRIP_BYTES / row_bytes));
  std::vector<uint8_t> strip(row_bytes * static_cast<size_t>(std::min(per_strip, dib.height)));
  RowSink sink(dib, into);
  for (int first = 0; first < dib.height; first += per_strip) {
    const int rows = std::min(per_strip, dib.height - first);
    const size_t whole = row_bytes * static_cast<size_t>(rows);
    bytes.read(at, strip.data(), static_cast<size_t>(std::min<uint64_t>(whole, bytes.size - at)));
    at += whole;
    for (int i = 0; i < rows; ++i) {
      decode(dib, &strip[row_bytes * static_cast<size_t>(i)], sink.row(first + i));
      sink.done(first + i);
    }
  }
}

Surface read_bmp(const PictureBytes& bytes, int depth) {
  uint8_t head[14];
  bytes.read(0, head, sizeof head);
  if (head[0] != 'B' || head[1] != 'M') throw RuntimeError(481);
  const uint32_t told = little32(head + 10);  // 0 in files whose writer left it to the reader
  const Dib dib = read_dib(bytes, sizeof head, told);
  const uint64_t at = told > 0 ? told : dib.end;
  check_pixels(bytes, at, dib);
  check_memory(pixels_of(dib) * static_cast<uint64_t>(depth / 8));
  Surface picture = Surface::unpainted(dib.width, dib.height, depth);
  (dib.packing == Packing::none ? read_rows : read_run_lengths)(bytes, at, dib, picture);
  return picture;
}

}  // namespace raster
