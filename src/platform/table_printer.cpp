// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/table_printer.h"

namespace tallyroll {

TablePrinter PrintTable = nullptr;

}  // namespace tallyroll
