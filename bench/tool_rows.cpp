// Moves of the pointer, from event procedure in to out, on a view of 1920 x 1080.
#include <array>
#include <random>

#include "editor.h"
#include "harness.h"

namespace bench {

using namespace kiso;  // NOLINT(google-build-using-namespace)

namespace {

constexpr int FREE_MOVES = 100000, RUBBER_MOVES = 200;

struct Place {
  float x, y;
};
std::vector<Place> random_places() {
  std::vector<Place> out(RUBBER_MOVES);
  std::mt19937 random(1);
  for (Place& p : out) p = {static_cast<float>(random() % VIEW_W), static_cast<float>(random() % VIEW_H)};
  return out;
}

// A stroke that goes on and on, three pixels right and one down at a time.
double freeline(const Surface& picture) {
  show(picture, 1);
  select_tool(2, 3);
  press(0, 0);
  const double time = timed([] {
    for (int i = 1; i <= FREE_MOVES; ++i) move(static_cast<float>(i * 3 % VIEW_W), static_cast<float>(i % VIEW_H), 1);
  });
  release(0, 0);
  return time;
}

struct Rubber {
  const char* name;
  const char* work;
  int tool, rate;
  bool hovers;  // its figure follows the pointer after the first two points, button up
};
constexpr Rubber RUBBERS[] = {
    {"rubber_line1", "Line at x1, a move between random places", 3, 1, false},
    {"rubber_boxfill1", "Boxfill", 5, 1, false},
    {"rubber_ellipse1", "Circle", 6, 1, false},
    {"rubber_polygon1", "Polygon", 27, 1, true},
    {"rubber_line8", "Line at x8", 11010, 8, false},
    {"rubber_boxfill8", "Boxfill at x8", 11002, 8, false},
    {"rubber_ellipse8", "Circle at x8", 11004, 8, false},
    {"rubber_polygon8", "Polygon at x8", 27, 8, true},
};

double rubber_moves(const Rubber& rubber, const std::vector<Place>& places) {
  show(pictures().picture, rubber.rate);
  select_tool(rubber.tool, 1);
  press(0, 0);
  if (rubber.hovers) {
    move(VIEW_W / 2, VIEW_H / 2, 1);
    release(VIEW_W / 2, VIEW_H / 2);
  }
  const double time = timed([&] {
    for (const Place& p : places) move(p.x, p.y, rubber.hovers ? 0 : 1);
  });
  forms::enter([] { DROP_STROKE(); });
  return time;
}

// Between the whole view and the whole view but a block.
std::vector<Place> far_corners() {
  std::vector<Place> out;
  for (int i = 0; i < RUBBER_MOVES / 2; ++i) {
    out.push_back({VIEW_W - 1, VIEW_H - 9});  // at x8 the view ends 8 pixels earlier
    out.push_back({VIEW_W - 9, VIEW_H - 17});
  }
  return out;
}

}  // namespace

void add_tool_rows(Rows& rows) {
  rows.push_back({"freeline",
                  "FreeLine, pen size 3, a move",
                  [] { return freeline(pictures().picture); },
                  {{20, "us"}, {0, "allocations"}},
                  FREE_MOVES});
  rows.push_back({"freeline_small",
                  "the same on a picture of the view's size",
                  [] { return freeline(pictures().view); },
                  {{20, "us"}, {0, "allocations"}},
                  FREE_MOVES});
  for (const Rubber& r : RUBBERS) {
    rows.push_back({r.name, r.work, [&r] { return rubber_moves(r, random_places()); }, {{1, "ms"}}, RUBBER_MOVES});
  }
  rows.push_back({"largest_boxfill1",
                  "Boxfill of the whole view",
                  [] { return rubber_moves(RUBBERS[1], far_corners()); },
                  {{3, "ms"}},
                  RUBBER_MOVES});
  rows.push_back({"largest_boxfill8",
                  "the same at x8",
                  [] { return rubber_moves(RUBBERS[5], far_corners()); },
                  {{3, "ms"}},
                  RUBBER_MOVES});
}

}  // namespace bench
