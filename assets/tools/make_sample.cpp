// make_sample FILE: the picture that the editor opens with when it is given none. It is drawn with the editor's own
// drawing calls, in few and plain colours, so that every tool has something to show on it.
#include <cmath>
#include <cstdio>
#include <exception>
#include <initializer_list>
#include <stdexcept>
#include <vector>

#include "platform/raster/bmp.h"
#include "platform/raster/draw.h"

namespace {

using raster::Colour;
using raster::Point;
using raster::Surface;

constexpr int WIDTH = 400, HEIGHT = 300, HORIZON = 168;

constexpr Colour hex(uint32_t rrggbb) { return (rrggbb >> 16 & 0xFF) | (rrggbb & 0xFF00) | (rrggbb & 0xFF) << 16; }
constexpr Colour INK = hex(0x1E1E26), PAPER = hex(0xFFFFFF), SILVER = hex(0xC9C9D1), GREY = hex(0x8E8E99),
                 SLATE = hex(0x6C7A99), RED = hex(0xE5343B), DARK_RED = hex(0xA3202C), PINK = hex(0xF7A3A6),
                 BLUE = hex(0x2F6BDE), SKY = hex(0x9CCBF5), YELLOW = hex(0xFFD53D), ORANGE = hex(0xEE9A2E),
                 RUST = hex(0xC8721C), TAN = hex(0xDDAE73), BROWN = hex(0x8F5A2F), MEADOW = hex(0x4DB552),
                 FRESH = hex(0x86CF5B), FOREST = hex(0x2A7A3E), CREAM = hex(0xFBEED6);

void pen(Surface& s, Colour line, Colour inside) {
  s.draw.FillStyle = 0;
  s.draw.ForeColor = line;
  s.draw.FillColor = inside;
}

void oval(Surface& s, int cx, int cy, int rx, int ry, Colour inside, Colour line) {
  pen(s, line, inside);
  raster::Ellipse(s, cx - rx, cy - ry, cx + rx + 1, cy + ry + 1);
}
void oval(Surface& s, int cx, int cy, int rx, int ry, Colour inside) { oval(s, cx, cy, rx, ry, inside, inside); }

void shape(Surface& s, std::initializer_list<Point> points, Colour inside, Colour line) {
  pen(s, line, inside);
  raster::Polygon(s, points.begin(), static_cast<int>(points.size()));
}
void shape(Surface& s, std::initializer_list<Point> points, Colour inside) { shape(s, points, inside, inside); }

void block(Surface& s, int left, int top, int right, int bottom, Colour inside, Colour line) {
  raster::Line(s, left, top, right, bottom, inside, raster::LineForm::box_fill);
  s.draw.FillStyle = 1;
  raster::Line(s, left, top, right, bottom, line, raster::LineForm::box);
}

void stroke(Surface& s, int x1, int y1, int x2, int y2, int width, Colour colour) {
  s.draw.DrawWidth = width;
  raster::Line(s, x1, y1, x2, y2, colour);
  s.draw.DrawWidth = 1;
}

void curve(Surface& s, const Point (&points)[4], int width, Colour colour) {
  s.draw.DrawWidth = width;
  pen(s, colour, colour);
  raster::PolyBezier(s, points);
  s.draw.DrawWidth = 1;
}

// From blue to nearly white in steps; mixed, each goes over into the next by an ordered pattern of 4 x 4.
void draw_sky(Surface& s, bool mixed) {
  constexpr Colour STEPS[] = {hex(0x5AA3EE), hex(0x7DB9F3), SKY, hex(0xBCDDF8), hex(0xDCEDFA)};
  constexpr int PATTERN[4][4] = {{0, 8, 2, 10}, {12, 4, 14, 6}, {3, 11, 1, 9}, {15, 7, 13, 5}};
  for (int y = 0; y < HORIZON; ++y)
    for (int x = 0; x < WIDTH; ++x) {
      const int level = y * 64 / HORIZON;  // sixteenths of a step
      const int step = level / 16 + (level % 16 > (mixed ? PATTERN[y & 3][x & 3] : 7) ? 1 : 0);
      raster::SetPixelV(s, x, y, STEPS[step]);
    }
  oval(s, 338, 44, 22, 22, YELLOW, ORANGE);
  oval(s, 333, 39, 8, 8, hex(0xFFE98F));
  for (const Point at : {Point{60, 40}, Point{236, 30}, Point{372, 92}}) {
    oval(s, at.x, at.y + 4, 26, 7, SILVER);
    oval(s, at.x, at.y, 26, 8, PAPER);
    oval(s, at.x - 8, at.y - 7, 11, 9, PAPER);
    oval(s, at.x + 9, at.y - 4, 9, 7, PAPER);
  }
}

// A mountain with the light from the left and snow on its top.
void draw_mountain(Surface& s, int peak_x, int peak_y, int half) {
  const int foot = HORIZON + 4, snow = (foot - peak_y) / 3, side = half * snow / (foot - peak_y);
  shape(s, {{peak_x, peak_y}, {peak_x + half, foot}, {peak_x - half, foot}}, GREY);
  shape(s, {{peak_x, peak_y}, {peak_x + half, foot}, {peak_x + half / 5, foot}, {peak_x - 4, foot - 40}}, SLATE);
  shape(s,
        {{peak_x, peak_y},
         {peak_x + side, peak_y + snow},
         {peak_x + side / 2, peak_y + snow - 7},
         {peak_x + side / 5, peak_y + snow + 5},
         {peak_x - side / 4, peak_y + snow - 8},
         {peak_x - side / 2, peak_y + snow + 3},
         {peak_x - side, peak_y + snow}},
        PAPER);
  shape(s,
        {{peak_x, peak_y},
         {peak_x + side, peak_y + snow},
         {peak_x + side / 2, peak_y + snow - 7},
         {peak_x + side / 5, peak_y + snow + 5},
         {peak_x + 1, peak_y + snow / 2}},
        SILVER);
}

void draw_tree(Surface& s, int x, int foot, int height) {
  block(s, x - 1, foot - height / 5, x + 1, foot, BROWN, BROWN);
  for (int tier = 0; tier < 3; ++tier) {
    const int top = foot - height + tier * height / 5, low = top + height * 2 / 5, half = height / 9 * (tier + 1) + 2;
    shape(s, {{x, top}, {x + half, low}, {x - half, low}}, FOREST);
    shape(s, {{x, top}, {x - half / 4, low}, {x - half, low}}, MEADOW);
  }
}

// It winds toward the foreground and grows wider; ovals that overlap make its banks.
void draw_river(Surface& s) {
  for (const bool glint : {false, true})
    for (int y = HORIZON + 14; y < HEIGHT + 20; ++y) {
      const double near = (y - HORIZON - 14) / 120.0;
      const int x = 196 - static_cast<int>(90 * near - 26 * std::sin(near * 7.5) * (0.4 + near));
      const int half = static_cast<int>(4 + 40 * near);
      if (glint)
        oval(s, x - half / 3, y, half / 5, 1, SKY);
      else
        oval(s, x, y, half, half / 8, BLUE);
    }
}

void draw_land(Surface& s) {
  draw_mountain(s, 330, 96, 92);
  draw_mountain(s, 118, 58, 128);
  draw_mountain(s, 226, 84, 98);
  oval(s, 60, HORIZON + 34, 150, 48, FOREST);
  oval(s, 330, HORIZON + 40, 150, 52, FOREST);
  for (int i = 0; i < 15; ++i)
    draw_tree(s, 8 + i * 28 + i * i % 7, HORIZON + 12 + i * 5 % 9 - (i < 5 || i > 11 ? 12 : 0), 30 + i * 11 % 13);
  block(s, 0, HORIZON + 14, WIDTH, HEIGHT, MEADOW, MEADOW);
  draw_river(s);
  oval(s, 330, 310, 230, 62, FRESH);
}

void draw_house(Surface& s) {
  for (int puff = 0; puff < 4; ++puff) oval(s, 96 + puff * puff * 3, 134 - puff * 13, 4 + puff * 2, 4 + puff, PAPER);
  block(s, 90, 142, 99, 166, DARK_RED, INK);
  block(s, 40, 176, 104, 220, CREAM, INK);
  shape(s, {{30, 178}, {50, 146}, {94, 146}, {114, 178}}, RED, INK);
  for (int row = 0; row < 3; ++row) stroke(s, 46 - row * 6, 154 + row * 8, 99 + row * 5, 154 + row * 8, 1, DARK_RED);
  block(s, 80, 190, 94, 220, BROWN, INK);
  block(s, 90, 204, 91, 206, YELLOW, YELLOW);
  block(s, 48, 188, 68, 204, SKY, INK);
  stroke(s, 58, 188, 58, 204, 1, INK);
  stroke(s, 48, 196, 69, 196, 1, INK);
  block(s, 46, 205, 70, 208, TAN, INK);
  for (int x = 49; x < 70; x += 5) oval(s, x, 204, 2, 2, x % 2 ? RED : PINK);
}

void draw_flowers(Surface& s) {
  constexpr Colour PETALS[] = {PAPER, YELLOW, PINK, RED};
  for (int i = 0; i < 60; ++i) {
    const int x = (i * i * 31 + i * 57 + 9) % WIDTH, y = 232 + (i * i * 13 + i * 29) % 62;
    if (const Colour ground = raster::GetPixel(s, x, y + 5); ground != MEADOW && ground != FRESH) continue;
    const Colour petal = PETALS[i % 4];
    stroke(s, x, y, x, y + 5, 1, FOREST);
    for (const Point at : {Point{0, -1}, Point{-1, 0}, Point{1, 0}, Point{0, 1}})
      raster::SetPixelV(s, x + at.x, y + at.y, petal);
    raster::SetPixelV(s, x, y, ORANGE);
  }
}

// The canvas shows the scene as far as it is painted; the rest is still paper.
void draw_easel(Surface& s, const Surface& scene) {
  constexpr int LEFT = 176, TOP = 122, W = 104, H = 78;
  stroke(s, 228, 108, 190, 284, 5, INK);
  stroke(s, 228, 108, 266, 284, 5, INK);
  stroke(s, 228, 108, 190, 284, 3, BROWN);
  stroke(s, 228, 108, 266, 284, 3, TAN);
  block(s, LEFT - 4, TOP + H + 4, LEFT + W + 4, TOP + H + 9, TAN, INK);
  block(s, LEFT - 2, TOP - 2, LEFT + W + 1, TOP + H + 1, PAPER, INK);
  raster::StretchBlt(s, LEFT, TOP, W, H, scene, 0, 0, WIDTH, HEIGHT);
  for (int y = 0; y < H; ++y) stroke(s, LEFT + 84 + y * 13 % 7 - y / 5, TOP + y, LEFT + W, TOP + y, 1, PAPER);
}

struct Oval {
  int cx, cy, rx, ry;
};

// One body of several ovals: the outline runs round them all and not between them.
void body(Surface& s, std::initializer_list<Oval> ovals, Colour inside) {
  for (const Oval& o : ovals) oval(s, o.cx, o.cy, o.rx + 1, o.ry + 1, INK);
  for (const Oval& o : ovals) oval(s, o.cx, o.cy, o.rx, o.ry, inside);
}

void draw_cat_face(Surface& s) {
  shape(s, {{305, 160}, {302, 130}, {322, 146}}, ORANGE, INK);
  shape(s, {{358, 160}, {361, 130}, {341, 146}}, ORANGE, INK);
  shape(s, {{307, 150}, {306, 138}, {314, 146}}, PINK);
  shape(s, {{356, 150}, {357, 138}, {349, 146}}, PINK);
  oval(s, 331, 167, 32, 25, ORANGE, INK);
  shape(s, {{304, 158}, {322, 145}, {331, 143}, {341, 145}, {360, 158}, {344, 160}, {320, 160}}, ORANGE);
  for (int i = -1; i <= 1; ++i) stroke(s, 331 + i * 8, 144 + (i != 0), 331 + i * 6, 154, 3, RUST);
  oval(s, 323, 179, 11, 9, CREAM);
  oval(s, 337, 179, 11, 9, CREAM);
  for (const int x : {316, 344}) {
    oval(s, x, 166, 4, 6, INK);
    oval(s, x - 1, 163, 1, 2, PAPER);
  }
  shape(s, {{326, 173}, {334, 173}, {330, 177}}, PINK, DARK_RED);
  curve(s, {{330, 178}, {330, 184}, {322, 184}, {320, 181}}, 1, INK);
  curve(s, {{330, 178}, {330, 184}, {338, 184}, {341, 181}}, 1, INK);
  for (int i = 0; i < 3; ++i) {
    stroke(s, 313, 178 + i * 3, 290, 174 + i * 6, 1, INK);
    stroke(s, 347, 178 + i * 3, 370, 174 + i * 6, 1, INK);
  }
}

void draw_cat(Surface& s) {
  curve(s, {{352, 272}, {398, 280}, {396, 236}, {376, 226}}, 13, INK);
  curve(s, {{352, 272}, {398, 280}, {396, 236}, {376, 226}}, 11, ORANGE);
  oval(s, 377, 227, 5, 5, CREAM);
  body(s, {{332, 234, 30, 48}, {314, 278, 17, 8}, {348, 278, 17, 8}}, ORANGE);
  oval(s, 331, 244, 18, 32, CREAM);
  oval(s, 309, 280, 9, 5, CREAM);
  oval(s, 353, 280, 9, 5, CREAM);
  for (int i = 0; i < 3; ++i) stroke(s, 363 - i / 2, 226 + i * 12, 352, 229 + i * 12, 4, RUST);
  draw_cat_face(s);
  shape(s, {{311, 196}, {331, 204}, {350, 196}, {348, 206}, {331, 210}, {313, 206}}, BLUE, INK);
  shape(s, {{331, 207}, {340, 222}, {331, 219}, {324, 223}}, BLUE, INK);
}

// The right paw paints, the left one holds the palette.
void draw_paws(Surface& s) {
  stroke(s, 262, 176, 296, 214, 4, INK);
  stroke(s, 264, 178, 296, 214, 2, TAN);
  stroke(s, 260, 174, 264, 178, 5, RED);
  stroke(s, 318, 222, 291, 210, 15, INK);
  stroke(s, 318, 222, 291, 210, 13, ORANGE);
  oval(s, 289, 209, 6, 6, CREAM);
  oval(s, 338, 254, 29, 15, TAN, INK);
  oval(s, 348, 259, 5, 3, FRESH, INK);
  constexpr Colour DABS[] = {RED, YELLOW, MEADOW, BLUE, PAPER};
  for (int i = 0; i < 5; ++i) oval(s, 318 + i * 9, 249 + (i - 2) * (i - 2), 4, 3, DABS[i]);
  body(s, {{360, 248, 9, 8}}, ORANGE);
  oval(s, 358, 250, 6, 5, CREAM);
}

void draw_scene(Surface& s, bool mixed) {
  draw_sky(s, mixed);
  draw_land(s);
  draw_house(s);
  draw_flowers(s);
}

void draw(Surface& s) {
  Surface scene(WIDTH, HEIGHT);
  draw_scene(scene, false);
  draw_scene(s, true);
  draw_easel(s, scene);
  draw_cat(s);
  draw_paws(s);
}

}  // namespace

int main(int argc, char** argv) try {
  if (argc != 2) throw std::runtime_error("make_sample FILE");
  Surface picture(WIDTH, HEIGHT);
  draw(picture);
  raster::save_bmp(picture, argv[1]);
  return 0;
} catch (const std::exception& error) {
  std::fprintf(stderr, "%s\n", error.what());
  return 1;
}
