#include "platform/raster/ico.h"

#include <algorithm>
#include <new>
#include <optional>
#include <tuple>

#include "platform/raster/bmp_dib.h"
#include "platform/raster/bmp_file.h"
#include "platform/raster/draw.h"
#include "platform/raster/memory.h"

namespace raster {

namespace {

constexpr size_t DIRECTORY_BYTES = 6, ENTRY_BYTES = 16;

// One picture of the file, as its own header describes it; what the directory says of it is not trusted.
struct Entry {
  int64_t width = 0, height = 0;
  int64_t bits = 0;
  uint64_t at = 0, size = 0;
  std::optional<Dib> dib;  // without it the entry is a PNG

  auto rank() const { return std::tuple(width * height, bits); }
};

// --- entries that are bitmaps: colours, and behind them a mask of one bit a pixel, each as tall as half the header
// says

uint64_t mask_row_bytes(const Dib& dib) { return (static_cast<uint64_t>(dib.width) + 31) / 32 * 4; }
uint64_t mask_at(const Dib& dib) { return dib.end + dib.row_bytes() * static_cast<uint64_t>(dib.height); }
bool has_mask(const PictureBytes& bytes, const Dib& dib) {
  const uint64_t need = bytes_of_rows(mask_row_bytes(dib), static_cast<uint64_t>(dib.width), dib.height);
  return mask_at(dib) <= bytes.size && need <= bytes.size - mask_at(dib);
}

Entry bitmap_entry(const PictureBytes& bytes, uint64_t at) {
  Dib dib = read_dib(bytes, at, 0);
  if (dib.height % 2 != 0 || dib.packing != Packing::none) throw RuntimeError(481);
  dib.height /= 2;
  dib.keep_alpha = dib.bits == 32 && !dib.fields;
  check_pixels(bytes, dib.end, dib);
  if (!has_mask(bytes, dib) && dib.bits != 32) throw RuntimeError(481);
  return {dib.width, dib.height, dib.bits, at, 0, dib};
}

bool any_alpha(const Surface& s) {
  for (int y = 0; y < s.height(); ++y) {
    const uint32_t* row = s.row32(y);
    if (std::any_of(row, row + s.width(), [](uint32_t pixel) { return pixel >> 24 != 0; })) return true;
  }
  return false;
}

// 0xAARRGGBB laid on white
uint32_t on_white(uint32_t pixel) {
  const uint32_t alpha = pixel >> 24;
  uint32_t mixed = 0xFF000000u;
  for (int shift = 0; shift < 24; shift += 8) {
    const uint32_t colour = pixel >> shift & 255;
    mixed |= (colour * alpha + 255 * (255 - alpha) + 127) / 255 << shift;
  }
  return mixed;
}

void blend_on_white(Surface& s) {
  for (int y = 0; y < s.height(); ++y) {
    uint32_t* row = s.row32(y);
    std::transform(row, row + s.width(), row, on_white);
  }
}

void mask_on_white(const PictureBytes& bytes, const Dib& dib, Surface& s) {
  const bool masked = has_mask(bytes, dib);
  std::vector<uint8_t> mask(mask_row_bytes(dib));
  for (int i = 0; i < dib.height; ++i) {
    const uint64_t at = mask_at(dib) + mask.size() * static_cast<uint64_t>(i);
    if (masked) bytes.read(at, mask.data(), static_cast<size_t>(std::min<uint64_t>(mask.size(), bytes.size - at)));
    uint32_t* row = s.row32(dib.top_down ? i : dib.height - 1 - i);
    for (int x = 0; x < dib.width; ++x) {
      const bool clear = (mask[static_cast<size_t>(x / 8)] >> (7 - x % 8) & 1) != 0;
      row[x] = (row[x] ^ (clear ? WHITE : 0)) | 0xFF000000u;
    }
  }
}

Surface decode_bitmap(const PictureBytes& bytes, const Dib& dib) {
  Surface s = Surface::unpainted(dib.width, dib.height);
  read_rows(bytes, dib.end, dib, s);
  if (dib.keep_alpha && any_alpha(s)) {
    blend_on_white(s);
  } else {
    mask_on_white(bytes, dib, s);
  }
  return s;
}

// --- entries that are PNG files

constexpr uint8_t PNG_START[16] = {0x89, 'P', 'N', 'G', 13, 10, 26, 10, 0, 0, 0, 13, 'I', 'H', 'D', 'R'};
constexpr size_t PNG_HEADER_BYTES = 26;  // up to the colour type
constexpr int64_t DEFLATE_RATIO = 1032;  // bytes that one packed byte can unfold to at most

int64_t big32(const uint8_t* p) { return int64_t{p[0]} << 24 | int64_t{p[1]} << 16 | int64_t{p[2]} << 8 | p[3]; }

bool is_png(const PictureBytes& bytes, uint64_t at) {
  uint8_t start[sizeof PNG_START];
  bytes.read(at, start, sizeof start);
  return std::equal(start, start + sizeof start, PNG_START);
}

Entry png_entry(const PictureBytes& bytes, uint64_t at, uint64_t told_size) {
  constexpr int CHANNELS[] = {1, 0, 3, 1, 2, 0, 4};  // by colour type
  uint8_t head[PNG_HEADER_BYTES];
  bytes.read(at, head, sizeof head);
  const int channels = head[25] < std::size(CHANNELS) ? CHANNELS[head[25]] : 0;
  const Entry entry{
      big32(head + 16), big32(head + 20), int64_t{channels} * head[24], at, std::min(told_size, bytes.size - at), {}};
  const bool sides = entry.width > 0 && entry.width <= MAX_SIDE && entry.height > 0 && entry.height <= MAX_SIDE;
  if (!sides || entry.bits == 0 || entry.size < sizeof head) throw RuntimeError(481);
  if (entry.width * entry.bits / 8 * entry.height / DEFLATE_RATIO > static_cast<int64_t>(entry.size)) {
    throw RuntimeError(481);
  }
  return entry;
}

Surface decode_png(const PictureBytes& bytes, const Entry& entry, PngDecoder png) {
  std::vector<uint8_t> file(static_cast<size_t>(entry.size));
  bytes.read(entry.at, file.data(), file.size());
  PngPicture picture;
  if (!png(file.data(), file.size(), picture)) throw RuntimeError(481);
  if (picture.width != entry.width || picture.height != entry.height ||
      picture.bgra.size() != 4 * static_cast<size_t>(entry.width) * static_cast<size_t>(entry.height)) {
    throw RuntimeError(481);
  }
  Surface s = Surface::unpainted(picture.width, picture.height);
  const uint8_t* bgra = picture.bgra.data();
  for (int y = 0; y < s.height(); ++y) {
    for (int x = 0; x < s.width(); ++x, bgra += 4) s.row32(y)[x] = on_white(little32(bgra));
  }
  return s;
}

// --- the file

// What is held at once: the surface, for a PNG the decoder's picture and the bytes that it is handed over in, and the
// surface of another depth.
uint64_t bytes_needed(const Entry& entry, int depth) {
  const int bytes = (entry.dib ? 4 : 12) + (depth == 32 ? 0 : depth / 8);
  return static_cast<uint64_t>(entry.width * entry.height * bytes);
}

Entry largest_entry(const PictureBytes& bytes, PngDecoder png) {
  uint8_t directory[DIRECTORY_BYTES];
  bytes.read(0, directory, sizeof directory);
  const uint64_t there = (bytes.size - sizeof directory) / ENTRY_BYTES, told = little16(directory + 4);
  Entry best;
  for (uint64_t i = 0; i < std::min(told, there); ++i) {
    uint8_t row[ENTRY_BYTES];
    bytes.read(DIRECTORY_BYTES + i * ENTRY_BYTES, row, sizeof row);
    const uint64_t size = little32(row + 8), at = little32(row + 12);
    try {
      const bool packed = is_png(bytes, at);
      if (packed && !png) continue;
      Entry entry = packed ? png_entry(bytes, at, size) : bitmap_entry(bytes, at);
      if (entry.rank() > best.rank()) best = entry;
    } catch (const RuntimeError& error) {
      if (error.number != 481) throw;  // an entry that is broken does not spoil the others
    }
  }
  if (best.width == 0) throw RuntimeError(481);
  return best;
}

}  // namespace

Surface read_ico(const PictureBytes& bytes, int depth, PngDecoder png) {
  const Entry entry = largest_entry(bytes, png);
  check_memory(bytes_needed(entry, depth));
  Surface picture = entry.dib ? decode_bitmap(bytes, *entry.dib) : decode_png(bytes, entry, png);
  if (depth != 32) {
    Surface other = Surface::unpainted(picture.width(), picture.height(), depth);
    BitBlt(other, 0, 0, picture.width(), picture.height(), picture, 0, 0);
    picture = std::move(other);
  }
  return picture;
}

Surface read_picture(const PictureBytes& bytes, int depth, PngDecoder png) {
  uint8_t start[4];
  bytes.read(0, start, sizeof start);
  if (start[0] == 'B' && start[1] == 'M') return read_bmp(bytes, depth);
  const uint32_t type = little16(start + 2);
  if (little16(start) == 0 && (type == 1 || type == 2)) return read_ico(bytes, depth, png);
  throw RuntimeError(481);
}

Surface load_picture_file(const std::string& path, int depth, PngDecoder png) try {
  const PictureFile file(path);
  return read_picture(file.bytes, depth, png);
} catch (const std::bad_alloc&) {
  throw RuntimeError(7);
}

}  // namespace raster
