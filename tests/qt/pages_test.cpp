// A dialog of pages on top of one another, worked by the keyboard.
#include <QRadioButton>

#include "display.h"

namespace kiso_test {
namespace {

struct PagedWindow : Window {
  PagedWindow();
  CommandButton Command1{*this, "Command1"};
  ControlArray<PictureBox, 2> Picture1{*this, "Picture1"};
  Frame Frame1{*this, "Frame1"};
  OptionButton Option1{*this, "Option1"}, Option2{*this, "Option2"}, Option3{*this, "Option3"};
  CheckBox Check1{*this, "Check1"}, Check2{*this, "Check2"};
  CommandButton OK{*this, "OK"}, Cancel{*this, "Cancel"};
};
PagedWindow PAGED;

PagedWindow::PagedWindow()
    : Window("PAGED", Border::dialog, Scale::pixels, [] {
        PAGED.design(0, 0, 200, 200);
        PAGED.Command1.design(0, 0, 60, 20);
        for (int i = 0; i < 2; ++i) PAGED.Picture1(i).design(0, 30, 200, 140);
        PAGED.Frame1.design(0, 0, 200, 80, &PAGED.Picture1(0));
        PAGED.Option1.design(10, 10, 100, 20, &PAGED.Frame1);
        PAGED.Option2.design(10, 30, 100, 20, &PAGED.Frame1);
        PAGED.Option3.design(10, 50, 100, 20, &PAGED.Frame1);
        PAGED.Check1.design(0, 90, 100, 20, &PAGED.Picture1(0));
        PAGED.Check2.design(0, 90, 100, 20, &PAGED.Picture1(1));
        PAGED.OK.design(0, 175, 60, 20);
        PAGED.Cancel.design(80, 175, 60, 20);
        PAGED.OK.is_default = true;
        PAGED.Cancel.is_cancel = true;
      }) {
  for (OptionButton* o : {&Option1, &Option2, &Option3}) o->Click = [] { say("option"); };
  OK.Click = [] { say("OK"); };
  Cancel.Click = [] { say("Cancel"); };
}

class Pages : public Display {
 protected:
  Pages() {
    logic([] {
      PAGED.Option2.Value(1);
      PAGED.Picture1(0).ToFront();
      PAGED.Show();
    });
    settle();
    taken();
  }
  static const Control* focused() {
    for (const Control* c : PAGED.controls()) {
      if (widget(*c) && widget(*c)->hasFocus()) return c;
    }
    return nullptr;
  }
  // A key pressed where the keyboard is.
  static void type(int code) {
    QWidget* to = widget(*focused());
    ASSERT_NE(to, nullptr);
    key(QEvent::KeyPress, to, code);
  }
  static std::vector<std::string> round(int code) {
    std::vector<std::string> names;
    logic([] { PAGED.Command1.SetFocus(); });
    do {
      type(code);
      names.emplace_back(focused()->name);
    } while (focused() != &PAGED.Command1 && names.size() < 20);
    return names;
  }
};

TEST_F(Pages, TabGoesInTheOrderOfDeclarationAndPassesThePageBehind) {
  EXPECT_EQ(round(Qt::Key_Tab), (Said{"Option2", "Check1", "OK", "Cancel", "Command1"}));
  EXPECT_EQ(round(Qt::Key_Backtab), (Said{"Cancel", "OK", "Check1", "Option2", "Command1"}));
}

TEST_F(Pages, TabFollowsThePageThatComesToTheFront) {
  logic([] { PAGED.Picture1(1).ToFront(); });
  EXPECT_EQ(round(Qt::Key_Tab), (Said{"Check2", "OK", "Cancel", "Command1"}));
}

TEST_F(Pages, TabPassesWhatIsNotEnabled) {
  logic([] {
    PAGED.Check1.Enabled(false);
    PAGED.OK.Enabled(false);
  });
  EXPECT_EQ(round(Qt::Key_Tab), (Said{"Option2", "Cancel", "Command1"}));
}

TEST_F(Pages, AGroupWithNothingOnIsEnteredAtItsFirstOption) {
  logic([] { PAGED.Option2.Value(0); });
  EXPECT_EQ(round(Qt::Key_Tab)[0], "Option1");
}

TEST_F(Pages, ArrowsTurnOnTheNextOptionOfTheGroup) {
  logic([] { PAGED.Option2.SetFocus(); });
  type(Qt::Key_Down);
  EXPECT_EQ(PAGED.Option3.Value(), 1);
  EXPECT_EQ(focused(), &PAGED.Option3);
  EXPECT_TRUE(as<QRadioButton>(PAGED.Option3)->isChecked());
  EXPECT_FALSE(as<QRadioButton>(PAGED.Option2)->isChecked());
  type(Qt::Key_Right);
  EXPECT_EQ(PAGED.Option1.Value(), 1);
  type(Qt::Key_Up);
  EXPECT_EQ(PAGED.Option3.Value(), 1);
  EXPECT_EQ(taken(), (Said{"option", "option", "option"}));
}

TEST_F(Pages, ArrowsPassAnOptionThatIsNotEnabled) {
  logic([] {
    PAGED.Option3.Enabled(false);
    PAGED.Option2.SetFocus();
  });
  type(Qt::Key_Down);
  EXPECT_EQ(PAGED.Option1.Value(), 1);
}

TEST_F(Pages, AKeyThatNobodyTakesEnds) {
  logic([] { PAGED.Option2.SetFocus(); });
  type(Qt::Key_X);
  key(QEvent::KeyRelease, widget(PAGED.Option2), Qt::Key_Down);
  EXPECT_EQ(taken(), Said{});
}

TEST_F(Pages, EnterAndEscapeOnAPageReachOkAndCancel) {
  logic([] { PAGED.Option2.SetFocus(); });
  type(Qt::Key_Return);
  type(Qt::Key_Escape);
  EXPECT_EQ(taken(), (Said{"OK", "Cancel"}));
}

}  // namespace
}  // namespace kiso_test
