#include "platform/qt/pointer.h"

#include <QApplication>
#include <QCursor>
#include <QPointer>
#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/qt/keys.h"
#include "platform/qt/peer.h"

namespace qt {

namespace {

// Left button by the keypad.
struct Keypad {
  bool down = false;
  bool sending = false;  // an event of its own is on the way to its widget
  QPointer<QWidget> held;
  // Where the pointer is, for displays that forbid moving it: a window and a place in it.
  QPointer<QWidget> window;
  QPointF place;
} keypad;

// A press further away than this is no second press of a double click; pixels.
constexpr double DOUBLE_CLICK_REACH = 2;

bool moves_real_pointer() { return QGuiApplication::platformName() == QLatin1String("xcb"); }

}  // namespace

int button_state(Qt::MouseButtons buttons) {
  return (buttons & Qt::LeftButton ? 1 : 0) | (buttons & Qt::RightButton ? 2 : 0) |
         (buttons & Qt::MiddleButton ? 4 : 0);
}

void PointerTrack::press(forms::Control& control, forms::PointerEvents& events, const QMouseEvent& event, QPointF at) {
  const QPointF way = at - last_press_;
  // Where nobody waits for a double click, buttons clicked fast have every click.
  const bool second = event.type() == QEvent::MouseButtonDblClick && events.DblClick &&
                      std::abs(way.x()) <= DOUBLE_CLICK_REACH && std::abs(way.y()) <= DOUBLE_CLICK_REACH &&
                      !(second_press_is_press && second_press_is_press());
  const int button = button_state(event.button());
  last_press_ = at;
  clicks_with_ = second || button == 4 ? 0 : button;
  user_event([&] {
    if (second) {
      events.DblClick.fire(control.index);
    } else {
      events.MouseDown.fire(control.index, button, shift_state(event.modifiers()), static_cast<float>(at.x()),
                            static_cast<float>(at.y()));
    }
  });
}

void PointerTrack::release(forms::Control& control, forms::PointerEvents& events, const QMouseEvent& event, QPointF at,
                           bool inside) {
  const int button = button_state(event.button());
  const bool click = button == clicks_with_ && inside;
  if (click) clicks_with_ = 0;
  user_event([&] {
    events.MouseUp.fire(control.index, button, shift_state(event.modifiers()), static_cast<float>(at.x()),
                        static_cast<float>(at.y()));
  });
  if (click && forms::reachable(control)) user_event([&] { events.Click.fire(control.index); });
}

bool PointerTrack::event(forms::Control& control, forms::PointerEvents& events, QWidget& widget, QEvent& event,
                         QPointF corner) {
  const QEvent::Type type = event.type();
  if (type != QEvent::MouseMove && type != QEvent::MouseButtonPress && type != QEvent::MouseButtonDblClick &&
      type != QEvent::MouseButtonRelease) {
    return false;
  }
  const auto& mouse = static_cast<const QMouseEvent&>(event);
  if (!std::exchange(keypad.sending, false)) {
    keypad.window = widget.window();
    keypad.place = widget.mapTo(widget.window(), mouse.position());
    // One left button is enough: that of the mouse is deaf while the keypad holds it.
    if (keypad.down && mouse.button() == Qt::LeftButton) return true;
  }
  const bool unknown_button = type != QEvent::MouseMove && button_state(mouse.button()) == 0;
  if (unknown_button || !forms::reachable(control)) return true;
  // The pixel that the pointer stands on: on a display of scale 2 it can stand on half of one, which position() rounds.
  const QPointF inside = widget.mapFrom(widget.window(), mouse.scenePosition()) - corner;
  const QPointF at(std::floor(inside.x()), std::floor(inside.y()));
  if (type == QEvent::MouseMove) {
    const int held = button_state(mouse.buttons()) | (keypad.down ? 1 : 0);
    user_event([&] {
      events.MouseMove.fire(control.index, held, shift_state(mouse.modifiers()), static_cast<float>(at.x()),
                            static_cast<float>(at.y()));
    });
  } else if (type == QEvent::MouseButtonRelease) {
    release(control, events, mouse, at, widget.rect().contains(mouse.position().toPoint()));
  } else {
    press(control, events, mouse, at);
  }
  return true;
}

// --- the keypad

namespace {

// The pointer's place on the screen.
QPointF pointer_place() {
  if (moves_real_pointer()) return QCursor::pos();
  return keypad.window ? keypad.window->mapToGlobal(keypad.place) : QPointF();
}

// The program's widget that an event of the pointer goes to, null if there is none.
QWidget* under_pointer() {
  if (keypad.held) return keypad.held;
  if (moves_real_pointer()) return QApplication::widgetAt(QCursor::pos());
  if (!keypad.window) return nullptr;
  QWidget* child = keypad.window->childAt(keypad.place.toPoint());
  return child ? child : keypad.window.data();
}

void send(QEvent::Type type, Qt::MouseButton button) {
  const QPointF at = pointer_place();
  QWidget* to = under_pointer();
  if (!to) return;
  const Qt::MouseButtons held = keypad.down ? Qt::LeftButton : Qt::NoButton;
  const Qt::KeyboardModifiers modifiers = QGuiApplication::keyboardModifiers() & ~Qt::KeypadModifier;
  const QPointF local = to->mapFromGlobal(at);
  QMouseEvent event(type, local, to->mapTo(to->window(), local), at, button, held, modifiers);
  keypad.sending = true;
  QCoreApplication::sendEvent(to, &event);
  keypad.sending = false;
}

void move_now(int dx, int dy) {
  const QPointF at = pointer_place();
  if (moves_real_pointer()) {
    QCursor::setPos(at.toPoint() + QPoint(dx, dy));
    return;
  }
  if (!keypad.window) return;
  const QSize inside = keypad.window->size();
  keypad.place.setX(std::clamp(keypad.place.x() + dx, 0.0, inside.width() - 1.0));
  keypad.place.setY(std::clamp(keypad.place.y() + dy, 0.0, inside.height() - 1.0));
  send(QEvent::MouseMove, Qt::NoButton);
}

void press_now() {
  if (keypad.down || (QGuiApplication::mouseButtons() & Qt::LeftButton)) return;
  keypad.held = under_pointer();
  if (!keypad.held) return;
  keypad.down = true;
  // As with a real button the widget keeps the pointer until the release.
  if (moves_real_pointer()) keypad.held->grabMouse();
  send(QEvent::MouseButtonPress, Qt::LeftButton);
}

void release_now() {
  if (!keypad.down) return;
  keypad.down = false;
  if (keypad.held) keypad.held->releaseMouse();
  send(QEvent::MouseButtonRelease, Qt::LeftButton);
  keypad.held = nullptr;
}

}  // namespace

void keypad_move(int dx, int dy) {
  QMetaObject::invokeMethod(
      qApp, [=] { move_now(dx, dy); }, Qt::QueuedConnection);
}

void keypad_button(bool down) { QMetaObject::invokeMethod(qApp, down ? press_now : release_now, Qt::QueuedConnection); }

void keypad_from(QWidget& picture) {
  if (keypad.window == picture.window()) return;
  keypad.window = picture.window();
  keypad.place = picture.mapTo(picture.window(), QPointF(picture.visibleRegion().boundingRect().center()));
}

void keypad_let_go() {
  if (keypad.down) keypad_button(false);
}

}  // namespace qt
