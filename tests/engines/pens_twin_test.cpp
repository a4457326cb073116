// The pens' fast forms give what their plain forms give.
#include "engines/pen_engines.h"
#include "engines/spray.h"
#include "engines/tile.h"
#include "twin.h"

namespace {

using namespace twin;  // NOLINT(google-build-using-namespace)

constexpr uint32_t CASES = 10000;

void random_colours(Random& random) {
  const auto component = [&] { return random.once_in(3) ? 255 * random.between(0, 1) : random.between(0, 255); };
  for (int32_t* c : {&TAR_R, &TAR_G, &TAR_B, &DES_R, &DES_G, &DES_B}) *c = component();
  if (random.once_in(4)) DES_R = DES_G = DES_B;
  COL_A = RGB(TAR_R, TAR_G, TAR_B);
  COL_B = RGB(DES_R, DES_G, DES_B);
}

void random_parameters(Random& random) {
  FUZZY_H = to_int16(random.once_in(5) ? random.between(0, 1) * 180 : random.between(0, 60));
  FUZZY_S = to_int16(random.between(0, 255));
  FUZZY_V = to_int16(random.between(0, 255));
  HSET_V = to_int16(random.between(0, 200));
  DEEP_BAL = to_int16(random.between(0, 100));
}

// A view of few blocks in a picture that is a little larger, all surfaces filled.
void random_view(Random& random) {
  static int depth = 0;
  const int next = random.once_in(2) ? 32 : 8 * random.between(1, 4);
  if (next != depth) use_depth(next);
  depth = next;
  const int rates[] = {1, 1, 2, 4, 8};
  EXP_RATE = to_int16(random.one_of(rates));
  PEN_SIZE = to_int16(random.once_in(8) ? random.between(1, 33) : random.between(1, 7));
  for (const int axis : {1, 2}) {
    VIEW_PIX(axis) = to_int16(random.between(1, EXP_RATE == 8 ? 5 : 24 / EXP_RATE));
    VIEW_DOT(axis) = to_int16(VIEW_PIX(axis) * EXP_RATE);
    VIEW_ORG(axis) = to_int16(random.between(0, 3));
    PIC_SIZE(axis) = to_int16(VIEW_ORG(axis) + VIEW_PIX(axis) + random.between(0, 3));
  }
  DRAW.Move(DRAW.Left(), DRAW.Top(), VIEW_DOT(1), VIEW_DOT(2));
  PIC.Move(0, 0, PIC_SIZE(1), PIC_SIZE(2));
  WORK2.Move(0, 0, VIEW_DOT(1), VIEW_DOT(2));
  UNDO.Move(0, 0, VIEW_DOT(1), VIEW_DOT(2));
  M_REDRAW.Move(0, 0, VIEW_DOT(1), VIEW_DOT(2));
  for (PictureBox* box : {&PIC, &DRAW, &WORK2, &UNDO, &M_REDRAW}) fill_with_noise(*box, random);
}

struct Pen {
  const char* name;
  void (*prepare)();
  void (*dab)(float X, float Y);
};
void nothing() {}
void size_work() { size_to_tile(WORK); }
constexpr Pen PENS[] = {
    {"PEN_MASK", size_work, PEN_MASK},
    {"PEN_MASK_REV", size_work, PEN_MASK_REV},
    {"PEN_MASK_FUZZY", size_work, PEN_MASK_FUZZY},
    {"PEN_V", size_work, PEN_V},
    {"SPRAY_DOT", nothing, SPRAY_DOT},
    {"SPRAY_MASK", nothing, SPRAY_MASK},
    {"SPRAY_AIR", SPRAY_AIR_PREP, SPRAY_AIR},
    {"SPRAY_AIR_MASK", SPRAY_AIR_PREP, SPRAY_AIR_MASK},
    {"PEN_THRU", PEN_THRU_PREP, PEN_THRU},
    {"SIDE_CHANGE", nothing, [](float X, float Y) { SIDE_CHANGE(X, Y, 1 + (static_cast<int>(X + Y) & 3)); }},
};

class Twins : public testing::TestWithParam<Pen> {};

TEST_P(Twins, PaintTheSame) {
  const Pen& pen = GetParam();
  stage::start();
  each_case(CASES, [&](Random& random) {
    random_colours(random);
    random_parameters(random);
    random_view(random);
    const Surface draw = copy_of(DRAW);
    const Surface store = copy_of(M_REDRAW);
    const uint32_t row_of_numbers = RND_STATE;
    const int dabs = random.between(1, 3);
    float X[3], Y[3];
    for (int i = 0; i < dabs; ++i) {
      X[i] = static_cast<float>(random.between(-4 * EXP_RATE, 4 * (VIEW_DOT(1) + 4 * EXP_RATE))) / 4;
      Y[i] = static_cast<float>(random.between(-4 * EXP_RATE, 4 * (VIEW_DOT(2) + 4 * EXP_RATE))) / 4;
    }
    const auto paint = [&](bool fast) {
      raster::use_fast_forms(fast);
      BitBlt(DRAW, 0, 0, draw.width(), draw.height(), draw, 0, 0);
      BitBlt(M_REDRAW, 0, 0, store.width(), store.height(), store, 0, 0);
      RND_STATE = row_of_numbers;
      pen.prepare();
      for (int i = 0; i < dabs; ++i) pen.dab(X[i], Y[i]);
    };
    paint(false);
    const Surface plain_draw = copy_of(DRAW);
    const Surface plain_store = copy_of(M_REDRAW);
    paint(true);
    expect_same_bytes(plain_draw, DRAW);
    expect_same_bytes(plain_store, M_REDRAW);
  });
}

INSTANTIATE_TEST_SUITE_P(Pens, Twins, testing::ValuesIn(PENS),
                         [](const testing::TestParamInfo<Pen>& info) { return std::string(info.param.name); });

}  // namespace
