// The templates as they are shipped.
#include <sstream>

#include "persist/persist.h"
#include "persist/persist_dir.h"
#include "platform/text/encoding.h"

namespace kiso {
namespace {

using Templates = PersistDir;

TEST_F(Templates, FirstStartCopiesTheSettingsByteForByte) {
  put("DEFAULT.CNF", shipped("DEFAULT.CNF"));
  READ_CNF();
  EXPECT_EQ(get("KISO.CNF"), shipped("DEFAULT.CNF"));
  EXPECT_EQ(all_files().size(), 2u);
}

TEST_F(Templates, FirstStartIsAFriendlyOne) {
  put("DEFAULT.CNF", shipped("DEFAULT.CNF"));
  READ_CNF();
  EXPECT_EQ(STATUS_ON, 1);
  EXPECT_EQ(POS_RESTORE, 1);
  EXPECT_EQ(BIRD_ON, 1);
  EXPECT_EQ(AUTOSAVE_DEST, 0);
  EXPECT_EQ(AUTOSAVE_MIN, 5);
  EXPECT_TRUE(Timer2.Enabled());
  EXPECT_EQ(HSET_V, 50);
  EXPECT_EQ(P_WIN.WindowState(), 0);
  // The palettes and the overview stand beside the main window, on a screen of 1024 x 768 pixels.
  EXPECT_LE(P_WIN.Left() + P_WIN.Width(), COL_LEFT);
  EXPECT_EQ(COL_LEFT, CMD_LEFT);
  EXPECT_LE(BIRD_LEFT + BIRD_W, 1024 * TWIPS);
  EXPECT_LE(BIRD_TOP + BIRD_H, 768 * TWIPS);
  EXPECT_LE(P_WIN.Height(), 768 * TWIPS);
}

TEST_F(Templates, SettingsHaveEveryKeyInAnOrderThatWorks) {
  std::istringstream file(shipped("DEFAULT.CNF"));
  std::string keys, line;
  while (std::getline(file, line)) {
    ASSERT_EQ(line.back(), '\r') << line;
    line.pop_back();
    if (line.empty() || line[0] == '\'') continue;
    if (line == "[EOF]") break;
    EXPECT_EQ(line.substr(4, 2), " ,") << line;
    keys += line.substr(0, 4) + " ";
  }
  EXPECT_EQ(line, "[EOF]");
  EXPECT_FALSE(std::getline(file, line));
  for (const char* key : {"FEMD", "PIWT", "PIWS", "PIWL", "PIWW", "PIWH", "COWL", "COWT", "CMWL", "CMWT", "BEWT",
                          "BEWL", "BEWW", "BEWH", "BEWD", "IDSP", "BEAU", "BERM", "VDMD", "SZWM", "RPNX", "RPNM",
                          "CSEL", "DROP", "LAN1", "LAN2", "LAM1", "LAM2", "ASAM", "ASAT", "MERM", "FUZH", "FUZS",
                          "FUZV", "SPRI", "CDSP", "LMOD", "ACHK", "HSET", "MLLF", "MLTP", "MLDS", "THPD", "PRAD"})
    EXPECT_NE(keys.find(key), std::string::npos) << key;
  EXPECT_EQ(keys.size(), 44u * 5);
  EXPECT_EQ(keys.find("FEMD"), 0u);
  EXPECT_LT(keys.find("RPNX"), keys.find("RPNM"));
  // The overview's keys load both palettes, and the colour window opens its pane as it loads.
  EXPECT_LT(keys.find("CSEL"), keys.find("BEW"));
}

// Otherwise a file of that code page would turn into UTF-8 at the first rewrite.
TEST_F(Templates, AllFitTheCodePage) {
  for (const char* name : {"DEFAULT.CNF", "DEFAULT.CDI", "DEFAULT.AIN"}) {
    const auto texts = text::decode(shipped(name));
    EXPECT_EQ(text::encoding_of_bytes(text::encode(texts, text::Encoding::cp932)), text::Encoding::cp932) << name;
  }
}

TEST_F(Templates, DictionariesAreComplete) {
  std::istringstream file(shipped("DEFAULT.CDI"));
  std::string line, expected;
  int names = 0, colours = 0;
  while (std::getline(file, line)) {
    ASSERT_EQ(line.back(), '\r') << line;
    line.pop_back();
    if (line.empty() || line[0] == '\'') continue;
    if (line == "[EOF]") break;
    if (line.starts_with("CNAM , ")) {
      EXPECT_EQ(colours, names++ * 78);
      continue;
    }
    const int i = colours++ % 78;
    const std::string key = {'C', static_cast<char>('A' + i / 3), '_', "RGB"[i % 3]};
    EXPECT_EQ(line.substr(0, 7), key + " , ");
    EXPECT_LE(std::stoi(line.substr(7)), 255);
  }
  EXPECT_EQ(line, "[EOF]");
  EXPECT_EQ(names, 10);
  EXPECT_EQ(colours, 780);
}

}  // namespace
}  // namespace kiso
