// The shapes at expansion. They are drawn on WORK, which holds the view at picture scale, and each changed rectangle
// goes through M_REDRAW to DRAW: so a shape consists of whole blocks. Points are picture pixels relative to the view.
#include <cmath>
#include <cstdlib>

#include "frame/p_win.h"
#include "frame/preview.h"
#include "frame/usr_sub.h"
#include "platform/raster/read_back.h"
#include "tools/tools.h"

namespace kiso {

namespace {

constexpr int SOLID = 0, CLEAR = 1, HATCHED = 7;  // fill styles

struct Box {
  int x1, y1, x2, y2;  // both corners included
};
Box around(int x1, int y1, int x2, int y2) {
  return {std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2)};
}
Box around(const Box& a, const Box& b) {
  return {std::min(a.x1, b.x1), std::min(a.y1, b.y1), std::max(a.x2, b.x2), std::max(a.y2, b.y2)};
}
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
  begin_preview();
  WORK.Move(0, 0, VIEW_PIX(1), VIEW_PIX(2));
  read_back(WORK, 0, 0, VIEW_PIX(1), VIEW_PIX(2), M_REDRAW, 0, 0, EXP_RATE);
  start_at(X, Y);
  WORK.DrawWidth(PEN_SIZE);
  WORK.DrawStyle(0);
  WORK.FillStyle(CLEAR);
  WORK.DrawMode(XOR);
}

// --- figures between PT_START and PT_LAST. What they change goes to the view along their outline: a box round a long
// line would be most of the view.

void box_figure(Colour colour) { Line(WORK, PT_START(1), PT_START(2), PT_LAST(1), PT_LAST(2), colour, LineForm::box); }

void show_box() {
  const Box b = around(PT_START(1), PT_START(2), PT_LAST(1), PT_LAST(2));
  to_view({b.x1, b.y1, b.x2, b.y1});
  to_view({b.x1, b.y2, b.x2, b.y2});
  to_view({b.x1, b.y1, b.x1, b.y2});
  to_view({b.x2, b.y1, b.x2, b.y2});
}

// A line leaves out its last point: one pixel wide, it gets that point as a dot.
void line_figure(Colour colour) {
  Line(WORK, PT_START(1), PT_START(2), PT_LAST(1), PT_LAST(2), colour);
  if (WORK.DrawWidth() == 1) PSet(WORK, PT_LAST(1), PT_LAST(2), colour);
}

// The rubber line of a running chain: dots at both ends.
void chain_figure(Colour colour) {
  line_figure(colour);
  if (WORK.DrawWidth() == 1) PSet(WORK, PT_START(1), PT_START(2), colour);
}

void show_line() {
  const int dx = PT_LAST(1) - PT_START(1);
  const int dy = PT_LAST(2) - PT_START(2);
  const int pieces = std::max(std::abs(dx), std::abs(dy)) / (16 + WORK.DrawWidth()) + 1;
  for (int i = 0; i < pieces; ++i) {
    const Box b = around(PT_START(1) + dx * i / pieces, PT_START(2) + dy * i / pieces,
                         PT_START(1) + dx * (i + 1) / pieces, PT_START(2) + dy * (i + 1) / pieces);
    to_view({b.x1 - 1, b.y1 - 1, b.x2 + 1, b.y2 + 1});  // 1: the cuts are rounded
  }
}

struct Figure {
  void (*draw)(Colour);
  void (*show)();
};
constexpr Figure BOX{box_figure, show_box}, LINE{line_figure, show_line}, CHAIN_LINE{chain_figure, show_line};

void put(const Figure& figure, Colour colour) {
  figure.draw(colour);
  figure.show();
}

void press_with(const Figure& figure, float X, float Y) {
  prepare(X, Y);
  put(figure, COL_XOR);
}

void drag_with(const Figure& figure, float X, float Y) {
  put(figure, COL_XOR);
  follow(X, Y);
  put(figure, COL_XOR);
}

void finish_with(const Figure& figure, float X, float Y) {
  put(figure, COL_XOR);
  WORK.DrawMode(COPY);
  follow(X, Y);
  put(figure, COL_A);
  end_preview();
}

// --- ellipses: PT_LAST 1 to 4 holds the rectangle, right and bottom left out

void ellipse() { Ellipse(WORK, PT_LAST(1), PT_LAST(2), PT_LAST(3), PT_LAST(4)); }
Box ellipse_bounds() { return {PT_LAST(1), PT_LAST(2), PT_LAST(3), PT_LAST(4)}; }

