#include "qt/display.h"

#include <cstdarg>
#include <cstdio>

namespace kiso_test {

std::vector<std::string> said;
void say(const std::string& what) { said.push_back(what); }

namespace {

void say_pointer(const char* what, int button, int shift, float x, float y) {
  char line[80];
  std::snprintf(line, sizeof line, "%s %d %d %g %g", what, button, shift, static_cast<double>(x),
                static_cast<double>(y));
  say(line);
}

void design_main() {
  P.design(1500, 750, 400, 300, "Kiso");
  P.DMY.design(0, 0, 384, 264);
  P.DRAW.design(2, 2, 200, 100, &P.DMY);
  P.WORK.design(10, 10, 20, 20, &P.DRAW);
  P.WORK.Visible(false);
  P.WORK.Enabled(false);
  P.PIC.design(0, 0, 50, 50);
  P.PIC.Visible(false);
  P.X_SC.design(0, 264, 384, 16);
  P.Y_SC.design(384, 0, 16, 264);
  P.X_SC.range(0, 100, 30, 1, 16);
  P.Y_SC.range(100, 0, 30, 1, 16);
  P.INF.design(4, 282, 200, 16);
}

void design_tool() {
  TOOL.design(9000, 750, 96, 100, "Kiso");
  TOOL.CMD_B(0).design(0, 0, 24, 24);
  TOOL.CMD_B(1).design(24, 0, 24, 24);
  TOOL.CMD_B(0).Cell("CMD_B_IMG", 0, 0);
  TOOL.CMD_B(0).ToolTip("Pset");
  TOOL.UNDO.design(0, 30, 60, 22);
}

void design_dialog() {
  DIALOG.design(3000, 3000, 300, 240, "設定");
  DIALOG.Box.design(0, 0, 1800, 1200);
  DIALOG.Option1.design(8, 20, 100, 20, &DIALOG.Box);
  DIALOG.Option2.design(8, 45, 100, 20, &DIALOG.Box);
  DIALOG.Check1.design(0, 1200, 1500, 300);
  DIALOG.Text1.design(0, 1500, 1500, 300);
  DIALOG.Combo1.design(0, 1800, 1500, 300);
  DIALOG.List1.design(2000, 0, 1500, 1200);
  DIALOG.OK.design(2000, 1500, 1000, 300);
  DIALOG.Cancel.design(2000, 1900, 1000, 300);
  DIALOG.OK.is_default = true;
  DIALOG.Cancel.is_cancel = true;
}

}  // namespace

MainWindow::MainWindow() : Window("P", Border::sizable, Scale::pixels, design_main) {
  DRAW.MouseDown = [](int b, int s, float x, float y) { say_pointer("down", b, s, x, y); };
  DRAW.MouseMove = [](int b, int s, float x, float y) { say_pointer("move", b, s, x, y); };
  DRAW.MouseUp = [](int b, int s, float x, float y) { say_pointer("up", b, s, x, y); };
  DRAW.Click = [] { say("click"); };
  DRAW.DblClick = [] { say("double"); };
  DRAW.KeyDown = [](int k, int s) { say("key " + std::to_string(k) + " " + std::to_string(s)); };
  DRAW.KeyUp = [](int k, int s) { say("key up " + std::to_string(k) + " " + std::to_string(s)); };
  DRAW.KeyPress = [](int c) { say("character " + std::to_string(c)); };
  DRAW.Wheel = [](int x, int y) { say("wheel " + std::to_string(x) + " " + std::to_string(y)); };
  DRAW.Paint = [] { say("paint"); };
  DMY.MouseDown = [](int b, int, float, float) { say("DMY down " + std::to_string(b)); };
  DMY.KeyPress = [](int c) { say("DMY character " + std::to_string(c)); };
  X_SC.Change = [] { say("X_SC " + std::to_string(P.X_SC.Value())); };
  Y_SC.Change = [] { say("Y_SC " + std::to_string(P.Y_SC.Value())); };
  Form_Resize = [] { say("resize " + std::to_string(P.inside_w()) + " " + std::to_string(P.inside_h())); };
}

ToolWindow::ToolWindow() : Window("TOOL", Border::tool, Scale::pixels, design_tool) {
  struct Wired {
    static void click(int i) { say("CMD_B " + std::to_string(i)); }
  };
  for (int i = 0; i < 2; ++i) CMD_B(i).Click = Wired::click;
  UNDO.Click = [] { say("UNDO"); };
}

DialogWindow::DialogWindow() : Window("DIALOG", Border::dialog, Scale::twips, design_dialog) {
  Option1.Click = [] { say("Option1"); };
  Option2.Click = [] { say("Option2"); };
  Check1.Click = [] { say("Check1 " + std::to_string(DIALOG.Check1.Value())); };
  Text1.Change = [] { say("Text1 " + DIALOG.Text1.Text()); };
  Text1.KeyPress = [](int c) { say("Text1 character " + std::to_string(c)); };
  Text1.Validate = [](int&) { say("validate " + DIALOG.Text1.Text()); };
  Combo1.Click = [] { say("Combo1 " + DIALOG.Combo1.Text()); };
  Combo1.Change = [] { say("Combo1 typed " + DIALOG.Combo1.Text()); };
  Combo1.KeyPress = [](int c) { say("Combo1 character " + std::to_string(c) + " " + DIALOG.Combo1.Text()); };
  List1.Click = [] { say("List1 " + std::to_string(DIALOG.List1.ListIndex())); };
  List1.DblClick = [] { say("List1 double"); };
  OK.Click = [] { say("OK"); };
  Cancel.Click = [] { say("Cancel"); };
}

// Windows stand in the order of their construction, and P is the one that owns the others.
MainWindow P;
ToolWindow TOOL;
DialogWindow DIALOG;

void Display::start() {
  desktop_ = std::make_unique<qt::QtDesktop>(argv_[0], true);
  use_desktop(desktop_.get());
}

void Display::mouse(QEvent::Type type, const Control& on, double x, double y, Qt::MouseButton button,
                    Qt::MouseButtons held, Qt::KeyboardModifiers modifiers) {
  QWidget* w = widget(on);
  ASSERT_NE(w, nullptr) << on.name;
  const QPointF at(x, y);
  QWidget* window = w->window();
  const QPointF in_window = w->mapTo(window, at);
  // As from the display: whoever lies under the pointer gets it, not who is named.
  QWidget* under = window->childAt(in_window.toPoint());
  static QPointer<QWidget> grabber;
  if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick) grabber = under;
  QWidget* to = grabber ? grabber.data() : under ? under : window;
  if (type == QEvent::MouseButtonRelease) grabber = nullptr;
  QMouseEvent event(type, to->mapFrom(window, in_window), in_window, w->mapToGlobal(at), button, held, modifiers);
  QCoreApplication::sendEvent(to, &event);
}

void Display::key(QEvent::Type type, QWidget* on, int key, const QString& text, Qt::KeyboardModifiers modifiers,
                  bool repeated) {
  QKeyEvent event(type, key, modifiers, text, repeated);
  QCoreApplication::sendEvent(on, &event);
}

}  // namespace kiso_test
