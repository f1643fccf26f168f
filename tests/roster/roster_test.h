// SPDX-License-Identifier: GPL-3.0-or-later
// A roster Portal on a small class, worked as a teacher does.
#pragma once

#include <optional>
#include <string>

#include "platform/portal_driver.h"
#include "store/program_state.h"
#include "tests/support/enrol_student.h"
#include "tests/support/portal_test.h"

namespace tallyroll {

class RosterTest : public PortalTest {
 protected:
  ~RosterTest() override {
    if (!driver) return;
    for (const std::string& complaint : driver->Complaints()) ADD_FAILURE() << complaint;
  }

  static Student& Enrol(const std::string& lastname, const std::string& firstname,
                        const std::string& id) {
    return EnrolStudent(lastname, firstname, id);
  }

  void Open(Portal& portal) {
    portal.Load();
    driver.emplace(portal);
  }
  void TypeStudent(std::string_view lastname, std::string_view firstname, std::string_view id) {
    driver->Type("lastname", lastname);
    driver->Type("firstname", firstname);
    driver->Type("id", id);
  }

  std::optional<PortalDriver> driver;
};

inline const std::string kFillFullName =
    "You must fill in FULL name and ID.\nPress Tab for next field.";
inline const std::string kIdMustBeUnique =
    "Each student's ID must be unique. Enter a different ID code for this student.";

}  // namespace tallyroll
