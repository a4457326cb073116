// Any bytes as the settings file and as its template.
#include "keyed_file_dir.h"
#include "persist/persist.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace kiso;
  open_program_dir();
  PIC_FILE.clear();
  put_file("KISO.CNF", data, size);
  put_file("DEFAULT.CNF", data, size);
  const std::string before = get_file("KISO.CNF");
  const bool read = succeeds(READ_CNF);
  if (!read && get_file("KISO.CNF") != before) abort();  // an error leaves the file
  if (!succeeds(WRITE_CNF)) {
    if (get_file("KISO.CNF") != before) abort();
    return 0;
  }
  if (!succeeds(READ_CNF)) abort();  // what was written can be read
  return 0;
}
