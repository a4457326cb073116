// The tool table against a list written by hand.
#include "tools/tool_table.h"

#include <algorithm>
#include <map>

#include "tools_stage.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

struct Known {
  int number;
  const char* name;
  const char* cursor;
};
const Known TOOLS[] = {
    {0, "No select", "NORMAL"},
    {1, "Pset", "NORMAL"},
    {2, "FreeLine", "NORMAL"},
    {3, "Line", "NORMAL"},
    {4, "Box", "NORMAL"},
    {5, "Boxfill", "NORMAL"},
    {6, "Circle", "NORMAL"},
    {7, "Circlefill", "NORMAL"},
    {8, "Paint A", "PAINT"},
    {9, "Paint B", "PAINT"},
    {10, "Mask pen", "NORMAL"},
    {11, "Reverse mask pen", "NORMAL"},
    {12, "Left side change", "NORMAL"},
    {13, "Right side change", "NORMAL"},
    {14, "Up side change", "NORMAL"},
    {15, "Down side change", "NORMAL"},
    {16, "Reverse", "NORMAL"},
    {17, "Change color", "NORMAL"},
    {18, "Copy to Clipboard", "NORMAL"},
    {19, "Copy from Clipboard", "NORMAL"},
    {21, "Spray", "SPRAY"},
    {22, "Mask Spray", "NORMAL"},
    {23, "Fuzzy Mask Pen", "NORMAL"},
    {24, "Fuzzy Change Color", "NORMAL"},
    {25, "Reverse ChangeCol.", "NORMAL"},
    {26, "Fuz.Rev.Change Col.", "NORMAL"},
    {27, "Polygon ", "NORMAL"},
    {28, "Polygon Copy", "NORMAL"},
    {29, "Line(Type2)", "NORMAL"},
    {30, "Glass Mirror", "NORMAL"},
    {31, "Bezier Line", "NORMAL"},
    {32, "V Box", "NORMAL"},
    {33, "V Pen", "NORMAL"},
    {34, "AirSpray", "NORMAL"},
    {35, "MaskAirSpray", "NORMAL"},
    {36, "Thru Pen", "NORMAL"},
    {1000, "Spoit", "SPOIT"},
    {10002, "Expand to x2", "LUPE"},
    {10004, "Expand to x4", "LUPE"},
    {10008, "Expand to x8", "LUPE"},
    {10016, "- - - -", "LUPE"},
    {11001, "Pset", "NORMAL"},
    {11002, "Boxfill", "NORMAL"},
    {11003, "Box", "NORMAL"},
    {11004, "Circle", "NORMAL"},
    {11005, "- - - -", "NORMAL"},
    {11006, "V Pen", "NORMAL"},
    {11010, "- - - -", "NORMAL"},
    {11029, "Line(Type2)", "NORMAL"},
    {11100, "Copy", "NORMAL"},
    {20000, "Area copy ", "NORMAL"},
    {27001, "Write word", "NORMAL"},
};
// States that only the events reach.
const int STATES[] = {1031, 2031, 5027, 5028,  5029,  5031,  6027,  6028,  6029,  7027,
                      7028, 7029, 8028, 11101, 11102, 12029, 13029, 20001, 20002, 27002};

TEST(ToolTable, HoldsTheToolsAndTheirStatesAndNoOther) {
  std::vector<int> known(std::begin(STATES), std::end(STATES));
  for (const Known& tool : TOOLS) known.push_back(tool.number);
  std::sort(known.begin(), known.end());
  std::vector<int> held;
  for (const ToolRow& row : all_tools()) held.push_back(row.number);
  EXPECT_EQ(held, known);
}

TEST(ToolTable, StatusLineShowsTheName) {
  stage_with_status(plain(4, 4));
  for (const Known& tool : TOOLS) {
    select_tool(tool.number);
    EXPECT_EQ(INF_CMD.Caption(), tool.name) << tool.number;
  }
  for (const int state : STATES) EXPECT_STREQ(TOOL_STATUS(state), "- - - -") << state;
  for (const int no_tool : {20, 37, -1, 999, 11000, 32767}) EXPECT_STREQ(TOOL_STATUS(no_tool), "- - - -") << no_tool;
}

