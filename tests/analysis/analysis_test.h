// SPDX-License-Identifier: GPL-3.0-or-later
// One class in work with grades of 100 points, for what analyses them.
#pragma once

#include <string>
#include <vector>

#include "tests/averages/portals/portal_class.h"

namespace tallyroll {

class AnalysisTest : public AveragePortalTest {
 protected:
  // One grade with a mark a student.
  static Instrument& GradeWith(const std::vector<const char*>& marks, i16 mvalue = 100,
                               const char* lowpass = "") {
    Instrument& grade = AddGrade("Quiz 1", "Q ");
    grade.code = "Q1";
    grade.mvalue = mvalue;
    grade.lowpass = lowpass;
    for (std::size_t i = 0; i < marks.size(); ++i)
      Enrol("S" + PlainNumberText(static_cast<std::int64_t>(i) + 1), {marks[i]});
    return grade;
  }
  // Takes a slot with a class of its own, as an open window does, and puts it in work.
  static Class& OpenSlot(int slot, const std::string& path) {
    CurrentClass = static_cast<i16>(slot);
    Current().SlotState = 10;
    Current().FileName = path;
    SetDefaultLetterValues();
    return Current();
  }
};

}  // namespace tallyroll
