#include "platform/qt/x11.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QThread>
#include <optional>
#include <string>

// Last, since it makes macros of common words.
#include <X11/XKBlib.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>

namespace qt {

namespace {

Display* x11_display() {
  const auto* x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
  return x11 ? x11->display() : nullptr;
}

std::optional<QSize> frame_extents(Display* display, Window window, Atom property) {
  Atom type = 0;
  int format = 0;
  unsigned long count = 0;
  unsigned long rest = 0;
  unsigned char* bytes = nullptr;
  XGetWindowProperty(display, window, property, 0, 4, False, XA_CARDINAL, &type, &format, &count, &rest, &bytes);
  std::optional<QSize> size;
  if (format == 32 && count == 4) {
    const auto* extents = reinterpret_cast<const long*>(bytes);  // left, right, top, bottom
    size = QSize(static_cast<int>(extents[0] + extents[1]), static_cast<int>(extents[2] + extents[3]));
  }
  if (bytes) XFree(bytes);
  return size;
}

void request_frame_extents(Display* display, Window window) {
  XEvent event = {};
  event.xclient.type = ClientMessage;
  event.xclient.window = window;
  event.xclient.message_type = XInternAtom(display, "_NET_REQUEST_FRAME_EXTENTS", False);
  event.xclient.format = 32;
  XSendEvent(display, DefaultRootWindow(display), False, SubstructureRedirectMask | SubstructureNotifyMask, &event);
}

// The window manager's own name, "" if it tells none.
std::string window_manager(Display* display) {
  const auto property = [display](Window window, const char* name, Atom wanted, auto take) {
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long rest = 0;
    unsigned char* bytes = nullptr;
    XGetWindowProperty(display, window, XInternAtom(display, name, False), 0, 64, False, wanted, &type, &format, &count,
                       &rest, &bytes);
    if (bytes && type == wanted) take(bytes, count);
    if (bytes) XFree(bytes);
  };
  Window manager = 0;
  property(DefaultRootWindow(display), "_NET_SUPPORTING_WM_CHECK", XA_WINDOW,
           [&](const unsigned char* bytes, unsigned long) { manager = *reinterpret_cast<const Window*>(bytes); });
  std::string name;
  if (manager) {
    property(manager, "_NET_WM_NAME", XInternAtom(display, "UTF8_STRING", False),
             [&](const unsigned char* bytes, unsigned long count) { name.assign(bytes, bytes + count); });
  }
  return name;
}

bool has_window_manager(Display* display) {
  const Atom property = XInternAtom(display, "_NET_SUPPORTING_WM_CHECK", False);
  int count = 0;
  Atom* properties = XListProperties(display, DefaultRootWindow(display), &count);
  const bool found = std::find(properties, properties + count, property) != properties + count;
  if (properties) XFree(properties);
  return found;
}

}  // namespace

void let_held_keys_repeat() {
  if (Display* display = x11_display()) XkbSetDetectableAutoRepeat(display, True, nullptr);
}

bool palettes_are_toolbars() {
  Display* display = x11_display();
  return display && window_manager(display) == "Openbox";
}

QSize coming_frame() {
  Display* display = x11_display();
  if (!display || !has_window_manager(display)) return QSize(0, 0);
  constexpr int PATIENCE = 50;  // ms; an answer takes one or two
  const Window probe = XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, 100, 100, 0, 0, 0);
  request_frame_extents(display, probe);
  const Atom property = XInternAtom(display, "_NET_FRAME_EXTENTS", False);
  std::optional<QSize> frame;
  QElapsedTimer clock;
  clock.start();
  while (!(frame = frame_extents(display, probe, property)) && clock.elapsed() < PATIENCE) QThread::usleep(300);
  XDestroyWindow(display, probe);
  return frame.value_or(QSize(0, 0)) / qApp->devicePixelRatio();
}

}  // namespace qt
