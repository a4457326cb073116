#include "palette/param_win.h"

#include <algorithm>

#include "frame/p_win.h"
#include "palette/cmd_win.h"
#include "palette/palette.h"
#include "platform/forms/layout.h"
#include "platform/text/text.h"

namespace kiso {

namespace param_win {
namespace {

enum Which : int { FUZZY, SPRAY, HSET, DEEP };  // as Param

struct WindowRow {
  Window* window;
  int16_t* on;
  const char* caption;  // behind APP_TITLE
  Frame* frame;
  const char* frame_caption;
  int rows;                 // how many bars
  CommandButton* Command3;  // sets the defaults; DEEP_WIN has none
};
constexpr WindowRow WINDOWS[] = {
    {&FUZZY_WIN, &FUZZY_ON, " Fuzzy設定", &FUZZY_WIN.Frame1, "似た色の条件", 3, &FUZZY_WIN.Command3},
    {&SPRAY_WIN, &SPRAY_ON, " Spray設定", &SPRAY_WIN.Frame1, "強さ", 1, &SPRAY_WIN.Command3},
    {&HSET_WIN, &HSET_ON, " HSET 設定", &HSET_WIN.Frame1, "Vの変化量 (%)", 1, &HSET_WIN.Command3},
    // The word Fuzzy is what this window has always shown.
    {&DEEP_WIN, &DEEP_ON, " Fuzzy設定", &DEEP_WIN.Frame1, "濃度バランス", 1, nullptr},
};

struct BarRow {
  Which window;
  ScrollBar* bar;
  Label* value;  // shows the number; null: nothing does
  int16_t* number;
  int min, max, start, large;  // start: the default, too
  const char* name;
  void (*change)();
};
template <int ROW>
void bar_changed();
constexpr BarRow BARS[] = {
    {FUZZY, &FUZZY_WIN.H_BAR, &FUZZY_WIN.H_VAL, &FUZZY_H, 0, 180, 10, 16, "色相の差", bar_changed<0>},
    {FUZZY, &FUZZY_WIN.S_BAR, &FUZZY_WIN.S_VAL, &FUZZY_S, 0, 255, 10, 16, "彩度の差", bar_changed<1>},
    {FUZZY, &FUZZY_WIN.V_BAR, &FUZZY_WIN.V_VAL, &FUZZY_V, 0, 255, 10, 16, "明度の差", bar_changed<2>},
    // Backwards: to the right the timer's interval gets shorter, so the spray gets stronger.
    {SPRAY, &SPRAY_WIN.I_BAR, nullptr, &SPRAY_MS, 1000, 1, 3, 16, "スプレーの強さ", bar_changed<3>},
    {HSET, &HSET_WIN.H_BAR, &HSET_WIN.H_VAL, &HSET_V, 0, 200, 50, 10, "明度の変化量", bar_changed<4>},
    {DEEP, &DEEP_WIN.DEEP_BAR, nullptr, &DEEP_BAL, 0, 100, 50, 1, "濃度バランス", bar_changed<5>},
};

// What stands before and behind the bars, from the left to the right.
constexpr struct LabelRow {
  Which window;
  Label* label;
  const char* text;
  int row;
  bool behind;
} LABELS[] = {
    {FUZZY, &FUZZY_WIN.Label1, "H", 0, false},  {FUZZY, &FUZZY_WIN.Label4, "±", 0, true},
    {FUZZY, &FUZZY_WIN.Label2, "S", 1, false},  {FUZZY, &FUZZY_WIN.Label5, "±", 1, true},
    {FUZZY, &FUZZY_WIN.Label3, "V", 2, false},  {FUZZY, &FUZZY_WIN.Label6, "±", 2, true},
    {SPRAY, &SPRAY_WIN.Label1, "弱", 0, false}, {SPRAY, &SPRAY_WIN.Label2, "強", 0, true},
    {HSET, &HSET_WIN.Label1, "V", 0, false},    {HSET, &HSET_WIN.Label2, "暗", 0, false},
    {HSET, &HSET_WIN.Label3, "明", 0, true},    {DEEP, &DEEP_WIN.Label1, "Base", 0, false},
    {DEEP, &DEEP_WIN.Label2, "Draw", 0, true},
};

void take_value(const BarRow& row) {
  if (row.value) row.value->Caption(text::Str(row.bar->Value()));
  *row.number = to_int16(row.bar->Value());
}
template <int ROW>
void bar_changed() {
  take_value(BARS[ROW]);
}

void set_defaults(Which which) {
  for (const BarRow& row : BARS) {
    if (row.window != which) continue;
    row.bar->Value(row.start);
    *row.number = to_int16(row.start);
  }
}

// On top of the palette, one pixel up and left of it.
void load(Which which) {
  const WindowRow& form = WINDOWS[which];
  *form.on = 1;
  form.window->Caption(APP_TITLE + form.caption);
  form.window->Move(std::max(CMD_WIN.Left() - TWIPS, 0.0), std::max(CMD_WIN.Top() - TWIPS, 0.0));
  for (const BarRow& row : BARS) {
    if (row.window == which) row.bar->Value(*row.number);
  }
}

constexpr int FRAME_LEFT = 8, FRAME_WIDTH = 216, FIRST_ROW = 26, ROW_HEIGHT = 24;
constexpr int LEFT = 10, RIGHT = 206, GAP = 5;  // of what stands in the frame, and between two of them

// Where the bars of a window begin and end: the widest row of labels and numbers has its place beside them.
struct Span {
  int left, right;
};
Span bar_span(Which which) {
  Span bar{LEFT, RIGHT};
  for (int line = 0; line < WINDOWS[which].rows; ++line) {
    Span here{LEFT, RIGHT};
    for (const LabelRow& row : LABELS) {
      if (row.window != which || row.row != line) continue;
      const int width = forms::text_width(row.text) + GAP;
      row.behind ? here.right -= width : here.left += width;
    }
    bar = {std::max(bar.left, here.left), std::min(bar.right, here.right)};
  }
  const bool numbers =
      std::ranges::any_of(BARS, [which](const BarRow& row) { return row.window == which && row.value; });
  if (numbers) bar.right -= forms::number_width(3);
  return bar;
}

void design_bars(Which which, Span span) {
  const WindowRow& form = WINDOWS[which];
  int top = FIRST_ROW;
  for (const BarRow& row : BARS) {
    if (row.window != which) continue;
    row.bar->design(span.left, top, span.right - span.left, 18, form.frame);
    row.bar->range(row.min, row.max, row.start, 1, row.large);
    row.bar->accessible_name = row.name;
    row.bar->Change = row.change;
    if (row.value) {
      const int width = forms::number_width(3);
      row.value->design(RIGHT - width, top + 2, width, 16, form.frame);
      row.value->align = Label::Align::right;
      row.value->Caption(text::Str(row.start));
    }
    top += ROW_HEIGHT;
  }
}

void design_labels(Which which, Span span) {
  for (int line = 0; line < WINDOWS[which].rows; ++line) {
    int before = LEFT;
    int behind = span.right + GAP;
    for (const LabelRow& row : LABELS) {
      if (row.window != which || row.row != line) continue;
      const int width = forms::text_width(row.text);
      int& left = row.behind ? behind : before;
      row.label->design(left, FIRST_ROW + ROW_HEIGHT * line + 2, width, 16, WINDOWS[which].frame);
      row.label->Caption(row.text);
      left += width + GAP;
    }
  }
}

void design_inside(Which which, void (*default_click)()) {
  const WindowRow& form = WINDOWS[which];
  const int frame_height = FIRST_ROW + ROW_HEIGHT * form.rows + 4;
  form.window->design(0, 0, FRAME_WIDTH + 2 * FRAME_LEFT, frame_height + (form.Command3 ? 46 : 14));
  form.frame->design(FRAME_LEFT, 6, FRAME_WIDTH, frame_height);
  form.frame->Caption(form.frame_caption);
  const Span span = bar_span(which);
  design_bars(which, span);
  design_labels(which, span);
  if (!form.Command3) return;
  form.Command3->design(FRAME_LEFT + FRAME_WIDTH - 72, frame_height + 14, 72, 24);
  form.Command3->Caption("Default");
  form.Command3->ToolTip("はじめの値に戻す");
  form.Command3->Click = default_click;
}

// The events are wired here, each time the window loads, and not by the constructors: these may reach their controls
// through `this` alone, which the tables do not.
template <Which W>
void design() {
  WINDOWS[W].window->Form_Load = [] { load(W); };
  WINDOWS[W].window->Form_Unload = [](int& /*Cancel*/) { *WINDOWS[W].on = 0; };
  design_inside(W, [] { set_defaults(W); });
}

}  // namespace
}  // namespace param_win

using namespace param_win;  // NOLINT(google-build-using-namespace)

FuzzyWin::FuzzyWin() : Window("FUZZY_WIN", Border::tool, Scale::pixels, param_win::design<FUZZY>) {}
SprayWin::SprayWin() : Window("SPRAY_WIN", Border::tool, Scale::pixels, param_win::design<SPRAY>) {}
HsetWin::HsetWin() : Window("HSET_WIN", Border::tool, Scale::pixels, param_win::design<HSET>) {}
DeepWin::DeepWin() : Window("DEEP_WIN", Border::tool, Scale::pixels, param_win::design<DEEP>) {}

FuzzyWin FUZZY_WIN;
SprayWin SPRAY_WIN;
HsetWin HSET_WIN;
DeepWin DEEP_WIN;

void PARAM_WIN_SHOW(Param window) {
  if (window != Param::none) WINDOWS[static_cast<int>(window)].window->Show(&P_WIN);
}

void PARAM_WIN_CLOSE(Param but) {
  for (const Which which : {SPRAY, FUZZY, HSET, DEEP}) {
    if (which != static_cast<int>(but)) WINDOWS[which].window->Unload();
  }
}

void PARAM_WIN_HIDE() {
  for (const WindowRow& form : WINDOWS) {
    if (*form.on == 1) form.window->Hide();
  }
}

void PARAM_WIN_SHOW_AGAIN() {
  for (const WindowRow& form : WINDOWS) {
    if (*form.on == 1) form.window->Show(&P_WIN);
  }
}

void PARAM_WIN_UNLOAD() {
  for (const WindowRow& form : WINDOWS) {
    if (*form.on == 1) form.window->Unload();
  }
}

}  // namespace kiso
