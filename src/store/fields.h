// SPDX-License-Identifier: GPL-3.0-or-later
// Each record's fields by name, in the order of the class file.
// The one table behind the reader, the writer, the JSON forms and the comparison of records.
#pragma once

#include "store/records.h"

namespace tallyroll {

// Calls visit("title", record.title) for every field, in file order. The record may be const.
template <typename Record, typename Visitor>
void ForEachInstrumentField(Record& r, Visitor&& visit) {
  visit("title", r.title);
  visit("code", r.code);
  visit("weight", r.weight);
  visit("mvalue", r.mvalue);
  visit("dropyn", r.dropyn);
  visit("testdate", r.testdate);
  visit("lowpass", r.lowpass);
  visit("Reserved32", r.Reserved32);
  visit("typecode", r.typecode);
  visit("Reserved40", r.Reserved40);
  visit("countflag", r.countflag);
  visit("Reserved48", r.Reserved48);
  visit("ReservedList", r.ReservedList);
  visit("ReservedText", r.ReservedText);
}

template <typename Record, typename Visitor>
void ForEachDayField(Record& r, Visitor&& visit) {
  visit("date", r.date);
  visit("dayflag", r.dayflag);
  visit("daynote", r.daynote);
}

template <typename Record, typename Visitor>
void ForEachSummaryField(Record& r, Visitor&& visit) {
  visit("title", r.title);
  visit("code", r.code);
  visit("kind", r.kind);
  visit("rangenumber", r.rangenumber);
  visit("startdate", r.startdate);
  visit("enddate", r.enddate);
}

template <typename Record, typename Visitor>
void ForEachStudentField(Record& r, Visitor&& visit) {
  visit("SeatRow", r.SeatRow);
  visit("SeatColumn", r.SeatColumn);
  visit("city", r.city);
  visit("state", r.state);
  visit("zip", r.zip);
  visit("SummaryAbsent", r.SummaryAbsent);
  visit("firstname", r.firstname);
  visit("SummaryDetail", r.SummaryDetail);
  visit("Marks", r.Marks);
  visit("work", r.work);
  visit("lastname", r.lastname);
  visit("id", r.id);
  visit("parent", r.parent);
  visit("phone", r.phone);
  visit("SummaryLate", r.SummaryLate);
  visit("address", r.address);
  visit("birth", r.birth);
  visit("DailyMarks", r.DailyMarks);
  visit("comments", r.comments);
  visit("email", r.email);
  visit("ReservedList", r.ReservedList);
  visit("ReservedText", r.ReservedText);
  visit("ReservedFields", r.ReservedFields);
}

template <typename Record, typename Visitor>
void ForEachHeaderField(Record& r, Visitor&& visit) {
  visit("Magic", r.Magic);
  visit("LetterValues", r.LetterValues);
  visit("RoundTable", r.RoundTable);
  visit("RoundScale", r.RoundScale);
  visit("FinalGradeForm", r.FinalGradeForm);
  visit("Reserved428", r.Reserved428);
  visit("RoundMode", r.RoundMode);
  visit("PercentsText", r.PercentsText);
  visit("Reserved8", r.Reserved8);
  visit("AverageSettings", r.AverageSettings);
  visit("NumStudents", r.NumStudents);
  visit("NumInstruments", r.NumInstruments);
  visit("NumDays", r.NumDays);
  visit("NumSummaries", r.NumSummaries);
  visit("NumCharts", r.NumCharts);
  visit("ChartRows", r.ChartRows);
  visit("ChartColumns", r.ChartColumns);
  visit("school", r.school);
  visit("PasswordSet", r.PasswordSet);
  visit("teacher", r.teacher);
  visit("termstart", r.termstart);
  visit("termend", r.termend);
  visit("timed", r.timed);
  visit("Reserved488", r.Reserved488);
  visit("Password", r.Password);
  visit("Reserved496", r.Reserved496);
  visit("description", r.description);
  visit("room", r.room);
  visit("Categories", r.Categories);
  visit("LastNameWidth", r.LastNameWidth);
  visit("FirstNameWidth", r.FirstNameWidth);
  visit("ReservedList", r.ReservedList);
  visit("ReservedText", r.ReservedText);
}

template <typename Visitor>
void ForEachField(Instrument& r, Visitor&& v) {
  ForEachInstrumentField(r, v);
}
template <typename Visitor>
void ForEachField(const Instrument& r, Visitor&& v) {
  ForEachInstrumentField(r, v);
}
template <typename Visitor>
void ForEachField(AttendanceDay& r, Visitor&& v) {
  ForEachDayField(r, v);
}
template <typename Visitor>
void ForEachField(const AttendanceDay& r, Visitor&& v) {
  ForEachDayField(r, v);
}
template <typename Visitor>
void ForEachField(AttendanceSummary& r, Visitor&& v) {
  ForEachSummaryField(r, v);
}
template <typename Visitor>
void ForEachField(const AttendanceSummary& r, Visitor&& v) {
  ForEachSummaryField(r, v);
}
template <typename Visitor>
void ForEachField(Student& r, Visitor&& v) {
  ForEachStudentField(r, v);
}
template <typename Visitor>
void ForEachField(const Student& r, Visitor&& v) {
  ForEachStudentField(r, v);
}
// The header of a class: its top-level lists are not among the fields.
template <typename Visitor>
void ForEachField(Class& r, Visitor&& v) {
  ForEachHeaderField(r, v);
}
template <typename Visitor>
void ForEachField(const Class& r, Visitor&& v) {
  ForEachHeaderField(r, v);
}

}  // namespace tallyroll
