#include <gtest/gtest.h>

#include "colour/col_win.h"
#include "colour/colour.h"
#include "frame/p_win.h"

namespace kiso {
namespace {

struct DictionaryCells : testing::Test {
  DictionaryCells() {
    for (Window* w : {static_cast<Window*>(&P_WIN), static_cast<Window*>(&COL_WIN)})
      w->Form_Load = w->Form_Resize = [] {};
  }
  static void set_cell(int dictionary, int cell, int16_t r, int16_t g, int16_t b) {
    auto& colour = DICT_COL(dictionary)(cell);
    colour(1) = r, colour(2) = g, colour(3) = b;
  }
};

TEST_F(DictionaryCells, ACellShowsItsColourAndALetterThatCanBeRead) {
  DICT_CELL_SHOW(3, 255, 200, 10);
  EXPECT_EQ(COL_WIN.COLINDEX(3).BackColor(), RGB(255, 200, 10));
  EXPECT_EQ(COL_WIN.COLINDEX(3).ForeColor(), QBColor(0));
  DICT_CELL_SHOW(3, 0, 0, 0);
  EXPECT_EQ(COL_WIN.COLINDEX(3).BackColor(), RGB(0, 0, 0));
  EXPECT_EQ(COL_WIN.COLINDEX(3).ForeColor(), QBColor(15));
}

TEST_F(DictionaryCells, TheLetterTurnsWhiteBelowAValueOf70) {
  DICT_CELL_SHOW(0, 0, 69, 30);
  EXPECT_EQ(COL_WIN.COLINDEX(0).ForeColor(), QBColor(15));
  DICT_CELL_SHOW(0, 0, 70, 30);
  EXPECT_EQ(COL_WIN.COLINDEX(0).ForeColor(), QBColor(0));
}

TEST_F(DictionaryCells, AComponentOutsideShowsAsTheNearest) {
  DICT_CELL_SHOW(25, 300, -5, 32767);
  EXPECT_EQ(COL_WIN.COLINDEX(25).BackColor(), RGB(255, 0, 255));
}

TEST_F(DictionaryCells, ALetterFetchesTheColourOfTheOpenDictionary) {
  set_cell(2, 0, 1, 2, 3);
  set_cell(2, 25, 300, 5, -6);
  DICT_CUR = 2;
  DICT_KEY('A', WHITE);
  EXPECT_EQ(TAR_R, 1);
  EXPECT_EQ(TAR_G, 2);
  EXPECT_EQ(TAR_B, 3);
  COL_TARGET = 1;
  DICT_KEY('Z', WHITE);
  EXPECT_EQ(DES_R, 255) << "the colour is clamped on its way";
  EXPECT_EQ(DES_G, 5);
  EXPECT_EQ(DES_B, 0);
  EXPECT_EQ(DICT_COL(2)(25)(1), 300) << "the dictionary keeps what the file gave";
  EXPECT_EQ(TAR_R, 1);
}

TEST_F(DictionaryCells, InWriteModeALetterStoresThePixel) {
  DICT_CUR = 9;
  DICT_WRITE = 1;
  DICT_KEY('C', RGB(10, 20, 30));
  EXPECT_EQ(DICT_COL(9)(2)(1), 10);
  EXPECT_EQ(DICT_COL(9)(2)(2), 20);
  EXPECT_EQ(DICT_COL(9)(2)(3), 30);
  EXPECT_EQ(COL_WIN.COLINDEX(2).BackColor(), RGB(10, 20, 30));
  EXPECT_EQ(COL_WIN.COLINDEX(2).ForeColor(), QBColor(15));
  EXPECT_EQ(TAR_R, 0) << "the pens stay";
  EXPECT_EQ(DES_R, 255);
}

}  // namespace
}  // namespace kiso
