// The pointer: events of the mouse as the model knows them, and the keypad in its place.
#pragma once

#include <QMouseEvent>
#include <QPointF>
#include <QWidget>

#include "platform/forms/controls.h"

namespace qt {

// Turns the mouse events of one control's widget into those of the control.
class PointerTrack {
 public:
  // True if it was an event of the mouse. corner: place of the control's inside in its widget.
  bool event(forms::Control& control, forms::PointerEvents& events, QWidget& widget, QEvent& event, QPointF corner);
  // Whether the second press of a double click is to come as one more press; null: never.
  bool (*second_press_is_press)() = nullptr;

 private:
  void press(forms::Control& control, forms::PointerEvents& events, const QMouseEvent& event, QPointF at);
  void release(forms::Control& control, forms::PointerEvents& events, const QMouseEvent& event, QPointF at,
               bool inside);

  QPointF last_press_;
  int clicks_with_ = 0;  // the button whose release makes a click, 0: none
};

// 1 left, 2 right, 4 middle, added.
int button_state(Qt::MouseButtons buttons);

// --- the keypad's pointer. Each takes effect after the running event, and enters where a real pointer's event enters.
void keypad_move(int dx, int dy);
void keypad_button(bool down);
// This picture's keys are those that may ask for the pointer to move. Where the pointer can not be moved and is not
// over its window, it counts as standing in the picture's middle.
void keypad_from(QWidget& picture);
// Releases the button that the keypad holds: the key's own release is not going to come.
void keypad_let_go();

}  // namespace qt
