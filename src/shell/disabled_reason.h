// SPDX-License-Identifier: GPL-3.0-or-later
// Why a command cannot be given now, in words.
#pragma once

#include <string>
#include <string_view>

#include "shell/menu.h"

namespace tallyroll {

// Empty for an entry that can be had.
std::string DisabledReason(const Menu& menu, std::string_view name);

}  // namespace tallyroll
