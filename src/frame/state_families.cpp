#include "frame/state_families.h"

#include <algorithm>
#include <array>

#include "frame/p_win.h"

namespace kiso {

namespace {

struct Family {
  std::array<int16_t, 5> states;  // the base first; 0 where there are fewer
  uint8_t falls;                  // causes
  uint8_t drops_points;           // causes that also set POLY_N to 0
  bool hides_work;
};

constexpr uint8_t BY_ALL_BUT_FIT = BY_SCROLL | BY_RIGHT | BY_BLANK | BY_UNDO;
constexpr uint8_t BY_NOT_UNDO = BY_SCROLL | BY_RIGHT | BY_BLANK;

// A scroll leaves a curve alone, and the right button the chain at expansion.
constexpr Family FAMILIES[] = {
    {{27, 5027, 6027, 7027}, BY_ALL_BUT_FIT, BY_NOT_UNDO, false},
    {{28, 5028, 6028, 7028, 8028}, BY_ALL_BUT_FIT, BY_NOT_UNDO, true},
    {{29, 5029, 6029, 7029}, BY_ALL_BUT_FIT, BY_NOT_UNDO, true},
    {{31, 5031, 1031, 2031}, BY_RIGHT | BY_BLANK, 0, false},
    {{11029, 12029, 13029}, BY_SCROLL | BY_BLANK | BY_UNDO | BY_FIT, BY_SCROLL, true},
    // Of the copies of an area only the stamp falls: one that floats outlives all of this.
    {{20000, 20002}, BY_RIGHT | BY_BLANK, 0, true},
    {{11100, 11102}, BY_RIGHT | BY_BLANK, 0, true},
};

}  // namespace

void fall_back(FallCause cause) {
  if (CUR_TOOL == 11010 && cause != BY_FIT) {
    WORK.DrawWidth(1);
    WORK.DrawMode(13);
  }
  for (const Family& family : FAMILIES) {
    if (CUR_TOOL == 0 || std::ranges::find(family.states, CUR_TOOL) == family.states.end()) continue;
    if ((family.falls & cause) == 0) return;
    CUR_TOOL = family.states.front();
    if ((family.drops_points & cause) != 0) POLY_N = 0;
    if (family.hides_work) WORK.Visible(false);
    p_win::show_info(" ");
    return;
  }
}

}  // namespace kiso
