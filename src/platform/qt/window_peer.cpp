// A window on the display. Whatever the user or the window manager does to it is read off the widget by follow(), which
// compares and tells the model only what differs.
#include <QApplication>
#include <QCloseEvent>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QRadioButton>
#include <QThread>
#include <QWindow>
#include <algorithm>
#include <cmath>

#include "platform/qt/drops.h"
#include "platform/qt/keys.h"
#include "platform/qt/look.h"
#include "platform/qt/peer.h"
#include "platform/qt/x11.h"

namespace qt {

using forms::Border;
using forms::Window;

namespace {

constexpr int NORMAL = 0, MINIMIZED = 1, MAXIMIZED = 2;  // window states

Qt::WindowFlags flags_of(const Window& window) {
  constexpr auto TITLE =
      Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
  switch (window.border) {
    case Border::sizable: return Qt::Window;
    case Border::fixed: return Qt::Window | TITLE | Qt::WindowMinimizeButtonHint;
    case Border::dialog: return Qt::Dialog | TITLE;
    case Border::tool:
    case Border::sizable_tool: return Qt::Tool | TITLE;
    case Border::splash: return Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus;
  }
  return Qt::Window;
}

bool is_tool(const Window& window) { return window.border == Border::tool || window.border == Border::sizable_tool; }
bool is_sizable(const Window& window) {
  return window.border == Border::sizable || window.border == Border::sizable_tool;
}

// Something in it is typed into.
bool wants_keys(const Window& window) {
  return std::ranges::any_of(window.controls(), [](const forms::Control* c) {
    return c->kind == forms::Kind::text_box || c->kind == forms::Kind::combo_box || c->kind == forms::Kind::list_box;
  });
}

// Whether the Tab key stops there: at nothing that a page in front hides, and in a group of options at the one that is
// on.
bool takes_tab(QWidget& w) {
  if (!(w.focusPolicy() & Qt::TabFocus) || !w.isVisibleTo(w.window()) || !w.isEnabled()) return false;
  const QWidget* hit = w.window()->childAt(w.mapTo(w.window(), w.rect().center()));
  if (hit != &w && !w.isAncestorOf(hit)) return false;
  const auto* option = qobject_cast<QRadioButton*>(&w);
  if (!option || option->isChecked()) return true;
  const auto neighbours = w.parentWidget()->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly);
  return std::ranges::none_of(neighbours, &QRadioButton::isChecked);
}

class TabbedWidget final : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  bool focusNextPrevChild(bool next) override {
    QWidget* from = focusWidget() ? focusWidget() : this;
    const auto step = [next](QWidget* w) { return next ? w->nextInFocusChain() : w->previousInFocusChain(); };
    for (QWidget* w = step(from); w != from; w = step(w)) {
      if (w->window() != this || w->focusProxy() || !takes_tab(*w)) continue;
      w->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
      return true;
    }
    return false;
  }
};

class WindowPeer final : public QObject, public forms::Peer {
 public:
  explicit WindowPeer(Window& window) : window_(window) {}
  ~WindowPeer() override { retire(widget); }

  void update(uint32_t changes) override;
  void paint_now() override;
  void take_focus() override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void follow();

  QPointer<QWidget> widget;
  QPointer<QWidget> keyboard;

 private:
  void realize();
  void place();
  void appear();
  void set_state();
  void wait_until_exposed();
  void exposed();
  void uncovered();
  void key_pressed(QKeyEvent* event);
  void pressed(const QPoint& at);
  QWindow* handle() const { return widget->windowHandle(); }

  Window& window_;
  QPoint at_;                 // where the display has it, frame included
  bool was_exposed_ = false;  // before that the display has not yet told its frame and place
};

WindowPeer* peer_of(const Window& window) { return dynamic_cast<WindowPeer*>(window.peer.get()); }

// A display in memory makes up its frames.
bool has_real_frames() { return QGuiApplication::platformName() != QLatin1String("offscreen"); }

int pixels(double twips) { return static_cast<int>(std::lround(twips / forms::TWIPS)); }

void WindowPeer::realize() {
  widget = new TabbedWidget(nullptr, flags_of(window_));
  widget->setAttribute(Qt::WA_AlwaysShowToolTips);
  if (is_tool(window_)) {
    widget->setAttribute(Qt::WA_ShowWithoutActivating);
    widget->setWindowFlag(Qt::WindowDoesNotAcceptFocus, !wants_keys(window_));
    widget->setFocusPolicy(Qt::ClickFocus);  // a click beside a text field takes the keyboard from it
  }
  widget->installEventFilter(this);
  if (window_.Form_Drop) take_drops(*widget, window_);
  at_ = QPoint(pixels(window_.Left()), pixels(window_.Top()));
  widget->move(at_);
  place();
  widget->setWindowTitle(to_qt(window_.Caption()));
  widget->winId();
  // Qt looks at this one when it changes alone, so not before there is a window.
  if (is_tool(window_) && palettes_are_toolbars()) widget->setAttribute(Qt::WA_X11NetWmWindowTypeToolBar);
  handle()->installEventFilter(this);
  realize_inside(window_, nullptr);
  if (!keyboard) {
    for (const forms::Control* c : window_.controls()) {
      if (c->kind != forms::Kind::picture || !static_cast<const forms::PictureBox*>(c)->KeyDown) continue;
      keyboard = static_cast<ControlPeer*>(c->peer.get())->widget();
      break;
    }
  }
  if (keyboard) keyboard->setFocus();
}

