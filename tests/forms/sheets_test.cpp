#include "platform/forms/sheets.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

using forms::Sheet;

namespace {

// Sheets of buttons: what the windows that show them expect.
struct Buttons {
  const char* name;
  int cell, count;
};
const Buttons BUTTONS[] = {
    {"CMD_B_IMG", 24, 36},    {"EXP_M1_IMG", 24, 20}, {"EXP_M2_IMG", 24, 4}, {"EXP_B_IMG", 24, 3},
    {"ROOT_B_IMG", 24, 7},    {"SYS_B_IMG", 24, 5},   {"FILE_B_IMG", 24, 8}, {"OPT_W_IMG", 24, 3},
    {"EDIT_B_IMG", 24, 3},    {"EFCT_B_IMG", 24, 6},  {"RB_IMG", 14, 1},     {"C_BUT_IMG", 16, 8},
    {"P_BUT_IMG", 16, 7},     {"PP_BUT_IMG", 16, 7},  {"M_BUT_IMG", 16, 7},  {"MM_BUT_IMG", 16, 7},
    {"SPOP_BUT_BASE", 36, 1},
};
const char* const CURSORS[] = {"LUPE_ICO", "SPOIT_ICO", "Paint_ICO", "WAIT_ICO"};

const Sheet& sheet(const std::string& name) {
  for (const Sheet& found : forms::all_sheets())
    if (found.name == name) return found;
  ADD_FAILURE() << "no sheet " << name;
  return forms::all_sheets()[0];
}

uint32_t pixel(const Sheet& in, int x, int y) { return in.pixels[y * in.width + x]; }

std::vector<uint32_t> cut(const Sheet& from, int left, int top, int width, int height) {
  std::vector<uint32_t> out;
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) out.push_back(pixel(from, left + x, top + y));
  return out;
}

// A button's inside, where the bevel is not: moved by one when it is pressed.
std::vector<uint32_t> inside(const Buttons& row, int index, bool pressed) {
  const int at = pressed ? 3 : 2;
  return cut(sheet(row.name), index * row.cell + at, (pressed ? row.cell : 0) + at, row.cell - 4, row.cell - 4);
}

bool one_colour(const std::vector<uint32_t>& pixels) {
  return std::all_of(pixels.begin(), pixels.end(), [&](uint32_t p) { return p == pixels[0]; });
}

}  // namespace

TEST(Sheets, EachNameOnce) {
  std::set<std::string> names;
  for (const Sheet& found : forms::all_sheets()) EXPECT_TRUE(names.insert(found.name).second) << found.name;
  EXPECT_EQ(names.size(), std::size(BUTTONS) + std::size(CURSORS) + 1);  // and KISO_ICO
}

TEST(Sheets, ButtonsStandInTwoRows) {
  for (const Buttons& row : BUTTONS) {
    EXPECT_EQ(sheet(row.name).width, row.cell * row.count) << row.name;
    EXPECT_EQ(sheet(row.name).height, row.cell * 2) << row.name;
  }
}

TEST(Sheets, ButtonsAreOpaque) {
  for (const Buttons& row : BUTTONS) {
    const Sheet& in = sheet(row.name);
    EXPECT_TRUE(std::all_of(in.pixels, in.pixels + in.width * in.height, [](uint32_t p) { return p >> 24 == 0xFF; }))
        << row.name;
  }
}

TEST(Sheets, EveryButtonTellsSomethingOfItsOwn) {
  for (const Buttons& row : BUTTONS) {
    std::set<std::vector<uint32_t>> seen;
    for (int i = 0; i < row.count; ++i) {
      const auto icon = inside(row, i, false);
      EXPECT_EQ(one_colour(icon), std::string(row.name) == "SPOP_BUT_BASE") << row.name << " " << i;
      EXPECT_TRUE(seen.insert(icon).second) << row.name << " " << i << " looks like another";
    }
  }
}

