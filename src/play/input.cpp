// Pointer, keys and controls: what a person does, through the same event procedures.
#include <algorithm>

#include "play/names.h"
#include "play/player.h"

namespace play {

using namespace forms;  // NOLINT(google-build-using-namespace)

namespace {

PointerEvents* pointer_events(Control& c) {
  switch (c.kind) {
    case Kind::picture: return &static_cast<PictureBox&>(c);
    case Kind::image: return &static_cast<ImageBox&>(c);
    case Kind::label: return &static_cast<Label&>(c);
    default: return nullptr;
  }
}

bool let_in(Control& c, const std::string& name) {
  if (reachable(c)) return true;
  player.say("ignored " + name);
  return false;
}

struct Pointing {
  Control& control;
  float x, y;
  int button = 0;  // as told; 0 if not
  int shift = 0;
};

Pointing read_pointing(const Args& args) {
  Pointing p{control_named(args[0]), static_cast<float>(real_number(args[1])),
             static_cast<float>(real_number(args[2]))};
  for (size_t i = 3; i < args.size(); ++i) {
    if (args[i] == "left") {
      p.button = 1;
    } else if (args[i] == "right") {
      p.button = 2;
    } else if (args[i] == "none") {
      p.button = 0;
    } else if (args[i] == "shift") {
      p.shift |= 1;
    } else if (args[i] == "ctrl") {
      p.shift |= 2;
    } else {
      throw ScriptError("unknown word " + args[i]);
    }
  }
  return p;
}

void point_at(const Pointing& p) {
  player.under_pointer = &p.control;
  player.x = p.x;
  player.y = p.y;
}

void click_of(Control& c) {
  switch (c.kind) {
    case Kind::button: static_cast<CommandButton&>(c).Click.fire(c.index); return;
    case Kind::option_button: static_cast<OptionButton&>(c).Value(1); return;
    case Kind::check_box: {
      auto& box = static_cast<CheckBox&>(c);
      box.Value(1 - box.Value());
      return;
    }
    case Kind::list_box:
    case Kind::combo_box: static_cast<ListControl&>(c).Click.fire(c.index); return;
    default:
      if (PointerEvents* events = pointer_events(c)) events->Click.fire(c.index);
  }
}

void down(const Args& args) {
  Pointing p = read_pointing(args);
  if (p.button == 0) p.button = 1;
  if (!let_in(p.control, args[0])) return;
  p.control.window.came_forward();
  point_at(p);
  player.held |= p.button;
  if (PointerEvents* events = pointer_events(p.control)) {
    enter([&] { events->MouseDown.fire(p.control.index, p.button, p.shift, p.x, p.y); });
  }
}

void move(const Args& args) {
  const Pointing p = read_pointing(args);
  if (!let_in(p.control, args[0])) return;
  point_at(p);
  if (PointerEvents* events = pointer_events(p.control)) {
    enter([&] { events->MouseMove.fire(p.control.index, p.button, p.shift, p.x, p.y); });
  }
}

void up(const Args& args) {
  Pointing p = read_pointing(args);
  if (p.button == 0) p.button = 1;
  if (!let_in(p.control, args[0])) return;
  const bool pressed_here = player.under_pointer == &p.control && (player.held & p.button) != 0;
  point_at(p);
  player.held &= ~p.button;
  PointerEvents* events = pointer_events(p.control);
  if (!events) return;
  enter([&] { events->MouseUp.fire(p.control.index, p.button, p.shift, p.x, p.y); });
  if (pressed_here && reachable(p.control)) enter([&] { events->Click.fire(p.control.index); });
}

// A pointer that is elsewhere moves there first.
void dblclick(const Args& args) {
  const Pointing p = read_pointing(args);
  if (!let_in(p.control, args[0])) return;
  PointerEvents* events = pointer_events(p.control);
  if (!events) return;
  if (player.under_pointer != &p.control || player.x != p.x || player.y != p.y) {
    enter([&] { events->MouseMove.fire(p.control.index, 0, p.shift, p.x, p.y); });
  }
  point_at(p);
  enter([&] { events->DblClick.fire(p.control.index); });
  enter([&] { events->MouseUp.fire(p.control.index, 1, p.shift, p.x, p.y); });
}

void click(const Args& args) {
  Control& c = control_named(args[0]);
  const int button = args.size() > 1 && args[1] == "right" ? 2 : 1;
  if (args.size() > 1 && args[1] != "right" && args[1] != "left") throw ScriptError("unknown word " + args[1]);
  if (!let_in(c, args[0])) return;
  c.window.came_forward();
  const auto x = static_cast<float>(static_cast<int>(c.width_px() / 2));
  const auto y = static_cast<float>(static_cast<int>(c.height_px() / 2));
  if (PointerEvents* events = pointer_events(c)) {
    point_at({c, x, y});
    enter([&] { events->MouseDown.fire(c.index, button, 0, x, y); });
    if (reachable(c)) enter([&] { events->MouseUp.fire(c.index, button, 0, x, y); });
    if (reachable(c)) enter([&] { click_of(c); });
  } else if (button == 1) {
    enter([&] { click_of(c); });
  }
}

// --- keys

struct Key {
  int code = 0;
  int character = 0;  // 0 if it has none
  int shift = 0;
};

int character_of(int code, int shift) {
  if (code >= 'A' && code <= 'Z') return (shift & 1) != 0 ? code : code + 32;
  if (code >= 96 && code <= 105) return '0' + code - 96;
  const bool plain = code == 8 || code == 9 || code == 13 || code == 27 || code == 32 || (code >= '0' && code <= '9');
  return plain ? code : 0;
}

Key read_key(const Args& args) {
  Key key;
  for (size_t i = 2; i < args.size(); ++i) {
    if (args[i] != "shift" && args[i] != "ctrl") throw ScriptError("unknown word " + args[i]);
    key.shift |= args[i] == "shift" ? 1 : 2;
  }
  const std::string& code = args[1];
  const bool is_character = code.size() == 1 && (player.quoted[1] || !(code[0] >= '0' && code[0] <= '9'));
  if (is_character) {
    key.character = static_cast<unsigned char>(code[0]);
    key.code = key.character >= 'a' && key.character <= 'z' ? key.character - 32 : key.character;
  } else {
    key.code = whole_number(code);
    key.character = character_of(key.code, key.shift);
  }
  if ((key.shift & 2) != 0) key.character = 0;
  return key;
}

void press_key(Control& c, const Key& key) {
  if (c.kind == Kind::picture) {
    auto& box = static_cast<PictureBox&>(c);
    enter([&] { box.KeyDown.fire(c.index, key.code, key.shift); });
    if (key.character != 0) enter([&] { box.KeyPress.fire(c.index, key.character); });
  } else if (c.kind == Kind::combo_box && key.character != 0) {
    enter([&] { static_cast<ComboBox&>(c).KeyPress.fire(c.index, key.character); });
  } else if (c.kind == Kind::text_box && key.character != 0) {
    enter([&] { static_cast<TextBox&>(c).KeyPress.fire(c.index, key.character); });
  }
  if (!player.under_pointer || player.under_pointer->kind != Kind::picture)
    player.under_pointer = &control_named("DRAW");
  deliver_keypad();
}

void release_key(Control& c, const Key& key) {
  if (c.kind == Kind::picture) {
    enter([&] { static_cast<PictureBox&>(c).KeyUp.fire(c.index, key.code, key.shift); });
  }
  deliver_keypad();
}

void key(const Args& args) {
  Control& c = control_named(args[0]);
  const Key k = read_key(args);
  if (!let_in(c, args[0])) return;
  press_key(c, k);
  release_key(c, k);
}

void keydown(const Args& args) {
  Control& c = control_named(args[0]);
  const Key k = read_key(args);
  if (let_in(c, args[0])) press_key(c, k);
}

void keyup(const Args& args) {
  Control& c = control_named(args[0]);
  const Key k = read_key(args);
  if (let_in(c, args[0])) release_key(c, k);
}

// --- controls and windows

void user(const Args& args) {
  bool reached = true;
  std::string wrong;
  enter([&] {
    try {
      reached = give_by_user(args[0], args[1]);
    } catch (const ScriptError& e) {
      wrong = e.what();
    }
  });
  if (!wrong.empty()) throw ScriptError(wrong);
  if (!reached) player.say("ignored " + args[0]);
}

void set(const Args& args) { set_variable(args[0], args[1]); }

void leave(const Args& args) {
  Control& c = control_named(args[0]);
  if (!let_in(c, args[0]) || c.kind != Kind::text_box) return;
  int keep = 0;
  enter([&] { static_cast<TextBox&>(c).Validate.fire(c.index, keep); });
}

void closewin(const Args& args) {
  Window& w = window_named(args[0]);
  if (!reachable(w)) {
    player.say("ignored " + args[0]);
    return;
  }
  enter([&] { w.Unload(); });
}

void drop(const Args& args) {
  if (reachable(window_named("P_WIN"))) {
    enter([&] { window_named("P_WIN").Form_Drop.fire(-1, args); });
  } else {
    player.say("ignored P_WIN");
  }
}

void tick(const Args& args) {
  Control& c = control_named(args[0]);
  if (c.kind != Kind::timer) throw ScriptError("no timer: " + args[0]);
  auto& timer = static_cast<Timer&>(c);
  const int times = args.size() > 1 ? whole_number(args[1]) : 1;
  for (int i = 0; i < times && timer.window.Loaded() && timer.running(); ++i) {
    enter([&] { timer.Tick.fire(c.index); });
  }
}

}  // namespace

void deliver_keypad() {
  while (!player.keypad.empty()) {
    const auto next = player.keypad.front();
    player.keypad.pop_front();
    if (reachable(*player.under_pointer)) enter(next);
  }
}

std::vector<Command> input_commands() {
  return {
      {"down", 3, 6, true, down},         {"move", 3, 6, true, move},   {"up", 3, 6, true, up},
      {"dblclick", 3, 3, true, dblclick}, {"click", 1, 2, true, click}, {"key", 2, 4, true, key},
      {"keydown", 2, 4, true, keydown},   {"keyup", 2, 4, true, keyup}, {"user", 2, 2, true, user},
      {"set", 2, 2, false, set},          {"leave", 1, 1, true, leave}, {"closewin", 1, 1, true, closewin},
      {"tick", 1, 2, true, tick},         {"drop", 1, -1, true, drop},
  };
}

}  // namespace play
