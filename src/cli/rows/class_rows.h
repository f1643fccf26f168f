// SPDX-License-Identifier: GPL-3.0-or-later
// The tables of flat rows that a class gives.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/date_serial.h"
#include "cli/rows/row_sink.h"
#include "cli/rows/row_text.h"

namespace tallyroll {

// "averages", "students" and so on.
std::vector<std::string> RowTables();

// The titles of comma-separated values, with their line end.
std::string RowHeading(std::string_view table);

// Writes the rows of the current class, which lies in `file`; `order` is that of its dates. Answers
// why not; empty when all are written.
std::string WriteRows(std::string_view table, RowForm form, const std::string& file,
                      DateOrder order, RowSink& sink);

}  // namespace tallyroll
