// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "averages/engine/average_state.h"
#include "grades/type_totals.h"

namespace tallyroll {

// While it lives, `student` is in work and may be averaged as often as wanted; then everything that
// an average leaves in the class and in the working values is as it was.
class UntouchedClass {
 public:
  explicit UntouchedClass(i16 student);
  ~UntouchedClass();
  UntouchedClass(const UntouchedClass&) = delete;
  UntouchedClass& operator=(const UntouchedClass&) = delete;

 private:
  bool HasMarks() const;
  List<ShortText>& Marks() const;

  i16 student_;
  i16 before_;
  Currency exact_;
  TypeSums type_weights_;
  ShortText final_;
};

// While it lives, a mark of a student is another one. The student must have that mark.
class OtherMark {
 public:
  OtherMark(i16 student, int grade, std::string_view mark)
      : place_(Current()
                   .Students[static_cast<std::size_t>(student)]
                   .Marks[static_cast<std::size_t>(grade)]),
        kept_(place_) {
    place_ = mark;
  }
  ~OtherMark() { place_.swap(kept_); }
  OtherMark(const OtherMark&) = delete;
  OtherMark& operator=(const OtherMark&) = delete;

  void Set(std::string_view mark) { place_ = mark; }

 private:
  ShortText& place_;
  ShortText kept_;
};

}  // namespace tallyroll
