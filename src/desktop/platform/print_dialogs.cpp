// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/platform/print_dialogs.h"

#include <QFontDialog>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <algorithm>
#include <utility>

#include "desktop/basics/text_conversion.h"

namespace tallyroll {
namespace {

void Offer(QPrintDialog& dialog, const PrintRange& offered) {
  dialog.setOption(QAbstractPrintDialog::PrintPageRange);
  dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
  dialog.setOption(QAbstractPrintDialog::PrintCurrentPage, false);
  dialog.setMinMax(offered.from_page, offered.to_page);
  dialog.setFromTo(offered.from_page, offered.to_page);
  dialog.setPrintRange(QAbstractPrintDialog::AllPages);
}

PrintRange Chosen(const QPrintDialog& dialog, const QPrinter& printer, const PrintRange& offered) {
  PrintRange range = offered;
  range.copies = std::max(printer.copyCount(), 1);
  if (dialog.printRange() != QAbstractPrintDialog::PageRange) return range;
  range.from_page = std::clamp(dialog.fromPage(), offered.from_page, offered.to_page);
  range.to_page = std::clamp(dialog.toPage(), range.from_page, offered.to_page);
  return range;
}

}  // namespace

std::optional<PrintRange> ShowPrintDialog(QPrinter& printer, const PrintRange& offered,
                                          QWidget* parent) {
  printer.setCopyCount(offered.copies);
  QPrintDialog dialog(&printer, parent);
  Offer(dialog, offered);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  const PrintRange range = Chosen(dialog, printer, offered);
  // The pages and copies are drawn one by one; the printer must not repeat or leave out any.
  printer.setCopyCount(1);
  printer.setPrintRange(QPrinter::AllPages);
  printer.setFromTo(0, 0);
  printer.setPageRanges({});
  return range;
}

void ShowPrinterSetUpDialog(QPrinter& printer, QWidget* parent) {
  QPageSetupDialog(&printer, parent).exec();
}

bool ShowFontDialog(std::string& name, float& points, QWidget* parent) {
  QFont font(FromText(name));
  font.setPointSizeF(points);
  QFontDialog dialog(font, parent);
  dialog.setOption(QFontDialog::DontUseNativeDialog);
  // Some ten names of fonts at once, in type of any size.
  const QFontMetrics metrics = dialog.fontMetrics();
  dialog.resize(QSize(80 * metrics.averageCharWidth(), 34 * metrics.height()));
  if (dialog.exec() != QDialog::Accepted) return false;
  const QFont chosen = dialog.selectedFont();
  std::optional<std::string> family = ToText(chosen.family());
  if (!family || chosen.pointSizeF() <= 0) return false;
  name = std::move(*family);
  points = static_cast<float>(chosen.pointSizeF());
  return true;
}

}  // namespace tallyroll
