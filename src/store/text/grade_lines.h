// SPDX-License-Identifier: GPL-3.0-or-later
// Grades from the lines of a text file in columns or with a mark between fields.
#pragma once

#include "store/text/grade_file.h"
#include "store/text/source_text.h"
#include "store/text/student_matcher.h"

namespace tallyroll {

void ReadGradeLines(const SourceText& source, i16 mode, StudentMatcher& matcher, GradeFile& file);

}  // namespace tallyroll
