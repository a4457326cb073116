// KISO.AIN: what its lines give, and what is written over them.
#include "addin/addin_test.h"
#include "platform/text/encoding.h"

namespace kiso {
namespace {

using Registry = AddinTest;

std::string repeated(const std::string& line, int times) {
  std::string text;
  for (int i = 0; i < times; ++i) text += line + std::to_string(i) + "\r\n";
  return text + "[EOF]\r\n";
}

TEST_F(Registry, IsMadeFromItsTemplateIfThereIsNone) {
  template_of({"'注釈", "ADIN", "TWSL", "TWSC", "FFRD", "FFWT", "SPOP"});
  AD_CNT = FR_CNT = FW_CNT = SP_CNT = TWSL_ON = TWSC_ON = 1;
  AD_ID(0) = FR_ID(0) = FW_ID(0) = SP_ID(0) = TW_ID(0) = TW_ID(1) = "OLD";
  READ_AIN();
  EXPECT_EQ(get("KISO.AIN"), lines({"'注釈"}));
  EXPECT_EQ(AD_CNT + FR_CNT + FW_CNT + SP_CNT + TWSL_ON + TWSC_ON, 0);
  EXPECT_EQ(FR_ID(0) + FW_ID(0) + SP_ID(0) + TW_ID(0) + TW_ID(1), "");
}

TEST_F(Registry, ReadsEveryKindOfLine) {
  read({"'ADIN,NO,x,x,0", "ADIN,A,/bin/a,名前,1", "ADIN,B,/bin/b,二番,-2", "TWSL,A,source", "TWSC,B,scan %FN",
        "FFRD,A,read %FN %ON,Gif|*.GIF|,GIF", "FFWT,B,write %FN %ON,Png|*.PNG|,PNG", "SPOP,A,special",
        "QQQQ,A,whatever", "", "SPOP,B,more"});
  EXPECT_EQ(AD_CNT, 2);
  EXPECT_EQ(AD_ID(0) + " " + AD_PATH(0) + " " + AD_NAME(0), "A /bin/a 名前");
  EXPECT_EQ(AD_ID(1) + " " + AD_PATH(1) + " " + AD_NAME(1), "B /bin/b 二番");
  EXPECT_EQ(AD_KIND(0), 1);
  EXPECT_EQ(AD_KIND(1), -2);
  EXPECT_EQ(TWSL_ON, 1);
  EXPECT_EQ(TW_ID(0) + " " + TW_CMD(0), "A source");
  EXPECT_EQ(TWSC_ON, 1);
  EXPECT_EQ(TW_ID(1) + " " + TW_CMD(1), "B scan %FN");
  EXPECT_EQ(FR_CNT, 1);
  EXPECT_EQ(FR_ID(0) + " " + FR_CMD(0) + " " + FR_FILTER(0) + " " + FR_EXT(0), "A read %FN %ON Gif|*.GIF| GIF");
  EXPECT_EQ(FW_CNT, 1);
  EXPECT_EQ(FW_ID(0) + " " + FW_CMD(0) + " " + FW_FILTER(0) + " " + FW_EXT(0), "B write %FN %ON Png|*.PNG| PNG");
  EXPECT_EQ(SP_CNT, 2);
  EXPECT_EQ(SP_ID(1) + " " + SP_CMD(1), "B more");
}

TEST_F(Registry, TrimsLinesButNotFields) {
  read({"   ADIN,A , /bin/a,  名 前 ,0   ", "  'ADIN,B,,,0", " adin,C,,,0"});
  EXPECT_EQ(AD_CNT, 1);
  EXPECT_EQ(AD_ID(0), "A ");
  EXPECT_EQ(AD_PATH(0), " /bin/a");
  EXPECT_EQ(AD_NAME(0), "  名 前 ");
}

TEST_F(Registry, CutsATemplateAtACommaAndAtAnApostrophe) {
  read({"FFRD,A,read,%FN,Gif|*.GIF|,GIF", "SPOP,A,say 'hello',", "SPOP,B,say,'hello'"});
  EXPECT_EQ(FR_CMD(0), "read");
  EXPECT_EQ(FR_FILTER(0), "%FN");
  EXPECT_EQ(FR_EXT(0), "Gif|*.GIF|");
  EXPECT_EQ(SP_CMD(0), "read");  // lost behind the comment, and so that of the line before
  EXPECT_EQ(SP_CMD(1), "say");
}

TEST_F(Registry, ALastFieldBeforeACommentNeedsACommaOfItsOwn) {
  read(
      {"ADIN,A,/bin/a,name,3 'kind is lost", "ADIN,B,/bin/b,name,4,'kind is kept", "ADIN,C,/bin/c,name,5 'lost again"});
  EXPECT_EQ(AD_KIND(0), 0);
  EXPECT_EQ(AD_KIND(1), 4);
  EXPECT_EQ(AD_KIND(2), 4);
}

TEST_F(Registry, AMissingFieldIsThatOfTheLineBefore) {
  read({"FFRD,A,read,Gif|*.GIF|,GIF", "FFRD,B,other", "'FFRD,,,,", "SPOP 'no comma, so still a reader", "", "SPOP"});
  ASSERT_EQ(FR_CNT, 3);
  EXPECT_EQ(FR_ID(1) + " " + FR_CMD(1) + " " + FR_FILTER(1) + " " + FR_EXT(1), "B other Gif|*.GIF| GIF");
  EXPECT_EQ(FR_ID(2), "B");
  ASSERT_EQ(SP_CNT, 1);
  EXPECT_EQ(SP_ID(0) + " " + SP_CMD(0), "B other");
}

TEST_F(Registry, FieldsAreForgottenFromFileToFile) {
  read({"SPOP,A,special"});
  read({"SPOP"});
  EXPECT_EQ(SP_ID(0), "");
}

TEST_F(Registry, HasNoMoreThanElevenFieldsALine) {
  read({"QQQQ,1,2,3,4,5,6,7,8,9,10", "QQQQ,1,2,3,4,5,6,7,8,9,10,"});
  EXPECT_EQ(error_of([] { read({"QQQQ,1,2,3,4,5,6,7,8,9,10,11"}); }), 9);
  EXPECT_EQ(error_of([] { read({"QQQQ,1,2,3,4,5,6,7,8,9,10,,"}); }), 9);
}

TEST_F(Registry, HasRoomFor63AddIns) {
  put("KISO.AIN", repeated("ADIN,A", 63));
  READ_AIN();
  EXPECT_EQ(AD_CNT, 63);
  EXPECT_EQ(AD_ID(62), "A62");
  put("KISO.AIN", repeated("ADIN,A", 64));
  EXPECT_EQ(harmless_error_of(READ_AIN), 9);
}

TEST_F(Registry, DropsSurplusRowsWithoutAWord) {
  const std::pair<const char*, const int16_t*> kinds[] = {
      {"FFRD,A", &FR_CNT}, {"FFWT,A", &FW_CNT}, {"SPOP,A", &SP_CNT}};
  for (const auto& [line, count] : kinds) {
    put("KISO.AIN", repeated(line, 23));
    READ_AIN();
    EXPECT_EQ(*count, 21) << line;
  }
  EXPECT_EQ(SP_ID(20), "A20");
  EXPECT_TRUE(desk.boxes.empty());
}

TEST_F(Registry, ForgetsWhatTheFileHasLostButTheScanSource) {
  read({"ADIN,A,/bin/a,n,0", "ADIN,B,/bin/b,n,0", "TWSL,A,source", "TWSC,A,scan", "FFRD,A,r,f,GIF", "FFWT,A,w,f,PNG",
        "SPOP,A,s"});
  read({"ADIN,C,/bin/c,n,0"});
  EXPECT_EQ(TWSL_ON, 1);
  EXPECT_EQ(TWSC_ON, 0);
  EXPECT_EQ(TW_ID(0) + TW_CMD(0) + TW_ID(1) + TW_CMD(1), "");
  EXPECT_EQ(FR_CNT + FW_CNT + SP_CNT, 0);
  EXPECT_EQ(FR_EXT(0) + FW_EXT(0) + SP_CMD(0), "");
  EXPECT_EQ(AD_CNT, 1);
  EXPECT_EQ(AD_ID(0), "C");
  EXPECT_EQ(AD_ID(1), "B");  // rows behind the last one are not emptied
}

TEST_F(Registry, OfTwoScannersTheLastWins) {
  read({"TWSC,A,first", "TWSC,B,second"});
  EXPECT_EQ(TW_ID(1) + " " + TW_CMD(1), "B second");
}

TEST_F(Registry, AScannerWithoutItsAddInIsOnAndFoundOnlyAtItsUse) {
  read({"TWSC,GONE,scan"});
  EXPECT_EQ(TWSC_ON, 1);
  std::string title, exe = "as it was";
  int index = 0, result = 0;
  ADDIN_LOOKUP(TW_ID(1), title, exe, index, result);
  EXPECT_EQ(result, 1);
  EXPECT_EQ(index, -1);
  EXPECT_EQ(title, "不明なADD_INです。");
  EXPECT_EQ(exe, "as it was");
}

TEST_F(Registry, LookupGivesTheFirstOfThatIdentifier) {
  read({"ADIN,A,/bin/a,一,0", "ADIN,B,/bin/b,二,0", "ADIN,B,/bin/c,三,0"});
  std::string title, exe;
  int index = 0, result = 1;
  ADDIN_LOOKUP("B", title, exe, index, result);
  EXPECT_EQ(title + " " + exe, "二 /bin/b");
  EXPECT_EQ(index, 1);
  EXPECT_EQ(result, 0);
  ADDIN_LOOKUP("b", title, exe, index, result);
  EXPECT_EQ(result, 1);
}

TEST_F(Registry, EndsAtItsEndMarkAlsoIndented) {
  put("KISO.AIN", "SPOP,A,one\r\n  [EOF] \r\nSPOP,B,two\r\n");
  READ_AIN();
  EXPECT_EQ(SP_CNT, 1);
  put("KISO.AIN", "SPOP,A,one\r\n");
  EXPECT_EQ(harmless_error_of(READ_AIN), 62);
}

TEST_F(Registry, ThatCanNotBeOpenedLeavesTheTablesEmpty) {
  read({"ADIN,A,/bin/a,n,0", "FFRD,A,r,f,GIF"});
  EXPECT_EQ(error_without_access("KISO.AIN", READ_AIN), 0);
  EXPECT_EQ(AD_CNT + FR_CNT, 0);
}

TEST_F(Registry, IsReadAsUtf8OrAsTheCodePage) {
  const std::string code_page = text::encode({"ADIN,A,/bin/a,名前,0", "[EOF]"}, text::Encoding::cp932);
  ASSERT_EQ(text::encoding_of_bytes(code_page), text::Encoding::cp932);
  put("KISO.AIN", code_page);
  READ_AIN();
  EXPECT_EQ(AD_NAME(0), "名前");
}

TEST_F(Registry, IsWrittenInTheOrderOfItsTemplate) {
  plain_template();
  read({"ADIN,A,/bin/a,名前,1", "ADIN,,/bin/free,free,0", "ADIN,B,/bin/b,n,-2", "TWSL,A,source", "TWSC,B,scan",
        "FFRD,A,read,Gif|*.GIF|,GIF", "FFRD,,free,f,F", "FFWT,B,write,Png|*.PNG|,PNG", "FFWT,,free,f,F",
        "SPOP,A,special", "SPOP,,free"});
  WRITE_AIN();
  EXPECT_EQ(get("KISO.AIN"), lines({"SPOP,A,special", "FFWT,B,write,Png|*.PNG|,PNG", "FFRD,A,read,Gif|*.GIF|,GIF",
                                    "TWSC,B,scan", "TWSL,A,source", "ADIN,A,/bin/a,名前, 1", "ADIN,B,/bin/b,n,-2"}));
  READ_AIN();
  EXPECT_EQ(AD_CNT, 2);  // the free rows are gone
  EXPECT_EQ(AD_ID(1), "B");
}

TEST_F(Registry, IsWrittenWithoutAScannerThatIsOff) {
  plain_template();
  read({"TWSL,A,source", "TWSC,A,scan"});
  TWSL_ON = 0;
  WRITE_AIN();
  EXPECT_EQ(get("KISO.AIN"), lines({"TWSC,A,scan"}));
  TWSC_ON = 0;
  WRITE_AIN();
  EXPECT_EQ(get("KISO.AIN"), lines({}));
}

TEST_F(Registry, KeepsCommentsAndStrangeLinesOfItsTemplate) {
  put("DEFAULT.AIN",
      "  'indented, it''s\r\n\r\nQQQQ,1 'comment\r\nQQQQ,2\r\nQQQQ,3,\r\n ADIN,ignored,x 'place\r\n  [EOF]  "
      "\r\n'behind\r\n");
  read({"ADIN,A,/bin/a,n,0"});
  WRITE_AIN();
  EXPECT_EQ(get("KISO.AIN"), lines({"'indented, it''s", ",", "QQQQ,1 ", "QQQQ,2,", "QQQQ,3,", "ADIN,A,/bin/a,n, 0"}));
  READ_AIN();
  EXPECT_EQ(AD_CNT, 1);
}

TEST_F(Registry, IsWrittenInTheEncodingOfTheFileThatItReplaces) {
  const auto in_code_page = [](const std::vector<std::string>& texts) {
    return text::encode(texts, text::Encoding::cp932);
  };
  template_of({"'注釈", "ADIN"});
  put("KISO.AIN", in_code_page({"ADIN,A,/bin/a,名前,0", "[EOF]"}));
  READ_AIN();
  WRITE_AIN();
  EXPECT_EQ(get("KISO.AIN"), in_code_page({"'注釈", "ADIN,A,/bin/a,名前, 0", "[EOF]"}));
  put("DEFAULT.AIN", in_code_page({"'注釈", "[EOF]"}));
  read({"'前の注釈"});
  WRITE_AIN();
  EXPECT_EQ(get("KISO.AIN"), lines({"'注釈"}));
  std::filesystem::remove(APP_PATH + "/KISO.AIN");
  READ_AIN();
  EXPECT_EQ(get("KISO.AIN"), in_code_page({"'注釈", "[EOF]"}));
}

TEST_F(Registry, NeedsATemplateWithAnEndMarkToBeWritten) {
  read({"ADIN,A,/bin/a,n,0"});
  EXPECT_EQ(error_of(WRITE_AIN), 52);
  EXPECT_EQ(all_files().count("KISO.AIN"), 0u);  // the old one goes first
  put("DEFAULT.AIN", "ADIN\r\n");
  EXPECT_EQ(error_of(WRITE_AIN), 62);
  template_of({"QQQQ,1,2,3,4,5,6,7,8,9,10,11"});
  EXPECT_EQ(error_of(WRITE_AIN), 9);
  template_of({"ADIN"});
  WRITE_AIN();  // no number has stayed open
  EXPECT_EQ(get("KISO.AIN"), lines({"ADIN,A,/bin/a,n, 0"}));
}

TEST_F(Registry, ShippedTemplateHasOnePlaceForEachKind) {
  put("DEFAULT.AIN", shipped("DEFAULT.AIN"));
  const char* full[] = {"ADIN,A,/bin/a,n, 0", "TWSL,A,source",  "TWSC,A,scan",
                        "FFRD,A,r,f,GIF",     "FFWT,A,w,f,PNG", "SPOP,A,s"};
  read({full[0], full[1], full[2], full[3], full[4], full[5]});
  WRITE_AIN();
  std::string without_comments;
  for (const std::string& line : text::decode(get("KISO.AIN")))
    if (!line.starts_with('\'')) without_comments += line + "\r\n";
  EXPECT_EQ(without_comments, lines({full[0], full[1], full[2], full[3], full[4], full[5]}));
}

}  // namespace
}  // namespace kiso
