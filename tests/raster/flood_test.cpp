#include "platform/raster/fast.h"
#include "raster_testing.h"

namespace raster {
namespace {

// Pixel by pixel from the start on, by a list of what is still to be looked at. Gives the pixels filled.
std::vector<char> filled_plainly(const Surface& s, int x, int y, Colour colour, bool border) {
  std::vector<char> filled(static_cast<size_t>(s.width()) * static_cast<size_t>(s.height()));
  std::vector<Point> waiting = {{x, y}};
  while (!waiting.empty()) {
    const Point p = waiting.back();
    waiting.pop_back();
    const Colour c = GetPixel(s, p.x, p.y);
    if (c == CLR_INVALID || (c == colour) == border) continue;
    char& mark = filled[static_cast<size_t>(p.y) * static_cast<size_t>(s.width()) + static_cast<size_t>(p.x)];
    if (mark != 0) continue;
    mark = 1;
    for (const Point d : {Point{1, 0}, Point{-1, 0}, Point{0, 1}, Point{0, -1}})
      waiting.push_back({p.x + d.x, p.y + d.y});
  }
  return filled;
}

void expect_filled(Surface& s, int x, int y, Colour colour, bool border, Colour fill) {
  const std::vector<char> filled = filled_plainly(s, x, y, colour, border);
  const Surface before = copy_of(s);
  s.draw.FillColor = fill;
  s.take_touched();
  if (border)
    FloodFill(s, x, y, colour);
  else
    ExtFloodFill(s, x, y, colour);
  Rect box{s.width(), s.height(), 0, 0};
  for (int py = 0; py < s.height(); ++py) {
    for (int px = 0; px < s.width(); ++px) {
      const bool mark = filled[static_cast<size_t>(py) * static_cast<size_t>(s.width()) + static_cast<size_t>(px)] != 0;
      ASSERT_EQ(GetPixel(s, px, py), mark ? s.to_colour(s.to_pixel(fill)) : GetPixel(before, px, py))
          << px << "," << py << " depth " << s.depth() << " from " << x << "," << y;
      if (mark)
        box = {std::min(box.left, px), std::min(box.top, py), std::max(box.right, px + 1),
               std::max(box.bottom, py + 1)};
    }
  }
  const Rect touched = s.take_touched();
  ASSERT_EQ(touched.empty(), box.empty());
  if (box.empty()) return;
  ASSERT_EQ(touched.left, box.left);
  ASSERT_EQ(touched.top, box.top);
  ASSERT_EQ(touched.right, box.right);
  ASSERT_EQ(touched.bottom, box.bottom);
}

// Black and white with about that share of black in 1000.
void make_speckles(Surface& s, Random& random, uint32_t black) {
  for (int y = 0; y < s.height(); ++y)
    for (int x = 0; x < s.width(); ++x) SetPixelV(s, x, y, random() % 1000 < black ? BLACK : WHITE);
}

TEST(Flood, FillsWhatIsConnectedAtEveryDepth) {
  Random random(30);
  for (int round = 0; round < 900; ++round) {
    use_fast_forms(round % 3 != 0);
    static constexpr int DEPTHS[] = {32, 32, 24, 16, 8};
    Surface s(between(random, 1, 150), between(random, 1, 60), DEPTHS[random() % 5]);
    static constexpr uint32_t BLACKS[] = {0, 2, 50, 250, 400, 450, 600};
    make_speckles(s, random, BLACKS[random() % 7]);
    const int x = between(random, -1, s.width()), y = between(random, -1, s.height());
    const bool border = random() % 2 != 0;
    const Colour at = GetPixel(s, x, y),
                 colour = border ? (random() % 2 != 0 ? BLACK : RED) : (random() % 4 != 0 ? at : RED);
    static constexpr Colour FILLS[] = {BLACK, WHITE, GREEN, BLUE};
    expect_filled(s, x, y, colour == CLR_INVALID ? WHITE : colour, border, FILLS[random() % 4]);
    if (HasFatalFailure()) return;
    if (s.depth() == 32) expect_opaque(s);
  }
}

// Corridors of one pixel that wind from one end to the other, so that the fill comes to each part many times.
TEST(Flood, FollowsSpiralsAndCombs) {
  constexpr int SIDE = 203;
  Surface spiral(SIDE, SIDE, 32, BLACK), comb(SIDE, SIDE, 32, BLACK);
  auto dig = [&](int x1, int y1, int x2, int y2) { Line(spiral, x1, y1, x2, y2, WHITE, LineForm::box_fill); };
  for (int near = 1; near < SIDE / 2; near += 2) {
    const int far = SIDE - 1 - near;
    dig(near, near, far, near);
    dig(far, near, far, far);
    dig(far, far, near, far);
    dig(near, far, near, near + 2);
    dig(near, near + 2, near + 2, near + 2);
  }
  for (int x = 1; x < SIDE; x += 2) {
    Line(comb, x, 1, x, SIDE - 1, WHITE);
    SetPixelV(comb, x + 1, x % 4 == 1 ? 1 : SIDE - 2, WHITE);
  }
  expect_filled(spiral, 1, 1, WHITE, false, RED);
  expect_filled(comb, 1, 1, WHITE, false, RED);
  Surface turned(SIDE, SIDE);
  for (int y = 0; y < SIDE; ++y)
    for (int x = 0; x < SIDE; ++x) SetPixelV(turned, y, x, GetPixel(comb, x, y));
  expect_filled(turned, 1, 1, RED, false, GREEN);
}

TEST(Flood, ManyFillsOfDifferentSurfacesDoNotDisturbEachOther) {
  Random random(31);
  for (int round = 0; round < 8; ++round) {
    Surface s(between(random, 100, 400), between(random, 100, 400));
    make_speckles(s, random, 380);
    for (int i = 0; i < 4; ++i) {
      const int x = between(random, 0, s.width() - 1), y = between(random, 0, s.height() - 1);
      expect_filled(s, x, y, GetPixel(s, x, y), false, any_colour(random));
      if (HasFatalFailure()) return;
    }
  }
}

TEST(Flood, IsACopyWhateverTheDrawState) {
  Surface s(3, 1, 32, WHITE);
  s.draw.DrawMode = 7;
  s.draw.FillStyle = 1;
  s.draw.FillColor = RED;
  ExtFloodFill(s, 1, 0, WHITE);
  EXPECT_EQ(text_of(s), rows({"rrr"}));
}

TEST(Flood, DiagonalsDoNotConnect) {
  Surface s(2, 2, 32, WHITE);
  SetPixelV(s, 0, 0, BLACK);
  SetPixelV(s, 1, 1, BLACK);
  s.draw.FillColor = RED;
  ExtFloodFill(s, 1, 0, WHITE);
  EXPECT_EQ(text_of(s), rows({".r", "#."}));
}

}  // namespace
}  // namespace raster
