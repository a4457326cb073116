#include "frame/p_win.h"

#include "frame/p_win_events.h"

namespace kiso {

PWin P_WIN;

Colour COL_A = 0, COL_B = 0, COL_XOR = WHITE;
Array<int32_t, 1, 2> PT_START;
Array<int32_t, 1, 4> PT_LAST;
Array<int16_t, 1, 2> PT_CUR;
Array<int32_t, 1, 2> PT_DOT;
Array<int32_t, 1, 2> BOX_MIN, BOX_MAX;
int32_t DOWN_BUSY = 0, MOVE_BUSY = 0, UP_BUSY = 0;
int16_t KEY_MOVED = 0;
int16_t RUBBER_ON = 0;
Array<Point, 0, 256> POLY_PTS;
int32_t POLY_N = 0;
Array<int32_t, 0, 256> POLY_COL;
Array<int32_t, 1, 2> BEZ_P0, BEZ_P3;
Array<int32_t, 1, 4> RECT_NEW, RECT_OLD;
Array<Array<float, 0, 36>, 0, 36> BRUSH_CELL;
int32_t AREA_DX = 0, AREA_DY = 0, AREA_W = 0, AREA_H = 0;

namespace {

constexpr int BAR = 16;     // thickness of a scroll bar, pixels
constexpr int LINE_H = 16;  // height of a status label

// The places of what Form_Resize lays out are only first ones.
void design_p_win() {
  P_WIN.design(0, 0, 800, 600, "Kiso");
  DMY.design(0, 0, 800 - BAR, 600 - BAR);
  DMY.BackColor(QBColor(8));
  DRAW.design(2, 2, 640, 480, &DMY);
  DRAW.MousePointer(1);
  DRAW.accessible_name = "絵";
  WORK.design(0, 0, 1, 1, &DRAW);
  WORK.Visible(false);
  WORK.Enabled(false);  // floats above DRAW and lets the pointer through
  WORD.design(0, 0, 1, 1, &DRAW);
  WORD.AutoSize(true);
  WORD.Visible(false);
  WORD.Enabled(false);
  PIC.design(0, 0, 640, 480);
  for (PictureBox* as_draw : {&UNDO, &M_REDRAW}) as_draw->design(0, 0, 640, 480);  // a view of this size never resizes
  for (PictureBox* sized_per_use : {&WORK2, &WORK3, &WORK4}) sized_per_use->design(0, 0, 1, 1);
  for (PictureBox* hidden : {&PIC, &UNDO, &M_REDRAW, &WORK2, &WORK3, &WORK4}) hidden->Visible(false);
  for (PictureBox* paper : {&PIC, &DRAW, &WORK, &UNDO, &M_REDRAW}) paper->BackColor(WHITE);
  X_SC.design(0, 600 - BAR, 800 - BAR, BAR);
  Y_SC.design(800 - BAR, 0, BAR, 600 - BAR);
  X_SC.range(0, 0, 0, 1, 1);
  Y_SC.range(0, 0, 0, 1, 1);
  RB.design(800 - BAR, 600 - BAR, 14, 14);
  RB.Cell("RB_IMG", 0, 0);
  RB.ToolTip("ステータス行");
  INF_POSX.design(6, 0, 76, LINE_H);
  INF_POSY.design(84, 0, 76, LINE_H);
  INF_CMD.design(164, 0, 170, LINE_H);
  INF_SUB.design(340, 0, 240, LINE_H);
  INF_SUB.Caption(" ");
  Timer1.clock(50, true);
  Timer2.clock(60000, false);
}

}  // namespace

PWin::PWin() : Window("P_WIN", Border::sizable, Scale::pixels, design_p_win) {
  Form_Resize = p_win::Form_Resize;
  X_SC.Change = p_win::X_SC_Change;
  Y_SC.Change = p_win::Y_SC_Change;
  RB.Click = p_win::RB_Click;
  DRAW.Paint = p_win::DRAW_Paint;
  DRAW.Resize = p_win::DRAW_Resize;
}

}  // namespace kiso
