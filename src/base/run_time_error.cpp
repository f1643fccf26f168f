// SPDX-License-Identifier: GPL-3.0-or-later
// The system's error numbers as run-time error numbers.
#include "base/run_time_error.h"

#include <cerrno>

namespace tallyroll {

int RunTimeErrorOf(int system_error) {
  switch (system_error) {
    case ENOENT:
      return kErrorFileNotFound;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return kErrorDiskFull;
    case EACCES:
    case EPERM:
    case EROFS:
      return kErrorPermission;
    case EISDIR:
      return kErrorPathAccess;
    case ENOTDIR:
    case ENAMETOOLONG:
    case ELOOP:
      return kErrorPathNotFound;
    default:
      return kErrorDevice;
  }
}

}  // namespace tallyroll
