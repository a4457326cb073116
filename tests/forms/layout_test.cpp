// Dialogs by rows and columns, measured with the letters of a display that nobody looks at: 6 pixels a byte, 12 high.
#include "platform/forms/layout.h"

#include <gtest/gtest.h>

#include "platform/error.h"
#include "platform/forms/runtime.h"

namespace forms {
namespace {

struct Dialog : Window {
  Dialog() : Window("D", Border::dialog, Scale::pixels, [] {}) {}
  Frame Frame1{*this, "Frame1"};
  OptionButton A{*this, "A"}, B{*this, "B"}, C{*this, "C"}, D{*this, "D"};
  Label Label1{*this, "Label1"};
  ListBox List1{*this, "List1"};
  CommandButton OK{*this, "OK"}, CANCEL{*this, "CANCEL"};
};

struct Layout : testing::Test {
  Dialog d;
};

TEST_F(Layout, ColumnsStandUnderEachOtherAndAreAsWideAsTheirWidestText) {
  d.A.Caption("1");
  d.B.Caption("22");
  d.C.Caption("333333");
  d.D.Caption("4");
  const Cell cells[] = {{&d.A, nullptr}, {&d.B, nullptr, true}, {&d.C, nullptr}, {&d.D, nullptr, true}};
  arrange(cells, nullptr, 0, needed_width(cells, nullptr));
  EXPECT_DOUBLE_EQ(d.A.Left(), d.C.Left());
  EXPECT_DOUBLE_EQ(d.B.Left(), d.D.Left());
  EXPECT_DOUBLE_EQ(d.A.Width(), d.C.Width());
  EXPECT_GE(d.C.Width(), 6 * 6);
  EXPECT_GE(d.B.Left(), d.C.Left() + d.C.Width());
  EXPECT_GE(d.C.Top(), d.A.Top() + d.A.Height());
  EXPECT_DOUBLE_EQ(d.A.Top(), d.B.Top());
}

TEST_F(Layout, AWindowIsAsWideAsWhatItHoldsAndItsEdges) {
  d.A.Caption("a long caption of an option");
  const Cell cells[] = {{&d.A, nullptr}};
  const int width = needed_width(cells, nullptr);
  arrange(cells, nullptr, EDGE, width);
  EXPECT_DOUBLE_EQ(d.A.Left(), EDGE);
  EXPECT_DOUBLE_EQ(d.A.Left() + d.A.Width(), width - EDGE);
}

TEST_F(Layout, AFrameIsAsHighAsItsRowsAndTakesTheWidth) {
  d.Frame1.Caption("frame");
  d.A.Caption("a");
  d.B.Caption("b");
  const Cell cells[] = {{&d.Frame1, nullptr}, {&d.A, &d.Frame1}, {&d.B, &d.Frame1}};
  const int height = arrange(cells, nullptr, EDGE, 300);
  EXPECT_DOUBLE_EQ(d.Frame1.Width(), 300 - 2 * EDGE);
  EXPECT_GT(d.A.Top(), 12) << "below the title";
  EXPECT_GT(d.Frame1.Height(), d.B.Top() + d.B.Height());
  EXPECT_DOUBLE_EQ(height, d.Frame1.Top() + d.Frame1.Height() + EDGE);
}

TEST_F(Layout, ALongLabelTakesSeveralLinesAndTheNextRowMakesRoom) {
  d.Label1.Caption(std::string(100, 'x'));  // 600 pixels
  d.A.Caption("a");
  const Cell cells[] = {{&d.Label1, nullptr}, {&d.A, nullptr}};
  arrange(cells, nullptr, EDGE, 200 + 2 * EDGE);
  EXPECT_DOUBLE_EQ(d.Label1.Height(), 3 * 12);
  EXPECT_GE(d.A.Top(), d.Label1.Top() + 3 * 12);
}

TEST_F(Layout, TheLinesOfALabelAreEven) {
  d.Label1.Caption(std::string(67, 'x'));  // 402 pixels: two lines of 201 at least
  const Cell cells[] = {{&d.Label1, nullptr}};
  arrange(cells, nullptr, EDGE, 300 + 2 * EDGE);
  EXPECT_DOUBLE_EQ(d.Label1.Width(), 201);
  EXPECT_DOUBLE_EQ(d.Label1.Height(), 2 * 12);
}

TEST_F(Layout, AListHasRoomForItsLines) {
  const Cell cells[] = {{&d.List1, nullptr, false, 5}};
  arrange(cells, nullptr, EDGE, 300);
  EXPECT_GE(d.List1.Height(), 5 * 12);
  EXPECT_DOUBLE_EQ(d.List1.Width(), 300 - 2 * EDGE);
}

TEST_F(Layout, ButtonsEndAtTheRightAndAreEquallyWide) {
  d.OK.Caption("OK");
  d.CANCEL.Caption("a caption wider than others");
  CommandButton* const buttons[] = {&d.OK, &d.CANCEL};
  arrange_buttons(buttons, 50, 400);
  EXPECT_DOUBLE_EQ(d.CANCEL.Left() + d.CANCEL.Width(), 400);
  EXPECT_DOUBLE_EQ(d.OK.Width(), d.CANCEL.Width());
  EXPECT_GE(d.CANCEL.Width(), 27 * 6);
  EXPECT_DOUBLE_EQ(d.OK.Left() + d.OK.Width() + BETWEEN, d.CANCEL.Left());
  EXPECT_DOUBLE_EQ(d.OK.Top(), 50);
}

struct SelfUnloading : Window {
  SelfUnloading();
};
SelfUnloading SHY;
SelfUnloading::SelfUnloading() : Window("SHY", Border::dialog, Scale::pixels, [] { SHY.design(0, 0, 10, 10); }) {
  Form_Load = [] { SHY.Unload(); };
}

TEST(Loading, AWindowThatUnloadsItselfMeanwhileIsNotShown) {
  int error = 0;
  try {
    SHY.Show();
  } catch (const RuntimeError& e) {
    error = e.number;
  }
  EXPECT_EQ(error, 364);
  EXPECT_FALSE(SHY.Loaded() || SHY.is_visible());
}

}  // namespace
}  // namespace forms
