// The fast forms of the engines that work on an area give what their plain forms give.
#include "engines/area_engines.h"
#include "engines/exchange.h"
#include "engines/fuzzy.h"
#include "engines/value.h"
#include "twin.h"

namespace {

using namespace twin;  // NOLINT(google-build-using-namespace)

constexpr uint32_t CASES = 10000;

// Few levels, so that greys, pure hues and colours on a bound come often.
int component(Random& random) { return random.once_in(3) ? 51 * random.between(0, 5) : random.between(0, 255); }

void random_parameters(Random& random) {
  for (int32_t* c : {&TAR_R, &TAR_G, &TAR_B, &DES_R, &DES_G, &DES_B}) *c = component(random);
  if (random.once_in(4)) DES_G = DES_B = DES_R;
  COL_A = RGB(TAR_R, TAR_G, TAR_B);
  COL_B = RGB(DES_R, DES_G, DES_B);
  FUZZY_H = to_int16(random.once_in(4) ? 60 * random.between(0, 3) : random.between(0, 180));
  FUZZY_S = to_int16(random.once_in(3) ? 51 * random.between(0, 5) : random.between(0, 255));
  FUZZY_V = to_int16(random.once_in(3) ? 51 * random.between(0, 5) : random.between(0, 255));
  HSET_V = to_int16(random.once_in(3) ? 50 * random.between(0, 4) : random.between(0, 200));
  PEN_SIZE = to_int16(random.once_in(3) ? random.between(1, 33) : random.between(1, 9));
}

void random_view(Random& random, bool expanded) {
  static int depth = 0;
  const int next = random.once_in(5) ? 8 * random.between(1, 3) : 32;
  if (next != depth) use_depth(next);
  depth = next;
  const int rates[] = {1, 2, 4, 8};
  EXP_RATE = to_int16(expanded ? random.one_of(rates) : 1);
  for (const int axis : {1, 2}) {
    VIEW_PIX(axis) = to_int16(random.between(1, (axis == 1 ? 48 : 12) / (EXP_RATE > 1 ? 4 : 1)));
    VIEW_DOT(axis) = to_int16(VIEW_PIX(axis) * EXP_RATE);
    VIEW_ORG(axis) = to_int16(random.between(0, 3));
    PIC_SIZE(axis) = to_int16(VIEW_ORG(axis) + VIEW_PIX(axis) + random.between(0, 3));
  }
  PIC.Move(0, 0, PIC_SIZE(1), PIC_SIZE(2));
  DRAW.Move(DRAW.Left(), DRAW.Top(), VIEW_DOT(1), VIEW_DOT(2));
  fill_with_noise(PIC, random);
  fill_with_noise(DRAW, random);
}

using Engine = void (*)(int x1, int y1, int x2, int y2);

// What DRAW and the work surface are after the engine, begun on empty work surfaces.
struct After {
  Surface draw, work;
};
After run(Engine engine, PictureBox& work, const std::array<int, 4>& corners, const Surface& draw, bool fast) {
  for (PictureBox* box : {&WORK, &WORK2}) {
    box->Move(0, 0, 1, 1);
    box->Image().fill(WHITE);
  }
  BitBlt(DRAW, 0, 0, draw.width(), draw.height(), draw, 0, 0);
  raster::use_fast_forms(fast);
  engine(corners[0], corners[1], corners[2], corners[3]);
  raster::use_fast_forms(true);
  return {copy_of(DRAW.Image()), copy_of(work.Image())};
}

void expect_twins(Engine engine, PictureBox& work, bool expanded = false) {
  stage::start();
  each_case(CASES, [&](Random& random) {
    random_parameters(random);
    random_view(random, expanded);
    const auto place = [&](int axis) { return random.between(-3, VIEW_DOT(axis) + 2); };
    const std::array<int, 4> corners{place(1), place(2), place(1), place(2)};
    const Surface draw = copy_of(DRAW.Image());
    const After plain = run(engine, work, corners, draw, false);
    const After fast = run(engine, work, corners, draw, true);
    expect_same_bytes(plain.draw, fast.draw);
    expect_same_bytes(plain.work, fast.work);
  });
}

// The loops of the engines that change pixel by pixel, on a surface of random size and depth.
template <class Change>
void expect_twin_loops(Change change) {
  stage::start();
  each_case(CASES, [&](Random& random) {
    random_parameters(random);
    const int depth = random.once_in(5) ? 8 * random.between(1, 3) : 32;
    Surface plain(random.between(1, 70), random.between(1, 6), depth);
    fill_with_noise(plain, random);
    Surface fast = copy_of(plain);
    raster::use_fast_forms(false);
    change(plain);
    raster::use_fast_forms(true);
    change(fast);
    expect_same_bytes(plain, fast);
  });
}
void exchange(Surface& s, Chosen chosen) { exchange_colour(s, COL_B, COL_A, chosen); }
void change_by_range(Surface& s, bool reverse) {
  change_fuzzy(s, {fuzzy_bounds(FUZZY_H, FUZZY_S, FUZZY_V, DES_R, DES_G, DES_B), COL_B, COL_A, reverse});
}

TEST(AreaTwins, ChangeColor) {
  expect_twin_loops([](Surface& s) { exchange(s, Chosen::key); });
}
TEST(AreaTwins, ChangeColorReverse) {
  expect_twin_loops([](Surface& s) { exchange(s, Chosen::all_but_key); });
}
TEST(AreaTwins, FuzzyChangeColor) {
  expect_twin_loops([](Surface& s) { change_by_range(s, false); });
}
TEST(AreaTwins, FuzzyChangeColorReverse) {
  expect_twin_loops([](Surface& s) { change_by_range(s, true); });
}
TEST(AreaTwins, VBox) { expect_twins(V_BOX, WORK2, true); }
TEST(AreaTwins, GlassMirror) { expect_twins(GLASS_MIRROR, WORK); }

// Every colour of a red level, at several factors.
TEST(AreaTwins, BrightnessOfAllColours) {
  stage::start();
  for (const int red : {0, 1, 51, 90, 128, 200, 254, 255}) {
    Surface plain(256, 256);
    for (int g = 0; g < 256; ++g) {
      for (int b = 0; b < 256; ++b) SetPixelV(plain, b, g, RGB(red, g, b));
    }
    Surface fast = copy_of(plain);
    raster::use_fast_forms(false);
    scale_value(plain, 0.37 + red / 128.0);
    raster::use_fast_forms(true);
    scale_value(fast, 0.37 + red / 128.0);
    expect_same_bytes(plain, fast);
  }
}

}  // namespace
