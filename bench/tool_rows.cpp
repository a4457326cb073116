// Moves of the pointer, from event procedure in to out, on a view of 1920 x 1080.
#include <array>
#include <cmath>
#include <random>

#include "editor.h"
#include "harness.h"

namespace bench {

using namespace kiso;  // NOLINT(google-build-using-namespace)

namespace {

constexpr int FREE_MOVES = 100000, RUBBER_MOVES = 200, TICKS = 1000;

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
    move(VIEW_W / 2.0F, VIEW_H / 2.0F, 1);
    release(VIEW_W / 2.0F, VIEW_H / 2.0F);
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

// An area of 1000 x 1000 that floats: at x1 lifted by a drag, at x8 in blocks, or cut out as a ring of 256 vertices,
// whose rectangle is composed anew at each move.
void lift_area(int tool, float side) {
  select_tool(tool, 1);
  press(0, 0);
  move(side, side, 1);
  release(side, side);
}

void cut_ring() {
  constexpr double MIDDLE = 500, TURN = 6.283185307179586;
  const auto vertex = [](int i) {
    const double radius = i % 2 == 0 ? MIDDLE : MIDDLE - 20;
    return Place{static_cast<float>(std::lround(MIDDLE + radius * std::cos(TURN * i / 256))),
                 static_cast<float>(std::lround(MIDDLE + radius * std::sin(TURN * i / 256)))};
  };
  select_tool(28, 1);
  press(vertex(0).x, vertex(0).y);
  move(vertex(1).x, vertex(1).y, 1);
  release(vertex(1).x, vertex(1).y);
  for (int i = 2; i <= 256; ++i) {  // the last one twice
    const Place p = vertex(std::min(i, 255));
    press(p.x, p.y);
    release(p.x, p.y);
  }
}

struct Floating {
  const char* name;
  const char* work;
  int rate;
  void (*lift)();
};
constexpr Floating FLOATING[] = {
    {"float_area1", "an area of 1000 x 1000 that floats, a move", 1, [] { lift_area(20000, 999); }},
    {"float_area8", "the same at x8", 8, [] { lift_area(11100, 999); }},
    {"float_polygon1", "a polygon of that size and 256 vertices", 1, cut_ring},
};

double floating_moves(const Floating& floating, const std::vector<Place>& places) {
  show(pictures().picture, floating.rate);
  floating.lift();
  const double time = timed([&] {
    for (const Place& p : places) move(p.x, p.y, 0);
  });
  select_tool(0, 1);
  return time;
}

// A tick of an air spray: its tile of 33 x 33 goes to the screen, then to the image, and the display is told.
double tick33(int w, int h) {
  show(pictures().picture, 1);
  forms::enter([&] { DRAW.Move(DRAW.Left(), DRAW.Top(), w, h); });
  const auto tick = [] {
    const auto transfer = [] { BitBlt(DRAW, 100, 80, 33, 33, PIC, 100, 80); };
    DRAW.AutoRedraw(false);
    transfer();
    DRAW.AutoRedraw(true);
    transfer();
    DRAW.take_new();
  };
  DRAW.take_new();
  tick();  // the first one brings the whole view along
  return timed_each(TICKS, tick);
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
  for (const Floating& f : FLOATING) {
    rows.push_back({f.name,
                    f.work,
                    [&f] { return floating_moves(f, random_places()); },
                    {{2, "ms"}, {0, "allocations"}},
                    RUBBER_MOVES});
  }
  rows.push_back({"tick33",
                  "a tick of a spray, pen size 33, beside the same in a view of 320 x 200",
                  [] { return tick33(VIEW_W, VIEW_H); },
                  {{1.5, "tick33_small"}}});
  rows.push_back({"tick33_small", "", [] { return tick33(320, 200); }});
}

}  // namespace bench
