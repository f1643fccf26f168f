// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/grade_tip.h"

#include "analysis/grade_figures.h"
#include "base/number_text.h"
#include "base/text.h"
#include "grades/grade_types.h"
#include "store/program_state.h"

namespace tallyroll {

std::string TypeNameOf(std::string_view typecode) {
  TypeCodes codes;
  TypeTexts names;
  MakeTypeCodes(codes);
  MakeTypeNames(names);
  const TypeSet types = TypesByCode(codes).Of(typecode);
  return types.empty() ? std::string() : std::string(Trim(names[*types.begin()]));
}

std::string TipOfGrade(int grade) {
  const Instrument& instrument = Current().Instruments[static_cast<std::size_t>(grade)];
  std::string tip;
  const auto add = [&tip](std::string_view line) {
    if (line.empty()) return;
    if (!tip.empty()) tip += '\n';
    tip += line;
  };
  add(Trim(instrument.title));
  add(TypeNameOf(instrument.typecode));
  add(Trim(instrument.testdate));
  add("Maximum " + PlainNumberText(instrument.mvalue));
  if (const auto figures = FiguresOfGrade(grade))
    add("Class average " + PlainNumberText(figures->average));
  return tip;
}

}  // namespace tallyroll
