// The readers and the writers of picture files, which are kept and installed alike.
#pragma once

#include "addin/addin.h"

namespace kiso {

struct FileTable {
  const char* key;
  RecordTexts &id, &cmd, &filter, &ext;
  int16_t& count;
  RecordTexts &new_cmd, &new_filter, &new_ext;  // what a parameter file offers
  int16_t& new_count;
  const char *known, *full, *dropped;  // words of the boxes at the install
};

extern const FileTable FILE_TABLES[2];

}  // namespace kiso
