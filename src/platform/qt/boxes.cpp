#include "platform/qt/boxes.h"

#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include "platform/forms/runtime.h"
#include "platform/qt/look.h"
#include "platform/qt/peer.h"

namespace qt {

namespace {

struct ButtonRow {
  int answer;
  const char* text;
  QMessageBox::ButtonRole role;
};
constexpr ButtonRow BUTTONS[] = {
    {forms::OK, "OK", QMessageBox::AcceptRole},
    {forms::CANCEL, "キャンセル", QMessageBox::RejectRole},
    {forms::YES, "はい", QMessageBox::YesRole},
    {forms::NO, "いいえ", QMessageBox::NoRole},
};

// The buttons of a style from left to right, and the answer that Escape gives.
struct StyleRow {
  int style;
  int answers[3];
  int escape;
};
constexpr StyleRow STYLES[] = {
    {forms::OK_ONLY, {forms::OK}, forms::OK},
    {forms::OK_CANCEL, {forms::OK, forms::CANCEL}, forms::CANCEL},
    {forms::YES_NO_CANCEL, {forms::YES, forms::NO, forms::CANCEL}, forms::CANCEL},
    {forms::YES_NO, {forms::YES, forms::NO}, forms::NO},
};

const StyleRow& style_row(int style) {
  for (const StyleRow& row : STYLES) {
    if (row.style == (style & 15)) return row;
  }
  return STYLES[0];
}

QMessageBox::Icon icon_of(int style) {
  switch (style & 0x70) {
    case forms::CRITICAL: return QMessageBox::Critical;
    case forms::QUESTION: return QMessageBox::Question;
    case forms::EXCLAMATION: return QMessageBox::Warning;
    case forms::INFORMATION: return QMessageBox::Information;
    default: return QMessageBox::NoIcon;
  }
}

}  // namespace

int message_box(const std::string& text, int style, const std::string& title) {
  // A window that goes while the box is up takes the box with it.
  const QPointer<QMessageBox> box_there = new QMessageBox(box_owner());
  QMessageBox& box = *box_there;
  box.setTextFormat(Qt::PlainText);
  box.setWindowTitle(to_qt(title));
  box.setText(to_qt(text));
  box.setIcon(icon_of(style));
  const StyleRow& row = style_row(style);
  const int first = style >> 8 & 3;  // button that has the focus
  int place = 0;
  for (const int answer : row.answers) {
    for (const ButtonRow& b : BUTTONS) {
      if (b.answer != answer) continue;
      QPushButton* button = box.addButton(QString::fromUtf8(b.text), b.role);
      button->setProperty("answer", answer);
      if (place++ == first) box.setDefaultButton(button);
      if (answer == row.escape) box.setEscapeButton(button);
    }
  }
  box.exec();
  if (!box_there) return row.escape;
  const QAbstractButton* clicked = box.clickedButton();
  const int answer = clicked ? clicked->property("answer").toInt() : row.escape;
  delete box_there;  // NOLINT(cppcoreguidelines-owning-memory)
  return answer;
}

}  // namespace qt
