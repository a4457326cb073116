#include "play/variables.h"

#include <cmath>
#include <limits>

#include "addin/addin.h"
#include "dialogs/set_win.h"
#include "frame/p_win.h"
#include "palette/cmd_win.h"
#include "play/script.h"

namespace play {

using namespace kiso;  // NOLINT(google-build-using-namespace)

namespace {

using At = std::span<const int>;

Variable vertex_coordinate(At i) {
  if (i[1] != 1 && i[1] != 2) throw RuntimeError(9);
  return i[1] == 1 ? &POLY_PTS(i[0]).x : &POLY_PTS(i[0]).y;
}

#define PLAIN(name)                                \
  {                                                \
#name, 0, [](At) -> Variable { return &name; } \
  }
#define FIELD(window, name, variable)                                     \
  {                                                                       \
#window "." #name, 0, [](At) -> Variable { return &window.variable; } \
  }
#define ROW(name)                                          \
  {                                                        \
#name, 1, [](At i) -> Variable { return &name(i[0]); } \
  }

constexpr VariableRow VARIABLES[] = {
    // program
    PLAIN(LOADING_FLAG),
    PLAIN(QUIT_NOW),
    PLAIN(FORM_CLOSING),
    PLAIN(APP_PATH),
    PLAIN(APP_TITLE),
    PLAIN(PIC_FILE),
    PLAIN(PAL_SHOWN),
    // view
    ROW(PIC_SIZE),
    PLAIN(EXP_RATE),
    ROW(VIEW_ORG),
    ROW(VIEW_PIX),
    ROW(VIEW_DOT),
    PLAIN(STATUS_ON),
    PLAIN(STATUS_H),
    PLAIN(PREVIEW_ON),
    // tool
    PLAIN(CUR_TOOL),
    PLAIN(PREV_TOOL),
    PLAIN(EXP_TOOL),
    PLAIN(PEN_SIZE),
    PLAIN(PEN_DOWN),
    PLAIN(STROKE_STATE),
    PLAIN(UNDO_READY),
    PLAIN(ROOT_GROUP),
    PLAIN(EXP_GROUP),
    // colours
    PLAIN(TAR_R),
    PLAIN(TAR_G),
    PLAIN(TAR_B),
    PLAIN(DES_R),
    PLAIN(DES_G),
    PLAIN(DES_B),
    PLAIN(CUR_R),
    PLAIN(CUR_G),
    PLAIN(CUR_B),
    PLAIN(COL_TARGET),
    PLAIN(COL_PANE),
    PLAIN(COL_RGB_LOCK),
    PLAIN(COL_HSV_LOCK),
    ROW(DICT_NAME),
    {"DICT_COL", 3, [](At i) -> Variable { return &DICT_COL(i[0])(i[1])(i[2]); }},
    PLAIN(DICT_CUR),
    PLAIN(DICT_WRITE),
    // parameters of the colour tools
    PLAIN(FUZZY_H),
    PLAIN(FUZZY_S),
    PLAIN(FUZZY_V),
    PLAIN(SPRAY_MS),
    PLAIN(HSET_V),
    PLAIN(DEEP_BAL),
    PLAIN(FUZZY_ON),
    PLAIN(SPRAY_ON),
    PLAIN(HSET_ON),
    PLAIN(DEEP_ON),
    // settings
    PLAIN(POS_RESTORE),
    PLAIN(COL_LEFT),
    PLAIN(COL_TOP),
    PLAIN(CMD_LEFT),
    PLAIN(CMD_TOP),
    PLAIN(BIRD_TOP),
    PLAIN(BIRD_LEFT),
    PLAIN(BIRD_W),
    PLAIN(BIRD_H),
    PLAIN(BIRD_ON),
    PLAIN(BIRD_AUTO),
    PLAIN(BIRD_REWRITE),
    PLAIN(VDMD),
    PLAIN(LUPE_LEFT),
    PLAIN(LUPE_TOP),
    PLAIN(LUPE_ON),
    PLAIN(STRETCH_OK),
    PLAIN(RELOAD_MODE),
    PLAIN(DROP_KEEP),
    PLAIN(ACHK_KEEP),
    ROW(LAUNCH_EXE),
    ROW(LAUNCH_BACK),
    PLAIN(AUTOSAVE_DEST),
    PLAIN(AUTOSAVE_MIN),
    PLAIN(AUTOSAVE_LEFT),
    PLAIN(MERGE_CHECK),
    PLAIN(RCLICK_PICK),
    PLAIN(LINE_MODE),
    PLAIN(PRT_REDISP),
    // add-ins
    ROW(AD_NAME),
    ROW(AD_ID),
    ROW(AD_PATH),
    ROW(AD_KIND),
    PLAIN(AD_CNT),
    ROW(FR_ID),
    ROW(FR_CMD),
    ROW(FR_FILTER),
    ROW(FR_EXT),
    PLAIN(FR_CNT),
    ROW(FW_ID),
    ROW(FW_CMD),
    ROW(FW_FILTER),
    ROW(FW_EXT),
    PLAIN(FW_CNT),
    ROW(SP_ID),
    ROW(SP_CMD),
    PLAIN(SP_CNT),
    ROW(TW_ID),
    ROW(TW_CMD),
    PLAIN(TWSL_ON),
    PLAIN(TWSC_ON),
    // fields of ADD_WIN
    PLAIN(AIP_SCAN),
    PLAIN(AIP_SELECT),
    PLAIN(AIP_NAME),
    PLAIN(AIP_ID),
    PLAIN(AIP_EXE),
    PLAIN(AIP_KIND),
    ROW(AIP_TW),
    ROW(AIP_FR_CMD),
    ROW(AIP_FR_FILTER),
    ROW(AIP_FR_EXT),
    PLAIN(AIP_FR_CNT),
    ROW(AIP_FW_CMD),
    ROW(AIP_FW_FILTER),
    ROW(AIP_FW_EXT),
    PLAIN(AIP_FW_CNT),
    PLAIN(AIP_HAS_SPOP),
    PLAIN(AIP_SPOP),
    // fields of P_WIN
    PLAIN(COL_A),
    PLAIN(COL_B),
    PLAIN(COL_XOR),
    ROW(PT_START),
    ROW(PT_LAST),
    ROW(PT_CUR),
    ROW(PT_DOT),
    ROW(BOX_MIN),
    ROW(BOX_MAX),
    PLAIN(DOWN_BUSY),
    PLAIN(MOVE_BUSY),
    PLAIN(UP_BUSY),
    PLAIN(KEY_MOVED),
    ROW(POLY_PTS),
    {"POLY_PTS", 2, &vertex_coordinate},
    PLAIN(POLY_N),
    ROW(POLY_COL),
    ROW(BEZ_P0),
    ROW(BEZ_P3),
    ROW(RECT_NEW),
    ROW(RECT_OLD),
    {"BRUSH_CELL", 2, [](At i) -> Variable { return &BRUSH_CELL(i[0])(i[1]); }},
    PLAIN(AREA_DX),
    PLAIN(AREA_DY),
    PLAIN(AREA_W),
    PLAIN(AREA_H),
    // fields of CMD_WIN, with or without the window's name; the pressed button of a group bears the group's name
    FIELD(CMD_WIN, CMD_B, CMD_B_pressed),
    FIELD(CMD_WIN, EDIT_B, EDIT_B_pressed),
    FIELD(CMD_WIN, EXP_M1, EXP_M1_pressed),
    FIELD(CMD_WIN, EXP_M2, EXP_M2_pressed),
    FIELD(CMD_WIN, BTN_RIGHT, BTN_RIGHT),
    FIELD(CMD_WIN, FILE_B_RIGHT, FILE_B_RIGHT),
    // fields of SET_WIN
    FIELD(SET_WIN, SW_REWRITE, SW_REWRITE),
    FIELD(SET_WIN, SW_STRETCH, SW_STRETCH),
    FIELD(SET_WIN, SW_RELOAD, SW_RELOAD),
    {"SW_REWRITE", 0, [](At) -> Variable { return &SET_WIN.SW_REWRITE; }},
    {"SW_STRETCH", 0, [](At) -> Variable { return &SET_WIN.SW_STRETCH; }},
    {"SW_RELOAD", 0, [](At) -> Variable { return &SET_WIN.SW_RELOAD; }},
};

#undef PLAIN
#undef FIELD
#undef ROW

template <class Whole>
void assign_whole(Whole& variable, const std::string& value) {
  const double v = std::nearbyint(real_number(value));
  if (!(v >= std::numeric_limits<Whole>::min() && v <= std::numeric_limits<Whole>::max())) {
    throw ScriptError("out of range: " + value);
  }
  variable = static_cast<Whole>(v);
}

template <class... F>
struct Cases : F... {
  using F::operator()...;
};
template <class... F>
Cases(F...) -> Cases<F...>;  // clang 14 does not find it by itself

}  // namespace

const VariableRow* find_variable(std::string_view name, int indices) {
  for (const VariableRow& row : VARIABLES) {
    const bool named = row.name == name || row.name.substr(row.name.find('.') + 1) == name;
    if (named && row.indices == indices) return &row;
  }
  return nullptr;
}

std::string print(const Variable& variable) {
  return std::visit(Cases{[](const std::string* s) { return *s; },
                          [](const raster::Point* p) { return number_text(p->x) + " " + number_text(p->y); },
                          [](const auto* number) { return number_text(static_cast<double>(*number)); }},
                    variable);
}

void assign(const Variable& variable, const std::string& value) {
  std::visit(Cases{[&](std::string* s) { *s = value; },
                   [](const raster::Point* /*p*/) { throw ScriptError("a point is set by its coordinates"); },
                   [&](int16_t* n) { assign_whole(*n, value); }, [&](int32_t* n) { assign_whole(*n, value); },
                   [&](uint32_t* n) { assign_whole(*n, value); },
                   [&](float* n) { *n = static_cast<float>(real_number(value)); },
                   [&](double* n) { *n = real_number(value); }},
             variable);
}

}  // namespace play
