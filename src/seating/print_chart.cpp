// SPDX-License-Identifier: GPL-3.0-or-later
#include "seating/print_chart.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/text.h"
#include "platform/surroundings.h"
#include "printing/page/page_frame.h"
#include "printing/print_command.h"
#include "printing/print_message.h"
#include "seating/card_details.h"
#include "store/program_state.h"
#include "store/settings.h"

namespace tallyroll {
namespace {

constexpr std::string_view kReportTitle = "Chart Form";
constexpr std::string_view kFront = "FRONT OF THE ROOM";
constexpr double kGap = 60;  // between seats, and from a seat's edge to its text
constexpr double kTallestSeat = 1300;
constexpr double kSmallestFont = 4;   // points
constexpr double kUnseatedLines = 4;  // room kept below the chart for those without a seat

// Puts the font back.
class FontKept {
 public:
  explicit FontKept(PrintTarget& target)
      : target_(target), size_(target.FontSize), bold_(target.FontBold) {}
  ~FontKept() {
    target_.FontSize = size_;
    target_.FontBold = bold_;
  }
  FontKept(const FontKept&) = delete;
  FontKept& operator=(const FontKept&) = delete;

 private:
  PrintTarget& target_;
  double size_;
  bool bold_;
};

void PrintCentred(PrintTarget& target, std::string_view text, double left, double width) {
  target.CurrentX = left + (width - target.TextWidth(text)) / 2;
  target.Print(text);
}

void Box(PrintTarget& target, double left, double top, double right, double bottom) {
  target.Line(left, top, right, top);
  target.Line(left, bottom, right, bottom);
  target.Line(left, top, left, bottom);
  target.Line(right, top, right, bottom);
}

// A name breaks behind its comma; the second line of the card follows.
std::vector<std::string> LinesOf(const std::string& label, int student) {
  if (label.empty()) return {};
  std::vector<std::string> lines;
  const std::size_t comma = label.find(", ");
  lines.push_back(comma == std::string::npos ? label : label.substr(0, comma + 1));
  if (comma != std::string::npos) lines.push_back(label.substr(comma + 2));
  if (student != 0) lines.push_back(CardDetails(student, false));
  return lines;
}

// By seat.
std::vector<std::vector<std::string>> LinesOfCards(const SeatPlan& plan) {
  const std::vector<int> students = StudentsOfCards(Current(), plan.labels);
  std::vector<std::vector<std::string>> cards;
  cards.reserve(students.size());
  for (std::size_t i = 0; i < students.size(); ++i)
    cards.push_back(LinesOf(plan.labels[i], students[i]));
  return cards;
}

// One size for all cards, small enough for the widest line and the tallest card.
double FontOfCards(PrintTarget& target, const std::vector<std::vector<std::string>>& cards,
                   double width, double height) {
  const FontKept kept(target);
  target.FontBold = true;  // as the names are, which are the widest
  const auto fits = [&] {
    for (const auto& lines : cards) {
      if (target.TextHeight("N") * static_cast<double>(lines.size()) > height) return false;
      for (const std::string& line : lines)
        if (target.TextWidth(line) > width) return false;
    }
    return true;
  };
  while (target.FontSize > kSmallestFont && !fits()) target.FontSize -= 0.5;
  return target.FontSize;
}

class ChartOnPaper {
 public:
  ChartOnPaper(PrintTarget& target, const SeatPlan& plan)
      : target_(target),
        plan_(plan),
        cards_(LinesOfCards(plan)),
        width_(Job.PageTextWidth / double(plan.columns)) {
    const double below = target.TextHeight("N") * (kUnseatedLines + 1);
    const double room = Job.PageBottom - target.CurrentY - 2 * target.TextHeight("N") - below;
    height_ = std::min(kTallestSeat, room / plan.rows);
  }

  void Draw() {
    DrawFront();
    DrawHeads();
    const FontKept kept(target_);
    top_ = target_.CurrentY;
    target_.FontSize = FontOfCards(target_, cards_, width_ - 4 * kGap, height_ - 2 * kGap);
    for (int column = 0; column < plan_.columns; ++column)
      for (int row = 0; row < plan_.rows; ++row) DrawSeat({row, column});
    target_.CurrentX = 0;
    target_.CurrentY = top_ + plan_.rows * height_;
  }

