// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/out_table.h"

#include <algorithm>
#include <cmath>

#include "base/date_serial.h"
#include "base/number_text.h"
#include "base/text.h"
#include "exchange/formats/foreign_mark.h"
#include "exchange/kept_ids.h"
#include "exchange/out_warnings.h"
#include "grades/grade_types.h"
#include "grades/marks.h"
#include "platform/long_work.h"
#include "platform/surroundings.h"
#include "store/program_state.h"
#include "store/settings.h"

namespace tallyroll {
namespace {

constexpr std::string_view kSignsSection = "Exchange";
constexpr std::array<std::string_view, 3> kSignNames = {"own", "nothing", "zero"};

std::string OutDate(double serial) {
  const CivilDate date = DateOfSerial(serial);
  const auto two = [](int n) { return (n < 10 ? "0" : "") + PlainNumberText(n); };
  return PadLeft(PlainNumberText(date.year), 4) + "-" + two(date.month) + "-" + two(date.day);
}

class OutTableMaker {
 public:
  OutTableMaker(ExchangeFormat format, const OutSigns& signs)
      : format_(RowOfFormat(format)), signs_(signs), kept_(KeptIdsOf(format)), comments_(format) {}

  // Cut short where the work was cancelled.
  ForeignTable Make(LongWork& work) {
    const Class& c = Current();
    table_.course = kept_.course;
    table_.section = Trim(c.description);
    table_.school = Trim(c.school);
    table_.today = OutDate(std::floor(Platform().Now()));
    MakeTypeNames(type_names_);
    TypeCodes codes;
    MakeTypeCodes(codes);
    const TypesByCode types(codes);
    for (int i = 1; i <= GradeCount(c); ++i)
      AddGrade(c.Instruments[static_cast<std::size_t>(i)], types);
    for (int i = 1; i <= c.NumStudents && work.Step(); ++i)
      AddStudent(c.Students[static_cast<std::size_t>(i)]);
    return std::move(table_);
  }

 private:
  void AddGrade(const Instrument& instrument, const TypesByCode& types) {
    ForeignGrade grade;
    grade.title = Trim(instrument.title);
    grade.maximum = Currency::FromWhole(instrument.mvalue);
    if (const auto key = kept_.key_of_grade.find(grade.title); key != kept_.key_of_grade.end())
      grade.key = key->second;
    for (const std::size_t type : types.Of(instrument.typecode))
      if (type != kNoType && grade.category.empty()) grade.category = Trim(type_names_[type]);
    if (const auto date = DateFromText(Trim(instrument.testdate), Platform().ShortDateOrder()))
      grade.date = OutDate(*date);
    table_.grades.push_back(std::move(grade));
  }

  void AddStudent(const Student& from) {
    ForeignStudent student;
    student.id = Trim(from.id);
    student.email = Trim(from.email);
    student.lastname = Trim(from.lastname);
    student.firstname = Trim(from.firstname);
    if (const auto key = kept_.key_of_student.find(student.id); key != kept_.key_of_student.end())
      student.key = key->second;
    const int place = static_cast<int>(table_.students.size());
    table_.students.push_back(std::move(student));
    for (int g = 0; g < static_cast<int>(table_.grades.size()); ++g) {
      const std::string_view mark = Trim(MarkOf(from, g + 1));
      std::string text = SignOf(mark);
      if (text.empty()) continue;
      const auto& to = table_.grades[static_cast<std::size_t>(g)];
      std::string comment = comments_.CommentOn(std::string(Trim(from.id)), to.title, mark);
      table_.marks.push_back({place, g, std::move(text), std::move(comment), 0, 0});
    }
  }

  std::string SignOf(std::string_view mark) const {
    const auto* const special = std::ranges::find(kOutMarks, mark);
    if (special == kOutMarks.end()) return std::string(mark);
    const auto which = static_cast<std::size_t>(special - kOutMarks.begin());
    switch (signs_.by_mark[which]) {
      case SignOut::kOwn:
        return std::string(mark == "EXC" ? format_.excused : "");
      case SignOut::kZero:
        return "0";
      default:
        return {};
    }
  }

  const ExchangeFormatRow& format_;
  const OutSigns& signs_;
  KeptIds kept_;
  KeptComments comments_;
  TypeTexts type_names_;
  ForeignTable table_;
};

}  // namespace

std::string_view SignOutName(SignOut sign) {
  return kSignNames[static_cast<std::size_t>(sign)];
}

std::string TakeSigns(std::string_view text, OutSigns& signs) {
  while (!text.empty()) {
    const std::string_view one = Trim(text.substr(0, text.find(',')));
    text.remove_prefix(std::min(text.size(), text.find(',') + (text.find(',') < text.size())));
    const std::size_t equals = std::min(one.find('='), one.size());
    const std::string mark = UpperCase(one.substr(0, equals));
    const std::string_view sign = one.substr(std::min(equals + 1, one.size()));
    const auto* const which = std::ranges::find(kOutMarks, mark);
    const auto* const name = std::ranges::find(kSignNames, sign);
    if (which == kOutMarks.end() || name == kSignNames.end())
      return "\"" + std::string(one) +
             "\" is none of ABS, EXC, CUT, NON and NEW with own, nothing or zero behind \"=\"";
    signs.by_mark[static_cast<std::size_t>(which - kOutMarks.begin())] =
        static_cast<SignOut>(name - kSignNames.begin());
  }
  return {};
}

std::string SignsText(const OutSigns& signs) {
  std::string text;
  for (std::size_t i = 0; i < kOutMarks.size(); ++i)
    text += (i > 0 ? "," : "") + std::string(kOutMarks[i]) + "=" +
            std::string(SignOutName(signs.by_mark[i]));
  return text;
}

OutSigns RememberedSigns(ExchangeFormat format) {
  OutSigns signs;
  const std::string kept =
      Platform().ReadSetting(kApplicationKey, kSignsSection, RowOfFormat(format).name, "");
  OutSigns read;
  if (TakeSigns(kept, read).empty()) signs = read;
  return signs;
}

void RememberSigns(ExchangeFormat format, const OutSigns& signs) {
  Platform().WriteSetting(kApplicationKey, kSignsSection, RowOfFormat(format).name,
                          SignsText(signs));
}

OutTable MakeOutTable(ExchangeFormat format, const OutSigns& signs) {
  OutTable out;
  if (Current().NumStudents == 0) out.refusal = "has no students";
  if (out.refusal.empty() && Current().NumInstruments == 0) out.refusal = "has no grades";
  if (!out.refusal.empty()) return out;
  LongWork work("Looking through the class", Current().NumStudents);
  out.table = OutTableMaker(format, signs).Make(work);
  if (work.Cancelled()) {
    out.table = {};
    out.refusal = "was not looked through to its end";
    return out;
  }
  out.warnings = WarningsOf(format, out.table);
  return out;
}

ForeignFile OutFile(ExchangeFormat format, const OutTable& out) {
  ForeignTable table = out.table;
  Mend(format, out.warnings, table);
  return WriteForeign(format, table);
}

}  // namespace tallyroll
