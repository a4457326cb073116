// What a stroke costs when it ends: the view is read back into the picture, after a snapshot of what was there.
#include <cstring>

#include "editor.h"
#include "harness.h"
#include "platform/raster/read_back.h"

namespace bench {

using namespace kiso;  // NOLINT(google-build-using-namespace)

namespace {

double commit(int rate) {
  show(pictures().picture, rate);
  return timed_each(SHORT, VIEW_COMMIT);
}
double commit1() { return commit(1); }
double commit8() { return commit(8); }

void read_back_cells() { read_back(pictures().cells, 0, 0, CELLS_W, CELLS_H, pictures().view, 0, 0, 8); }

double readback8() { return timed_each(SHORT, read_back_cells); }

double commit8_limit() {
  Pictures& p = pictures();
  return timed_each(SHORT, [&] {
    for (int i = 0; i < 3; ++i) read_back_cells();
    BitBlt(p.other_view, 0, 0, CELLS_W, CELLS_H, p.picture, 0, 0);
  });
}

// Several in one measurement, each on a picture that is not yet filled.
template <class Work>
double timed_on(const Surface& picture, Work&& work) {
  constexpr int TIMES = 5;
  double time = 0;
  for (int i = 0; i < TIMES; ++i) {
    show(picture, 1);
    time += timed(work);
  }
  return time / TIMES;
}

// A fill of the view and its commit, without an event.
double fill_limit(const Surface& picture) {
  return timed_on(picture, [] {
    DRAW.FillStyle(0);
    DRAW.FillColor(FILL);
    ExtFloodFill(DRAW, FILL_START, FILL_START, WHITE);
    VIEW_COMMIT();
  });
}

double fill_click(const Surface& picture) {
  show(picture, 1);
  select_tool(8, 1);
  return timed_on(picture, [] {
    press(FILL_START, FILL_START);
    release(FILL_START, FILL_START);
  });
}

const Surface& white() {
  pictures().target.fill(WHITE);
  return pictures().target;
}

double fill_limit_maze() { return fill_limit(pictures().maze); }
double fill_limit_empty() { return fill_limit(white()); }
double fill_click_maze() { return fill_click(pictures().maze); }
double fill_click_empty() { return fill_click(white()); }

}  // namespace

void add_commit_rows(Rows& rows) {
  rows.push_back(
      {"readback8", "x8 view of 1920 x 1080 into picture pixels", readback8, {{0.03, "ms"}, {1.1, "best peer"}}});
  rows.push_back({"commit1", "VIEW_COMMIT at x1", commit1, {{2.5, "memcpy of the view"}}});
  rows.push_back({"3 readback8 and a snapshot", "", commit8_limit});
  rows.push_back({"commit8", "VIEW_COMMIT at x8", commit8, {{1.0, "3 readback8 and a snapshot"}, {0.1, "ms"}}});
  rows.push_back({"fill and commit of a maze", "", fill_limit_maze});
  rows.push_back({"fill and commit of white", "", fill_limit_empty});
  // Equal work; a twentieth is the noise of two medians.
  rows.push_back({"paint_maze",
                  "a click of Paint A, from press to release",
                  fill_click_maze,
                  {{1.05, "fill and commit of a maze"}}});
  rows.push_back({"paint_empty", "the same on white", fill_click_empty, {{1.05, "fill and commit of white"}}});
}

}  // namespace bench
