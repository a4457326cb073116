#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

#include "platform/qt/look.h"
#include "qt/display.h"

namespace kiso_test {

namespace {

class Controls : public Display {
 protected:
  Controls() {
    logic([] {
      P.Show();
      DIALOG.Show(&P);
      DIALOG.Combo1.AddItem("基本");
      DIALOG.Combo1.AddItem("肌");
      DIALOG.List1.AddItem("一");
      DIALOG.List1.AddItem("二");
    });
    settle();
    taken();
  }
};

// Counts how often a widget is painted.
class Paints : public QObject {
 public:
  explicit Paints(QWidget* of) { of->installEventFilter(this); }
  int count = 0;

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    count += event->type() == QEvent::Paint;
    return false;
  }
};

TEST_F(Controls, LabelShowsItsNewTextByItself) {
  Paints paints(widget(P.INF));
  logic([] { P.INF.Caption("X= 1"); });
  QElapsedTimer waited;
  for (waited.start(); paints.count == 0 && waited.elapsed() < 5000;) settle();
  EXPECT_EQ(paints.count, 1);
}

TEST_F(Controls, LabelShowsItsNewTextBeforeRefreshReturns) {
  Paints paints(widget(P.INF));
  logic([&] {
    P.INF.Caption("X= 1");
    P.Refresh();
    EXPECT_EQ(paints.count, 1);
  });
  logic([&] {
    P.INF.Caption("X= 2");
    P.Refresh();
    EXPECT_EQ(paints.count, 2);
  });
}

// The lowest row that any letter reaches.
int lowest_ink(QWidget* of) {
  const QImage seen = of->grab().toImage();
  for (int y = seen.height() - 1; y >= 0; --y) {
    for (int x = 0; x < seen.width(); ++x) {
      if (seen.pixelColor(x, y) != seen.pixelColor(seen.width() - 1, seen.height() - 1)) return y;
    }
  }
  return -1;
}

TEST_F(Controls, LabelBreaksAWordThatIsWiderThanItself) {
  const int line = QFontMetrics(widget(P.INF)->font()).lineSpacing();
  logic([&] {
    P.INF.Height(4 * line);
    P.INF.Caption("mm mm");
    P.Refresh();
  });
  EXPECT_LT(lowest_ink(widget(P.INF)), line);
  const int letters = 2 * widget(P.INF)->width() / QFontMetrics(widget(P.INF)->font()).horizontalAdvance('m');
  logic([&] {
    P.INF.Caption(std::string(static_cast<size_t>(letters), 'm'));  // two lines of them, and no blank
    P.Refresh();
  });
  EXPECT_GT(lowest_ink(widget(P.INF)), line);
}

TEST_F(Controls, ScrollBarFollowsTheModelWithoutAnEcho) {
  auto* bar = as<QScrollBar>(P.X_SC);
  logic([] {
    P.X_SC.Max(500);
    P.X_SC.LargeChange(20);
    P.X_SC.Value(250);
  });
  EXPECT_EQ(taken(), Said{"X_SC 250"});
  EXPECT_EQ(bar->maximum(), 500);
  EXPECT_EQ(bar->pageStep(), 20);
  EXPECT_EQ(bar->value(), 250);
  logic([] { P.X_SC.Max(100); });
  EXPECT_EQ(taken(), Said{"X_SC 100"});
}

TEST_F(Controls, ScrollBarOfTheUserChangesTheModelOnce) {
  as<QScrollBar>(P.X_SC)->triggerAction(QAbstractSlider::SliderPageStepAdd);
  EXPECT_EQ(taken(), Said{"X_SC 46"});
}

TEST_F(Controls, ScrollBarRunsBackwardsWhereMinIsAboveMax) {
  auto* bar = as<QScrollBar>(P.Y_SC);
  EXPECT_EQ(bar->value(), 70) << "30 of 100 to 0 stands 70 from the upper end";
  bar->triggerAction(QAbstractSlider::SliderSingleStepSub);  // the arrow at the upper end, where Min is
  EXPECT_EQ(taken(), Said{"Y_SC 31"});
  bar->triggerAction(QAbstractSlider::SliderToMinimum);
  EXPECT_EQ(taken(), Said{"Y_SC 100"});
}

TEST_F(Controls, BarThatIsDisabledOrHiddenIsSilent) {
  logic([] { P.X_SC.Enabled(false); });
  EXPECT_FALSE(widget(P.X_SC)->isEnabled());
  as<QScrollBar>(P.X_SC)->triggerAction(QAbstractSlider::SliderPageStepAdd);
  EXPECT_EQ(taken(), Said{});
}

TEST_F(Controls, ButtonClicks) {
  logic([] { DIALOG.OK.Caption("R&H"); });
  EXPECT_EQ(as<QPushButton>(DIALOG.OK)->text(), "R&&H");
  as<QPushButton>(DIALOG.OK)->click();
  key(QEvent::KeyPress, widget(DIALOG.Cancel), Qt::Key_Return, "\r");
  EXPECT_EQ(taken(), (Said{"OK", "Cancel"}));
}

TEST_F(Controls, ButtonLooksHeldAsLongAsTheModelSays) {
  auto* button = as<QPushButton>(DIALOG.OK);
  const QImage raised = button->grab().toImage();
  logic([] { DIALOG.OK.held(true); });
  EXPECT_NE(button->grab().toImage(), raised);
  EXPECT_TRUE(button->isChecked());
  button->click();
  EXPECT_TRUE(button->isChecked()) << "a click leaves it to the program";
  logic([] { DIALOG.OK.held(false); });
  EXPECT_EQ(button->grab().toImage(), raised);
}

TEST_F(Controls, OptionsExcludeEachOther) {
  as<QRadioButton>(DIALOG.Option1)->click();
  as<QRadioButton>(DIALOG.Option2)->click();
  as<QRadioButton>(DIALOG.Option2)->click();
  EXPECT_EQ(taken(), (Said{"Option1", "Option2"}));
  EXPECT_FALSE(as<QRadioButton>(DIALOG.Option1)->isChecked());
  EXPECT_TRUE(as<QRadioButton>(DIALOG.Option2)->isChecked());
  logic([] { DIALOG.Option1.Value(1); });
  EXPECT_TRUE(as<QRadioButton>(DIALOG.Option1)->isChecked());
  EXPECT_FALSE(as<QRadioButton>(DIALOG.Option2)->isChecked());
  logic([] { DIALOG.Option1.Value(0); });
  EXPECT_FALSE(as<QRadioButton>(DIALOG.Option1)->isChecked());
  EXPECT_EQ(taken(), Said{"Option1"});
}

TEST_F(Controls, CheckBoxTurns) {
  as<QCheckBox>(DIALOG.Check1)->click();
  as<QCheckBox>(DIALOG.Check1)->click();
  logic([] { DIALOG.Check1.Value(1); });
  EXPECT_TRUE(as<QCheckBox>(DIALOG.Check1)->isChecked());
  EXPECT_EQ(taken(), (Said{"Check1 1", "Check1 0", "Check1 1"}));
}

TEST_F(Controls, TextBoxTellsEachKeyThenTheText) {
  auto* line = as<QLineEdit>(DIALOG.Text1);
  line->setFocus();
  taken();
  key(QEvent::KeyPress, line, Qt::Key_A, "a");
  key(QEvent::KeyPress, line, Qt::Key_B, "B");
  EXPECT_EQ(taken(), (Said{"Text1 character 97", "Text1 a", "Text1 character 66", "Text1 aB"}));
  logic([] { DIALOG.Text1.Text("12"); });
  EXPECT_EQ(line->text(), "12");
  EXPECT_EQ(taken(), Said{"Text1 12"});
}

TEST_F(Controls, BytesThatAreNoTextStayInTheField) {
  logic([] {
    DIALOG.Text1.Text("bad\xff");
    DIALOG.Show();
  });
  settle();
  logic([] { DIALOG.Text1.Text("worse\xff"); });
  settle();
  EXPECT_EQ(DIALOG.Text1.Text(), "worse\xff");
}

TEST_F(Controls, TextBoxIsValidatedWhenItLosesTheFocus) {
  qt::widget_of(DIALOG)->activateWindow();
  settle();
  as<QLineEdit>(DIALOG.Text1)->setFocus();
  taken();
  as<QComboBox>(DIALOG.Combo1)->setFocus();
  EXPECT_EQ(taken(), Said{"validate "});
  DIALOG.Text1.Validate = [](int& keep) { keep = 1; };
  as<QLineEdit>(DIALOG.Text1)->setFocus();
  as<QComboBox>(DIALOG.Combo1)->setFocus();
  settle();
  EXPECT_TRUE(widget(DIALOG.Text1)->hasFocus());
}

TEST_F(Controls, ComboBoxIsTypedIntoAndChosenFrom) {
  auto* box = as<QComboBox>(DIALOG.Combo1);
  ASSERT_EQ(box->count(), 2);
  emit box->activated(1);
  EXPECT_EQ(taken(), Said{"Combo1 肌"});
  EXPECT_EQ(box->currentText(), "肌");
  key(QEvent::KeyPress, box, Qt::Key_X, "x");
  EXPECT_EQ(taken(), (Said{"Combo1 character 120 肌", "Combo1 typed 肌x"}));
  key(QEvent::KeyPress, box, Qt::Key_Return, "\r");
  EXPECT_EQ(taken()[0], "Combo1 character 13 肌x");
  emit box->activated(1);
  EXPECT_EQ(taken(), Said{"Combo1 肌"}) << "the same choice again takes back what was typed";
  EXPECT_EQ(box->currentText(), "肌");
}

TEST_F(Controls, ComboBoxShowsARenamedItem) {
  logic([] {
    DIALOG.Combo1.ListIndex(0);
    DIALOG.Combo1.RemoveItem(0);
    DIALOG.Combo1.AddItem("新", 0);
  });
  EXPECT_EQ(as<QComboBox>(DIALOG.Combo1)->itemText(0), "新");
  EXPECT_EQ(as<QComboBox>(DIALOG.Combo1)->currentText(), QString::fromStdString(DIALOG.Combo1.Text()));
}

TEST_F(Controls, ListIsChosenFrom) {
  auto* list = as<QListWidget>(DIALOG.List1);
  list->setCurrentRow(1);
  EXPECT_EQ(taken(), Said{"List1 1"});
  logic([] { DIALOG.List1.ListIndex(0); });
  EXPECT_EQ(list->currentRow(), 0);
  logic([] { DIALOG.List1.Clear(); });
  EXPECT_EQ(list->count(), 0);
  EXPECT_EQ(taken(), Said{"List1 0"});
}

TEST_F(Controls, TooltipIsTheAccessibleNameToo) {
  logic([] { TOOL.Show(&P); });
  EXPECT_EQ(widget(TOOL.CMD_B(0))->toolTip(), "Pset");
  EXPECT_EQ(widget(TOOL.CMD_B(0))->accessibleName(), "Pset");
}

TEST_F(Controls, NeighboursChangePlacesInDepth) {
  logic([] {
    TOOL.Show(&P);
    TOOL.CMD_B(0).Move(0, 0);
    TOOL.CMD_B(1).Move(0, 0);
  });
  const auto top = [] { return qt::widget_of(TOOL)->childAt(5, 5); };
  EXPECT_EQ(top(), widget(TOOL.CMD_B(1)));
  logic([] { TOOL.CMD_B(0).ToFront(); });
  EXPECT_EQ(top(), widget(TOOL.CMD_B(0)));
  logic([] { TOOL.CMD_B(0).ToBack(); });
  EXPECT_EQ(top(), widget(TOOL.CMD_B(1)));
}

TEST_F(Controls, CursorsComeFromTheSheetsWithTheirHotSpot) {
  logic([] {
    P.DRAW.MousePointer(99);
    P.DRAW.MouseIcon("SPOIT_ICO");
  });
  for (const Sheet& sheet : all_sheets()) {
    if (std::string(sheet.name) == "SPOIT_ICO") {
      EXPECT_EQ(widget(P.DRAW)->cursor().hotSpot(), QPoint(sheet.hot_x, sheet.hot_y));
    }
  }
  EXPECT_EQ(widget(P.DRAW)->cursor().shape(), Qt::BitmapCursor);
  logic([] { P.DRAW.MousePointer(1); });
  EXPECT_EQ(widget(P.DRAW)->cursor().shape(), Qt::ArrowCursor);
  logic([] { P.MousePointer(11), P.DRAW.MousePointer(0); });
  EXPECT_EQ(widget(P.DRAW)->cursor().shape(), Qt::WaitCursor) << "0 takes that of what holds it";
}

TEST_F(Controls, TimerTicksUntilItIsStopped) {
  P.Timer1.Tick = [] {
    say("tick");
    if (said.size() == 2) P.Timer1.Interval(0);
  };
  logic([] { P.Timer1.Interval(1); });
  for (int i = 0; i < 200 && said.size() < 2; ++i) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  settle();
  EXPECT_EQ(taken(), (Said{"tick", "tick"}));
}

TEST_F(Controls, TextSizeIsThatOfTheFontInPixels) {
  int w1 = 0, h1 = 0, w2 = 0, h2 = 0;
  desktop_->text_size("絵", {"ＭＳ ゴシック", 12}, 0, w1, h1);
  desktop_->text_size("絵\r絵絵", {"ＭＳ ゴシック", 12}, 0, w2, h2);
  EXPECT_EQ(w1, 16) << "12 points are 16 pixels, and a letter of Japanese is square";
  EXPECT_EQ(w2, 32);
  EXPECT_GE(h1, 16);
  EXPECT_GE(h2, 2 * 16);
}

// --- boxes

}  // namespace
}  // namespace kiso_test
