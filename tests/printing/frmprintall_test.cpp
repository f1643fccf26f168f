// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/frmprintall.h"

#include <map>

#include "printing/printmsg.h"
#include "tests/printing/print_portal_test.h"

namespace tallyroll {
namespace {

const std::string kChooseName = "Choose the NAME of the student whose record you wish to print.";
const std::string kChooseType = "You must select at least one type.";

class FrmPrintAllTest : public PrintPortalTest {
 protected:
  FrmPrintAllTest() {
    Current().Method = 0;
    AddGrade("Quiz 1", "Q ", "9/8/2026");
    AddGrade("Test 1", "T ", "10/2/2026");
    EnrolMany(3);
    AddSummary("Fall");
    AddSummary("Winter");
    for (Student& student : Current().Students) {
      ReDim(student.SummaryAbsent, 2, FixedText<5>("0"));
      ReDim(student.SummaryLate, 2, ShortText("0"));
      ReDim(student.SummaryDetail, 2, ShortText(" 0/ 0/ 0/ 0/"));
    }
    AddDay(46274);  // 9 September 2026
    AddDay(46300);  // 5 October 2026
  }
  void OpenAt(int tab) {
    OpenState = tab;
    Open(portal);
  }
  void Choose(std::string_view option) { driver->Tick(option); }
  void Print() {
    ExpectTitle();
    driver->Press("prints");
  }
  // The preview comes up with this many pages, and is left.
  void Preview(int pages) {
    ExpectTitle();
    screen.ExpectPortal("frmprintpre", [pages](PortalDriver& work) {
      EXPECT_EQ(work.Text("Pagel"), PlainNumberText(pages));
      work.portal().Unload();
    });
    driver->Press("preview");
  }
  std::size_t PagesPrinted() const {
    return screen.print_jobs.empty() ? 0 : screen.print_jobs.back()->pages.size();
  }

