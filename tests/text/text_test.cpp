#include "platform/text/text.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/error.h"

namespace {

using namespace text;

template <class F>
int error_of(F f) {
  try {
    f();
  } catch (const RuntimeError& e) {
    return e.number;
  }
  return 0;
}

TEST(Text, LengthCountsCharacters) {
  EXPECT_EQ(Len(""), 0);
  EXPECT_EQ(Len("KISO"), 4);
  EXPECT_EQ(Len("色の辞書"), 4);
  EXPECT_EQ(Len("a\xF0\x9F\x8E\xA8z"), 3);
}

TEST(Text, InvalidBytesCountOneEach) {
  EXPECT_EQ(Len("\xFF\xFE"), 2);
  EXPECT_EQ(Len("\xE3\x81"), 2);          // cut in the middle
  EXPECT_EQ(Len("\xC0\xAF"), 2);          // overlong
  EXPECT_EQ(Len("\xE0\x80\xAF"), 3);      // overlong
  EXPECT_EQ(Len("\xED\xA0\x80"), 3);      // surrogate
  EXPECT_EQ(Len("\xF4\x90\x80\x80"), 4);  // above the last code point
  EXPECT_EQ(Len("\xE3色"), 2);
}

TEST(Text, Utf8IsToldWhole) {
  EXPECT_TRUE(is_utf8(""));
  EXPECT_TRUE(is_utf8("色\xF0\x9F\x8E\xA8"));
  EXPECT_FALSE(is_utf8("色\x90\x46"));
  EXPECT_FALSE(is_utf8("abc\xE3\x81"));
}

TEST(Text, LeftRightMid) {
  EXPECT_EQ(Left("基本の色", 2), "基本");
  EXPECT_EQ(Left("基本", 9), "基本");
  EXPECT_EQ(Left("基本", 0), "");
  EXPECT_EQ(Right("基本の色", 1), "色");
  EXPECT_EQ(Right("ab", 9), "ab");
  EXPECT_EQ(Right("ab", 0), "");
  EXPECT_EQ(Mid("基本の色", 2, 2), "本の");
  EXPECT_EQ(Mid("基本の色", 3), "の色");
  EXPECT_EQ(Mid("abc", 4), "");
  EXPECT_EQ(Mid("abc", 9, 2), "");
  EXPECT_EQ(Mid("abc", 2, 0), "");
}

TEST(Text, InvalidBytesSurviveCutting) {
  const std::string s = "a\xFF\xE3z";
  EXPECT_EQ(Left(s, 2), "a\xFF");
  EXPECT_EQ(Right(s, 2), "\xE3z");
  EXPECT_EQ(Mid(s, 2, 2), "\xFF\xE3");
}

TEST(Text, NegativeCountsAreError5) {
  EXPECT_EQ(error_of([] { Left("abc", -1); }), 5);
  EXPECT_EQ(error_of([] { Right("abc", -1); }), 5);
  EXPECT_EQ(error_of([] { Mid("abc", 0, 1); }), 5);
  EXPECT_EQ(error_of([] { Mid("abc", 0); }), 5);
  EXPECT_EQ(error_of([] { Mid("abc", 1, -1); }), 5);
}

TEST(Text, InStrGivesTheFirstPlace) {
  EXPECT_EQ(InStr("CNAM , 肌,髪", ","), 6);
  EXPECT_EQ(InStr("肌,髪,空", ",空"), 4);
  EXPECT_EQ(InStr("abc", "d"), 0);
  EXPECT_EQ(InStr("abc", "C"), 0);
  EXPECT_EQ(InStr("", "a"), 0);
  EXPECT_EQ(InStr("abc", ""), 1);
  EXPECT_EQ(InStr("ab", "abc"), 0);
}

TEST(Text, InStrDoesNotMatchInsideACharacter) { EXPECT_EQ(InStr("あ\x81", "\x81"), 2); }

TEST(Text, TrimTakesBlanksAlone) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(Trim(""), "");
  EXPECT_EQ(Trim("\ta "), "\ta");
  EXPECT_EQ(Trim("　a"), "　a");
}

TEST(Text, UpperAsciiLeavesTheRest) { EXPECT_EQ(UPPER_ASCII("abz{`éあ9.bmp"), "ABZ{`éあ9.BMP"); }

TEST(Text, ValReadsANumberFromTheStart) {
  EXPECT_EQ(Val("255"), 255);
  EXPECT_EQ(Val("  -12.5mm"), -12.5);
  EXPECT_EQ(Val("+7"), 7);
  EXPECT_EQ(Val(".5"), 0.5);
  EXPECT_EQ(Val("5."), 5);
  EXPECT_EQ(Val("1.5.2"), 1.5);
  EXPECT_EQ(Val("12,5"), 12);
  EXPECT_EQ(Val("007"), 7);
}

TEST(Text, ValIsZeroWithoutANumber) {
  for (const char* s : {"", " ", "abc", "-", "+", ".", "-.", "--5", "e5", "'5", "１２", "inf", "nan", "0x1F"})
    EXPECT_EQ(Val(s), 0) << s;
}

