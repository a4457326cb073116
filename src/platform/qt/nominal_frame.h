// What the window manager's frame adds to a window's inside, known before the first window is shown.
#pragma once

#include <QSize>

#include "platform/forms/window.h"

namespace qt {

// Whether windows have frames that tell their size.
bool has_real_frames();
// The frame that a window is going to have, asked of the window manager; empty if it does not answer.
QSize nominal_frame();
// The display has told the frame of a window: it settles, and the windows to come count on the same.
void learn_frame(forms::Window& window, int w, int h);

}  // namespace qt
