// The editor on a stage for tests: started without a display, in a program directory of its own, with a small picture
// that is written and read as text. Every test runs in a process of its own, so the editor starts fresh. How much of
// the editor there is, the start.cpp of a folder says: the rooms that its tests link.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <deque>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "frame/p_win.h"
#include "frame/usr_sub.h"
#include "platform/forms/dialogs.h"

namespace stage {

using namespace kiso;  // NOLINT(google-build-using-namespace)

using Picture = std::vector<std::string>;

// The letters of a picture as text.
inline raster::Colour colour_of(char c) {
  switch (c) {
    case '.': return WHITE;
    case '#': return RGB(0, 0, 0);
    case 'r': return RGB(255, 0, 0);
    case 'g': return RGB(0, 255, 0);
    case 'b': return RGB(0, 0, 255);
    case 'y': return RGB(255, 255, 0);
    default: return RGB(128, 128, 128);
  }
}
inline char letter_of(raster::Colour colour) {
  for (const char c : std::string(".#rgby")) {
    if (colour_of(c) == colour) return c;
  }
  return '?';
}

inline Picture text_of(const raster::Surface& s) {
  Picture rows;
  for (int y = 0; y < s.height(); ++y) {
    std::string row;
    for (int x = 0; x < s.width(); ++x) row += letter_of(GetPixel(s, x, y));
    rows.push_back(row);
  }
  return rows;
}

// A display that answers boxes from a queue and remembers them; the keypad's pointer moves on DRAW.
class StageDesktop : public forms::Desktop {
 public:
  struct Box {
    std::string text;
    int style;
    std::string title;
  };
  std::deque<int> answers;
  std::vector<Box> boxes;
  std::deque<std::optional<std::string>> files;  // what file dialogs are answered; none: Cancel
  std::vector<forms::FileDialog> dialogs;        // what they were given
  std::function<void()> while_asking = [] {};    // runs while a box or a dialog stands open
  int beeps = 0;
  float x = 0, y = 0;
  bool held = false;
  std::deque<std::pair<int, std::pair<int, int>>> keypad;  // what, dx, dy: not yet delivered

