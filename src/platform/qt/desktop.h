// The real display: windows, boxes, pointer and keyboard on Linux. The only door into this room.
#pragma once

#include <memory>
#include <string>

#include "platform/forms/runtime.h"

namespace qt {

struct Application;
class ForeignPicture;

// One at a time in a process. Whoever wants other answers to boxes, or no timers, derives from it and keeps the rest.
class QtDesktop : public forms::Desktop {
 public:
  // program: argv[0], all that Qt gets of the command line, which is one file name and holds no options. offscreen: a
  // display in memory that nobody looks at.
  explicit QtDesktop(char* program, bool offscreen = false);
  // Drops all windows and gives the runtime back the display that it had before.
  ~QtDesktop() override;
  QtDesktop(const QtDesktop&) = delete;
  QtDesktop& operator=(const QtDesktop&) = delete;

  std::unique_ptr<forms::Peer> show(forms::Window& window) override;
  std::unique_ptr<forms::Peer> show(forms::Control& control) override;
  int message_box(const std::string& text, int style, const std::string& title) override;
  void error_box(int number, const std::string& text) override;
  void do_events() override;
  void beep() override;
  void quit() override;
  void pointer_move(int dx, int dy) override;
  void pointer_button(bool down) override;
  bool has_focus(const forms::Window& window) override;
  void text_size(const std::string& text, const forms::Font& font, int wrap, int& width, int& height) override;
  bool file_dialog(forms::FileDialog& dialog) override;
  bool clipboard_has_picture() override;
  bool read_clipboard(raster::Surface& picture) override;
  void write_clipboard(const raster::Surface& picture) override;
  void clear_clipboard() override;

  // Runs start as the first event, and then events until the program has ended. The exit status of the process.
  int run(void (*start)(const std::string& command_line), const std::string& command_line);

 private:
  std::unique_ptr<Application> application_;
  std::unique_ptr<ForeignPicture> foreign_picture_;  // null until the clipboard has been asked
};

// The program on the display of the user; what argv holds beyond the program's name is the command line.
// icon: the sheet with the picture that its windows bear.
int run_desktop(int argc, char** argv, const char* icon, void (*start)(const std::string& command_line));

}  // namespace qt
