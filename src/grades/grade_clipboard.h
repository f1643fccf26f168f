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

// The mark of a student of the current class.
struct MarkText {
  int student;
  std::string mark;
};

struct GradeText {
  GradeHeaderText header;
  std::vector<MarkText> marks;  // a line whose ID no student of the class has is passed over
};

bool HoldsHeader(std::string_view clipboard);
bool HoldsGrade(std::string_view clipboard);

std::string HeaderOnClipboard(const GradeHeaderText& header);
// Grade i of the current class with the marks of all students.
std::string GradeOnClipboard(int i);

// An ID may hold commas itself: a line belongs to the student whose whole ID it begins with, to the
// longest of several, and its mark is what stands behind. Of students with one ID the first takes
// it. Nothing when lines are missing, or longer than a class file can hold. Any of the usual line
// ends closes a line, for a clipboard may have passed through another program.
std::optional<GradeHeaderText> ReadHeader(std::string_view clipboard);
std::optional<GradeText> ReadGrade(std::string_view clipboard);

}  // namespace tallyroll
