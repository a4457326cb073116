// What runs the windows: the one place through which every event enters the logic, the end of the process, message
// boxes, the screen, and the Desktop, which does on a real display what the model only says.
#pragma once

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "platform/forms/controls.h"
#include "platform/forms/window.h"
#include "platform/raster/ico.h"

namespace forms {

struct FileDialog;  // dialogs.h

// What a display does for the runtime. This base is a display that nobody looks at: no peers, boxes answered OK.
class Desktop {
 public:
  virtual ~Desktop() = default;
  virtual std::unique_ptr<Peer> show(Window& /*window*/) { return nullptr; }
  virtual std::unique_ptr<Peer> show(Control& /*control*/) { return nullptr; }
  virtual int message_box(const std::string& text, int style, const std::string& title);
  virtual void error_box(int /*number*/, const std::string& /*text*/) {}  // an error that nothing caught
  virtual void do_events() {}
  virtual void beep() {}
  virtual std::string clock();  // "HH:MM:SS"
  virtual void quit() {}        // the program has ended; events are no longer wanted
  // The pointer moves by dx, dy screen pixels, or the left button goes down or up where the pointer is. The events that
  // follow enter later, where those of a real pointer enter.
  virtual void pointer_move(int /*dx*/, int /*dy*/) {}
  virtual void pointer_button(bool /*down*/) {}
  virtual bool has_focus(const Window& window);  // without a display: the window that came forward last
  // What a script that drives the program may ask for later: texts of the start window, calls of the progress bar.
  virtual void record(const char* /*kind*/, const std::string& /*entry*/) {}
  virtual void record_progress(double /*done*/, double /*total*/) {}  // called for each column of a picture
  // Size of a text in pixels in that font, its lines broken where they get wider than wrap; 0: nowhere. Without a
  // display: half the font's height a byte.
  virtual void text_size(const std::string& text, const Font& font, int wrap, int& width, int& height);
  // Asks for a file by the platform's dialog; false if the user cancels. Without a display the user does.
  virtual bool file_dialog(FileDialog& dialog);
  // Whether the clipboard holds a picture, and the picture; false if it holds none. Without a display the program has a
  // clipboard of its own.
  virtual bool clipboard_has_picture();
  virtual bool read_clipboard(raster::Surface& picture);
  virtual void write_clipboard(const raster::Surface& picture);
  virtual void clear_clipboard();

  raster::PngDecoder png = nullptr;  // reads PNG inside of icons, where the display can

  int screen_w = 1280, screen_h = 1024;  // pixels
  int depth = 32;                        // bits a pixel of the display and of every surface
  int frame_w = 0, frame_h = 0;          // pixels that a window's frame adds to its inside

 private:
  raster::Surface clipboard_;  // without pixels: no picture
};

// Never null. Giving null brings back the display that nobody looks at.
Desktop& desktop();
void use_desktop(Desktop* d);

// --- events
struct ProgramEnd {
  int status;
};  // thrown by End; passes through all procedures up to the entry

bool enter_raw(void (*run)(void*), void* with);
// Runs an event procedure. Whatever it throws stops here, whatever bringing its changes to the screen throws too: an
// error is shown in the platform's box and ends the process. When it returns, what has changed goes to the screen, also
// while a procedure around it waits for a box or is in DoEvents. False if the program has ended.
template <class F>
bool enter(F&& procedure) {
  return enter_raw([](void* f) { (*static_cast<std::remove_reference_t<F>*>(f))(); },
                   const_cast<void*>(static_cast<const void*>(&procedure)));
}
bool has_ended();
// Number of the error that ended the program, 0 if none did.
int fatal_error();
// What the process ends with: 1 after such an error, else what End was given.
int exit_status();
// Ends the process at once, from whatever depth.
[[noreturn]] void End(int status = 0);
// Lets waiting events in.
void DoEvents();
// Brings what has changed to the screen.
void flush();

// Whether an event of the pointer or the keyboard can reach it: it and all that holds it shown and enabled.
bool reachable(const Control& control);
bool reachable(const Window& window);

// --- boxes. A style is the sum of buttons, icon, and which button Enter presses if it is not the first.
enum BoxStyle : int {
  OK_ONLY = 0,
  OK_CANCEL = 1,
  YES_NO_CANCEL = 3,
  YES_NO = 4,
  CRITICAL = 16,
  QUESTION = 32,
  EXCLAMATION = 48,
  INFORMATION = 64,
  SECOND_BUTTON = 256,
  THIRD_BUTTON = 512,
};
enum Answer : int { OK = 1, CANCEL = 2, YES = 6, NO = 7 };
// The answer of the user to a box of that style.
int MsgBox(const std::string& text, int style = OK_ONLY, const std::string& title = "");
void Beep();
// The time of day, two digits each of hours in 24-hour count, minutes and seconds: "HH:MM:SS".
std::string Time();

// The keypad's pointer: what 1 moves it by dx, dy screen pixels, 2 is left button down, 4 left button up.
void mouse_event(int what, int dx, int dy);

// --- the screen, in twips
double screen_width();
double screen_height();
inline int bits_per_pixel() { return desktop().depth; }

// A BMP or ICO file as a bitmap of the display's depth, and a bitmap as a BMP file, whole or not at all. Errors are
// numbered: 53 no such file, 481 not such a picture, 70 permission denied, ...
raster::Surface LoadPicture(const std::string& path);
void SavePicture(const raster::Surface& picture, const std::string& path);

// The platform's sixteen colours.
raster::Colour QBColor(int n);

// All windows of the program, in the order of their construction.
std::vector<Window*>& all_windows();
// All windows dropped, nothing has ended: a fresh start in the same process.
void reset_runtime();

}  // namespace forms
