#include "platform/qt/pointer.h"

#include <QWheelEvent>

#include "qt/display.h"

namespace kiso_test {

namespace {

class Pointer : public Display {
 protected:
  Pointer() {
    logic([] { P.Show(); });
    settle();
    taken();
  }
  static void wheel(int dx, int dy) {
    QWheelEvent event({5, 5}, {5, 5}, {}, {dx, dy}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget(P.DRAW), &event);
  }
};

TEST_F(Pointer, PressMoveReleaseAndClick) {
  press(P.DRAW, 10, 20);
  move(P.DRAW, 11.5, 20.25, Qt::LeftButton);  // a pixel of a display of scale 2, a tablet
  release(P.DRAW, 12, 21);
  EXPECT_EQ(taken(), (Said{"down 1 0 10 20", "move 1 0 11 20", "up 1 0 12 21", "click"}));
}

TEST_F(Pointer, ButtonsAndShiftStateHaveThePlatformsNumbers) {
  mouse(QEvent::MouseButtonPress, P.DRAW, 1, 1, Qt::RightButton, Qt::RightButton, Qt::ShiftModifier);
  mouse(QEvent::MouseButtonRelease, P.DRAW, 1, 1, Qt::RightButton, Qt::NoButton, Qt::ControlModifier);
  mouse(QEvent::MouseButtonPress, P.DRAW, 1, 1, Qt::MiddleButton, Qt::MiddleButton, Qt::AltModifier);
  mouse(QEvent::MouseButtonRelease, P.DRAW, 1, 1, Qt::MiddleButton, Qt::NoButton);
  EXPECT_EQ(taken(), (Said{"down 2 1 1 1", "up 2 2 1 1", "click", "down 4 4 1 1", "up 4 0 1 1"}));
}

TEST_F(Pointer, MoveCarriesTheSumOfTheButtonsHeld) {
  move(P.DRAW, 1, 1, Qt::LeftButton | Qt::RightButton | Qt::MiddleButton);
  move(P.DRAW, 2, 2);
  EXPECT_EQ(taken(), (Said{"move 7 0 1 1", "move 0 0 2 2"}));
}

TEST_F(Pointer, ReleaseOutsideIsNoClick) {
  press(P.DRAW, 10, 20);
  release(P.DRAW, 210, 20);
  EXPECT_EQ(taken(), (Said{"down 1 0 10 20", "up 1 0 210 20"}));
}

TEST_F(Pointer, SecondPressOfADoubleClickIsNoPress) {
  press(P.DRAW, 10, 20);
  release(P.DRAW, 10, 20);
  second_press(P.DRAW, 11, 20);
  release(P.DRAW, 11, 20);
  EXPECT_EQ(taken(), (Said{"down 1 0 10 20", "up 1 0 10 20", "click", "double", "up 1 0 11 20"}));
}

TEST_F(Pointer, ButtonsClickedFastHaveEveryClick) {
  logic([] { TOOL.Show(&P); });
  taken();
  press(TOOL.CMD_B(1), 5, 5);
  release(TOOL.CMD_B(1), 5, 5);
  second_press(TOOL.CMD_B(1), 5, 5);
  release(TOOL.CMD_B(1), 5, 5);
  EXPECT_EQ(taken(), (Said{"CMD_B 1", "CMD_B 1"}));
}

TEST_F(Pointer, SecondPressIsAPressWhereThePictureSaysSo) {
  P.DRAW.second_press_is_press = [] { return true; };
  logic([] { P.Unload(); });
  logic([] { P.Show(); });
  taken();
  press(P.DRAW, 10, 20);
  release(P.DRAW, 10, 20);
  second_press(P.DRAW, 10, 20);
  release(P.DRAW, 10, 20);
  EXPECT_EQ(taken(), (Said{"down 1 0 10 20", "up 1 0 10 20", "click", "down 1 0 10 20", "up 1 0 10 20", "click"}));
}

TEST_F(Pointer, TwoQuickDotsThreePixelsApartAreTwoPresses) {
  press(P.DRAW, 10, 20);
  release(P.DRAW, 10, 20);
  second_press(P.DRAW, 13, 20);
  EXPECT_EQ(said.back(), "down 1 0 13 20");
}

TEST_F(Pointer, DisabledPictureLetsThePointerThrough) {
  logic([] { P.DRAW.Enabled(false); });
  press(P.DRAW, 10, 20, Qt::RightButton);
  EXPECT_EQ(taken(), (Said{"DMY down 2"}));
}

TEST_F(Pointer, OverlayThatIsDisabledLetsThePointerThrough) {
  logic([] { P.WORK.Visible(true); });
  press(P.WORK, 3, 4);
  EXPECT_EQ(taken(), (Said{"down 1 0 13 14"}));
}

TEST_F(Pointer, WheelTurnsByWholeStepsSavedUp) {
  wheel(0, 120);
  wheel(0, -240);
  for (int i = 0; i < 3; ++i) wheel(0, -40);
  wheel(-120, 0);
  EXPECT_EQ(taken(), (Said{"wheel 0 -1", "wheel 0 2", "wheel 0 1", "wheel 1 0"}));
}

TEST_F(Pointer, KeypadMovesByOnePixelAndPressesWhereThePointerIs) {
  move(P.DRAW, 30, 40);
  taken();
  desktop_->pointer_move(1, -1);
  EXPECT_EQ(taken(), Said{}) << "the event of the key still runs";
  settle();
  EXPECT_EQ(taken(), (Said{"move 0 0 31 39"}));
  desktop_->pointer_button(true);
  settle();
  desktop_->pointer_button(true);
  settle();
  desktop_->pointer_move(0, 1);
  settle();
  desktop_->pointer_button(false);
  settle();
  EXPECT_EQ(taken(), (Said{"down 1 0 31 39", "move 1 0 31 40", "up 1 0 31 40", "click"}));
}

TEST_F(Pointer, MouseMovesWithTheButtonThatTheKeypadHolds) {
  move(P.DRAW, 30, 40);
  desktop_->pointer_button(true);
  settle();
  taken();
  move(P.DRAW, 33, 40);
  press(P.DRAW, 33, 40);
  release(P.DRAW, 33, 40);
  EXPECT_EQ(taken(), (Said{"move 1 0 33 40"})) << "the mouse's own left button adds nothing";
  desktop_->pointer_button(false);
  settle();
  EXPECT_EQ(taken(), (Said{"up 1 0 33 40", "click"}));
}

TEST_F(Pointer, KeypadLetsGoWhenThePictureLosesTheKeyboard) {
  move(P.DRAW, 30, 40);
  desktop_->pointer_button(true);
  settle();
  taken();
  widget(P.DMY)->setFocus();
  settle();
  EXPECT_EQ(taken(), (Said{"up 1 0 30 40", "click"}));
}

TEST_F(Pointer, KeypadStartsInTheMiddleWhereThePointerIsNotOverTheWindow) {
  logic([] { TOOL.Show(&P); });
  settle();
  move(TOOL.CMD_B(0), 3, 3);
  key(QEvent::KeyPress, qt::widget_of(TOOL), Qt::Key_A, "a");
  taken();
  desktop_->pointer_move(1, 0);
  settle();
  EXPECT_EQ(taken(), Said{"move 0 0 100 49"});
}

TEST_F(Pointer, ClickOnAPaletteButton) {
  logic([] { TOOL.Show(&P); });
  settle();
  taken();
  press(TOOL.CMD_B(1), 5, 5);
  release(TOOL.CMD_B(1), 5, 5);
  press(TOOL.CMD_B(0), 5, 5, Qt::RightButton);
  release(TOOL.CMD_B(0), 5, 5, Qt::RightButton);
  EXPECT_EQ(taken(), (Said{"CMD_B 1", "CMD_B 0"}));
}

TEST_F(Pointer, DisabledWindowHearsNothing) {
  logic([] { P.Enabled(false); });
  press(P.DRAW, 10, 20);
  EXPECT_EQ(taken(), Said{});
}

}  // namespace
}  // namespace kiso_test
