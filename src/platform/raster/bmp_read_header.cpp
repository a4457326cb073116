#include <algorithm>
#include <bit>
#include <cstdlib>

#include "platform/error.h"
#include "platform/raster/bmp_dib.h"

namespace raster {

Field::Field(uint32_t mask) : mask_(mask) {
  if (mask == 0) return;
  shift_ = std::countr_zero(mask);
  full_ = mask >> shift_;
  for (uint32_t value = 0; value <= std::min(full_, 255u); ++value) {
    scaled_[value] = static_cast<uint8_t>(scale(value));
  }
}

// A short field is filled up with its own upper bits, as a surface of 16 bits shows its pixels; a long one is cut.
uint32_t Field::scale(uint32_t value) const {
  const int bits = std::bit_width(full_);
  if (bits > 8) return value >> (bits - 8);
  uint32_t scaled = value << (8 - bits);
  for (int filled = bits; filled < 8; filled *= 2) scaled |= scaled >> filled;
  return scaled;
}

namespace {

constexpr uint32_t CORE_LENGTH = 12, SHORTEST = 16, LONGEST = 124;

// The header's bytes; those that a short one leaves out are 0.
struct Header {
  std::array<uint8_t, LONGEST> raw{};
  uint32_t length = 0;

  Header(const PictureBytes& bytes, uint64_t at) {
    bytes.read(at, raw.data(), 4);
    length = little32(raw.data());
    if (length != CORE_LENGTH && (length < SHORTEST || length > LONGEST)) throw RuntimeError(481);
    bytes.read(at, raw.data(), length);
  }
  bool core() const { return length == CORE_LENGTH; }
  // Of the later headers, OS/2 has 64 bytes and any shorter part of them; these lengths are the other system's.
  bool windows() const { return length == 40 || length == 52 || length == 56 || length == 108 || length == 124; }
  int32_t width() const { return core() ? static_cast<int32_t>(little16(&raw[4])) : signed32(4); }
  int32_t height() const { return core() ? static_cast<int32_t>(little16(&raw[6])) : signed32(8); }
  uint32_t bits() const { return little16(&raw[core() ? 10 : 14]); }
  uint32_t compression() const { return little32(&raw[16]); }
  uint32_t palette_entries() const { return little32(&raw[32]); }

 private:
  int32_t signed32(size_t at) const { return static_cast<int32_t>(little32(&raw[at])); }
};

enum class System : uint8_t { any, windows, os2 };
constexpr struct {
  uint32_t compression, bits;
  System system;
  Packing packing;
  uint32_t masks;  // bytes of them
} KINDS[] = {
    {0, 1, System::any, Packing::none, 0},       {0, 2, System::any, Packing::none, 0},
    {0, 4, System::any, Packing::none, 0},       {0, 8, System::any, Packing::none, 0},
    {0, 16, System::any, Packing::none, 0},      {0, 24, System::any, Packing::none, 0},
    {0, 32, System::any, Packing::none, 0},      {1, 8, System::any, Packing::rle8, 0},
    {2, 4, System::any, Packing::rle4, 0},       {3, 16, System::windows, Packing::none, 12},
    {3, 32, System::windows, Packing::none, 12}, {4, 24, System::os2, Packing::rle24, 0},
    {6, 16, System::windows, Packing::none, 16}, {6, 32, System::windows, Packing::none, 16},
};

const auto& kind_of(const Header& header) {
  for (const auto& kind : KINDS) {
    if (kind.compression == header.compression() && kind.bits == header.bits() &&
        (kind.system == System::any || (kind.system == System::windows) == header.windows())) {
      return kind;
    }
  }
  throw RuntimeError(481);
}

void set_size(Dib& dib, const Header& header) {
  const int64_t width = header.width(), height = header.height();
  if (width <= 0 || width > MAX_SIDE || height == 0 || std::abs(height) > MAX_SIDE) throw RuntimeError(481);
  dib.width = static_cast<int>(width);
  dib.height = static_cast<int>(std::abs(height));
  dib.top_down = height < 0;
}

// Masks are part of the header from 52 bytes on, and stand behind one of 40.
void set_fields(Dib& dib, const Header& header, const PictureBytes& bytes, uint32_t mask_bytes) {
  uint32_t red = 0x7C00, green = 0x3E0, blue = 0x1F;
  if (mask_bytes > 0) {
    uint8_t masks[12];
    if (header.length == 40) {
      bytes.read(dib.end, masks, sizeof masks);
      dib.end += mask_bytes;
    } else {
      std::copy_n(&header.raw[40], sizeof masks, masks);
    }
    const uint32_t cut = dib.bits == 16 ? 0xFFFF : 0xFFFFFFFF;
    red = little32(masks) & cut, green = little32(masks + 4) & cut, blue = little32(masks + 8) & cut;
  }
  dib.fields = dib.bits == 16 || (mask_bytes > 0 && !(red == 0xFF0000 && green == 0xFF00 && blue == 0xFF));
  if (dib.fields) dib.red = Field(red), dib.green = Field(green), dib.blue = Field(blue);
}

void set_palette(Dib& dib, const Header& header, const PictureBytes& bytes, uint64_t pixels_at) {
  const uint64_t entry_bytes = header.core() ? 3 : 4;
  uint64_t entries = header.palette_entries();
  if (entries == 0 && dib.bits <= 8) entries = uint64_t{1} << dib.bits;
  if (pixels_at > 0) entries = std::min(entries, (pixels_at - dib.end) / entry_bytes);
  const uint64_t begin = dib.end;
  dib.end += entries * entry_bytes;
  dib.colours.fill(0xFF000000);
  if (dib.bits > 8) return;
  std::array<uint8_t, 1024> raw;
  const size_t used = std::min<size_t>(entries, size_t{1} << dib.bits);
  bytes.read(begin, raw.data(), used * entry_bytes);
  for (size_t i = 0; i < used; ++i) {
    const uint8_t* bgr = &raw[i * entry_bytes];
    dib.colours[i] = 0xFF000000u | static_cast<uint32_t>(bgr[2]) << 16 | little16(bgr);
  }
}

}  // namespace

Dib read_dib(const PictureBytes& bytes, uint64_t at, uint64_t pixels_at) {
  const Header header(bytes, at);
  const auto& kind = kind_of(header);
  Dib dib;
  set_size(dib, header);
  dib.bits = static_cast<int>(kind.bits);
  dib.packing = kind.packing;
  dib.end = at + header.length;
  if (dib.bits == 16 || dib.bits == 32) set_fields(dib, header, bytes, kind.masks);
  if (pixels_at > 0 && pixels_at < dib.end) throw RuntimeError(481);
  set_palette(dib, header, bytes, pixels_at);
  return dib;
}

}  // namespace raster
