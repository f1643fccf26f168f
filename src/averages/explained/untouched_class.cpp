// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/explained/untouched_class.h"

namespace tallyroll {

UntouchedClass::UntouchedClass(i16 student)
    : student_(student),
      before_(CurrentStudent),
      exact_(ExactAverage),
      type_weights_(Current().TypeWeights) {
  if (HasMarks()) final_ = Marks()[0];
  CurrentStudent = student;
}

UntouchedClass::~UntouchedClass() {
  CurrentStudent = before_;
  ExactAverage = exact_;
  Current().TypeWeights = type_weights_;
  if (HasMarks()) Marks()[0] = final_;
}

bool UntouchedClass::HasMarks() const {
  return student_ >= 1 && student_ <= UpperBound(Current().Students) && !Marks().empty();
}

List<ShortText>& UntouchedClass::Marks() const {
  return Current().Students[static_cast<std::size_t>(student_)].Marks;
}

}  // namespace tallyroll
