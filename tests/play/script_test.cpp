// A script as text: words, quotes, patterns, numbers.
#include "play/script.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace play {

namespace {

using Texts = std::vector<std::string>;

Texts cut(const std::string& line, const Variables& variables = {}) {
  Texts texts;
  for (const Word& word : cut_line(line, variables)) texts.push_back(word.text);
  return texts;
}

TEST(CutLine, WordsStandApartByBlanks) {
  EXPECT_EQ(cut("down DRAW 3 4"), (Texts{"down", "DRAW", "3", "4"}));
  EXPECT_EQ(cut("  down\tDRAW  "), (Texts{"down", "DRAW"}));
  EXPECT_EQ(cut("get DICT_COL(0,3,1)"), (Texts{"get", "DICT_COL(0,3,1)"}));
}

TEST(CutLine, ACommentBeginsOutsideQuotesAlone) {
  EXPECT_EQ(cut(""), Texts{});
  EXPECT_EQ(cut("   # a comment"), Texts{});
  EXPECT_EQ(cut("start # a comment"), Texts{"start"});
  EXPECT_EQ(cut("start# a comment"), Texts{"start"});
  EXPECT_EQ(cut("write \"a#b\" # \"c\""), (Texts{"write", "a#b"}));
}

TEST(CutLine, QuotesHoldBlanksAndEscapes) {
  EXPECT_EQ(cut(R"(write "a b" "")"), (Texts{"write", "a b", ""}));
  EXPECT_EQ(cut(R"("\"\\\n\r\t")"), Texts{"\"\\\n\r\t"});
  EXPECT_EQ(cut("\"前回\""), Texts{"前回"});
  EXPECT_THROW(cut(R"("a)"), ScriptError);
  EXPECT_THROW(cut(R"("a\")"), ScriptError);
  EXPECT_THROW(cut(R"("\x")"), ScriptError);
  EXPECT_THROW(cut("\"\\"), ScriptError);
}

TEST(CutLine, TellsWhatStoodInQuotes) {
  const std::vector<Word> words = cut_line("key DRAW \"1\" 1", {});
  EXPECT_TRUE(words[2].quoted);
  EXPECT_FALSE(words[3].quoted);
}

TEST(CutLine, DollarNamesAreReplacedInsideQuotesToo) {
  const Variables variables = {{"1", "x y"}, {"2", "$1"}, {"TMP", "/tmp/a\"b"}};
  EXPECT_EQ(cut("copy $1 \"$TMP/c\"", variables), (Texts{"copy", "x y", "/tmp/a\"b/c"}));
  EXPECT_EQ(cut("$10", variables), Texts{"x y0"});
  EXPECT_EQ(cut("$2", variables), Texts{"$1"});  // what it stands for is not read again
  EXPECT_THROW(cut("$3", variables), ScriptError);
  EXPECT_THROW(cut("$TMPDIR", variables), ScriptError);

  // what begins no name stays, as a shell script wants it
  EXPECT_EQ(cut("\"cp \\\"$@\\\" ${1} $0 $f $(id) $$ 5$\" $", variables),
            (Texts{"cp \"$@\" ${1} $0 $f $(id) $$ 5$", "$"}));
}

TEST(Fits, AStarStandsForAnyRun) {
  EXPECT_TRUE(fits("", ""));
  EXPECT_TRUE(fits("", "*"));
  EXPECT_TRUE(fits("abc", "abc"));
  EXPECT_TRUE(fits("abc", "*"));
  EXPECT_TRUE(fits("abc", "a*c"));
  EXPECT_TRUE(fits("ac", "a*c"));
  EXPECT_TRUE(fits("aXbXb", "a*b"));  // the first b that fits is not the last
  EXPECT_TRUE(fits("aab", "*a*b*"));
  EXPECT_FALSE(fits("abc", "ab"));
  EXPECT_FALSE(fits("abc", "bc"));
  EXPECT_FALSE(fits("ab", "a*c"));
  EXPECT_FALSE(fits("", "a*"));
}

TEST(Quoted, ReadsBackAsItWas) {
  for (const std::string text : {"", "a b", "\"\\\n\r\t", "C:\\x", "あ"}) {
    EXPECT_EQ(cut(quoted(text)), Texts{text});
  }
  EXPECT_EQ(quoted("a\rb"), R"("a\rb")");
}

TEST(Numbers, AreWholeWords) {
  EXPECT_EQ(whole_number("-12"), -12);
  EXPECT_EQ(whole_number("3.0"), 3);
  EXPECT_DOUBLE_EQ(real_number("2.5"), 2.5);
  for (const char* none : {"", " 1", "1 ", "12a", "a", "-", "--1"}) {
    EXPECT_FALSE(is_number(none)) << none;
    EXPECT_THROW(real_number(none), ScriptError) << none;
  }
  EXPECT_THROW(whole_number("1.5"), ScriptError);
  EXPECT_THROW(whole_number("2147483648"), ScriptError);
  EXPECT_THROW(whole_number("nan"), ScriptError);
}

TEST(Numbers, WholeOnesPrintPlain) {
  EXPECT_EQ(number_text(0), "0");
  EXPECT_EQ(number_text(-0.0), "0");
  EXPECT_EQ(number_text(2147483663.0), "2147483663");
  EXPECT_EQ(number_text(0.5), "0.5");
  EXPECT_EQ(number_text(-3), "-3");
}

TEST(ReadScript, TakesBothLineEnds) {
  const std::string path = std::filesystem::temp_directory_path() / "kiso-script-test.play";
  std::ofstream(path, std::ios::binary) << "one\r\ntwo\nthree";
  EXPECT_EQ(read_script(path), (Texts{"one", "two", "three"}));
  std::filesystem::remove(path);
  EXPECT_THROW(read_script(path), ScriptError);
  EXPECT_THROW(read_script("/"), ScriptError);
}

}  // namespace
}  // namespace play
