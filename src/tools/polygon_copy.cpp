// Polygon Copy: a polygon cut out of the picture floats with the pointer. WORK2 holds its pixels on black, WORK the
// rectangle of the picture round the pointer with those pixels in it: every colour is carried, none is a key. At x1
// alone, so DRAW pixels are picture pixels.
#include "frame/p_win.h"
#include "frame/usr_sub.h"
#include "tools/tools.h"

namespace kiso {

namespace {

constexpr Colour BLACK = 0;

// The polygon in one colour, all round it in the other.
void silhouette(PictureBox& box, Colour polygon, Colour rest) {
  box.DrawMode(COPY);
  box.DrawWidth(1);
  box.DrawStyle(0);
  box.FillStyle(0);
  box.ForeColor(polygon);
  box.FillColor(polygon);
  box.BackColor(rest);
  box.Cls();
  Polygon(box, &POLY_PTS(0), POLY_N);
}

void picture_through(PictureBox& mask, int left, int top) {
  BitBlt(mask, 0, 0, AREA_W, AREA_H, PIC, VIEW_ORG(1) + left, VIEW_ORG(2) + top, SRCAND);
}

// The picture as a stamp at that place would leave it: first with a black hole, then with the shape in the hole.
void compose(double left, double top) {
  WORK.Move(left, top, AREA_W, AREA_H);
  silhouette(WORK, BLACK, WHITE);
  picture_through(WORK, to_int32(left), to_int32(top));
  BitBlt(WORK, 0, 0, AREA_W, AREA_H, WORK2, 0, 0, SRCPAINT);
  WORK.Visible(true);
}

// The vertices become relative to their box, which leaves its last column and row out.
void cut_out(Point closed_at) {
  VIEW_REDRAW();
  p_win::show_info(" ");
  POLY_PTS(POLY_N) = closed_at;
  Point min = closed_at;
  Point max = closed_at;
  for (int i = 0; i < POLY_N; ++i) {
    min = {std::min(min.x, POLY_PTS(i).x), std::min(min.y, POLY_PTS(i).y)};
    max = {std::max(max.x, POLY_PTS(i).x), std::max(max.y, POLY_PTS(i).y)};
  }
  for (int i = 0; i <= POLY_N; ++i) POLY_PTS(i) = {POLY_PTS(i).x - min.x, POLY_PTS(i).y - min.y};
  AREA_DX = min.x - closed_at.x;
  AREA_DY = min.y - closed_at.y;
  AREA_W = max.x - min.x;
  AREA_H = max.y - min.y;
  WORK2.Move(0, 0, AREA_W, AREA_H);
  silhouette(WORK2, WHITE, BLACK);
  picture_through(WORK2, min.x, min.y);
  compose(min.x, min.y);
  CUR_TOOL = 8028;
}

}  // namespace

void polygon_copy_next(float X, float Y) {
  if (!polygon_takes_vertex(X, Y)) cut_out({to_int32(X), to_int32(Y)});
}

void polygon_copy_close(float X, float Y) {
  if (on_last_vertex(X, Y)) cut_out({to_int32(X), to_int32(Y)});
}

void polygon_copy_hover(float X, float Y) { compose(X + static_cast<float>(AREA_DX), Y + static_cast<float>(AREA_DY)); }

// A press may come without a move to its place.
void polygon_copy_stamp(float X, float Y) {
  polygon_copy_hover(X, Y);
  stamp_work(WORK.Left(), WORK.Top(), AREA_W, AREA_H);
  CUR_TOOL = 7028;
}

}  // namespace kiso
