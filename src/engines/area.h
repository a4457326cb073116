// The frame of the engines that work once on an area: its rectangle, and how far the work is.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <string>

#include "frame/p_win.h"
#include "frame/usr_sub.h"
#include "windows/wait_win.h"
#include "windows/windows.h"

namespace kiso {

struct Area {
  int left, top, w, h;  // DRAW pixels
};

inline Area area_between(int x1, int y1, int x2, int y2) {
  return {std::min(x1, x2), std::min(y1, y2), std::abs(x1 - x2) + 1, std::abs(y1 - y2) + 1};
}

// What lies outside of DRAW moves to its edge first.
inline Area area_on_draw(int x1, int y1, int x2, int y2) {
  const int right = to_int32(DRAW.ScaleWidth()) - 1;
  const int bottom = to_int32(DRAW.ScaleHeight()) - 1;
  return area_between(std::clamp(x1, 0, right), std::clamp(y1, 0, bottom), std::clamp(x2, 0, right),
                      std::clamp(y2, 0, bottom));
}

// Shows WAIT_WIN with that caption while work runs.
template <class Work>
void with_wait_win(const std::string& caption, Work work) {
  WAIT_SHOW(caption);
  work();
  WAIT_WIN.Unload();
}

// The progress of an engine that walks by columns 0 to w, for a form of it that walks the rows instead: a column is
// told when its part of the rows is done.
template <class Row>
void each_row_told_by_columns(int w, int h, Row row) {
  int x = 0;
  for (int y = 0; y < h; ++y) {
    for (; int64_t{x} * h <= int64_t{y} * w; ++x) WAIT_PROGRESS(x, w);
    row(y);
  }
  for (; x <= w; ++x) WAIT_PROGRESS(x, w);
}

}  // namespace kiso
