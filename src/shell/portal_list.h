// SPDX-License-Identifier: GPL-3.0-or-later
// The one list of every Portal by name.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "platform/portal.h"

namespace tallyroll {

// Every Portal that can be opened.
const std::vector<std::string_view>& PortalNames();
// Portals that menus already name and that are not built yet.
const std::vector<std::string_view>& MissingPortals();

// A new Portal of that name; null when it is not built.
std::unique_ptr<Portal> MakePortalByName(std::string_view name);

}  // namespace tallyroll
