// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/frmprintpre.h"

#include <algorithm>
#include <optional>

#include "averages/average_settings.h"
#include "base/number_text.h"
#include "grades/method_reset.h"
#include "platform/surroundings.h"
#include "printing/print_command.h"
#include "printing/reports/report_codes.h"
#include "printing/reports/reports.h"
#include "printing/running.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr std::array kZoomSteps = {50, 75, 100, 125, 150};
constexpr int kFullSize = 2;
constexpr int kPreviewTopic = 440, kAveragesTopic = 540;

// The end steps draw a little off what they are called, so that a page stays at hand.
double ZoomOf(int step) {
  const double zoom = kZoomSteps[static_cast<std::size_t>(step)] / 100.0;
  if (zoom == 1.5) return 1.4;
  return zoom == 0.5 ? 0.55 : zoom;
}

}  // namespace

frmprintpre::frmprintpre() : Portal("frmprintpre") {
  Caption = "Print Preview Portal";
  HelpContext = kPreviewTopic;
  one.Caption = "Zoom &In";
  two.Caption = "Zoom &Out";
  fitwidth.Caption = "Fit &Width";
  fitpage.Caption = "Fit Pa&ge";
  three.Caption = "&First";
  four.Caption = "&Back";
  five.Caption = "&Next";
  six.Caption = "&Last";
  seven.Caption = "&Print";
  eight.Caption = "E-&mail";
  nine.Caption = "&Save to Text File";
  ten.Caption = "Save to &HTML";
  pdf.Caption = "Save as P&DF";
  eleven.Caption = "H&elp";
  twelve.Caption = "E&xit";
  findstudent.Caption = "Find St&udent";
  findkey.Caption = "Find Student";
  zoom_in.Caption = zoom_in_unshifted.Caption = "Zoom In";
  zoom_out.Caption = "Zoom Out";
  page_back.Caption = "Back";
  page_on.Caption = "Next";
  Frame1.Caption = "Save";
  all.Caption = "All selected students";
  current.Caption = "Current student only";
  Command5.Caption = "Con&tinue";
  Command7.Caption = "&Cancel";
}

void frmprintpre::Declare(ControlTable& table) {
  DeclareToolbar(table);
  table.Add("Frame1", Frame1);
  const auto choose = [this](bool current_only) {
    current.Value = current_only;
    all.Value = !current_only;
  };
  table.Add("all", all).Click([choose] { choose(false); });
  table.Add("current", current).Click([choose] { choose(true); });
  table.Add("Command5", Command5).Click([this] { Command5_Click(); });
  table.Add("Command7", Command7).Click([this] { Command7_Click(); });
  table.Add("picture1", picture1);
  DeclareKeys(table);
}

// Ctrl with plus, with or without the shift key, and minus; Page Up and Down; Ctrl+F.
void frmprintpre::DeclareKeys(ControlTable& table) {
  table.Add("zoom_in", zoom_in).Click([this] { StepZoom(1); });
  table.Add("zoom_in_unshifted", zoom_in_unshifted).Click([this] { StepZoom(1); });
  table.Add("zoom_out", zoom_out).Click([this] { StepZoom(-1); });
  table.Add("page_back", page_back).Click([this] { ShowPage(pagenum.ListIndex - 1); });
  table.Add("page_on", page_on).Click([this] { ShowPage(pagenum.ListIndex + 1); });
  table.Add("findkey", findkey).Click([this] { findstudent_Click(); });
}

void frmprintpre::DeclareToolbar(ControlTable& table) {
  table.Add("one", one).Click([this] { StepZoom(1); });
  table.Add("two", two).Click([this] { StepZoom(-1); });
  table.Add("size", size).Change([this] { ShowStep(size.ListIndex); });
  table.Add("fitwidth", fitwidth).Click([this] { ShowFitted(SheetFit::kWidth); });
  table.Add("fitpage", fitpage).Click([this] { ShowFitted(SheetFit::kPage); });
  table.Add("three", three).Click([this] { ShowPage(0); });
  table.Add("four", four).Click([this] { ShowPage(pagenum.ListIndex - 1); });
  table.Add("pagenum", pagenum).Change([this] { ShowPage(pagenum.ListIndex); });
  table.Add("five", five).Click([this] { ShowPage(pagenum.ListIndex + 1); });
  table.Add("six", six).Click([this] { ShowPage(Job.PageCount - 1); });
  table.Add("Pagen", Pagen);
  table.Add("Pagel", Pagel);
  table.Add("findstudent", findstudent).Click([this] { findstudent_Click(); });
  table.Add("seven", seven).Click([this] { ShowPrint(); });
  table.Add("eight", eight).Click([this] { eight_Click(); });
  table.Add("nine", nine).Click([this] { AskAndSave(Save::kText); });
  table.Add("ten", ten).Click([this] { AskAndSave(Save::kHtml); });
  table.Add("pdf", pdf).Click([this] { pdf_Click(); });
  table.Add("eleven", eleven).Click([] {
    const bool averages = Job.ReportCode == kFullClass || Job.ReportCode == kAveragesOfOne;
    Platform().ShowHelp(averages ? kAveragesTopic : kPreviewTopic);
  });
  table.Add("twelve", twelve).Click([this] {
    if (!Busy()) ShowFrame1(false);
    QueryUnload();
  });
}

