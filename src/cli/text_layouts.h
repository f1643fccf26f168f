// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>

#include "store/text_layout.h"

namespace tallyroll {

// What --layout takes.
inline const std::map<std::string, i16> kTextLayouts = {
    {"columns", kColumnsText}, {"single", kSinglesText}, {"double", kDoublesText},
    {"tabs", kTabsText},       {"comma", kCommasText},   {"csv", kCsvText}};

}  // namespace tallyroll
