// Any bytes as the colour dictionary file.
#include "keyed_file_dir.h"
#include "persist/persist.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace kiso;
  open_program_dir();
  COL_WIN.Unload();  // its list is filled anew
  put_file("KISO.CDI", data, size);
  const std::string before = get_file("KISO.CDI");
  if (!succeeds(READ_CDI)) {
    if (get_file("KISO.CDI") != before) abort();  // an error leaves the file
    return 0;
  }
  if (!succeeds(WRITE_CDI)) abort();  // the writer takes what the reader has taken
  COL_WIN.Unload();
  if (!succeeds(READ_CDI)) abort();  // what was written can be read
  return 0;
}
