// SPDX-License-Identifier: GPL-3.0-or-later
// The Portals of printing on a small class, worked as a teacher does.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/portal_driver.h"
#include "tests/printing/report_test.h"
#include "tests/support/noting_window.h"

namespace tallyroll {

class PrintPortalTest : public ReportTest {
 protected:
  PrintPortalTest() { SetClassWindow(&window); }
  ~PrintPortalTest() override {
    if (!driver) return;
    for (const std::string& complaint : driver->Complaints()) ADD_FAILURE() << complaint;
  }

  // Before the students, so that they get a mark for it.
  static void AddGrade(const std::string& title, const std::string& typecode,
                       const std::string& date = "9/1/2026") {
    Class& c = Current();
    ++c.NumInstruments;
    ReDimPreserve(c.Instruments, c.NumInstruments);
    Instrument& grade = c.Instruments.back();
    grade.title = title;
    grade.code = title.substr(0, 3);
    grade.typecode = typecode;
    grade.testdate = date;
    grade.mvalue = 100;
  }
  static void AddSummary(const std::string& title) {
    Class& c = Current();
    ++c.NumSummaries;
    ReDimPreserve(c.Summaries, c.NumSummaries);
    c.Summaries.back().title = title;
    c.Summaries.back().code = title.substr(0, 3);
  }
  static void AddDay(double date) {
    Class& c = Current();
    ++c.NumDays;
    ReDimPreserve(c.AttendanceDays, c.NumDays);
    c.AttendanceDays.back().date = date;
    for (Student& student : c.Students) ReDimPreserve(student.DailyMarks, c.NumDays);
  }

  void Open(Portal& portal) {
    portal.Load();
    driver.emplace(portal);
  }
  // The title is left as it is offered.
  void ExpectTitle() {
    screen.ExpectPortal("printmsg", [](PortalDriver& work) { work.Press("continue"); });
  }
  // The message beside is cancelled when events are let through for the nth time from now.
  void CancelAtPump(int n) {
    const int wanted = screen.pumped + n;
    screen.on_pump = [this, wanted] {
      screen.now += 1.0 / 86400;  // a second
      Portal* message = screen.PortalBeside("printmsg");
      if (screen.pumped < wanted || !message) return;
      PortalDriver(*message).Press("cancel");
    };
  }

  NotingWindow window;
  std::optional<PortalDriver> driver;
};

}  // namespace tallyroll
