// An add-in's parameter file, and what becomes of the registry when it is installed.
#include "addin/addin_test.h"

namespace kiso {
namespace {

constexpr int YES = 6, NO = 7;

struct Install : AddinTest {
  Install() {
    plain_template();
    std::filesystem::create_directory(APP_PATH + "/new");
  }
  static void offer(std::initializer_list<const char*> texts) {
    put("new/A.AIP", lines(texts));
    AIP_READ(APP_PATH + "/new/A.AIP");
  }
  static std::string many(const std::string& key, int n) {
    std::string text;
    for (int i = 0; i < n; ++i) text += key + std::to_string(i) + "\r\n";
    return text;
  }
  std::string box() const { return desk.boxes.size() == 1 ? desk.boxes[0].text : std::to_string(desk.boxes.size()); }
};

const char* const READER_QUESTION = "ファイル読み込みで拡張子GIFは\r既に指定されています置き換えますか?";
const char* const WRITER_QUESTION = "ファイル書き込みで拡張子PNGは\r既に指定されています置き換えますか?";

TEST_F(Install, ParameterFileFillsTheFields) {
  offer({"'注釈", "ADIN,A,%%bin/a,名前,3", "TWSL,source", "TWSC,scan %FN", "FFRD,read,Gif|*.GIF|,GIF", "FFRD,r2,f2,E2",
         "FFWT,write,Png|*.PNG|,PNG", "SPOP,special", "QQQQ,x"});
  EXPECT_EQ(AIP_ID + " " + AIP_NAME, "A 名前");
  EXPECT_EQ(AIP_EXE, APP_PATH + "/new/bin/a");
  EXPECT_EQ(AIP_KIND, 3);
  EXPECT_EQ(AIP_SELECT, 1);
  EXPECT_EQ(AIP_TW(0), "source");
  EXPECT_EQ(AIP_SCAN, 1);
  EXPECT_EQ(AIP_TW(1), "scan %FN");
  EXPECT_EQ(AIP_FR_CNT, 2);
  EXPECT_EQ(AIP_FR_CMD(0) + " " + AIP_FR_FILTER(0) + " " + AIP_FR_EXT(0), "read Gif|*.GIF| GIF");
  EXPECT_EQ(AIP_FR_EXT(1), "E2");
  EXPECT_EQ(AIP_FW_CNT, 1);
  EXPECT_EQ(AIP_FW_CMD(0) + " " + AIP_FW_FILTER(0) + " " + AIP_FW_EXT(0), "write Png|*.PNG| PNG");
  EXPECT_EQ(AIP_HAS_SPOP, 1);
  EXPECT_EQ(AIP_SPOP, "special");
}

TEST_F(Install, EachParameterFileStartsAnew) {
  offer({"ADIN,A,%%a,n,1", "TWSL,s", "TWSC,s", "FFRD,r,f,GIF", "FFWT,w,f,PNG", "SPOP,s"});
  offer({"ADIN,B,/bin/b"});
  EXPECT_EQ(AIP_EXE, "/bin/b");
  EXPECT_EQ(AIP_NAME, "");  // nor does a field come over from the other file
  EXPECT_EQ(AIP_SCAN + AIP_SELECT + AIP_FR_CNT + AIP_FW_CNT + AIP_HAS_SPOP + AIP_KIND, 0);
}

TEST_F(Install, OnlyABeginningOfTwoPercentsIsTheFilesDirectory) {
  offer({"ADIN,A,/x/%%a,n,0"});
  EXPECT_EQ(AIP_EXE, "/x/%%a");
  offer({"ADIN,A,%a,n,0"});
  EXPECT_EQ(AIP_EXE, "%a");
}

TEST_F(Install, ParameterFileIsSplitLikeTheRegistry) {
  offer({"ADIN,A,/bin/a,n,7,'kind kept", "FFRD,read,Gif|*.GIF|,GIF", "FFRD,other 'lost", "FFRD,x"});
  EXPECT_EQ(AIP_KIND, 7);
  EXPECT_EQ(AIP_FR_CMD(1), "read");
  EXPECT_EQ(AIP_FR_CMD(2) + AIP_FR_EXT(2), "xGIF");
  EXPECT_EQ(error_of([] { offer({"QQQQ,1,2,3,4,5,6,7,8,9,10,11"}); }), 9);
}

TEST_F(Install, ParameterFileHasRoomFor21RowsOfAKind) {
  for (const std::string key : {"FFRD,r,f,E", "FFWT,w,f,E"}) {
    put("A.AIP", many(key, 21) + "[EOF]\r\n");
    AIP_READ(APP_PATH + "/A.AIP");
    EXPECT_EQ(AIP_FR_CNT + AIP_FW_CNT, 21);
    put("A.AIP", many(key, 22) + "[EOF]\r\n");
    EXPECT_EQ(error_of([] { AIP_READ(APP_PATH + "/A.AIP"); }), 9) << key;
  }
}

TEST_F(Install, ParameterFileThatCanNotBeReadIsAnError) {
  EXPECT_EQ(error_of([] { AIP_READ(APP_PATH + "/missing.AIP"); }), 52);
  put("A.AIP", "ADIN,A,/bin/a,n,0\r\n");
  EXPECT_EQ(error_of([] { AIP_READ(APP_PATH + "/A.AIP"); }), 62);
  put("A.AIP", "ADIN,A,/bin/a,n,0\r\n  [EOF]  \r\nADIN,B,/bin/b,n,0\r\n");
  AIP_READ(APP_PATH + "/A.AIP");
  EXPECT_EQ(AIP_ID, "A");
}

TEST_F(Install, PutsEveryRecordIntoTheRegistryAndItsFile) {
  read({"ADIN,Z,/bin/z,z,0"});
  offer({"ADIN,A,%%a b,名前,3", "TWSL,source", "TWSC,scan", "FFRD,r,f,GIF", "FFWT,w,f,PNG", "SPOP,s"});
  EXPECT_TRUE(AIP_INSTALL());
  EXPECT_TRUE(desk.boxes.empty());
  const std::string addin = "ADIN,A," + APP_PATH + "/new/a b,名前, 3";
  EXPECT_EQ(get("KISO.AIN"), lines({"SPOP,A,s", "FFWT,A,w,f,PNG", "FFRD,A,r,f,GIF", "TWSC,A,scan", "TWSL,A,source",
                                    "ADIN,Z,/bin/z,z, 0", addin.c_str()}));
  EXPECT_EQ(AD_CNT, 2);
  EXPECT_EQ(AD_PATH(1), APP_PATH + "/new/a b");
  EXPECT_EQ(TWSL_ON + TWSC_ON + FR_CNT + FW_CNT + SP_CNT, 5);
}

TEST_F(Install, TheSameIdentifierAgainNamesTheOldAddInAndChangesNothing) {
  read({"ADIN,A,/bin/a,古い名前,0", "ADIN,A,/bin/b,二番,0"});
  offer({"ADIN,A,/bin/new,new,0", "FFRD,r,f,GIF"});
  const std::string before = get("KISO.AIN");
  EXPECT_FALSE(AIP_INSTALL());
  ASSERT_EQ(desk.boxes.size(), 2u);  // one for each row
  EXPECT_EQ(desk.boxes[0].text, "同じ名前で既に古い名前が\rインストールされています。");
  EXPECT_EQ(desk.boxes[0].style, 0);
  EXPECT_EQ(desk.boxes[1].text, "同じ名前で既に二番が\rインストールされています。");
  EXPECT_EQ(get("KISO.AIN"), before);
  EXPECT_EQ(AD_CNT, 2);
  EXPECT_EQ(FR_CNT, 0);
}

TEST_F(Install, NeitherAFreeRowNorOneTakenBackCountsAsInstalled) {
  read({"ADIN,A,/bin/a,a,0"});
  const std::string before = get("KISO.AIN");
  offer({"ADIN,B,/bin/b,b,0"});
  EXPECT_TRUE(AIP_INSTALL());
  put("KISO.AIN", before);  // as the settings window's Cancel takes it back
  READ_AIN();
  EXPECT_EQ(AD_ID(1), "B");  // left over behind the rows in use
  EXPECT_TRUE(AIP_INSTALL());
  read({"ADIN,,/bin/free,free,0"});
  offer({"FFRD,r,f,GIF"});
  int result = 99;
  AIP_CHECK(result);
  EXPECT_EQ(result, 0);
  EXPECT_TRUE(desk.boxes.empty());
}

TEST_F(Install, AFileWithoutAnAddInIsAnEmptyRowThatTheFileDrops) {
  read({"ADIN,Z,/bin/z,z,0"});
  offer({"FFRD,r,f,GIF", "SPOP,s"});
  EXPECT_TRUE(AIP_INSTALL());
  EXPECT_EQ(get("KISO.AIN"), lines({"ADIN,Z,/bin/z,z, 0"}));
  EXPECT_EQ(AD_CNT, 1);
  EXPECT_EQ(FR_CNT + SP_CNT, 0);
}

TEST_F(Install, ASecondScannerIsRefused) {
  for (const char* line : {"TWSC,scan", "TWSL,source"}) {
    desk.boxes.clear();
    read({"TWSC,Z,old", "TWSL,Z,old"});
    offer({"ADIN,A,/bin/a,a,0", line, "FFRD,r,f,GIF"});
    EXPECT_FALSE(AIP_INSTALL());
    EXPECT_EQ(box(), "既にSCANNERは指定されています。");
    EXPECT_EQ(AD_CNT + FR_CNT, 0);
    EXPECT_EQ(get("KISO.AIN"), lines({"TWSC,Z,old", "TWSL,Z,old"}));
  }
}

TEST_F(Install, AScannerJoinsAScanSource) {
  read({"TWSL,Z,source"});
  offer({"ADIN,A,/bin/a,a,0", "TWSC,scan"});
  EXPECT_TRUE(AIP_INSTALL());
  EXPECT_EQ(TW_ID(0) + " " + TW_CMD(0), "Z source");
  EXPECT_EQ(TW_ID(1) + " " + TW_CMD(1), "A scan");
}

TEST_F(Install, AKnownExtensionIsReplacedOrKept) {
  const auto old = {"ADIN,Z,/bin/z,z,0", "FFRD,Z,or,of,TIF", "FFRD,Z,or,of,GIF", "FFWT,Z,ow,of,PNG"};
  read(old);
  offer({"ADIN,A,/bin/a,a,0", "FFRD,r,f,GIF", "FFRD,r,f,gif", "FFWT,w,f,PNG"});
  desk.answers = {YES, NO};
  EXPECT_TRUE(AIP_INSTALL());
  ASSERT_EQ(desk.boxes.size(), 2u);
  EXPECT_EQ(desk.boxes[0].text, READER_QUESTION);
  EXPECT_EQ(desk.boxes[0].style, 292);
  EXPECT_EQ(desk.boxes[0].title, "Kiso ");
  EXPECT_EQ(desk.boxes[1].text, WRITER_QUESTION);
  EXPECT_EQ(get("KISO.AIN"), lines({"FFWT,Z,ow,of,PNG", "FFRD,Z,or,of,TIF", "FFRD,A,r,f,GIF", "FFRD,A,r,f,gif",
                                    "ADIN,Z,/bin/z,z, 0", "ADIN,A,/bin/a,a, 0"}));
  read(old);
  desk.answers = {NO, YES};
  EXPECT_TRUE(AIP_INSTALL());
  EXPECT_EQ(get("KISO.AIN"), lines({"FFWT,A,w,f,PNG", "FFRD,Z,or,of,TIF", "FFRD,Z,or,of,GIF", "FFRD,A,r,f,gif",
                                    "ADIN,Z,/bin/z,z, 0", "ADIN,A,/bin/a,a, 0"}));
}

TEST_F(Install, AnExtensionOfferedTwiceMeetsItself) {
  read({});
  offer({"ADIN,A,/bin/a,a,0", "FFRD,first,f,GIF", "FFRD,second,f,GIF"});
  desk.answers = {YES};
  EXPECT_TRUE(AIP_INSTALL());
  EXPECT_EQ(box(), READER_QUESTION);
  EXPECT_EQ(FR_CNT, 1);
  EXPECT_EQ(FR_CMD(0), "second");
}

TEST_F(Install, FullTablesDropWhatIsNewAndTakeTheRest) {
  const struct {
    const char *old, *known, *fresh, *text;
  } KINDS[] = {
      {"FFRD,Z,or,of,E", "FFRD,r,f,E5", "FFRD,r,f,NEW",
       "読み込みの拡張子指定が最大数を超えました\r一部追加されない読み込みファイル指定があります。"},
      {"FFWT,Z,ow,of,E", "FFWT,w,f,E5", "FFWT,w,f,NEW",
       "書き込みの拡張子指定が最大数を超えました\r一部追加されない書き込みファイル指定があります。"},
  };
  for (const auto& kind : KINDS) {
    desk.boxes.clear();
    put("KISO.AIN", many(kind.old, 21) + "[EOF]\r\n");
    READ_AIN();
    offer({"ADIN,A,/bin/a,a,0", kind.fresh, kind.known, "SPOP,s"});
    desk.answers = {YES};
    EXPECT_TRUE(AIP_INSTALL());
    ASSERT_EQ(desk.boxes.size(), 2u);
    EXPECT_EQ(desk.boxes[0].text, kind.text);
    EXPECT_EQ(desk.boxes[0].style, 0);
    EXPECT_EQ(desk.boxes[1].style, 292);
    EXPECT_EQ(std::max(FR_CNT, FW_CNT), 21);
    EXPECT_EQ((FR_CNT ? FR_ID : FW_ID)(5), "A");
    EXPECT_EQ(AD_CNT, 1);
    EXPECT_EQ(SP_CNT, 1);
  }
}

TEST_F(Install, TheLastFreeRowIsUsed) {
  put("KISO.AIN", many("FFRD,Z,or,of,E", 20) + many("SPOP,Z,o", 20) + "[EOF]\r\n");
  READ_AIN();
  offer({"ADIN,A,/bin/a,a,0", "FFRD,r,f,NEW", "SPOP,s"});
  EXPECT_TRUE(AIP_INSTALL());
  EXPECT_TRUE(desk.boxes.empty());
  EXPECT_EQ(FR_EXT(20), "NEW");
  EXPECT_EQ(SP_ID(20), "A");
}

TEST_F(Install, NoMoreSpecialOptionsThan21) {
  put("KISO.AIN", many("SPOP,Z,o", 21) + "[EOF]\r\n");
  READ_AIN();
  offer({"ADIN,A,/bin/a,a,0", "FFRD,r,f,GIF", "SPOP,s"});
  EXPECT_TRUE(AIP_INSTALL());
  EXPECT_EQ(box(), "Special Optionの最大数を超えました追加は出来ません。");
  EXPECT_EQ(SP_CNT, 21);
  EXPECT_EQ(AD_CNT, 1);
  EXPECT_EQ(FR_CNT, 1);
}

TEST_F(Install, NoMoreAddInsThan63) {
  put("KISO.AIN", many("ADIN,Z", 63) + "[EOF]\r\n");
  READ_AIN();
  offer({"ADIN,A,/bin/a,a,0"});
  const std::string before = get("KISO.AIN");
  EXPECT_EQ(error_of([] { AIP_INSTALL(); }), 9);
  EXPECT_EQ(get("KISO.AIN"), before);
}

}  // namespace
}  // namespace kiso
