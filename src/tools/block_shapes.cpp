// The shapes at expansion. They are drawn on WORK, which holds the view at picture scale, and each changed rectangle
// goes through M_REDRAW to DRAW: so a shape consists of whole blocks. Points are picture pixels relative to the view.
#include <cstdlib>

#include "frame/p_win.h"
#include "frame/read_back.h"
#include "frame/usr_sub.h"
#include "tools/tools.h"

namespace kiso {

namespace {

constexpr int COPY = 13, XOR = 7;

struct Box {
  int x1, y1, x2, y2;  // both corners included
};
Box around(int x1, int y1, int x2, int y2) {
  return {std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2)};
}
Box around(const Box& a, const Box& b) {
  return {std::min(a.x1, b.x1), std::min(a.y1, b.y1), std::max(a.x2, b.x2), std::max(a.y2, b.y2)};
}
Box rubber_bounds() { return around(PT_START(1), PT_START(2), PT_LAST(1), PT_LAST(2)); }
Box whole_view() { return {0, 0, VIEW_PIX(1), VIEW_PIX(2)}; }
void to_view(const Box& b) { WORK_TO_VIEW(b.x1, b.y1, b.x2, b.y2); }

int picture_pixel(float v) { return truncate(v / static_cast<float>(EXP_RATE)); }

void follow(float X, float Y) {
  PT_LAST(1) = picture_pixel(X);
  PT_LAST(2) = picture_pixel(Y);
}

void start_at(float X, float Y) {
  follow(X, Y);
  PT_START(1) = PT_LAST(1);
  PT_START(2) = PT_LAST(2);
}

// WORK becomes the view in picture pixels, and the screen of DRAW is painted from M_REDRAW alone.
void prepare(float X, float Y) {
  M_REDRAW.Move(0, 0, DRAW.Width(), DRAW.Height());
  BitBlt(M_REDRAW, 0, 0, VIEW_DOT(1), VIEW_DOT(2), DRAW, 0, 0);
  PREVIEW_ON = 1;
  DRAW.AutoRedraw(false);
  WORK.Move(0, 0, VIEW_PIX(1), VIEW_PIX(2));
  read_back(WORK, 0, 0, VIEW_PIX(1), VIEW_PIX(2), M_REDRAW, EXP_RATE);
  start_at(X, Y);
  WORK.DrawWidth(PEN_SIZE);
  WORK.DrawStyle(0);
  WORK.FillStyle(1);
  WORK.DrawMode(XOR);
}

// The end of every tool that works on WORK.
void hand_back() {
  PREVIEW_ON = 0;
  DRAW.AutoRedraw(true);
  BitBlt(DRAW, 0, 0, VIEW_DOT(1), VIEW_DOT(2), M_REDRAW, 0, 0);
}

// --- figures between PT_START and PT_LAST

void box_figure(Colour colour) { Line(WORK, PT_START(1), PT_START(2), PT_LAST(1), PT_LAST(2), colour, LineForm::box); }

// A line leaves out its last point: one pixel wide, it gets that point as a dot.
void line_figure(Colour colour) {
  Line(WORK, PT_START(1), PT_START(2), PT_LAST(1), PT_LAST(2), colour);
  if (WORK.DrawWidth() == 1) PSet(WORK, PT_LAST(1), PT_LAST(2), colour);
}

// The rubber line of a running chain: dots at both ends.
void chain_figure() {
  line_figure(COL_XOR);
  if (WORK.DrawWidth() == 1) PSet(WORK, PT_START(1), PT_START(2), COL_XOR);
}

using Figure = void (*)(Colour);

void press_with(Figure figure, float X, float Y) {
  prepare(X, Y);
  figure(COL_XOR);
  to_view(rubber_bounds());
}

void drag_with(Figure figure, float X, float Y) {
  const Box before = rubber_bounds();
  figure(COL_XOR);
  follow(X, Y);
  figure(COL_XOR);
  to_view(around(before, rubber_bounds()));
}

void finish_with(Figure figure, float X, float Y) {
  const Box before = rubber_bounds();
  figure(COL_XOR);
  WORK.DrawMode(COPY);
  follow(X, Y);
  figure(COL_A);
  to_view(around(before, rubber_bounds()));
}

// --- ellipses: PT_LAST 1 to 4 holds the rectangle, right and bottom left out

void ellipse() { Ellipse(WORK, PT_LAST(1), PT_LAST(2), PT_LAST(3), PT_LAST(4)); }
Box ellipse_bounds() { return {PT_LAST(1), PT_LAST(2), PT_LAST(3), PT_LAST(4)}; }

void centre_cross() {
  constexpr int FAR = 2000;
  const int x = PT_START(1);
  const int y = PT_START(2);
  WORK.DrawWidth(1);
  Line(WORK, x - FAR, y - FAR, x + FAR, y + FAR, COL_XOR);
  Line(WORK, x + FAR, y - FAR, x - FAR, y + FAR, COL_XOR);
}

void rubber_ellipse_pen(bool filled) {
  WORK.ForeColor(COL_XOR);
  WORK.FillColor(COL_XOR);
  WORK.DrawWidth(filled ? 1 : PEN_SIZE);
  WORK.FillStyle(filled ? 7 : 1);
}

void start_ellipse(bool filled, float X, float Y) {
  prepare(X, Y);
  centre_cross();
  rubber_ellipse_pen(filled);
  PT_LAST(3) = PT_LAST(1);
  PT_LAST(4) = PT_LAST(2);
  to_view(whole_view());
}

void finish_ellipse(bool filled) {
  ellipse();
  centre_cross();
  WORK.DrawMode(COPY);
  WORK.DrawWidth(PEN_SIZE);
  WORK.ForeColor(COL_A);
  WORK.FillColor(COL_A);
  WORK.FillStyle(filled ? 0 : 1);
  ellipse();
  WORK.FillStyle(1);
  to_view(whole_view());
  hand_back();
}

// --- the rubber box that snaps to blocks, in DRAW pixels

void snapped_box(const Array<int32_t, 1, 4>& r, Colour colour) {
  Line(DRAW, r(1), r(2), r(3), r(4), colour, LineForm::box_fill);
}

// From the block of the press to that of the pointer, both inside on either side.
void snap_to_pointer(float X, float Y) {
  int l = 0;
  int t = 0;
  int r = 0;
  int b = 0;
  DOT_SNAP(X, Y, 1, l, t, r, b);
  const bool right = X >= static_cast<float>(PT_START(1));
  const bool below = Y >= static_cast<float>(PT_START(2));
  RECT_OLD(1) = right ? RECT_NEW(1) : l;
  RECT_OLD(3) = right ? r : RECT_NEW(3);
  RECT_OLD(2) = below ? RECT_NEW(2) : t;
  RECT_OLD(4) = below ? b : RECT_NEW(4);
}

}  // namespace