 private:
  void DrawFront() {
    const double top = target_.CurrentY;
    PrintCentred(target_, kFront, 0, Job.PageTextWidth);
    Box(target_, kGap, top, Job.PageTextWidth - kGap, target_.CurrentY);
  }

  void DrawHeads() {
    const double top = target_.CurrentY;
    for (int column = 0; column < plan_.columns; ++column) {
      target_.CurrentY = top;
      PrintCentred(target_, PlainNumberText(column + 1), column * width_, width_);
    }
  }

  void DrawSeat(Seat seat) {
    const double left = seat.column * width_, top = top_ + seat.row * height_;
    Box(target_, left + kGap, top + kGap / 2, left + width_ - kGap, top + height_ - kGap / 2);
    const int card = seat.column * plan_.rows + seat.row;
    const auto& lines = cards_[static_cast<std::size_t>(card)];
    const double text = target_.TextHeight("N") * static_cast<double>(lines.size());
    target_.CurrentY = top + (height_ - text) / 2;
    for (std::size_t i = 0; i < lines.size(); ++i) {
      target_.FontBold = i + 1 < lines.size() || lines.size() == 1;
      PrintCentred(target_, lines[i], left, width_);
    }
    target_.FontBold = false;
  }

  PrintTarget& target_;
  const SeatPlan& plan_;
  std::vector<std::vector<std::string>> cards_;
  double width_, height_ = 0, top_ = 0;
};

// Who has no seat is named below the chart, as far as there is room.
void DrawUnseated(PrintTarget& target, const SeatPlan& plan) {
  if (plan.unseated.empty()) return;
  target.Print();
  std::string line = "Without a seat: ";
  std::size_t first = 0;  // on the line
  for (std::size_t i = 0; i < plan.unseated.size(); ++i) {
    const std::string next = plan.unseated[i] + (i + 1 < plan.unseated.size() ? "; " : "");
    if (target.TextWidth(line + next) > Job.PageTextWidth) {
      if (WouldPassBottom(target, 2)) {
        line =
            "... and " + PlainNumberText(static_cast<int>(plan.unseated.size() - first)) + " more";
        break;
      }
      target.Print(line);
      line.clear();
      first = i;
    }
    line += next;
  }
  target.Print(line);
}

std::string ClassLine(const std::string& name) {
  const std::string description(Trim(Current().description));
  return description.empty() ? name : description + " - " + name;
}

}  // namespace

void DrawChart(PrintTarget& target, const SeatPlan& plan) {
  ChartOnPaper(target, plan).Draw();
}

void DrawChartPage(PrintTarget& target, const SeatPlan& plan, const std::string& name) {
  ReportPass pass{.target = target};
  PageHeader(pass, kReportTitle);
  PrintCentred(target, ClassLine(name), 0, Job.PageTextWidth);
  target.Print();
  DrawChart(target, plan);
  DrawUnseated(target, plan);
}

void PrintChart(const SeatPlan& plan, const std::string& name) {
  const bool landscape = plan.columns >= kLandscapeColumns;
  if (landscape) ShowMessage("Please provide your printer with 8.5\" by 14\" paper");
  Job.PrintTab = 1;
  Job.ReportCode = 0;
  ResetPrintJob();
  if (Job.PrintFlag != kPrintRuns) return;
  PrintMessage message;
  message.ShowPage(1, 1);
  const auto printer = Platform().OpenPrinter(landscape, Job.PrintTitle);
  if (!printer) {
    ShowMessage("The printer can't be used. Choose one at Printer Set Up.", BoxIcon::kCritical);
    return;
  }
  printer->FontName = PrinterFontName;
  printer->FontSize = static_cast<double>(PrinterFontSize);
  SetupPage(*printer);
  DrawChartPage(*printer, plan, name);
  if (Cancelled()) printer->KillDoc();
  printer->EndDoc();
}

}  // namespace tallyroll
