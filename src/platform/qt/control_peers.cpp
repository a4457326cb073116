// The controls that the user works with: button, scroll bar, option, check box.
#include <QCheckBox>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <algorithm>
#include <vector>

#include "platform/qt/look.h"
#include "platform/qt/peer.h"

namespace qt {

namespace {

class ButtonPeer final : public ControlPeer {
 public:
  explicit ButtonPeer(forms::CommandButton& button) : ControlPeer(button), button_(button) {}

 protected:
  QWidget* make(QWidget* parent) override {
    auto* w = new QPushButton(parent);
    w->setFocusPolicy(leaves_keyboard() ? Qt::NoFocus : Qt::StrongFocus);
    w->setDefault(button_.is_default);  // its look; the window hands it the key
    connect(w, &QPushButton::clicked, this, [this] { click(); });
    return w;
  }
  void refresh(uint32_t changes) override {
    auto* w = static_cast<QPushButton*>(widget());
    if (changes & forms::LOOK) {
      w->setCheckable(button_.held());
      w->setChecked(button_.held());
    }
    if (!(changes & (forms::TEXT | forms::GEOMETRY))) return;
    w->setText(caption(button_.Caption()));
    fit_text();
  }
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    click();
    return true;
  }

 private:
  void click() {
    const QPointer<QObject> alive(this);
    if (reachable()) user_event([this] { button_.Click.fire(button_.index); });
    if (alive) update(forms::LOOK);  // the widget has changed its mark by itself
  }
  // Buttons keep their place whatever the font; a caption that is too wide for it gets smaller letters.
  void fit_text() {
    QFont font = font_of(forms::Font{});
    const QString text = to_qt(button_.Caption());
    const double room = button_.width_px() - 6;
    while (font.pixelSize() > 9 && QFontMetrics(font).horizontalAdvance(text) > room) {
      font.setPixelSize(font.pixelSize() - 1);
    }
    widget()->setFont(font);
  }
  forms::CommandButton& button_;
};

class ScrollPeer final : public ControlPeer {
 public:
  explicit ScrollPeer(forms::ScrollBar& bar) : ControlPeer(bar), bar_(bar) {}

 protected:
  QWidget* make(QWidget* parent) override {
    auto* w = new QScrollBar(bar_.lie == forms::Lie::horizontal ? Qt::Horizontal : Qt::Vertical, parent);
    w->setFocusPolicy(leaves_keyboard() ? Qt::NoFocus : Qt::StrongFocus);
    w->setContextMenuPolicy(Qt::PreventContextMenu);
    connect(w, &QScrollBar::valueChanged, this, [this](int at) {
      if (reachable()) user_event([&] { bar_.Value(turned(at)); });
    });
    return w;
  }
  void refresh(uint32_t changes) override {
    if (!(changes & forms::VALUE)) return;
    auto* w = static_cast<QScrollBar*>(widget());
    w->setRange(std::min(bar_.Min(), bar_.Max()), std::max(bar_.Min(), bar_.Max()));
    w->setSingleStep(bar_.SmallChange());
    w->setPageStep(bar_.LargeChange());
    w->setValue(turned(bar_.Value()));
  }

 private:
  // A bar whose Min is above its Max runs backwards: Min stays at the left or upper end.
  int turned(int v) const { return bar_.Min() <= bar_.Max() ? v : bar_.Min() + bar_.Max() - v; }
  forms::ScrollBar& bar_;
};

// Option and check box: a press of the user tells the model, and the mark then shows what the model has made of it.
template <class Model, class Widget>
class ChoicePeer final : public ControlPeer {
 public:
  explicit ChoicePeer(Model& model) : ControlPeer(model), model_(model) {}

 protected:
  QWidget* make(QWidget* parent) override {
    auto* w = new Widget(parent);
    w->setAutoExclusive(false);
    w->setFocusPolicy(leaves_keyboard() ? Qt::NoFocus : Qt::StrongFocus);
    connect(w, &Widget::clicked, this, [this](bool on) {
      if (!reachable()) return;
      const bool option = model_.kind == forms::Kind::option_button;
      const QPointer<QObject> alive(this);
      user_event([&] { model_.Value(on || option ? 1 : 0); });
      if (alive) update(forms::VALUE);
    });
    return w;
  }
  void refresh(uint32_t changes) override {
    auto* w = static_cast<Widget*>(widget());
    if (changes & forms::TEXT) w->setText(caption(model_.Caption()));
    if (changes & forms::VALUE) w->setChecked(model_.Value() != 0);
  }
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() != QEvent::KeyPress || model_.kind != forms::Kind::option_button) return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool back = key == Qt::Key_Up || key == Qt::Key_Left;
    if (!back && key != Qt::Key_Down && key != Qt::Key_Right) return false;
    choose_neighbour(back);
    return true;
  }

 private:
  // An arrow key turns on the option before or behind, round the container.
  void choose_neighbour(bool back) {
    std::vector<forms::OptionButton*> options;
    for (forms::Control* c : model_.window.controls()) {
      if (c->kind == model_.kind && c->container == model_.container && forms::reachable(*c))
        options.push_back(static_cast<forms::OptionButton*>(c));
    }
    if (back) std::ranges::reverse(options);
    const auto here = std::ranges::find(options, static_cast<const forms::Control*>(&model_));
    if (here == options.end()) return;
    forms::OptionButton& next = here + 1 == options.end() ? *options.front() : **(here + 1);
    user_event([&] {
      next.SetFocus();
      next.Value(1);
    });
  }

  Model& model_;
};

}  // namespace

std::unique_ptr<forms::Peer> make_worked_peer(forms::Control& control) {
  using namespace forms;
  switch (control.kind) {
    case Kind::button: return std::make_unique<ButtonPeer>(static_cast<CommandButton&>(control));
    case Kind::scroll_bar: return std::make_unique<ScrollPeer>(static_cast<ScrollBar&>(control));
    case Kind::option_button:
      return std::make_unique<ChoicePeer<OptionButton, QRadioButton>>(static_cast<OptionButton&>(control));
    default: return std::make_unique<ChoicePeer<CheckBox, QCheckBox>>(static_cast<CheckBox&>(control));
  }
}

}  // namespace qt
