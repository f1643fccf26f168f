// SPDX-License-Identifier: GPL-3.0-or-later
// The records of the current format, in the order of the file.
#include "store/class_format.h"

#include "base/run_time_error.h"
#include "store/fields.h"
#include "store/read_records.h"
#include "store/record_bytes.h"

namespace tallyroll {
namespace {

// What the shortest record of each kind takes: every text empty, every list never dimensioned.
constexpr std::size_t kLeastInstrument = 34;
constexpr std::size_t kLeastDay = 11;
constexpr std::size_t kLeastSummary = 12;
constexpr std::size_t kLeastStudent = 96;

template <typename Record>
void WriteRecords(FieldWriter& write, const List<Record>& list, i16 count) {
  if (count > UpperBound(list)) throw RunTimeError{kErrorOverflow};
  for (int i = 1; i <= count; ++i) ForEachField(list[static_cast<std::size_t>(i)], write);
}

// A buffer of about the final size saves the copies that a growing one makes.
std::size_t ProbableSize(const Class& c) {
  const std::size_t per_student = 400 + 6 * c.Instruments.size() + c.AttendanceDays.size();
  return 2000 + 120 * c.Instruments.size() + 11 * c.AttendanceDays.size() +
         per_student * c.Students.size();
}

}  // namespace

ParseOutcome ParseHeader(std::string_view bytes, Class& out) {
  FieldReader read(bytes);
  ParseOutcome outcome;
  out.NumStudents = out.NumInstruments = out.NumDays = out.NumSummaries = out.NumCharts = 0;
  out.ChartRows.clear();
  out.ChartColumns.clear();
  try {
    ForEachField(out, read);
    if (out.Magic != "ty8") outcome.error = kErrorDevice;
  } catch (const RunTimeError& fault) {
    outcome.error = fault.number;
  }
  if (outcome.error == 0) outcome.error = FaultOfCounts(out);
  outcome.consumed = read.consumed();
  return outcome;
}

ParseOutcome ParseRecords(std::string_view bytes, std::size_t from, Class& out) {
  FieldReader read(bytes);
  ParseOutcome outcome;
  const auto read_one = [&read](auto& record) { ForEachField(record, read); };
  try {
    read.Take(from);
    ReadRecords(read, out.Instruments, out.NumInstruments, kLeastInstrument, read_one);
    ReadRecords(read, out.AttendanceDays, out.NumDays, kLeastDay, read_one);
    ReadRecords(read, out.Summaries, out.NumSummaries, kLeastSummary, read_one);
    ReadRecords(read, out.Students, out.NumStudents, kLeastStudent, read_one);
  } catch (const RunTimeError& fault) {
    outcome.error = fault.number;
  }
  FitCounts(out);
  outcome.consumed = read.consumed();
  return outcome;
}

ParseOutcome ParseClass(std::string_view bytes, Class& out) {
  ClearRecords(out);
  const ParseOutcome header = ParseHeader(bytes, out);
  if (header.error == 0) return ParseRecords(bytes, header.consumed, out);
  FitCounts(out);
  return header;
}

int SerializeClass(const Class& c, std::string& bytes) {
  FieldWriter write(bytes, ProbableSize(c));
  try {
    ForEachField(c, write);
    WriteRecords(write, c.Instruments, c.NumInstruments);
    WriteRecords(write, c.AttendanceDays, c.NumDays);
    WriteRecords(write, c.Summaries, c.NumSummaries);
    WriteRecords(write, c.Students, c.NumStudents);
    write.Finish();
  } catch (const RunTimeError& fault) {
    bytes.clear();
    return fault.number;
  }
  return 0;
}

}  // namespace tallyroll
