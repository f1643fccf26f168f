// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/print_command.h"

#include "platform/class_window.h"
#include "platform/surroundings.h"
#include "store/class_file.h"

namespace tallyroll {
namespace {

bool Print(PrintTarget& target, const PrintRange& range, PrintMessage& message) {
  PrepareTarget(target);
  return PrintPages(target, range, [&](int page) { message.ShowPage(page, Job.PageCount); });
}

}  // namespace

PrintRange AllPages() {
  return {.from_page = 1, .to_page = Job.PageCount, .copies = 1};
}

std::unique_ptr<PrintTarget> OpenPrinterOrTell() {
  auto printer = Platform().OpenPrinter(PrintsLandscape(), Job.PrintTitle);
  if (!printer)
    ShowMessage("The printer can't be used. Choose one at Printer Set Up.", BoxIcon::kCritical);
  return printer;
}

void PrintOnPrinter(const PrintRange& range, PrintMessage& message) {
  Job.PrintFlag = kPrintRuns;
  bool done = true;
  for (int copy = 0; done && copy < range.copies; ++copy) {
    const auto printer = OpenPrinterOrTell();
    done = printer && Print(*printer, range, message);
  }
}

void PrintToPdf(const std::string& path, PrintMessage& message) {
  Job.PrintFlag = kPrintRuns;
  const auto file = Platform().OpenPdf(path, PrintsLandscape(), Job.PrintTitle);
  if (!file)
    ShowMessage("File Error");
  else if (Print(*file, AllPages(), message))
    ClassWindow().ShowStatus(SavedText(path));
}

}  // namespace tallyroll
