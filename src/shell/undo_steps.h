// SPDX-License-Identifier: GPL-3.0-or-later
// What was done to a class since it was opened, step by step, and back.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/change/class_change.h"

namespace tallyroll {

class UndoSteps {
 public:
  bool HasBegun() const { return begun_; }
  // Takes the class as it stands; what was done before is not known.
  void Begin(const Class& c);
  // Adds a step when the class is another one than after the last step, undone steps then being
  // lost. Looking at averages and another order of the students make no step. True: it did.
  bool Note(std::string_view name, const Class& c);

  // The step that comes next in either direction; empty when there is none.
  std::string_view ToUndo() const;
  std::string_view ToRedo() const;
  // Put the class into its state before or after that step. What was changed behind the steps'
  // back is lost. False: there is no such step.
  bool Undo(Class& c);
  bool Redo(Class& c);

  // The class is on the disk as it stands; from here on Undo and Redo can tell whether it is again.
  void NoteSaved() { saved_ = at_; }

  // Bytes that all steps hold, about.
  std::size_t Size() const;

 private:
  struct Step {
    std::string name;
    ClassChange change;
  };
  void Show(Class& c);

  bool begun_ = false;
  ClassImage image_;  // the class after the step ahead of at_
  std::vector<Step> steps_;
  std::size_t at_ = 0;  // steps ahead of it are done, the others undone
  static constexpr std::size_t kNever = static_cast<std::size_t>(-1);
  std::size_t saved_ = kNever;
};

// What a step of this command is called, with what it was done to: "Enter Grades: Quiz 5".
std::string NameOfStep(std::string_view command, const Class& before, const Class& after);

}  // namespace tallyroll
