// Any bytes as the parameter file of an add-in that is installed.
#include "addin/addin.h"
#include "keyed_file_dir.h"

namespace {

void put_text(const char* name, const std::string& text) {
  kiso::put_file(name, reinterpret_cast<const uint8_t*>(text.data()), text.size());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace kiso;
  open_program_dir();
  put_text("DEFAULT.AIN", "ADIN\nTWSL\nTWSC\nFFRD\nFFWT\nSPOP\n[EOF]\n");
  put_text("KISO.AIN", "ADIN,OLD,/bin/old,old,0\nFFRD,OLD,r,f,GIF\n[EOF]\n");
  TWSL_ON = 0;  // survives a reading
  READ_AIN();
  put_file("A.AIP", data, size);
  if (!succeeds([] { AIP_READ(APP_PATH + "/A.AIP"); })) return 0;
  bool installed = false;
  if (!succeeds([&] { installed = AIP_INSTALL(); })) abort();
  if (installed != (AIP_ID != "OLD")) abort();
  const int expected = installed && !AIP_ID.empty() ? 2 : 1;  // an add-in without identifier is dropped by the file
  if (AD_CNT != expected) abort();
  return 0;
}
