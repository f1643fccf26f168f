// SPDX-License-Identifier: GPL-3.0-or-later
// Grades from the lines of a text file in columns or with a mark between fields.
#pragma once

#include "store/grade_file.h"
#include "store/source_text.h"
#include "store/student_matcher.h"

namespace tallyroll {

void ReadGradeLines(const SourceText& source, i16 mode, StudentMatcher& matcher, GradeFile& file);

}  // namespace tallyroll
