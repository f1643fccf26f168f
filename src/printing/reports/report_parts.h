// SPDX-License-Identifier: GPL-3.0-or-later
// What several reports print about the student in work, on paper and as text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "printing/page/line_table.h"
#include "printing/page/page_frame.h"
#include "printing/page/sections.h"
#include "printing/page/text_report.h"

namespace tallyroll {

const Student& StudentInReport();  // CurrentStudent's record
const Instrument& GradeInReport(int i);

// How an average is made decides columns of several tables.
bool PointMethod();         // by points, 2 and 3
bool WeighsTypes();         // by types, 1 and 3
bool ReportWithAverages();  // codes 11, 12 and 18

// Whether a table tells what each grade weighs or whether it counts: reports with averages do, but
// weights by type alone give a grade none, nor does a class without a method.
bool ShowsWeightOrUse();
// Its head: "WT.", or "PT." under the point methods.
std::string_view WeightOrUseHead();
// "Y" or "N" under the point methods, otherwise the grade's weight in force.
std::string WeightOrUse(int grade);

// What the columns of one student's grades are multiples of.
double GradeBase(const PrintTarget& target);

// A period's total of absences, the excused ones left out, "/" and its lates. Below 1 the number of
// absences stands as it was entered.
std::string AttendanceCell(const Student& student, int summary);

// The summary periods in rows as wide as the page: a line of codes and a line of cells. Each row
// adds 2 to BlockLines.
void PrintAttendanceRows(PrintTarget& target);
int LinesOfAttendance();
void WriteAttendanceRows(TextReport& text);

// The two lines of an average. One that cannot be computed ends the report with the reason.
void PrintAverages(PrintTarget& target);
void WriteAverages(TextReport& text);

void PrintParentSignature(PrintTarget& target);
// The same as what closes a report, where the parent is to sign.
std::vector<Section> SignatureSections(PrintTarget& target);
void WriteParentSignature(TextReport& text);

// "Comments: " and the comment.
void WriteComments(TextReport& text);

}  // namespace tallyroll
