#include "platform/qt/keys.h"

#include "platform/qt/peer.h"

namespace qt {

namespace {

struct KeyRow {
  int key;  // Qt's
  int number;
};

constexpr KeyRow KEYS[] = {
    {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},          {Qt::Key_Backtab, 9},  {Qt::Key_Return, 13},
    {Qt::Key_Enter, 13},    {Qt::Key_Shift, 16},       {Qt::Key_Control, 17}, {Qt::Key_Alt, 18},
    {Qt::Key_Pause, 19},    {Qt::Key_CapsLock, 20},    {Qt::Key_Escape, 27},  {Qt::Key_Space, 32},
    {Qt::Key_PageUp, 33},   {Qt::Key_PageDown, 34},    {Qt::Key_End, 35},     {Qt::Key_Home, 36},
    {Qt::Key_Left, 37},     {Qt::Key_Up, 38},          {Qt::Key_Right, 39},   {Qt::Key_Down, 40},
    {Qt::Key_Print, 44},    {Qt::Key_Insert, 45},      {Qt::Key_Delete, 46},  {Qt::Key_Menu, 93},
    {Qt::Key_NumLock, 144}, {Qt::Key_ScrollLock, 145},
};

// The number of a key of the keypad by its X keysym, which Wayland has too; 0 for other keys. With NumLock off the same
// keys come under other names.
int keypad_number(quint32 keysym) {
  constexpr quint32 KP_HOME = 0xFF95, KP_DELETE = 0xFF9F, KP_MULTIPLY = 0xFFAA, KP_DIVIDE = 0xFFAF, KP_0 = 0xFFB0,
                    KP_9 = 0xFFB9;
  // Home, Left, Up, Right, Down, PageUp, PageDown, End, Begin, Insert, Delete
  constexpr int LOCK_OFF[] = {103, 100, 104, 102, 98, 105, 99, 97, 101, 96, 110};
  if (keysym >= KP_HOME && keysym <= KP_DELETE) return LOCK_OFF[keysym - KP_HOME];
  if (keysym >= KP_MULTIPLY && keysym <= KP_DIVIDE) return static_cast<int>(106 + keysym - KP_MULTIPLY);
  if (keysym >= KP_0 && keysym <= KP_9) return static_cast<int>(96 + keysym - KP_0);
  return 0;
}

int look_up(int key) {
  for (const KeyRow& row : KEYS) {
    if (row.key == key) return row.number;
  }
  return 0;
}

// The row of digits by the place of the key, since with Shift it gives other characters: 1 to 9 and 0 stand at 10
// to 19.
int digit_of_place(quint32 scan_code) { return scan_code >= 10 && scan_code <= 19 ? '0' + (scan_code - 9) % 10 : 0; }

}  // namespace

int key_number(const QKeyEvent& event) {
  const int key = event.key();
  if (const int number = keypad_number(event.nativeVirtualKey())) return number;
  if ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9)) return key;
  if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return 112 + key - Qt::Key_F1;
  if (const int number = look_up(key)) return number;
  return digit_of_place(event.nativeScanCode());
}

int shift_state(Qt::KeyboardModifiers modifiers) {
  return (modifiers & Qt::ShiftModifier ? 1 : 0) | (modifiers & Qt::ControlModifier ? 2 : 0) |
         (modifiers & Qt::AltModifier ? 4 : 0);
}

int key_character(const QKeyEvent& event) {
  const QString text = event.text();
  if (text.size() != 1 || text[0].unicode() > 0xFF || (event.modifiers() & Qt::AltModifier)) return 0;
  return event.key() == Qt::Key_Delete ? 0 : text[0].unicode();
}

void key_event(forms::Control& control, forms::KeyEvents& events, const QKeyEvent& event) {
  const int number = key_number(event);
  const int shift = shift_state(event.modifiers());
  if (event.type() == QEvent::KeyRelease) {
    if (number && !event.isAutoRepeat()) user_event([&] { events.KeyUp.fire(control.index, number, shift); });
    return;
  }
  if (number) user_event([&] { events.KeyDown.fire(control.index, number, shift); });
  const int character = key_character(event);
  if (!character || !forms::reachable(control)) return;
  user_event([&] { events.KeyPress.fire(control.index, character); });
}

}  // namespace qt
