// The controls that only show something: label, image, shape, frame; and the timer, which shows nothing.
#include <QBasicTimer>
#include <QGroupBox>
#include <QPaintEvent>
#include <QPainter>
#include <QTimerEvent>

#include "platform/qt/look.h"
#include "platform/qt/peer.h"
#include "platform/qt/pointer.h"

namespace qt {

namespace {

// A widget that the peer paints itself.
class PaintedPeer : public ControlPeer {
 public:
  using ControlPeer::ControlPeer;

 protected:
  QWidget* make(QWidget* parent) override { return new QWidget(parent); }
  void refresh(uint32_t changes) override {
    if (changes & (forms::TEXT | forms::LOOK)) widget()->update();
  }
  // What is not enabled lets the pointer through to what lies under it.
  void enable(bool on) override { widget()->setAttribute(Qt::WA_TransparentForMouseEvents, !on); }
  virtual void paint(QPainter& p, const QRect& all) = 0;
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() != QEvent::Paint) return false;
    QPainter p(widget());
    paint(p, widget()->rect());
    return true;
  }
};

template <class Model>
class PointedPeer : public PaintedPeer {
 public:
  explicit PointedPeer(Model& model) : PaintedPeer(model), model_(model) {}

 protected:
  QWidget* make(QWidget* parent) override {
    auto* w = new QWidget(parent);
    w->setMouseTracking(static_cast<bool>(model_.MouseMove));
    return w;
  }
  bool eventFilter(QObject* watched, QEvent* event) override {
    return track_.event(model_, model_, *widget(), *event, QPointF()) || PaintedPeer::eventFilter(watched, event);
  }
  Model& model_;

 private:
  PointerTrack track_;
};

class LabelPeer final : public PointedPeer<forms::Label> {
 public:
  using PointedPeer::PointedPeer;
  void hurry() override {
    if (!late_.isActive()) return;
    late_.stop();
    if (widget()) widget()->update();
  }

 protected:
  void refresh(uint32_t changes) override {
    if (changes & forms::LOOK) {
      widget()->setAttribute(Qt::WA_OpaquePaintEvent, !model_.transparent);
      widget()->setFont(font_of(model_.font()));
    }
    if (changes != forms::TEXT) {
      PaintedPeer::refresh(changes);
    } else if (!late_.isActive()) {
      late_.start(A_FRAME, this);
    }
  }
  void timerEvent(QTimerEvent* /*event*/) override { hurry(); }
  void paint(QPainter& p, const QRect& all) override {
    if (!model_.transparent) p.fillRect(all, colour_of(model_.BackColor()));
    const Qt::Alignment align = model_.align == forms::Label::Align::left    ? Qt::AlignLeft | Qt::AlignTop
                                : model_.align == forms::Label::Align::right ? Qt::AlignRight | Qt::AlignTop
                                                                             : Qt::AlignCenter;
    QTextOption lines(align);
    // A path may have no blank to break at.
    lines.setWrapMode(model_.AutoSize() ? QTextOption::NoWrap : QTextOption::WrapAtWordBoundaryOrAnywhere);
    p.setPen(colour_of(model_.is_enabled() ? model_.ForeColor() : 0x808080));
    const int inset = model_.border ? forms::Label::BORDER : 0;
    p.drawText(QRectF(all.adjusted(inset, inset, -inset, -inset)), to_qt(model_.Caption()), lines);
    if (!model_.border) return;
    p.setPen(border_colour());
    p.drawRect(all.adjusted(0, 0, -1, -1));
  }

 private:
  // A new text waits as long as a screen takes to show anything: the position of the pointer changes with every point
  // of a stroke, and laying out its digits takes longer than the stroke's own pixels.
  static constexpr int A_FRAME = 16;  // ms
  QBasicTimer late_;
};

// Grey, and half way to the face of the window.
QImage faint(const QImage& cell) {
  QImage grey = cell.convertToFormat(QImage::Format_Grayscale8).convertToFormat(QImage::Format_RGB32);
  QColor veil = colour_of(0x8000000F);
  veil.setAlpha(140);
  QPainter(&grey).fillRect(grey.rect(), veil);
  return grey;
}

class ImagePeer final : public PointedPeer<forms::ImageBox> {
 public:
  using PointedPeer::PointedPeer;

 protected:
  void paint(QPainter& p, const QRect& all) override {
    const forms::Sheet* sheet = find_sheet(model_.sheet());
    if (!sheet) return;
    const QImage cell = picture_of(*sheet).copy(QRect(QPoint(model_.cell_x(), model_.cell_y()), all.size()));
    p.drawImage(QPoint(), model_.faint ? faint(cell) : cell);
  }
};

class ShapePeer final : public PaintedPeer {
 public:
  explicit ShapePeer(forms::Shape& shape) : PaintedPeer(shape), shape_(shape) {}

 protected:
  QWidget* make(QWidget* parent) override {
    QWidget* w = PaintedPeer::make(parent);
    w->setAttribute(Qt::WA_TransparentForMouseEvents);
    return w;
  }
  void enable(bool /*on*/) override {}
  void paint(QPainter& p, const QRect& all) override {
    constexpr int WIDE = 2;
    const QRegion frame = QRegion(all) - all.adjusted(WIDE, WIDE, -WIDE, -WIDE);
    for (const QRect& r : frame) p.fillRect(r, colour_of(shape_.FillColor()));
  }

 private:
  forms::Shape& shape_;
};

class FramePeer final : public ControlPeer {
 public:
  explicit FramePeer(forms::Frame& frame) : ControlPeer(frame), frame_(frame) {}

 protected:
  QWidget* make(QWidget* parent) override { return new QGroupBox(parent); }
  void refresh(uint32_t changes) override {
    if (changes & forms::TEXT) static_cast<QGroupBox*>(widget())->setTitle(caption(frame_.Caption()));
  }

 private:
  forms::Frame& frame_;
};

class TimerPeer final : public QObject, public forms::Peer {
 public:
  explicit TimerPeer(forms::Timer& timer) : timer_(timer) { update(forms::VALUE); }
  void update(uint32_t changes) override {
    if (!(changes & (forms::VALUE | forms::ENABLED))) return;
    if (id_) killTimer(std::exchange(id_, 0));
    if (timer_.running()) id_ = startTimer(timer_.Interval());
  }

 protected:
  void timerEvent(QTimerEvent* /*event*/) override {
    user_event([this] { timer_.Tick.fire(timer_.index); });
  }

 private:
  forms::Timer& timer_;
  int id_ = 0;
};

}  // namespace

std::unique_ptr<forms::Peer> make_timer_peer(forms::Timer& timer) { return std::make_unique<TimerPeer>(timer); }

std::unique_ptr<forms::Peer> make_plain_peer(forms::Control& control) {
  switch (control.kind) {
    case forms::Kind::label: return std::make_unique<LabelPeer>(static_cast<forms::Label&>(control));
    case forms::Kind::image: return std::make_unique<ImagePeer>(static_cast<forms::ImageBox&>(control));
    case forms::Kind::shape: return std::make_unique<ShapePeer>(static_cast<forms::Shape&>(control));
    default: return std::make_unique<FramePeer>(static_cast<forms::Frame&>(control));
  }
}

}  // namespace qt
