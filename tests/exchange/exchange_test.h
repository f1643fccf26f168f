// SPDX-License-Identifier: GPL-3.0-or-later
// A small class and what other systems' files do to it.
#pragma once

#include "exchange/preview.h"
#include "exchange/take.h"
#include "store/class_defaults.h"
#include "store/program_state.h"
#include "tests/support/enrol_student.h"
#include "tests/support/portal_test.h"

namespace tallyroll {

class ExchangeTest : public PortalTest {
 protected:
  // Abel (7, abel@x.org) has 18 and NEW, Zoé Muñoz (8) has ABS and B+; "Essay" of 20, "Test" of
  // 100.
  ExchangeTest() {
    CurrentClass = 1;
    StartNewClass();
    Class& c = Current();
    c.description = "Algebra";
    AddGrade("Essay", 20);
    AddGrade("Test", 100);
    Enrol("Abel", "Bo", "7", {"18", "NEW"}).email = "abel@x.org";
    Enrol("Mu\xF1oz", "Zo\xE9", "8", {"ABS", "B+"});
  }

  static void AddGrade(const std::string& title, i16 maximum) {
    Class& c = Current();
    ReDimPreserve(c.Instruments, ++c.NumInstruments);
    c.Instruments.back().title = title;
    c.Instruments.back().mvalue = maximum;
  }

  static Student& Enrol(const std::string& lastname, const std::string& firstname,
                        const std::string& id, const std::vector<std::string>& marks) {
    Student& student = EnrolStudent(lastname, firstname, id);
    ReDim(student.Marks, static_cast<int>(marks.size()));
    for (std::size_t i = 0; i < marks.size(); ++i) student.Marks[i + 1] = marks[i];
    return student;
  }

  static std::string MarkAt(int student, int grade) {
    return Current()
        .Students[static_cast<std::size_t>(student)]
        .Marks[static_cast<std::size_t>(grade)]
        .str();
  }

  // A line each: "C3 changed mark Abel, Bo Essay 18>17 [reason]", with "+" before what is ticked.
  static std::vector<std::string> Lines(const ExchangePreview& preview) {
    std::vector<std::string> lines;
    for (const Change& change : preview.changes) {
      std::string line = change.ticked ? "+" : "";
      line += CellName(change.line, change.column) + " " + std::string(ChangeKindText(change.kind));
      for (const std::string& text :
           {StudentNameOf(preview, change), GradeTitleOf(preview, change)})
        if (!text.empty()) line += " | " + text;
      if (!change.before.empty() || !change.after.empty())
        line += " | " + change.before.str() + ">" + change.after.str();
      if (!change.reason.empty()) line += " [" + change.reason + "]";
      lines.push_back(line);
    }
    return lines;
  }
  using Strings = std::vector<std::string>;
};

}  // namespace tallyroll
