// SPDX-License-Identifier: GPL-3.0-or-later
// A grade as text on the clipboard: its header alone ("7z"), or with the students' marks ("8z").
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyroll {

// One value a line, each line closed by a carriage return.
struct GradeHeaderText {
  std::string title, code, mvalue, lowpass, testdate, dropyn;
  std::string type;  // the label of its type in a header alone, its code in a whole grade
};

struct MarkText {
  std::string id, mark;
};

struct GradeText {
  GradeHeaderText header;
  std::vector<MarkText> marks;
};

bool HoldsHeader(std::string_view clipboard);
bool HoldsGrade(std::string_view clipboard);

std::string HeaderOnClipboard(const GradeHeaderText& header);
// Grade i of the current class with the marks of all students.
std::string GradeOnClipboard(int i);

// Nothing when lines are missing, or longer than a class file can hold. Any of the usual line ends
// closes a line, for a clipboard may have passed through another program.
std::optional<GradeHeaderText> ReadHeader(std::string_view clipboard);
std::optional<GradeText> ReadGrade(std::string_view clipboard);

}  // namespace tallyroll
