#include "platform/disk/errors.h"

#include <cerrno>

namespace disk {

RuntimeError error_of(int system, int if_missing) {
  static constexpr struct {
    int system, number;
  } ERRORS[] = {
      {EACCES, 70}, {EPERM, 70},  {EROFS, 70},  {EBUSY, 70},   {ETXTBSY, 70}, {EISDIR, 75},       {EINVAL, 75},
      {ELOOP, 75},  {ENXIO, 75},  {ENODEV, 75}, {ENOTDIR, 76}, {ENOSPC, 61},  {EDQUOT, 61},       {EFBIG, 61},
      {EEXIST, 58}, {EMFILE, 67}, {ENFILE, 67}, {EXDEV, 74},   {ENOMEM, 7},   {ENAMETOOLONG, 75},
  };
  if (system == ENOENT) return RuntimeError(if_missing);
  for (const auto& row : ERRORS)
    if (row.system == system) return RuntimeError(row.number);
  return RuntimeError(57);
}

}  // namespace disk
