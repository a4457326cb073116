// The colour window: its top, its panes and the buttons that exchange them, its place on the screen.
#include "colour/col_win.h"

#include "colour/col_win_rules.h"
#include "colour/colour.h"
#include "frame/usr_sub.h"

namespace kiso {

namespace col_win {

void place(Control& control, double left, double top, double width, double height, Control* in) {
  control.design(left * TWIPS, top * TWIPS, width * TWIPS, height * TWIPS, in);
}

void PICK_EXIT() {
  if (CUR_TOOL != SPOIT) return;
  CUR_TOOL = PREV_TOOL;
  TOOL_CHANGED();
}

void show_pane() {
  for (int i = 0; i < COL_WIN.CSEL_BASE.count; ++i) COL_WIN.CSEL_BASE(i).Visible(i == COL_PANE);
  COL_WIN.CSEL_BASE(COL_PANE).ToFront();
  COL_WIN.Command1.held(COL_PANE == 0);
  COL_WIN.Command2.held(COL_PANE == 1);
  COL_WIN.Command3.held(COL_PANE == 2);
  if (COL_PANE == 1) show_bars();
}

namespace {

// A click on a colour box selects that colour; on the selected one it enters or leaves the pick tool.
void colour_box_click(int16_t target) {
  if (COL_TARGET != target) {
    COL_TARGET = target;
    COL_LOAD_WORK();
    COL_DRAW_BARS(CUR_R, CUR_G, CUR_B);
    if (CUR_TOOL == SPOIT) CUR_TOOL = PREV_TOOL;
    if (COL_PANE == 1) show_bars();
  } else if (CUR_TOOL == SPOIT) {
    CUR_TOOL = PREV_TOOL;
  } else {
    if (PREV_TOOL != SPOIT) PREV_TOOL = CUR_TOOL;
    CUR_TOOL = SPOIT;
  }
  TOOL_CHANGED();
}
void TAR_COL_Click() { colour_box_click(0); }
void DES_COL_Click() { colour_box_click(1); }

void open_pane(int16_t pane) {
  if (COL_PANE == pane) return;
  COL_PANE = pane;
  if (pane == 1) COL_LOAD_WORK();  // the bars are not kept up to date while they are closed
  show_pane();
}
void Command1_Click() { open_pane(0); }
void Command2_Click() { open_pane(1); }
void Command3_Click() { open_pane(2); }

void Form_Load() {
  COL_WIN.Left(COL_LEFT);
  COL_WIN.Top(COL_TOP);
  COL_WIN.Caption(APP_TITLE);
  for (int i = 0; i < COL_WIN.CSEL_BASE.count; ++i) COL_WIN.CSEL_BASE(i).Move(0, 0);
  DICT_CUR = 0;
  DICT_WRITE = 0;
  COL_HSV_LOCK = 0;
  COL_RGB_LOCK = 0;
  show_pane();
  // The word that is not the mode lies under the one that is.
  COL_WIN.Command4.Move(550, 1440, 905, 270);
  COL_WIN.Label7.Move(550, 1440, 905, 270);
  // A window that was closed by its frame comes back with the colours and dictionaries of this run.
  COL_DRAW_BARS(CUR_R, CUR_G, CUR_B);
  show_dictionaries();
}

void Form_QueryUnload(int& /*Cancel*/) {
  COL_TOP = to_int32(COL_WIN.Top());
  COL_LEFT = to_int32(COL_WIN.Left());
}

void design_top() {
  const auto colour_box = [](PictureBox& box, Shape& mark, double left, Colour colour, const char* tip) {
    box.inside = Scale::twips;
    box.border = true;
    place(box, left, 5, 44, 24);
    place(mark, 0, 0, 44, 24, &box);
    box.BackColor(colour);
    box.ToolTip(tip);
  };
  colour_box(COL_WIN.TAR_COL, COL_WIN.TAR_SEL, 5, RGB(TAR_R, TAR_G, TAR_B), "ターゲット色 (もう一度押すとスポイト)");
  colour_box(COL_WIN.DES_COL, COL_WIN.DES_SEL, 55, RGB(DES_R, DES_G, DES_B),
             "デスティネーション色 (もう一度押すとスポイト)");
  (COL_TARGET == 0 ? COL_WIN.TAR_SEL : COL_WIN.DES_SEL).FillColor(QBColor(CUR_TOOL == SPOIT ? 12 : 11));

  COL_WIN.COL_RGB.border = true;
  place(COL_WIN.COL_RGB, 5, 35, 94, 12);
  COL_WIN.COL_RGB.ToolTip("赤・緑・青の強さ");

  const auto pane_button = [](CommandButton& button, double left, const char* caption, const char* tip) {
    place(button, left, 51, 32, 20);
    button.Caption(caption);
    button.ToolTip(tip);
  };
  pane_button(COL_WIN.Command1, 4, "Rain", "純色のボタン");
  pane_button(COL_WIN.Command2, 36, "R/H", "RGBとHSVのバー");
  pane_button(COL_WIN.Command3, 68, "Dic", "色の辞書");
}

void design() {
  COL_WIN.design(0, 0, 104, 206);
  design_top();
  COL_WIN.CSEL_FRAME.inside = Scale::twips;
  place(COL_WIN.CSEL_FRAME, 0, 74, 104, 130);
  for (int i = 0; i < COL_WIN.CSEL_BASE.count; ++i) {
    PictureBox& pane = COL_WIN.CSEL_BASE(i);
    pane.inside = Scale::twips;
    place(pane, 0, 0, 104, 130, &COL_WIN.CSEL_FRAME);
  }
  design_rain();
  design_bars();
  design_dictionary();
}

}  // namespace
}  // namespace col_win

ColWin::ColWin() : Window("COL_WIN", Border::tool, Scale::twips, col_win::design) {
  using namespace col_win;  // NOLINT(google-build-using-namespace)
  Form_Load = col_win::Form_Load;
  Form_QueryUnload = col_win::Form_QueryUnload;
  TAR_COL.Click = TAR_COL_Click;
  DES_COL.Click = DES_COL_Click;
  Command1.Click = Command1_Click;
  Command2.Click = Command2_Click;
  Command3.Click = Command3_Click;
  wire_rain(*this);
  wire_bars(*this);
  wire_dictionary(*this);
}

ColWin COL_WIN;

}  // namespace kiso
