// The two conversions between RGB and HSV. The order of the tests and of the operations decides the last bit of the
// results, which the tools compare, so it stays as it is.
#include <algorithm>

#include "colour/colour.h"

namespace kiso {

void RGB_TO_HSV(double R, double G, double B, double& H, double& S, double& V) {
  const double r = R / 255;
  const double g = G / 255;
  const double b = B / 255;
  const double max = std::max({r, g, b});
  const double delta = max - std::min({r, g, b});
  V = max;
  S = max == 0 ? 0 : delta / max;
  if (S == 0) {
    H = 0;
    return;
  }
  // Where two components are the largest, red wins over green and green over blue.
  double h;
  if (r == max) {
    h = (g - b) / delta;
  } else if (g == max) {
    h = (b - r) / delta + 2;
  } else {
    h = (r - g) / delta + 4;
  }
  H = h * 60;
  if (H < 0) H += 360;
}

void HSV_TO_RGB(double H, double& S, double& V, double& R, double& G, double& B) {
  S = std::clamp(S, 0.0, 1.0);
  V = std::clamp(V, 0.0, 1.0);
  const int degrees = to_int32(H);
  if (degrees < 0) return;
  const double hh = degrees % 360 / 60.0;
  const int i = static_cast<int>(hh);
  const double f = hh - i;
  const double p = V * (1 - S);
  const double q = V * (1 - S * f);
  const double t = V * (1 - S * (1 - f));
  const auto give = [&](double r, double g, double b) { R = r, G = g, B = b; };
  switch (i) {
    case 0: return give(V, t, p);
    case 1: return give(q, V, p);
    case 2: return give(p, V, t);
    case 3: return give(p, q, V);
    case 4: return give(t, p, V);
    default: return give(V, p, q);
  }
}

}  // namespace kiso
