// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/explained/explained_page.h"

#include "averages/explained/explained_words.h"
#include "base/number_text.h"
#include "base/text.h"
#include "grades/marks.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

using StepsOfGrades = std::vector<std::vector<const AverageStep*>>;

StepsOfGrades StepsByGrade(const ExplainedAverage& explained) {
  StepsOfGrades steps(static_cast<std::size_t>(GradeCount(Current())) + 1);
  for (const AverageStep& step : explained.steps)
    if (step.grade > 0) steps[static_cast<std::size_t>(step.grade)].push_back(&step);
  return steps;
}

// The figures of a row are those of the step in which the mark was taken.
bool TakesMark(StepRule rule) {
  return rule == StepRule::kCounted || rule == StepRule::kZero || rule == StepRule::kExtraMark;
}

bool HasPercents() {
  return Current().Method != 2 && Current().Method != 3;
}
bool WeighsGrades() {
  return HasPercents() && Current().Method != 1;
}

void FillFigures(ExplainedRow& row, const AverageStep& step) {
  row.most = PlainNumberText(step.most);
  if (HasPercents()) row.percent = PlainNumberText(step.percent);
  if (WeighsGrades()) row.weight = PlainNumberText(step.weight);
  row.counts = PlainNumberText(WeighsGrades() ? step.part : step.value);
}

ExplainedRow RowOf(const Student& student, int grade,
                   const std::vector<const AverageStep*>& steps) {
  const Instrument& instrument = Current().Instruments[static_cast<std::size_t>(grade)];
  ExplainedRow row;
  row.grade = grade;
  row.title = Trim(instrument.title);
  row.mark = Trim(MarkOf(student, grade));
  row.most = PlainNumberText(instrument.mvalue);
  for (const AverageStep* step : steps) {
    if (TakesMark(step->rule)) FillFigures(row, *step);
    const std::string note = NoteOfStep(*step);
    if (note.empty()) continue;
    row.note = row.note.empty() || step->rule == StepRule::kDropped ? note : row.note + "; " + note;
  }
  const bool unread = row.note.empty() && !IsGrade(row.mark) && !steps.empty();
  if (unread) row.note = "read as " + PlainNumberText(steps.front()->value);
  return row;
}

void FillGrades(ExplainedPage& page, const ExplainedAverage& explained) {
  const Student& student = Current().Students[static_cast<std::size_t>(explained.student)];
  const StepsOfGrades steps = StepsByGrade(explained);
  TypeCodes codes;
  TypeTexts names;
  MakeTypeCodes(codes);
  MakeTypeNames(names);
  const TypesByCode by_code(codes);
  for (std::size_t t = 1; t <= kGradeTypes + 1; ++t) {
    bool headed = false;
    for (int i = 1; i <= GradeCount(Current()); ++i) {
      const auto index = static_cast<std::size_t>(i);
      const TypeSet types = by_code.Of(Current().Instruments[index].typecode);
      if ((types.empty() ? kGradeTypes + 1 : *types.begin()) != t) continue;
      if (!headed) {
        page.grades.emplace_back();
        page.grades.back().title = t > kGradeTypes ? "(unknown type)" : std::string(Trim(names[t]));
        headed = true;
      }
      page.grades.push_back(RowOf(student, i, steps[index]));
    }
  }
}

void FillTypes(ExplainedPage& page, const ExplainedAverage& explained) {
  if (Current().Method != 1 && Current().Method != 3) return;
  TypeTexts names;
  MakeTypeNames(names);
  for (const AverageStep& step : explained.steps) {
    const bool empty = step.rule == StepRule::kTypeEmpty;
    if (step.rule != StepRule::kTypeWeighed && step.rule != StepRule::kTypeExtra && !empty)
      continue;
    ExplainedType type;
    type.name = Trim(names[step.type]);
    type.grades = PlainNumberText(explained.result.totals.counts[step.type]);
    type.weight = PlainNumberText(step.weight);
    if (!empty) {
      type.earned = PlainNumberText(step.value);
      type.most = PlainNumberText(step.most);
      type.counts = PlainNumberText(step.part);
    }
    page.types.push_back(std::move(type));
  }
}

}  // namespace

ExplainedPage PageOf(const ExplainedAverage& explained) {
  ExplainedPage page;
  const Class& c = Current();
  if (explained.student >= 1 && explained.student <= UpperBound(c.Students))
    page.student = PlainName(c.Students[static_cast<std::size_t>(explained.student)]);
  if (explained.error) {
    page.sum.push_back(AverageErrorText(explained.error));
    return page;
  }
  FillGrades(page, explained);
  FillTypes(page, explained);
  page.sum = SumInWords(explained);
  page.rounding = RoundingInWords(explained);
  page.average = PlainNumberText(explained.result.exact);
  page.final_grade = Trim(explained.result.grade.Text());
  return page;
}

}  // namespace tallyroll
