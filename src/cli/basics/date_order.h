// SPDX-License-Identifier: GPL-3.0-or-later
// In which order the dates of a class are read: a class file keeps them as the teacher typed them.
#pragma once

#include <string_view>

#include "base/date_serial.h"

namespace tallyroll {

// The order of a date format of the C library, such as "%d.%m.%Y".
DateOrder DateOrderOfFormat(std::string_view format);

// That of the user's locale. The process itself keeps the C locale.
DateOrder SystemDateOrder();

// That of an option's value: "mdy", "dmy" or "ymd"; empty stands for the system's.
DateOrder DateOrderOfOption(std::string_view value);

}  // namespace tallyroll