TEST(Text, ValSkipsBlanksTabsAndLineFeedsWithinTheNumber) {
  EXPECT_EQ(Val("1 6\t1\n5 198"), 1615198);
  EXPECT_EQ(Val("- 1.50"), -1.5);
  EXPECT_EQ(Val(" 1 . 2 5 "), 1.25);
  EXPECT_EQ(Val("1 E - 2"), 0.01);
  EXPECT_EQ(Val("1\r2"), 1);
}

TEST(Text, ValTakesAnExponentOnlyWhole) {
  EXPECT_EQ(Val("1e3"), 1000);
  EXPECT_EQ(Val("2.5D2"), 250);
  EXPECT_EQ(Val("1d+2"), 100);
  EXPECT_EQ(Val("1e"), 1);
  EXPECT_EQ(Val("1e+"), 1);
  EXPECT_EQ(Val("1e x"), 1);
  EXPECT_EQ(Val("1ee5"), 1);
  EXPECT_EQ(Val("1e2.5"), 100);
}

TEST(Text, ValOutsideADoubleOverflows) {
  EXPECT_EQ(error_of([] { Val("1e309"); }), 6);
  EXPECT_EQ(error_of([] { Val("-1e99999999999999999999"); }), 6);
  EXPECT_EQ(error_of([] { Val(std::string(400, '9')); }), 6);
  EXPECT_EQ(Val("1e-400"), 0);
  EXPECT_EQ(Val("0." + std::string(400, '0') + "1"), 0);
  EXPECT_EQ(Val("0e999"), 0);
}

TEST(Text, StrHasABlankUnlessNegative) {
  EXPECT_EQ(Str(128), " 128");
  EXPECT_EQ(Str(0), " 0");
  EXPECT_EQ(Str(-3), "-3");
  EXPECT_EQ(Str(int16_t{-32768}), "-32768");
  EXPECT_EQ(Str(2.0), " 2");
  EXPECT_EQ(Str(-2.25), "-2.25");
}

TEST(Text, StrOfAFractionHasNoZeroInFront) {
  EXPECT_EQ(Str(0.5), " .5");
  EXPECT_EQ(Str(-0.5), "-.5");
  EXPECT_EQ(Str(10.5), " 10.5");
  EXPECT_EQ(Str(-0.0), " 0");
}

TEST(Text, CStrShowsFifteenDigits) {
  EXPECT_EQ(CStr(0.1 + 0.2), "0.3");
  EXPECT_EQ(CStr(-0.0), "0");
  EXPECT_EQ(CStr(-1.5), "-1.5");
  EXPECT_EQ(CStr(100000), "100000");
  EXPECT_EQ(CStr(123456789012345.0), "123456789012345");
  EXPECT_EQ(CStr(1e15), "1E+15");
  EXPECT_EQ(CStr(0.0001), "0.0001");
  EXPECT_EQ(CStr(0.00001), "1E-05");
}

TEST(Text, FormatWritesTwoDecimalsBehindABlank) {
  EXPECT_EQ(Format(0), " 0.00");
  EXPECT_EQ(Format(5), " 5.00");
  EXPECT_EQ(Format(210), " 210.00");
  EXPECT_EQ(Format(12345678.9), " 12345678.90");
  EXPECT_EQ(Format(-1.5), "- 1.50");
  EXPECT_EQ(Val(Format(-1.5)), -1.5);
  EXPECT_EQ(Format(1e20), " 100000000000000000000.00");
}

TEST(Text, FormatRoundsHalvesAwayFromZero) {
  EXPECT_EQ(Format(0.125), " 0.13");
  EXPECT_EQ(Format(-0.125), "- 0.13");
  EXPECT_EQ(Format(0.135), " 0.14");
  EXPECT_EQ(Format(1.005), " 1.01");  // as its 15 digits show it, not as the binary number below it
  EXPECT_EQ(Format(2.675), " 2.68");
  EXPECT_EQ(Format(0.004999), " 0.00");
  EXPECT_EQ(Format(0.005), " 0.01");
  EXPECT_EQ(Format(0.0005), " 0.00");
  EXPECT_EQ(Format(0.05), " 0.05");
  EXPECT_EQ(Format(9.995), " 10.00");
  EXPECT_EQ(Format(99999.999), " 100000.00");
  EXPECT_EQ(Format(0.994999), " 0.99");
  EXPECT_EQ(Format(0.995), " 1.00");
}

TEST(Text, FormatOfNothingHasNoSign) {
  EXPECT_EQ(Format(-0.001), " 0.00");
  EXPECT_EQ(Format(-1e-300), " 0.00");
  EXPECT_EQ(Format(-0.0), " 0.00");
}

TEST(Text, FormatOfNoNumberOverflows) {
  EXPECT_EQ(error_of([] { Format(std::numeric_limits<double>::infinity()); }), 6);
  EXPECT_EQ(error_of([] { Format(std::numeric_limits<double>::quiet_NaN()); }), 6);
}

}  // namespace
