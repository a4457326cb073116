// The application object and the environment that it is made in.
#pragma once

#include <QApplication>
#include <optional>

namespace qt {

struct Application {
  Application(char* program, bool offscreen);

  char* arguments[2];  // Qt keeps them
  int count = 1;
  std::optional<QApplication> app;
};

// A list of display scales such as "1.25" or "HDMI-1=1.5;2" with every scale rounded to a whole number from 1 on.
QByteArray whole_scales(const QByteArray& scales);

// Bits a pixel of surfaces for a screen of that depth.
int pixel_depth(int screen_depth);

}  // namespace qt
