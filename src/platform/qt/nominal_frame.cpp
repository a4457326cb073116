#include "platform/qt/nominal_frame.h"

#include <QGuiApplication>

#include "platform/forms/runtime.h"

namespace qt {

bool has_real_frames() { return QGuiApplication::platformName() != QLatin1String("offscreen"); }

QSize nominal_frame() { return QSize(0, 0); }

void learn_frame(forms::Window& window, int w, int h) {
  forms::desktop().frame_w = w;
  forms::desktop().frame_h = h;
  window.framed(w, h);
}

}  // namespace qt
