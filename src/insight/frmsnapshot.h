// SPDX-License-Identifier: GPL-3.0-or-later
// frmsnapshot: the Snapshot window, which stands beside a class and shows it as it was at a save.
// Nothing in it can be changed.
#pragma once

#include "platform/portal.h"
#include "store/records.h"

namespace tallyroll {

struct frmsnapshot : Portal {
  frmsnapshot();
  void Declare(ControlTable& table) override;
  void Load() override;  // ChosenSnapshot

  Label readonly;  // says so, and what the colour means
  Grid Grid1;      // name, ID, the marks; one that differs is in colour
  CommandButton exit;

 private:
  void Fill(const Class& then, const Class& other);
};

}  // namespace tallyroll
