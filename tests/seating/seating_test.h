// SPDX-License-Identifier: GPL-3.0-or-later
// A class with students who can be seated.
#pragma once

#include <string>
#include <vector>

#include "seating/chart_records.h"
#include "store/check_class.h"
#include "store/class_defaults.h"
#include "tests/support/enrol_student.h"
#include "tests/support/portal_test.h"

namespace tallyroll {

class SeatingTest : public PortalTest {
 protected:
  SeatingTest() {
    CurrentClass = 1;
    ResetClassSlot();
    Current().Magic = "ty8";
  }

  // Students "Aa, X" to "Zz, X" with IDs from 1 on.
  void Enrol(int count) {
    for (int i = 0; i < count; ++i) {
      const char letter = static_cast<char>('A' + i % 26);
      const char second = static_cast<char>('a' + i / 26);
      EnrolStudent({letter, second}, "X", std::to_string(i + 1));
    }
  }
  static Student& At(int i) { return Current().Students[static_cast<std::size_t>(i)]; }

  // The cards of a column, from the board to the back.
  static std::vector<std::string> Column(const SeatPlan& plan, int column) {
    std::vector<std::string> cards;
    for (int row = 0; row < plan.rows; ++row) cards.push_back(plan.At({row, column}));
    return cards;
  }
  static void ExpectSound() { EXPECT_EQ(BrokenInvariants(Current()), std::vector<std::string>{}); }
};

using Cards = std::vector<std::string>;

}  // namespace tallyroll
