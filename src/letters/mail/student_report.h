// SPDX-License-Identifier: GPL-3.0-or-later
// The report of Job.ReportCode on one student alone, as it goes by mail.
#pragma once

#include <functional>
#include <string>

#include "store/records.h"

namespace tallyroll {

// Whether the report of Job.ReportCode is on single students. Any other shows everybody to
// everybody and goes to one address at most.
bool IsOnSingleStudents();

// The report's text. Empty when it could not be made, or would not be on this student.
std::string TextOfStudent(i16 student);

// Lays the report out and writes its pages into a PDF file.
using PdfWriter = std::function<bool(const std::string& path)>;
bool WritePdfPages(const std::string& path);

// The report's pages as the bytes of a PDF file. The print job and the choice are as before
// afterwards. Empty when there is none, or it would not be on this student alone.
std::string PdfOfStudent(i16 student, const PdfWriter& write = WritePdfPages);

// "Ng, Ada.pdf": what parts folders is no part of a name. In UTF-8.
std::string ReportFileName(i16 student);

}  // namespace tallyroll
