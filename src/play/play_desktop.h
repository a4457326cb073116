// The display of a script's run: the real windows on a display in memory, where boxes take their answers from a queue
// and no time passes by itself.
#pragma once

#include "platform/qt/desktop.h"

namespace play {

class PlayDesktop : public qt::QtDesktop {
 public:
  explicit PlayDesktop(char* program);

  std::unique_ptr<forms::Peer> show(forms::Control& control) override;  // a timer has no peer: it ticks when told
  using QtDesktop::show;
  int message_box(const std::string& text, int style, const std::string& title) override;
  bool file_dialog(forms::FileDialog& dialog) override;
  void error_box(int number, const std::string& text) override;
  void do_events() override;
  void beep() override;
  std::string clock() override;
  void quit() override;
  void pointer_move(int dx, int dy) override;
  void pointer_button(bool down) override;
  void record(const char* kind, const std::string& entry) override;
  void record_progress(double done, double total) override;
  // The display in memory would tell only after events that no script waits for.
  bool has_focus(const forms::Window& window) override { return Desktop::has_focus(window); }
  // A clipboard of this run alone.
  bool clipboard_has_picture() override { return Desktop::clipboard_has_picture(); }
  bool read_clipboard(raster::Surface& picture) override { return Desktop::read_clipboard(picture); }
  void write_clipboard(const raster::Surface& picture) override { Desktop::write_clipboard(picture); }
  void clear_clipboard() override { Desktop::clear_clipboard(); }
};

}  // namespace play
