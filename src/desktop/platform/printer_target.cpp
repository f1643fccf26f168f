// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/platform/printer_target.h"

#include <QPageLayout>
#include <QPrinterInfo>
#include <algorithm>

#include "base/run_time_error.h"
#include "desktop/basics/text_conversion.h"

namespace tallyroll {
namespace {

constexpr double kTwipsPerPoint = 20;
constexpr int kTwipsPerInch = 1440;

// Without a printer only a file can be printed to, and the teacher has to name one.
bool HasDestination(const QPrinter& printer) {
  const bool file = printer.outputFormat() == QPrinter::PdfFormat;
  return file ? !printer.outputFileName().isEmpty() : printer.isValid();
}

}  // namespace

std::unique_ptr<QPrinter> MakePrinter() {
  auto printer = std::make_unique<QPrinter>();
  printer->setResolution(kTwipsPerInch);
  printer->setFullPage(true);
  printer->setCreator(QStringLiteral("Tallyroll"));
  if (QPrinterInfo::defaultPrinter().isNull()) printer->setPageSize(UsualPageSize());
  return printer;
}

// The same room is left on both sides, so that what fits on one half of a sheet fits on the other.
Sheet SheetOf(const QPrinter& printer) {
  Sheet sheet = WholeSheet(printer.pageLayout().pageSize());
  QPageLayout upright = printer.pageLayout();
  upright.setUnits(QPageLayout::Point);
  upright.setOrientation(QPageLayout::Portrait);
  const QMarginsF margins = upright.minimumMargins();
  sheet.printable_width -= 2 * kTwipsPerPoint * std::max(margins.left(), margins.right());
  sheet.printable_height -= 2 * kTwipsPerPoint * std::max(margins.top(), margins.bottom());
  return sheet;
}

PrinterTarget::PrinterTarget(QPrinter& printer, const Sheet& sheet)
    : PagedTarget(sheet), printer_(printer), before_(printer.pageLayout().orientation()) {}

std::unique_ptr<PrinterTarget> PrinterTarget::Open(QPrinter& printer, bool landscape,
                                                   std::string_view title) {
  if (!HasDestination(printer)) return nullptr;
  const Sheet sheet = SheetOf(printer);
  printer.setFullPage(true);
  printer.setDocName(FromText(title));
  std::unique_ptr<PrinterTarget> target(
      new PrinterTarget(printer, landscape ? Turned(sheet) : sheet));
  printer.setPageOrientation(landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
  if (target->Begin(printer)) return target;
  printer.setPageOrientation(target->before_);
  return nullptr;
}

int PrinterTarget::Finish(bool keep) {
  printer_.setPageOrientation(before_);
  return keep && printer_.printerState() == QPrinter::Error ? kErrorDevice : 0;
}

}  // namespace tallyroll
