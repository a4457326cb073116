// What this program needs of X11 and Qt does not offer. On other displays these do nothing.
#pragma once

#include <QSize>

namespace qt {

// A key that is held sends presses alone; Qt takes the releases between them for real ones when they come late.
void let_held_keys_repeat();

// What the window manager's frame is going to add to the inside of a window, known before the first one is shown; 0, 0
// if no window manager answers.
QSize coming_frame();

}  // namespace qt
