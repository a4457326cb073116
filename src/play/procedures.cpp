// The shared procedures that a script can call.
#include "addin/addin.h"
#include "colour/colour.h"
#include "frame/usr_sub.h"
#include "persist/persist.h"
#include "platform/text/program_directory.h"
#include "platform/text/text.h"
#include "play/player.h"

namespace play {

using namespace kiso;  // NOLINT(google-build-using-namespace)

namespace {

struct Procedure {
  const char* name;
  int arguments;
  bool needs_window;
  std::string (*run)(const Args& args);
};

double number(const Args& args, size_t i) { return real_number(args[i]); }

std::string real(double v) {
  char out[64];
  std::snprintf(out, sizeof out, "%g", v);
  return out;
}

std::string triple(double a, double b, double c) { return real(a) + " " + real(b) + " " + real(c); }

const Procedure PROCEDURES[] = {
    {"RGB_TO_HSV", 3, false,
     [](const Args& a) {
       double h = 0, s = 0, v = 0;
       RGB_TO_HSV(number(a, 0), number(a, 1), number(a, 2), h, s, v);
       return triple(h, s, v);
     }},
    {"HSV_TO_RGB", 3, false,
     [](const Args& a) {
       double s = number(a, 1), v = number(a, 2), r = 0, g = 0, b = 0;
       HSV_TO_RGB(number(a, 0), s, v, r, g, b);
       return triple(r, g, b);
     }},
    {"VIEW_CENTER", 3, true,
     [](const Args& a) {
       int16_t x = 0, y = 0;
       VIEW_CENTER(number(a, 0), number(a, 1), whole_number(a[2]), x, y);
       return real(x) + " " + real(y);
     }},
    {"DOT_SNAP", 3, false,
     [](const Args& a) {
       int l = 0, t = 0, r = 0, b = 0;
       DOT_SNAP(number(a, 0), number(a, 1), whole_number(a[2]), l, t, r, b);
       return real(l) + " " + triple(t, r, b);
     }},
    {"VIEW_FIT", 0, true, [](const Args&) { return VIEW_FIT(), std::string(); }},
    {"VIEW_REDRAW", 0, true, [](const Args&) { return VIEW_REDRAW(), std::string(); }},
    {"VIEW_COMMIT", 0, true, [](const Args&) { return VIEW_COMMIT(), std::string(); }},
    {"VIEW_COMMIT_RECT", 4, true,
     [](const Args& a) {
       double x1 = number(a, 0), y1 = number(a, 1), x2 = number(a, 2), y2 = number(a, 3);
       VIEW_COMMIT_RECT(x1, y1, x2, y2);
       return real(x1) + " " + triple(y1, x2, y2);
     }},
    {"LOAD_PICTURE", 1, true,
     [](const Args& a) {
       int result = 0;
       LOAD_PICTURE(a[0], result);
       return real(result);
     }},
    {"SAVE_PICTURE", 1, true, [](const Args& a) { return SAVE_PICTURE(a[0]), std::string(); }},
    {"UPPER_ASCII", 1, false, [](const Args& a) { return text::UPPER_ASCII(a[0]); }},
    {"SHORT_PATH", 1, false, [](const Args& a) { return text::SHORT_PATH(a[0]); }},
    {"TEMP_NAME", 2, false,
     [](const Args& a) {
       std::string name;
       TEMP_NAME(a[0], a[1], name);
       return name;
     }},
    {"EXPAND_COMMAND", 2, false,
     [](const Args& a) {
       std::string expanded;
       EXPAND_COMMAND(a[0], a[1], expanded);
       return expanded;
     }},
    {"ADDIN_LOOKUP", 1, false,
     [](const Args& a) {
       std::string title, exe;
       int index = 0, result = 0;
       ADDIN_LOOKUP(a[0], title, exe, index, result);
       return title + " " + exe + " " + real(index) + " " + real(result);
     }},
    {"RUN_AND_WAIT", 1, false, [](const Args& a) { return RUN_AND_WAIT(a[0]), std::string(); }},
};

}  // namespace

std::string call_procedure(const std::string& name, const Args& args) {
  for (const Procedure& procedure : PROCEDURES) {
    if (name != procedure.name) continue;
    if (static_cast<int>(args.size()) != procedure.arguments) {
      throw ScriptError("wrong count of arguments for " + name);
    }
    if (procedure.needs_window && !player.started) throw ScriptError(name + " comes before start");
    std::string results;
    std::string wrong;
    enter([&] {
      try {
        results = procedure.run(args);
      } catch (const ScriptError& e) {
        wrong = e.what();
      }
    });
    if (!wrong.empty()) throw ScriptError(wrong);
    return results;
  }
  throw ScriptError("unknown procedure " + name);
}

}  // namespace play
