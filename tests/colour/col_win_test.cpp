// The colour window: its colour boxes, the matrix of pure colours, the bars that follow each other.
#include "colour/colour.h"
#include "colour/colour_test.h"

namespace kiso {
namespace {

struct ColourWindow : ColourTest {};

// --- what is seen

// Letters twice as large as a display without fonts has them.
struct LargeLetters : QuietDesktop {
  void text_size(const std::string& text, const Font& font, int wrap, int& width, int& height) override {
    QuietDesktop::text_size(text, font, wrap, width, height);
    width *= 2;
  }
};

TEST_F(ColourWindow, TheNumbersOfTheBarsHaveRoomForTheirWidestValue) {
  LargeLetters large;
  for (Desktop* letters : {static_cast<Desktop*>(&screen), static_cast<Desktop*>(&large)}) {
    COL_WIN.Unload();
    use_desktop(letters);
    COL_WIN.Show();
    const struct {
      Label& value;
      ScrollBar& bar;
      const char* widest;
    } rows[] = {{COL_WIN.R_VAL, COL_WIN.R_BAR, " 255"}, {COL_WIN.G_VAL, COL_WIN.G_BAR, " 255"},
                {COL_WIN.B_VAL, COL_WIN.B_BAR, " 255"}, {COL_WIN.H_VAL, COL_WIN.H_BAR, "360"},
                {COL_WIN.S_VAL, COL_WIN.S_BAR, "255"},  {COL_WIN.V_VAL, COL_WIN.V_BAR, "255"}};
    for (const auto& row : rows) {
      int width = 0;
      int height = 0;
      letters->text_size(row.widest, Font{}, 0, width, height);
      EXPECT_GE(row.value.Width() / TWIPS, width) << row.value.name;
      EXPECT_GE(row.value.Left(), row.bar.Left() + row.bar.Width()) << row.value.name;
      EXPECT_LE(row.value.Left() + row.value.Width(), COL_WIN.CSEL_BASE(1).ScaleWidth()) << row.value.name;
    }
  }
}

TEST_F(ColourWindow, TheButtonOfTheOpenPaneLooksHeld) {
  CommandButton* const buttons[] = {&COL_WIN.Command1, &COL_WIN.Command2, &COL_WIN.Command3};
  for (const int pane : {2, 1, 0, 2}) {
    click(*buttons[pane]);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(buttons[i]->held(), i == pane) << pane;
  }
  COL_WIN.Unload();
  COL_WIN.Show();
  EXPECT_TRUE(COL_WIN.Command3.held()) << "the pane that was open opens again";
}

// --- the colour boxes and the pick tool

TEST_F(ColourWindow, ASecondClickOnTheSelectedColourTogglesThePickTool) {
  CUR_TOOL = 5;
  EXPECT_EQ(COL_WIN.TAR_SEL.FillColor(), QBColor(11));
  click(COL_WIN.TAR_COL);
  EXPECT_EQ(CUR_TOOL, 1000);
  EXPECT_EQ(PREV_TOOL, 5);
  EXPECT_EQ(COL_WIN.TAR_SEL.FillColor(), QBColor(12));
  EXPECT_EQ(COL_WIN.DES_SEL.FillColor(), FACE);
  click(COL_WIN.TAR_COL);
  EXPECT_EQ(CUR_TOOL, 5);
  EXPECT_EQ(COL_WIN.TAR_SEL.FillColor(), QBColor(11));
}

TEST_F(ColourWindow, OneClickOnTheOtherColourLeavesThePickToolAndSelects) {
  CUR_TOOL = 5;
  set_destination(10, 20, 30);
  click(COL_WIN.TAR_COL);
  click(COL_WIN.DES_COL);
  EXPECT_EQ(CUR_TOOL, 5);
  EXPECT_EQ(COL_TARGET, 1);
  EXPECT_EQ(working(), (Three{10, 20, 30}));
  EXPECT_EQ(COL_WIN.DES_SEL.FillColor(), QBColor(11));
  EXPECT_EQ(COL_WIN.TAR_SEL.FillColor(), FACE);
}

TEST_F(ColourWindow, TheDestinationColourTogglesThePickToolToo) {
  CUR_TOOL = 7;
  click(COL_WIN.DES_COL);
  EXPECT_EQ(CUR_TOOL, 7);
  click(COL_WIN.DES_COL);
  EXPECT_EQ(CUR_TOOL, 1000);
  EXPECT_EQ(COL_WIN.DES_SEL.FillColor(), QBColor(12));
  click(COL_WIN.TAR_COL);
  EXPECT_EQ(CUR_TOOL, 7);
  EXPECT_EQ(COL_TARGET, 0);
}

TEST_F(ColourWindow, TheToolToComeBackToIsNeverThePickTool) {
  CUR_TOOL = 8;
  click(COL_WIN.TAR_COL);
  click(COL_WIN.DES_COL);
  click(COL_WIN.DES_COL);
  EXPECT_EQ(CUR_TOOL, 1000);
  EXPECT_EQ(PREV_TOOL, 8);
  click(COL_WIN.DES_COL);
  EXPECT_EQ(CUR_TOOL, 8);
}

TEST_F(ColourWindow, SelectingAColourShowsItOnLevelBarsAndOpenBars) {
  set_destination(255, 0, 128);
  click(COL_WIN.Command2);
  click(COL_WIN.DES_COL);
  EXPECT_EQ(rgb_bars(), (Three{255, 0, 128}));
  EXPECT_EQ(GetPixel(COL_WIN.COL_RGB, to_int32(COL_WIN.COL_RGB.ScaleWidth()) - 1, 0), QBColor(12));
  click(COL_WIN.TAR_COL);
  EXPECT_EQ(rgb_bars(), (Three{0, 0, 0}));
}

// --- the panes

TEST_F(ColourWindow, OnePaneIsOpen) {
  const auto open = [](int pane) {
    for (int i = 0; i < 3; ++i) EXPECT_EQ(COL_WIN.CSEL_BASE(i).Visible(), i == pane) << i;
    EXPECT_EQ(COL_PANE, pane);
  };
  open(0);
  click(COL_WIN.Command3);
  open(2);
  click(COL_WIN.Command3);
  open(2);
  click(COL_WIN.Command2);
  open(1);
  click(COL_WIN.Command1);
  open(0);
}

// The settings may be read when the window is already there.
TEST_F(ColourWindow, APaneFromTheSettingsShows) {
  COL_PANE = 2;
  col_win::show_pane();
  EXPECT_FALSE(COL_WIN.CSEL_BASE(0).Visible());
  EXPECT_TRUE(COL_WIN.CSEL_BASE(2).Visible());
  CUR_G = 40;
  COL_PANE = 1;
  col_win::show_pane();
  EXPECT_FALSE(COL_WIN.CSEL_BASE(2).Visible());
  EXPECT_EQ(rgb_bars(), (Three{0, 40, 0}));
}

TEST_F(ColourWindow, TheBarsShowTheColourWhenTheirPaneOpens) {
  set_target(255, 128, 128);
  click(COL_WIN.Command2);
  EXPECT_EQ(rgb_bars(), (Three{255, 128, 128}));
  EXPECT_EQ(hsv_bars(), (Three{0, 127, 255}));
  EXPECT_EQ(target(), (Three{255, 128, 128}));
}

// --- the matrix

TEST_F(ColourWindow, SquaresSetTheirColour) {
  const Three colours[] = {{0, 0, 255},   {255, 0, 0},   {255, 0, 255},   {0, 255, 0},
                           {0, 255, 255}, {255, 255, 0}, {255, 255, 255}, {0, 0, 0}};
  for (int i = 0; i < 8; ++i) {
    set_target(9, 9, 9);
    click(COL_WIN.C_BUT, i);
    EXPECT_EQ(target(), colours[i]) << i;
    EXPECT_EQ(destination(), (Three{255, 255, 255}));
  }
}

TEST_F(ColourWindow, PlusAndMinusMoveTowardTheRowsColour) {
  const Three plus[] = {{0, 0, 1}, {1, 0, 0}, {1, 0, 1}, {0, 1, 0}, {0, 1, 1}, {1, 1, 0}, {1, 1, 1}};
  const Three minus[] = {{1, 1, 0}, {0, 1, 1}, {0, 1, 0}, {1, 0, 1}, {1, 0, 0}, {0, 0, 1}, {1, 1, 1}};
  const auto after = [](const Three& which, int step) {
    return Three{100 + step * which.a, 110 + step * which.b, 120 + step * which.c};
  };
  for (int i = 0; i < 7; ++i) {
    set_target(100, 110, 120);
    click(COL_WIN.P_BUT, i);
    EXPECT_EQ(target(), after(plus[i], 1)) << i;
    set_target(100, 110, 120);
    click(COL_WIN.PP_BUT, i);
    EXPECT_EQ(target(), after(plus[i], 16)) << i;
    set_target(100, 110, 120);
    click(COL_WIN.M_BUT, i);
    EXPECT_EQ(target(), after(minus[i], -1)) << i;
    set_target(100, 110, 120);
    click(COL_WIN.MM_BUT, i);
    EXPECT_EQ(target(), after(minus[i], -16)) << i;
  }
}

TEST_F(ColourWindow, StepsStopAtTheEndsOfTheRange) {
  set_target(200, 10, 30);
  click(COL_WIN.MM_BUT, 2);
  EXPECT_EQ(target(), (Three{200, 0, 30}));
  set_target(250, 250, 7);
  click(COL_WIN.PP_BUT, 5);
  EXPECT_EQ(target(), (Three{255, 255, 7}));
}

TEST_F(ColourWindow, StepsBeginAtTheSelectedColour) {
  COL_TARGET = 1;
  set_destination(50, 60, 70);
  CUR_R = CUR_G = CUR_B = 0;
  click(COL_WIN.P_BUT, 1);
  EXPECT_EQ(destination(), (Three{51, 60, 70}));
}

TEST_F(ColourWindow, EveryButtonOfTheMatrixLeavesThePickTool) {
  const auto leaves = [](auto& buttons) {
    CUR_TOOL = 1000;
    PREV_TOOL = 3;
    click(buttons, 0);
    EXPECT_EQ(CUR_TOOL, 3);
  };
  leaves(COL_WIN.C_BUT);
  leaves(COL_WIN.P_BUT);
  leaves(COL_WIN.PP_BUT);
  leaves(COL_WIN.M_BUT);
  leaves(COL_WIN.MM_BUT);
}

TEST_F(ColourWindow, AHeldButtonLooksPressed) {
  ImageBox& button = COL_WIN.MM_BUT(3);
  const int raised = button.cell_y();
  button.MouseDown.fire(3, 1, 0, 4, 4);
  EXPECT_EQ(button.cell_y(), raised + 16);
  EXPECT_EQ(button.cell_x(), 3 * 16);
  button.MouseUp.fire(3, 1, 0, 4, 4);
  EXPECT_EQ(button.cell_y(), raised);
}

// --- the bars

struct Bars : ColourTest {
  Bars() { click(COL_WIN.Command2); }
};

TEST_F(Bars, HaveTheirRanges) {
  for (ScrollBar* bar :
       {&COL_WIN.R_BAR, &COL_WIN.G_BAR, &COL_WIN.B_BAR, &COL_WIN.H_BAR, &COL_WIN.S_BAR, &COL_WIN.V_BAR}) {
    EXPECT_EQ(bar->Min(), 0) << bar->name;
    EXPECT_EQ(bar->Max(), bar == &COL_WIN.H_BAR ? 360 : 255) << bar->name;
    EXPECT_EQ(bar->SmallChange(), 1) << bar->name;
    EXPECT_EQ(bar->LargeChange(), 16) << bar->name;
  }
}

TEST_F(Bars, HsvFollowsRgb) {
  COL_WIN.R_BAR.Value(255);
  EXPECT_EQ(hsv_bars(), (Three{0, 255, 255}));
  COL_WIN.G_BAR.Value(128);
  COL_WIN.B_BAR.Value(128);
  EXPECT_EQ(hsv_bars(), (Three{0, 127, 255}));
  EXPECT_EQ(target(), (Three{255, 128, 128}));
}

TEST_F(Bars, RgbFollowsHsv) {
  COL_WIN.V_BAR.Value(255);
  EXPECT_EQ(target(), (Three{255, 255, 255}));
  COL_WIN.S_BAR.Value(255);
  EXPECT_EQ(target(), (Three{255, 0, 0}));
  COL_WIN.H_BAR.Value(120);
  EXPECT_EQ(target(), (Three{0, 255, 0}));
  EXPECT_EQ(rgb_bars(), (Three{0, 255, 0}));
  EXPECT_EQ(COL_WIN.TAR_COL.BackColor(), RGB(0, 255, 0));
  EXPECT_EQ(COL_PANE, 1);
}

TEST_F(Bars, KeepWhatTheUserSetThoughTheColourIsBlack) {
  set_target(0, 0, 255);
  click(COL_WIN.Command1);
  click(COL_WIN.Command2);
  COL_WIN.V_BAR.Value(0);
  EXPECT_EQ(target(), (Three{0, 0, 0}));
  EXPECT_EQ(hsv_bars(), (Three{240, 255, 0}));
  COL_WIN.V_BAR.Value(255);
  EXPECT_EQ(target(), (Three{0, 0, 255}));
}

TEST_F(Bars, AFullTurnIsRedAndStaysAFullTurn) {
  COL_WIN.V_BAR.Value(255);
  COL_WIN.S_BAR.Value(255);
  COL_WIN.H_BAR.Value(360);
  EXPECT_EQ(target(), (Three{255, 0, 0}));
  EXPECT_EQ(COL_WIN.H_BAR.Value(), 360);
  COL_WIN.H_BAR.Value(0);
  EXPECT_EQ(target(), (Three{255, 0, 0}));
  EXPECT_EQ(COL_WIN.H_BAR.Value(), 0);
}

TEST_F(Bars, LabelsShowTheValueRgbWithABlankInFront) {
  EXPECT_EQ(COL_WIN.R_VAL.Caption(), " 0");
  EXPECT_EQ(COL_WIN.H_VAL.Caption(), "0");
  COL_WIN.R_BAR.Value(128);
  EXPECT_EQ(COL_WIN.R_VAL.Caption(), " 128");
  EXPECT_EQ(COL_WIN.V_VAL.Caption(), "128");
  COL_WIN.H_BAR.Value(90);
  EXPECT_EQ(COL_WIN.H_VAL.Caption(), "90");
  EXPECT_EQ(COL_WIN.G_VAL.Caption(), " 128");
}

TEST_F(Bars, AMoveByHandLeavesThePickTool) {
  for (ScrollBar* bar :
       {&COL_WIN.R_BAR, &COL_WIN.G_BAR, &COL_WIN.B_BAR, &COL_WIN.H_BAR, &COL_WIN.S_BAR, &COL_WIN.V_BAR}) {
    CUR_TOOL = 1000;
    PREV_TOOL = 4;
    bar->Value(bar->Value() == 77 ? 78 : 77);
    EXPECT_EQ(CUR_TOOL, 4) << bar->name;
  }
}

TEST_F(Bars, AColourFromThePictureMovesThemAndKeepsThePickTool) {
  CUR_TOOL = 1000;
  PREV_TOOL = 4;
  CUR_R = 0, CUR_G = 255, CUR_B = 255;
  COL_UPDATE();
  EXPECT_EQ(rgb_bars(), (Three{0, 255, 255}));
  EXPECT_EQ(hsv_bars(), (Three{180, 255, 255}));
  EXPECT_EQ(CUR_TOOL, 1000);
}

// --- its place

TEST_F(ColourWindow, ComesBackToItsPlaceAndPane) {
  COL_WIN.Move(1500, 3000);
  COL_WIN.Unload();
  EXPECT_EQ(COL_LEFT, 1500);
  EXPECT_EQ(COL_TOP, 3000);
  COL_PANE = 2;
  DICT_CUR = 4;
  DICT_WRITE = 1;
  COL_RGB_LOCK = COL_HSV_LOCK = 1;
  COL_WIN.Load();
  EXPECT_EQ(COL_WIN.Left(), 1500);
  EXPECT_EQ(COL_WIN.Top(), 3000);
  EXPECT_EQ(COL_WIN.Caption(), "Kiso ");
  EXPECT_FALSE(COL_WIN.CSEL_BASE(0).Visible());
  EXPECT_TRUE(COL_WIN.CSEL_BASE(2).Visible());
  EXPECT_EQ(DICT_CUR, 0);
  EXPECT_EQ(DICT_WRITE, 0);
  EXPECT_EQ(COL_RGB_LOCK, 0);
  EXPECT_EQ(COL_HSV_LOCK, 0);
}

TEST_F(ColourWindow, AWindowThatWasClosedComesBackWithItsColours) {
  CUR_TOOL = 6;
  click(COL_WIN.Command2);
  click(COL_WIN.DES_COL);
  COL_WIN.B_BAR.Value(0);
  click(COL_WIN.DES_COL);
  COL_WIN.Unload();
  EXPECT_EQ(COL_WIN.DES_COL.BackColor(), RGB(255, 255, 0));
  EXPECT_EQ(COL_WIN.DES_SEL.FillColor(), QBColor(12));
  EXPECT_EQ(COL_WIN.TAR_SEL.FillColor(), FACE);
  EXPECT_EQ(GetPixel(COL_WIN.COL_RGB, 0, 0), QBColor(12));
  EXPECT_EQ(rgb_bars(), (Three{255, 255, 0}));
  EXPECT_EQ(hsv_bars(), (Three{60, 255, 255}));
}

TEST_F(ColourWindow, ItsPlaceIsStoredInWholeTwips) {
  COL_WIN.Move(100.5, 101.5);
  COL_WIN.Unload();
  EXPECT_EQ(COL_LEFT, 100);
  EXPECT_EQ(COL_TOP, 102);
}

}  // namespace
}  // namespace kiso
