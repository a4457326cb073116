// The rows of the drawing library: each a procedure that does its work once and gives the nanoseconds. 9 rounds, the
// rows of a round in random order, medians, and the ratio to the row that is the limit of it.
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <functional>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "picgen.h"
#include "platform/raster/draw.h"

namespace {

using namespace raster;

constexpr int ROUNDS = 9, VIEW_W = 1920, VIEW_H = 1080;

Surface picture(picgen::W, picgen::H), target(picgen::W, picgen::H), view(VIEW_W, VIEW_H), other_view(VIEW_W, VIEW_H),
    thumbnail(200, 200), cells(240, 135);

double now() {
  timespec t{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
  return static_cast<double>(t.tv_sec) * 1e9 + static_cast<double>(t.tv_nsec);
}

double timed(const std::function<void()>& work) {
  const double start = now();
  work();
  return now() - start;
}

size_t bytes(const Surface& s) { return static_cast<size_t>(s.stride()) * static_cast<size_t>(s.height()); }

double copy_picture() {
  return timed([] { std::memcpy(target.row(0), picture.row(0), bytes(picture)); });
}
double copy_view() {
  return timed([] { std::memcpy(other_view.row(0), view.row(0), bytes(view)); });
}
double set_view() {
  return timed([] { std::memset(view.row(0), 0x55, bytes(view)); });
}
double overview() {
  return timed([] { StretchBlt(thumbnail, 0, 0, 200, 200, picture, 0, 0, picgen::W, picgen::H); });
}
double enlarge8() {
  return timed([] { StretchBlt(view, 0, 0, VIEW_W, VIEW_H, cells, 0, 0, VIEW_W / 8, VIEW_H / 8); });
}
double readback8() {
  return timed([] {
    for (int p = 0; p < VIEW_W / 8; ++p) StretchBlt(cells, p, 0, 1, VIEW_H / 8, view, 8 * p + 4, 0, 1, VIEW_H);
  });
}
double blit() {
  return timed([] { BitBlt(other_view, 0, 0, VIEW_W, VIEW_H, view, 0, 0); });
}
double flood(void (*draw)(uint32_t*, int, int, uint32_t), int x, int y) {
  std::vector<uint32_t> pixels(static_cast<size_t>(picgen::W) * picgen::H);
  draw(pixels.data(), picgen::W, picgen::H, 0xFF);
  for (int row = 0; row < picgen::H; ++row)
    std::memcpy(target.row(row), pixels.data() + static_cast<size_t>(row) * picgen::W, picgen::W * 4);
  target.draw.FillColor = RGB(0x20, 0x50, 0xC0);
  return timed([x, y] { ExtFloodFill(target, x, y, WHITE); });
}
double flood_maze() { return flood(picgen::maze, 1, 1); }
double flood_empty() { return flood(picgen::empty, 0, 0); }
double xor_box() {
  view.draw = DrawState{};
  view.draw.DrawMode = 7;
  return timed([] { Line(view, 0, 0, VIEW_W - 1, VIEW_H - 1, WHITE, LineForm::box_fill); });
}
double wide_ellipse() {
  view.draw = DrawState{};
  view.draw.DrawWidth = 33;
  view.draw.FillStyle = 0;
  return timed([] { Ellipse(view, 0, 0, VIEW_W, VIEW_H); });
}
double polygon() {
  view.draw = DrawState{};
  view.draw.FillStyle = 0;
  return timed([] {
    std::vector<Point> star(256);
    for (int i = 0; i < 256; ++i) star[static_cast<size_t>(i)] = {i * 7919 % VIEW_W, i * 104729 % VIEW_H};
    Polygon(view, star.data(), 256);
  });
}

struct Row {
  const char* name;
  double (*run)();
  const char* limit;  // the row that this one is measured against
  double at_most;     // times the limit; 0 where there is only a guide
};
const Row ROWS[] = {
    {"memcpy", copy_picture, "memcpy", 0},
    {"view_memcpy", copy_view, "view_memcpy", 0},
    {"view_memset", set_view, "view_memset", 0},
    {"overview", overview, "memcpy", 0},
    {"enlarge8", enlarge8, "view_memset", 1.8},
    {"readback8", readback8, "view_memset", 0},
    {"blit", blit, "view_memcpy", 1.15},
    {"flood_maze", flood_maze, "memcpy", 18},
    {"flood_empty", flood_empty, "memcpy", 1.1},
    {"xor_box", xor_box, "view_memset", 0},
    {"wide_ellipse", wide_ellipse, "view_memset", 0},
    {"polygon", polygon, "view_memset", 0},
};

}  // namespace

int main() {
  std::vector<uint32_t> pixels(static_cast<size_t>(picgen::W) * picgen::H);
  picgen::picture(pixels.data());
  for (int y = 0; y < picgen::H; ++y)
    std::memcpy(picture.row(y), pixels.data() + static_cast<size_t>(y) * picgen::W, picgen::W * 4);
  BitBlt(cells, 0, 0, cells.width(), cells.height(), picture, 100, 100);
  BitBlt(view, 0, 0, VIEW_W, VIEW_H, picture, 0, 0);

  std::map<std::string, std::vector<double>> times;
  std::vector<const Row*> order;
  for (const Row& row : ROWS) order.push_back(&row);
  std::mt19937 random(1);
  for (int round = 0; round < ROUNDS; ++round) {
    std::shuffle(order.begin(), order.end(), random);
    for (const Row* row : order) times[row->name].push_back(row->run());
  }
  auto median = [&](const std::string& name) {
    std::vector<double>& t = times[name];
    std::nth_element(t.begin(), t.begin() + ROUNDS / 2, t.end());
    return t[ROUNDS / 2];
  };
  std::printf("%-14s %12s %10s  %-12s %s\n", "row", "ms", "ratio", "to", "at most");
  for (const Row& row : ROWS) {
    const double t = median(row.name);
    std::printf("%-14s %12.4f %10.3f  %-12s ", row.name, t / 1e6, t / median(row.limit), row.limit);
    if (row.at_most > 0) std::printf("%.2f", row.at_most);
    std::printf("\n");
  }
}
