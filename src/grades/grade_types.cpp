// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/grade_types.h"

#include "base/text.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

struct GradeType {
  std::string_view code;
  std::string_view name;
  std::string_view label;
};

// "Class Activitiy" is what teachers know; "HW" stands with a single blank in its label.
constexpr std::array<GradeType, kGradeTypes + 1> kDefaults = {{
    {"", "", ""},
    {"A ", "Averaged Grade", "A    -  Averaged Grade"},
    {"CA", "Class Activitiy", "CA  -  Class Activitiy"},
    {"CP", "Class Participation", "CP  -  Class Participation"},
    {"E ", "Essay/Composition", "E    -  Essay/Composition"},
    {"FE", "Final Exam", "FE  -  Final Exam"},
    {"HW", "Homework", "HW  - Homework"},
    {"L ", "Lab", "L    -  Lab"},
    {"ME", "Midterm Exam", "ME  -  Midterm Exam"},
    {"P ", "Project", "P    -  Project"},
    {"Q ", "Quiz", "Q    -  Quiz"},
    {"R ", "Report/Paper", "R    -  Report/Paper"},
    {"T ", "Test", "T    -  Test"},
    {"X ", "Extra Credit", "X    -  Extra Credit"},
    {"M1", "Miscellaneous", "M1  -  Miscellaneous"},
    {"M2", "Miscellaneous", "M2  -  Miscellaneous"},
    {"M3", "Miscellaneous", "M3  -  Miscellaneous"},
    {"S1", "Subject 1", "S1  -  Subject 1"},
    {"S2", "Subject 2", "S2  -  Subject 2"},
    {"S3", "Subject 3", "S3  -  Subject 3"},
    {"S4", "Subject 4", "S4  -  Subject 4"},
    {"S5", "Subject 5", "S5  -  Subject 5"},
    {"S6", "Subject 6", "S6  -  Subject 6"},
    {"S7", "Subject 7", "S7  -  Subject 7"},
    {"S8", "Subject 8", "S8  -  Subject 8"},
    {"S9", "Subject 9", "S9  -  Subject 9"},
    {"  ", "(None)", "       (None)      "},
}};

// The modification of a type, trimmed; empty when there is none. Resetting a type writes its
// default label, which is none either: the blank code of the no-type entry then stays blank.
std::string_view Modification(std::size_t type) {
  const std::string_view text = Trim(Current().Categories[type - kExtraCreditType]);
  return text == Trim(kDefaults[type].label) ? std::string_view() : text;
}

// The two characters behind the tilde; without a tilde, the first two.
std::string_view CodeIn(std::string_view modification) {
  const std::size_t tilde = modification.find('~');
  return modification.substr(tilde == std::string_view::npos ? 0 : tilde + 1, 2);
}

std::size_t Character(std::string_view code, std::size_t place) {
  return static_cast<unsigned char>(place < code.size() ? code[place] : ' ');
}

}  // namespace

std::string_view DefaultTypeLabel(std::size_t type) {
  return kDefaults[type].label;
}

void MakeTypeCodes(TypeCodes& codes) {
  for (std::size_t t = 1; t <= kGradeTypes; ++t) codes[t] = FixedText<2>(kDefaults[t].code);
  for (std::size_t t = kFirstModifiableType; t <= kGradeTypes; ++t) {
    const std::string_view modification = Modification(t);
    if (!modification.empty()) codes[t] = FixedText<2>(CodeIn(modification));
  }
}

void MakeTypeNames(TypeTexts& names) {
  for (std::size_t t = 1; t <= kGradeTypes; ++t) names[t] = kDefaults[t].name;
  for (std::size_t t = kFirstModifiableType; t <= kGradeTypes; ++t) {
    const std::string_view modification = Modification(t);
    const std::size_t tilde = modification.find('~');
    if (tilde != std::string_view::npos) names[t] = modification.substr(0, tilde);
  }
}

void MakeTypeLabels(TypeTexts& labels) {
  for (std::size_t t = 1; t <= kGradeTypes; ++t) labels[t] = kDefaults[t].label;
  for (std::size_t t = kFirstModifiableType; t <= kGradeTypes; ++t) {
    const std::string_view modification = Modification(t);
    const std::size_t tilde = modification.find('~');
    if (tilde == std::string_view::npos) continue;
    labels[t] =
        std::string(CodeIn(modification)) + "    -  " + std::string(modification.substr(0, tilde));
  }
}

TypesByCode::TypesByCode(const TypeCodes& codes) {
  for (std::size_t t = 1; t <= kGradeTypes; ++t) {
    const std::string_view code = Trim(codes[t]);
    first_[Character(code, 0)] |= std::uint32_t{1} << t;
    second_[Character(code, 1)] |= std::uint32_t{1} << t;
  }
}

TypeSet TypesByCode::Of(std::string_view typecode) const {
  const std::string_view code = Trim(typecode);
  if (code.size() > 2) return TypeSet();
  return TypeSet(first_[Character(code, 0)] & second_[Character(code, 1)]);
}

}  // namespace tallyroll
