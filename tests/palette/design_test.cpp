// What a person finds on the palette: every button in its place, with a picture and a name.
#include <set>

#include "palette/palette_fixture.h"
#include "palette/palette_table.h"
#include "platform/forms/sheets.h"

namespace kiso {
namespace {

constexpr int BLANK = -1;

// A panel's buttons in reading order, as the palette is laid out.
struct Row {
  Panel panel;
  Group group;
  int row;
  std::vector<int> indices;
};
const Row ROWS[] = {
    {Panel::ROOT_B_BASE, Group::ROOT_B, 0, {0, 4, 6, 1}},
    {Panel::ROOT_B_BASE, Group::ROOT_B, 1, {2, 5, 3}},
    {Panel::ROOT_M0, Group::CMD_B, 0, {0, 1, 2, 3}},
    {Panel::ROOT_M0, Group::CMD_B, 1, {4, 5, 6, 20}},
    {Panel::ROOT_M0, Group::CMD_B, 2, {7, 8, 9, 10}},
    {Panel::ROOT_M1, Group::EDIT_B, 0, {BLANK, 0, 1, 2}},
    {Panel::ROOT_M2, Group::FILE_B, 0, {BLANK, BLANK, 0, 2}},
    {Panel::ROOT_M2, Group::FILE_B, 1, {BLANK, BLANK, 1, 3}},
    {Panel::ROOT_M2, Group::FILE_B, 2, {4, 5, 6, 7}},
    {Panel::ROOT_M3, Group::SYS_B, 0, {0, 1, 2}},
    {Panel::ROOT_M3, Group::SYS_B, 2, {3, 4}},
    {Panel::ROOT_M4, Group::CMD_B, 0, {11, 16, 27, 23}},
    {Panel::ROOT_M4, Group::CMD_B, 1, {18, 19, 21, 22}},
    {Panel::ROOT_M4, Group::CMD_B, 2, {12, 13, 14, 15}},
    {Panel::ROOT_M5, Group::EFCT_B, 0, {0, 1, 2, 3}},
    {Panel::ROOT_M5, Group::EFCT_B, 1, {4, 5}},
    {Panel::ROOT_M6, Group::CMD_B, 0, {17, 24, 33, 34}},
    {Panel::ROOT_M6, Group::CMD_B, 1, {25, 26, 30, 35}},
    {Panel::ROOT_M6, Group::CMD_B, 2, {28, 29, 32, 31}},
    {Panel::EXP_B_BASE, Group::EXP_B, 0, {0, 1, 2}},
    {Panel::EXP_M0, Group::EXP_M1, 0, {0, 12, 13, 5}},
    {Panel::EXP_M0, Group::EXP_M1, 1, {3, 4, 11, 6}},
    {Panel::EXP_M0, Group::EXP_M1, 2, {1, 2, 14, 15}},
    {Panel::EXP_M1, Group::EXP_M1, 0, {7, 8, 9, 10}},
    {Panel::EXP_M1, Group::EXP_M1, 1, {16, 17, 18, 19}},
    {Panel::EXP_M2, Group::EXP_M2, 0, {0, 1, 2, 3}},
    {Panel::WINDOW, Group::OPT_W_B, 0, {1, 2, 0}},
};

TEST_F(Palette, EveryButtonStandsInItsPlace) {
  size_t buttons = 0;
  for (const Row& row : ROWS) {
    const PanelPlace& panel = place_of(row.panel);
    PictureBox* box = panel.box();
    for (size_t column = 0; column < row.indices.size(); ++column) {
      if (row.indices[column] == BLANK) continue;
      ++buttons;
      ImageBox& b = group_of(row.group).button(row.indices[column]);
      EXPECT_EQ(b.container, box) << b.full_name();
      EXPECT_EQ(b.Left(), (box ? 0 : panel.left) + 24.0 * static_cast<double>(column)) << b.full_name();
      EXPECT_EQ(b.Top(), (box ? 0 : panel.top) + 24.0 * row.row) << b.full_name();
      EXPECT_EQ(b.Width(), 24) << b.full_name();
      EXPECT_EQ(b.Height(), 24) << b.full_name();
    }
  }
  EXPECT_EQ(buttons, palette_buttons().size()) << "each stands in one place";
}

// Its click is as that of any other: the tables of clicks hold them all.
TEST_F(Palette, AButtonOfWhatIsStillToComeLooksFaintAndSaysSo) {
  for (const PalButton& b : palette_buttons()) {
    const ImageBox& button = group_of(b.group).button(b.index);
    EXPECT_EQ(button.faint, b.coming) << button.full_name();
    EXPECT_EQ(button.ToolTip().find("(準備中)") != std::string::npos, b.coming) << button.full_name();
  }
}

TEST_F(Palette, PanelsAndTheFootFitTheWindow) {
  for (const PanelPlace& p : palette_panels()) {
    EXPECT_LE(p.left + p.width, CMD_WIN.ScaleWidth());
    EXPECT_LE(p.top + p.height, CMD_WIN.ScaleHeight());
  }
  for (const PalButton& b : palette_buttons()) {
    EXPECT_LE((b.column + 1) * CELL, place_of(b.panel).width);
    EXPECT_LE((b.row + 1) * CELL, place_of(b.panel).height);
  }
}

TEST_F(Palette, EveryButtonHasAPictureOfItsOwn) {
  std::set<std::string> sheets;
  for (const Sheet& sheet : all_sheets()) sheets.insert(sheet.name);
  for (const PalButton& b : palette_buttons()) {
    const PalGroup& group = group_of(b.group);
    const ImageBox& image = group.button(b.index);
    EXPECT_TRUE(sheets.contains(image.sheet())) << image.full_name();
    EXPECT_EQ(image.sheet(), group.sheet);
    EXPECT_EQ(image.cell_x(), b.index * 24) << image.full_name();
  }
  for (const PalGroup& group : palette_groups()) {
    const auto sheet = std::ranges::find(all_sheets(), std::string_view(group.sheet), &Sheet::name);
    ASSERT_NE(sheet, all_sheets().end());
    EXPECT_EQ(sheet->width, group.count * 24) << group.sheet;
    EXPECT_EQ(sheet->height, 48) << group.sheet;
  }
}

TEST_F(Palette, EveryButtonSaysWhatItIs) {
  for (const PalButton& b : palette_buttons()) {
    const ImageBox& image = group_of(b.group).button(b.index);
    EXPECT_FALSE(image.accessible_name.empty()) << image.full_name();
    EXPECT_EQ(image.accessible_name.find("- -"), std::string::npos) << image.full_name();
    EXPECT_EQ(image.ToolTip().find(image.accessible_name), 0U) << image.full_name();
  }
  EXPECT_EQ(CMD_WIN.CMD_B(27).accessible_name, "Polygon");
  EXPECT_EQ(CMD_WIN.EXP_M1(15).accessible_name, "Circlefill");
  EXPECT_NE(CMD_WIN.CMD_B(23).ToolTip().find("右クリック"), std::string::npos);
  EXPECT_EQ(CMD_WIN.CMD_B(25).ToolTip().find("右クリック"), std::string::npos);
  EXPECT_NE(CMD_WIN.UNDO.ToolTip().find("Space"), std::string::npos);
}

TEST_F(Palette, NoTwoButtonsOfAPanelSayTheSame) {
  std::set<std::pair<const PictureBox*, std::string>> tips;
  for (const PalButton& b : palette_buttons()) {
    const ImageBox& image = group_of(b.group).button(b.index);
    EXPECT_TRUE(tips.emplace(place_of(b.panel).box(), image.ToolTip()).second) << image.full_name();
  }
}

}  // namespace
}  // namespace kiso
