// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/page/labels.h"

#include <algorithm>

#include "base/text.h"
#include "printing/page/print_job.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr const char* kLabelFont = "Arial";
constexpr double kLabelPoints = 8;  // its columns then lie nearly as sheets of labels have them
constexpr int kLabelTabs[] = {5, 49, 93};
constexpr std::size_t kLabelsAcross = 3;
constexpr int kBetweenLabels = 2;  // columns that stay free

// A row of labels is an inch high, half an inch stays free above and below all.
constexpr double kLabelHeight = 1440, kSheetEdge = 720, kAboveLines = 240;

std::string Joined(const std::string& first, const char* between, const std::string& second) {
  return first.empty() || second.empty() ? first + second : first + between + second;
}

std::string Trimmed(const std::string& text) {
  return std::string(Trim(text));
}

// The first line of a label stands below the sheet's edge, of which a printer may lack a part.
double TopOfRow(const PrintTarget& target, std::size_t row) {
  const double unprintable = (target.Height - target.ScaleHeight) / 2;
  return kSheetEdge - unprintable + kLabelHeight * static_cast<double>(row) + kAboveLines;
}

std::size_t RowsOfSheet(const PrintTarget& target) {
  return static_cast<std::size_t>(std::max((target.Height - 2 * kSheetEdge) / kLabelHeight, 1.0));
}

void PrintLabel(PrintTarget& target, std::size_t column, double top,
                const std::vector<std::string>& lines) {
  const double unit = target.AverageCharWidth();
  const double left = (kLabelTabs[column] - 1) * unit;
  const double next = column + 1 < kLabelsAcross
                          ? (kLabelTabs[column + 1] - 1 - kBetweenLabels) * unit
                          : target.ScaleWidth;
  target.CurrentY = top;
  for (const std::string& line : lines) {
    target.CurrentX = 0;
    target.Tab(kLabelTabs[column]);
    target.PrintWithin(line, next - left);
    target.Print();
  }
}

}  // namespace

std::vector<std::string> LabelLines(const Student& student, LabelTo to) {
  const std::string name = to == LabelTo::kStudent
                               ? Joined(Trimmed(student.firstname), " ", Trimmed(student.lastname))
                               : Trimmed(student.parent);
  const std::string city = Joined(Joined(Trimmed(student.city), ", ", Trimmed(student.state)), " ",
                                  Trimmed(student.zip));
  std::vector<std::string> lines;
  for (const std::string& line : {name, Trimmed(student.address), city})
    if (!line.empty()) lines.push_back(line);
  return lines;
}

bool PrintLabels(PrintTarget& printer, const std::vector<i16>& students, LabelTo to) {
  printer.FontName = kLabelFont;
  printer.FontSize = kLabelPoints;
  printer.FontBold = false;
  printer.ScaleLeft = printer.ScaleTop = 0;
  const std::size_t on_a_sheet = RowsOfSheet(printer) * kLabelsAcross;
  bool done = true;
  for (std::size_t i = 0; i < students.size() && done; ++i) {
    const std::size_t place = i % on_a_sheet;
    if (i > 0 && place == 0) printer.NewPage();
    const Student& student = Current().Students[static_cast<std::size_t>(students[i])];
    PrintLabel(printer, place % kLabelsAcross, TopOfRow(printer, place / kLabelsAcross),
               LabelLines(student, to));
    done = !Cancelled();
  }
  if (!done) printer.KillDoc();
  return printer.EndDoc() && done;
}

}  // namespace tallyroll
