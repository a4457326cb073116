// What this program needs of X11 and Qt does not offer. On other displays these do nothing.
#pragma once

#include <QSize>

namespace qt {

// A key that is held sends presses alone; Qt takes the releases between them for real ones when they come late.
void let_held_keys_repeat();

// What the window manager's frame is going to add to the inside of a window, known before the first one is shown; 0, 0
// if no window manager answers.
QSize coming_frame();
// Openbox gives every window a button to minimize it, whatever that asks for, unless it is a toolbar; and with one
// palette it minimizes the whole program. Others leave a toolbar without a frame.
bool palettes_are_toolbars();

}  // namespace qt
