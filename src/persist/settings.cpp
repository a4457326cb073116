// KISO.CNF: what the user has set, and where the windows stood. Read once at the start, rewritten over DEFAULT.CNF at
// the end, so that the template decides keys, order and comments.
#include <algorithm>
#include <cfloat>
#include <cmath>
#include <optional>
#include <string_view>
#include <variant>

#include "colour/col_win.h"
#include "frame/p_win.h"
#include "palette/cmd_win.h"
#include "persist/keyed_file.h"
#include "persist/persist.h"
#include "platform/disk/lock.h"
#include "platform/text/files.h"
#include "platform/text/text.h"

namespace kiso {

namespace {

// --- where the windows may stand; twips. A window counts as lost only if its corner is off the screen.
double top_on_screen(double v) { return v < 0 || v > screen_height() ? 0 : v; }
double left_on_screen(double v) { return v < 0 || v > screen_width() ? 0 : v; }
double width_on_screen(double v) { return v > screen_width() - 2 ? screen_width() : v; }
double height_on_screen(double v) { return v > screen_height() - 2 ? screen_height() : v; }

// A palette that has gone off the screen comes back with its whole width or height on it.
template <int32_t& left>
void palette_left() {
  left = left < 0 ? 0 : left > screen_width() - 2 ? to_int32(screen_width() - 1680) : left;
}
template <int32_t& top>
void palette_top() {
  top = top < 0 ? 0 : top > screen_height() - 2 ? to_int32(screen_height() - 3150) : top;
}

// --- variables: of the editor, and properties of P_WIN
struct Side {  // of P_WIN
  double (Window::*get)() const;
  void (Window::*set)(double);
  double (*bound)(double);
};
constexpr Side TOP{&Window::Top, &Window::Top, top_on_screen};
constexpr Side LEFT{&Window::Left, &Window::Left, left_on_screen};
constexpr Side WIDTH{&Window::Width, &Window::Width, width_on_screen};
constexpr Side HEIGHT{&Window::Height, &Window::Height, height_on_screen};
struct State {};  // of P_WIN
using Variable = std::variant<int16_t*, int32_t*, std::string*, const Side*, State>;

void take(int16_t* variable, const std::string& value) { *variable = to_int16(text::Val(value)); }
void take(int32_t* variable, const std::string& value) { *variable = to_int32(text::Val(value)); }
void take(std::string* variable, const std::string& value) { *variable = value; }
void take(const Side* side, const std::string& value) {
  const double v = text::Val(value);
  if (std::fabs(v) > FLT_MAX) throw RuntimeError(6);
  (P_WIN.*side->set)(side->bound(v));  // in one step, so that no event sees a window of a size beyond the screen
}
void take(State /*of_p_win*/, const std::string& value) { P_WIN.WindowState(to_int16(text::Val(value))); }

std::string shown(const int16_t* variable) { return text::Str(*variable); }
std::string shown(const int32_t* variable) { return text::Str(*variable); }
std::string shown(const std::string* variable) { return *variable; }
std::string shown(const Side* side) { return text::Str(to_int32((P_WIN.*side->get)())); }
// A minimized window comes back to its normal size here, so that it never starts minimized.
std::string shown(State /*of_p_win*/) {
  if (P_WIN.WindowState() == 1) P_WIN.WindowState(0);
  return text::Str(P_WIN.WindowState());
}

void preset(int16_t* variable, int value) { *variable = static_cast<int16_t>(value); }
void preset(int32_t* variable, int value) { *variable = value; }
void preset(std::string* variable, int /*empty*/) { variable->clear(); }
template <class Property>
void preset(Property /*of_p_win*/, int /*the design's*/) {}

// --- gates: whether the value on the line is taken. The actions of its row run anyway.
bool always() { return true; }
bool never() { return false; }
bool restore() { return POS_RESTORE == 1; }
bool reload() { return PIC_FILE.empty() && RELOAD_MODE != 0; }

// --- actions
void nothing() {}
template <const Side& side>
void keep_on_screen() {
  const double now = (P_WIN.*side.get)(), bound = side.bound(now);
  if (bound != now) (P_WIN.*side.set)(bound);
}
// The overview stands below the palettes until the user has moved it.
void below_palette() { BIRD_TOP = to_int32(CMD_WIN.Top() + CMD_WIN.Height()); }
void left_of_colours() { BIRD_LEFT = to_int32(COL_WIN.Left()); }
void wide_as_palette() { BIRD_W = to_int32(CMD_WIN.Width()); }
void least_width() {
  if (BIRD_W <= 0) BIRD_W = 1680;
}
void least_height() {
  if (BIRD_H <= 0) BIRD_H = 780;
}
void start_clock() {
  AUTOSAVE_LEFT = AUTOSAVE_MIN;
  Timer2.Enabled(AUTOSAVE_MIN != 0);
}

struct CnfRow {
  const char* key;
  Variable variable;
  std::optional<int> built_in;  // the value before the file is read; none: it stays as it is
  bool (*gate)();
  void (*before)();
  void (*after)();
};

constexpr std::nullopt_t form = std::nullopt, kept = std::nullopt;

// clang-format off
constexpr CnfRow CNF_TABLE[] = {
    // key     variable        built-in  gate     before           after
    {"FEMD", &POS_RESTORE,     0,        always,  nothing,         nothing},
    {"PIWT", &TOP,             form,     restore, nothing,         keep_on_screen<TOP>},
    {"PIWS", State{},          form,     restore, nothing,         nothing},
    {"PIWL", &LEFT,            form,     restore, nothing,         keep_on_screen<LEFT>},
    {"PIWW", &WIDTH,           form,     restore, nothing,         keep_on_screen<WIDTH>},
    {"PIWH", &HEIGHT,          form,     restore, nothing,         keep_on_screen<HEIGHT>},
    {"COWL", &COL_LEFT,        7920,     restore, nothing,         palette_left<COL_LEFT>},
    {"COWT", &COL_TOP,         0,        restore, nothing,         palette_top<COL_TOP>},
    {"CMWL", &CMD_LEFT,        7920,     restore, nothing,         palette_left<CMD_LEFT>},
    {"CMWT", &CMD_TOP,         3091,     restore, nothing,         palette_top<CMD_TOP>},
    {"BEWT", &BIRD_TOP,        0,        restore, below_palette,   nothing},
    {"BEWL", &BIRD_LEFT,       0,        restore, left_of_colours, nothing},
    {"BEWW", &BIRD_W,          0,        restore, wide_as_palette, least_width},
    {"BEWH", &BIRD_H,          0,        restore, nothing,         least_height},
    {"BEWD", &BIRD_ON,         0,        restore, nothing,         nothing},
    {"IDSP", &STATUS_ON,       0,        always,  nothing,         nothing},
    {"BEAU", &BIRD_AUTO,       1,        never,   nothing,         nothing},
    {"BERM", &BIRD_REWRITE,    0,        always,  nothing,         nothing},
    {"VDMD", &VDMD,            0,        always,  nothing,         nothing},
    {"SZWM", &STRETCH_OK,      1,        always,  nothing,         nothing},
    {"RPNX", &RELOAD_MODE,     0,        always,  nothing,         nothing},
    {"RPNM", &PIC_FILE,        kept,     reload,  nothing,         nothing},
    {"CSEL", &COL_PANE,        0,        always,  nothing,         nothing},
    {"DROP", &DROP_KEEP,       0,        always,  nothing,         nothing},
    {"LAN1", &LAUNCH_EXE.items[0],  0,   always,  nothing,         nothing},
    {"LAN2", &LAUNCH_EXE.items[1],  0,   always,  nothing,         nothing},
    {"LAM1", &LAUNCH_BACK.items[0], 0,   always,  nothing,         nothing},
    {"LAM2", &LAUNCH_BACK.items[1], 0,   always,  nothing,         nothing},
    {"ASAM", &AUTOSAVE_DEST,   0,        always,  nothing,         nothing},
    {"ASAT", &AUTOSAVE_MIN,    0,        always,  nothing,         start_clock},
    {"MERM", &MERGE_CHECK,     0,        always,  nothing,         nothing},
    {"FUZH", &FUZZY_H,         10,       always,  nothing,         nothing},
    {"FUZS", &FUZZY_S,         10,       always,  nothing,         nothing},
    {"FUZV", &FUZZY_V,         10,       always,  nothing,         nothing},
    {"SPRI", &SPRAY_MS,        3,        always,  nothing,         nothing},
    {"CDSP", &RCLICK_PICK,     0,        always,  nothing,         nothing},
    {"LMOD", &LINE_MODE,       0,        always,  nothing,         nothing},
    {"ACHK", &ACHK_KEEP,       0,        always,  nothing,         nothing},
    {"HSET", &HSET_V,          0,        always,  nothing,         nothing},
    {"MLLF", &LUPE_LEFT,       0,        restore, nothing,         nothing},
    {"MLTP", &LUPE_TOP,        0,        restore, nothing,         nothing},
    {"MLDS", &LUPE_ON,         0,        restore, nothing,         nothing},
    {"THPD", &DEEP_BAL,        50,       always,  nothing,         nothing},
    {"PRAD", &PRT_REDISP,      1,        always,  nothing,         nothing},
};
// clang-format on

constexpr bool keys_differ() {
  for (const CnfRow& a : CNF_TABLE)
    for (const CnfRow& b : CNF_TABLE)
      if (&a != &b && std::string_view(a.key) == b.key) return false;
  return true;
}
static_assert(keys_differ());

const CnfRow* row_of(const std::string& key) {
  const CnfRow* row = std::ranges::find(CNF_TABLE, key, &CnfRow::key);
  return row == std::end(CNF_TABLE) ? nullptr : row;
}

void set_built_ins() {
  for (const CnfRow& row : CNF_TABLE)
    if (row.built_in) std::visit([&row](auto variable) { preset(variable, *row.built_in); }, row.variable);
  AUTOSAVE_LEFT = AUTOSAVE_MIN;
  STATUS_H = to_int16(INF_POSX.Height() + 5);
}

void read_setting(const KeyedLine& line) {
  const CnfRow* row = row_of(line.key);
  if (!row) return;
  row->before();
  if (row->gate()) std::visit([&line](auto variable) { take(variable, line.value); }, row->variable);
  row->after();
}

// An unknown key keeps the template's value.
void write_setting(KeyedLine& line) {
  if (const CnfRow* row = row_of(line.key))
    line.value = std::visit([](auto variable) { return shown(variable); }, row->variable);
}

}  // namespace

void READ_CNF() {
  const disk::FolderLock lock(APP_PATH);
  const std::string cnf = in_app_path("KISO.CNF");
  set_built_ins();
  const text::NumberScope file(1);
  try {
    text::Open(cnf, text::Mode::Input, 1);
  } catch (const RuntimeError&) {
    text::FileCopy(in_app_path("DEFAULT.CNF"), cnf);
    text::Open(cnf, text::Mode::Input, 1);
  }
  read_keyed_lines(1, read_setting);
}

void WRITE_CNF() {
  const disk::FolderLock lock(APP_PATH);
  rewrite_keyed_file(in_app_path("DEFAULT.CNF"), in_app_path("KISO.CNF"), in_app_path("KISOCNF.TMP"), write_setting);
}

}  // namespace kiso
