#include "platform/qt/peer.h"

#include <QApplication>
#include <algorithm>
#include <cmath>
#include <vector>

#include "platform/qt/look.h"

namespace qt {

using forms::Control;

int Quiet::depth = 0;

void retire(QWidget* widget) {
  if (!widget) return;
  const Quiet quiet;
  widget->hide();
  widget->deleteLater();
}

namespace {

ControlPeer* peer_of(const Control& control) { return dynamic_cast<ControlPeer*>(control.peer.get()); }

bool has_keys(const Control& control) {
  return control.kind == forms::Kind::picture && static_cast<const forms::PictureBox&>(control).takes_keys();
}

}  // namespace

bool ControlPeer::leaves_keyboard() const {
  const forms::Window& window = control_.window;
  return window.border == forms::Border::tool || window.border == forms::Border::sizable_tool ||
         std::ranges::any_of(window.controls(), [](const Control* c) { return has_keys(*c); });
}

QWidget* ControlPeer::parent() const {
  if (!control_.container) return widget_of(control_.window);
  const ControlPeer* peer = peer_of(*control_.container);
  return peer ? peer->widget() : nullptr;
}

void ControlPeer::realize() {
  if (widget_ || !control_.is_visible()) return;
  QWidget* in = parent();
  if (!in) return;
  widget_ = make(in);
  widget_->installEventFilter(this);
  update(forms::GEOMETRY | forms::ENABLED | forms::TEXT | forms::VALUE | forms::LOOK | forms::LIST | forms::POINTER |
         forms::ORDER);
  realize_inside(control_.window, &control_);
  widget_->show();
}

void realize_inside(const forms::Window& window, const Control* container) {
  for (const Control* c : window.controls()) {
    ControlPeer* peer = c->container == container ? peer_of(*c) : nullptr;
    if (peer) peer->realize();
  }
}

void ControlPeer::place() {
  const ControlPeer* in = control_.container ? peer_of(*control_.container) : nullptr;
  const int shift = in ? in->inset() : 0;
  const auto px = [](double v) { return static_cast<int>(std::lround(v)); };
  widget_->setGeometry(px(control_.left_px()) + shift - inset(), px(control_.top_px()) + shift - inset(),
                       px(control_.width_px()) + 2 * inset(), px(control_.height_px()) + 2 * inset());
}

// Puts it and its neighbours one under the other; several of them may have changed their order together, so each one's
// place is that of the model and not that of the neighbours' widgets. What is in place does not move.
void ControlPeer::stack() {
  std::vector<Control*> neighbours;
  std::ranges::copy_if(control_.window.controls(), std::back_inserter(neighbours),
                       [&](const Control* c) { return c->container == control_.container; });
  std::ranges::stable_sort(neighbours, std::ranges::greater{}, &Control::order);
  QWidget* above = nullptr;
  for (const Control* c : neighbours) {
    const ControlPeer* peer = peer_of(*c);
    if (!peer || !peer->widget()) continue;
    above ? peer->widget()->stackUnder(above) : peer->widget()->raise();
    above = peer->widget();
  }
}

void ControlPeer::update(uint32_t changes) {
  const Quiet quiet;
  if (!widget_) return realize();
  if (changes & forms::GEOMETRY) place();
  if (changes & forms::ORDER) stack();
  if (changes & forms::ENABLED) enable(control_.is_enabled());
  if (changes & forms::TEXT) {
    const std::string& name = control_.accessible_name.empty() ? control_.ToolTip() : control_.accessible_name;
    // Both tell the whole program of a change, even of none.
    if (const QString tip = to_qt(control_.ToolTip()); tip != widget_->toolTip()) widget_->setToolTip(tip);
    if (const QString said = to_qt(name); said != widget_->accessibleName()) widget_->setAccessibleName(said);
  }
  if (changes & forms::POINTER) {
    if (control_.MousePointer() == 0) {
      widget_->unsetCursor();
    } else {
      widget_->setCursor(cursor_of(control_.MousePointer(), control_.MouseIcon(), widget_->devicePixelRatio()));
    }
  }
  refresh(changes);
  if (changes & forms::VISIBLE) widget_->setVisible(control_.is_visible());
}

void ControlPeer::paint_now() {
  const Quiet quiet;
  if (widget_ && control_.window.peer) control_.window.peer->paint_now();
}

void ControlPeer::take_focus() {
  const Quiet quiet;
  if (!widget_) realize();
  if (!widget_) return;
  // Only what takes every key: one that is handed on and not taken would come back to the window.
  if (has_keys(control_)) set_keyboard(control_.window, widget_);
  widget_->setFocus(Qt::OtherFocusReason);
}

}  // namespace qt
