// The windows of the tools' numbers: what opens and closes them, what their bars and buttons set.
#include "palette/param_win.h"
#include "colour/colour_test.h"
#include "palette/cmd_win.h"
#include "palette/palette.h"
#include "palette/palette_table.h"
#include "tools/wiring.h"

namespace kiso {
namespace {

struct ParamWindows : ColourTest {
  ParamWindows() {
    wire_palette();
    wire_tools();
  }
  static void choose(int16_t tool) {
    CUR_TOOL = tool;
    TOOL_CHANGED();
  }
  // What a right click on the button of that tool opens.
  static Param right_click(int tool) {
    for (const PalButton& b : palette_buttons()) {
      if (b.tool == tool && b.right != Param::none) return b.right;
    }
    return Param::none;
  }
  static const Window* open_window() {
    const Window* found = nullptr;
    for (const Window* w : std::initializer_list<const Window*>{&FUZZY_WIN, &SPRAY_WIN, &HSET_WIN, &DEEP_WIN}) {
      if (!w->Loaded()) continue;
      EXPECT_EQ(found, nullptr);
      found = w;
    }
    return found;
  }
};

TEST_F(ParamWindows, EachToolOpensItsWindowAndKeepsIt) {
  const struct {
    int16_t tool;
    const Window* window;
  } rows[] = {{23, &FUZZY_WIN}, {24, &FUZZY_WIN}, {26, &FUZZY_WIN}, {21, &SPRAY_WIN}, {22, &SPRAY_WIN},
              {34, &SPRAY_WIN}, {35, &SPRAY_WIN}, {32, &HSET_WIN},  {33, &HSET_WIN},  {36, &DEEP_WIN}};
  for (const auto& row : rows) {
    choose(row.tool);
    PARAM_WIN_SHOW(right_click(row.tool));
    EXPECT_EQ(open_window(), row.window) << row.tool;
    EXPECT_EQ(row.window->owner(), &P_WIN);
    EXPECT_TRUE(row.window->Visible());
    choose(row.tool);
    EXPECT_EQ(open_window(), row.window) << row.tool;
    choose(1);
    EXPECT_EQ(open_window(), nullptr) << row.tool;
  }
}

TEST_F(ParamWindows, NumbersHaveRoomForTheirWidestValueAndNothingOverlaps) {
  for (const int tool : {23, 21, 32, 36}) PARAM_WIN_SHOW(right_click(tool));
  for (const Label* value : {&FUZZY_WIN.H_VAL, &FUZZY_WIN.S_VAL, &FUZZY_WIN.V_VAL, &HSET_WIN.H_VAL}) {
    int width = 0;
    int height = 0;
    screen.text_size(" 255", Font{}, 0, width, height);
    EXPECT_GE(value->Width(), width) << value->full_name();
  }
  for (Window* window : std::initializer_list<Window*>{&FUZZY_WIN, &SPRAY_WIN, &HSET_WIN, &DEEP_WIN}) {
    for (const Control* a : window->controls()) {
      if (!a->container) continue;
      EXPECT_GE(a->Left(), 0) << a->full_name();
      EXPECT_LE(a->Left() + a->Width(), a->container->Width()) << a->full_name();
      for (const Control* b : window->controls()) {
        if (b == a || b->container != a->container) continue;
        const bool apart = a->Left() + a->Width() <= b->Left() || b->Left() + b->Width() <= a->Left() ||
                           a->Top() + a->Height() <= b->Top() || b->Top() + b->Height() <= a->Top();
        EXPECT_TRUE(apart) << a->full_name() << " and " << b->full_name();
      }
    }
  }
}

TEST_F(ParamWindows, ToolsWithoutNumbersOpenNone) {
  for (const int16_t tool : {0, 1, 10, 17, 25, 30, 31, 1000, 11001}) {
    choose(tool);
    PARAM_WIN_SHOW(right_click(tool));
    EXPECT_EQ(open_window(), nullptr) << tool;
  }
}

TEST_F(ParamWindows, AWindowStaysWhileItsToolsChangeAmongThemselves) {
  choose(24);
  PARAM_WIN_SHOW(right_click(24));
  choose(23);
  EXPECT_TRUE(FUZZY_WIN.Loaded());
  choose(25);
  EXPECT_FALSE(FUZZY_WIN.Loaded());
}

// The box of the V pens at expansion opens the window, but is not among the tools that keep it.
TEST_F(ParamWindows, TheExpandedVBoxOpensHsetUntilTheNextChange) {
  choose(11006);
  PARAM_WIN_SHOW(right_click(11006));
  EXPECT_TRUE(HSET_WIN.Loaded());
  TOOL_CHANGED();
  EXPECT_FALSE(HSET_WIN.Loaded());
}

TEST_F(ParamWindows, FlagsTellWhichAreLoaded) {
  PARAM_WIN_SHOW(right_click(23));
  PARAM_WIN_SHOW(right_click(21));
  PARAM_WIN_SHOW(right_click(32));
  PARAM_WIN_SHOW(right_click(36));
  EXPECT_EQ(FUZZY_ON + SPRAY_ON + HSET_ON + DEEP_ON, 4);
  PARAM_WIN_HIDE();
  EXPECT_FALSE(FUZZY_WIN.Visible() || SPRAY_WIN.Visible() || HSET_WIN.Visible() || DEEP_WIN.Visible());
  EXPECT_EQ(FUZZY_ON + SPRAY_ON + HSET_ON + DEEP_ON, 4);
  PARAM_WIN_SHOW_AGAIN();
  EXPECT_TRUE(FUZZY_WIN.Visible() && SPRAY_WIN.Visible() && HSET_WIN.Visible() && DEEP_WIN.Visible());
  FUZZY_WIN.Unload();
  EXPECT_EQ(FUZZY_ON, 0);
  PARAM_WIN_HIDE();
  PARAM_WIN_SHOW_AGAIN();
  EXPECT_FALSE(FUZZY_WIN.Loaded());
}

TEST_F(ParamWindows, HaveTheirCaptions) {
  for (const int tool : {23, 21, 32, 36}) PARAM_WIN_SHOW(right_click(tool));
  EXPECT_EQ(FUZZY_WIN.Caption(), "Kiso  Fuzzy設定");
  EXPECT_EQ(SPRAY_WIN.Caption(), "Kiso  Spray設定");
  EXPECT_EQ(HSET_WIN.Caption(), "Kiso  HSET 設定");
  EXPECT_EQ(DEEP_WIN.Caption(), "Kiso  Fuzzy設定");
  EXPECT_EQ(FUZZY_WIN.Frame1.Caption(), "似た色の条件");
  EXPECT_EQ(SPRAY_WIN.Frame1.Caption(), "強さ");
  EXPECT_EQ(HSET_WIN.Frame1.Caption(), "Vの変化量 (%)");
  EXPECT_EQ(DEEP_WIN.Frame1.Caption(), "濃度バランス");
}

TEST_F(ParamWindows, OpenOnTopOfThePalette) {
  CMD_WIN.Move(3000, 4500);
  PARAM_WIN_SHOW(right_click(36));
  EXPECT_DOUBLE_EQ(DEEP_WIN.Left(), 2985);
  EXPECT_DOUBLE_EQ(DEEP_WIN.Top(), 4485);
  CMD_WIN.Move(0, 10);
  PARAM_WIN_SHOW(right_click(23));
  EXPECT_DOUBLE_EQ(FUZZY_WIN.Left(), 0);
  EXPECT_DOUBLE_EQ(FUZZY_WIN.Top(), 0);
}

TEST_F(ParamWindows, BarsHaveTheirRanges) {
  const struct {
    ScrollBar& bar;
    int min, max, large;
  } rows[] = {{FUZZY_WIN.H_BAR, 0, 180, 16},  {FUZZY_WIN.S_BAR, 0, 255, 16}, {FUZZY_WIN.V_BAR, 0, 255, 16},
              {SPRAY_WIN.I_BAR, 1000, 1, 16}, {HSET_WIN.H_BAR, 0, 200, 10},  {DEEP_WIN.DEEP_BAR, 0, 100, 1}};
  for (const auto& row : rows) {
    EXPECT_EQ(row.bar.Min(), row.min) << row.bar.full_name();
    EXPECT_EQ(row.bar.Max(), row.max) << row.bar.full_name();
    EXPECT_EQ(row.bar.LargeChange(), row.large) << row.bar.full_name();
    EXPECT_EQ(row.bar.SmallChange(), 1) << row.bar.full_name();
  }
}

TEST_F(ParamWindows, ShowTheNumbersThatAreInForce) {
  FUZZY_H = 180, FUZZY_S = 0, FUZZY_V = 255;
  SPRAY_MS = 1000;
  HSET_V = 0;
  DEEP_BAL = 100;
  EXPECT_EQ(FUZZY_WIN.H_BAR.Value(), 180);
  EXPECT_EQ(FUZZY_WIN.H_VAL.Caption(), " 180");
  EXPECT_EQ(FUZZY_WIN.S_VAL.Caption(), " 0");
  EXPECT_EQ(FUZZY_WIN.V_VAL.Caption(), " 255");
  EXPECT_EQ(SPRAY_WIN.I_BAR.Value(), 1000);
  EXPECT_EQ(HSET_WIN.H_VAL.Caption(), " 0");
  EXPECT_EQ(DEEP_WIN.DEEP_BAR.Value(), 100);
  EXPECT_EQ(FUZZY_H, 180);
  EXPECT_EQ(HSET_V, 0);
}

TEST_F(ParamWindows, LabelsAreRightWhereTheNumberIsTheDesignsOwn) {
  EXPECT_EQ(FUZZY_WIN.H_VAL.Caption(), " 10");
  HSET_V = 50;
  EXPECT_EQ(HSET_WIN.H_VAL.Caption(), " 50");
}

TEST_F(ParamWindows, ABarsNumberIsInForceAtOnce) {
  FUZZY_WIN.H_BAR.Value(11);
  FUZZY_WIN.S_BAR.Value(12);
  FUZZY_WIN.V_BAR.Value(13);
  SPRAY_WIN.I_BAR.Value(14);
  HSET_WIN.H_BAR.Value(15);
  DEEP_WIN.DEEP_BAR.Value(16);
  EXPECT_EQ(FUZZY_H, 11);
  EXPECT_EQ(FUZZY_S, 12);
  EXPECT_EQ(FUZZY_V, 13);
  EXPECT_EQ(SPRAY_MS, 14);
  EXPECT_EQ(HSET_V, 15);
  EXPECT_EQ(DEEP_BAL, 16);
  EXPECT_EQ(FUZZY_WIN.S_VAL.Caption(), " 12");
  EXPECT_EQ(HSET_WIN.H_VAL.Caption(), " 15");
}

TEST_F(ParamWindows, DefaultSetsTheDefaults) {
  FUZZY_H = 100, FUZZY_S = 101, FUZZY_V = 102;
  SPRAY_MS = 900;
  HSET_V = 0;
  for (const int tool : {23, 21, 32}) PARAM_WIN_SHOW(right_click(tool));
  click(FUZZY_WIN.Command3);
  click(SPRAY_WIN.Command3);
  click(HSET_WIN.Command3);
  EXPECT_EQ((Three{FUZZY_H, FUZZY_S, FUZZY_V}), (Three{10, 10, 10}));
  EXPECT_EQ((Three{FUZZY_WIN.H_BAR.Value(), FUZZY_WIN.S_BAR.Value(), FUZZY_WIN.V_BAR.Value()}), (Three{10, 10, 10}));
  EXPECT_EQ(SPRAY_MS, 3);
  EXPECT_EQ(SPRAY_WIN.I_BAR.Value(), 3);
  EXPECT_EQ(HSET_V, 50);
  EXPECT_EQ(HSET_WIN.H_BAR.Value(), 50);
}

TEST_F(ParamWindows, ClosingLosesNothing) {
  PARAM_WIN_SHOW(right_click(24));
  FUZZY_WIN.H_BAR.Value(99);
  FUZZY_WIN.Unload();
  EXPECT_EQ(FUZZY_H, 99);
  PARAM_WIN_SHOW(right_click(24));
  EXPECT_EQ(FUZZY_WIN.H_BAR.Value(), 99);
}

// What a settings file can bring: it is refused when the window opens.
TEST_F(ParamWindows, ANumberOutsideOfItsBarEndsTheProgramWithThePlatformsError) {
  FUZZY_H = 200;
  EXPECT_FALSE(enter([] { PARAM_WIN_SHOW(right_click(23)); }));
  EXPECT_EQ(fatal_error(), 380);
}

TEST_F(ParamWindows, ASprayIntervalOfZeroIsRefusedToo) {
  SPRAY_MS = 0;
  EXPECT_FALSE(enter([] { PARAM_WIN_SHOW(right_click(21)); }));
  EXPECT_EQ(fatal_error(), 380);
}

}  // namespace
}  // namespace kiso
