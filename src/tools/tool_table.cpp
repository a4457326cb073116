#include "tools/tool_table.h"

#include <algorithm>

#include "tools/tools.h"

namespace kiso {

namespace {

constexpr auto view = Commit::view;
constexpr auto none = Commit::none;
constexpr auto open = Commit::open;
constexpr const char* NO_NAME = "- - - -";

// clang-format off
constexpr ToolRow TOOLS[] = {
    //  no  status text             cursor    press                    drag                 hover               release                     double click           tick      then   commit
    {     0, "No select",            "NORMAL", nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  0,     view},
    {     1, "Pset",                 "NORMAL", pset_press,              pset_dot,            nothing,            pset_dot,                   nothing,               no_tick,  0,     Commit::stroke_box},
    {     2, "FreeLine",             "NORMAL", freeline_press,          freeline_drag,       nothing,            nothing,                    nothing,               no_tick,  0,     view},
    {     3, "Line",                 "NORMAL", line_press,              line_drag,           nothing,            line_release,               nothing,               no_tick,  0,     view},
    {     4, "Box",                  "NORMAL", box_press,               box_drag,            nothing,            box_release,                nothing,               no_tick,  0,     view},
    {     5, "Boxfill",              "NORMAL", area_press,              area_drag,           nothing,            boxfill_release,            nothing,               no_tick,  0,     view},
    {     6, "Circle",               "NORMAL", circle_press,            circle_drag,         nothing,            circle_release,             nothing,               no_tick,  0,     view},
    {     7, "Circlefill",           "NORMAL", circlefill_press,        circle_drag,         nothing,            circlefill_release,         nothing,               no_tick,  0,     view},
    {     8, "Paint A",              "PAINT",  paint_a,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  0,     view},
    {     9, "Paint B",              "PAINT",  paint_b,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  0,     view},
    {    10, "Mask pen",             "NORMAL", nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  0,     view},
    {    11, "Reverse mask pen",     "NORMAL", nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  0,     view},
    {    12, "Left side change",     "NORMAL", nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  0,     view},
    {    13, "Right side change",    "NORMAL", nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  0,     view},
    {    14, "Up side change",       "NORMAL", nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  0,     view},
    {    15, "Down side change",     "NORMAL", nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  0,     view},
    {    16, "Reverse",              "NORMAL", area_press,              area_drag,           nothing,            reverse_release,            nothing,               no_tick,  0,     view},
    {    17, "Change color",         "NORMAL", nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  0,     view},
    {    18, "Copy to Clipboard",    "NORMAL", area_press,              area_drag,           nothing,            clipboard_copy_release,     nothing,               no_tick,  0,     view},
    {    19, "Copy from Clipboard",  "NORMAL", clipboard_stamp,         nothing,             clipboard_hover,    nothing,                    nothing,               no_tick,  0,     view},
    {    21, "Spray",                "SPRAY",  nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  0,     view},
    {    22, "Mask Spray",           "NORMAL", nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  0,     view},
    {    23, "Fuzzy Mask Pen",       "NORMAL", nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  0,     view},
    {    24, "Fuzzy Change Color",   "NORMAL", nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  0,     view},
    {    25, "Reverse ChangeCol.",   "NORMAL", nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  0,     view},
    {    26, "Fuz.Rev.Change Col.",  "NORMAL", nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  0,     view},
    {    27, "Polygon ",             "NORMAL", polygon_press,           line_drag,           nothing,            polygon_release,            nothing,               no_tick,  0,     view},
    {    28, "Polygon Copy",         "NORMAL", polygon_press,           line_drag,           nothing,            polygon_release,            nothing,               no_tick,  0,     view},
    {    29, "Line(Type2)",          "NORMAL", chain_press,             line_drag,           nothing,            chain_release,              nothing,               no_tick,  0,     view},
    {    30, "Glass Mirror",         "NORMAL", nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  0,     view},
    {    31, "Bezier Line",          "NORMAL", line_press,              line_drag,           nothing,            bezier_release,             nothing,               no_tick,  0,     view},
    {    32, "V Box",                "NORMAL", nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  0,     view},
    {    33, "V Pen",                "NORMAL", nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  0,     view},
    {    34, "AirSpray",             "NORMAL", nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  0,     view},
    {    35, "MaskAirSpray",         "NORMAL", nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  0,     view},
    {    36, "Thru Pen",             "NORMAL", nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  0,     view},
    {  1000, "Spoit",                "SPOIT",  spoit,                   spoit,               nothing,            spoit,                      nothing,               no_tick,  0,     none},
    {  1031, NO_NAME,                "NORMAL", bezier_press,            bezier_bend,         bezier_bend,        nothing,                    nothing,               no_tick,  0,     none},
    {  2031, NO_NAME,                "NORMAL", nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  31,    view},
    {  5027, NO_NAME,                "NORMAL", polygon_next,            polygon_hover,       polygon_hover,      nothing,                    polygon_double_click,  no_tick,  0,     open},
    {  5028, NO_NAME,                "NORMAL", polygon_copy_next,       polygon_hover,       polygon_hover,      nothing,                    polygon_copy_close,    no_tick,  0,     open},
    {  5029, NO_NAME,                "NORMAL", chain_next,              nothing,             chain_hover,        nothing,                    chain_double_click,    no_tick,  0,     open},
    {  5031, NO_NAME,                "NORMAL", bezier_end_press,        nothing,             bezier_end_hover,   nothing,                    nothing,               no_tick,  0,     none},
    {  6027, NO_NAME,                "NORMAL", nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  5027,  view},
    {  6028, NO_NAME,                "NORMAL", nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  5028,  view},
    {  6029, NO_NAME,                "NORMAL", nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  5029,  view},
    {  7027, NO_NAME,                "NORMAL", nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  27,    view},
    {  7028, NO_NAME,                "NORMAL", nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  28,    view},
    {  7029, NO_NAME,                "NORMAL", nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  29,    view},
    {  8028, NO_NAME,                "NORMAL", polygon_copy_stamp,      nothing,             polygon_copy_hover, nothing,                    nothing,               no_tick,  0,     view},
    { 10002, "Expand to x2",         "LUPE",   zoom_press,              nothing,             nothing,            zoom_release,               nothing,               no_tick,  0,     view},
    { 10004, "Expand to x4",         "LUPE",   zoom_press,              nothing,             nothing,            zoom_release,               nothing,               no_tick,  0,     view},
    { 10008, "Expand to x8",         "LUPE",   zoom_press,              nothing,             nothing,            zoom_release,               nothing,               no_tick,  0,     view},
    { 10016, NO_NAME,                "LUPE",   zoom_press,              nothing,             nothing,            zoom_release,               nothing,               no_tick,  0,     view},
    { 11001, "Pset",                 "NORMAL", block_dot_press,         block_dot,           nothing,            block_dot,                  nothing,               no_tick,  0,     Commit::block_box},
    { 11002, "Boxfill",              "NORMAL", snap_press,              snap_drag,           nothing,            block_boxfill_release,      nothing,               no_tick,  0,     Commit::block_box},
    { 11003, "Box",                  "NORMAL", block_box_press,         block_box_drag,      nothing,            block_box_release,          nothing,               no_tick,  0,     view},
    { 11004, "Circle",               "NORMAL", block_circle_press,      block_circle_drag,   nothing,            block_circle_release,       nothing,               no_tick,  0,     view},
    { 11005, NO_NAME,                "NORMAL", block_circlefill_press,  block_circle_drag,   nothing,            block_circlefill_release,   nothing,               no_tick,  0,     view},
    { 11006, "V Pen",                "NORMAL", nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  0,     view},
    { 11010, NO_NAME,                "NORMAL", block_line_press,        block_line_drag,     nothing,            block_line_release,         nothing,               no_tick,  0,     view},
    { 11029, "Line(Type2)",          "NORMAL", block_line_press,        block_line_drag,     nothing,            block_chain_release,        nothing,               no_tick,  0,     view},
    { 11100, "Copy",                 "NORMAL", snap_press,              snap_drag,           nothing,            block_copy_release,         nothing,               no_tick,  0,     view},
    { 11101, NO_NAME,                "NORMAL", block_copy_stamp,        nothing,             block_copy_hover,   nothing,                    nothing,               no_tick,  0,     view},
    { 11102, NO_NAME,                "NORMAL", nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  11100, view},
    { 12029, NO_NAME,                "NORMAL", block_chain_next,        nothing,             block_chain_hover,  nothing,                    block_chain_next,      no_tick,  0,     open},
    { 13029, NO_NAME,                "NORMAL", nothing,                 nothing,             nothing,            block_chain_close,          nothing,               no_tick,  0,     view},
    { 20000, "Area copy ",           "NORMAL", area_press,              area_drag,           nothing,            area_copy_release,          nothing,               no_tick,  0,     view},
    { 20001, NO_NAME,                "NORMAL", area_stamp,              nothing,             area_hover,         nothing,                    nothing,               no_tick,  0,     view},
    { 20002, NO_NAME,                "NORMAL", nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  20000, view},
    { 27001, "Write word",           "NORMAL", nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  0,     view},
    { 27002, NO_NAME,                "NORMAL", nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  0,     view},
};
constexpr ToolRow NO_TOOL =
    {    -1, NO_NAME,                "NORMAL", nothing,                 nothing,             nothing,            nothing,                    nothing,               no_tick,  0,     view};
// clang-format on

static_assert(std::ranges::adjacent_find(TOOLS, std::ranges::greater_equal{}, &ToolRow::number) == std::end(TOOLS));

}  // namespace

void nothing(float /*X*/, float /*Y*/) {}
void no_tick() {}

std::span<const ToolRow> all_tools() { return TOOLS; }

const ToolRow& tool_row(int number) {
  const auto* row = std::ranges::lower_bound(TOOLS, number, {}, &ToolRow::number);
  return row != std::end(TOOLS) && row->number == number ? *row : NO_TOOL;
}

}  // namespace kiso
