// Keys as the model knows them: the platform's key numbers and shift state.
#pragma once

#include <QKeyEvent>

#include "platform/forms/controls.h"

namespace qt {

// Letters 65 to 90, digits 48 to 57, the keypad's digits 96 to 105 whether NumLock is on or off; 0 for a key that has
// no number.
int key_number(const QKeyEvent& event);
// 1 shift, 2 ctrl, 4 alt.
int shift_state(Qt::KeyboardModifiers modifiers);
// The character of a key, 0 if it has none.
int key_character(const QKeyEvent& event);

// Fires KeyDown and KeyPress, or KeyUp. A key that is held repeats the first two.
void key_event(forms::Control& control, forms::KeyEvents& events, const QKeyEvent& event);

}  // namespace qt
