// Message boxes: buttons, answers, and the window that they belong to.
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>

#include "qt/display.h"

namespace kiso_test {

namespace {

class Boxes : public Display {
 protected:
  Boxes() {
    logic([] {
      P.Show();
      DIALOG.Show(&P);
    });
    settle();
  }
};

// Looks at the box that is up, then does something to it.
template <class F>
void with_box(F look) {
  const auto find = [look] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    look(*box);
  };
  QMetaObject::invokeMethod(qApp, find, Qt::QueuedConnection);
}

QStringList buttons(const QMessageBox& box) {
  QStringList texts;
  QList<QPushButton*> all = box.findChildren<QPushButton*>();
  std::sort(all.begin(), all.end(), [](auto* a, auto* b) { return a->x() < b->x(); });
  for (const QPushButton* b : all) texts += b->text();
  return texts;
}

void click(QMessageBox& box, const char* text) {
  for (QPushButton* b : box.findChildren<QPushButton*>()) {
    if (b->text() == text) return b->click();
  }
  FAIL() << "no button " << text;
}

void press_key(QMessageBox& box, int key) {
  QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
  QCoreApplication::sendEvent(&box, &event);
}

TEST_F(Boxes, BoxHasTheButtonsTheIconAndTheDefaultOfItsStyle) {
  with_box([](QMessageBox& box) {
    EXPECT_EQ(box.windowTitle(), "Kiso 終了");
    EXPECT_EQ(box.text(), "Kisoを終了します\nファイルを保存せずに終了しますか ?\n");
    EXPECT_EQ(buttons(box), (QStringList{"はい", "いいえ", "キャンセル"}));
    EXPECT_EQ(box.icon(), QMessageBox::Question);
    EXPECT_EQ(box.defaultButton()->text(), "キャンセル");
    click(box, "いいえ");
  });
  EXPECT_EQ(MsgBox("Kisoを終了します\rファイルを保存せずに終了しますか ?\r", 547, "Kiso 終了"), 7);
  with_box([](QMessageBox& box) {
    EXPECT_EQ(buttons(box), (QStringList{"OK", "キャンセル"}));
    EXPECT_EQ(box.icon(), QMessageBox::Warning);
    EXPECT_EQ(box.defaultButton()->text(), "OK");
    click(box, "OK");
  });
  EXPECT_EQ(MsgBox("?", 49), 1);
  with_box([](QMessageBox& box) {
    EXPECT_EQ(buttons(box), (QStringList{"はい", "いいえ"}));
    EXPECT_EQ(box.defaultButton()->text(), "いいえ");
    click(box, "はい");
  });
  EXPECT_EQ(MsgBox("?", 4 + 32 + 256), 6);
}

TEST_F(Boxes, EscapeIsCancelOrNoOrTheOnlyButton) {
  const auto escape = [](QMessageBox& box) { press_key(box, Qt::Key_Escape); };
  with_box(escape);
  EXPECT_EQ(MsgBox("?", 0), 1);
  with_box(escape);
  EXPECT_EQ(MsgBox("?", 1), 2);
  with_box(escape);
  EXPECT_EQ(MsgBox("?", 3), 2);
  with_box(escape);
  EXPECT_EQ(MsgBox("?", 4), 7);
}

TEST_F(Boxes, BoxOpensOverTheWindowThatItBelongsTo) {
  const auto over = [](const Window& window) {
    return [&window](QMessageBox& box) {
      EXPECT_EQ(box.parentWidget(), qt::widget_of(window));
      const QRect there = qt::widget_of(window)->frameGeometry();
      EXPECT_LE(std::abs(box.frameGeometry().center().x() - there.center().x()), 20);
      press_key(box, Qt::Key_Escape);
    };
  };
  qt::widget_of(DIALOG)->activateWindow();
  settle();
  with_box(over(DIALOG));
  MsgBox("?");
  logic([] {
    P.Move(3000, 1500);
    TOOL.Show(&P);
  });
  qt::widget_of(TOOL)->activateWindow();
  settle();
  with_box(over(P));
  MsgBox("a palette's box belongs to the window that owns the palette");
}

TEST_F(Boxes, ABoxGoesWithItsWindow) {
  qt::widget_of(DIALOG)->activateWindow();
  settle();
  with_box([](QMessageBox&) { logic([] { DIALOG.Unload(); }); });
  EXPECT_EQ(MsgBox("?", 3), 2);
}

TEST_F(Boxes, ErrorThatNothingCatchesIsShownAndEndsTheProgram) {
  with_box([](QMessageBox& box) {
    EXPECT_EQ(box.text(), "実行時エラー '380':\n\nプロパティの値が不正です。");
    press_key(box, Qt::Key_Escape);
  });
  logic([] { P.X_SC.Value(1000); });
  EXPECT_TRUE(has_ended());
  EXPECT_EQ(fatal_error(), 380);
}

TEST_F(Boxes, WhatHappensWhileABoxIsUpReachesTheScreen) {
  P.DRAW.Paint = [] { P.INF.Caption("uncovered"); };
  with_box([](QMessageBox& box) {
    logic([] { P.DRAW.BackColor(QBColor(12)); });
    EXPECT_EQ(widget(P.DRAW)->grab().toImage().pixelColor(3, 3), QColor(Qt::red));
    press_key(box, Qt::Key_Escape);
  });
  logic([] { MsgBox("?"); });
}

}  // namespace
}  // namespace kiso_test
