// SPDX-License-Identifier: GPL-3.0-or-later
// Sends pages of the page table to where they are wanted, with the message beside.
#pragma once

#include <memory>

#include "printing/print_message.h"
#include "printing/print_run.h"

namespace tallyroll {

// Every page, once.
PrintRange AllPages();

// A job on the printer in use. Null when the printer refuses, which was told.
std::unique_ptr<PrintTarget> OpenPrinterOrTell();

// Each copy is a job of its own: printed on both sides, the next one begins on a new sheet.
void PrintOnPrinter(const PrintRange& range, PrintMessage& message);

// Prints every page into a PDF file; the status bar confirms it. One that cannot be written is
// told.
void PrintToPdf(const std::string& path, PrintMessage& message);

}  // namespace tallyroll
