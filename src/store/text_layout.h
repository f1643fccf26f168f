// SPDX-License-Identifier: GPL-3.0-or-later
// The layouts of text files: one student a line, eleven fields at fixed positions or parted by a
// mark.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "store/records.h"

namespace tallyroll {

inline constexpr std::size_t kLargestTextFile = std::size_t{64} << 20;

// TextMode.
inline constexpr i16 kColumnsText = 40;  // fixed positions
inline constexpr i16 kSinglesText = 50;  // each field closed by '
inline constexpr i16 kDoublesText = 60;  // each field in double quotes, parted by commas
inline constexpr i16 kTabsText = 64;
inline constexpr i16 kCommasText = 70;
inline constexpr i16 kCsvText = 80;  // as spreadsheets write it

// A field of a line. The name stands in it as one text.
struct TextField {
  std::string_view name;  // for messages
  std::size_t position;   // of formatted columns, from 0
  std::size_t length;
  std::string Student::*field;  // null for the name
};

inline constexpr std::array<TextField, 11> kTextFields = {{
    {"ID", 0, 12, &Student::id},
    {"name", 13, 32, nullptr},
    {"address", 46, 50, &Student::address},
    {"city", 97, 15, &Student::city},
    {"state", 113, 2, &Student::state},
    {"zip code", 116, 10, &Student::zip},
    {"parent", 127, 30, &Student::parent},
    {"birth date", 158, 14, &Student::birth},
    {"home phone", 173, 14, &Student::phone},
    {"work phone", 188, 14, &Student::work},
    {"e-mail", 203, 40, &Student::email},
}};

// Behind the name stand the marks of formatted columns, five characters and a blank each.
inline constexpr std::size_t kMarksPosition = 46;
inline constexpr std::size_t kMarkLength = 5;
inline constexpr std::size_t kMarkStep = 6;

// What stands above ids and names in a file with titles of grades.
inline constexpr std::string_view kIdTitle = "ID";
inline constexpr std::string_view kNameTitle = "NAME";

// The mark between fields; 0 for formatted columns.
char SeparatorOf(i16 mode);

// A value as it can stand in a line of the layout: a mark of the layout as what comes nearest to
// it, and a control character, which no text file holds, as a blank.
std::string WrittenIn(i16 mode, std::string_view value);

// The fields of a line of a layout with a mark: at most `most` of them. What lies behind is left.
std::vector<std::string_view> CutFields(std::string_view line, i16 mode, std::size_t most);
// What stands at a place of a line of formatted columns, without the blanks that fill it up.
std::string_view CutColumn(std::string_view line, std::size_t position, std::size_t length);

}  // namespace tallyroll
