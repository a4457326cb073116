// The pens that compute on pixels, pen size 33, from event procedure in to out, on a view of 1920 x 1080.
#include <algorithm>
#include <string>

#include "editor.h"
#include "harness.h"

namespace bench {

using namespace kiso;  // NOLINT(google-build-using-namespace)

namespace {

constexpr int SIZE = 33, DABS = 200;

struct Pen {
  const char* name;
  int tool;
  bool ticks;  // paints by the timer
};
constexpr Pen PENS[] = {
    {"mask", 10, false},     {"mask_rev", 11, false}, {"mask_fuzzy", 23, false}, {"v", 33, false},
    {"side", 13, false},     {"spray", 21, true},     {"spray_mask", 22, true},  {"air", 34, false},
    {"air_mask", 35, false}, {"thru", 36, false},
};

void set_out(int tool, int rate) {
  show(pictures().picture, rate);
  select_tool(tool, SIZE);
  unpack_colour(GetPixel(PIC, 50, 50), DES_R, DES_G, DES_B);
  FUZZY_H = 60, FUZZY_S = FUZZY_V = 80;
  HSET_V = 90;
  DEEP_BAL = 50;
  press(200, 200);
}

void give_up() {
  forms::enter([] { DROP_STROKE(); });
  Timer1.Interval(0);
}

// A slow stroke: each move is the next picture pixel.
double dabs(int tool, int rate) {
  set_out(tool, rate);
  const double time = timed([rate] {
    for (int i = 1; i <= DABS; ++i) move(static_cast<float>(200 + i % 64 * rate), static_cast<float>(200 + i), 1);
  });
  give_up();
  return time;
}

double ticks(int tool, int rate) {
  set_out(tool, rate);
  const double time = timed([] {
    for (int i = 0; i < DABS; ++i) forms::enter([] { Timer1.Tick.fire(-1); });
  });
  give_up();
  return time;
}

// What a dab at x8 writes, on the screen and behind it.
double fill_written() {
  return timed_each(SHORT, [] {
    for (Surface* s : {&pictures().view, &pictures().other_view}) {
      for (int y = 200; y < 200 + 8 * SIZE; ++y) std::fill_n(s->row32(y) + 200, 8 * SIZE, 0xFF102030U);
    }
  });
}

}  // namespace

void add_pen_rows(Rows& rows) {
  for (const int rate : {1, 8}) {
    for (const Pen& pen : PENS) {
      const std::string name = (pen.ticks ? "tick" : "dab") + std::to_string(rate) + "_" + pen.name;
      const auto work = pen.ticks ? ticks : dabs;
      rows.push_back({name,
                      "pen size 33 at x" + std::to_string(rate),
                      [&pen, rate, work] { return work(pen.tool, rate); },
                      {{pen.ticks ? 100.0 : 50.0, "us"}, {0, "allocations"}},
                      DABS});
    }
  }
  rows.push_back({"memset of the dab", "", fill_written});
  rows.push_back({"dab",
                  "the mask pen of 33 at x8 beside what it writes",
                  [] { return dabs(10, 8) / DABS; },
                  {{3, "memset of the dab"}, {0.02, "ms"}}});
  rows.push_back({"tick", "AirSpray, pen size 33 at x1", [] { return ticks(34, 1) / DABS; }, {{0.1, "ms"}}});
}

}  // namespace bench
