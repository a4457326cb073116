#include "frame/state_families.h"

#include <algorithm>
#include <array>

#include "frame/p_win.h"

namespace kiso {

namespace {

struct Family {
  std::array<int16_t, 5> states;  // the base first; 0 where there are fewer
  uint8_t falls;                  // causes
  uint8_t drops_points = 0;       // causes that also set POLY_N to 0
  bool hides_work = false;
  bool gives_work_its_pen = false;
};

constexpr uint8_t BY_ALL_FOUR = BY_SCROLL | BY_RIGHT | BY_BLANK | BY_UNDO;
constexpr uint8_t BY_NOT_UNDO = BY_SCROLL | BY_RIGHT | BY_BLANK;

// A scroll leaves a curve alone, and the right button the chain at expansion. The first row of a state counts.
constexpr Family FAMILIES[] = {
    {.states = {27, 5027, 6027, 7027}, .falls = BY_ALL_FOUR, .drops_points = BY_NOT_UNDO},
    {.states = {28, 5028, 6028, 7028, 8028}, .falls = BY_ALL_FOUR, .drops_points = BY_NOT_UNDO, .hides_work = true},
    {.states = {29, 5029, 6029, 7029}, .falls = BY_ALL_FOUR, .drops_points = BY_NOT_UNDO, .hides_work = true},
    {.states = {31, 5031, 1031, 2031}, .falls = BY_RIGHT | BY_BLANK},
    {.states = {11010}, .falls = BY_ALL_FOUR, .gives_work_its_pen = true},
    {.states = {11029, 12029, 13029},
     .falls = BY_SCROLL | BY_BLANK | BY_UNDO | BY_FIT,
     .drops_points = BY_SCROLL,
     .hides_work = true},
    // Of the copies of an area only the stamp falls: one that floats outlives all of this. It was lifted in the blocks
    // of its expansion, though, and does not go along to a smaller one.
    {.states = {20000, 20002}, .falls = BY_RIGHT | BY_BLANK, .hides_work = true},
    {.states = {11100, 11102}, .falls = BY_RIGHT | BY_BLANK, .hides_work = true},
    {.states = {11100, 11101}, .falls = BY_ZOOM_OUT, .hides_work = true},
};

}  // namespace

void fall_back(FallCause cause) {
  for (const Family& family : FAMILIES) {
    if (CUR_TOOL == 0 || std::ranges::find(family.states, CUR_TOOL) == family.states.end()) continue;
    if ((family.falls & cause) == 0) return;
    CUR_TOOL = family.states.front();
    if ((family.drops_points & cause) != 0) POLY_N = 0;
    if (family.hides_work) WORK.Visible(false);
    if (family.gives_work_its_pen) {
      WORK.DrawWidth(1);
      WORK.DrawMode(COPY);
    }
    p_win::show_info(" ");
    return;
  }
}

}  // namespace kiso
