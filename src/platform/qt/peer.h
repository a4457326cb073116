// What every control on the display has: a widget that follows the model. A peer watches its widget as an event filter,
// so that nothing can reach the model any more once the peer is gone, although the widget itself may live on until the
// event of its that runs has returned.
#pragma once

#include <QPointer>
#include <QWidget>
#include <memory>

#include "platform/forms/runtime.h"

namespace qt {

// While one lives the display is being made to follow the model, and what it answers is no event of the user.
class Quiet {
 public:
  Quiet() { ++depth; }
  ~Quiet() { --depth; }
  Quiet(const Quiet&) = delete;
  Quiet& operator=(const Quiet&) = delete;
  static bool now() { return depth > 0; }

 private:
  static int depth;
};

// Lets an event of the user into the logic. The peer that calls this may be gone when it returns.
template <class F>
void user_event(F&& procedure) {
  if (!Quiet::now()) forms::enter(procedure);
}

// Hides the widget at once and deletes it when none of its events runs any more.
void retire(QWidget* widget);

class ControlPeer : public QObject, public forms::Peer {
 public:
  explicit ControlPeer(forms::Control& control) : control_(control) {}
  ~ControlPeer() override { retire(widget_); }

  void update(uint32_t changes) override;
  void paint_now() override;
  void take_focus() override;

  // The widget comes into being when it is to be seen for the first time, and with it those of the controls inside.
  // Most surfaces of the program never are.
  void realize();
  QWidget* widget() const { return widget_; }
  virtual void hurry() {}                  // marks for painting what it would have painted a little later
  virtual int inset() const { return 0; }  // pixels from the widget's corner to that of the inside

 protected:
  virtual QWidget* make(QWidget* parent) = 0;
  virtual void refresh(uint32_t changes) = 0;  // text, value, look and list to the widget
  virtual void enable(bool on) { widget_->setEnabled(on); }
  bool reachable() const { return forms::reachable(control_); }
  // A control of a window that has to leave the keyboard to the picture.
  bool leaves_keyboard() const;

 private:
  QWidget* parent() const;
  void place();
  void stack();

  forms::Control& control_;
  QPointer<QWidget> widget_;
};

// Makes the widgets of the visible controls in that container (null: of the window itself), in the order of their
// declaration, which is that of the Tab key too.
void realize_inside(const forms::Window& window, const forms::Control* container);

// The window's widget, null before it is first shown.
QWidget* widget_of(const forms::Window& window);
// The control that has the keyboard in that window, or had it last.
QWidget* keyboard_of(const forms::Window& window);
void set_keyboard(const forms::Window& window, QWidget* widget);
// Nothing in that palette is typed into any more: the keyboard is that of its owner's picture. Of other windows nothing
// happens.
void give_keyboard_back(const forms::Window& window);
// The window that a box which opens now belongs to: the one in use, or that palette's owner; null if none is shown.
QWidget* box_owner();

std::unique_ptr<forms::Peer> make_window_peer(forms::Window& window);
std::unique_ptr<forms::Peer> make_picture_peer(forms::PictureBox& box);
std::unique_ptr<forms::Peer> make_timer_peer(forms::Timer& timer);
std::unique_ptr<forms::Peer> make_plain_peer(forms::Control& control);   // label, image, shape, frame
std::unique_ptr<forms::Peer> make_worked_peer(forms::Control& control);  // button, scroll bar, option, check box
std::unique_ptr<forms::Peer> make_text_peer(forms::Control& control);    // text box, combo box, list

}  // namespace qt
