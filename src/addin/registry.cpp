// KISO.AIN: which external programs are installed and what they do.
#include "addin/addin.h"
#include "addin/file_tables.h"
#include "addin/record.h"
#include "platform/disk/lock.h"
#include "platform/text/files.h"
#include "platform/text/paths.h"
#include "platform/text/text.h"

namespace kiso {

AddinTexts AD_NAME, AD_ID, AD_PATH;
Array<int16_t, 0, ADDIN_ROWS - 1> AD_KIND;
int16_t AD_CNT = 0;
RecordTexts FR_ID, FR_CMD, FR_FILTER, FR_EXT;
int16_t FR_CNT = 0;
RecordTexts FW_ID, FW_CMD, FW_FILTER, FW_EXT;
int16_t FW_CNT = 0;
RecordTexts SP_ID, SP_CMD;
int16_t SP_CNT = 0;
Array<std::string, 0, 2> TW_ID, TW_CMD;
int16_t TWSL_ON = 0, TWSC_ON = 0;

const FileTable FILE_TABLES[2] = {
    {"FFRD", FR_ID, FR_CMD, FR_FILTER, FR_EXT, FR_CNT, AIP_FR_CMD, AIP_FR_FILTER, AIP_FR_EXT, AIP_FR_CNT,
     "ファイル読み込みで拡張子", "読み込みの拡張子指定が最大数を超えました",
     "一部追加されない読み込みファイル指定があります。"},
    {"FFWT", FW_ID, FW_CMD, FW_FILTER, FW_EXT, FW_CNT, AIP_FW_CMD, AIP_FW_FILTER, AIP_FW_EXT, AIP_FW_CNT,
     "ファイル書き込みで拡張子", "書き込みの拡張子指定が最大数を超えました",
     "一部追加されない書き込みファイル指定があります。"},
};

namespace {

std::string registry_path() { return APP_PATH + PATH_SEP + "KISO.AIN"; }
std::string template_path() { return APP_PATH + PATH_SEP + "DEFAULT.AIN"; }

void print(std::initializer_list<std::string> fields) {
  std::string line;
  for (const std::string& field : fields) line += (line.empty() ? "" : ",") + field;
  text::Print(2, line);
}

// --- how the lines of each kind are read and written
void read_addin(const Fields& field) {
  AD_ID(AD_CNT) = field(1);
  AD_PATH(AD_CNT) = field(2);
  AD_NAME(AD_CNT) = field(3);
  AD_KIND(AD_CNT) = to_int16(text::Val(field(4)));
  ++AD_CNT;
}
void write_addins() {
  for (int i = 0; i < AD_CNT; ++i)
    if (!AD_ID(i).empty()) print({"ADIN", AD_ID(i), AD_PATH(i), AD_NAME(i), text::Str(AD_KIND(i))});
}

template <int row, int16_t& on>
void read_scanner(const Fields& field) {
  TW_ID(row) = field(1);
  TW_CMD(row) = field(2);
  on = 1;
}
void write_scan_source() {
  if (TWSL_ON == 1) print({"TWSL", TW_ID(0), TW_CMD(0)});
}
void write_scanner() {
  if (TWSC_ON == 1) print({"TWSC", TW_ID(1), TW_CMD(1)});
}

// Rows beyond the last are dropped without a word.
template <int which>
void read_file_kind(const Fields& field) {
  const FileTable& table = FILE_TABLES[which];
  if (table.count >= RECORD_ROWS) return;
  table.id(table.count) = field(1);
  table.cmd(table.count) = field(2);
  table.filter(table.count) = field(3);
  table.ext(table.count) = field(4);
  ++table.count;
}
template <int which>
void write_file_kinds() {
  const FileTable& table = FILE_TABLES[which];
  for (int i = 0; i < table.count; ++i)
    if (!table.id(i).empty()) print({table.key, table.id(i), table.cmd(i), table.filter(i), table.ext(i)});
}

void read_option(const Fields& field) {
  if (SP_CNT >= RECORD_ROWS) return;
  SP_ID(SP_CNT) = field(1);
  SP_CMD(SP_CNT) = field(2);
  ++SP_CNT;
}
void write_options() {
  for (int i = 0; i < SP_CNT; ++i)
    if (!SP_ID(i).empty()) print({"SPOP", SP_ID(i), SP_CMD(i)});
}

struct RecordRow {
  const char* key;
  void (*read)(const Fields& field);
  void (*write)();  // all lines of that kind
};
constexpr RecordRow RECORDS[] = {
    {"ADIN", read_addin, write_addins},
    {"TWSL", read_scanner<0, TWSL_ON>, write_scan_source},
    {"TWSC", read_scanner<1, TWSC_ON>, write_scanner},
    {"FFRD", read_file_kind<0>, write_file_kinds<0>},
    {"FFWT", read_file_kind<1>, write_file_kinds<1>},
    {"SPOP", read_option, write_options},
};

const RecordRow* record_row(const std::string& key) {
  for (const RecordRow& row : RECORDS)
    if (key == row.key) return &row;
  return nullptr;
}

// TWSL_ON alone stays: it survives the reread of a file that has lost its line. The add-ins' rows are overwritten.
void empty_tables() {
  TWSC_ON = FR_CNT = FW_CNT = SP_CNT = AD_CNT = 0;
  TW_ID = TW_CMD = {};
  for (RecordTexts* texts :
       {&FR_ID, &FR_CMD, &FR_FILTER, &FR_EXT, &FW_ID, &FW_CMD, &FW_FILTER, &FW_EXT, &SP_ID, &SP_CMD})
    *texts = {};
}

}  // namespace

void READ_AIN() {
  const disk::FolderLock lock(APP_PATH);
  if (text::Dir(registry_path()).empty()) {
    AD_CNT = FR_CNT = FW_CNT = SP_CNT = TWSL_ON = TWSC_ON = 0;
    WRITE_AIN();
  }
  empty_tables();
  const text::NumberScope file(1);
  if (ignore_errors([] { text::Open(registry_path(), text::Mode::Input, 1); }) != 0) return;
  read_records(1, [](const Fields& field) {
    if (const RecordRow* row = record_row(field(0))) row->read(field);
  });
}

// The old registry is gone before the new one exists, so what can not be opened shows as an error at the first line.
void WRITE_AIN() {
  const disk::FolderLock lock(APP_PATH);
  const std::string old = text::Dir(registry_path()).empty() ? template_path() : registry_path();
  const text::Encoding encoding = text::encoding_of(old);
  const text::NumberScope in(1), out(2);
  ignore_errors([] { text::Kill(registry_path()); });
  ignore_errors([] { text::Open(template_path(), text::Mode::Input, 1); });
  ignore_errors([&] { text::Open(registry_path(), text::Mode::Output, 2, encoding); });
  Fields field;
  std::string L;
  do {
    L = text::Trim(text::LineInput(1));
    if (L == END_MARK || L.starts_with('\'')) {
      text::Print(2, L);
      continue;
    }
    split_record(L, field);
    if (const RecordRow* row = record_row(field(0)))
      row->write();
    else
      text::Print(2, L);
  } while (L != END_MARK);
  text::Close(1);
  text::Close(2);
}

void ADDIN_LOOKUP(const std::string& id, std::string& title, std::string& exe, int& index, int& result) {
  result = 1;
  index = -1;
  title = "不明なADD_INです。";
  for (int i = 0; i < AD_CNT && result != 0; ++i) {
    if (AD_ID(i) != id) continue;
    index = i;
    title = AD_NAME(i);
    exe = AD_PATH(i);
    result = 0;
  }
}

}  // namespace kiso
