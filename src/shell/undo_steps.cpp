// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/undo_steps.h"

#include <utility>

#include "store/derived_values.h"

namespace tallyroll {

void UndoSteps::Begin(const Class& c) {
  steps_.clear();
  at_ = 0;
  begun_ = MakeImage(c, image_);
  saved_ = c.Changed == kFalse ? 0 : kNever;
}

// A class that no file could hold ends the steps: they could not bring it back.
bool UndoSteps::Note(std::string_view name, const Class& c) {
  ClassImage now;
  if (!MakeImage(c, now)) {
    begun_ = false;
    return false;
  }
  if (now.IsSameWork(image_)) return false;
  if (saved_ != kNever && saved_ > at_) saved_ = kNever;
  steps_.resize(at_);
  Class before;
  PutImage(image_, before);
  steps_.push_back({NameOfStep(name, before, c), DifferenceOf(image_, now)});
  ++at_;
  image_ = std::move(now);
  return true;
}

std::string_view UndoSteps::ToUndo() const {
  return at_ > 0 ? std::string_view(steps_[at_ - 1].name) : std::string_view();
}

std::string_view UndoSteps::ToRedo() const {
  return at_ < steps_.size() ? std::string_view(steps_[at_].name) : std::string_view();
}

void UndoSteps::Show(Class& c) {
  PutImage(image_, c);
  MakeDerivedValues(c);
  c.Changed = at_ == saved_ ? kFalse : kTrue;
}

bool UndoSteps::Undo(Class& c) {
  if (at_ == 0) return false;
  tallyroll::Undo(steps_[--at_].change, image_);
  Show(c);
  return true;
}

bool UndoSteps::Redo(Class& c) {
  if (at_ == steps_.size()) return false;
  tallyroll::Redo(steps_[at_++].change, image_);
  Show(c);
  return true;
}

std::size_t UndoSteps::Size() const {
  std::size_t size = 0;
  for (const Step& step : steps_) size += sizeof(step) + step.name.capacity() + step.change.Size();
  return size;
}

}  // namespace tallyroll
