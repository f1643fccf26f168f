// SPDX-License-Identifier: GPL-3.0-or-later
// A small class for the Portals that make averages.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/number_text.h"
#include "platform/portal_driver.h"
#include "store/class_defaults.h"
#include "store/program_state.h"
#include "tests/support/noting_window.h"
#include "tests/support/portal_test.h"

namespace tallyroll {

class AveragePortalTest : public PortalTest {
 protected:
  AveragePortalTest() {
    SetClassWindow(&window);
    SetDefaultLetterValues();
    SetDefaultRoundScale();
    DefaultMethod = 0;
  }
  ~AveragePortalTest() override {
    if (!driver) return;
    for (const std::string& complaint : driver->Complaints()) ADD_FAILURE() << complaint;
  }

  // Adds a grade of 100 points at the end of the class.
  static Instrument& AddGrade(const std::string& title, const std::string& typecode,
                              const std::string& dropyn = "N") {
    Class& c = Current();
    ++c.NumInstruments;
    ReDimPreserve(c.Instruments, c.NumInstruments);
    Instrument& grade = c.Instruments.back();
    grade.title = title;
    grade.code = title.substr(0, 3);
    grade.typecode = typecode;
    grade.mvalue = 100;
    grade.dropyn = dropyn;
    return grade;
  }
  // Adds a student with these marks.
  static Student& Enrol(const std::string& lastname, const std::vector<const char*>& marks) {
    Class& c = Current();
    ++c.NumStudents;
    ReDimPreserve(c.Students, c.NumStudents);
    Student& student = c.Students.back();
    student.lastname = lastname;
    student.firstname = "Ada";
    student.id = PlainNumberText(100 + c.NumStudents);
    ReDim(student.Marks, static_cast<int>(marks.size()));
    for (std::size_t i = 1; i <= marks.size(); ++i) student.Marks[i] = marks[i - 1];
    return student;
  }
  static Currency Money(const char* text) { return LeadingCurrency(text); }

  void Open(Portal& portal) {
    portal.Load();
    driver.emplace(portal);
  }
  // Types a cell of the column that takes keys, as the only key work of the grid.
  void TypeCell(std::string_view grid, int row, int col, std::string_view text) {
    driver->PickCell(grid, row, col);
    driver->TypeKeys(grid, text);
  }
  static std::vector<std::string> Column(const Grid& grid, int col) {
    std::vector<std::string> cells;
    for (int row = grid.FixedRows; row < grid.Rows(); ++row)
      cells.emplace_back(grid.TextMatrix(row, col));
    return cells;
  }
  static std::vector<std::string> Headings(const Grid& grid) {
    std::vector<std::string> cells;
    for (int col = 0; col < grid.Cols(); ++col) cells.emplace_back(grid.TextMatrix(0, col));
    return cells;
  }

  NotingWindow window;
  std::optional<PortalDriver> driver;
};

using Texts = std::vector<std::string>;

inline const std::string kWrongClipboard =
    "There are no appropriate fields to be found on the clipboard. The data on the clipboard may "
    "not be the right type for inserting in the current module.  You need to go back to a "
    "compatible module, then copy the information to the clipboard and try again.";
inline const std::string kMustBeHundred = "The weights, excluding 'Extra Credit', must equal 100";
inline const std::string kSaveWeights = "Do you want to save these weights?";
inline const std::string kNoneToDrop =
    "You haven't specified any grades which could be 'dropped' when making up the final average. "
    "This may be done at the 'Edit Grades by Title' Portal.";
inline const std::string kNoTypeChosen =
    "You chose to drop lowest grade by type but you didn't specify any type(s). Either place a Y "
    "next to the chosen type(s) or uncheck the 'Drop Lowest by Type' box.";

}  // namespace tallyroll
