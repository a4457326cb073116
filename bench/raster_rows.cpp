// The drawing library beside plain copies and fills of the same memory.
#include <cstring>

#include "harness.h"
#include "pictures.h"

namespace bench {

using namespace raster;

Pictures& pictures() {
  static Pictures all = [] {
    Pictures p;
    picgen::picture(p.picture.row32(0));
    picgen::maze(p.maze.row32(0));
    BitBlt(p.view, 0, 0, VIEW_W, VIEW_H, p.picture, 0, 0);
    BitBlt(p.cells, 0, 0, CELLS_W, CELLS_H, p.picture, 100, 100);
    return p;
  }();
  return all;
}

namespace {

double copy_picture() {
  Pictures& p = pictures();
  return timed([&] { std::memcpy(p.target.row(0), p.picture.row(0), bytes(p.picture)); });
}
double copy_view() {
  Pictures& p = pictures();
  return timed_each(SHORT, [&] { std::memcpy(p.other_view.row(0), p.view.row(0), bytes(p.view)); });
}
double set_view() {
  Pictures& p = pictures();
  return timed_each(SHORT, [&] { std::memset(p.other_view.row(0), 0x55, bytes(p.other_view)); });
}

double overview() {
  Pictures& p = pictures();
  return timed_each(SHORT, [&] { StretchBlt(p.thumbnail, 0, 0, THUMB, THUMB, p.picture, 0, 0, picgen::W, picgen::H); });
}
double enlarge8() {
  Pictures& p = pictures();
  return timed_each(SHORT, [&] { StretchBlt(p.other_view, 0, 0, VIEW_W, VIEW_H, p.cells, 0, 0, CELLS_W, CELLS_H); });
}

// The picture is copied before the clock starts: a fill leaves nothing to fill.
double flood_maze() {
  Pictures& p = pictures();
  std::memcpy(p.target.row(0), p.maze.row(0), bytes(p.maze));
  p.target.draw.FillColor = FILL;
  return timed([&] { ExtFloodFill(p.target, FILL_START, FILL_START, WHITE); });
}
double flood_empty() {
  Pictures& p = pictures();
  p.target.fill(WHITE);
  p.target.draw.FillColor = FILL;
  return timed([&] { ExtFloodFill(p.target, FILL_START, FILL_START, WHITE); });
}

}  // namespace

void add_raster_rows(Rows& rows) {
  rows.push_back({"memcpy", "", copy_picture});
  rows.push_back({"memcpy of the view", "", copy_view});
  rows.push_back({"memset of the view", "", set_view});
  rows.push_back({"overview", "4096 x 4096 into 200 x 200", overview, {{0.10, "ms"}, {1.1, "best peer"}}});
  rows.push_back({"enlarge8", "x8 into 1920 x 1080", enlarge8, {{1.8, "memset of the view"}, {0.20, "pixman"}}});
  rows.push_back({"flood_maze", "corridors of one pixel", flood_maze, {{18, "memcpy"}, {0.52, "OpenCV"}}});
  rows.push_back({"flood_empty", "a white picture", flood_empty, {{1.1, "memcpy"}, {0.25, "OpenCV"}}});
}

}  // namespace bench