TEST(Sheets, LightComesFromTheTopLeft) {
  for (const Buttons& row : BUTTONS)
    for (int i = 0; i < row.count; ++i) {
      const Sheet& in = sheet(row.name);
      const int left = i * row.cell, last = row.cell - 1, middle = row.cell / 2;
      const uint32_t light = 0xFFFFFFFF;
      EXPECT_EQ(pixel(in, left, middle), light) << row.name << " " << i;
      EXPECT_NE(pixel(in, left + last, middle), light) << row.name << " " << i;
      EXPECT_NE(pixel(in, left, row.cell + middle), light) << row.name << " " << i;
      EXPECT_EQ(pixel(in, left + last, row.cell + middle), light) << row.name << " " << i;
    }
}

// Where the raised face shows the bare face the pressed one does too, and every other pixel is the same one step on.
TEST(Sheets, PressedIsTheSamePictureOneStepToTheLowerRight) {
  for (const Buttons& row : BUTTONS)
    for (int i = 0; i < row.count; ++i) {
      const uint32_t face = pixel(sheet("SPOP_BUT_BASE"), 18, 18),
                     face_down = pixel(sheet("SPOP_BUT_BASE"), 18, 36 + 18);
      ASSERT_NE(face, face_down);
      auto raised = inside(row, i, false);
      std::replace(raised.begin(), raised.end(), face, face_down);
      EXPECT_EQ(raised, inside(row, i, true)) << row.name << " " << i;
    }
}

// The colour squares and the signs beside them show pure colours; the last minus goes to black.
TEST(Sheets, ColourButtonsShowTheirColour) {
  const uint32_t rain[] = {0xFF0000FF, 0xFFFF0000, 0xFFFF00FF, 0xFF00FF00,
                           0xFF00FFFF, 0xFFFFFF00, 0xFFFFFFFF, 0xFF000000};
  const auto shows = [](const char* name, int index, uint32_t colour) {
    const auto icon = inside({name, 16, 8}, index, false);
    return std::find(icon.begin(), icon.end(), colour) != icon.end();
  };
  for (int i = 0; i < 8; ++i) EXPECT_TRUE(shows("C_BUT_IMG", i, rain[i])) << i;
  for (const char* name : {"P_BUT_IMG", "PP_BUT_IMG", "M_BUT_IMG", "MM_BUT_IMG"})
    for (int i = 0; i < 6; ++i) EXPECT_TRUE(shows(name, i, rain[i])) << name << i;
  for (const char* name : {"P_BUT_IMG", "PP_BUT_IMG"}) EXPECT_TRUE(shows(name, 6, rain[6])) << name;
  for (const char* name : {"M_BUT_IMG", "MM_BUT_IMG"}) EXPECT_TRUE(shows(name, 6, rain[7])) << name;
}

TEST(Sheets, CursorsShowOnAnyPicture) {
  for (const char* name : CURSORS) {
    const Sheet& in = sheet(name);
    ASSERT_EQ(in.width, 32) << name;
    ASSERT_EQ(in.height, 32) << name;
    EXPECT_TRUE(in.hot_x >= 0 && in.hot_x < 32 && in.hot_y >= 0 && in.hot_y < 32) << name;
    // the hot spot lies on the figure, not in the air beside it
    const uint32_t hot = pixel(in, in.hot_x, in.hot_y);
    EXPECT_TRUE(hot >> 24 == 0xFF && hot != 0xFFFFFFFF) << name;
    // what lies beside a transparent pixel is white, so the figure never touches the picture
    for (int y = 0; y < 32; ++y)
      for (int x = 0; x + 1 < 32; ++x) {
        const uint32_t a = pixel(in, x, y), b = pixel(in, x + 1, y);
        EXPECT_TRUE(a == 0 || a >> 24 == 0xFF) << name;
        EXPECT_TRUE(a != 0 || b == 0 || b == 0xFFFFFFFF) << name << " " << x << " " << y;
        EXPECT_TRUE(b != 0 || a == 0 || a == 0xFFFFFFFF) << name << " " << x << " " << y;
      }
  }
}

TEST(Sheets, TheProgramHasAnIcon) {
  const Sheet& in = sheet("KISO_ICO");
  EXPECT_EQ(in.width, 48);
  EXPECT_EQ(in.height, 48);
  EXPECT_EQ(in.pixels[0] >> 24, 0u);
  EXPECT_FALSE(one_colour(cut(in, 0, 0, 48, 48)));
}
