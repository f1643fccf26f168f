// SPDX-License-Identifier: GPL-3.0-or-later
// frmsnapshots: the Snapshots Portal. It lists the class by the days of its saves, compares any of
// them with the class as it stands or with another, and takes back what is wanted of it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "companion/class_snapshots.h"
#include "platform/portal.h"
#include "store/records.h"

namespace tallyroll {

struct frmsnapshots : Portal {
  frmsnapshots();
  void Declare(ControlTable& table) override;
  void Load() override;

  Label found;
  Grid Grid1;  // a save a row, the newest first: day, time, what changed
  Label with_label;
  ComboBox with;  // what it is compared with; the first line is the class as it stands
  Label differs;
  Grid Grid2;       // the differences: student, grade, what, then, and in the other
  CheckBox agreed;  // a class with a password keeps its snapshots
  CommandButton openbeside, takeline, takestudent, takegrade, takeall, exit;

 private:
  const Snapshot* Chosen() const;
  const NamedChange* ChosenChange() const;
  void Fill();
  void ShowDays();
  void Compare();
  void ShowDifferences();
  void EnableButtons();
  void openbeside_Click();
  void takeline_Click();
  void takestudent_Click();
  void takegrade_Click();
  void takeall_Click();
  void Taken(const std::string& refused, const std::string& told);
  void agreed_Change();

  std::vector<Snapshot> snapshots_;  // the newest first
  std::optional<Class> then_;        // the one that is chosen
  std::vector<NamedChange> changes_;
};

}  // namespace tallyroll
