// CHG_COLOR and its relatives.
#include "engines/area.h"
#include "engines/area_engines.h"
#include "engines/exchange.h"
#include "engines/fuzzy.h"

namespace kiso {

namespace {

// change gets WORK with the area's part of the picture on it, and tells how far it is.
template <class Change>
void change_area(const char* caption, const Area& area, Change change) {
  SET_CURSOR("WAIT");
  WORK.Move(WORK.Left(), WORK.Top(), area.w, area.h);
  BitBlt(WORK, 0, 0, area.w, area.h, PIC, VIEW_ORG(1) + area.left, VIEW_ORG(2) + area.top);
  with_wait_win(caption, [&] { change(WORK.Image()); });
  BitBlt(DRAW, area.left, area.top, area.w, area.h, WORK, 0, 0);
  SET_CURSOR("NORMAL");
}

void exchange(const char* caption, const Area& area, Chosen chosen) {
  change_area(caption, area, [&](Surface& s) { exchange_colour(s, RGB(DES_R, DES_G, DES_B), COL_A, chosen); });
}

void change_near(const char* caption, const Area& area, bool reverse) {
  const FuzzyRule rule{fuzzy_bounds(FUZZY_H, FUZZY_S, FUZZY_V, DES_R, DES_G, DES_B), RGB(DES_R, DES_G, DES_B), COL_A,
                       reverse};
  change_area(caption, area, [&](Surface& s) { change_fuzzy(s, rule); });
}

}  // namespace

void CHG_COLOR(int x1, int y1, int x2, int y2) {
  exchange("Change Color処理中", area_between(x1, y1, x2, y2), Chosen::key);
}
void CHG_COLOR_REV(int x1, int y1, int x2, int y2) {
  exchange("Rev.Change Color処理中", area_between(x1, y1, x2, y2), Chosen::all_but_key);
}
void CHG_COLOR_FUZZY(int x1, int y1, int x2, int y2) {
  change_near("Fuzzy Change Color処理中", area_between(x1, y1, x2, y2), false);
}
void CHG_COLOR_FUZZY_REV(int x1, int y1, int x2, int y2) {
  change_near("Reverse Fuzzy Change Color処理中", area_between(x1, y1, x2, y2), true);
}

}  // namespace kiso
