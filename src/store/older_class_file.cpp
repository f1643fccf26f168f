// SPDX-License-Identifier: GPL-3.0-or-later
// Old records are read field by field: they stand in another order than the records they become.
#include "store/older_class_file.h"

#include "base/run_time_error.h"
#include "base/text.h"
#include "platform/surroundings.h"
#include "store/class_defaults.h"
#include "store/fields.h"
#include "store/read_records.h"
#include "store/record_bytes.h"

namespace tallyroll {
namespace {

constexpr std::size_t kLeastOldStudent = 194;
constexpr std::size_t kLeastOldInstrument = 96;
constexpr std::size_t kLeastOlderDay = 11;
constexpr std::size_t kLeastOldSummary = 79;

std::string TakeTrimmed(FieldReader& in, std::size_t length) {
  return std::string(Trim(in.Take(length)));
}

template <std::size_t N>
void TakeMarks(FieldReader& in, List<ShortText>& marks) {
  List<FixedText<N>> fixed;
  in.Read(fixed);
  marks.clear();
  marks.reserve(fixed.size());
  for (const FixedText<N>& mark : fixed) marks.emplace_back(Trim(mark));
}

class OldReader {
 public:
  explicit OldReader(std::string_view bytes) : in_(bytes) {}
  FieldReader& in() { return in_; }

  void ReadHeader(Class& c) {
    in_.Read(c.Magic);
    is_ty7_ = c.Magic == "ty7";
    if (!is_ty7_ && c.Magic != "ty5") throw RunTimeError{kErrorDevice};
    c.Password = TakeTrimmed(in_, 10);
    for (i16* count :
         {&c.NumStudents, &c.NumInstruments, &c.NumDays, &c.NumSummaries, &c.NumCharts}) {
      in_.Read(*count);
    }
    in_.Read(c.ChartRows);
    in_.Read(c.ChartColumns);
    in_.Read(c.PasswordSet);
    c.teacher = TakeTrimmed(in_, 20);
    c.termstart = TakeTrimmed(in_, 15);
    c.termend = TakeTrimmed(in_, 15);
    c.timed = TakeTrimmed(in_, 15);
    c.description = TakeTrimmed(in_, 30);
    c.room = TakeTrimmed(in_, 6);
    in_.Read(c.PercentsText);
    if (is_ty7_) in_.Read(c.Reserved8);
    if (is_ty7_) in_.Read(c.AverageSettings);
    if (FaultOfCounts(c) != 0) throw RunTimeError{kErrorDevice};
  }

  // The students come first, unlike in the current format.
  void ReadLists(Class& c) {
    ReadRecords(in_, c.Students, c.NumStudents, kLeastOldStudent,
                [&](Student& s) { ReadStudent(s); });
    ReadRecords(in_, c.Instruments, c.NumInstruments, kLeastOldInstrument,
                [&](Instrument& i) { ReadInstrument(i); });
    ReadRecords(in_, c.AttendanceDays, c.NumDays, kLeastOlderDay,
                [&](AttendanceDay& day) { ReadDay(day); });
    ReadRecords(in_, c.Summaries, c.NumSummaries, kLeastOldSummary,
                [&](AttendanceSummary& s) { ReadSummary(s); });
  }

 private:
  void ReadStudent(Student& s) {
    s.lastname = TakeTrimmed(in_, 12);
    s.firstname = TakeTrimmed(in_, 10);
    s.id = TakeTrimmed(in_, 9);
    s.parent = TakeTrimmed(in_, 30);
    s.phone = TakeTrimmed(in_, 14);
    s.work = TakeTrimmed(in_, 14);
    s.address = TakeTrimmed(in_, 50);
    s.city = TakeTrimmed(in_, 15);
    s.state = TakeTrimmed(in_, 2);
    s.zip = TakeTrimmed(in_, 10);
    s.birth = TakeTrimmed(in_, 14);
    is_ty7_ ? TakeMarks<5>(in_, s.Marks) : TakeMarks<3>(in_, s.Marks);
    in_.Read(s.DailyMarks);
    in_.Read(s.SummaryAbsent);
    if (!s.SummaryAbsent.empty()) GiveMissingSummaryLists(s);
    in_.Read(s.SeatRow);
    in_.Read(s.SeatColumn);
    in_.Read(s.comments);
    in_.Read(s.email);
    if (is_ty7_) in_.TakeText();
    if (is_ty7_) in_.TakeText();
  }

  // The old formats count absences alone. Sized by what the file holds, not by what it claims.
  static void GiveMissingSummaryLists(Student& s) {
    ReDim(s.SummaryDetail, UpperBound(s.SummaryAbsent), ShortText(kNewSummaryDetail));
    ReDim(s.SummaryLate, UpperBound(s.SummaryAbsent), ShortText(kNewSummaryCount));
  }

  void ReadInstrument(Instrument& i) {
    i.title = TakeTrimmed(in_, 50);
    i.code = TakeTrimmed(in_, 5);
    in_.Read(i.weight);
    in_.Read(i.mvalue);
    i.dropyn = TakeTrimmed(in_, 1);
    i.testdate = TakeTrimmed(in_, 10);
    i.lowpass = TakeTrimmed(in_, 4);
    in_.TakeText();
    i.typecode = TakeTrimmed(in_, 2);
    in_.Take(2);
    in_.Take(8);
    in_.TakeText();
  }

  void ReadDay(AttendanceDay& day) { ForEachField(day, in_); }

  void ReadSummary(AttendanceSummary& s) {
    s.title = TakeTrimmed(in_, 50);
    s.code = TakeTrimmed(in_, 5);
    in_.Read(s.kind);
    in_.Read(s.rangenumber);
    s.startdate = TakeTrimmed(in_, 10);
    s.enddate = TakeTrimmed(in_, 10);
  }

  FieldReader in_;
  bool is_ty7_ = false;
};

Class FreshClassFor(const Class& slot) {
  Class fresh;
  ResetRecord(fresh);
  SetDefaultLetterValues(fresh);
  SetDefaultRoundScale(fresh);
  fresh.FileName = slot.FileName;
  fresh.SlotState = slot.SlotState;
  return fresh;
}

}  // namespace

ParseOutcome ParseOldClass(std::string_view bytes, Class& out) {
  out = FreshClassFor(out);
  OldReader reader(bytes);
  ParseOutcome outcome;
  try {
    reader.ReadHeader(out);
    reader.ReadLists(out);
  } catch (const RunTimeError& fault) {
    outcome.error = fault.number;
  }
  FitCounts(out);
  outcome.consumed = reader.in().consumed();
  return outcome;
}

void ShowConversionNotice() {
  ShowMessage(
      "This file is being CONVERTED to the new Tallyroll format. When you save, the file will be "
      "written in the new format, which CAN NOT be read by versions of Tallyroll prior to version "
      "8. (Upon saving of the converted file, a backup of the pre-converted file will be saved "
      "with the extension of '.OLD'.)",
      BoxIcon::kInformation);
}

}  // namespace tallyroll
