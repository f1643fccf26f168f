// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/basics/chart_file.h"

#include <filesystem>

#include "analysis/chart_drawing.h"
#include "base/text.h"
#include "cli/basics/class_in_file.h"
#include "cli/basics/pdf.h"
#include "platform/svg_print_target.h"
#include "store/safe_file.h"

namespace tallyroll {
namespace {

// 6.5 by 4.5 inches: what stands on a page between its margins.
constexpr ChartFrame kFrame{0, 0, 9360, 6480};
constexpr int kDotsPerInch = 200;

std::string WriteBytes(const std::string& path, const std::string& bytes) {
  const int error = ReplaceFile(path, bytes, OldTail::kDrop);
  return error == 0 ? std::string() : FileErrorText(error);
}

std::string Outcome(const PdfOutcome& outcome) {
  return outcome.error == 0 ? outcome.refusal : FileErrorText(outcome.error);
}

}  // namespace

std::string WriteChartFile(const Chart& chart, const std::string& path) {
  const std::string extension = LowerCase(std::filesystem::path(path).extension().string());
  const auto draw = [&chart](PrintTarget& target) {
    DrawChart(chart, target, kFrame, kLightChart);
  };
  if (extension == ".svg") {
    SvgPrintTarget target(kFrame.width, kFrame.height);
    draw(target);
    return WriteBytes(path, target.File(chart.title));
  }
  if (extension == ".png") {
    const std::string bytes = PngOf(kFrame.width, kFrame.height, kDotsPerInch, draw);
    return bytes.empty() ? "PNG is not available here" : WriteBytes(path, bytes);
  }
  if (extension == ".pdf") return Outcome(WritePdfPage(path, chart.title, draw));
  return "a chart's file must end in .svg, .png or .pdf";
}

}  // namespace tallyroll
