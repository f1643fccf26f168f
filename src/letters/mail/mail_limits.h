// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

namespace tallyroll {

// Servers take less; what is larger is a mistake in choosing.
inline constexpr std::size_t kLargestAttachment = std::size_t{64} << 20;

}  // namespace tallyroll
