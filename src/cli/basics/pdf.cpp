// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/basics/pdf.h"

#include "desktop/paper/chart_picture.h"
#include "desktop/paper/offscreen_application.h"
#include "desktop/paper/pdf_target.h"
#include "printing/print_run.h"

namespace tallyroll {

void BecomeProgramThatDraws() {}

PdfOutcome WritePdf(const std::string& path, const std::string& title) {
  const OffscreenApplication application;
  if (!LayOutReport()) return {};
  if (Job.PageCount == 0) return {"the report has no pages"};
  PdfOutcome outcome;
  const Sheet sheet = WholeSheet(UsualPageSize());
  const auto pdf = PdfTarget::Open(path, sheet, PrintsLandscape(), title, outcome.error);
  if (!pdf) return outcome;
  PrepareTarget(*pdf);
  PrintRange pages;
  pages.to_page = Job.PageCount;
  PrintPages(*pdf, pages, [](int) {});
  outcome.error = pdf->Error();
  return outcome;
}

namespace {

PdfOutcome WriteSheets(const std::string& path, const std::string& title, bool landscape,
                       const std::function<void(PrintTarget&)>& print) {
  const OffscreenApplication application;
  PdfOutcome outcome;
  const Sheet sheet = WholeSheet(UsualPageSize());
  const auto pdf = PdfTarget::Open(path, sheet, landscape, title, outcome.error);
  if (!pdf) return outcome;
  print(*pdf);
  outcome.error = pdf->Error();
  return outcome;
}

}  // namespace

PdfOutcome WritePdfJob(const std::string& path, const std::string& title,
                       const std::function<void(PrintTarget&)>& print) {
  return WriteSheets(path, title, false, print);
}

PdfOutcome WritePdfPage(const std::string& path, const std::string& title,
                        const std::function<void(PrintTarget&)>& draw, bool landscape) {
  constexpr double kInch = 1440;
  return WriteSheets(path, title, landscape, [&](PrintTarget& pdf) {
    pdf.ScaleLeft = pdf.ScaleTop = -kInch;
    draw(pdf);
    pdf.EndDoc();
  });
}

std::string PngOf(double width, double height, int dots_per_inch,
                  const std::function<void(PrintTarget&)>& draw) {
  const OffscreenApplication application;
  return PngPicture(width, height, dots_per_inch, draw);
}

std::unique_ptr<PrintTarget> MakePaperBox(bool landscape) {
  const Sheet sheet = WholeSheet(UsualPageSize());
  return std::make_unique<QtPrintTarget>(landscape ? Turned(sheet) : sheet);
}

}  // namespace tallyroll