void WindowPeer::place() {
  const QSize inside(std::max(1, window_.inside_w()), std::max(1, window_.inside_h()));
  if (is_sizable(window_)) {
    widget->resize(inside);
  } else {
    widget->setFixedSize(inside);
  }
  const QPoint wanted(pixels(window_.Left()), pixels(window_.Top()));
  if (wanted == at_) return;
  at_ = wanted;
  widget->move(wanted);
}

void WindowPeer::set_state() {
  const int state = window_.WindowState();
  Qt::WindowStates s = widget->windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized);
  if (state == MINIMIZED) s |= Qt::WindowMinimized;
  if (state == MAXIMIZED) s |= Qt::WindowMaximized;
  widget->setWindowState(s);
}

// A window manager keeps a window above its owner only if it has met the owner first, so one that is shown before its
// owner ever was comes to the screen right after it.
void WindowPeer::appear() {
  const WindowPeer* owner = window_.owner() ? peer_of(*window_.owner()) : nullptr;
  if (owner && !owner->widget) return;
  handle()->setTransientParent(owner ? owner->handle() : nullptr);
  if (widget->isVisible()) {
    widget->raise();
    return;
  }
  was_exposed_ = false;
  set_state();
  widget->setVisible(true);
  for (const Window* w : forms::all_windows()) {
    WindowPeer* owned = w->owner() == &window_ && w->is_visible() ? peer_of(*w) : nullptr;
    if (owned && owned->widget && !owned->widget->isVisible()) owned->appear();
  }
}

void WindowPeer::update(uint32_t changes) {
  const Quiet quiet;
  if (!widget && !window_.is_visible()) return;
  if (!widget) realize();
  // A maximized window keeps the size that it has to come back to.
  if ((changes & forms::GEOMETRY) && window_.WindowState() == NORMAL) place();
  if (changes & forms::TEXT) widget->setWindowTitle(to_qt(window_.Caption()));
  if (changes & forms::POINTER) {
    widget->setCursor(cursor_of(window_.MousePointer(), window_.MouseIcon(), widget->devicePixelRatio()));
  }
  if ((changes & forms::LOOK) && widget->isVisible()) set_state();
  if (changes & forms::VISIBLE) window_.is_visible() ? appear() : widget->hide();
}

void WindowPeer::wait_until_exposed() {
  QElapsedTimer clock;
  clock.start();
  while (!handle()->isExposed() && clock.elapsed() < 100) {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    QThread::usleep(200);
  }
}

void WindowPeer::paint_now() {
  const Quiet quiet;
  if (!widget || !widget->isVisible()) return;
  if (!was_exposed_ && !handle()->isExposed()) {
    wait_until_exposed();
    QMetaObject::invokeMethod(this, &WindowPeer::follow, Qt::QueuedConnection);
  }
  for (const forms::Control* c : window_.controls()) {
    if (ControlPeer* peer = dynamic_cast<ControlPeer*>(c->peer.get())) peer->hurry();
  }
  QCoreApplication::sendPostedEvents(widget, QEvent::UpdateRequest);
}

void WindowPeer::take_focus() {
  const Quiet quiet;
  if (!widget) return;
  widget->raise();
  widget->activateWindow();
}

void WindowPeer::follow() {
  if (!widget || !widget->isVisible() || !window_.is_visible() || Quiet::now()) return;
  if (handle()->isExposed()) was_exposed_ = true;
  const Qt::WindowStates s = widget->windowState();
  const int state = s & Qt::WindowMinimized ? MINIMIZED : s & Qt::WindowMaximized ? MAXIMIZED : NORMAL;
  if (!was_exposed_ || state == MINIMIZED) {
    if (state != window_.WindowState()) user_event([&] { window_.state_changed(state); });
    return;
  }
  const QMargins frame = handle()->frameMargins();
  const QSize inside = widget->size();
  at_ = handle()->framePosition();
  user_event([&, at = at_] {
    Window& w = window_;
    w.state_changed(state);
    if (state == NORMAL) {
      const int frame_w = frame.left() + frame.right();
      const int frame_h = frame.top() + frame.bottom();
      if (has_real_frames() && (frame_w != w.frame_w() || frame_h != w.frame_h())) {
        w.framed(frame_w, frame_h);
        if (inside != QSize(w.inside_w(), w.inside_h())) return;  // the new inside comes to the display now
      }
      if (at.x() != pixels(w.Left()) || at.y() != pixels(w.Top()))
        w.placed(at.x() * forms::TWIPS, at.y() * forms::TWIPS);
    }
    w.inside(inside.width(), inside.height());
  });
}

