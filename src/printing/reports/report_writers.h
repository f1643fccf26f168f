// SPDX-License-Identifier: GPL-3.0-or-later
// Every report's two writers: Print... for paper, Write... for text files.
#pragma once

#include "printing/page/print_job.h"
#include "printing/page/text_report.h"

namespace tallyroll {

// 1, 11: all grades of the class, 11 with averages.
void PrintFullGrades(ReportPass& pass);
void WriteFullGrades(TextReport& text);

// 2, 14: missing grades of the class, of one student.
void PrintMissingForClass(ReportPass& pass);
void WriteMissingForClass(TextReport& text);
void PrintMissingForStudent(ReportPass& pass);
void WriteMissingForStudent(TextReport& text);

// 3, 4: the roll book, 4 with full titles.
void PrintRollBook(ReportPass& pass);
void WriteRollBook(TextReport& text);

// 8: daily attendance by month.
void PrintAttendanceMonths(ReportPass& pass);
void WriteAttendanceMonths(TextReport& text);

// 9, 16, 24: one attendance summary, all of them, those of one student.
void PrintOneSummary(ReportPass& pass);
void WriteOneSummary(TextReport& text);
void PrintAllSummaries(ReportPass& pass);
void WriteAllSummaries(TextReport& text);
void PrintAttendanceSummaryForStudent(ReportPass& pass);
void WriteAttendanceSummaryForStudent(TextReport& text);

// 15: one student's days of attendance.
void PrintStudentAttendance(ReportPass& pass);
void WriteStudentAttendance(TextReport& text);

// 10: one grade of the class.
void PrintOneGrade(ReportPass& pass);
void WriteOneGrade(TextReport& text);

// 12, 13: all grades of one student, 12 with the average.
void PrintAllGrades(ReportPass& pass);
void WriteAllGrades(TextReport& text);

// 17, 18: one student's grades by type, 18 with the average.
void PrintGradeSummary(ReportPass& pass);
void WriteGradeSummary(TextReport& text);

// 19, 23: the class's students, with room for notes or with empty boxes.
void PrintRoster(ReportPass& pass);
void WriteRoster(TextReport& text);

// 20, 21: how to reach the students' homes.
void PrintContactForms(ReportPass& pass);
void WriteContactForms(TextReport& text);
void PrintOneContactForm(ReportPass& pass);
void WriteOneContactForm(TextReport& text);

// 22: school, teacher, term and room.
void PrintClassInformation(ReportPass& pass);
void WriteClassInformation(TextReport& text);

// 25: how one student's average came about.
void PrintExplained(ReportPass& pass);
void WriteExplained(TextReport& text);

}  // namespace tallyroll
