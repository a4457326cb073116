// An add-in comes in by its parameter file, which lies beside its program.
#include "addin/addin.h"
#include "addin/file_tables.h"
#include "addin/record.h"
#include "platform/text/files.h"
#include "platform/text/paths.h"
#include "platform/text/text.h"

namespace kiso {

int16_t AIP_SCAN = 0, AIP_SELECT = 0;
std::string AIP_NAME, AIP_ID, AIP_EXE;
int16_t AIP_KIND = 0;
Array<std::string, 0, 1> AIP_TW;
RecordTexts AIP_FR_CMD, AIP_FR_FILTER, AIP_FR_EXT;
int16_t AIP_FR_CNT = 0;
RecordTexts AIP_FW_CMD, AIP_FW_FILTER, AIP_FW_EXT;
int16_t AIP_FW_CNT = 0;
int16_t AIP_HAS_SPOP = 0;
std::string AIP_SPOP;

namespace {

// As ADD_WIN's fields are when it opens.
void forget_offer() {
  AIP_SCAN = AIP_SELECT = AIP_KIND = AIP_FR_CNT = AIP_FW_CNT = AIP_HAS_SPOP = 0;
  AIP_NAME = AIP_ID = AIP_EXE = AIP_SPOP = "";
  AIP_TW = {};
}

std::string directory_of(const std::string& path) {
  const size_t separator = path.rfind(PATH_SEP);
  return separator == std::string::npos ? "." : path.substr(0, separator);
}

void take_addin(const Fields& field, const std::string& directory) {
  AIP_ID = field(1);
  AIP_EXE = field(2).starts_with("%%") ? directory + PATH_SEP + field(2).substr(2) : field(2);
  AIP_NAME = field(3);
  AIP_KIND = to_int16(text::Val(field(4)));
}

void take_file_kind(const Fields& field, const FileTable& table) {
  table.new_cmd(table.new_count) = field(1);
  table.new_filter(table.new_count) = field(2);
  table.new_ext(table.new_count) = field(3);
  ++table.new_count;
}

void take_record(const Fields& field, const std::string& directory) {
  const std::string& key = field(0);
  if (key == "ADIN") {
    take_addin(field, directory);
  } else if (key == "TWSL") {
    AIP_SELECT = 1;
    AIP_TW(0) = field(1);
  } else if (key == "TWSC") {
    AIP_SCAN = 1;
    AIP_TW(1) = field(1);
  } else if (key == "SPOP") {
    AIP_HAS_SPOP = 1;
    AIP_SPOP = field(1);
  }
  for (const FileTable& table : FILE_TABLES)
    if (key == table.key) take_file_kind(field, table);
}

// --- the parts of an install, each told to the user where it does not go in

bool scanner_is_taken() {
  if (!(TWSC_ON == 1 && AIP_SCAN == 1) && !(TWSL_ON == 1 && AIP_SELECT == 1)) return false;
  MsgBox("既にSCANNERは指定されています。");
  return true;
}

void add_addin() {
  AD_NAME(AD_CNT) = AIP_NAME;
  AD_ID(AD_CNT) = AIP_ID;
  AD_PATH(AD_CNT) = AIP_EXE;
  AD_KIND(AD_CNT) = AIP_KIND;
  ++AD_CNT;
}

void add_scanner(int row, int16_t& on, int16_t offered) {
  if (on != 0 || offered != 1) return;
  on = 1;
  TW_CMD(row) = AIP_TW(row);
  TW_ID(row) = AIP_ID;
}

void add_option() {
  if (AIP_HAS_SPOP == 0) return;
  if (SP_CNT >= RECORD_ROWS) {
    MsgBox("Special Optionの最大数を超えました追加は出来ません。");
    return;
  }
  SP_CMD(SP_CNT) = AIP_SPOP;
  SP_ID(SP_CNT) = AIP_ID;
  ++SP_CNT;
}

// The row that an extension goes to: its own if the user lets it be replaced, or the next; -1 for none.
int row_for(const std::string& ext, const FileTable& table) {
  for (int i = 0; i < table.count; ++i) {
    if (table.ext(i) != ext) continue;
    const std::string question = table.known + ext + "は\r既に指定されています置き換えますか?";
    return MsgBox(question, YES_NO | QUESTION | SECOND_BUTTON, APP_TITLE) == YES ? i : -1;
  }
  if (table.count < RECORD_ROWS) return table.count++;
  MsgBox(std::string(table.full) + "\r" + table.dropped);
  return -1;
}

void add_file_kinds(const FileTable& table) {
  for (int i = 0; i < table.new_count; ++i) {
    const int row = row_for(table.new_ext(i), table);
    if (row < 0) continue;
    table.cmd(row) = table.new_cmd(i);
    table.filter(row) = table.new_filter(i);
    table.ext(row) = table.new_ext(i);
    table.id(row) = AIP_ID;
  }
}

}  // namespace

void AIP_READ(const std::string& path) {
  const std::string directory = directory_of(path);
  forget_offer();
  const text::NumberScope file(1);
  ignore_errors([&] { text::Open(path, text::Mode::Input, 1); });  // shows as an error at the first line
  read_records(1, [&](const Fields& field) { take_record(field, directory); });
}

// Neither a free row nor one left behind by an install that was taken back is an installed add-in.
void AIP_CHECK(int& result) {
  result = 0;
  for (int i = 0; i < AD_CNT; ++i) {
    if (AD_ID(i).empty() || AD_ID(i) != AIP_ID) continue;
    MsgBox("同じ名前で既に" + AD_NAME(i) + "が\rインストールされています。");
    result = 1;
  }
}

bool AIP_INSTALL() {
  int result = 0;
  AIP_CHECK(result);
  if (result != 0 || scanner_is_taken()) return false;
  add_addin();
  add_scanner(1, TWSC_ON, AIP_SCAN);
  add_scanner(0, TWSL_ON, AIP_SELECT);
  add_option();
  for (const FileTable& table : FILE_TABLES) add_file_kinds(table);
  WRITE_AIN();
  READ_AIN();
  return true;
}

}  // namespace kiso