void WindowPeer::exposed() {
  const QPointer<QObject> alive(this);
  follow();
  if (alive) uncovered();
}

// What a box shows with AutoRedraw off is the program's to paint again.
void WindowPeer::uncovered() {
  user_event([this] {
    Window& w = window_;
    for (forms::Control* c : w.controls()) {
      if (!w.Loaded() || c->kind != forms::Kind::picture || !c->is_visible()) continue;
      auto* box = static_cast<forms::PictureBox*>(c);
      if (!box->AutoRedraw()) box->Paint.fire(box->index);
    }
  });
}

// Enter and Escape go to the buttons that stand for them; other keys to the control that has the
// keyboard in the window, or in its owner if this one is a palette.
void WindowPeer::key_pressed(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const bool escape = event->key() == Qt::Key_Escape;
  if ((enter || escape) && event->type() == QEvent::KeyPress) {
    for (forms::Control* c : window_.controls()) {
      if (c->kind != forms::Kind::button || !forms::reachable(*c)) continue;
      const auto* button = static_cast<forms::CommandButton*>(c);
      if (enter ? button->is_default : button->is_cancel) return user_event([&] { button->Click.fire(button->index); });
    }
  }
  if (escape && window_.escape_closes && event->type() == QEvent::KeyPress) {
    return user_event([this] { window_.Unload(); });
  }
  const QWidget* typed_into = widget->focusWidget();
  if (typed_into && typed_into->testAttribute(Qt::WA_InputMethodEnabled)) return;
  const Window* to = is_tool(window_) ? window_.owner() : &window_;
  QWidget* target = to && forms::reachable(*to) ? keyboard_of(*to) : nullptr;
  if (target) QCoreApplication::sendEvent(target, event);
}

// A press anywhere on a palette but on what is typed into: the tool, pane or number that it chooses is for the picture.
void WindowPeer::pressed(const QPoint& at) {
  if (!is_tool(window_) || !forms::reachable(window_)) return;
  for (const QWidget* w = widget->childAt(at); w && w != widget; w = w->parentWidget()) {
    if (w->focusPolicy() & Qt::ClickFocus) return;
  }
  give_keyboard_back(window_);
}

bool is_input(const QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease: return true;
    default: return false;
  }
}

bool WindowPeer::eventFilter(QObject* watched, QEvent* event) {
  if (watched != widget) {  // the native window
    if (event->type() == QEvent::Expose && handle()->isExposed()) {
      QMetaObject::invokeMethod(this, &WindowPeer::exposed, Qt::QueuedConnection);
    }
    if (event->type() == QEvent::MouseButtonPress) pressed(static_cast<QMouseEvent*>(event)->position().toPoint());
    return !window_.is_enabled() && is_input(event);
  }
  switch (event->type()) {
    case QEvent::Close:
      event->ignore();
      if (forms::reachable(window_)) user_event([this] { window_.Unload(); });
      return true;
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::WindowStateChange: follow(); return false;
    case QEvent::WindowDeactivate:
      // The next click on a palette is meant for what it hits, and its keys for the picture.
      if (is_tool(window_)) widget->setFocus();
      return false;
    case QEvent::KeyPress:
    case QEvent::KeyRelease: key_pressed(static_cast<QKeyEvent*>(event)); return true;
    default: return false;
  }
}

}  // namespace

std::unique_ptr<forms::Peer> make_window_peer(Window& window) { return std::make_unique<WindowPeer>(window); }

QWidget* widget_of(const Window& window) {
  const WindowPeer* peer = peer_of(window);
  return peer ? peer->widget : nullptr;
}

QWidget* keyboard_of(const Window& window) {
  const WindowPeer* peer = peer_of(window);
  return peer ? peer->keyboard : nullptr;
}

void give_keyboard_back(const Window& window) {
  if (!is_tool(window)) return;
  if (QWidget* palette = widget_of(window)) palette->setFocus();
  QWidget* owner = window.owner() && forms::reachable(*window.owner()) ? widget_of(*window.owner()) : nullptr;
  if (!owner) return;
  if (QWidget* picture = keyboard_of(*window.owner())) picture->setFocus();
  if (!owner->isActiveWindow()) owner->activateWindow();
}

QWidget* box_owner() {
  const std::vector<Window*>& all = forms::all_windows();
  const auto active = std::ranges::find_if(all, [](const Window* w) {
    const QWidget* shown = widget_of(*w);
    return shown && shown->isActiveWindow();
  });
  const Window* window = active != all.end() ? *active : Window::foremost();
  if (window && is_tool(*window)) window = window->owner();
  QWidget* shown = window ? widget_of(*window) : nullptr;
  return shown && shown->isVisible() ? shown : nullptr;
}

void set_keyboard(const Window& window, QWidget* widget) {
  if (WindowPeer* peer = peer_of(window)) peer->keyboard = widget;
}

}  // namespace qt
