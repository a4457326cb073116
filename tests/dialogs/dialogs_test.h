// The started editor with the settings window open, and hands for it.
#pragma once

#include <fstream>
#include <sstream>

#include "addin/addin.h"
#include "dialogs/add_win.h"
#include "dialogs/set_win.h"
#include "palette_stage.h"

namespace kiso {

inline void click(CommandButton& button) {
  ASSERT_TRUE(reachable(button)) << button.full_name();
  enter([&] { button.Click.fire(button.index); });
}
inline void choose(OptionButton& option) {
  enter([&] { option.Value(1); });
}
inline void tick(CheckBox& box, int value = 1) {
  enter([&] { box.Value(value); });
}
inline std::vector<std::string> lines_of(ListBox& list) {
  std::vector<std::string> lines;
  lines.reserve(static_cast<size_t>(list.ListCount()));
  for (int i = 0; i < list.ListCount(); ++i) lines.push_back(list.List(i));
  return lines;
}
using Lines = std::vector<std::string>;

class Dialogs : public ::testing::Test {
 protected:
  Dialogs() { stage::start(); }
  ~Dialogs() override { reset_runtime(); }

  static void open() {
    enter([] { CMD_WIN.SYS_B(2).Click.fire(2); });
    ASSERT_TRUE(SET_WIN.Visible());
  }
  static std::string path(const std::string& name) { return APP_PATH + "/" + name; }
  static bool exists(const std::string& name) { return std::filesystem::exists(path(name)); }
  static std::string content(const std::string& name) {
    std::stringstream text;
    text << std::ifstream(path(name)).rdbuf();
    return text.str();
  }
  static void put(const std::string& name, std::initializer_list<const char*> lines) {
    std::ofstream file(path(name));
    for (const char* line : lines) file << line << "\r\n";
  }
  // The registry holds these records from here on.
  static void registry(std::initializer_list<const char*> lines) {
    put("KISO.AIN", lines);
    std::ofstream(path("KISO.AIN"), std::ios::app) << "[EOF]\r\n";
    enter([] { READ_AIN(); });
  }

  stage::StageDesktop& desk_ = stage::desk();
};

constexpr int YES = 6, NO = 7;

}  // namespace kiso
