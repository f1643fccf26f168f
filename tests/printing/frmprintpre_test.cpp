// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/frmprintpre.h"

#include <filesystem>
#include <map>

#include "base/code_page.h"
#include "platform/class_window.h"
#include "printing/printmsg.h"
#include "printing/reports/html_report.h"
#include "store/safe_file.h"
#include "tests/printing/print_portal_test.h"

namespace tallyroll {
namespace {

const std::string kSaveQuestion = "Save Rounded Averaged Grades? (Recommended)";

class FrmPrintPreTest : public PrintPortalTest {
 protected:
  FrmPrintPreTest() {
    Current().Method = 0;
    AddGrade("Quiz 1", "Q ");
  }
  // Shows the report with this many students, of whom these are selected.
  void OpenReport(i16 code, int students, const std::vector<i16>& selected = {}) {
    EnrolMany(students);
    Choice.students = selected;
    Choice.month_first = Choice.month_last = 46266;
    LayOut(code);
    DataFolder = folder;
    Open(portal);
  }
  // What the box shows.
  Rows Screen() {
    FixedPrintTarget box;
    portal.picture1.Draw(box);
    return FixedPrintTarget::RowsOf(box.job->pages.back());
  }
  static std::string FileBytes(const std::string& path) { return ReadWholeFile(path).bytes; }
  void Zoom(int step) { driver->Choose("size", step); }

