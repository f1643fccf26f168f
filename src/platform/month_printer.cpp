// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/month_printer.h"

namespace tallyroll {

MonthPrinter PrintMonth = nullptr;

}  // namespace tallyroll
