#include "platform/qt/boxes.h"

#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

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
    {1, "OK", QMessageBox::AcceptRole},
    {2, "キャンセル", QMessageBox::RejectRole},
    {6, "はい", QMessageBox::YesRole},
    {7, "いいえ", QMessageBox::NoRole},
};

// The buttons of a style from left to right, and the answer that Escape gives.
struct StyleRow {
  int style;
  int answers[3];
  int escape;
};
constexpr StyleRow STYLES[] = {
    {0, {1}, 1},
    {1, {1, 2}, 2},
    {3, {6, 7, 2}, 2},
    {4, {6, 7}, 7},
};

const StyleRow& style_row(int style) {
  for (const StyleRow& row : STYLES) {
    if (row.style == (style & 15)) return row;
  }
  return STYLES[0];
}

QMessageBox::Icon icon_of(int style) {
  switch (style & 0x70) {
    case 16: return QMessageBox::Critical;
    case 32: return QMessageBox::Question;
    case 48: return QMessageBox::Warning;
    case 64: return QMessageBox::Information;
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
