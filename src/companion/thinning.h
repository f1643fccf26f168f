// SPDX-License-Identifier: GPL-3.0-or-later
// Which snapshots of a class are kept when new ones come.
#pragma once

#include <cstddef>
#include <vector>

namespace tallyroll {

// Days as day serials, of snapshots in the order in which they were made; answers the places of
// those to drop. All of today and yesterday stay. Before that stays the newest of a day for 12
// days, then the newest of a week for 10 weeks, which begin on Monday, then the newest of a month
// for 9 months; and always the last of each year.
std::vector<std::size_t> SnapshotsToDrop(const std::vector<double>& days, double today);

}  // namespace tallyroll
