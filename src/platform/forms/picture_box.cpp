#include <cmath>
#include <utility>

#include "platform/error.h"
#include "platform/forms/controls.h"
#include "platform/forms/runtime.h"
#include "platform/number.h"

namespace forms {

using raster::Surface;

PictureBox::PictureBox(Window& window_, const char* name_, int index_)
    : Control(window_, Kind::picture, name_, index_) {}

namespace {
int whole(double px) { return std::max(0, static_cast<int>(std::lround(px))); }
}  // namespace

void PictureBox::resized(bool quietly) {
  if (whole(width_) > raster::MAX_SIDE || whole(height_) > raster::MAX_SIDE) throw RuntimeError(380);
  if (image_.depth() != desktop().depth) {
    const raster::DrawState draw = image_.draw;
    image_ = Surface(desktop().depth);
    screen_ = Surface(desktop().depth);
    image_.draw = screen_.draw = draw;
  }
  const raster::Colour back = plain_colour(back_color_);
  if (has_image_) image_.resize(whole(width_), whole(height_), back);
  if (!auto_redraw_) screen_.resize(whole(width_), whole(height_), back);
  if (!quietly) Resize.fire(index);
}

void PictureBox::make_image() {
  image_.resize(whole(width_), whole(height_), plain_colour(back_color_));
  image_.take_touched();  // it looks as the box did without it
  has_image_ = true;
}

void PictureBox::AutoRedraw(bool v) {
  if (touched(), auto_redraw_ == v) return;
  made(image_);
  const raster::Rect owed = take_new();  // drawn, and not yet on the display
  auto_redraw_ = v;
  if (!v) copy_to_screen();
  const raster::Rect& r = v ? differs_ : owed;
  shown().touch(r.left, r.top, r.right, r.bottom);
}

// The screen becomes the image, which the display shows already.
void PictureBox::copy_to_screen() {
  if (screen_.width() != image_.width() || screen_.height() != image_.height()) {
    screen_.resize(image_.width(), image_.height());
    differs_ = {0, 0, image_.width(), image_.height()};
  }
  const raster::Rect& r = differs_;
  BitBlt(screen_, r.left, r.top, r.right - r.left, r.bottom - r.top, image_, r.left, r.top);
  screen_.take_touched();
  differs_ = {};
}

raster::Rect PictureBox::take_new() {
  const raster::Rect drawn = shown().take_touched();
  differs_ = around(differs_, drawn);
  return drawn;
}

void PictureBox::Picture(Surface&& bitmap) {
  touched();
  const raster::DrawState draw = image_.draw;
  const int w = bitmap.width();
  const int h = bitmap.height();
  if (bitmap.depth() == desktop().depth) {
    image_ = std::move(bitmap);
  } else {
    Surface converted(w, h, desktop().depth);
    BitBlt(converted, 0, 0, w, h, bitmap, 0, 0);
    image_ = std::move(converted);
  }
  image_.draw = draw;
  image_.touch_all();
  has_image_ = true;
  if (auto_size_) {
    const double px = pixels_in(container_scale());
    Move(Left(), Top(), w / px, h / px);
  } else {
    image_.resize(whole(width_), whole(height_), plain_colour(back_color_));
  }
}

void PictureBox::Cls() {
  touched();
  if (has_image_) target().fill(plain_colour(back_color_));
}

void PictureBox::Refresh() {
  touched();
  if (!peer) return;
  flush();
  peer->paint_now();
}

void PictureBox::BackColor(uint32_t v) {
  if (BackColor() == v) return;
  Control::BackColor(v);
  Cls();
}

void PictureBox::ForeColor(uint32_t v) {
  Control::ForeColor(v);
  image_.draw.ForeColor = screen_.draw.ForeColor = plain_colour(v);
}

void PictureBox::back_to_design() {
  Control::back_to_design();
  image_ = Surface(desktop().depth);
  screen_ = Surface(desktop().depth);
  has_image_ = false;
  auto_redraw_ = true;
  auto_size_ = false;
  inside = Scale::pixels;
  border = false;
}

void draw_line(PictureBox& box, double x1, double y1, double x2, double y2, uint32_t colour, raster::LineForm form) {
  raster::Line(box.target(), to_int32(x1), to_int32(y1), to_int32(x2), to_int32(y2), plain_colour(colour), form);
}

void draw_dot(PictureBox& box, double x, double y, uint32_t colour) {
  raster::PSet(box.target(), to_int32(x), to_int32(y), plain_colour(colour));
}

raster::Colour plain_colour(uint32_t colour) {
  switch (colour) {
    case 0x80000005: return raster::WHITE;               // window background
    case 0x8000000F: return raster::RGB(240, 240, 240);  // button face
    case 0x80000012: return raster::RGB(0, 0, 0);        // button text
    default: return colour & raster::WHITE;
  }
}

}  // namespace forms
