// A display in memory with two windows that hold one control of each kind, and a person's hands on them.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>
#include <memory>
#include <string>
#include <vector>

#include "platform/forms/runtime.h"
#include "platform/qt/desktop.h"
#include "platform/qt/peer.h"

namespace kiso_test {

using namespace forms;

struct MainWindow : Window {
  MainWindow();
  PictureBox DMY{*this, "DMY"}, DRAW{*this, "DRAW"}, WORK{*this, "WORK"}, PIC{*this, "PIC"};
  ScrollBar X_SC{*this, "X_SC", Lie::horizontal}, Y_SC{*this, "Y_SC", Lie::vertical};
  Label INF{*this, "INF"};
  Timer Timer1{*this, "Timer1"};
};
extern MainWindow P;

struct ToolWindow : Window {
  ToolWindow();
  ControlArray<ImageBox, 2> CMD_B{*this, "CMD_B"};
  CommandButton UNDO{*this, "UNDO"};
};
extern ToolWindow TOOL;

struct DialogWindow : Window {
  DialogWindow();
  Frame Box{*this, "Box"};
  OptionButton Option1{*this, "Option1"}, Option2{*this, "Option2"};
  CheckBox Check1{*this, "Check1"};
  TextBox Text1{*this, "Text1"};
  ComboBox Combo1{*this, "Combo1"};
  ListBox List1{*this, "List1"};
  CommandButton OK{*this, "OK"}, Cancel{*this, "Cancel"};
};
extern DialogWindow DIALOG;

// What the event procedures have said, in order.
extern std::vector<std::string> said;
void say(const std::string& what);

class Display : public testing::Test {
 protected:
  Display() { start(); }
  void start();

  static void settle() { QCoreApplication::processEvents(); }
  static QWidget* widget(const Control& control) {
    const auto* peer = dynamic_cast<qt::ControlPeer*>(control.peer.get());
    return peer ? peer->widget() : nullptr;
  }
  template <class Widget>
  static Widget* as(const Control& control) {
    return qobject_cast<Widget*>(widget(control));
  }
  // Runs it as an event procedure runs.
  template <class F>
  static void logic(F&& procedure) {
    forms::enter([&] { procedure(); });
  }
  static void mouse(QEvent::Type type, const Control& on, double x, double y, Qt::MouseButton button,
                    Qt::MouseButtons held, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  static void press(const Control& on, double x, double y, Qt::MouseButton button = Qt::LeftButton) {
    mouse(QEvent::MouseButtonPress, on, x, y, button, button);
  }
  static void release(const Control& on, double x, double y, Qt::MouseButton button = Qt::LeftButton) {
    mouse(QEvent::MouseButtonRelease, on, x, y, button, Qt::NoButton);
  }
  static void second_press(const Control& on, double x, double y) {
    mouse(QEvent::MouseButtonDblClick, on, x, y, Qt::LeftButton, Qt::LeftButton);
  }
  static void move(const Control& on, double x, double y, Qt::MouseButtons held = Qt::NoButton) {
    mouse(QEvent::MouseMove, on, x, y, Qt::NoButton, held);
  }
  static void key(QEvent::Type type, QWidget* on, int key, const QString& text = "",
                  Qt::KeyboardModifiers modifiers = Qt::NoModifier, bool repeated = false);
  static std::vector<std::string> taken() { return std::exchange(said, {}); }

  char name_[8] = "qt";
  char* argv_[2] = {name_, nullptr};
  std::unique_ptr<qt::QtDesktop> desktop_;
};

using Said = std::vector<std::string>;

}  // namespace kiso_test
