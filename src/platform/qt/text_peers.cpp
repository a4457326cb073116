// The controls that are typed into or chosen from: text box, combo box, list.
#include <QAbstractItemView>
#include <QComboBox>
#include <QFocusEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <algorithm>

#include "platform/qt/keys.h"
#include "platform/qt/look.h"
#include "platform/qt/peer.h"

namespace qt {

namespace {

// Fires KeyPress for a key that is about to reach the field.
template <class Model>
void announce_key(Model& model, const QKeyEvent& event) {
  const int character = key_character(event);
  if (character && forms::reachable(model)) user_event([&] { model.KeyPress.fire(model.index, character); });
}

class TextPeer final : public ControlPeer {
 public:
  explicit TextPeer(forms::TextBox& box) : ControlPeer(box), box_(box) {}

 protected:
  QWidget* make(QWidget* parent) override;
  void refresh(uint32_t changes) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // What the field shows of the program's own text is not typed: bytes that are no text would come back as others.
  void typed(const QString& text) {
    if (text != to_qt(box_.Text()) && reachable()) user_event([&] { box_.Text(from_qt(text)); });
  }
  void leave();

  forms::TextBox& box_;
  QLineEdit* line_ = nullptr;
  QPlainTextEdit* page_ = nullptr;  // where the box has several lines
};

QWidget* TextPeer::make(QWidget* parent) {
  if (box_.multi_line) {
    page_ = new QPlainTextEdit(parent);
    page_->setReadOnly(box_.read_only);
    connect(page_, &QPlainTextEdit::textChanged, this, [this] { typed(page_->toPlainText()); });
  } else {
    line_ = new QLineEdit(parent);
    line_->setReadOnly(box_.read_only);
    connect(line_, &QLineEdit::textChanged, this, [this](const QString& text) { typed(text); });
  }
  QWidget* w = page_ ? static_cast<QWidget*>(page_) : line_;
  w->setContextMenuPolicy(Qt::PreventContextMenu);
  if (leaves_keyboard()) w->setFocusPolicy(Qt::ClickFocus);
  return w;
}

void TextPeer::refresh(uint32_t changes) {
  if (changes & forms::LOOK) widget()->setFont(font_of(box_.font()));
  if (!(changes & forms::TEXT)) return;
  const QString text = to_qt(box_.Text());
  if (page_ && page_->toPlainText() != text) page_->setPlainText(text);
  if (line_ && line_->text() != text) line_->setText(text);
}

// The focus goes back if the program keeps it.
void TextPeer::leave() {
  const QPointer<QObject> alive(this);
  int keep = 0;
  user_event([&] { box_.Validate.fire(box_.index, keep); });
  if (alive && keep) QMetaObject::invokeMethod(this, &TextPeer::take_focus, Qt::QueuedConnection);
}

bool TextPeer::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (event->type() == QEvent::KeyPress) announce_key(box_, *static_cast<QKeyEvent*>(event));
  if (event->type() == QEvent::FocusOut && reachable()) {
    const Qt::FocusReason why = static_cast<QFocusEvent*>(event)->reason();
    if (why != Qt::ActiveWindowFocusReason && why != Qt::PopupFocusReason) leave();
  }
  return false;
}

// The keyboard belongs to the box as a whole, which hands the keys on to its field.
class ComboPeer final : public ControlPeer {
 public:
  explicit ComboPeer(forms::ComboBox& box) : ControlPeer(box), box_(box) {}

 protected:
  QWidget* make(QWidget* parent) override;
  void refresh(uint32_t changes) override;
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    return event->type() == QEvent::KeyPress && pressed(*static_cast<QKeyEvent*>(event));
  }

 private:
  bool pressed(const QKeyEvent& event);
  void choose(int i);
  forms::ComboBox& box_;
};

