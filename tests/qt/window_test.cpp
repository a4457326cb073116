#include <QCloseEvent>
#include <QWindow>

#include "qt/display.h"

namespace kiso_test {

namespace {

class Windows : public Display {
 protected:
  static QWidget* shown(Window& window, Window* owner = nullptr) {
    logic([&] { window.Show(owner); });
    settle();
    taken();
    return qt::widget_of(window);
  }
  static void close_by_frame(QWidget* w) {
    QCloseEvent event;
    QCoreApplication::sendEvent(w, &event);
    EXPECT_FALSE(event.isAccepted());
  }
};

TEST_F(Windows, StandWhereTheModelSays) {
  const QWidget* w = shown(P);
  EXPECT_TRUE(w->isVisible());
  EXPECT_EQ(w->pos(), QPoint(100, 50));
  EXPECT_EQ(w->size(), QSize(400, 300));
  EXPECT_EQ(w->windowTitle(), "Kiso");
  logic([] {
    P.Move(300, 450);
    P.inside(500, 320);
    P.Caption("別");
  });
  EXPECT_EQ(w->pos(), QPoint(20, 30));
  EXPECT_EQ(w->size(), QSize(500, 320));
  EXPECT_EQ(w->windowTitle(), "別");
}

TEST_F(Windows, SizeGivenByTheUserReachesTheModelOnce) {
  QWidget* w = shown(P);
  w->resize(450, 310);
  settle();
  EXPECT_EQ(taken(), Said{"resize 450 310"});
  EXPECT_EQ(P.Width(), 450 * TWIPS);
  w->move(40, 60);
  settle();
  EXPECT_EQ(P.Left(), 600);
  EXPECT_EQ(P.Top(), 900);
  EXPECT_EQ(w->size(), QSize(450, 310));
}

TEST_F(Windows, PlaceThatIsNoWholePixelStaysAsGiven) {
  shown(P);
  logic([] { P.Move(307, 452); });
  settle();
  EXPECT_EQ(P.Left(), 307);
  EXPECT_EQ(P.Top(), 452);
}

TEST_F(Windows, MaximizedWindowComesBackToItsSize) {
  QWidget* w = shown(P);
  logic([] { P.WindowState(2); });
  settle();
  EXPECT_EQ(P.WindowState(), 2);
  EXPECT_EQ(P.inside_w(), w->width());
  EXPECT_GT(P.inside_w(), 400);
  w->setWindowState(Qt::WindowNoState);
  settle();
  EXPECT_EQ(P.WindowState(), 0);
  EXPECT_EQ(P.inside_w(), 400);
  EXPECT_EQ(P.inside_h(), 300);
}

TEST_F(Windows, CloseByTheFrameIsTheProgramsToDecide) {
  QPointer<QWidget> w = shown(P);
  P.Form_Unload = [](int& cancel) {
    say("unload");
    cancel = 1;
  };
  close_by_frame(w);
  EXPECT_EQ(taken(), Said{"unload"});
  EXPECT_TRUE(w->isVisible());
  P.Form_Unload = [](int&) {};
  close_by_frame(w);
  EXPECT_FALSE(P.Loaded());
  EXPECT_FALSE(w && w->isVisible());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(w.isNull());
}

TEST_F(Windows, DisabledWindowCanNotBeClosed) {
  QWidget* w = shown(P);
  logic([] { P.Enabled(false); });
  close_by_frame(w);
  EXPECT_TRUE(P.Loaded());
}

TEST_F(Windows, CanGoAwayInsideTheirOwnEvents) {
  shown(P);
  P.DRAW.MouseDown = [](int, int, float, float) { P.Unload(); };
  press(P.DRAW, 5, 5);
  EXPECT_FALSE(P.Loaded());
  P.DRAW.MouseDown = [](int, int, float, float) { End(); };
  shown(P);
  press(P.DRAW, 5, 5);
  EXPECT_TRUE(has_ended());
}

TEST_F(Windows, LoadAgainAsDesigned) {
  shown(P);
  logic([] {
    P.DRAW.Visible(false);
    P.Unload();
  });
  EXPECT_EQ(qt::widget_of(P), nullptr);
  shown(P);
  EXPECT_TRUE(widget(P.DRAW)->isVisible());
}

TEST_F(Windows, OwnedWindowStaysAboveItsOwner) {
  const QWidget* owner = shown(P);
  const QWidget* w = shown(TOOL, &P);
  EXPECT_EQ(w->windowHandle()->transientParent(), owner->windowHandle());
  EXPECT_EQ(w->windowType(), Qt::Tool);
}

TEST_F(Windows, OnlySizableOnesCanBeSized) {
  EXPECT_EQ(shown(TOOL)->maximumSize(), QSize(96, 100));
  EXPECT_EQ(shown(DIALOG)->minimumSize(), QSize(300, 240));
  EXPECT_GT(shown(P)->maximumWidth(), 10000);
}

TEST_F(Windows, EnterAndEscapePressTheButtonsThatStandForThem) {
  QWidget* w = shown(DIALOG);
  key(QEvent::KeyPress, w, Qt::Key_Return, "\r");
  key(QEvent::KeyPress, w, Qt::Key_Escape, "\x1b");
  EXPECT_EQ(taken(), (Said{"OK", "Cancel"}));
  logic([] { DIALOG.OK.Enabled(false), DIALOG.Cancel.Visible(false); });
  key(QEvent::KeyPress, w, Qt::Key_Return, "\r");
  key(QEvent::KeyPress, w, Qt::Key_Escape, "\x1b");
  EXPECT_EQ(taken(), Said{}) << "of one that is off, nothing";
}

TEST_F(Windows, EscapeClosesAWindowThatSaysSo) {
  QWidget* w = shown(DIALOG);
  logic([] {
    DIALOG.escape_closes = true;
    DIALOG.Cancel.Visible(false);
  });
  key(QEvent::KeyPress, w, Qt::Key_Escape, "\x1b");
  EXPECT_FALSE(DIALOG.Loaded());
  DIALOG.escape_closes = false;
}

TEST_F(Windows, UncoveringAsksForThePicturesThatAreNotKept) {
  QWidget* w = shown(P);
  QExposeEvent expose(QRegion(0, 0, 10, 10));
  QCoreApplication::sendEvent(w->windowHandle(), &expose);
  settle();
  EXPECT_EQ(taken(), Said{});
  logic([] { P.DRAW.AutoRedraw(false); });
  QCoreApplication::sendEvent(w->windowHandle(), &expose);
  settle();
  EXPECT_EQ(taken(), Said{"paint"});
}

TEST_F(Windows, RefreshPaintsBeforeItReturns) {
  shown(P);
  logic([] {
    P.DRAW.BackColor(QBColor(12));
    P.Refresh();
    EXPECT_EQ(qt::widget_of(P)->grab().toImage().pixelColor(10, 10), QColor(255, 0, 0));
  });
}

TEST_F(Windows, NumbersOfTheScreen) {
  EXPECT_GT(desktop_->screen_w, 0);
  EXPECT_GT(desktop_->screen_h, 0);
  EXPECT_EQ(desktop_->depth, 32);
}

}  // namespace
}  // namespace kiso_test
