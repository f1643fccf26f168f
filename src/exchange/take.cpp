// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/take.h"

#include <cmath>

#include "base/date_serial.h"
#include "base/number_text.h"
#include "base/text.h"
#include "grades/grade_types.h"
#include "grades/marks.h"
#include "grades/method_reset.h"
#include "platform/surroundings.h"
#include "store/class_defaults.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr i16 kUsualMaximum = 100;
constexpr double kUsualPassPart = 0.65;

i16 ScoreOfText(const ShortText& text) {
  const std::optional<double> number = WholeNumberText(text);
  return number && *number >= 1 && *number <= 32767 ? static_cast<i16>(*number) : kUsualMaximum;
}

// As the Enter Grades Portal would make it.
Instrument NewGrade(const ForeignGrade& grade, const Change& change) {
  TypeCodes codes;
  MakeTypeCodes(codes);
  Instrument made;
  made.title = grade.title;
  made.mvalue = ScoreOfText(change.after);
  made.lowpass = PlainNumberText(std::floor(made.mvalue * kUsualPassPart + 0.5));
  made.dropyn = "N";
  made.typecode = codes[1].view();
  made.testdate = DateText(std::floor(Platform().Now()), Platform().ShortDateOrder());
  return made;
}

int AddInstrument(const Instrument& grade) {
  Class& c = Current();
  const bool type_in_use = TypeInUse(grade.typecode);
  const int n = ++c.NumInstruments;
  ReDimPreserve(c.Instruments, n);
  c.Instruments.back() = grade;
  for (int i = 1; i <= c.NumStudents; ++i)
    ReDimPreserve(c.Students[static_cast<std::size_t>(i)].Marks, n, ShortText(kNewMark));
  ReDimPreserve(c.Weights, n);
  ReDimPreserve(c.InstrumentUse, n, Currency::FromWhole(1));
  GradeAdded(type_in_use);
  return n;
}

bool AddGrades(ExchangePreview& preview, TakenChanges& taken) {
  for (const Change& change : preview.changes) {
    if (change.kind != ChangeKind::kNewGrade || !change.ticked) continue;
    if (Current().NumInstruments == kMostGrades) {
      taken.refusal = kNoMoreGrades;
      return false;
    }
    const auto g = static_cast<std::size_t>(change.grade);
    preview.grade_of[g] = AddInstrument(NewGrade(preview.table.grades[g], change));
    ++taken.grades;
  }
  return true;
}

void SetMark(const ExchangePreview& preview, const Change& change, TakenChanges& taken) {
  const int grade = preview.grade_of[static_cast<std::size_t>(change.grade)];
  auto& marks = Current().Students[static_cast<std::size_t>(change.student)].Marks;
  if (grade <= 0 || static_cast<std::size_t>(grade) >= marks.size()) return;
  marks[static_cast<std::size_t>(grade)] = change.after;
  ++taken.marks;
}

void SetMaximum(const ExchangePreview& preview, const Change& change, TakenChanges& taken) {
  const int grade = preview.grade_of[static_cast<std::size_t>(change.grade)];
  Current().Instruments[static_cast<std::size_t>(grade)].mvalue = ScoreOfText(change.after);
  ++taken.maximums;
}

}  // namespace

bool CanTick(const Change& change) {
  switch (change.kind) {
    case ChangeKind::kNewGrade:
    case ChangeKind::kNewMark:
    case ChangeKind::kChangedMark:
      return true;
    case ChangeKind::kMaximum:
      return change.reason.empty();
    default:
      return false;
  }
}

TakenChanges TakeTicked(ExchangePreview& preview) {
  TakenChanges taken;
  if (!AddGrades(preview, taken)) return taken;
  for (const Change& change : preview.changes) {
    if (!change.ticked || !CanTick(change)) continue;
    if (change.kind == ChangeKind::kMaximum)
      SetMaximum(preview, change, taken);
    else if (change.kind != ChangeKind::kNewGrade)
      SetMark(preview, change, taken);
  }
  if (taken.grades + taken.marks + taken.maximums > 0) Current().Changed = kTrue;
  return taken;
}

}  // namespace tallyroll
