#include "platform/text/encoding.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using namespace text;
using Lines = std::vector<std::string>;

// "色の辞書" in code page 932.
const std::string COLOURS_932 = "\x90\x46\x82\xCC\x8E\xAB\x8F\x91";

TEST(Encoding, Utf8IfTheWholeFileIs) {
  EXPECT_EQ(encoding_of_bytes(""), Encoding::utf8);
  EXPECT_EQ(encoding_of_bytes("FEMD , 1\r\n"), Encoding::utf8);
  EXPECT_EQ(encoding_of_bytes("CNAM , 色"), Encoding::utf8);
  EXPECT_EQ(encoding_of_bytes(COLOURS_932), Encoding::cp932);
  EXPECT_EQ(encoding_of_bytes("色\r\n" + COLOURS_932), Encoding::cp932);
}

TEST(Encoding, EveryKindOfLineEnd) {
  EXPECT_EQ(decode("a\r\nb\nc\rd"), (Lines{"a", "b", "c", "d"}));
  EXPECT_EQ(decode("a\r\n\r\n\n\rb\r\n"), (Lines{"a", "", "", "", "b"}));
  EXPECT_EQ(decode(""), Lines{});
  EXPECT_EQ(decode("\n"), Lines{""});
}

TEST(Encoding, ByteOrderMarkIsDropped) {
  EXPECT_EQ(decode("\xEF\xBB\xBF[EOF]\r\n"), Lines{"[EOF]"});
  EXPECT_EQ(decode(encode({"\xEF\xBB\xBFx"}, Encoding::utf8)), Lines{"\xEF\xBB\xBFx"});
}

TEST(Encoding, CodePageComesInAsUtf8) {
  EXPECT_EQ(decode("CNAM , " + COLOURS_932 + "\r\n\xB6\xC5\r\n"), (Lines{"CNAM , 色の辞書", "ｶﾅ"}));
  EXPECT_EQ(decode("C:\\\x95\x5C\r\n"), Lines{"C:\\表"});  // the second byte of a character may look like a backslash
}

TEST(Encoding, CodePageGoesOutAgain) {
  EXPECT_EQ(encode({"CNAM , 色の辞書"}, Encoding::cp932), "CNAM , " + COLOURS_932 + "\r\n");
  EXPECT_EQ(encode({"色"}, Encoding::utf8), "色\r\n");
}

TEST(Encoding, CharacterOutsideTheCodePageMakesTheFileUtf8) {
  EXPECT_EQ(encode({"caf\xC3\xA9 色"}, Encoding::cp932), "caf\xC3\xA9 色\r\n");
  EXPECT_EQ(encode({"\xF0\x9F\x8E\xA8"}, Encoding::cp932), "\xF0\x9F\x8E\xA8\r\n");
}

// "ﾃｱ" is C3 B1 in the code page, which would be read back as one character of UTF-8.
TEST(Encoding, CodePageThatLooksLikeUtf8IsWrittenAsUtf8) {
  EXPECT_EQ(decode(encode({"ﾃｱ"}, Encoding::cp932)), Lines{"ﾃｱ"});
}

TEST(Encoding, BytesWithoutACharacterSurviveInTheCodePage) {
  const std::string bytes = COLOURS_932 + " \x80 \xA0 \xFD\xFE\xFF \x85\x40 \x81\r\n";
  const Lines lines = decode(bytes);
  EXPECT_EQ(lines, (Lines{"色の辞書 \x80 \xA0 \xFD\xFE\xFF \x85@ \x81"}));
  EXPECT_EQ(encode(lines, Encoding::cp932), bytes);
}

TEST(Encoding, BytesWithoutACharacterSurviveInUtf8) {
  const Lines lines{"/home/色/caf\xE9.bmp", "\xFF", "\xEF\x9F\xA9"};
  const std::string bytes = encode(lines, Encoding::utf8);
  EXPECT_EQ(encoding_of_bytes(bytes), Encoding::utf8);
  EXPECT_EQ(decode(bytes), lines);
}

TEST(Encoding, ALineEndWithinALineDoesNotCutIt) {
  const Lines lines{"RPNM , a\n[EOF]\r.bmp", "[EOF]"};
  EXPECT_EQ(decode(encode(lines, Encoding::utf8)), lines);
  EXPECT_EQ(decode(encode(lines, Encoding::cp932)), lines);
}

TEST(Encoding, AnyLinesComeBackFromUtf8) {
  std::mt19937 random(1);
  for (int round = 0; round < 2000; ++round) {
    Lines lines(random() % 4);
    for (std::string& line : lines)
      for (unsigned n = random() % 12; n > 0; --n) {
        static const char* const pieces[] = {"色", "\r", "\n", "\xEF", "\x9C", "\x8D", "\xEF\xBB\xBF", "a", "\xF0\x9F"};
        line += pieces[random() % std::size(pieces)];
      }
    ASSERT_EQ(decode(encode(lines, Encoding::utf8)), lines) << "round " << round;
    ASSERT_EQ(decode(encode(lines, Encoding::cp932)), lines) << "round " << round;
  }
}

TEST(Encoding, AnyBytesAreRead) {
  std::mt19937 random(2);
  for (int round = 0; round < 2000; ++round) {
    std::string bytes(random() % 40, ' ');
    for (char& byte : bytes) byte = static_cast<char>(random());
    const Lines lines = decode(bytes);
    ASSERT_EQ(decode(encode(lines, encoding_of_bytes(bytes))), lines) << "round " << round;
  }
}

}  // namespace
