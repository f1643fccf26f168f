// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <memory>
#include <optional>

#include "base/code_page.h"
#include "base/number_text.h"
#include "base/text.h"
#include "cli/basics/class_in_file.h"
#include "cli/basics/command_line_surroundings.h"
#include "cli/basics/date_order.h"
#include "cli/basics/json_text.h"
#include "cli/basics/pdf.h"
#include "cli/basics/table_text.h"
#include "cli/commands/commands.h"
#include "printing/page/print_job.h"
#include "seating/chart_records.h"
#include "seating/fill_chart.h"
#include "seating/kept_wishes.h"
#include "seating/print_chart.h"
#include "seating/seat_by_wishes.h"
#include "store/program_state.h"
#include "store/settings.h"

namespace tallyroll {
namespace {

struct SeatingOptions {
  std::string file;
  int chart = 0;  // 0: the last one
  bool json = false;
  bool text = false;
  std::string out;
  std::string size, fill, out_class;
  int seed = -1;
  bool force = false;
  i16 name_mode = 68;
  OpenOptions opening;
};

// ---- A chart as text and JSON ----

std::string ChartText(const SeatPlan& plan) {
  Table table = {{""}};
  for (int column = 0; column < plan.columns; ++column)
    table[0].push_back("Row " + PlainNumberText(column + 1));
  for (int row = 0; row < plan.rows; ++row) {
    std::vector<std::string> cells = {"Seat " + PlainNumberText(row + 1)};
    for (int column = 0; column < plan.columns; ++column)
      cells.push_back(CellText(plan.At({row, column})));
    table.push_back(std::move(cells));
  }
  std::string text = ClassHeading(Current()) + AlignedText(table);
  if (!plan.unseated.empty()) text += "\nWithout a seat:\n";
  for (const std::string& label : plan.unseated) text += label + "\n";
  return Utf8FromCodePage(text);
}

std::string IdOfStudent(const Student& student) {
  return Utf8FromCodePage(Trim(student.id));
}

// By the records, so that students whose cards read alike are told apart.
std::string ChartJson(int chart, const SeatPlan& plan) {
  Json seats = Json::array(), unseated = Json::array();
  for (int i = 1; i <= Current().NumStudents; ++i) {
    const Student& student = Current().Students[static_cast<std::size_t>(i)];
    const Seat seat = SeatOf(student, chart);
    if (plan.Holds(seat))
      seats.push_back({{"row", seat.row}, {"column", seat.column}, {"id", IdOfStudent(student)}});
    else
      unseated.push_back(IdOfStudent(student));
  }
  return JsonText({{"rows", plan.rows},
                   {"columns", plan.columns},
                   {"seats", std::move(seats)},
                   {"unseated", std::move(unseated)}});
}

// ---- On paper ----

std::string WriteChartPdf(const SeatingOptions& options, const SeatPlan& plan, int chart) {
  const std::string name = "Chart " + PlainNumberText(chart);
  const auto draw = [&](PrintTarget& target) {
    Job.PrintTab = 1;
    Job.PrintFlag = kPrintRuns;
    target.FontName = PrinterFontName;
    target.FontSize = static_cast<double>(PrinterFontSize);
    SetupPage(target);
    DrawChartPage(target, plan, name);
  };
  if (!LowerCase(options.out).ends_with(".pdf")) return "a chart's file must end in .pdf";
  if (std::string reason = WhyNotOver(options.out); !reason.empty()) return reason;
  const PdfOutcome outcome =
      WritePdfPage(options.out, name, draw, plan.columns >= kLandscapeColumns);
  return outcome.error == 0 ? outcome.refusal : FileErrorText(outcome.error);
}

CommandResult ShowChart(const SeatingOptions& options) {
  const int chart = options.chart == 0 ? Current().NumCharts : options.chart;
  if (Current().NumCharts == 0) return Refused(options.file, "the class has no seating charts");
  if (chart > Current().NumCharts)
    return Refused(options.file, "there is no chart " + PlainNumberText(chart));
  const SeatPlan plan = LoadChart(chart);
  if (!options.out.empty()) {
    const std::string reason = WriteChartPdf(options, plan, chart);
    if (!reason.empty()) return Refused(options.out, reason);
    if (!options.json && !options.text) return Done();
  }
  return Done(options.json ? ChartJson(chart, plan) : ChartText(plan));
}

// ---- A new chart ----

// "5x6": seats in a row of the classroom, and rows.
std::optional<Seat> SizeOf(const std::string& size) {
  const std::size_t x = size.find('x');
  if (x == std::string::npos) return std::nullopt;
  const auto rows = WholeNumberText(size.substr(0, x));
  const auto columns = WholeNumberText(size.substr(x + 1));
  if (!rows || !columns || *columns < 1 || *columns > kMostSeatColumns || *rows < 1)
    return std::nullopt;
  const int most = MostSeatsPerRow(static_cast<int>(*columns));
  if (*rows > most) return std::nullopt;
  return Seat{static_cast<int>(*rows), static_cast<int>(*columns)};
}

std::string CheckSize(const std::string& size) {
  return SizeOf(size) ? "" : "must be RxC, at most 15x11 or 11x13";
}

struct FilledChart {
  SeatPlan plan;
  std::string told;  // of the wishes
  std::string fault;
};

FilledChart FillByWishes(const SeatingOptions& options, Seat size) {
  const KeptWishes kept = ReadWishes();
  const Classroom room = RoomOfNewChart(size.row, size.column);
  const auto number = static_cast<std::uint32_t>(std::max(options.seed, 0));
  const WishedSeating seating = SeatByWishes(room, kept.wishes, number);
  FilledChart filled{PlanOf(room, seating), {}, kept.fault};
  for (const Wish& wish : seating.unmet)
    filled.told += "Not met: " + Utf8FromCodePage(WishText(wish)) + "\n";
  return filled;
}

FilledChart FillChart(const SeatingOptions& options, Seat size) {
  if (options.fill == "wishes") return FillByWishes(options, size);
  FilledChart filled{EmptyPlan(size.row, size.column), {}, {}};
  options.fill == "random" ? FillAtRandom(filled.plan) : FillAsSorted(filled.plan);
  return filled;
}

CommandResult MakeChart(const SeatingOptions& options) {
  const FilledChart filled = FillChart(options, *SizeOf(options.size));
  if (!filled.fault.empty())
    return Refused(options.file, "the wishes cannot be read: " + filled.fault);
  const int chart = AddChart(filled.plan.rows, filled.plan.columns);
  if (chart == 0) return Refused(options.file, "the class holds no more charts");
  StoreChart(chart, filled.plan);
  Class written = Current();
  written.Magic = "ty8";
  const std::string reason = WriteClassTo(options.out_class, written, options.force);
  return reason.empty() ? Done(filled.told) : Refused(options.out_class, reason);
}

CommandResult Seating(const SeatingOptions& options) {
  NameMode = options.name_mode;
  const std::string reason = OpenClassFile(options.file, options.opening);
  if (!reason.empty()) return Refused(options.file, reason);
  if (Current().NumStudents == 0) return Refused(options.file, kNoStudents);
  CommandLineSurroundings surroundings(options.opening.password,
                                       DateOrderOfOption(options.opening.date_order));
  if (options.seed >= 0) surroundings.SeedRandom(static_cast<std::uint32_t>(options.seed));
  return options.size.empty() ? ShowChart(options) : MakeChart(options);
}

}  // namespace

void AddSeatingCommand(Command& app, ChosenCommand& chosen) {
  Command command = app.AddCommand("seating", "Shows a seating chart, or makes a new one");
  const auto options = std::make_shared<SeatingOptions>();
  command.AddOption("FILE", options->file, "the class file").Required();
  CommandOption chart =
      command.AddOption("--chart", options->chart, "the chart's number; otherwise the last one")
          .Between(1, 32767);
  CommandOption json = command.AddFlag("--json", options->json, "as JSON");
  CommandOption text = command.AddFlag("--text", options->text, "as a table");
  CommandOption out = command.AddOption("--out", options->out, "the page to write: .pdf");
  json.Excludes(text);
  CommandOption size =
      command.AddOption("--new", options->size, "RxC: a chart of C rows with R seats each")
          .Check(CheckSize);
  CommandOption fill = command.AddOption("--fill", options->fill, "how the new chart is filled")
                           .OneOf({"sorted", "random", "wishes"});
  CommandOption seed =
      command.AddOption("--seed", options->seed, "the same number gives the same chart")
          .Between(0, 999999999);
  CommandOption out_class =
      command.AddOption("--out-class", options->out_class, "the class file to write");
  size.Needs(fill).Needs(out_class);
  fill.Needs(size);
  out_class.Needs(size);
  seed.Needs(size);
  for (CommandOption shown : {chart, json, text, out}) shown.Excludes(size);
  AddForce(command, options->force);
  AddNameMode(command, options->name_mode);
  AddOpenOptions(command, options->opening);
  command.WhenChosen(
      [&chosen, options] { chosen = [options](std::istream&) { return Seating(*options); }; });
}

}  // namespace tallyroll
