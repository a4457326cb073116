// A picture box on the display: painted straight from its surface, only what is new.
#include <QFocusEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWheelEvent>

#include "platform/qt/keys.h"
#include "platform/qt/look.h"
#include "platform/qt/peer.h"
#include "platform/qt/pointer.h"
#include "platform/qt/surface_image.h"

namespace qt {

using forms::PictureBox;

namespace {

class PicturePeer final : public ControlPeer {
 public:
  explicit PicturePeer(PictureBox& box) : ControlPeer(box), box_(box) {}
  void drawn(const raster::Rect& r) override {
    if (widget()) widget()->update(r.left + inset(), r.top + inset(), r.right - r.left, r.bottom - r.top);
  }
  int inset() const override { return box_.border ? 1 : 0; }

 protected:
  QWidget* make(QWidget* parent) override;
  void refresh(uint32_t changes) override {
    if (changes & (forms::GEOMETRY | forms::LOOK)) widget()->update();
  }
  void enable(bool on) override { widget()->setAttribute(Qt::WA_TransparentForMouseEvents, !on); }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void paint(const QPaintEvent& event);
  bool wheel(const QWheelEvent& event);

  PictureBox& box_;
  PointerTrack track_;
  QPoint turned_;  // of the wheel, not yet a whole step; eighths of a degree
};

QWidget* PicturePeer::make(QWidget* parent) {
  auto* w = new QWidget(parent);
  w->setAttribute(Qt::WA_OpaquePaintEvent);
  w->setMouseTracking(static_cast<bool>(box_.MouseMove));
  if (box_.takes_keys()) w->setFocusPolicy(Qt::ClickFocus);
  track_.second_press_is_press = box_.second_press_is_press;
  return w;
}

void PicturePeer::paint(const QPaintEvent& event) {
  QPainter p(widget());
  const raster::Surface& surface = box_.shown();
  const QRect inside = widget()->rect().adjusted(inset(), inset(), -inset(), -inset());
  const QRect pixels(inside.topLeft(), QSize(surface.width(), surface.height()));
  const QRegion rest = event.region() - (inside & pixels);
  for (const QRect& r : rest) p.fillRect(r, colour_of(box_.BackColor()));
  if (!pixels.isEmpty()) {
    const QImage image = image_over(surface);
    for (const QRect& r : event.region() & inside & pixels) p.drawImage(r, image, r.translated(-inside.topLeft()));
  }
  if (!box_.border) return;
  p.setPen(border_colour());
  p.drawRect(widget()->rect().adjusted(0, 0, -1, -1));
}

// Touch pads send fractions of a step.
bool PicturePeer::wheel(const QWheelEvent& event) {
  if (!box_.Wheel || !reachable()) return false;
  turned_ += event.angleDelta();
  const QPoint steps(turned_.x() / QWheelEvent::DefaultDeltasPerStep, turned_.y() / QWheelEvent::DefaultDeltasPerStep);
  turned_ -= steps * QWheelEvent::DefaultDeltasPerStep;
  if (!steps.isNull()) user_event([&] { box_.Wheel.fire(box_.index, -steps.x(), -steps.y()); });
  return true;
}

bool PicturePeer::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (track_.event(box_, box_, *widget(), *event, QPointF(inset(), inset()))) return true;
  switch (event->type()) {
    case QEvent::Paint: paint(*static_cast<QPaintEvent*>(event)); return true;
    case QEvent::Wheel: return wheel(*static_cast<QWheelEvent*>(event));
    // A key that repeats or means nothing here still ends here; one of a control on a page of a dialog passes.
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
      if (!box_.takes_keys()) return false;
      keypad_from(*widget());
      if (reachable()) key_event(box_, box_, *static_cast<QKeyEvent*>(event));
      return true;
    case QEvent::FocusIn: set_keyboard(box_.window, widget()); return false;
    case QEvent::FocusOut: keypad_let_go(); return false;
    default: return false;
  }
}

}  // namespace

std::unique_ptr<forms::Peer> make_picture_peer(PictureBox& box) { return std::make_unique<PicturePeer>(box); }

}  // namespace qt
