// What all controls share, and the controls but the picture box.
#include <algorithm>
#include <utility>

#include "platform/error.h"
#include "platform/forms/controls.h"
#include "platform/forms/runtime.h"

namespace forms {

Control::Control(Window& window_, Kind kind_, const char* name_, int index_)
    : kind(kind_), name(name_), index(index_), window(window_) {
  order_ = static_cast<int>(window.controls_.size());
  window.controls_.push_back(this);
}

const Control& Control::touched() const {
  if (!window.loaded_) window.Load();
  return *this;
}

Scale Control::container_scale() const { return container ? container->inside_scale() : window.scale; }

void Control::design(double left, double top, double width, double height, Control* in) {
  container = in;
  const double px = pixels_in(container_scale());
  left_ = left * px;
  top_ = top * px;
  width_ = width * px;
  height_ = height * px;
  resized(true);
}

void Control::Move(double left, double top, double width, double height) {
  touched();
  const double px = pixels_in(container_scale());
  const bool new_size = width * px != width_ || height * px != height_;
  if (width < 0 || height < 0) throw RuntimeError(380);
  if (!new_size && left * px == left_ && top * px == top_) return;
  left_ = left * px;
  top_ = top * px;
  width_ = width * px;
  height_ = height * px;
  note(GEOMETRY);
  if (new_size) resized(false);
}

void Control::back_to_design() {
  peer.reset();
  container = nullptr;
  accessible_name.clear();
  left_ = top_ = width_ = height_ = 0;
  back_color_ = 0x8000000F;
  fore_color_ = 0x80000012;
  visible_ = enabled_ = true;
  mouse_pointer_ = 0;
  mouse_icon_ = nullptr;
  font_ = Font{};
  tool_tip_.clear();
  pending_ = 0;
  const auto& all = window.controls_;
  order_ = static_cast<int>(std::find(all.begin(), all.end(), this) - all.begin());
}

void Control::font(Font f) {
  touched().font_ = std::move(f);
  text_changed();
  note(LOOK);
}

void Control::note(uint32_t changes) {
  if (peer) pending_ |= changes;
}

void Control::Visible(bool v) {
  if (touched().visible_ == v) return;
  visible_ = v;
  note(VISIBLE);
}

void Control::Enabled(bool v) {
  if (touched().enabled_ == v) return;
  enabled_ = v;
  note(ENABLED);
}

void Control::ToFront() {
  touched();
  for (const Control* c : window.controls_) {
    if (c != this && c->container == container) order_ = std::max(order_, c->order_ + 1);
  }
  note(ORDER);
}

void Control::ToBack() {
  touched();
  for (const Control* c : window.controls_) {
    if (c != this && c->container == container) order_ = std::min(order_, c->order_ - 1);
  }
  note(ORDER);
}

void Control::MousePointer(int v) {
  touched().mouse_pointer_ = v;
  note(POINTER);
}

void Control::MouseIcon(const char* cursor_sheet) {
  touched().mouse_icon_ = cursor_sheet;
  note(POINTER);
}

void Control::SetFocus() {
  touched();
  window.came_forward();
  flush();
  if (peer) peer->take_focus();
}

void Control::ToolTip(std::string text) {
  touched().tool_tip_ = std::move(text);
  note(TEXT);
}

void Control::BackColor(uint32_t v) {
  if (touched().back_color_ == v) return;
  back_color_ = v;
  note(LOOK);
}

void Control::ForeColor(uint32_t v) {
  if (touched().fore_color_ == v) return;
  fore_color_ = v;
  note(LOOK);
}

std::string Control::full_name() const {
  std::string full = std::string(window.name) + "." + name;
  if (index >= 0) full += "(" + std::to_string(index) + ")";
  return full;
}

// --- image

void ImageBox::Cell(const char* sheet, int x, int y) {
  touched();
  if (sheet == sheet_ && x == cell_x_ && y == cell_y_) return;
  sheet_ = sheet;
  cell_x_ = x;
  cell_y_ = y;
  note(LOOK);
}

void ImageBox::Refresh() {
  touched();
  flush();
  if (peer) peer->paint_now();
}

void ImageBox::back_to_design() {
  Control::back_to_design();
  sheet_ = nullptr;
  cell_x_ = cell_y_ = 0;
  faint = false;
}

// --- captions

void Captioned::Caption(std::string_view text) {
  if (touched(), caption_ == text) return;
  caption_ = text;
  text_changed();
  note(TEXT);
}

void Captioned::back_to_design() {
  Control::back_to_design();
  caption_.clear();
}

void Label::text_changed() {
  if (!auto_size_) return;
  int w = 0;
  int h = 0;
  desktop().text_size(caption_, font(), 0, w, h);
  const double px = pixels_in(container_scale());
  Move(Left(), Top(), w / px, h / px);
}

void Label::back_to_design() {
  Captioned::back_to_design();
  auto_size_ = false;
  transparent = true;
  border = false;
  align = Align::left;
}

void CommandButton::held(bool v) {
  touched(), held_ = v;
  note(LOOK);
}

void CommandButton::back_to_design() {
  Captioned::back_to_design();
  held_ = is_default = is_cancel = false;
}

void Frame::back_to_design() {
  Captioned::back_to_design();
  inside = Scale::pixels;
}

// --- shape

void Shape::FillColor(uint32_t v) {
  touched(), fill_color_ = v;
  note(LOOK);
}

void Shape::back_to_design() {
  Control::back_to_design();
  fill_color_ = 0x8000000F;
}

// --- timer

void Timer::Interval(int ms) {
  touched(), interval_ = ms;
  note(VALUE);
}

void Timer::back_to_design() {
  Control::back_to_design();
  interval_ = 0;
}

// --- scroll bar

void ScrollBar::Value(int v) {
  touched();
  if (v < std::min(min_, max_) || v > std::max(min_, max_)) throw RuntimeError(380);
  if (v == value_) return;
  value_ = v;
  note(VALUE);
  Change.fire(index);
}

void ScrollBar::keep_inside() {
  note(VALUE);
  Value(std::clamp(value_, std::min(min_, max_), std::max(min_, max_)));
}

void ScrollBar::Min(int v) {
  touched(), min_ = v;
  keep_inside();
}

void ScrollBar::Max(int v) {
  touched(), max_ = v;
  keep_inside();
}

void ScrollBar::SmallChange(int v) {
  touched(), small_ = v;
  note(VALUE);
}

void ScrollBar::LargeChange(int v) {
  touched(), large_ = v;
  note(VALUE);
}

void ScrollBar::range(int min, int max, int value, int small, int large) {
  min_ = min;
  max_ = max;
  value_ = value;
  small_ = small;
  large_ = large;
}

void ScrollBar::back_to_design() {
  Control::back_to_design();
  range(0, 32767, 0, 1, 1);
}

}  // namespace forms
