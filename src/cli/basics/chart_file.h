// SPDX-License-Identifier: GPL-3.0-or-later
// A chart as a file: .svg, .png or .pdf by its name.
#pragma once

#include <string>

#include "platform/chart.h"

namespace tallyroll {

// Answers why there is no file.
std::string WriteChartFile(const Chart& chart, const std::string& path);

}  // namespace tallyroll