  frmprintpre portal;
};

TEST_F(FrmPrintPreTest, OpensAtTheFirstPageAtFullSize) {
  OpenReport(19, 120);
  EXPECT_EQ(portal.Caption, "Print Preview Portal");
  EXPECT_EQ(portal.size.List, (Rows{"50 %", "75 %", "100 %", "125 %", "150 %"}));
  EXPECT_EQ(portal.size.ListIndex, 2);
  EXPECT_EQ(Job.PageCount, 3);
  EXPECT_EQ(portal.pagenum.List, (Rows{"Page 1", "Page 2", "Page 3"}));
  EXPECT_EQ(portal.pagenum.ListIndex, 0);
  EXPECT_EQ(driver->Text("Pagel"), "3");
  EXPECT_EQ(driver->Text("Pagen"), " 1");
  EXPECT_EQ(portal.picture1.SheetWidth, 12240);
  EXPECT_EQ(portal.picture1.SheetHeight, 15840);
  EXPECT_EQ(portal.picture1.Zoom, 1);
  EXPECT_FALSE(driver->Visible("Frame1"));
}

TEST_F(FrmPrintPreTest, DrawsThePageOnScreen) {
  OpenReport(19, 120);
  EXPECT_EQ(Screen(), PageRows(1));
  driver->Choose("pagenum", 2);
  EXPECT_EQ(driver->Text("Pagen"), " 3");
  EXPECT_EQ(Screen(), PageRows(3));
  EXPECT_EQ(Screen(), PageRows(3));
  EXPECT_NE(PageRows(1), PageRows(3));
}

TEST_F(FrmPrintPreTest, TheEndStepsDrawAtTheirOwnScale) {
  OpenReport(19, 3);
  const std::vector<double> scales = {0.55, 0.75, 1, 1.25, 1.4};
  for (int step = 0; step < 5; ++step) {
    Zoom(step);
    EXPECT_EQ(portal.picture1.Zoom, scales[static_cast<std::size_t>(step)]);
  }
}

TEST_F(FrmPrintPreTest, ZoomKeepsTheLayout) {
  OpenReport(19, 3);
  const Rows full = Screen();
  const double unit = Job.CharUnit;
  Zoom(4);
  EXPECT_EQ(Screen(), full);
  EXPECT_EQ(Job.CharUnit, unit);
}

TEST_F(FrmPrintPreTest, ZoomGoesStepByStepAndStopsAtTheEnds) {
  OpenReport(19, 3);
  for (const int step : {3, 4, 4}) {
    driver->Press("one");
    EXPECT_EQ(portal.size.ListIndex, step);
  }
  EXPECT_EQ(driver->Text("size"), "150 %");
  for (const int step : {3, 2, 1, 0, 0}) {
    driver->Press("two");
    EXPECT_EQ(portal.size.ListIndex, step);
  }
  EXPECT_EQ(portal.picture1.Zoom, 0.55);
}

TEST_F(FrmPrintPreTest, AFittedPageHasNoneOfTheFiveSizes) {
  OpenReport(19, 3);
  Zoom(3);
  const unsigned before = portal.picture1.Revision;
  driver->Press("fitwidth");
  EXPECT_EQ(portal.picture1.Fit, SheetFit::kWidth);
  EXPECT_NE(portal.picture1.Revision, before);
  EXPECT_EQ(portal.size.ListIndex, -1);
  EXPECT_EQ(portal.size.List.size(), 5u);
  driver->Press("fitpage");
  EXPECT_EQ(portal.picture1.Fit, SheetFit::kPage);
}

TEST_F(FrmPrintPreTest, ASizeOrAStepEndsTheFit) {
  OpenReport(19, 3);
  driver->Press("fitpage");
  Zoom(1);
  EXPECT_EQ(portal.picture1.Fit, SheetFit::kZoom);
  EXPECT_EQ(portal.picture1.Zoom, 0.75);
  driver->Press("fitwidth");
  driver->Press("one");  // back to where the steps were left
  EXPECT_EQ(portal.picture1.Fit, SheetFit::kZoom);
  EXPECT_EQ(driver->Text("size"), "75 %");
  driver->Press("one");
  EXPECT_EQ(driver->Text("size"), "100 %");
}

TEST_F(FrmPrintPreTest, PagesAreTurned) {
  OpenReport(19, 120);
  const std::vector<std::pair<const char*, const char*>> turns = {
      {"five", " 2"}, {"five", " 3"},  {"five", " 3"}, {"four", " 2"},
      {"six", " 3"},  {"three", " 1"}, {"four", " 1"}};
  for (const auto& [button, page] : turns) {
    driver->Press(button);
    EXPECT_EQ(driver->Text("Pagen"), page) << button;
    EXPECT_EQ(driver->Text("pagenum"), "Page" + std::string(page));
  }
}

TEST_F(FrmPrintPreTest, EachTurnIsDrawnAnew) {
  OpenReport(19, 120);
  const unsigned before = portal.picture1.Revision;
  driver->Press("five");
  EXPECT_NE(portal.picture1.Revision, before);
}

TEST_F(FrmPrintPreTest, TheOnlyPageStays) {
  OpenReport(19, 3);
  for (const char* button : {"three", "four", "five", "six"}) {
    driver->Press(button);
    EXPECT_EQ(driver->Text("Pagen"), " 1") << button;
  }
}

TEST_F(FrmPrintPreTest, MonthsLieAcrossTheSheet) {
  OpenReport(8, 3);
  EXPECT_EQ(portal.picture1.SheetWidth, 15840);
  EXPECT_EQ(portal.picture1.SheetHeight, 12240);
}

TEST_F(FrmPrintPreTest, PrintsThePagesAndCopiesChosen) {
  OpenReport(19, 120);
  driver->Press("six");
  Zoom(0);
  screen.print_answer = PrintRange{.from_page = 2, .to_page = 3, .copies = 2};
  driver->Press("seven");
  ASSERT_EQ(screen.print_dialogs.size(), 1u);
  EXPECT_EQ(screen.print_dialogs[0].from_page, 1);
  EXPECT_EQ(screen.print_dialogs[0].to_page, 3);
  EXPECT_EQ(screen.print_dialogs[0].copies, 1);
  ASSERT_EQ(screen.print_jobs.size(), 2u);  // a job a copy
  for (const auto& job : screen.print_jobs) {
    ASSERT_EQ(job->pages.size(), 2u);
    EXPECT_EQ(FixedPrintTarget::RowsOf(job->pages[0]), PageRows(2));
    EXPECT_EQ(FixedPrintTarget::RowsOf(job->pages[1]), PageRows(3));
    EXPECT_TRUE(job->ended);
    EXPECT_FALSE(job->killed);
  }
  EXPECT_EQ(screen.PortalBeside("printmsg"), nullptr);
  // The Portal begins again.
  EXPECT_EQ(driver->Text("Pagen"), " 1");
  EXPECT_EQ(portal.size.ListIndex, 2);
}

TEST_F(FrmPrintPreTest, ACancelledPrintDialogPrintsNothing) {
  OpenReport(19, 120);
  driver->Press("five");
  screen.print_answer = std::nullopt;
  driver->Press("seven");
  EXPECT_TRUE(screen.print_jobs.empty());
  EXPECT_EQ(driver->Text("Pagen"), " 2");
}

TEST_F(FrmPrintPreTest, AnEndBelowTheBeginningIsLifted) {
  OpenReport(19, 120);
  screen.print_answer = PrintRange{.from_page = 3, .to_page = 1, .copies = 1};
  driver->Press("seven");
  ASSERT_EQ(screen.print_jobs.size(), 1u);
  ASSERT_EQ(screen.print_jobs[0]->pages.size(), 1u);
  EXPECT_EQ(FixedPrintTarget::RowsOf(screen.print_jobs[0]->pages[0]), PageRows(3));
}

TEST_F(FrmPrintPreTest, MonthsPrintAcrossTheSheet) {
  OpenReport(8, 3);
  driver->Press("seven");
  ASSERT_EQ(screen.print_jobs.size(), 1u);
  EXPECT_TRUE(screen.print_jobs[0]->landscape);
}

TEST_F(FrmPrintPreTest, CancelInTheMiddleOfAPrintDropsItAndThePreviewGoesOn) {
  OpenReport(19, 120);
  screen.print_answer = PrintRange{.from_page = 1, .to_page = 3, .copies = 1};
  screen.on_pump = [this] {
    auto* message = dynamic_cast<printmsg*>(screen.PortalBeside("printmsg"));
    if (message && message->progress.Value == 2) PortalDriver(*message).Press("cancel");
  };
  driver->Press("seven");
  screen.on_pump = nullptr;
  ASSERT_EQ(screen.print_jobs.size(), 1u);
  EXPECT_TRUE(screen.print_jobs[0]->killed);
  EXPECT_TRUE(screen.print_jobs[0]->ended);
  EXPECT_EQ(screen.print_jobs[0]->pages.size(), 2u);
  EXPECT_EQ(Screen(), PageRows(1));
  EXPECT_FALSE(PageRows(1).empty());
}

TEST_F(FrmPrintPreTest, CancelInOneCopyLeavesOutTheOthers) {
  OpenReport(19, 120);
  screen.print_answer = PrintRange{.from_page = 1, .to_page = 2, .copies = 3};
  screen.on_pump = [this] {
    Portal* message = screen.PortalBeside("printmsg");
    if (message && screen.print_jobs.size() == 2) PortalDriver(*message).Press("cancel");
  };
  driver->Press("seven");
  screen.on_pump = nullptr;
  ASSERT_EQ(screen.print_jobs.size(), 2u);
  EXPECT_FALSE(screen.print_jobs[0]->killed);
  EXPECT_TRUE(screen.print_jobs[1]->killed);
}

TEST_F(FrmPrintPreTest, AKeyInTheMiddleOfADrawingOnlyTurnsPages) {
  OpenReport(13, 2, {1, 2});
  const Rows whole = Screen();
  driver->Press("nine");  // both students wait to be saved
  bool pumped = false;
  screen.on_pump = [&] {
    if (pumped) return;
    pumped = true;
    for (const char* button : {"seven", "nine", "ten", "pdf", "Command5", "twelve"})
      driver->Press(button);
    driver->Press("five");
  };
  EXPECT_EQ(Screen(), whole);
  screen.on_pump = nullptr;
  EXPECT_TRUE(pumped);
  EXPECT_TRUE(screen.print_dialogs.empty());
  EXPECT_TRUE(screen.file_dialogs.empty());
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(driver->Text("Pagen"), " 2");
  EXPECT_EQ(Screen(), PageRows(2));
}

TEST_F(FrmPrintPreTest, ASaveHoldsOffAnother) {
  OpenReport(1, 3);
  const std::string whole = ReportText();
  bool pumped = false;
  screen.on_pump = [&] {
    pumped = true;
    for (const char* button : {"seven", "nine", "ten", "pdf", "twelve"}) driver->Press(button);
  };
  screen.ExpectFileDialog(Path("grades.txt"));
  driver->Press("nine");
  screen.on_pump = nullptr;
  EXPECT_TRUE(pumped);
  EXPECT_EQ(screen.file_dialogs.size(), 1u);
  EXPECT_TRUE(screen.print_dialogs.empty());
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(FileBytes(Path("grades.txt")), "\xEF\xBB\xBF" + whole);
}

// A printer that leaves 240 twips at each edge of the sheet.
class EdgedScreen : public HeadlessSurroundings {
 public:
  std::unique_ptr<PrintTarget> MakePrintBox(bool landscape) override {
    auto box = HeadlessSurroundings::MakePrintBox(landscape);
    box->ScaleWidth -= 480;
    box->ScaleHeight -= 480;
    return box;
  }
};

TEST_F(FrmPrintPreTest, ThePageIsDrawnForWhatThePrinterReaches) {
  EdgedScreen edged;
  edged.now = screen.now;
  SetPlatform(&edged);
  OpenReport(19, 3);
  FixedPrintTarget whole_sheet;
  portal.picture1.Draw(whole_sheet);
  SetPlatform(&screen);
  EXPECT_EQ(portal.picture1.SheetWidth, 12240);
  EXPECT_EQ(whole_sheet.ScaleWidth, 11760);
  EXPECT_EQ(whole_sheet.ScaleHeight, 15360);
  EXPECT_EQ(Job.PageTextWidth, 10760);
  EXPECT_EQ(Job.PageBottom, 15360 - 1000 - 960);
  const PrintedText& date = whole_sheet.job->pages.back().texts.front();
  EXPECT_EQ(date.text, "9/1/2026");
  EXPECT_EQ(date.x, 10760 - 960);
}

// The teacher sets the printer up across the sheet while the print dialog is open.
class TurnedScreen : public HeadlessSurroundings {
 public:
  std::unique_ptr<PrintTarget> MakePrintBox(bool landscape) override {
    return HeadlessSurroundings::MakePrintBox(landscape || across);
  }
  std::unique_ptr<PrintTarget> OpenPrinter(bool landscape, std::string_view title) override {
    return HeadlessSurroundings::OpenPrinter(landscape || across, title);
  }
  std::optional<PrintRange> PrintDialog(const PrintRange& offered) override {
    across = true;
    print_answer = offered;
    return HeadlessSurroundings::PrintDialog(offered);
  }
  bool across = false;
};

TEST_F(FrmPrintPreTest, ASheetTurnedInThePrintDialogIsLaidOutAgainAndPrintedWhole) {
  TurnedScreen turned;
  turned.now = screen.now;
  SetPlatform(&turned);
  OpenReport(19, 120);
  const int upright = Job.PageCount;
  driver->Press("seven");
  SetPlatform(&screen);
  EXPECT_GT(Job.PageCount, upright);
  ASSERT_EQ(turned.print_jobs.size(), 1u);
  EXPECT_EQ(turned.print_jobs[0]->pages.size(), static_cast<std::size_t>(Job.PageCount));
  EXPECT_TRUE(turned.print_jobs[0]->landscape);
  EXPECT_EQ(portal.picture1.SheetWidth, 15840);
  EXPECT_EQ(portal.pagenum.List.size(), static_cast<std::size_t>(Job.PageCount));
  // The sheet across is 12240 high: nothing stands below.
  for (const PrintedPage& page : turned.print_jobs[0]->pages)
    for (const PrintedText& text : page.texts) EXPECT_LE(text.y + 240, 12240 - 1000) << text.text;
}

TEST_F(FrmPrintPreTest, KeysTurnPagesAndZoom) {
  OpenReport(19, 120);
  driver->Press("page_on");
  EXPECT_EQ(driver->Text("Pagen"), " 2");
  driver->Press("page_back");
  driver->Press("page_back");
  EXPECT_EQ(driver->Text("Pagen"), " 1");
  driver->Press("zoom_in");
  driver->Press("zoom_in_unshifted");
  EXPECT_EQ(driver->Text("size"), "150 %");
  driver->Press("zoom_out");
  EXPECT_EQ(driver->Text("size"), "125 %");
}

TEST_F(FrmPrintPreTest, APdfIsCalledAsThePrintoutOrTheClass) {
  OpenReport(19, 3);
  const auto offered = [this] {
    screen.ExpectFileDialog(std::nullopt);
    driver->Press("pdf");
    return screen.file_dialogs.back().filename;
  };
  Job.PrintTitle = " Term 1/2 \xe9 ";
  EXPECT_EQ(offered(), "Term 1-2 \xc3\xa9.pdf");
  Job.PrintTitle = "";
  Current().FileName = "/x/Math 5.TYR";
  EXPECT_EQ(offered(), "Math 5.pdf");
}

TEST_F(FrmPrintPreTest, APrintHoldsOffAnotherAndTheExit) {
  OpenReport(19, 3);
  bool pumped = false;
  screen.on_pump = [&] {
    if (pumped || !screen.PortalBeside("printmsg")) return;
    pumped = true;
    const unsigned drawn = portal.picture1.Revision;
    portal.ShowPrint();
    portal.showscreen();
    portal.Command5_Click();
    portal.QueryUnload();
    EXPECT_EQ(portal.picture1.Revision, drawn);
  };
  driver->Press("seven");
  screen.on_pump = nullptr;
  EXPECT_TRUE(pumped);
  EXPECT_EQ(screen.print_jobs.size(), 1u);
  EXPECT_FALSE(portal.Unloaded());
}

TEST_F(FrmPrintPreTest, FullTitlesArePaperOnly) {
  OpenReport(4, 3);
  const std::vector<std::pair<const char*, std::string>> functions = {
      {"nine", "Save to Text File"}, {"ten", "Save to HTML"}, {"eight", "E-mail"}};
  for (const auto& [button, function] : functions) {
    screen.ExpectBox("The '" + function +
                     "' function is unavailable with the 'Roll Book-Full Titles' print option. "
                     "Choose the 'Roll Book' print option instead.");
    driver->Press(button);
    EXPECT_EQ(screen.boxes.back().title, "Note to the Teacher");
  }
  EXPECT_TRUE(screen.file_dialogs.empty());
  EXPECT_EQ(window.status, "");
  driver->Press("seven");
  EXPECT_EQ(screen.print_jobs.size(), 1u);
  screen.ExpectFileDialog(Path("book.pdf"));
  driver->Press("pdf");
  EXPECT_EQ(screen.print_jobs.size(), 2u);
}

TEST_F(FrmPrintPreTest, EmailLeavesTheReportAsATextThatNobodyElseReads) {
  OpenReport(19, 3);
  ProgramFolder = folder;
  std::string text;
  std::filesystem::perms rights{};
  screen.ExpectPortal("frmSendMail", [&](PortalDriver& mail) {
    text = FileBytes(Path("tempfile"));
    rights = std::filesystem::status(Path("tempfile")).permissions();
    mail.Press("cmdClose");
  });
  driver->Press("eight");
  EXPECT_NE(text, "");
  EXPECT_EQ(text, ReportText());
  EXPECT_EQ(rights, std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
  EXPECT_FALSE(std::filesystem::exists(Path("tempfile")));
}

TEST_F(FrmPrintPreTest, SavesTheReportAsText) {
  OpenReport(19, 3);
  screen.ExpectFileDialog(Path("roster.txt"));
  driver->Press("nine");
  ASSERT_EQ(screen.file_dialogs.size(), 1u);
  const FileDialogRequest& request = screen.file_dialogs[0];
  EXPECT_TRUE(request.save);
  EXPECT_TRUE(request.overwrite_prompt);
  EXPECT_EQ(request.filter, "Text Files (*.txt)|*.TXT");
  EXPECT_EQ(request.default_extension, "TXT");
  EXPECT_EQ(request.folder, folder);
  EXPECT_EQ(request.help_context, 120);
  EXPECT_EQ(window.status, "roster.txt saved.");
  EXPECT_EQ(FileBytes(Path("roster.txt")), "\xEF\xBB\xBF" + ReportText());
  EXPECT_NE(ReportText().find("Class Roster"), std::string::npos);
}

TEST_F(FrmPrintPreTest, TextIsSavedInTheEncodingThatTheDialogAnswers) {
  OpenReport(19, 3);
  Current().Students[1].lastname = "Mu\xF1oz";
  const std::string text = ReportText();
  ASSERT_NE(text.find("Mu\xF1oz"), std::string::npos);
  screen.ExpectFileDialog(Path("roster.txt"));
  driver->Press("nine");
  EXPECT_EQ(FileBytes(Path("roster.txt")), "\xEF\xBB\xBF" + Utf8FromCodePage(text));
  screen.encoding_answer = TextEncoding::kWindows1252;
  screen.ExpectFileDialog(Path("roster.txt"));
  driver->Press("nine");
  EXPECT_EQ(FileBytes(Path("roster.txt")), text);
  screen.encoding_answer.reset();
  screen.ExpectFileDialog(Path("roster.txt"));
  driver->Press("nine");
  EXPECT_EQ(FileBytes(Path("roster.txt")), text);
  EXPECT_EQ(screen.settings["TALLYRLG8/startup/ENCODING"], "windows-1252");
}

TEST_F(FrmPrintPreTest, NoReportGoesOverAnOpenClass) {
  OpenReport(19, 3);
  Current().FileName = Path("class.TYR");
  ASSERT_EQ(ReplaceFile(Path("class.TYR"), "ty8 and so on", OldTail::kDrop), 0);
  std::filesystem::create_symlink(Path("class.TYR"), Path("link.txt"));
  for (const char* button : {"nine", "ten", "pdf"}) {
    for (const char* name : {"class.TYR", "link.txt"}) {
      screen.ExpectFileDialog(Path(name));
      screen.ExpectBox(" The file is already open ");
      driver->Press(button);
      EXPECT_EQ(FileBytes(Path("class.TYR")), "ty8 and so on") << button;
    }
  }
}

TEST_F(FrmPrintPreTest, SavesTheReportAsHtml) {
  OpenReport(19, 3);
  screen.ExpectFileDialog(Path("roster.htm"));
  driver->Press("ten");
  const FileDialogRequest& request = screen.file_dialogs[0];
  EXPECT_EQ(request.filter, "HTML Files (*.htm)|*.HTM");
  EXPECT_EQ(request.default_extension, "HTM");
  EXPECT_TRUE(request.overwrite_prompt);
  EXPECT_EQ(request.help_context, 120);
  EXPECT_EQ(window.status, "roster.htm saved.");
  EXPECT_EQ(FileBytes(Path("roster.htm")), ReportHtml());
  EXPECT_FALSE(std::filesystem::exists(Path("tempfile")));
}

TEST_F(FrmPrintPreTest, TheNextSaveBeginsWhereTheLastOneEnded) {
  OpenReport(19, 3);
  std::filesystem::create_directory(Path("out"));
  screen.ExpectFileDialog(Path("out/roster.txt"));
  driver->Press("nine");
  screen.ExpectFileDialog(std::nullopt);
  driver->Press("ten");
  EXPECT_EQ(screen.file_dialogs[1].folder, Path("out"));
}

TEST_F(FrmPrintPreTest, ACancelledDialogSavesNothing) {
  OpenReport(19, 3);
  for (const char* button : {"nine", "ten", "pdf"}) {
    screen.ExpectFileDialog(std::nullopt);
    driver->Press(button);
  }
  EXPECT_TRUE(std::filesystem::is_empty(folder));
  EXPECT_TRUE(screen.print_jobs.empty());
}

TEST_F(FrmPrintPreTest, AFileThatCannotBeWrittenIsTold) {
  OpenReport(19, 3);
  for (const char* button : {"nine", "ten"}) {
    screen.ExpectFileDialog(Path("no/such/folder/file"));
    screen.ExpectBox("File Error");
    driver->Press(button);
    EXPECT_EQ(screen.boxes.back().title, "Note to the Teacher");
  }
  screen.ExpectFileDialog(Path("file.pdf"));
  screen.printer_refuses = true;
  screen.ExpectBox("File Error");
  driver->Press("pdf");
}

TEST_F(FrmPrintPreTest, SavesAllPagesAsPdf) {
  OpenReport(19, 120);
  screen.ExpectFileDialog(Path("roster.pdf"));
  driver->Press("pdf");
  EXPECT_EQ(screen.file_dialogs[0].filter, "PDF Files (*.pdf)|*.PDF");
  EXPECT_EQ(screen.file_dialogs[0].default_extension, "PDF");
  ASSERT_EQ(screen.print_jobs.size(), 1u);
  EXPECT_EQ(screen.print_jobs[0]->path, Path("roster.pdf"));
  EXPECT_EQ(screen.print_jobs[0]->title, "MATH");
  EXPECT_EQ(screen.print_jobs[0]->pages.size(), 3u);
  EXPECT_TRUE(screen.print_jobs[0]->ended);
  EXPECT_EQ(window.status, "roster.pdf saved.");
}

TEST_F(FrmPrintPreTest, APdfThatCameToNothingIsNotConfirmed) {
  OpenReport(19, 3);
  screen.on_pump = [this] {
    if (!screen.print_jobs.empty()) screen.print_jobs[0]->fails = true;
  };
  screen.ExpectFileDialog(Path("roster.pdf"));
  driver->Press("pdf");
  EXPECT_TRUE(screen.print_jobs.at(0)->fails);
  EXPECT_EQ(window.status, "");
}

TEST_F(FrmPrintPreTest, CancelInTheMiddleOfAPdfDropsItAndThePreviewGoesOn) {
  OpenReport(19, 120);
  driver->Press("five");
  screen.on_pump = [this] {
    auto* message = dynamic_cast<printmsg*>(screen.PortalBeside("printmsg"));
    if (message && message->progress.Value == 3) PortalDriver(*message).Press("cancel");
  };
  screen.ExpectFileDialog(Path("roster.pdf"));
  driver->Press("pdf");
  screen.on_pump = nullptr;
  ASSERT_EQ(screen.print_jobs.size(), 1u);
  EXPECT_TRUE(screen.print_jobs[0]->killed);
  EXPECT_EQ(screen.print_jobs[0]->pages.size(), 3u);
  EXPECT_EQ(driver->Text("Pagen"), " 2");
  EXPECT_EQ(Screen(), PageRows(2));
}

TEST_F(FrmPrintPreTest, OneStudentIsSavedAtOnce) {
  OpenReport(13, 3, {2});
  screen.ExpectFileDialog(Path("one.txt"));
  driver->Press("nine");
  EXPECT_FALSE(driver->Visible("Frame1"));
  EXPECT_NE(FileBytes(Path("one.txt")).find("Last102"), std::string::npos);
}

TEST_F(FrmPrintPreTest, SeveralStudentsAreAskedAbout) {
  OpenReport(13, 3, {1, 2, 3});
  driver->Press("nine");
  EXPECT_TRUE(driver->Visible("Frame1"));
  EXPECT_FALSE(driver->Visible("size"));
  EXPECT_FALSE(driver->Visible("pagenum"));
  EXPECT_EQ(driver->Text("all"), "All selected students");
  EXPECT_EQ(driver->Text("current"), "Current student only");
  EXPECT_EQ(driver->Text("Command5"), "Con&tinue");
  EXPECT_EQ(driver->Text("Command7"), "&Cancel");
  EXPECT_TRUE(portal.all.Value);
  driver->Press("Command7");
  EXPECT_FALSE(driver->Visible("Frame1"));
  EXPECT_TRUE(driver->Visible("size"));
  EXPECT_TRUE(driver->Visible("pagenum"));
  EXPECT_TRUE(screen.file_dialogs.empty());
}

TEST_F(FrmPrintPreTest, EscapeLeavesTheFrameAndThenThePortal) {
  OpenReport(13, 3, {1, 2, 3});
  driver->Press("nine");
  driver->CloseWindow();
  EXPECT_FALSE(driver->Visible("Frame1"));
  EXPECT_FALSE(portal.Unloaded());
  driver->CloseWindow();
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmPrintPreTest, ExitLeavesThePortalEvenFromTheFrame) {
  OpenReport(13, 3, {1, 2, 3});
  driver->Press("nine");
  driver->Press("twelve");
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmPrintPreTest, AllSelectedStudentsAreSaved) {
  OpenReport(13, 3, {1, 3});
  driver->Press("nine");
  screen.ExpectFileDialog(Path("all.txt"));
  driver->Press("Command5");
  const std::string text = FileBytes(Path("all.txt"));
  EXPECT_NE(text.find("Last101"), std::string::npos);
  EXPECT_EQ(text.find("Last102"), std::string::npos);
  EXPECT_NE(text.find("Last103"), std::string::npos);
  EXPECT_TRUE(driver->Visible("size"));
}

TEST_F(FrmPrintPreTest, TheStudentOnScreenAloneIsSaved) {
  OpenReport(13, 3, {1, 3});
  driver->Press("five");
  driver->Press("ten");
  driver->Tick("current");
  EXPECT_FALSE(portal.all.Value);
  screen.ExpectFileDialog(Path("current.htm"));
  driver->Press("Command5");
  const std::string html = FileBytes(Path("current.htm"));
  EXPECT_EQ(html.find("Last101"), std::string::npos);
  EXPECT_NE(html.find("Last103"), std::string::npos);
  EXPECT_EQ(Choice.students, (std::vector<i16>{1, 3}));
}

TEST_F(FrmPrintPreTest, HelpFollowsTheReport) {
  OpenReport(19, 3);
  for (const auto& [code, topic] : std::map<i16, int>{{11, 540}, {12, 540}, {18, 440}, {1, 440}}) {
    Job.ReportCode = code;
    driver->Press("eleven");
    EXPECT_EQ(screen.help_shown, topic) << code;
  }
}

TEST_F(FrmPrintPreTest, LeavingNewAveragesOffersToSaveThem) {
  OpenReport(19, 3);
  Job.ReportCode = 11;
  Current().AverageWork1 = 2;
  screen.ExpectBox(kSaveQuestion, BoxAnswer::kYes);
  driver->Press("twelve");
  EXPECT_EQ(portal.Next(), "frmgradesave");
  EXPECT_EQ(screen.boxes.back().title, "Save File");
  EXPECT_EQ(screen.boxes.back().buttons, BoxButtons::kYesNo);
  EXPECT_EQ(screen.boxes.back().icon, BoxIcon::kQuestion);
}

TEST_F(FrmPrintPreTest, OnNoItLeaves) {
  OpenReport(19, 3);
  Job.ReportCode = 11;
  Current().Method = 3;
  Current().AverageWork2 = 1;
  screen.ExpectBox(kSaveQuestion, BoxAnswer::kNo);
  driver->CloseWindow();
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(portal.Next(), "");
}

// The weights of items are not asked for under weights of types, nor the other way round.
TEST_F(FrmPrintPreTest, AveragesThatAreKeptAlreadyAreLeftWithoutAQuestion) {
  OpenReport(19, 3);
  Job.ReportCode = 11;
  for (const auto& [method, work1, work2] :
       {std::array<i16, 3>{0, 0, 0}, {0, 0, 2}, {1, 2, 0}, {2, 0, 1}, {3, 0, 0}}) {
    Current().Method = method;
    Current().AverageWork1 = work1;
    Current().AverageWork2 = work2;
    frmprintpre fresh;
    fresh.Load();
    PortalDriver(fresh).Press("twelve");
    EXPECT_TRUE(fresh.Unloaded());
    EXPECT_EQ(fresh.Next(), "") << method;
  }
}

TEST_F(FrmPrintPreTest, WithoutAMethodNothingIsOffered) {
  OpenReport(19, 3);
  Job.ReportCode = 11;
  Current().Method = 5;
  driver->Press("twelve");
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmPrintPreTest, OtherReportsAreLeftAtOnce) {
  OpenReport(19, 3);
  driver->Press("twelve");
  EXPECT_TRUE(portal.Unloaded());
}

}  // namespace
}  // namespace tallyroll
