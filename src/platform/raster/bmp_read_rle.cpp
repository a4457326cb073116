#include <algorithm>
#include <vector>

#include "platform/error.h"
#include "platform/raster/bmp_dib.h"

namespace raster {

namespace {

// The bytes one after the other; there is always a next one or error 481.
class ByteStream {
 public:
  ByteStream(const PictureBytes& bytes, uint64_t at)
      : bytes_(bytes), at_(at), buffer_(static_cast<size_t>(std::min<uint64_t>(65536, bytes.size - at))) {}
  bool at_end() const { return next_ == filled_ && at_ == bytes_.size; }
  uint8_t next() {
    if (next_ == filled_) fill();
    return buffer_[next_++];
  }

 private:
  void fill() {
    filled_ = static_cast<size_t>(std::min<uint64_t>(buffer_.size(), bytes_.size - at_));
    next_ = 0;
    if (filled_ == 0) throw RuntimeError(481);
    bytes_.read(at_, buffer_.data(), filled_);
    at_ += filled_;
  }
  const PictureBytes& bytes_;
  uint64_t at_;
  std::vector<uint8_t> buffer_;
  size_t next_ = 0, filled_ = 0;
};

// The place in the picture that the codes move, always forward. What they pass over takes the background; what they put
// right of the picture is lost.
class Painter {
 public:
  Painter(const Dib& dib, Surface& into) : dib_(dib), sink_(dib, into) { begin_row(); }
  bool past_last_row() const { return y_ >= dib_.height; }
  bool complete() const { return past_last_row() || (y_ == dib_.height - 1 && x_ == dib_.width); }
  // count pixels, of the two colours in turn
  void put(uint32_t even, uint32_t odd, int count) {
    const int n = std::min(count, dib_.width - x_);
    for (int i = 0; i < n; ++i) line_[x_ + i] = i % 2 == 0 ? even : odd;
    x_ += n;
  }
  void skip(int right, int rows) {
    x_ = std::min(x_ + right, dib_.width);
    for (; rows > 0 && !past_last_row(); --rows) end_row();
  }
  void next_row() {
    x_ = 0;
    skip(0, 1);
  }
  void finish() { skip(0, dib_.height); }

 private:
  void begin_row() {
    if (past_last_row()) return;
    line_ = sink_.row(y_);
    std::fill_n(line_, dib_.width, dib_.colours[0]);
  }
  void end_row() {
    sink_.done(y_++);
    begin_row();
  }
  const Dib& dib_;
  RowSink sink_;
  uint32_t* line_ = nullptr;
  int x_ = 0, y_ = 0;
};

class Decoder {
 public:
  Decoder(const PictureBytes& bytes, uint64_t at, const Dib& dib, Surface& into)
      : dib_(dib), stream_(bytes, at), painter_(dib, into) {}

  // A stream may lack its end mark only if the last row is full.
  void run() {
    while (!painter_.past_last_row()) {
      if (stream_.at_end() && painter_.complete()) break;
      const int count = stream_.next();
      if (count > 0) {
        same(count);
      } else if (!escape(stream_.next())) {
        break;
      }
    }
    painter_.finish();
  }

 private:
  // False at the end mark.
  bool escape(int code) {
    switch (code) {
      case 0: painter_.next_row(); return true;
      case 1: return false;
      case 2: {
        const int right = stream_.next();
        painter_.skip(right, stream_.next());
        return true;
      }
      default: literal(code); return true;
    }
  }

  uint32_t colour_24() {
    const uint32_t b = stream_.next(), g = stream_.next(), r = stream_.next();
    return 0xFF000000u | r << 16 | g << 8 | b;
  }

  void same(int count) {
    if (dib_.packing == Packing::rle24) {
      const uint32_t colour = colour_24();
      painter_.put(colour, colour, count);
    } else {
      put_byte(stream_.next(), count);
    }
  }

  // A byte is one index, or two of 4 bits that take turns.
  void put_byte(uint8_t byte, int count) {
    const bool two = dib_.packing == Packing::rle4;
    painter_.put(dib_.colours[two ? byte >> 4 : byte], dib_.colours[two ? byte & 15 : byte], count);
  }

  // Literal pixels fill up to an even number of bytes.
  void literal(int count) {
    const int per_byte = dib_.packing == Packing::rle4 ? 2 : 1;
    const int bytes = dib_.packing == Packing::rle24 ? 3 * count : (count + per_byte - 1) / per_byte;
    for (int left = count; left > 0; left -= per_byte) {
      if (dib_.packing == Packing::rle24) {
        same(1);
      } else {
        put_byte(stream_.next(), std::min(left, per_byte));
      }
    }
    if (bytes % 2 != 0) stream_.next();
  }

  const Dib& dib_;
  ByteStream stream_;
  Painter painter_;
};

}  // namespace

void read_run_lengths(const PictureBytes& bytes, uint64_t at, const Dib& dib, Surface& into) {
  Decoder(bytes, at, dib, into).run();
}

}  // namespace raster