// The outline of an ellipse in those bounds: by bands of rows, in each the two arcs.
void outline_to_view(const Box& b) {
  constexpr int BAND = 8;
  if (std::min(b.x2 - b.x1, b.y2 - b.y1) <= 2 * BAND) return to_view(b);
  const double cx = (b.x1 + b.x2 - 1) / 2.0, cy = (b.y1 + b.y2 - 1) / 2.0;
  const double rx = cx - b.x1, ry = cy - b.y1;
  const auto half_width = [&](double from_middle) {
    const double part = std::clamp(from_middle / ry, 0.0, 1.0);
    return rx * std::sqrt(1 - part * part);
  };
  for (int y = b.y1; y < b.y2; y += BAND) {
    const int last = std::min(y + BAND, b.y2) - 1;
    // A pixel's row may be next to that in which the true outline passes.
    const double outer = half_width(std::max({y - cy, cy - last, 0.0}) - 1);
    const double inner = half_width(std::max(std::abs(y - cy), std::abs(last - cy)) + 1);
    to_view({truncate(cx - outer) - 1, y, truncate(cx - inner) + 1, last});
    to_view({truncate(cx + inner) - 1, y, truncate(cx + outer) + 1, last});
  }
}

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
  WORK.FillStyle(filled ? HATCHED : CLEAR);
}

void start_ellipse(bool filled, float X, float Y) {
  prepare(X, Y);
  centre_cross();
  rubber_ellipse_pen(filled);
  PT_LAST(3) = PT_LAST(1);
  PT_LAST(4) = PT_LAST(2);
  to_view(whole_view());
}

void rubber_ellipse_to(float X, float Y) {
  const int x = PT_START(1);
  const int y = PT_START(2);
  const int rx = std::abs(picture_pixel(X) - x);
  const int ry = std::abs(picture_pixel(Y) - y);
  ellipse();
  PT_LAST(1) = x - rx;
  PT_LAST(2) = y - ry;
  PT_LAST(3) = x + rx + 1;
  PT_LAST(4) = y + ry + 1;
  ellipse();
}

void finish_ellipse(bool filled) {
  ellipse();
  centre_cross();
  WORK.DrawMode(COPY);
  WORK.DrawWidth(PEN_SIZE);
  WORK.ForeColor(COL_A);
  WORK.FillColor(COL_A);
  WORK.FillStyle(filled ? SOLID : CLEAR);
  ellipse();
  WORK.FillStyle(CLEAR);
  to_view(whole_view());
  end_preview();
}

// --- chains

// The right button has thrown away what the chain has painted so far: it goes on from its last vertex.
void pick_up_chain() {
  const auto vertex = PT_START;
  prepare(0, 0);
  PT_START = vertex;
  PT_LAST(1) = vertex(1);
  PT_LAST(2) = vertex(2);
  chain_figure(COL_XOR);
}

// --- the rubber box that snaps to blocks, in DRAW pixels

void snapped_box(const Array<int32_t, 1, 4>& r, Colour colour) {
  Line(DRAW, r(1), r(2), r(3), r(4), colour, LineForm::box_fill);
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

void block_box_press(float X, float Y) { press_with(BOX, X, Y); }
void block_box_drag(float X, float Y) { drag_with(BOX, X, Y); }
void block_box_release(float X, float Y) { finish_with(BOX, X, Y); }

void block_line_press(float X, float Y) { press_with(LINE, X, Y); }
void block_line_drag(float X, float Y) { drag_with(LINE, X, Y); }
void block_line_release(float X, float Y) { finish_with(LINE, X, Y); }

// --- Circle, Circlefill

void block_circle_press(float X, float Y) { start_ellipse(false, X, Y); }
void block_circlefill_press(float X, float Y) { start_ellipse(true, X, Y); }

void block_circle_drag(float X, float Y) {
  const Box before = ellipse_bounds();
  rubber_ellipse_to(X, Y);
  if (WORK.FillStyle() == HATCHED) {
    to_view(around(before, ellipse_bounds()));
  } else {
    outline_to_view(before);
    outline_to_view(ellipse_bounds());
  }
}

void block_circle_release(float /*X*/, float /*Y*/) { finish_ellipse(false); }
void block_circlefill_release(float /*X*/, float /*Y*/) { finish_ellipse(true); }

// --- Line(Type2): PEN_DOWN stays 1 from the first press to the closing click

// The rubber line of no length is the dot of a wide pen.
void block_chain_release(float X, float Y) {
  finish_with(LINE, X, Y);
  press_with(CHAIN_LINE, X, Y);
  CUR_TOOL = 12029;
}

void block_chain_hover(float X, float Y) {
  if (PEN_DOWN == 1) drag_with(CHAIN_LINE, X, Y);
}

// The segment is painted; a click where it began closes the chain.
void block_chain_next(float X, float Y) {
  if (!preview_shows()) pick_up_chain();
  put(CHAIN_LINE, COL_XOR);
  follow(X, Y);
  WORK.DrawMode(COPY);
  put(LINE, COL_A);
  WORK.DrawMode(XOR);
  if (PT_LAST(1) == PT_START(1) && PT_LAST(2) == PT_START(2)) {
    CUR_TOOL = 13029;
    return;
  }
  start_at(X, Y);
  line_figure(COL_XOR);  // the rubber line that the release takes away
  CUR_TOOL = 11029;
}

void block_chain_close(float /*X*/, float /*Y*/) {
  if (preview_shows()) end_preview();
}

}  // namespace kiso
