// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace tallyroll {

// Text that can neither break a page nor run in it.
std::string HtmlText(std::string_view text);
// Everything up to and with "<body>".
std::string HtmlHead(std::string_view title);

// The roll book and the attendance of months as tables, whole pages.
std::string RollBookHtml(std::string_view title);
std::string AttendanceHtml(std::string_view title);

}  // namespace tallyroll