void WORK_TO_VIEW(int x1, int y1, int x2, int y2) {
  const int m = to_int32(std::max<int>(PEN_SIZE, WORK.DrawWidth()) / 2.0 + 1);
  x1 -= m;
  y1 -= m;
  x2 = std::min(x2 + m, to_int32(WORK.ScaleWidth()));
  y2 = std::min(y2 + m, to_int32(WORK.ScaleHeight()));
  const int R = EXP_RATE;
  StretchBlt(M_REDRAW, R * x1, R * y1, R * (x2 - x1), R * (y2 - y1), WORK, x1, y1, x2 - x1, y2 - y1);
  BitBlt(DRAW, R * x1, R * y1, R * (x2 - x1), R * (y2 - y1), M_REDRAW, R * x1, R * y1);
}

// --- Boxfill

void snap_press(float X, float Y) {
  DOT_SNAP(X, Y, 1, RECT_NEW(1), RECT_NEW(2), RECT_NEW(3), RECT_NEW(4));
  RECT_OLD = RECT_NEW;
  DRAW.DrawMode(XOR);
  DRAW.DrawWidth(1);
  snapped_box(RECT_OLD, COL_XOR);
}

void snap_drag(float X, float Y) {
  snapped_box(RECT_OLD, COL_XOR);
  snap_to_pointer(X, Y);
  snapped_box(RECT_OLD, COL_XOR);
  p_win::show_size(std::abs(RECT_OLD(1) - RECT_OLD(3)) / EXP_RATE + 1,
                   std::abs(RECT_OLD(2) - RECT_OLD(4)) / EXP_RATE + 1);
}

