// The engines that work on an area: their pixel loops alone on a surface of the picture's size, and the whole
// procedures as after a drag over the whole picture.
#include <cstring>

#include "editor.h"
#include "engines/area_engines.h"
#include "engines/exchange.h"
#include "engines/fuzzy.h"
#include "engines/value.h"
#include "harness.h"
#include "windows/wait_win.h"
#include "windows/windows.h"

namespace bench {

using namespace kiso;  // NOLINT(google-build-using-namespace)

namespace {

constexpr Colour KEY = RGB(picgen::KEY >> 16, picgen::KEY >> 8 & 255, picgen::KEY & 255);
constexpr Colour TARGET = RGB(picgen::TARGET >> 16, picgen::TARGET >> 8 & 255, picgen::TARGET & 255);
constexpr int PERCENT = 60;

FuzzyRule near_key(bool reverse) {
  return {fuzzy_bounds(20, 40, 40, picgen::KEY >> 16, picgen::KEY >> 8 & 255, picgen::KEY & 255), KEY, TARGET, reverse};
}

void exchange(Surface& s) { exchange_colour(s, KEY, TARGET, Chosen::key); }
void exchange_reverse(Surface& s) { exchange_colour(s, KEY, TARGET, Chosen::all_but_key); }
void change_near(Surface& s) { change_fuzzy(s, near_key(false)); }
void change_far(Surface& s) { change_fuzzy(s, near_key(true)); }
void scale(Surface& s) { scale_value(s, PERCENT / 100.0); }

using Loops = void (*)(Surface&);

// The picture's colours in another order: no two pixels alike side by side.
const Surface& random_colours() {
  static const Surface noise = [] {
    Surface s(picgen::W, picgen::H);
    uint32_t* p = s.row32(0);
    for (uint32_t i = 0; i < uint32_t{picgen::W} * picgen::H; ++i) p[i] = 0xFF000000U | picgen::hash32(i);
    return s;
  }();
  return noise;
}

double on(const Surface& picture, Loops loops) {
  Surface& s = pictures().target;
  std::memcpy(s.row(0), picture.row(0), bytes(s));
  return timed([&] { loops(s); });
}

double read_and_write() {
  Surface& s = pictures().target;
  return timed([&] {
    uint32_t* p = s.row32(0);
    for (size_t i = 0; i < bytes(s) / 4; ++i) p[i] ^= 0x10101;
  });
}

double with_two_copies(Loops loops) {
  Pictures& p = pictures();
  return timed([&] {
    std::memcpy(p.target.row(0), p.picture.row(0), bytes(p.picture));
    loops(p.target);
    std::memcpy(WORK.Image().row(0), p.target.row(0), bytes(p.target));
  });
}

// DRAW shows the whole picture, and the work surfaces have their sizes from the drag before.
void show_whole_picture() {
  show(pictures().picture, 1, picgen::W, picgen::H);
  for (PictureBox* box : {&WORK, &WORK2}) box->Move(0, 0, picgen::W, picgen::H);
  const auto components = [](Colour c, int32_t& r, int32_t& g, int32_t& b) { unpack_colour(c, r, g, b); };
  components(KEY, DES_R, DES_G, DES_B);
  components(TARGET, TAR_R, TAR_G, TAR_B);
  COL_A = TARGET;
  FUZZY_H = 20;
  FUZZY_S = FUZZY_V = 40;
  HSET_V = PERCENT;
}

using Engine = void (*)(int, int, int, int);

double whole(Engine engine) {
  show_whole_picture();
  return timed([&] { forms::enter([&] { engine(0, 0, picgen::W - 1, picgen::H - 1); }); });
}

double glass(int pen_size) {
  PEN_SIZE = to_int16(pen_size);
  return whole(GLASS_MIRROR);
}

double ticks() {
  show(pictures().picture, 1);
  WAIT_SHOW("");
  const double time = timed([] {
    for (int i = 0; i <= picgen::W; ++i) WAIT_PROGRESS(i, picgen::W);
  });
  WAIT_WIN.Unload();
  return time;
}

struct EngineRow {
  const char* name;
  const char* work;
  Loops loops;
  Engine engine;
  std::vector<Goal> goals;
};
const EngineRow ENGINES[] = {
    {"replace", "exact exchange", exchange, CHG_COLOR, {{1.0, "read and write"}, {0.22, "OpenCV"}}},
    {"replace_reverse", "the reverse", exchange_reverse, CHG_COLOR_REV, {{1.0, "read and write"}}},
    {"fuzzy", "colours near E04030, H 20 S 40 V 40", change_near, CHG_COLOR_FUZZY, {{4.0, "memcpy"}, {0.30, "OpenCV"}}},
    {"fuzzy_reverse", "the reverse", change_far, CHG_COLOR_FUZZY_REV, {{4.0, "memcpy"}}},
    {"vscale", "value by 60 percent", scale, V_BOX, {{12, "memcpy"}, {0.65, "OpenCV"}}},
};

}  // namespace

void add_engine_rows(Rows& rows) {
  rows.push_back({"read and write", "", read_and_write});
  for (const EngineRow& e : ENGINES) {
    const std::string limit = std::string(e.name) + " and two copies";
    rows.push_back({e.name, e.work, [&e] { return on(pictures().picture, e.loops); }, e.goals});
    rows.push_back({limit, "", [&e] { return show_whole_picture(), with_two_copies(e.loops); }});
    rows.push_back({std::string(e.name) + "_whole",
                    "the same from the release to the result on DRAW",
                    [&e] { return whole(e.engine); },
                    {{1.05, limit}}});
  }
  rows.push_back(
      {"fuzzy_noise", "fuzzy on random colours", [] { return on(random_colours(), change_near); }, {{8, "memcpy"}}});
  rows.push_back(
      {"vscale_noise", "vscale on random colours", [] { return on(random_colours(), scale); }, {{24, "memcpy"}}});
  rows.push_back({"glass4", "Glass Mirror of the picture, pen size 4", [] { return glass(4); }, {{3, "memcpy"}}});
  rows.push_back({"glass33", "the same, pen size 33", [] { return glass(33); }, {{3, "memcpy"}}});
  rows.push_back({"progress", "all ticks of the bar over 4096 columns", ticks, {{0.3, "ms"}}});
}

}  // namespace bench
