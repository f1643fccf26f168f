// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/engine/mark_sheet.h"

namespace tallyroll {
namespace {

TypeCodes CodesOfClass() {
  TypeCodes codes;
  MakeTypeCodes(codes);
  return codes;
}

const Student& StudentInWork() {
  const Class& c = Current();
  if (CurrentStudent < 1 || CurrentStudent > UpperBound(c.Students)) {
    throw RunTimeError{kErrorSubscript};
  }
  return c.Students[static_cast<std::size_t>(CurrentStudent)];
}

}  // namespace

MarkSheet::MarkSheet(Blanks blanks) : MarkSheet(blanks, CodesOfClass()) {}

MarkSheet::MarkSheet(Blanks blanks, const TypeCodes& codes)
    : class_(Current()),
      student_(StudentInWork()),
      blanks_(blanks),
      count_(GradeCount(class_)),
      types_(codes),
      extra_credit_(types_.Of(kExtraCreditCode)) {}

SheetRow MarkSheet::Row(int i) const {
  const Instrument& instrument = class_.Instruments[static_cast<std::size_t>(i)];
  const std::string_view text = MarkOf(student_, i);
  const std::string_view mark = blanks_ == Blanks::kTrimmed ? Trim(text) : TrimRight(text);
  return {instrument, mark, KindOfMark(mark), types_.Of(instrument.typecode)};
}

}  // namespace tallyroll
