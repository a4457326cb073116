// Polygon, Line(Type2) and Bezier Line: tools of several clicks. Vertices are DRAW pixels. Polygon Copy
// (polygon_copy.cpp) collects its vertices here too.
#include "frame/p_win.h"
#include "frame/usr_sub.h"
#include "tools/tools.h"

namespace kiso {

namespace {

constexpr int LAST_PLACE = 255;  // a chain with more vertices than this takes no further one

Point at(float X, float Y) { return {to_int32(X), to_int32(Y)}; }
bool same(Point a, Point b) { return a.x == b.x && a.y == b.y; }
Point last_vertex() { return POLY_PTS(POLY_N - 1); }
void line(Point from, Point to, Colour colour) { Line(DRAW, from.x, from.y, to.x, to.y, colour); }

void follow(Point p) {
  PT_LAST(1) = p.x;
  PT_LAST(2) = p.y;
}
Point start() { return {PT_START(1), PT_START(2)}; }
Point followed() { return {PT_LAST(1), PT_LAST(2)}; }

// The rubber line from the last vertex as it stands on DRAW. By the time that a press takes it away, PT_LAST and the
// pen have moved on.
Point rubber_end;
int rubber_width = 1;

// From here on a line of no length counts as drawn.
void begin_rubber() {
  RUBBER_ON = 1;
  rubber_end = last_vertex();
}

void rubber_to(Point p) {
  if (RUBBER_ON == 0) begin_rubber();  // a repaint has wiped it
  DRAW.DrawMode(XOR);
  line(last_vertex(), rubber_end, COL_XOR);
  line(last_vertex(), p, COL_XOR);
  rubber_end = p;
}

void hover_to(Point p) {
  rubber_width = DRAW.DrawWidth();
  rubber_to(p);
  follow(p);
}

void take_rubber_away() {
  const int pen = DRAW.DrawWidth();
  DRAW.DrawWidth(rubber_width);
  rubber_to(last_vertex());
  DRAW.DrawWidth(pen);
}

void begin_chain(float X, float Y) {
  POLY_PTS(0) = start();
  POLY_PTS(1) = at(X, Y);
  POLY_N = 2;
  begin_rubber();
}

void append(Point p) {
  POLY_PTS(POLY_N) = p;
  ++POLY_N;
  follow(p);
  begin_rubber();
  p_win::show_points_left(POLY_N);
}

// A chain that reaches the limit is dropped, not closed.
void drop_chain() {
  POLY_N = 0;
  p_win::show_info(" ");
  VIEW_REDRAW();
}

// What ends a chain by a double click; the release that follows finds no stroke.
void commit_by_double_click(int16_t base) {
  CUR_TOOL = base;
  VIEW_COMMIT();
  STROKE_STATE = 2;
  UNDO_READY = 1;
  UNDO_BUTTON(0);
  PEN_DOWN = 0;
}

void fill_polygon() {
  DRAW.DrawWidth(1);
  DRAW.DrawMode(COPY);
  DRAW.FillStyle(0);
  DRAW.ForeColor(COL_A);
  DRAW.FillColor(COL_A);
  Polygon(DRAW, &POLY_PTS(0), POLY_N);
  POLY_N = 0;
  p_win::show_info(" ");
}

void paint_segment(Point to) {
  DRAW.DrawMode(COPY);
  DRAW.FillStyle(0);
  POLY_COL(POLY_N - 1) = static_cast<int32_t>(COL_A);
  line(last_vertex(), to, COL_A);
  DRAW.DrawMode(XOR);
}

}  // namespace

// --- Polygon. The rubber lines of the placed edges stay; the fill covers them. The first edge's has the width of the
// pen, and what of it the fill does not cover stays too. The states of both polygon tools are their number and as many
// thousands.

void polygon_press(float /*X*/, float /*Y*/) {
  DRAW.DrawMode(XOR);
  Line(DRAW, PT_START(1), PT_START(2), PT_START(1), PT_START(2), COL_XOR);
  p_win::show_points_left(1);
}

void polygon_release(float X, float Y) {
  line_drag(X, Y);
  begin_chain(X, Y);
  CUR_TOOL = to_int16(CUR_TOOL + 5000);
}

void polygon_hover(float X, float Y) {
  DRAW.DrawWidth(1);
  hover_to(at(X, Y));
}

bool on_last_vertex(float X, float Y) { return same(at(X, Y), last_vertex()); }

bool polygon_takes_vertex(float X, float Y) {
  const Point p = at(X, Y);
  if (!same(p, rubber_end)) take_rubber_away();  // no move has led up to this press
  if (on_last_vertex(X, Y)) return false;
  if (POLY_N > LAST_PLACE) {
    drop_chain();
    CUR_TOOL = to_int16(CUR_TOOL + 2000);
  } else {
    append(p);
    CUR_TOOL = to_int16(CUR_TOOL + 1000);
  }
  return true;
}

void polygon_next(float X, float Y) {
  if (polygon_takes_vertex(X, Y)) return;
  fill_polygon();
  CUR_TOOL = 7027;
}

void polygon_double_click(float X, float Y) {
  if (!on_last_vertex(X, Y)) return;
  fill_polygon();
  commit_by_double_click(27);
}

// --- Line(Type2): each segment is painted at once, all are committed as one stroke. The first is one pixel wide, the
// others as wide as the pen.

void chain_press(float /*X*/, float /*Y*/) {
  DRAW.DrawWidth(1);
  DRAW.DrawMode(XOR);
  Line(DRAW, PT_LAST(1), PT_LAST(2), PT_START(1), PT_START(2), COL_XOR);
}

void chain_release(float X, float Y) {
  line(followed(), start(), COL_XOR);
  begin_chain(X, Y);
  CUR_TOOL = 5029;
  DRAW.DrawMode(COPY);
  DRAW.FillStyle(0);
  line(POLY_PTS(0), POLY_PTS(1), COL_A);
  DRAW.DrawMode(XOR);
  POLY_COL(0) = static_cast<int32_t>(COL_A);
}

void chain_hover(float X, float Y) { hover_to(at(X, Y)); }

void chain_next(float X, float Y) {
  const Point p = at(X, Y);
  take_rubber_away();  // the segment does not cover it where the pen has become smaller since
  if (same(p, last_vertex())) {
    paint_segment(p);
    POLY_N = 0;
    p_win::show_info(" ");
    CUR_TOOL = 7029;
  } else if (POLY_N > LAST_PLACE) {
    drop_chain();
    CUR_TOOL = 7029;
  } else {
    paint_segment(p);
    append(p);
    CUR_TOOL = 6029;
  }
}

// Elsewhere than on the last vertex it is one more press, whose release goes back to 5029.
void chain_double_click(float X, float Y) {
  const bool closes = on_last_vertex(X, Y);
  chain_next(X, Y);
  if (closes) {
    commit_by_double_click(29);
  } else {
    PEN_DOWN = 1;
  }
}

// --- Bezier Line: P0, P0, the pointer, P3

namespace {

void curve_to(Point control) {
  POLY_PTS(0) = POLY_PTS(1) = {BEZ_P0(1), BEZ_P0(2)};
  POLY_PTS(2) = control;
  POLY_PTS(3) = {BEZ_P3(1), BEZ_P3(2)};
  PolyBezier(DRAW, &POLY_PTS(0));
}

void rubber_curve() {
  DRAW.DrawMode(XOR);
  DRAW.DrawWidth(rubber_width);
  DRAW.ForeColor(COL_XOR);
  curve_to(followed());
}

void show_curve() {
  rubber_curve();
  RUBBER_ON = 1;
}

void hide_curve() {
  if (RUBBER_ON == 1) rubber_curve();
  RUBBER_ON = 0;
}

void end_rubber_to(Point p) {
  if (RUBBER_ON == 0) follow(start());  // a repaint has wiped it
  DRAW.DrawMode(XOR);
  DRAW.DrawWidth(rubber_width);
  line(followed(), start(), COL_XOR);
  follow(p);
  line(followed(), start(), COL_XOR);
  RUBBER_ON = 1;
}

void end_point(Point p) {
  BEZ_P3(1) = p.x;
  BEZ_P3(2) = p.y;
  follow(p);
  show_curve();
  CUR_TOOL = 1031;
}

}  // namespace

void bezier_release(float X, float Y) {
  line_erase();
  rubber_width = DRAW.DrawWidth();
  DRAW.ForeColor(COL_XOR);
  BEZ_P0(1) = PT_START(1);
  BEZ_P0(2) = PT_START(2);
  BEZ_P3(1) = to_int32(X);
  BEZ_P3(2) = to_int32(Y);
  if (!same(at(X, Y), start())) {
    end_point(at(X, Y));
    return;
  }
  follow(start());  // a line of no length counts as drawn
  RUBBER_ON = 1;
  CUR_TOOL = 5031;
}

void bezier_end_hover(float X, float Y) { end_rubber_to(at(X, Y)); }

void bezier_end_press(float X, float Y) {
  if (same(at(X, Y), start())) return;
  end_rubber_to(start());
  rubber_width = PEN_SIZE;
  end_point(at(X, Y));
}

void bezier_bend(float X, float Y) {
  hide_curve();
  follow(at(X, Y));
  show_curve();
}

void bezier_press(float X, float Y) {
  hide_curve();
  follow(at(X, Y));
  DRAW.DrawMode(COPY);
  DRAW.DrawWidth(PEN_SIZE);
  DRAW.ForeColor(COL_A);
  curve_to(followed());
  CUR_TOOL = 2031;
}

}  // namespace kiso
