#include "addin/record.h"

#include "platform/text/files.h"
#include "platform/text/text.h"

namespace kiso {

void split_record(std::string& L, Fields& field) {
  if (!L.ends_with(',')) L += ',';
  size_t start = 0;
  int n = 0;
  for (size_t p = 0; p < L.size(); ++p) {
    if (L[p] == '\'') {
      L.resize(p);
    } else if (L[p] == ',') {
      field(n++) = L.substr(start, p - start);
      start = p + 1;
    }
  }
}

void read_records(int number, const std::function<void(const Fields&)>& take) {
  Fields field;
  for (;;) {
    std::string L = text::Trim(text::LineInput(number));
    if (L == END_MARK) return;
    if (L.starts_with('\'')) continue;
    split_record(L, field);
    take(field);
  }
}

}  // namespace kiso
