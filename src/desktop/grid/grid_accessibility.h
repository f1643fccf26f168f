// SPDX-License-Identifier: GPL-3.0-or-later
// What a screen reader learns of a grid: a table, and its cells when it asks for them.
#pragma once

namespace tallyroll {

void InstallGridAccessibility();

}  // namespace tallyroll
