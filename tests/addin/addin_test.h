// A program directory with a registry of the test's own, and a desktop that answers its questions.
#pragma once

#include <functional>
#include <string>

#include "addin/addin.h"
#include "program_dir.h"
#include "stage.h"

namespace kiso {

// The clock stands; what DoEvents lets in is counted.
struct AddinDesktop : stage::StageDesktop {
  std::string clock() override { return time; }
  void do_events() override {
    ++event_rounds;
    at_event_round();
  }
  void record(const char* kind, const std::string& entry) override {
    records.push_back(std::string(kind) + " " + entry);
  }
  std::string time = "09:05:07";
  std::function<void()> at_event_round = [] {};
  int event_rounds = 0;
  std::vector<std::string> records;
};

struct AddinTest : ProgramDir {
  AddinTest() { forms::use_desktop(&desk); }
  ~AddinTest() override { forms::use_desktop(nullptr); }

  static void template_of(std::initializer_list<const char*> texts) { put("DEFAULT.AIN", lines(texts)); }
  // One line of each kind, in another order than the program knows them.
  static void plain_template() { template_of({"SPOP", "FFWT", "FFRD", "TWSC", "TWSL", "ADIN"}); }
  static void read(std::initializer_list<const char*> texts) {
    put("KISO.AIN", lines(texts));
    READ_AIN();
  }
  // A program of the test's own, as a script of the shell.
  static std::string program(const std::string& name, const std::string& script) {
    put(name, "#!/bin/sh\n" + script + "\n");
    std::filesystem::permissions(APP_PATH + "/" + name, std::filesystem::perms::owner_all);
    return APP_PATH + "/" + name;
  }

  AddinDesktop desk;
};

}  // namespace kiso