  int message_box(const std::string& text, int style, const std::string& title) override {
    boxes.push_back({text, style, title});
    while_asking();
    if ((style & 7) == 0) return 1;
    if (answers.empty()) {
      ADD_FAILURE() << "a box without an answer: " << text;
      throw forms::ProgramEnd{};
    }
    const int answer = answers.front();
    answers.pop_front();
    return answer;
  }
  bool file_dialog(forms::FileDialog& dialog) override {
    dialogs.push_back(dialog);
    while_asking();
    if (files.empty()) {
      ADD_FAILURE() << "a file dialog without an answer";
      throw forms::ProgramEnd{};
    }
    const std::optional<std::string> chosen = files.front();
    files.pop_front();
    if (chosen) dialog.FileName = *chosen;
    return chosen.has_value();
  }
  void beep() override { ++beeps; }
  void pointer_move(int dx, int dy) override { keypad.push_back({1, {dx, dy}}); }
  void pointer_button(bool down) override { keypad.push_back({down ? 2 : 4, {0, 0}}); }
};

inline StageDesktop& desk() {
  static StageDesktop the_desk;
  return the_desk;
}

// A program directory with the templates, removed at the end of the process.
struct Home {
  Home() {
    std::string pattern = (std::filesystem::temp_directory_path() / "kiso-test-XXXXXX").string();
    path = mkdtemp(pattern.data());
    const char* assets = std::getenv("KISO_ASSETS");  // set by ctest; else the tests run in the checkout
    for (const char* name : {"DEFAULT.CNF", "DEFAULT.CDI", "DEFAULT.AIN"}) {
      std::error_code missing;
      std::filesystem::copy_file(std::string(assets ? assets : "assets") + "/" + name, path + "/" + name, missing);
    }
    setenv("KISO_HOME", path.c_str(), 1);
  }
  ~Home() {
    std::error_code failed;
    std::filesystem::remove_all(path, failed);
  }
  Home(const Home&) = delete;
  Home& operator=(const Home&) = delete;
  std::string path;
};
inline Home& home() {
  static Home the_home;
  return the_home;
}

void start(const std::string& command_line = "");  // in start.cpp

// The main window on the screen with the values of a fresh start, for a start without the program.
inline void show_main_window() {
  LOADING_FLAG = 0;
  APP_PATH = home().path;
  STATUS_H = to_int16(INF_POSX.Height() + 5);
  PIC_SIZE(1) = to_int16(PIC.ScaleWidth());
  PIC_SIZE(2) = to_int16(PIC.ScaleHeight());
  PAL_SHOW();
  UNDO_BUTTON(2);
  P_WIN.Show();
  TOOL_CHANGED();
}

// The free area for the picture gets w x h screen pixels.
inline void view(int w, int h) {
  const int status = STATUS_ON == 1 ? STATUS_H : 0;
  forms::enter([&] {
    P_WIN.inside(w + static_cast<int>(DRAW.left_px() + 2 + Y_SC.width_px()),
                 h + static_cast<int>(DRAW.top_px() + 2 + X_SC.height_px()) + status);
  });
}

// Puts that picture into PIC and shows it at x1.
inline void show(const Picture& picture) {
  forms::enter([&] {
    PIC.Move(0, 0, static_cast<double>(picture[0].size()), static_cast<double>(picture.size()));
    for (size_t y = 0; y < picture.size(); ++y) {
      for (size_t x = 0; x < picture[y].size(); ++x) {
        SetPixelV(PIC, static_cast<int>(x), static_cast<int>(y), colour_of(picture[y][x]));
      }
    }
    PIC_SIZE(1) = to_int16(PIC.ScaleWidth());
    PIC_SIZE(2) = to_int16(PIC.ScaleHeight());
    EXP_RATE = 1;
    VIEW_ORG(1) = VIEW_ORG(2) = 0;
    X_SC.Value(0);
    Y_SC.Value(0);
    VIEW_FIT();
  });
}

// The free area has room for that picture at x8, and by one pixel more: a view of less than the picture has an even
// size.
inline void room_for(const Picture& picture) {
  view(static_cast<int>(picture[0].size() + 1) * 8, static_cast<int>(picture.size() + 1) * 8);
}

// The editor started, with that picture in a view that is large enough for it at x8.
inline void stage(const Picture& picture) {
  start();
  room_for(picture);
  show(picture);
}

inline void select_tool(int number) {
  forms::enter([&] {
    CUR_TOOL = to_int16(number);
    TOOL_CHANGED();
  });
}
// The view at that rate, its top left at the picture pixel x, y.
inline void zoom(int rate, int x = 0, int y = 0) {
  forms::enter([&] {
    EXP_RATE = to_int16(rate);
    VIEW_ORG(1) = to_int16(x);
    VIEW_ORG(2) = to_int16(y);
    VIEW_FIT();
    X_SC.Value(x);
    Y_SC.Value(y);
  });
}

// --- the pointer on DRAW, in its pixels
inline void press(float x, float y, int button = 1) {
  desk().x = x, desk().y = y;
  forms::enter([&] { DRAW.MouseDown.fire(-1, button, 0, x, y); });
}
inline void drag(float x, float y) {
  desk().x = x, desk().y = y;
  forms::enter([&] { DRAW.MouseMove.fire(-1, 1, 0, x, y); });
}
inline void hover(float x, float y) {
  desk().x = x, desk().y = y;
  forms::enter([&] { DRAW.MouseMove.fire(-1, 0, 0, x, y); });
}
inline void release(float x, float y, int button = 1) {
  forms::enter([&] { DRAW.MouseUp.fire(-1, button, 0, x, y); });
}
inline void click(float x, float y) {
  press(x, y);
  release(x, y);
}
inline void double_click(float x, float y) {
  forms::enter([] { DRAW.DblClick.fire(-1); });
  release(x, y);
}

// --- keys on DRAW
inline void deliver_keypad() {
  while (!desk().keypad.empty()) {
    const auto [what, step] = desk().keypad.front();
    desk().keypad.pop_front();
    if (what == 1) {
      const float x = desk().x + static_cast<float>(step.first);
      const float y = desk().y + static_cast<float>(step.second);
      desk().held ? drag(x, y) : hover(x, y);
    } else if (what == 2 && !desk().held) {
      desk().held = true;
      press(desk().x, desk().y);
    } else if (what == 4 && desk().held) {
      desk().held = false;
      release(desk().x, desk().y);
    }
  }
}
inline void key_down(int code, int shift = 0) {
  forms::enter([&] { DRAW.KeyDown.fire(-1, code, shift); });
  const bool has_character = code == 32 || (code >= 48 && code <= 90) || (code >= 96 && code <= 105);
  const int character = code >= 96 && code <= 105 ? code - 48 : code;
  if (has_character) forms::enter([&] { DRAW.KeyPress.fire(-1, character); });
  deliver_keypad();
}
inline void key_up(int code) {
  forms::enter([&] { DRAW.KeyUp.fire(-1, code, 0); });
  deliver_keypad();
}
inline void key(int code, int shift = 0) {
  key_down(code, shift);
  key_up(code);
}

#define EXPECT_PIC(...) EXPECT_EQ(stage::text_of(PIC.Image()), stage::Picture(__VA_ARGS__))
#define EXPECT_DRAW(...) EXPECT_EQ(stage::text_of(DRAW.target()), stage::Picture(__VA_ARGS__))

}  // namespace stage
