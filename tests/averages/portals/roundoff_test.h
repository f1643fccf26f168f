// SPDX-License-Identifier: GPL-3.0-or-later
// The Rounding Modification Portal over a class of one student.
#pragma once

#include <string>

#include "averages/portals/frmroundoff.h"
#include "averages/rounding.h"
#include "base/text.h"
#include "tests/averages/portals/portal_class.h"

namespace tallyroll {

inline constexpr int kMin = 2;
inline const std::string kLoseChange =
    "You've changed current Rounding Value(s). If you load a Rounding Value, you'll lose that "
    "change. Continue?";
inline const std::string kSaveValues =
    "You've entered current Rounding Value(s). Do you wish to save those values? ";
inline const std::string kAllFull =
    "All Rounding Values Save options currently contain Data. Select one to overwrite with the "
    "newly entered data.";

class FrmRoundOffTest : public AveragePortalTest {
 protected:
  FrmRoundOffTest() {
    Current().Method = 0;
    Current().RoundMode = 0;
    Enrol("Ng", {});
  }
  static void FillScale(std::size_t scale, float each) { Current().RoundTable[scale].fill(each); }
  void TypeMinimum(int row, std::string_view text) { TypeCell("grdgrade", row, kMin, text); }
  std::string_view Minimum(int row) const { return portal.grdgrade.TextMatrix(row, kMin); }
  std::string GradeOf(const char* average) {
    CurrentStudent = 1;
    ExactAverage = Money(average);
    FinalGrade grade;
    EXPECT_FALSE(RoundedGrade(grade));
    return std::string(TrimRight(grade.Text()));
  }

  frmroundoff portal;
};

}  // namespace tallyroll
