// area_models FOLDER: writes a picture of noise, and what the area tools are to make of it by their rules, told here
// once more in the plainest way. The scripts area_*.play compare.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

namespace {

constexpr int W = 64, H = 48;                              // the picture
constexpr int LEFT = 5, TOP = 4, RIGHT = 50, BOTTOM = 37;  // the area, both corners inside

struct Rgb {
  int r, g, b;
  bool operator==(const Rgb&) const = default;
};
struct Hsv {
  double h, s, v;
};
using Picture = std::vector<Rgb>;  // rows from the top down

constexpr Rgb TARGET{32, 80, 192}, DESTINATION{224, 64, 48};

uint32_t state = 7;
int draw(int n) {
  state = state * 1664525 + 1013904223;
  return static_cast<int>(state >> 16) % n;
}

Picture noise() {
  Picture p;
  for (int i = 0; i < W * H; ++i) {
    switch (draw(5)) {
      case 0: p.push_back(DESTINATION); break;
      case 1: p.push_back(TARGET); break;
      case 2: p.push_back({184 + draw(72), 30 + draw(70), 20 + draw(60)}); break;
      case 3: p.push_back({draw(2) * 255, draw(2) * 255, draw(2) * 255}); break;
      default: p.push_back({draw(256), draw(256), draw(256)});
    }
  }
  return p;
}

Hsv to_hsv(const Rgb& c) {
  const double r = c.r / 255.0, g = c.g / 255.0, b = c.b / 255.0;
  const double max = std::max({r, g, b}), delta = max - std::min({r, g, b});
  if (max == 0 || delta == 0) return {0, 0, max};
  double h = r == max ? (g - b) / delta : g == max ? (b - r) / delta + 2 : (r - g) / delta + 4;
  h *= 60;
  return {h < 0 ? h + 360 : h, delta / max, max};
}

Rgb to_rgb(const Hsv& c) {
  const double v = std::min(c.v, 1.0);
  const double hh = static_cast<int>(std::nearbyint(c.h)) % 360 / 60.0;
  const int i = static_cast<int>(hh);
  const double f = hh - i, p = v * (1 - c.s), q = v * (1 - c.s * f), t = v * (1 - c.s * (1 - f));
  const double rgb[6][3] = {{v, t, p}, {q, v, p}, {p, v, t}, {p, q, v}, {t, p, v}, {v, p, q}};
  return {static_cast<int>(rgb[i][0] * 255), static_cast<int>(rgb[i][1] * 255), static_cast<int>(rgb[i][2] * 255)};
}

// Within 20 degrees, and within 40 steps of S and V. The destination colour's hue is 5.45: the window goes over red.
bool near(const Rgb& c) {
  const Hsv d = to_hsv(DESTINATION), x = to_hsv(c);
  const bool hue = x.h < d.h + 20 || x.h > d.h - 20 + 360;
  return hue && std::abs(x.s * 255 - d.s * 255) <= 40 && std::abs(x.v * 255 - d.v * 255) <= 40;
}

Picture each_in_area(const Picture& from, const std::function<Rgb(const Rgb&)>& rule) {
  Picture to = from;
  for (int y = TOP; y <= BOTTOM; ++y) {
    for (int x = LEFT; x <= RIGHT; ++x) to[y * W + x] = rule(from[y * W + x]);
  }
  return to;
}

Picture through_glass(const Picture& from, int band) {
  Picture to = from;
  const int w = RIGHT - LEFT + 1, h = BOTTOM - TOP + 1;
  for (int y = 0; y < h; ++y) {
    for (int x = 0; x < w; ++x) {
      const int column = x / band * band, row = y / band * band;
      const int sx = column + std::min(band, w - column) - 1 - x % band;
      const int sy = row + band > h ? y : row + band - 1 - y % band;  // the last rows stay
      to[(TOP + y) * W + LEFT + x] = from[(TOP + sy) * W + LEFT + sx];
    }
  }
  return to;
}

// A BMP of 24 bits; its rows go from the bottom up, and their bytes here are a multiple of four.
void save(const std::string& path, const Picture& p) {
  static_assert(W * 3 % 4 == 0);
  std::string bytes = "BM";
  const auto put = [&](uint32_t v, int n) {
    for (int i = 0; i < n; ++i) bytes += static_cast<char>(v >> (8 * i));
  };
  put(54 + W * H * 3, 4), put(0, 4), put(54, 4), put(40, 4), put(W, 4), put(H, 4), put(1, 2), put(24, 2);
  for (int i = 0; i < 6; ++i) put(i == 1 ? W * H * 3 : 0, 4);
  for (int y = H - 1; y >= 0; --y) {
    for (int x = 0; x < W; ++x) {
      const Rgb& c = p[y * W + x];
      put(static_cast<uint32_t>(c.b), 1), put(static_cast<uint32_t>(c.g), 1), put(static_cast<uint32_t>(c.r), 1);
    }
  }
  std::ofstream(path, std::ios::binary) << bytes;
}

}  // namespace

int main(int /*argc*/, char** argv) {
  const std::string folder = std::string(argv[1]) + "/";
  std::filesystem::create_directories(folder);
  const Picture picture = noise();
  const auto keep = [](const Rgb& c, bool hit) { return hit ? TARGET : c; };
  save(folder + "noise.bmp", picture);
  save(folder + "exact.bmp", each_in_area(picture, [&](const Rgb& c) { return keep(c, c == DESTINATION); }));
  save(folder + "exact_rev.bmp", each_in_area(picture, [&](const Rgb& c) { return keep(c, c != DESTINATION); }));
  save(folder + "near.bmp", each_in_area(picture, [&](const Rgb& c) { return keep(c, near(c)); }));
  save(folder + "near_rev.bmp", each_in_area(picture, [&](const Rgb& c) { return keep(c, !near(c)); }));
  for (const int percent : {0, 60, 150}) {
    save(folder + "value" + std::to_string(percent) + ".bmp", each_in_area(picture, [&](const Rgb& c) {
           Hsv hsv = to_hsv(c);
           hsv.v *= percent / 100.0;
           return to_rgb(hsv);
         }));
  }
  for (const int band : {1, 4, 33})
    save(folder + "glass" + std::to_string(band) + ".bmp", through_glass(picture, band));
}
