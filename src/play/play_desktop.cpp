#include "play/play_desktop.h"

#include "platform/forms/dialogs.h"
#include "platform/text/text.h"
#include "play/player.h"

namespace play {

namespace {

struct Answer {
  int number;
  const char* word;
};
constexpr Answer ANSWERS[] = {{forms::OK, "ok"}, {forms::CANCEL, "cancel"}, {forms::YES, "yes"}, {forms::NO, "no"}};

// The buttons of a box by the low bits of its style.
struct Buttons {
  int style;
  std::vector<int> answers;
};
const Buttons BUTTONS[] = {{forms::OK_ONLY, {forms::OK}},
                           {forms::OK_CANCEL, {forms::OK, forms::CANCEL}},
                           {forms::YES_NO_CANCEL, {forms::YES, forms::NO, forms::CANCEL}},
                           {forms::YES_NO, {forms::YES, forms::NO}}};

bool has_button(int style, int answer) {
  for (const Buttons& row : BUTTONS) {
    if (row.style != (style & 7)) continue;
    for (const int a : row.answers) {
      if (a == answer) return true;
    }
  }
  return false;
}

const char* word_of(int answer) {
  for (const Answer& a : ANSWERS) {
    if (a.number == answer) return a.word;
  }
  return "";
}

int next_answer(int style) {
  if ((style & 7) == forms::OK_ONLY) return forms::OK;
  if (player.answers.empty()) {
    player.failure = "a box without an answer in the queue";
    throw forms::ProgramEnd{};
  }
  const int answer = player.answers.front();
  player.answers.pop_front();
  if (!has_button(style, answer)) {
    player.failure = std::string("a box that has no button ") + word_of(answer);
    throw forms::ProgramEnd{};
  }
  return answer;
}

}  // namespace

// The same screen and frames on every machine.
PlayDesktop::PlayDesktop(char* program) : QtDesktop(program, true) {
  screen_w = 1280;
  screen_h = 1024;
  depth = 32;
  frame_w = 8;
  frame_h = 27;
}

std::unique_ptr<forms::Peer> PlayDesktop::show(forms::Control& control) {
  return control.kind == forms::Kind::timer ? nullptr : QtDesktop::show(control);
}

int PlayDesktop::message_box(const std::string& text, int style, const std::string& title) {
  const std::string shown = "box " + std::to_string(style) + " " + quoted(title) + " " + quoted(text);
  const bool answered = (style & 7) == 0 || !player.answers.empty();
  const int answer = answered ? next_answer(style) : 0;
  player.say(shown + " " + word_of(answer));
  player.logs["boxes"].push_back(shown + " " + word_of(answer));
  player.boxes.push_back({std::to_string(style), title, text});
  return answered ? answer : next_answer(style);
}

bool PlayDesktop::file_dialog(forms::FileDialog& dialog) {
  player.logs["dialogs"].push_back((dialog.save ? "save " : "open ") + quoted(dialog.FileName) + " " +
                                   quoted(dialog.Filter) + " " + std::to_string(dialog.FilterIndex) + " " +
                                   std::to_string(dialog.Flags));
  if (player.files.empty()) {
    player.failure = "a file dialog without an answer in the queue";
    throw forms::ProgramEnd{};
  }
  const std::optional<std::string> chosen = player.files.front();
  player.files.pop_front();
  if (chosen) dialog.FileName = *chosen;
  return chosen.has_value();
}

void PlayDesktop::error_box(int /*number*/, const std::string& /*text*/) {}  // told by the run's status
void PlayDesktop::do_events() {}
void PlayDesktop::quit() {}
void PlayDesktop::beep() { player.logs["beeps"].push_back("beep"); }

std::string PlayDesktop::clock() { return player.clock.empty() ? QtDesktop::clock() : player.clock; }

void PlayDesktop::pointer_move(int dx, int dy) {
  player.keypad.emplace_back([dx, dy] {
    player.x += static_cast<float>(dx);
    player.y += static_cast<float>(dy);
    auto& box = static_cast<forms::PictureBox&>(*player.under_pointer);
    box.MouseMove.fire(box.index, player.held, 0, player.x, player.y);
  });
}

void PlayDesktop::pointer_button(bool down) {
  player.keypad.emplace_back([down] {
    if (((player.held & 1) != 0) == down) return;
    player.held = down ? player.held | 1 : player.held & ~1;
    auto& box = static_cast<forms::PictureBox&>(*player.under_pointer);
    (down ? box.MouseDown : box.MouseUp).fire(box.index, 1, 0, player.x, player.y);
  });
}

void PlayDesktop::record(const char* kind, const std::string& entry) { player.logs[kind].push_back(entry); }
void PlayDesktop::record_progress(double done, double total) {
  record("progress", "progress " + text::CStr(done) + " " + text::CStr(total));
}

}  // namespace play
