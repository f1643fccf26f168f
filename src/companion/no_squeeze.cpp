// SPDX-License-Identifier: GPL-3.0-or-later
// A build without the declarations of the library for compression: bytes are kept as they are.
#include "companion/squeeze.h"

namespace tallyroll {

std::string Squeezed(std::string_view bytes) {
  return std::string(bytes);
}

Unsqueezed Unsqueeze(std::string_view kept) {
  if (!IsSqueezed(kept)) return {std::string(kept), {}};
  return {{}, "this version of the program was built without compression"};
}

}  // namespace tallyroll
