// What the operating system reports, as the platform's numbers: 7 out of memory, 57 device error, 58 file already
// exists, 61 disk full, 67 too many open files, 70 permission denied, 74 rename to another disk, 75 a folder or another
// thing that is no file, 76 no such folder.
#pragma once

#include "platform/error.h"

namespace disk {

// The error of an errno. What a missing name means is the caller's.
RuntimeError error_of(int system, int if_missing);

}  // namespace disk