  frmprintall portal;
};

TEST_F(FrmPrintAllTest, OpensAtTheTabThatTheMenuAsks) {
  for (const auto& [state, tab] : std::map<int, int>{{1, 0}, {2, 1}, {3, 2}, {69, 3}, {0, 3}}) {
    OpenState = state;
    frmprintall fresh;
    fresh.Load();
    EXPECT_EQ(fresh.TabStrip1.Selected, tab) << state;
  }
}

TEST_F(FrmPrintAllTest, SaysWhatItIs) {
  OpenAt(1);
  EXPECT_EQ(portal.Caption, "Printer Portal");
  EXPECT_EQ(portal.TabStrip1.Tabs, (Rows{"&Full Class", "Individual &Student(s)",
                                         "Class &Roster/Supp. Info.", "&Computed Average"}));
}

TEST_F(FrmPrintAllTest, EveryChoiceHasItsCaption) {
  OpenAt(1);
  const std::map<std::string, std::string> captions = {
      {"allgrades", "All Grades"},
      {"missing", "Missing Grades"},
      {"onegrade", "One Grade"},
      {"rollbook", "Roll Book"},
      {"rollbookTitle", "Roll Book-Full Titles"},
      {"allatt", "Daily Attendance by month"},
      {"attfullone", "One Summary Attendance"},
      {"allattsumm", "All Summary Attendance"},
      {"allgrades1", "All Grades"},
      {"missing1", "Missing Grades"},
      {"gradesummary", "Summary of Grades"},
      {"oneatt", "Daily Attendance"},
      {"sumatt", "Summary Attendance"},
      {"Option1", "Student Roster"},
      {"Option5", "Student Roster Grid Form"},
      {"Option2", "Full Class Supplementary Info."},
      {"Option3", "One Student Supplementary Info."},
      {"Option4", "Class Information"},
      {"fullclass", "Full Class"},
      {"onestudent", "All Grades"},
      {"sumgrades", "Summary of Grades"},
      {"attendance1", "Att. Summary"},
      {"comment1", "Comments"},
      {"parentsig", "Parent Sig."},
      {"school", "School"},
      {"teacher", "Teacher"},
      {"attendance", "Att. Summary  (Total Abs/Late)"},
      {"comments", "Comments"},
      {"printcode", "Print Code Details"},
      {"onesort", "Sort Options"},
      {"sort1", "None"},
      {"sort2", "By Type - All"},
      {"sort3", "By Type - Some"},
      {"none", "None"},
      {"highlow", "Rank - High to Low"},
      {"lowhigh", "Rank - Low to High"},
      {"roll", "Show on Printout"},
      {"rollid", "ID"},
      {"rollname", "Name"},
      {"rollboth", "Name and ID"},
      {"sort", "Roll Book Print Options"},
      {"sort_None", "None"},
      {"all_type", "By Type - All"},
      {"some_type", "By Type - Select"},
      {"all_date", "By Date - ALL"},
      {"some_date", "By Date - Select"},
      {"date_range", "Date Range"},
      {"FrameAtt", "Monthly Attendance"},
      {"firstmonth", "What is the first month you want to print attendance for?"},
      {"lastmonth", "What is the last month you want to print attendance for?"},
      {"titleframe", "Titles"},
      {"choose", "Choose All"},
      {"clear", "Clear List"},
      {"prints", "&Print"},
      {"preview", "P&review"},
      {"cancel", "E&xit"}};
  for (const auto& [name, caption] : captions) EXPECT_EQ(driver->Text(name), caption) << name;
}

TEST_F(FrmPrintAllTest, EachTabBeginsWithItsFirstReport) {
  OpenAt(1);
  EXPECT_TRUE(portal.allgrades.Value);
  EXPECT_TRUE(portal.allgrades1.Value);
  EXPECT_TRUE(portal.Option1.Value);
  EXPECT_TRUE(portal.fullclass.Value);
  EXPECT_FALSE(portal.missing.Value);
}

TEST_F(FrmPrintAllTest, ReportsOnWhatTheClassLacksAreOff) {
  Current().NumInstruments = 0;
  Current().Instruments.clear();
  Current().NumDays = 0;
  OpenAt(1);
  for (const char* name : {"allgrades", "missing", "onegrade", "rollbook", "rollbookTitle",
                           "allatt", "allgrades1", "missing1", "gradesummary", "oneatt"})
    EXPECT_FALSE(driver->Enabled(name)) << name;
  EXPECT_TRUE(driver->Enabled("attfullone"));
  EXPECT_TRUE(portal.attfullone.Value);
  EXPECT_TRUE(portal.sumatt.Value);
  driver->PickTab("TabStrip1", 3);
  EXPECT_FALSE(driver->Enabled("prints"));
  EXPECT_FALSE(driver->Enabled("preview"));
  driver->PickTab("TabStrip1", 2);
  EXPECT_TRUE(driver->Enabled("prints"));
}

TEST_F(FrmPrintAllTest, WithoutAMethodThereAreNoAverages) {
  Current().Method = 5;
  OpenAt(4);
  EXPECT_FALSE(driver->Enabled("fullclass"));
  EXPECT_FALSE(driver->Enabled("prints"));
}

TEST_F(FrmPrintAllTest, EachReportShowsItsOwnOptions) {
  OpenAt(1);
  const std::map<std::string, std::string> shown = {
      {"allgrades", "classboxes attendance"},
      {"missing", ""},
      {"onegrade", "roll sortgrade titleframe lsttitle"},
      {"rollbook", "classboxes roll sort"},
      {"rollbookTitle", "roll sort"},
      {"allatt", "roll FrameAtt"},
      {"attfullone", "roll titleframe lstatt"},
      {"allattsumm", "roll"}};
  const std::vector<std::string> frames = {"classboxes", "attendance", "studentboxes", "roll",
                                           "sortgrade",  "onesort",    "sort",         "FrameAtt",
                                           "titleframe", "lsttitle",   "lstatt",       "nameframe"};
  for (const auto& [option, expected] : shown) {
    Choose(option);
    std::string seen;
    for (const std::string& frame : frames)
      if (driver->Visible(frame)) seen += (seen.empty() ? "" : " ") + frame;
    EXPECT_EQ(seen, expected) << option;
  }
}

TEST_F(FrmPrintAllTest, OneStudentsReportsShowTheNames) {
  OpenAt(2);
  for (const char* option : {"missing1", "gradesummary", "oneatt", "sumatt", "allgrades1"}) {
    Choose(option);
    EXPECT_TRUE(driver->Visible("nameframe")) << option;
    EXPECT_EQ(driver->Visible("onesort"), std::string(option) == "allgrades1") << option;
  }
  driver->PickTab("TabStrip1", 2);
  EXPECT_FALSE(driver->Visible("nameframe"));
  Choose("Option3");
  EXPECT_TRUE(driver->Visible("nameframe"));
}

TEST_F(FrmPrintAllTest, OneOptionPutsOutTheOthers) {
  OpenAt(1);
  Choose("missing");
  Choose("rollbook");
  EXPECT_FALSE(portal.allgrades.Value);
  EXPECT_FALSE(portal.missing.Value);
  EXPECT_TRUE(portal.allgrades1.Value);  // of another tab
}

TEST_F(FrmPrintAllTest, PrintsTheWholeClass) {
  OpenAt(1);
  Print();
  ASSERT_EQ(screen.print_jobs.size(), 1u);
  EXPECT_TRUE(screen.print_jobs[0]->ended);
  EXPECT_FALSE(screen.print_jobs[0]->killed);
  EXPECT_EQ(FixedPrintTarget::RowsOf(screen.print_jobs[0]->pages[0])[1], " Full Grades Printout");
  EXPECT_EQ(Job.ReportCode, 1);
  EXPECT_EQ(Job.PrintTab, 1);
  EXPECT_EQ(screen.PortalBeside("printmsg"), nullptr);
  EXPECT_FALSE(portal.Unloaded());
}

TEST_F(FrmPrintAllTest, EveryReportHasItsCode) {
  OpenAt(1);
  const std::vector<std::tuple<int, const char*, int>> reports = {
      {0, "missing", 2},  {0, "rollbook", 3}, {0, "rollbookTitle", 4}, {0, "allattsumm", 16},
      {2, "Option1", 19}, {2, "Option5", 23}, {2, "Option2", 20},      {2, "Option4", 22}};
  for (const auto& [tab, option, code] : reports) {
    if (portal.TabStrip1.Selected != tab) driver->PickTab("TabStrip1", tab);
    Choose(option);
    Print();
    EXPECT_EQ(Job.ReportCode, code) << option;
    EXPECT_EQ(Job.PrintTab, tab + 1) << option;
    EXPECT_EQ(PagesPrinted(), static_cast<std::size_t>(Job.PageCount)) << option;
  }
}

TEST_F(FrmPrintAllTest, EveryReportOnStudentsHasItsCode) {
  OpenAt(2);
  driver->Press("choose");
  const std::vector<std::tuple<int, const char*, int>> reports = {
      {1, "allgrades1", 13}, {1, "missing1", 14}, {1, "gradesummary", 17}, {1, "oneatt", 15},
      {1, "sumatt", 24},     {2, "Option3", 21},  {3, "onestudent", 12},   {3, "sumgrades", 18}};
  for (const auto& [tab, option, code] : reports) {
    if (portal.TabStrip1.Selected != tab) driver->PickTab("TabStrip1", tab);
    Choose(option);
    Print();
    EXPECT_EQ(Job.ReportCode, code) << option;
    EXPECT_EQ(Job.PageCount, 3) << option;
    EXPECT_EQ(PagesPrinted(), 3u) << option;
  }
}

TEST_F(FrmPrintAllTest, TheWholeClassesAveragesAreShownButNotPrinted) {
  OpenAt(4);
  screen.ExpectBox(
      "The averages of the full class are printed from the preview. Choose Preview, then Print.");
  Print();
  EXPECT_TRUE(screen.print_jobs.empty());
  EXPECT_EQ(Job.PageCount, 0);
  Preview(1);
  EXPECT_EQ(Job.ReportCode, 11);
  EXPECT_TRUE(screen.print_jobs.empty());
}

TEST_F(FrmPrintAllTest, WithoutATitleNothingHappens) {
  OpenAt(1);
  for (const char* command : {"prints", "preview"}) {
    screen.ExpectPortal("printmsg", [](PortalDriver& work) { work.Press("exit"); });
    driver->Press(command);
  }
  EXPECT_TRUE(screen.print_jobs.empty());
}

TEST_F(FrmPrintAllTest, WithoutANameNothingIsPrinted) {
  OpenAt(2);
  for (const char* command : {"prints", "preview"}) {
    ExpectTitle();
    screen.ExpectBox(kChooseName);
    driver->Press(command);
  }
  EXPECT_EQ(screen.boxes.back().title, "Note to the Teacher");
  EXPECT_TRUE(screen.print_jobs.empty());
}

TEST_F(FrmPrintAllTest, OneStudentSupplementaryNeedsAName) {
  OpenAt(3);
  Choose("Option3");
  ExpectTitle();
  screen.ExpectBox(kChooseName);
  driver->Press("prints");
}

TEST_F(FrmPrintAllTest, ThreeStudentsMakeOnePageTable) {
  OpenAt(2);
  driver->Press("choose");
  Preview(3);
  EXPECT_EQ(Job.PageStudent, (std::vector<i16>{0, 1, 2, 3}));
}

TEST_F(FrmPrintAllTest, OnlyTheTickedStudentsArePrinted) {
  OpenAt(2);
  driver->Check("lstName", 0);
  driver->Check("lstName", 2);
  Print();
  EXPECT_EQ(Choice.students, (std::vector<i16>{1, 3}));
  EXPECT_EQ(PagesPrinted(), 2u);
}

TEST_F(FrmPrintAllTest, ChooseAllAndClearListTickAndUntick) {
  OpenAt(2);
  driver->Press("choose");
  EXPECT_EQ(portal.lstName.Checked, (std::vector<bool>{true, true, true}));
  driver->Press("clear");
  EXPECT_EQ(portal.lstName.Checked, (std::vector<bool>{false, false, false}));
}

TEST_F(FrmPrintAllTest, AStudentIsFoundThoughSortingMovesTheClass) {
  std::swap(Current().Students[1], Current().Students[3]);
  OpenAt(2);
  EXPECT_EQ(portal.lstName.List.at(0), "Last103, First\t103");
  driver->Check("lstName", 0);
  Print();
  EXPECT_EQ(Choice.students, (std::vector<i16>{3}));
  EXPECT_EQ(Current().Students[3].id, "103");
}

TEST_F(FrmPrintAllTest, ThePreviewWritesTheNamesInTheirNewOrder) {
  std::swap(Current().Students[1], Current().Students[3]);
  OpenAt(2);
  driver->Check("lstName", 0);
  Preview(1);
  EXPECT_EQ(portal.lstName.List.at(2), "Last103, First\t103");
  EXPECT_EQ(portal.lstName.Checked, (std::vector<bool>{false, false, true}));
}

TEST_F(FrmPrintAllTest, TwoOfOneNameAreTwoStudents) {
  NameMode = 57;
  Current().Students[2].lastname = "Last101";
  OpenAt(2);
  driver->Check("lstName", 0);
  driver->Check("lstName", 1);
  Print();
  EXPECT_EQ(Choice.students, (std::vector<i16>{1, 2}));
}

TEST_F(FrmPrintAllTest, OneGradeNeedsATitle) {
  OpenAt(1);
  Choose("onegrade");
  EXPECT_EQ(driver->Text("titleframe"), "Titles");
  EXPECT_EQ(portal.lsttitle.List, (Rows{"Quiz 1", "Test 1"}));
  ExpectTitle();
  screen.ExpectBox("Choose the TITLE of the evaluation item you wish to print.");
  driver->Press("preview");
  EXPECT_EQ(screen.boxes.back().icon, BoxIcon::kCritical);
  driver->Choose("lsttitle", 1);
  Choose("lowhigh");
  Print();
  EXPECT_EQ(Choice.grade, 2);
  EXPECT_EQ(Choice.rank, Rank::kLowToHigh);
  EXPECT_EQ(FixedPrintTarget::RowsOf(screen.print_jobs.back()->pages[0])[1], " Test 1");
}

TEST_F(FrmPrintAllTest, OneSummaryNeedsATitle) {
  OpenAt(1);
  Choose("attfullone");
  EXPECT_EQ(portal.lstatt.List, (Rows{"Fall", "Winter"}));
  ExpectTitle();
  screen.ExpectBox("Choose the TITLE of the attendance period you wish to print.");
  driver->Press("prints");
  EXPECT_EQ(screen.boxes.back().icon, BoxIcon::kCritical);
  driver->Choose("lstatt", 1);
  Print();
  EXPECT_EQ(Choice.summary, 2);
  EXPECT_EQ(Job.ReportCode, 9);
}

TEST_F(FrmPrintAllTest, TheMonthsBeginWithThoseOfTheClass) {
  OpenAt(1);
  Choose("allatt");
  EXPECT_EQ(driver->Text("firstmonth"),
            "What is the first month you want to print attendance for?");
  EXPECT_EQ(driver->Text("startmonth"), "September");
  EXPECT_EQ(driver->Text("strtyear"), "2026");
  EXPECT_EQ(driver->Text("endmonth"), "October");
  EXPECT_EQ(driver->Text("enyear"), "2026");
}

TEST_F(FrmPrintAllTest, TheMonthsStepOverTheYear) {
  OpenAt(1);
  Choose("allatt");
  for (int i = 0; i < 9; ++i) driver->Press("Command1");
  EXPECT_EQ(driver->Text("startmonth"), "December");
  EXPECT_EQ(driver->Text("strtyear"), "2025");
  driver->Press("Command2");
  EXPECT_EQ(driver->Text("startmonth"), "January");
  for (int i = 0; i < 3; ++i) driver->Press("Command4");
  EXPECT_EQ(driver->Text("endmonth"), "January");
  EXPECT_EQ(driver->Text("enyear"), "2027");
  driver->Press("Command3");
  EXPECT_EQ(driver->Text("endmonth"), "December");
}

TEST_F(FrmPrintAllTest, TheFirstMonthComesBeforeTheLast) {
  OpenAt(1);
  Choose("allatt");
  driver->Press("Command3");
  driver->Press("Command3");
  ExpectTitle();
  screen.ExpectBox("The start date must be less than the ending date");
  driver->Press("prints");
  EXPECT_TRUE(screen.print_jobs.empty());
}

TEST_F(FrmPrintAllTest, ASingleMonthPrintsAcrossTheSheet) {
  OpenAt(1);
  Choose("allatt");
  driver->Press("Command3");
  Print();
  ASSERT_EQ(screen.print_jobs.size(), 1u);
  EXPECT_TRUE(screen.print_jobs[0]->landscape);
  EXPECT_EQ(Choice.month_first, 46266);  // 1 September 2026
  EXPECT_EQ(Choice.month_last, 46266);
}

TEST_F(FrmPrintAllTest, ARollBookBySomeTypesNeedsAType) {
  OpenAt(1);
  Choose("rollbook");
  EXPECT_FALSE(driver->Visible("List4"));
  Choose("some_type");
  EXPECT_EQ(portal.rolltypes.some.List, (Rows{"Q    -  Quiz", "T    -  Test"}));
  for (const char* option : {"rollbook", "rollbookTitle"}) {
    Choose(option);
    ExpectTitle();
    screen.ExpectBox(kChooseType);
    driver->Press("preview");
  }
  driver->Check("List4", 1);
  Print();
  EXPECT_EQ(Choice.types, (Rows{"T"}));
  EXPECT_EQ(Choice.roll_order, RollBookOrder::kSomeTypes);
}

TEST_F(FrmPrintAllTest, TheRollBookTakesItsOrder) {
  OpenAt(1);
  Choose("rollbook");
  const std::vector<std::pair<const char*, RollBookOrder>> orders = {
      {"all_type", RollBookOrder::kAllTypes},
      {"all_date", RollBookOrder::kAllDates},
      {"some_date", RollBookOrder::kSomeDates},
      {"sort_None", RollBookOrder::kNone}};
  for (const auto& [option, order] : orders) {
    Choose(option);
    EXPECT_EQ(driver->Visible("ttypelist"), std::string(option) == "all_type");
    EXPECT_EQ(driver->Visible("date_range"), std::string(option) == "some_date");
    Print();
    EXPECT_EQ(Choice.roll_order, order) << option;
  }
}

TEST_F(FrmPrintAllTest, TheDateRangeBeginsWithThatOfTheGrades) {
  OpenAt(1);
  Choose("rollbook");
  Choose("some_date");
  EXPECT_EQ(portal.datestart.Value, 46273);  // 8 September
  EXPECT_EQ(portal.dateend.Value, 46297);    // 2 October
  driver->PickDate("datestart", 46290);
  Print();
  EXPECT_EQ(Choice.date_first, 46290);
  EXPECT_EQ(Choice.date_last, 46297);
}

TEST_F(FrmPrintAllTest, SomeTypesOfOneStudentAreAskedForBeforeTheName) {
  OpenAt(2);
  Choose("sort3");
  ExpectTitle();
  screen.ExpectBox(kChooseType);
  driver->Press("prints");
  driver->Check("List3", 0);
  ExpectTitle();
  screen.ExpectBox(kChooseName);
  driver->Press("prints");
  driver->Press("choose");
  Print();
  EXPECT_EQ(Choice.sort, TypeSort::kSomeTypes);
  EXPECT_EQ(Choice.types, (Rows{"Q"}));
}

TEST_F(FrmPrintAllTest, SomeTypesDoNotBindOtherReports) {
  OpenAt(2);
  Choose("sort3");
  Choose("missing1");
  driver->Press("choose");
  Print();
  EXPECT_EQ(PagesPrinted(), 3u);
}

TEST_F(FrmPrintAllTest, AllTypesOfOneStudentAreListed) {
  OpenAt(2);
  Choose("sort2");
  EXPECT_TRUE(driver->Visible("List2"));
  EXPECT_FALSE(driver->Visible("List3"));
  EXPECT_EQ(portal.onetypes.all.List, (Rows{"Q    -  Quiz", "T    -  Test"}));
}

TEST_F(FrmPrintAllTest, TheClassHasItsOwnBoxes) {
  OpenAt(1);
  driver->Tick("attendance");
  driver->Tick("printcode");
  Print();
  EXPECT_TRUE(Choice.attendance1);
  EXPECT_FALSE(Choice.comment1);
  EXPECT_TRUE(Choice.printcode);
}

TEST_F(FrmPrintAllTest, StudentsHaveTheirOwnBoxes) {
  OpenAt(2);
  for (const char* box : {"comment1", "parentsig", "school", "teacher"}) driver->Tick(box);
  driver->Press("choose");
  Print();
  EXPECT_FALSE(Choice.attendance1);
  EXPECT_TRUE(Choice.comment1);
  EXPECT_TRUE(Choice.parentsig);
  EXPECT_TRUE(Choice.school);
  EXPECT_TRUE(Choice.teacher);
}

TEST_F(FrmPrintAllTest, WhatIsShownBeginsWithTheDisplay) {
  for (const auto& [mode, shown] : std::map<int, Shown>{{68, Shown::kNameAndId},
                                                        {82, Shown::kNameAndId},
                                                        {57, Shown::kName},
                                                        {73, Shown::kId}}) {
    NameMode = static_cast<i16>(mode);
    frmprintall fresh;
    OpenState = 1;
    Open(fresh);
    Choose("allattsumm");
    Print();
    EXPECT_EQ(Choice.shown, shown) << mode;
    driver.reset();
  }
}

TEST_F(FrmPrintAllTest, AShownChoiceCounts) {
  OpenAt(1);
  Choose("rollbook");
  Choose("rollname");
  Print();
  EXPECT_EQ(Choice.shown, Shown::kName);
}

TEST_F(FrmPrintAllTest, APrinterThatRefusesIsTold) {
  OpenAt(1);
  screen.printer_refuses = true;
  screen.ExpectBox("The printer can't be used. Choose one at Printer Set Up.");
  Print();
  EXPECT_TRUE(driver->Enabled("prints"));
}

TEST_F(FrmPrintAllTest, ExitCloses) {
  OpenAt(1);
  driver->Press("cancel");
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmPrintAllTest, AClassWithoutStudentsPrintsItsHead) {
  Current().NumStudents = 0;
  Current().Students.clear();
  OpenAt(1);
  Print();
  EXPECT_EQ(Job.PageCount, 1);
  EXPECT_EQ(Job.PageFirst[1], 1);
  driver->PickTab("TabStrip1", 1);
  ExpectTitle();
  screen.ExpectBox(kChooseName);
  driver->Press("prints");
}

class CancelTest : public FrmPrintAllTest {
 protected:
  CancelTest() { EnrolMore(500); }
  static void EnrolMore(int count) {
    for (int i = 1; i <= count; ++i) {
      Student& student = Enrol("More", "First", PlainNumberText(1000 + i));
      ReDim(student.DailyMarks, 2);
    }
  }
};

TEST_F(CancelTest, InTheMiddleOfALayoutNothingIsPrinted) {
  OpenAt(1);
  CancelAtPump(300);
  Print();
  EXPECT_EQ(Job.PrintFlag, kPrintCancelled);
  EXPECT_TRUE(screen.print_jobs.empty());
  EXPECT_GT(Job.PageCount, 0);
  EXPECT_LT(Job.PageLast.back(), 300);
  EXPECT_EQ(screen.PortalBeside("printmsg"), nullptr);
}

TEST_F(CancelTest, InTheMiddleOfALayoutNothingIsShown) {
  OpenAt(1);
  CancelAtPump(300);
  ExpectTitle();
  driver->Press("preview");
  EXPECT_EQ(Job.PrintFlag, kPrintCancelled);
}

TEST_F(CancelTest, InTheMiddleOfStudentsEndsTheLoop) {
  OpenAt(2);
  Choose("missing1");
  driver->Press("choose");
  CancelAtPump(20);
  Print();
  EXPECT_EQ(Job.PrintFlag, kPrintCancelled);
  EXPECT_LT(Job.PageCount, 503);
  EXPECT_TRUE(screen.print_jobs.empty());
}

TEST_F(CancelTest, InTheMiddleOfAPrintDropsTheJob) {
  OpenAt(1);
  screen.on_pump = [this] {
    auto* message = dynamic_cast<printmsg*>(screen.PortalBeside("printmsg"));
    if (message && message->progress.Value == 2) PortalDriver(*message).Press("cancel");
  };
  Print();
  ASSERT_EQ(screen.print_jobs.size(), 1u);
  EXPECT_TRUE(screen.print_jobs[0]->killed);
  EXPECT_TRUE(screen.print_jobs[0]->ended);
  EXPECT_EQ(screen.print_jobs[0]->pages.size(), 2u);
  EXPECT_GT(Job.PageCount, 2);
  EXPECT_EQ(screen.PortalBeside("printmsg"), nullptr);
}

TEST_F(CancelTest, AfterACancelTheNextRunPrints) {
  OpenAt(1);
  CancelAtPump(300);
  Print();
  screen.on_pump = nullptr;
  Print();
  ASSERT_EQ(screen.print_jobs.size(), 1u);
  EXPECT_EQ(screen.print_jobs[0]->pages.size(), static_cast<std::size_t>(Job.PageCount));
  EXPECT_EQ(Job.PageLast.back(), 503);
}

TEST_F(CancelTest, ASecondRunWaitsForTheFirst) {
  OpenAt(1);
  int pressed = 0;
  screen.on_pump = [&] {
    if (++pressed > 3) return;
    portal.prints_Click();
    portal.preview_Click();
    portal.QueryUnload();
  };
  Print();
  EXPECT_GT(pressed, 3);
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(screen.print_jobs.size(), 1u);
}

TEST_F(FrmPrintAllTest, AGradeSavedFromThePreviewCanBeChosen) {
  OpenAt(1);
  Choose("onegrade");
  driver->Choose("lsttitle", 1);
  driver->PickTab("TabStrip1", 3);
  Choose("onestudent");
  Choose("sort3");
  driver->Check("List3", 1);
  Choose("fullclass");
  ExpectTitle();
  screen.ExpectPortal("frmprintpre", [](PortalDriver& work) {
    AddGrade("Average", "A ");
    for (std::size_t s = 1; s <= 3; ++s) Current().Students[s].Marks.emplace_back("90");
    work.portal().Unload();
  });
  driver->Press("preview");
  EXPECT_EQ(portal.lsttitle.List, (Rows{"Quiz 1", "Test 1", "Average"}));
  EXPECT_EQ(portal.lsttitle.ListIndex, 1);
  EXPECT_EQ(portal.onetypes.some.List,
            (Rows{"A    -  Averaged Grade", "Q    -  Quiz", "T    -  Test"}));
  EXPECT_EQ(portal.onetypes.Ticked(), (Rows{"T"}));
  driver->PickTab("TabStrip1", 0);
  driver->Choose("lsttitle", 2);
  ExpectTitle();
  driver->Press("prints");
  EXPECT_EQ(Job.PrintTitle, "");
  EXPECT_EQ(Choice.grade, 3);
}

}  // namespace
}  // namespace tallyroll
