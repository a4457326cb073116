// Line, Box, Boxfill, Reverse, Circle and Circlefill at x1: a rubber figure in XOR on DRAW, which drawn once more is
// gone, and the real one at the release.
#include <cstdlib>

#include "frame/p_win.h"
#include "tools/tools.h"

namespace kiso {

namespace {

void follow(float X, float Y) {
  PT_LAST(1) = to_int32(X);
  PT_LAST(2) = to_int32(Y);
}

// A line runs from its moving end to PT_START, which it leaves out: one pixel wide, it gets that point as a dot.
void line_to_start(int x, int y, Colour colour) { Line(DRAW, x, y, PT_START(1), PT_START(2), colour); }
void start_dot(Colour colour) {
  if (DRAW.DrawWidth() == 1) PSet(DRAW, PT_START(1), PT_START(2), colour);
}

void box(int x, int y, Colour colour, LineForm form) { Line(DRAW, PT_START(1), PT_START(2), x, y, colour, form); }
void rubber_box(LineForm form) { box(PT_LAST(1), PT_LAST(2), COL_XOR, form); }

void centre_cross() {
  constexpr int FAR = 2000;  // DRAW pixels: past every edge of the view
  const int x = PT_START(1);
  const int y = PT_START(2);
  DRAW.DrawWidth(1);
  DRAW.DrawStyle(2);
  Line(DRAW, x - FAR, y - FAR, x + FAR, y + FAR, COL_XOR);
  Line(DRAW, x + FAR, y - FAR, x - FAR, y + FAR, COL_XOR);
  DRAW.DrawStyle(0);
}

void ellipse() { Ellipse(DRAW, PT_LAST(1), PT_LAST(2), PT_LAST(3), PT_LAST(4)); }

void rubber_pen(bool filled) {
  DRAW.DrawMode(XOR);
  DRAW.ForeColor(COL_XOR);
  DRAW.FillColor(COL_XOR);
  DRAW.DrawWidth(filled ? 1 : PEN_SIZE);
  if (filled) DRAW.FillStyle(7);
}

void start_circle(bool filled) {
  DRAW.DrawMode(XOR);
  centre_cross();
  rubber_pen(filled);
  PT_LAST(3) = PT_LAST(1);  // no width and no height: nothing shows
  PT_LAST(4) = PT_LAST(2);
}

void finish_circle(bool filled) {
  ellipse();
  centre_cross();
  DRAW.DrawWidth(PEN_SIZE);
  DRAW.DrawMode(COPY);
  DRAW.ForeColor(COL_A);
  DRAW.FillColor(COL_A);
  if (filled) DRAW.FillStyle(0);
  ellipse();
  DRAW.FillStyle(1);
}

}  // namespace

void line_press(float /*X*/, float /*Y*/) {
  DRAW.DrawMode(XOR);
  line_to_start(PT_LAST(1), PT_LAST(2), COL_XOR);
  start_dot(COL_XOR);
}

void line_drag(float X, float Y) {
  line_to_start(PT_LAST(1), PT_LAST(2), COL_XOR);
  follow(X, Y);
  line_to_start(PT_LAST(1), PT_LAST(2), COL_XOR);
}

void line_erase() {
  line_to_start(PT_LAST(1), PT_LAST(2), COL_XOR);
  start_dot(COL_XOR);
}

void line_release(float X, float Y) {
  line_erase();
  DRAW.DrawMode(COPY);
  line_to_start(to_int32(X), to_int32(Y), COL_A);
  start_dot(COL_A);
}

void box_press(float /*X*/, float /*Y*/) {
  DRAW.DrawMode(XOR);
  rubber_box(LineForm::box);
}

void box_drag(float X, float Y) {
  rubber_box(LineForm::box);
  follow(X, Y);
  rubber_box(LineForm::box);
}

void box_erase() { rubber_box(LineForm::box); }

void box_release(float X, float Y) {
  box_erase();
  DRAW.DrawMode(COPY);
  box(to_int32(X), to_int32(Y), COL_A, LineForm::box);
}

void area_press(float /*X*/, float /*Y*/) {
  DRAW.DrawMode(XOR);
  DRAW.DrawWidth(1);
  rubber_box(LineForm::box_fill);
  p_win::show_size(1, 1);
}

void area_drag(float X, float Y) {
  rubber_box(LineForm::box_fill);
  follow(X, Y);
  rubber_box(LineForm::box_fill);
  p_win::show_size(to_int32(std::abs(X - static_cast<float>(PT_START(1))) + 1),
                   to_int32(std::abs(Y - static_cast<float>(PT_START(2))) + 1));
}

void area_erase() {
  p_win::show_info(" ");
  rubber_box(LineForm::box_fill);
}

void boxfill_release(float X, float Y) {
  area_erase();
  DRAW.DrawMode(COPY);
  follow(X, Y);
  box(PT_LAST(1), PT_LAST(2), COL_A, LineForm::box_fill);
}

// The inversion is the XOR with white, left there.
void reverse_release(float X, float Y) {
  area_erase();
  follow(X, Y);
  box(PT_LAST(1), PT_LAST(2), COL_XOR, LineForm::box_fill);
  DRAW.DrawMode(COPY);
}

void circle_press(float /*X*/, float /*Y*/) { start_circle(false); }
void circlefill_press(float /*X*/, float /*Y*/) { start_circle(true); }

// The press is the centre; right and bottom are left out, so that both halves are as wide.
void circle_drag(float X, float Y) {
  ellipse();
  const int x = PT_START(1);
  const int y = PT_START(2);
  const int dx = to_int32(X - static_cast<float>(x));
  const int dy = to_int32(Y - static_cast<float>(y));
  PT_LAST(1) = x + dx + 1;
  PT_LAST(2) = y + dy + 1;
  PT_LAST(3) = x - dx;
  PT_LAST(4) = y - dy;
  ellipse();
}

void circle_release(float /*X*/, float /*Y*/) { finish_circle(false); }
void circlefill_release(float /*X*/, float /*Y*/) { finish_circle(true); }

}  // namespace kiso