void frmprintpre::Load() {
  folder_ = DataFolder;
  ShowFrame1(false);
  picture1.Draw = [this](PrintTarget& target) { DrawPage(target); };
  startup();
}

void frmprintpre::startup() {
  Job.PrintFlag = kPrintRuns;
  makesize();
  makepage();
  Pagel.Caption = PlainNumberText(Job.PageCount);
  findstudent.Enabled = findkey.Enabled = Job.FirstPage.size() > 1;
  ShowPage(0);
}

void frmprintpre::makesize() {
  size.List.clear();
  for (const int step : kZoomSteps) size.List.push_back(PlainNumberText(step) + " %");
  step_ = size.ListIndex = kFullSize;
  size.Text = size.List[kFullSize];
  picture1.Fit = SheetFit::kZoom;
}

void frmprintpre::makepage() {
  pagenum.List.clear();
  for (int page = 1; page <= Job.PageCount; ++page)
    pagenum.List.push_back("Page " + PlainNumberText(page));
}

// The page is drawn by whoever shows the box. One that is drawn while a print or a save goes on
// would lead that astray.
void frmprintpre::showscreen() {
  if (running_) return;
  const auto sheet = Platform().MakePrintBox(PrintsLandscape());
  if (!sheet) return;
  picture1.Zoom = ZoomOf(step_);
  picture1.SheetWidth = sheet->Width;
  picture1.SheetHeight = sheet->Height;
  printable_width_ = sheet->ScaleWidth;
  printable_height_ = sheet->ScaleHeight;
  ++picture1.Revision;
}

// As it was laid out: within what the printer can reach.
void frmprintpre::DrawPage(PrintTarget& target) {
  if (running_) return;
  const Running drawing(drawing_);
  target.ScaleWidth = printable_width_;
  target.ScaleHeight = printable_height_;
  Job.PrintFlag = kPrintRuns;
  PrepareTarget(target);
  RenderPage(target, pagenum.ListIndex + 1);
}

void frmprintpre::ShowStep(int step) {
  if (step < 0 || step >= static_cast<int>(kZoomSteps.size())) return;
  step_ = size.ListIndex = step;
  size.Text = size.List[static_cast<std::size_t>(step)];
  picture1.Fit = SheetFit::kZoom;
  showscreen();
}

// A fitted page has none of the sizes of the list, and goes on from the one it had before.
void frmprintpre::StepZoom(int by) {
  ShowStep(picture1.Fit == SheetFit::kZoom ? step_ + by : step_);
}

void frmprintpre::ShowFitted(SheetFit fit) {
  picture1.Fit = fit;
  size.ListIndex = -1;
  size.Text.clear();
  showscreen();
}

void frmprintpre::ShowPage(int index) {
  if (running_ || index < 0 || index >= Job.PageCount) return;
  pagenum.ListIndex = index;
  pagenum.Text = pagenum.List[static_cast<std::size_t>(index)];
  Pagen.Caption = pagenum.Text.substr(4);
  showscreen();
}

bool frmprintpre::SheetChanged() const {
  const auto sheet = Platform().MakePrintBox(PrintsLandscape());
  return sheet &&
         (sheet->Width != picture1.SheetWidth || sheet->Height != picture1.SheetHeight ||
          sheet->ScaleWidth != printable_width_ || sheet->ScaleHeight != printable_height_);
}

// Another sheet has other pages: when the teacher chose one with the printer, the report is laid
// out again, and printed whole where all pages were wanted.
void frmprintpre::ShowPrint() {
  if (Busy()) return;
  const int pages = Job.PageCount;
  std::optional<PrintRange> range = Platform().PrintDialog(AllPages());
  if (!range) return;
  if (SheetChanged()) {
    const Running running(running_);
    Job.PrintFlag = kPrintRuns;
    PrintMessage message;
    if (!LayOutReport() || Job.PageCount == 0) return Unload();
    if (range->from_page == 1 && range->to_page == pages) range->to_page = Job.PageCount;
  }
  range->from_page = std::clamp<int>(range->from_page, 1, Job.PageCount);
  range->to_page = std::clamp<int>(range->to_page, range->from_page, Job.PageCount);
  {
    const Running running(running_);
    PrintMessage message;
    PrintOnPrinter(*range, message);
  }
  startup();
}

// The roll book with its full titles is there for paper.
bool frmprintpre::Refuses(std::string_view function) const {
  if (Job.ReportCode != kRollBookTitles) return false;
  ShowMessage("The '" + std::string(function) +
              "' function is unavailable with the 'Roll Book-Full Titles' print option. Choose the "
              "'Roll Book' print option instead.");
  return true;
}

// The report holds final grades, which no grade of the class may keep yet. Escape in the frame of
// choices leaves that alone.
void frmprintpre::QueryUnload() {
  if (Busy()) return;
  if (Frame1.Visible) return Command7_Click();
  if (Job.ReportCode == kFullClass && WantsAveragesSaved())
    UnloadAndShow("frmgradesave");
  else
    Unload();
}

}  // namespace tallyroll
