#include "persist/persist.h"
#include "persist/persist_dir.h"

namespace kiso {
namespace {

struct Dictionaries : PersistDir {
  static void read(std::initializer_list<const char*> texts) {
    put("KISO.CDI", lines(texts));
    READ_CDI();
  }
  static int error_of_reading(const std::string& bytes) {
    put("KISO.CDI", bytes);
    return harmless_error_of(READ_CDI);
  }
  static std::string rewritten(std::initializer_list<const char*> texts) {
    put("KISO.CDI", lines(texts));
    WRITE_CDI();
    return get("KISO.CDI");
  }
  // count CNAM lines.
  static std::string names(int count) {
    std::string bytes;
    for (int i = 0; i < count; ++i) bytes += "CNAM , n" + std::to_string(i) + "\r\n";
    return bytes;
  }
};

TEST_F(Dictionaries, AMissingFileIsCopiedFromTheTemplate) {
  put("DEFAULT.CDI", shipped("DEFAULT.CDI"));
  READ_CDI();
  EXPECT_EQ(get("KISO.CDI"), shipped("DEFAULT.CDI"));
  EXPECT_EQ(DICT_NAME(0), "基本の色");
  EXPECT_EQ(DICT_COL(0)(6)(1), 255);
  EXPECT_EQ(DICT_COL(0)(6)(2), 0);
}

TEST_F(Dictionaries, NamesAndColoursAreReadInOrder) {
  read({"'色辞書", "", "CNAM , 肌, 明るい", "CA_R , 1", "CA_G , 2", "CA_B , 3 'blue", "CZ_R , 4", "CNAM , 髪",
        "CB_G , 5"});
  EXPECT_EQ(DICT_NAME(0), "肌, 明るい");
  EXPECT_EQ(DICT_NAME(1), "髪");
  EXPECT_EQ(DICT_COL(0)(0)(1), 1);
  EXPECT_EQ(DICT_COL(0)(0)(2), 2);
  EXPECT_EQ(DICT_COL(0)(0)(3), 3);
  EXPECT_EQ(DICT_COL(0)(25)(1), 4);
  EXPECT_EQ(DICT_COL(1)(1)(2), 5);
}

TEST_F(Dictionaries, ADictionaryWithoutANameHasItsNumber) {
  DICT_NAME(1) = "old";
  read({"CNAM , one"});
  EXPECT_EQ(DICT_NAME(0), "one");
  EXPECT_EQ(DICT_NAME(1), " 1.");
  EXPECT_EQ(DICT_NAME(9), " 9.");
}

TEST_F(Dictionaries, TheWindowShowsTheFirstOne) {
  DICT_CUR = 3;
  read({"CNAM , one", "CA_R , 255", "CA_G , 128", "CZ_B , 69", "CNAM , two", "CA_R , 7"});
  EXPECT_EQ(COL_WIN.Combo1.Text(), "one");
  ASSERT_EQ(COL_WIN.Combo1.ListCount(), 10);
  EXPECT_EQ(COL_WIN.Combo1.List(0), "one");
  EXPECT_EQ(COL_WIN.Combo1.List(1), "two");
  EXPECT_EQ(COL_WIN.Combo1.List(9), " 9.");
  EXPECT_EQ(DICT_CUR, 0);
  EXPECT_EQ(COL_WIN.COLINDEX(0).BackColor(), RGB(255, 128, 0));
  EXPECT_EQ(COL_WIN.COLINDEX(0).ForeColor(), QBColor(0));
  EXPECT_EQ(COL_WIN.COLINDEX(25).BackColor(), RGB(0, 0, 69));
  EXPECT_EQ(COL_WIN.COLINDEX(25).ForeColor(), QBColor(15));
}

TEST_F(Dictionaries, ACommentBehindAValueStays) {
  put("KISO.CDI", lines({"CNAM , n", "CA_R , 255 ' comment"}));
  READ_CDI();
  EXPECT_EQ(DICT_COL(0)(0)(1), 255);
  WRITE_CDI();
  EXPECT_EQ(get("KISO.CDI"), lines({"CNAM , n ", "CA_R , 255 ' comment"}));
  DICT_COL(0)(0)(1) = 8;
  WRITE_CDI();
  EXPECT_EQ(get("KISO.CDI"), lines({"CNAM , n ", "CA_R , 8 ' comment"}));
}

TEST_F(Dictionaries, ALineWithoutACommentRepeatsTheLastOne) {
  EXPECT_EQ(rewritten({"CNAM , n 'first", "CA_R , 1", "CA_G , 1 'second", "CA_B , 1"}),
            lines({"CNAM ,  'first", "CA_R , 0 'first", "CA_G , 0 'second", "CA_B , 0 'second"}));
}

TEST_F(Dictionaries, AnUnknownLineIsRewrittenAsZero) { EXPECT_EQ(rewritten({"XYZW , 9"}), lines({"XYZW ,  0 "})); }

TEST_F(Dictionaries, BlankLinesAndCommentsStayInPlace) {
  EXPECT_EQ(rewritten({"'a", "", "   'b ", "CNAM , x", "   ", "' c"}), lines({"'a", "", "'b", "CNAM ,  ", "", "' c"}));
}

TEST_F(Dictionaries, ANewNameReachesItsLineByCount) {
  put("KISO.CDI", lines({"CNAM , same", "CNAM , same"}));
  READ_CDI();
  DICT_NAME(1) = "新しい, 名前";
  WRITE_CDI();
  EXPECT_EQ(get("KISO.CDI"), lines({"CNAM , same ", "CNAM , 新しい, 名前 "}));
  READ_CDI();
  EXPECT_EQ(DICT_NAME(1), "新しい, 名前");
}

TEST_F(Dictionaries, AValueAbove255StaysInMemoryAndFile) {
  put("KISO.CDI", lines({"CNAM , n", "CA_R , 300", "CB_G , -5"}));
  READ_CDI();
  EXPECT_EQ(COL_WIN.COLINDEX(0).BackColor(), RGB(255, 0, 0));
  EXPECT_EQ(COL_WIN.COLINDEX(1).BackColor(), RGB(0, 0, 0));
  EXPECT_EQ(DICT_COL(0)(0)(1), 300);
  WRITE_CDI();
  EXPECT_EQ(get("KISO.CDI"), lines({"CNAM , n ", "CA_R , 300 ", "CB_G , -5 "}));
}

TEST_F(Dictionaries, ValuesAreNumbersAsFarAsTheyGo) {
  read({"CNAM , n", "CA_R , 12abc", "CA_G , abc", "CA_B , 2.5", "CB_R , 3.5"});
  EXPECT_EQ(DICT_COL(0)(0)(1), 12);
  EXPECT_EQ(DICT_COL(0)(0)(2), 0);
  EXPECT_EQ(DICT_COL(0)(0)(3), 2);
  EXPECT_EQ(DICT_COL(0)(1)(1), 4);
  EXPECT_EQ(error_of_reading(lines({"CNAM , n", "CA_R , 32768"})), 6);
}

TEST_F(Dictionaries, AnUnknownComponentIsThatOfTheLineBefore) {
  read({"CNAM , n", "CA_X , 7", "CA_G , 8", "CB_g , 9", "CC_ , 10"});
  EXPECT_EQ(DICT_COL(0)(0)(0), 7);
  EXPECT_EQ(DICT_COL(0)(0)(2), 8);
  EXPECT_EQ(DICT_COL(0)(1)(2), 9);
  EXPECT_EQ(DICT_COL(0)(2)(2), 10);
}

TEST_F(Dictionaries, TheCellBehindZIsThereButShowsNowhere) {
  put("KISO.CDI", lines({"CNAM , n", "C[_R , 9"}));
  READ_CDI();
  EXPECT_EQ(DICT_COL(0)(26)(1), 9);
  WRITE_CDI();
  EXPECT_EQ(get("KISO.CDI"), lines({"CNAM , n ", "C[_R , 9 "}));
}

TEST_F(Dictionaries, ACellThatDoesNotExistIsASubscriptError) {
  for (const char* line : {"C@_R , 1", "C\\_R , 1", "Ca_R , 1", "C色_R , 1", "C__R , 1"}) {
    EXPECT_EQ(error_of_reading(lines({"CNAM , n", line})), 9) << line;
    EXPECT_EQ(harmless_error_of(WRITE_CDI), 9) << line;
  }
}

TEST_F(Dictionaries, AColourBeforeItsDictionaryIsASubscriptError) {
  EXPECT_EQ(error_of_reading(lines({"CA_R , 1", "CNAM , n"})), 9);
  EXPECT_EQ(harmless_error_of(WRITE_CDI), 9);
}

TEST_F(Dictionaries, AnEleventhIsReadOverAndItsNameLost) {
  put("KISO.CDI", names(11) + "CA_R , 5\r\n[EOF]\r\n");
  READ_CDI();
  EXPECT_EQ(DICT_NAME(9), "n9");
  EXPECT_EQ(DICT_NAME(10), "");
  EXPECT_EQ(DICT_COL(10)(0)(1), 5);
  EXPECT_EQ(COL_WIN.Combo1.ListCount(), 10);
  WRITE_CDI();
  EXPECT_NE(get("KISO.CDI").find("CNAM , n9 \r\nCNAM ,  0 \r\nCA_R , 5 \r\n"), std::string::npos);
}

TEST_F(Dictionaries, ATwelfthMayHaveNoColours) {
  EXPECT_EQ(error_of_reading(names(12) + "[EOF]\r\n"), 0);
  EXPECT_EQ(error_of_reading(names(12) + "CA_R , 5\r\n[EOF]\r\n"), 9);
  EXPECT_EQ(harmless_error_of(WRITE_CDI), 9);
}

TEST_F(Dictionaries, WhatTheReaderAndTheWriterTrimDiffers) {
  EXPECT_EQ(error_of_reading("CNAM , n\r\n [EOF]\r\n"), 62);  // the reader wants the end mark alone in its line
  WRITE_CDI();
  EXPECT_EQ(get("KISO.CDI"), "CNAM , n \r\n[EOF]\r\n");
  read({" 'CNAM , n", "CNAM , m"});
  EXPECT_EQ(DICT_NAME(0), "m");
}

TEST_F(Dictionaries, WithoutAnEndMarkBothFail) {
  EXPECT_EQ(error_of_reading("CNAM , n\r\n"), 62);
  EXPECT_EQ(harmless_error_of(WRITE_CDI), 62);
}

TEST_F(Dictionaries, WhatStandsBehindTheEndIsNeverRead) {
  put("KISO.CDI", "CNAM , n\r\n[EOF]\r\nCA_R , 99999\r\n");
  READ_CDI();
  WRITE_CDI();
  EXPECT_EQ(get("KISO.CDI"), "CNAM , n \r\n[EOF]\r\n");
}

TEST_F(Dictionaries, WithoutBothFilesTheFirstReadFails) { EXPECT_EQ(harmless_error_of(READ_CDI), 52); }

TEST_F(Dictionaries, WritingNeedsTheFile) {
  put("DEFAULT.CDI", lines({"CNAM , n"}));
  EXPECT_EQ(harmless_error_of(WRITE_CDI), 53);
}

TEST_F(Dictionaries, AQuoteCutsTheName) {
  read({"CNAM , it's"});
  EXPECT_EQ(DICT_NAME(0), "it");
}

TEST_F(Dictionaries, AFileOfTheCodePageStaysOne) {
  put("KISO.CDI", "CNAM , \x94\xA7\r\n[EOF]\r\n");
  READ_CDI();
  EXPECT_EQ(DICT_NAME(0), "肌");
  DICT_NAME(0) = "髪";
  WRITE_CDI();
  EXPECT_EQ(get("KISO.CDI"), "CNAM , \x94\xAF \r\n[EOF]\r\n");
}

TEST_F(Dictionaries, AReadOnlyDirectoryStaysAsItIs) {
  put("KISO.CDI", lines({"CNAM , n"}));
  put("KISOCDI.TMP", "left behind by a crash");
  protect_directory();
  READ_CDI();
  EXPECT_EQ(harmless_error_of(WRITE_CDI), 70);
}

TEST_F(Dictionaries, WhatMayNotBeReadStaysAsItIs) {
  put("DEFAULT.CDI", lines({"CNAM , n"}));
  put("KISO.CDI", lines({"CNAM , mine"}));
  EXPECT_EQ(error_without_access("KISO.CDI", READ_CDI), 52);  // the template can not take its place either
  EXPECT_EQ(error_without_access("KISO.CDI", WRITE_CDI), 70);
  EXPECT_EQ(error_without_access("", READ_CDI), 52);
  EXPECT_EQ(error_without_access("", WRITE_CDI), 70);
}

TEST_F(Dictionaries, AnOldTemporaryIsOverwrittenAndGone) {
  put("KISOCDI.TMP", "left behind by a crash");
  EXPECT_EQ(rewritten({"CNAM , n"}), lines({"CNAM ,  "}));
  EXPECT_EQ(all_files().size(), 1u);
}

}  // namespace
}  // namespace kiso