TEST(ToolTable, PointerShowsTheTool) {
  stage::stage(plain(4, 4));
  const std::map<std::string, const char*> SHEETS = {
      {"LUPE", "LUPE_ICO"}, {"SPOIT", "SPOIT_ICO"}, {"PAINT", "Paint_ICO"}};
  for (const Known& tool : TOOLS) {
    EXPECT_STREQ(tool_row(tool.number).cursor, tool.cursor) << tool.number;
    select_tool(tool.number);
    const auto sheet = SHEETS.find(tool.cursor);
    // The arrow for all other words, "SPRAY" among them.
    EXPECT_EQ(DRAW.MousePointer(), sheet == SHEETS.end() ? 1 : 99) << tool.number;
    if (sheet != SHEETS.end()) {
      EXPECT_STREQ(DRAW.MouseIcon(), sheet->second) << tool.number;
    }
  }
}

// The buttons of these lead to tools that have no procedure yet.
bool is_absent(const ToolRow& row) {
  const bool a_tool = std::ranges::find(TOOLS, row.number, &Known::number) != std::end(TOOLS);
  return a_tool && row.number != 0 && row.press == nothing && row.release == nothing;
}

TEST(ToolTable, ReleaseReadsBackByTheStateThatItHasLedTo) {
  const std::map<int, Commit> BOXES = {{1, Commit::stroke_box}, {11001, Commit::block_box}, {11002, Commit::block_box}};
  const int NOTHING[] = {1000, 1031, 5031};
  const int GOES_ON[] = {5027, 5028, 5029, 12029};
  const auto in = [](const auto& list, int n) { return std::ranges::find(list, n) != std::end(list); };
  for (const ToolRow& row : all_tools()) {
    const Commit wanted = BOXES.contains(row.number) ? BOXES.at(row.number)
                          : in(NOTHING, row.number)  ? Commit::none
                          : in(GOES_ON, row.number)  ? Commit::open
                          : is_absent(row)           ? Commit::absent
                                                     : Commit::view;
    EXPECT_EQ(row.commit, wanted) << row.number;
  }
  EXPECT_EQ(tool_row(20).commit, Commit::view);  // a number that is no tool
}

TEST(ToolTable, ReleaseLeadsToTheNextState) {
  const std::map<int, int> STEPS = {{6027, 5027}, {6028, 5028}, {6029, 5029},   {7027, 27},    {7028, 28},
                                    {7029, 29},   {2031, 31},   {20002, 20000}, {11102, 11100}};
  for (const ToolRow& row : all_tools()) {
    EXPECT_EQ(row.after_release, STEPS.contains(row.number) ? STEPS.at(row.number) : 0) << row.number;
  }
}

TEST(ToolTable, ClosingClickOfTheExpandedChainLeadsBackOnceItIsCommitted) {
  for (const ToolRow& row : all_tools()) EXPECT_EQ(row.after_commit, row.number == 13029 ? 11029 : 0) << row.number;
}

TEST(ToolTable, AFurtherClickGoesOnFromWhereTheOneBeforeBegan) {
  for (const ToolRow& row : all_tools()) {
    const bool further = row.number == 12029 || row.number == 1031 || row.number == 5031;
    EXPECT_EQ(row.keeps_start, further) << row.number;
    EXPECT_EQ(row.holds_stroke, row.number == 12029) << row.number;
  }
}

// Of a tool of several clicks the second press of a double click is its DblClick.
TEST(ToolTable, NoStateThatActsOnADoubleClickTakesItsPressAsAnother) {
  for (const int number : {1, 11001, 11002}) EXPECT_TRUE(tool_row(number).each_press) << number;
  for (const ToolRow& row : all_tools()) {
    if (row.double_click != nothing) {
      EXPECT_FALSE(row.each_press) << row.number;
    }
  }
}

TEST(ToolTable, AToolThatIsNotThereYetLeavesUndoAsItIs) {
  for (const ToolRow& row : all_tools()) {
    if (!is_absent(row)) continue;
    stage::stage({"...", "..."});
    select_tool(1);
    press(1, 1), release(1, 1);
    select_tool(row.number);
    press(0, 0), release(0, 0);
    EXPECT_EQ(PEN_DOWN, 0) << row.number;
    EXPECT_PIC({"...", ".#."});
    key(' ');
    EXPECT_PIC({"...", "..."}) << row.number;

    forms::enter([] {
      UNDO_READY = 0;
      UNDO_BUTTON(2);
    });
    press(0, 0), release(0, 0);
    EXPECT_EQ(UNDO_READY, 0) << row.number;
    EXPECT_FALSE(CMD_WIN.UNDO.Enabled()) << row.number;
  }
}

TEST(ToolTable, NoSelectChangesNothing) {
  stage::stage({".#yb", "grb."});
  select_tool(0);
  press(0, 0);
  drag(3, 1);
  EXPECT_DRAW({".#yb", "grb."});
  release(3, 1);
  EXPECT_PIC({".#yb", "grb."});
}

}  // namespace
