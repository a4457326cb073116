#include "platform/forms/runtime.h"

#include <cmath>
#include <cstdio>
#include <ctime>
#include <exception>
#include <new>

#include "platform/error.h"
#include "platform/number.h"

namespace forms {

namespace {

constinit std::vector<Window*> windows;
Desktop unseen;
constinit Desktop* the_desktop = &unseen;

constexpr int OUT_OF_MEMORY = 7, INTERNAL_ERROR = 51;

constinit bool ended = false;
constinit int ended_by = 0;
constinit int status = 0;

void stop_program(int exit_status) {
  ended = true;
  status = exit_status;
  for (Window* w : windows) w->drop();
  the_desktop->quit();
}

}  // namespace

Desktop& desktop() { return *the_desktop; }
void use_desktop(Desktop* d) { the_desktop = d ? d : &unseen; }
std::vector<Window*>& all_windows() { return windows; }

int Desktop::message_box(const std::string& /*text*/, int /*style*/, const std::string& /*title*/) { return OK; }

void Desktop::text_size(const std::string& text, const Font& font, int wrap, int& width, int& height) {
  height = static_cast<int>(std::lround(font.size * 4 / 3));
  width = static_cast<int>(text.size()) * height / 2;
  if (wrap <= 0 || width <= wrap) return;
  height *= (width + wrap - 1) / wrap;
  width = wrap;
}

bool Desktop::has_focus(const Window& window) { return Window::foremost() == &window; }

std::string Desktop::clock() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  char text[9];
  std::strftime(text, sizeof text, "%T", &local);
  return text;
}

namespace {

// Not even the box of an error may throw through the display.
void fail(int number, const std::string& text) {
  ended_by = number;
  try {
    the_desktop->error_box(number, text);
  } catch (...) {
    std::fprintf(stderr, "%d: %s\n", number, text.c_str());
  }
  stop_program(1);
}

}  // namespace

bool enter_raw(void (*run)(void*), void* with) {
  if (ended) return false;
  try {
    run(with);
    if (!ended) flush();
  } catch (const ProgramEnd& end) {
    stop_program(end.status);
  } catch (const RuntimeError& e) {
    fail(e.number, e.what());
  } catch (const std::bad_alloc&) {
    fail(OUT_OF_MEMORY, error_text(OUT_OF_MEMORY));
  } catch (const std::exception& e) {
    fail(INTERNAL_ERROR, error_text(INTERNAL_ERROR) + std::string("\n") + e.what());
  } catch (...) {
    fail(INTERNAL_ERROR, error_text(INTERNAL_ERROR));
  }
  return !ended;
}

bool has_ended() { return ended; }
int fatal_error() { return ended_by; }
int exit_status() { return status; }
void End(int status) { throw ProgramEnd{status}; }

void DoEvents() {
  flush();
  the_desktop->do_events();
  if (ended) End(status);
}

void flush() {
  for (Window* w : windows) {
    if (!w->peer) continue;
    if (const uint32_t changes = w->take_pending()) w->peer->update(changes);
    for (Control* c : w->controls()) {
      if (!c->peer) continue;
      if (const uint32_t changes = c->take_pending()) c->peer->update(changes);
      if (c->kind != Kind::picture || !c->is_visible()) continue;
      const raster::Rect drawn = static_cast<PictureBox*>(c)->take_new();
      if (!drawn.empty()) c->peer->drawn(drawn);
    }
  }
}

bool reachable(const Window& window) { return !ended && window.Loaded() && window.is_visible() && window.is_enabled(); }

bool reachable(const Control& control) {
  for (const Control* c = &control; c; c = c->container) {
    if (!c->is_visible() || !c->is_enabled()) return false;
  }
  return reachable(control.window);
}

int MsgBox(const std::string& text, int style, const std::string& title) {
  flush();
  const int answer = the_desktop->message_box(text, style, title);
  if (ended) End(status);
  return answer;
}

void Beep() { the_desktop->beep(); }
std::string Time() { return the_desktop->clock(); }

void mouse_event(int what, int dx, int dy) {
  if (what == 1) {
    the_desktop->pointer_move(dx, dy);
  } else {
    the_desktop->pointer_button(what == 2);
  }
}

double screen_width() { return the_desktop->screen_w * TWIPS; }
double screen_height() { return the_desktop->screen_h * TWIPS; }

raster::Surface LoadPicture(const std::string& path) {
  return raster::load_picture_file(path, the_desktop->depth, the_desktop->png);
}

void SavePicture(const raster::Surface& picture, const std::string& path) { raster::save_bmp(picture, path); }

raster::Colour QBColor(int n) {
  constexpr raster::Colour COLOURS[] = {
      0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080, 0xC0C0C0,
      0x808080, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF,
  };
  if (n < 0 || n > 15) throw RuntimeError(5);
  return COLOURS[n];
}

void reset_runtime() {
  for (Window* w : windows) w->drop();
  ended = false;
  ended_by = status = 0;
}

}  // namespace forms
