// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/surroundings.h"
#include "store/text_layout.h"

namespace tallyroll {

// What --layout takes.
inline const std::map<std::string, i16> kTextLayouts = {
    {"columns", kColumnsText}, {"single", kSinglesText}, {"double", kDoublesText},
    {"tabs", kTabsText},       {"comma", kCommasText},   {"csv", kCsvText}};

// What --encoding takes.
inline const std::map<std::string, TextEncoding> kEncodings = {
    {"utf-8", TextEncoding::kUtf8}, {"windows-1252", TextEncoding::kWindows1252}};

// The names in such a list, for an option to be checked against.
template <typename Values>
std::vector<std::string> NamesOf(const Values& values) {
  std::vector<std::string> names;
  names.reserve(values.size());
  for (const auto& [name, value] : values) names.push_back(name);
  return names;
}

}  // namespace tallyroll
