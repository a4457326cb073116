// Any bytes as the registry and as its template.
#include "addin/addin.h"
#include "keyed_file_dir.h"

namespace {

// Rows that the writer keeps, of all tables.
int rows() {
  int n = 0;
  for (int i = 0; i < kiso::AD_CNT; ++i) n += !kiso::AD_ID(i).empty();
  for (int i = 0; i < kiso::FR_CNT; ++i) n += !kiso::FR_ID(i).empty();
  for (int i = 0; i < kiso::FW_CNT; ++i) n += !kiso::FW_ID(i).empty();
  for (int i = 0; i < kiso::SP_CNT; ++i) n += !kiso::SP_ID(i).empty();
  return n + kiso::TWSL_ON + kiso::TWSC_ON;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace kiso;
  constexpr char TEMPLATE[] = "ADIN\nTWSL\nTWSC\nFFRD\nFFWT\nSPOP\n[EOF]\n";
  open_program_dir();
  TWSL_ON = 0;  // survives a reading
  put_file("KISO.AIN", data, size);
  const std::string before = get_file("KISO.AIN");
  const bool read = succeeds(READ_AIN);
  if (get_file("KISO.AIN") != before) abort();  // reading leaves the file
  if (!read) return 0;
  put_file("DEFAULT.AIN", reinterpret_cast<const uint8_t*>(TEMPLATE), sizeof TEMPLATE - 1);
  const int written = rows();
  if (!succeeds(WRITE_AIN) || !succeeds(READ_AIN)) abort();  // what was read can be written and read
  if (rows() != written) abort();
  put_file("DEFAULT.AIN", data, size);
  succeeds(WRITE_AIN);
  return 0;
}
