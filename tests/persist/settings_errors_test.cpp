// Settings that can not be read or written: a numbered error, and nothing is lost.
#include "persist/persist.h"
#include "persist/persist_dir.h"

namespace kiso {
namespace {

using SettingsErrors = PersistDir;

TEST_F(SettingsErrors, AMissingFileIsAnErrorThatLeavesTheOthers) {
  EXPECT_EQ(harmless_error_of(READ_CNF), 53);
  put("KISO.CNF", lines({"FUZH , 5"}));
  EXPECT_EQ(harmless_error_of(WRITE_CNF), 53);  // no template
  std::filesystem::rename(APP_PATH + "/KISO.CNF", APP_PATH + "/DEFAULT.CNF");
  EXPECT_EQ(harmless_error_of(WRITE_CNF), 53);  // nothing to replace
}

TEST_F(SettingsErrors, ATemplateWithoutAnEndLeavesTheSettings) {
  put("DEFAULT.CNF", "FUZH , 1\r\n");
  put("KISO.CNF", lines({"FUZH , 5"}));
  EXPECT_EQ(harmless_error_of(WRITE_CNF), 62);
  EXPECT_EQ(harmless_error_of(WRITE_CNF), 62);  // the first failure has freed its file numbers
}

TEST_F(SettingsErrors, AReadOnlyDirectoryStaysAsItIs) {
  put("DEFAULT.CNF", lines({"FUZH , 1"}));
  protect_directory();
  EXPECT_EQ(harmless_error_of(READ_CNF), 70);
}

TEST_F(SettingsErrors, WhatMayNotBeReadStaysAsItIs) {
  put("DEFAULT.CNF", lines({"FUZH , 1"}));
  put("KISO.CNF", lines({"FUZH , 5"}));
  EXPECT_EQ(error_without_access("KISO.CNF", READ_CNF), 70);
  EXPECT_EQ(error_without_access("KISO.CNF", WRITE_CNF), 70);
  EXPECT_EQ(error_without_access("DEFAULT.CNF", WRITE_CNF), 70);
  EXPECT_EQ(error_without_access("", READ_CNF), 70);
  EXPECT_EQ(error_without_access("", WRITE_CNF), 70);
}

TEST_F(SettingsErrors, SettingsInAReadOnlyDirectoryStayAsTheyAre) {
  put("DEFAULT.CNF", lines({"FUZH , 1"}));
  put("KISO.CNF", lines({"FUZH , 5"}));
  protect_directory();
  READ_CNF();
  EXPECT_EQ(FUZZY_H, 5);
  EXPECT_EQ(harmless_error_of(WRITE_CNF), 70);
}

}  // namespace
}  // namespace kiso