QWidget* ComboPeer::make(QWidget* parent) {
  auto* w = new QComboBox(parent);
  w->setEditable(true);
  w->setInsertPolicy(QComboBox::NoInsert);
  w->setCompleter(nullptr);
  if (leaves_keyboard()) w->setFocusPolicy(Qt::ClickFocus);  // not by itself, when the window is activated
  w->lineEdit()->setContextMenuPolicy(Qt::PreventContextMenu);
  connect(w->lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) {
    if (reachable()) user_event([&] { box_.Text(from_qt(text)); });
  });
  // A name that is typed whole is no choice of the item of that name.
  disconnect(w->lineEdit(), &QLineEdit::editingFinished, w, nullptr);
  connect(w, &QComboBox::activated, this, [this](int i) {
    choose(i);
    give_keyboard_back(box_.window);
  });
  return w;
}

// Arrows go through the list and keep the keyboard; Enter ends the typing.
bool ComboPeer::pressed(const QKeyEvent& event) {
  const bool alone = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  const int step = event.key() == Qt::Key_Down ? 1 : event.key() == Qt::Key_Up ? -1 : 0;
  if (alone && step != 0) {
    const int to = static_cast<QComboBox*>(widget())->currentIndex() + step;
    if (to >= 0 && to < box_.ListCount()) choose(to);
    return true;
  }
  const QPointer<QObject> alive(this);
  announce_key(box_, event);
  const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
  if (alive && enter) give_keyboard_back(box_.window);
  return !alive || enter;
}

// A choice counts even if it is the same as before, since other text may have been typed meanwhile.
void ComboPeer::choose(int i) {
  if (!reachable()) return;
  user_event([&] {
    box_.ListIndex(-1);
    box_.ListIndex(i);
  });
}

void ComboPeer::refresh(uint32_t changes) {
  auto* w = static_cast<QComboBox*>(widget());
  if (changes & forms::LIST) {
    w->clear();
    for (int i = 0; i < box_.ListCount(); ++i) w->addItem(to_qt(box_.List(i)));
    constexpr int MARGIN = 24, MOST = 400;  // pixels: the open list may be wider than the box
    w->view()->setMinimumWidth(std::min(w->view()->sizeHintForColumn(0) + MARGIN, MOST));
  }
  if (changes & (forms::LIST | forms::VALUE)) w->setCurrentIndex(box_.ListIndex());
  if (changes & (forms::LIST | forms::VALUE | forms::TEXT)) {
    const QString text = to_qt(box_.Text());
    if (w->currentText() != text) w->setEditText(text);
  }
}

class ListPeer final : public ControlPeer {
 public:
  explicit ListPeer(forms::ListBox& box) : ControlPeer(box), box_(box) {}

 protected:
  QWidget* make(QWidget* parent) override {
    auto* w = new QListWidget(parent);
    if (leaves_keyboard()) w->setFocusPolicy(Qt::ClickFocus);
    connect(w, &QListWidget::currentRowChanged, this, [this](int row) {
      if (reachable()) user_event([&] { box_.ListIndex(row); });
    });
    connect(w, &QListWidget::itemDoubleClicked, this, [this] {
      if (reachable()) user_event([&] { box_.DblClick.fire(box_.index); });
    });
    return w;
  }
  void refresh(uint32_t changes) override {
    auto* w = static_cast<QListWidget*>(widget());
    if (changes & forms::LIST) {
      w->clear();
      for (int i = 0; i < box_.ListCount(); ++i) w->addItem(to_qt(box_.List(i)));
    }
    if (changes & (forms::LIST | forms::VALUE)) w->setCurrentRow(box_.ListIndex());
  }

 private:
  forms::ListBox& box_;
};

}  // namespace

std::unique_ptr<forms::Peer> make_text_peer(forms::Control& control) {
  using namespace forms;
  switch (control.kind) {
    case Kind::text_box: return std::make_unique<TextPeer>(static_cast<TextBox&>(control));
    case Kind::combo_box: return std::make_unique<ComboPeer>(static_cast<ComboBox&>(control));
    default: return std::make_unique<ListPeer>(static_cast<ListBox&>(control));
  }
}

}  // namespace qt
