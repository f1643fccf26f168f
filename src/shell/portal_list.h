// SPDX-License-Identifier: GPL-3.0-or-later
// The one list of every Portal by name.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "platform/portal.h"

namespace tallyroll {

const std::vector<std::string_view>& PortalNames();

// A new Portal of that name; null when there is none.
std::unique_ptr<Portal> MakePortalByName(std::string_view name);

}  // namespace tallyroll
