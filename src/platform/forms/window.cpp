#include "platform/forms/window.h"

#include <algorithm>
#include <cmath>

#include "platform/error.h"
#include "platform/forms/runtime.h"

namespace forms {

namespace {
Window* in_front = nullptr;
}

void throw_subscript() { throw RuntimeError(9); }

const Window* Window::foremost() { return in_front; }
void Window::came_forward() { in_front = this; }
void Window::went() {
  if (in_front == this) in_front = owner_ && owner_->visible_ ? owner_ : nullptr;
}

Window::Window(const char* name_, Border border_, Scale scale_, void (*design)())
    : name(name_), border(border_), scale(scale_), design_(design) {
  all_windows().push_back(this);
}

const Window& Window::touched() const {
  if (!loaded_) const_cast<Window*>(this)->Load();
  return *this;
}

void Window::Load() {
  if (loaded_) return;
  loaded_ = true;
  design_();
  peer = desktop().show(*this);
  for (Control* c : controls_) c->peer = desktop().show(*c);
  Form_Load.fire(-1);
  if (!loaded_) throw RuntimeError(364);
}

bool Window::Unload() {
  if (!loaded_) return true;
  int cancel = 0;
  Form_QueryUnload.fire(-1, cancel);
  if (cancel == 0) Form_Unload.fire(-1, cancel);
  if (cancel != 0) return false;
  drop();
  return true;
}

void Window::drop() {
  std::for_each(controls_.rbegin(), controls_.rend(), [](Control* c) { c->back_to_design(); });
  peer.reset();
  went();
  loaded_ = visible_ = was_shown_ = false;
  enabled_ = true;
  owner_ = nullptr;
  window_state_ = mouse_pointer_ = held_ = 0;
  mouse_icon_ = nullptr;
  pending_ = 0;
}

void Window::design(double left, double top, int inside_w, int inside_h, const char* caption) {
  left_ = left;
  top_ = top;
  inside_w_ = inside_w;
  inside_h_ = inside_h;
  frame_w_ = border == Border::splash ? 0 : desktop().frame_w;
  frame_h_ = border == Border::splash ? 0 : desktop().frame_h;
  fit_to_inside();
  caption_ = caption;
}

void Window::note(uint32_t changes) {
  if (peer) pending_ |= changes;
}

void Window::Move(double left, double top, double width, double height) {
  touched();
  if (left != left_ || top != top_) {
    left_ = left;
    top_ = top;
    note(GEOMETRY);
  }
  if (width == width_ && height == height_) return;
  width_ = width;
  height_ = height;
  outer_given_ = true;
  fit_to_outer();
}

void Window::framed(int w, int h) {
  if (w == frame_w_ && h == frame_h_) return;
  frame_w_ = w;
  frame_h_ = h;
  outer_given_ ? fit_to_outer() : fit_to_inside();
}

void Window::inside(int w, int h) {
  touched();
  if (w == inside_w_ && h == inside_h_) return;
  new_inside(w, h);
  fit_to_inside();
  Form_Resize.fire(-1);
}

void Window::new_inside(int w, int h) {
  inside_w_ = w;
  inside_h_ = h;
  note(GEOMETRY);
}

void Window::fit_to_inside() {
  width_ = (inside_w_ + frame_w_) * TWIPS;
  height_ = (inside_h_ + frame_h_) * TWIPS;
  outer_given_ = false;
}

// The size stays as it was given, to the twip; the inside is whole pixels.
void Window::fit_to_outer() {
  const int w = std::max(0, static_cast<int>(std::lround(width_ / TWIPS)) - frame_w_);
  const int h = std::max(0, static_cast<int>(std::lround(height_ / TWIPS)) - frame_h_);
  if (w == inside_w_ && h == inside_h_) return;
  new_inside(w, h);
  Form_Resize.fire(-1);
}

void Window::Caption(std::string text) {
  touched().caption_ = std::move(text);
  note(TEXT);
}

void Window::WindowState(int v) {
  if (v < 0 || v > 2) throw RuntimeError(380);
  if (touched().window_state_ == v) return;
  note(LOOK);
  state_changed(v);
}

void Window::state_changed(int window_state) {
  if (window_state_ == window_state) return;
  window_state_ = window_state;
  if (was_shown_) Form_Resize.fire(-1);
}

void Window::Enabled(bool v) {
  touched().enabled_ = v;
  note(ENABLED);
}

void Window::hold() {
  ++held_;
  Enabled(false);
}

void Window::release() {
  if (held_ == 0 || --held_ != 0) return;
  Enabled(true);
}

void Window::MousePointer(int v) {
  touched().mouse_pointer_ = v;
  note(POINTER);
}

void Window::MouseIcon(const char* cursor_sheet) {
  touched().mouse_icon_ = cursor_sheet;
  note(POINTER);
}

void Window::Show(Window* owner) {
  touched();
  owner_ = owner;
  visible_ = true;
  came_forward();
  note(VISIBLE);
  if (was_shown_) return;
  was_shown_ = true;
  Form_Resize.fire(-1);
}

void Window::Hide() {
  touched().visible_ = false;
  went();
  note(VISIBLE);
}

void Window::Refresh() {
  touched();
  flush();
  if (peer) peer->paint_now();
}

void Window::SetFocus() {
  touched();
  came_forward();
  flush();
  if (peer) peer->take_focus();
}

bool Window::Focused() const { return loaded_ && desktop().has_focus(*this); }

}  // namespace forms
