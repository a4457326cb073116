#include "platform/qt/desktop.h"

#include <QFontMetrics>
#include <QPixmap>
#include <QScreen>
#include <QTimer>
#include <cstdlib>

#include "platform/qt/application.h"
#include "platform/qt/boxes.h"
#include "platform/qt/clipboard.h"
#include "platform/qt/file_dialog.h"
#include "platform/qt/images.h"
#include "platform/qt/look.h"
#include "platform/qt/peer.h"
#include "platform/qt/pointer.h"
#include "platform/qt/x11.h"
#include "platform/text/files.h"

namespace qt {

using forms::Control;
using forms::Kind;

namespace {

constexpr int DISPLAY_HAS_GONE = 2;  // exit status

constinit bool events_run = false;

// Qt ends the process from within its events when the display goes. Nothing may be taken down then: what it is made of
// still stands on the stack.
void leave_at_once() {
  if (events_run) std::_Exit(DISPLAY_HAS_GONE);
}

}  // namespace

QtDesktop::QtDesktop(char* program, bool offscreen) : application_(std::make_unique<Application>(program, offscreen)) {
  const QScreen* screen = QGuiApplication::primaryScreen();
  screen_w = screen->size().width();
  screen_h = screen->size().height();
  depth = pixel_depth(screen->depth());
  png = decode_png;
  let_held_keys_repeat();
  const QSize frame = coming_frame();
  frame_w = frame.width();
  frame_h = frame.height();
}

QtDesktop::~QtDesktop() {
  for (forms::Window* w : forms::all_windows()) w->drop();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  if (&forms::desktop() == this) forms::use_desktop(nullptr);
}

std::unique_ptr<forms::Peer> QtDesktop::show(forms::Window& window) { return make_window_peer(window); }

std::unique_ptr<forms::Peer> QtDesktop::show(Control& control) {
  switch (control.kind) {
    case Kind::picture: return make_picture_peer(static_cast<forms::PictureBox&>(control));
    case Kind::timer: return make_timer_peer(static_cast<forms::Timer&>(control));
    case Kind::label:
    case Kind::image:
    case Kind::shape:
    case Kind::frame: return make_plain_peer(control);
    case Kind::button:
    case Kind::scroll_bar:
    case Kind::option_button:
    case Kind::check_box: return make_worked_peer(control);
    case Kind::text_box:
    case Kind::combo_box:
    case Kind::list_box: return make_text_peer(control);
    case Kind::dialog: return nullptr;
  }
  return nullptr;
}

int QtDesktop::message_box(const std::string& text, int style, const std::string& title) {
  return qt::message_box(text, style, title);
}

bool QtDesktop::file_dialog(forms::FileDialog& dialog) { return qt::file_dialog(dialog); }

void QtDesktop::error_box(int number, const std::string& what) {
  const std::string file = text::interrupted_file();
  const std::string read = file.empty() ? "" : "\n\nファイル名 : " + file;
  qt::message_box("実行時エラー '" + std::to_string(number) + "':\n\n" + what + read, forms::CRITICAL,
                  from_qt(QCoreApplication::applicationName()));
}

void QtDesktop::do_events() { QCoreApplication::processEvents(); }
void QtDesktop::beep() { QApplication::beep(); }
void QtDesktop::quit() { QCoreApplication::exit(forms::exit_status()); }
void QtDesktop::pointer_move(int dx, int dy) { keypad_move(dx, dy); }
void QtDesktop::pointer_button(bool down) { keypad_button(down); }

bool QtDesktop::has_focus(const forms::Window& window) {
  const QWidget* w = widget_of(window);
  return w && w->isActiveWindow();
}

void QtDesktop::text_size(const std::string& text, const forms::Font& font, int wrap, int& width, int& height) {
  const QFontMetrics letters(font_of(font));
  const QSize size = wrap > 0 ? letters.boundingRect(0, 0, wrap, QWIDGETSIZE_MAX, Qt::TextWordWrap, to_qt(text)).size()
                              : letters.size(0, to_qt(text));
  width = size.width();
  height = size.height();
}

int QtDesktop::run(void (*start)(const std::string& command_line), const std::string& command_line) {
  QTimer::singleShot(0, [&] { forms::enter([&] { start(command_line); }); });
  std::atexit(leave_at_once);
  events_run = true;
  const int status = QCoreApplication::exec();
  events_run = false;
  return status;
}

int run_desktop(int argc, char** argv, const char* icon, void (*start)(const std::string& command_line)) {
  QtDesktop desktop(argv[0]);
  if (const forms::Sheet* sheet = find_sheet(icon)) {
    QApplication::setWindowIcon(QPixmap::fromImage(picture_of(*sheet)));
  }
  std::string command_line;
  for (int i = 1; i < argc; ++i) command_line += (i > 1 ? " " : "") + std::string(argv[i]);
  forms::use_desktop(&desktop);
  return desktop.run(start, command_line);
}

}  // namespace qt