void snap_erase() {
  p_win::show_info(" ");
  snapped_box(RECT_OLD, COL_XOR);
  DRAW.DrawMode(COPY);
}

void block_boxfill_release(float X, float Y) {
  snap_erase();
  snap_to_pointer(X, Y);
  snapped_box(RECT_OLD, COL_A);
  for (int axis : {1, 2}) {
    BOX_MIN(axis) = RECT_OLD(axis);
    BOX_MAX(axis) = RECT_OLD(axis + 2);
  }
}

// --- Box, Line

void block_box_press(float X, float Y) { press_with(box_figure, X, Y); }
void block_box_drag(float X, float Y) { drag_with(box_figure, X, Y); }
void block_box_release(float X, float Y) {
  finish_with(box_figure, X, Y);
  hand_back();
}

void block_line_press(float X, float Y) { press_with(line_figure, X, Y); }
void block_line_drag(float X, float Y) { drag_with(line_figure, X, Y); }
void block_line_release(float X, float Y) {
  finish_with(line_figure, X, Y);
  hand_back();
}

// --- Circle, Circlefill

void block_circle_press(float X, float Y) { start_ellipse(false, X, Y); }
void block_circlefill_press(float X, float Y) { start_ellipse(true, X, Y); }

void block_circle_drag(float X, float Y) {
  const Box before = ellipse_bounds();
  ellipse();
  const int x = PT_START(1);
  const int y = PT_START(2);
  const int rx = std::abs(picture_pixel(X) - x);
  const int ry = std::abs(picture_pixel(Y) - y);
  PT_LAST(1) = x - rx;
  PT_LAST(2) = y - ry;
  PT_LAST(3) = x + rx + 1;
  PT_LAST(4) = y + ry + 1;
  ellipse();
  to_view(around(before, ellipse_bounds()));
}

void block_circle_release(float /*X*/, float /*Y*/) { finish_ellipse(false); }
void block_circlefill_release(float /*X*/, float /*Y*/) { finish_ellipse(true); }

// --- Line(Type2): PEN_DOWN stays 1 from the first press to the closing click

void block_chain_release(float X, float Y) {
  block_line_release(X, Y);
  prepare(X, Y);  // chain_figure of no length leaves no trace
  CUR_TOOL = 12029;
}

void block_chain_hover(float X, float Y) {
  drag_with([](Colour) { chain_figure(); }, X, Y);
}

// The segment is painted; a click where it began closes the chain.
void block_chain_next(float X, float Y) {
  const Box before = rubber_bounds();
  chain_figure();
  follow(X, Y);
  WORK.DrawMode(COPY);
  line_figure(COL_A);
  WORK.DrawMode(XOR);
  const bool closes = PT_LAST(1) == PT_START(1) && PT_LAST(2) == PT_START(2);
  const Box painted = rubber_bounds();
  if (!closes) {
    start_at(X, Y);
    line_figure(COL_XOR);  // the rubber line that the release takes away
  }
  to_view(around(before, painted));
  CUR_TOOL = closes ? 13029 : 11029;
}

void block_chain_close(float /*X*/, float /*Y*/) { hand_back(); }

}  // namespace kiso
