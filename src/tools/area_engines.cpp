// The tools whose release hands the dragged rectangle to an engine.
#include "engines/area_engines.h"

#include "frame/p_win.h"
#include "tools/tools.h"

namespace kiso {

namespace {

constexpr int COPY = 13;

using Engine = void (*)(int x1, int y1, int x2, int y2);

void hand_to(Engine engine, float X, float Y) {
  DRAW.DrawMode(COPY);
  engine(PT_START(1), PT_START(2), to_int32(X), to_int32(Y));
}

void area_to(Engine engine, float X, float Y) {
  area_erase();
  hand_to(engine, X, Y);
}

}  // namespace

void chg_color_release(float X, float Y) { area_to(CHG_COLOR, X, Y); }
void chg_color_rev_release(float X, float Y) { area_to(CHG_COLOR_REV, X, Y); }
void chg_color_fuzzy_release(float X, float Y) { area_to(CHG_COLOR_FUZZY, X, Y); }
void chg_color_fuzzy_rev_release(float X, float Y) { area_to(CHG_COLOR_FUZZY_REV, X, Y); }
void glass_mirror_release(float X, float Y) { area_to(GLASS_MIRROR, X, Y); }

void v_box_release(float X, float Y) {
  box_erase();
  hand_to(V_BOX, X, Y);
}

void block_v_box_release(float X, float Y) {
  snap_erase();
  snap_to_pointer(X, Y);
  V_BOX(RECT_OLD(1), RECT_OLD(2), RECT_OLD(3), RECT_OLD(4));
}

}  // namespace kiso
