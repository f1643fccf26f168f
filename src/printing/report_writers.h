// SPDX-License-Identifier: GPL-3.0-or-later
// Every report's two writers: Print... for paper, Write... for text files.
#pragma once

#include "printing/print_job.h"
#include "printing/text_report.h"

namespace tallyroll {

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

}  // namespace tallyroll
