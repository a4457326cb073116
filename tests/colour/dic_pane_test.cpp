// Pane Dic: reading and writing cells by click and by letter, names, the two modes.
#include "colour/colour.h"
#include "colour/colour_test.h"

namespace kiso {
namespace {

constexpr int ENTER = 13, TAB = 9;

struct Dictionary : ColourTest {
  Dictionary() {
    for (int d = 0; d <= 9; ++d) {
      DICT_NAME(d) = "辞書" + std::to_string(d);
      for (int cell = 0; cell < 26; ++cell) store(d, cell, {d, cell, 9});
    }
    COL_WIN.Unload();
    COL_WIN.Show();
    click(COL_WIN.Command3);
  }
  static void store(int d, int cell, Three colour) {
    DICT_COL(d)(cell)(1) = static_cast<int16_t>(colour.a);
    DICT_COL(d)(cell)(2) = static_cast<int16_t>(colour.b);
    DICT_COL(d)(cell)(3) = static_cast<int16_t>(colour.c);
  }
  static Three stored(int d, int cell) { return {DICT_COL(d)(cell)(1), DICT_COL(d)(cell)(2), DICT_COL(d)(cell)(3)}; }
  static void type(const char* name, int key) {
    COL_WIN.Combo1.Text(name);
    COL_WIN.Combo1.KeyPress.fire(-1, key);
  }
};

TEST_F(Dictionary, AWindowThatWasClosedComesBackWithTheDictionaries) {
  ASSERT_EQ(COL_WIN.Combo1.ListCount(), 10);
  COL_WIN.Combo1.ListIndex(5);
  type("空", ENTER);
  COL_WIN.Unload();
  EXPECT_EQ(COL_WIN.Combo1.ListCount(), 10);
  EXPECT_EQ(COL_WIN.Combo1.List(5), "空");
  EXPECT_EQ(COL_WIN.Combo1.Text(), "辞書0");
  EXPECT_EQ(COL_WIN.COLINDEX(3).BackColor(), RGB(0, 3, 9));
}

TEST_F(Dictionary, CellsBearTheLettersAToZ) {
  EXPECT_EQ(COL_WIN.COLINDEX(0).Caption(), "A");
  EXPECT_EQ(COL_WIN.COLINDEX(25).Caption(), "Z");
}

TEST_F(Dictionary, AClickReadsACellAndKeepsThePickTool) {
  CUR_TOOL = 1000;
  PREV_TOOL = 2;
  store(0, 3, {10, 20, 30});
  click(COL_WIN.COLINDEX, 3);
  EXPECT_EQ(target(), (Three{10, 20, 30}));
  EXPECT_EQ(CUR_TOOL, 1000);
}

TEST_F(Dictionary, AClickInWriteModeStoresTheSelectedColour) {
  click(COL_WIN.Command4);
  set_target(1, 2, 3);
  set_destination(200, 100, 50);
  CUR_R = CUR_G = CUR_B = 77;
  click(COL_WIN.COLINDEX, 25);
  EXPECT_EQ(stored(0, 25), (Three{1, 2, 3}));
  EXPECT_EQ(COL_WIN.COLINDEX(25).BackColor(), RGB(1, 2, 3));
  COL_TARGET = 1;
  click(COL_WIN.COLINDEX, 0);
  EXPECT_EQ(stored(0, 0), (Three{200, 100, 50}));
  EXPECT_EQ(COL_WIN.COLINDEX(0).BackColor(), RGB(200, 100, 50));
}

TEST_F(Dictionary, ALetterKeyReadsOrStoresThePixel) {
  store(0, 1, {11, 12, 13});
  DICT_KEY('B', RGB(99, 99, 99));
  EXPECT_EQ(target(), (Three{11, 12, 13}));
  click(COL_WIN.Command4);
  DICT_KEY('Z', RGB(5, 6, 7));
  EXPECT_EQ(stored(0, 25), (Three{5, 6, 7}));
  EXPECT_EQ(COL_WIN.COLINDEX(25).BackColor(), RGB(5, 6, 7));
  EXPECT_EQ(target(), (Three{11, 12, 13}));
}

TEST_F(Dictionary, AValueAboveTheRangeShowsAndLoadsAsFullAndStays) {
  store(0, 2, {300, 0, 0});
  click(COL_WIN.COLINDEX, 2);
  EXPECT_EQ(target(), (Three{255, 0, 0}));
  EXPECT_EQ(stored(0, 2), (Three{300, 0, 0}));
  DICT_CELL_SHOW(2, 300, 0, 0);
  EXPECT_EQ(COL_WIN.COLINDEX(2).BackColor(), RGB(255, 0, 0));
}

TEST_F(Dictionary, LettersAreWhiteOnDarkCells) {
  DICT_CELL_SHOW(0, 69, 69, 0);
  EXPECT_EQ(COL_WIN.COLINDEX(0).ForeColor(), QBColor(15));
  DICT_CELL_SHOW(0, 0, 70, 0);
  EXPECT_EQ(COL_WIN.COLINDEX(0).ForeColor(), QBColor(0));
  DICT_CELL_SHOW(0, 0, 0, 255);
  EXPECT_EQ(COL_WIN.COLINDEX(0).ForeColor(), QBColor(0));
}

TEST_F(Dictionary, ChoosingANameOpensThatDictionary) {
  COL_WIN.Combo1.ListIndex(7);
  EXPECT_EQ(DICT_CUR, 7);
  EXPECT_EQ(COL_WIN.COLINDEX(25).BackColor(), RGB(7, 25, 9));
  click(COL_WIN.COLINDEX, 25);
  EXPECT_EQ(target(), (Three{7, 25, 9}));
}

TEST_F(Dictionary, OfEqualNamesTheLastOpens) {
  DICT_NAME(2) = DICT_NAME(8);
  COL_WIN.Combo1.ListIndex(8);
  EXPECT_EQ(DICT_CUR, 8);
  DICT_NAME(9) = DICT_NAME(1);
  COL_WIN.Combo1.ListIndex(1);
  EXPECT_EQ(DICT_CUR, 9);
}

TEST_F(Dictionary, EnterOrTabGivesTheOpenDictionaryItsName) {
  COL_WIN.Combo1.ListIndex(3);
  type("森の色", ENTER);
  EXPECT_EQ(DICT_NAME(3), "森の色");
  EXPECT_EQ(COL_WIN.Combo1.List(3), "森の色");
  EXPECT_EQ(COL_WIN.Combo1.ListCount(), 10);
  type("海, 空", TAB);
  EXPECT_EQ(DICT_NAME(3), "海, 空");
  EXPECT_EQ(COL_WIN.Combo1.List(3), "海, 空");
  EXPECT_EQ(COL_WIN.Combo1.Text(), "海, 空");
  EXPECT_TRUE(screen.boxes.empty());
  COL_WIN.Combo1.ListIndex(0);
  COL_WIN.Combo1.ListIndex(3);
  EXPECT_EQ(DICT_CUR, 3);
}

TEST_F(Dictionary, AnyOtherKeyOnlyTypes) {
  type("別の名前", 'x');
  EXPECT_EQ(DICT_NAME(0), "辞書0");
  EXPECT_TRUE(screen.boxes.empty());
}

TEST_F(Dictionary, ANameInUseIsRefusedItsOwnToo) {
  type("辞書0", ENTER);
  type("辞書5", TAB);
  const std::string box = "0|Kiso |既にその名前は使われています";
  EXPECT_EQ(screen.boxes, (std::vector{box, box}));
  EXPECT_EQ(DICT_NAME(0), "辞書0");
  EXPECT_EQ(COL_WIN.Combo1.List(0), "辞書0");
}

TEST_F(Dictionary, TheWordThatShowsIsTheMode) {
  EXPECT_EQ(COL_WIN.Command4.Caption(), "ReadMode");
  EXPECT_EQ(COL_WIN.Label7.Caption(), "WriteMode");
  EXPECT_TRUE(COL_WIN.Command4.Visible());
  click(COL_WIN.Command4);
  EXPECT_EQ(DICT_WRITE, 1);
  EXPECT_FALSE(COL_WIN.Command4.Visible());
  EXPECT_FALSE(COL_WIN.Command4.Enabled());
  EXPECT_TRUE(COL_WIN.Label7.Visible());
  click(COL_WIN.Label7);
  EXPECT_EQ(DICT_WRITE, 0);
  EXPECT_TRUE(COL_WIN.Command4.Visible());
  EXPECT_TRUE(COL_WIN.Command4.Enabled());
}

TEST_F(Dictionary, TheTwoWordsLieOnTheSamePlace) {
  const auto lies = [](auto& word) {
    EXPECT_DOUBLE_EQ(word.Top(), 1440);
    EXPECT_DOUBLE_EQ(word.Left(), 550);
    EXPECT_DOUBLE_EQ(word.Height(), 270);
    EXPECT_DOUBLE_EQ(word.Width(), 905);
  };
  lies(COL_WIN.Command4);
  lies(COL_WIN.Label7);
  EXPECT_GT(COL_WIN.Command4.order(), COL_WIN.Label7.order());
}

}  // namespace
}  // namespace kiso
