// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/frmprintall.h"

#include "printing/reports/report_codes.h"
#include "printing/reports/reports.h"
#include "store/program_state.h"
#include "store/student_names.h"

namespace tallyroll {

// What a report is about. A class that has none of it is not offered the report.
enum class Needs { kNothing, kGrades, kDays, kSummaries, kAverages };

namespace {

bool Has(Needs needs) {
  const Class& c = Current();
  switch (needs) {
    case Needs::kGrades:
      return c.NumInstruments > 0;
    case Needs::kDays:
      return c.NumDays > 0;
    case Needs::kSummaries:
      return c.NumSummaries > 0;
    case Needs::kAverages:
      return HasAverages();
    case Needs::kNothing:
      break;
  }
  return true;
}

using F = frmprintall;

}  // namespace

struct frmprintall::Row {
  int tab;
  int code;
  std::string_view name;
  OptionButton frmprintall::*option;
  std::string_view caption;
  Needs needs = Needs::kNothing;
};

const frmprintall::Row frmprintall::kRows[] = {
    {1, 1, "allgrades", &F::allgrades, "All Grades", Needs::kGrades},
    {1, 2, "missing", &F::missing, "Missing Grades", Needs::kGrades},
    {1, 10, "onegrade", &F::onegrade, "One Grade", Needs::kGrades},
    {1, 3, "rollbook", &F::rollbook, "Roll Book", Needs::kGrades},
    {1, 4, "rollbookTitle", &F::rollbookTitle, "Roll Book-Full Titles", Needs::kGrades},
    {1, 8, "allatt", &F::allatt, "Daily Attendance by month", Needs::kDays},
    {1, 9, "attfullone", &F::attfullone, "One Summary Attendance", Needs::kSummaries},
    {1, 16, "allattsumm", &F::allattsumm, "All Summary Attendance", Needs::kSummaries},
    {2, 13, "allgrades1", &F::allgrades1, "All Grades", Needs::kGrades},
    {2, 14, "missing1", &F::missing1, "Missing Grades", Needs::kGrades},
    {2, 17, "gradesummary", &F::gradesummary, "Summary of Grades", Needs::kGrades},
    {2, 15, "oneatt", &F::oneatt, "Daily Attendance", Needs::kDays},
    {2, 24, "sumatt", &F::sumatt, "Summary Attendance", Needs::kSummaries},
    {3, 19, "Option1", &F::Option1, "Student Roster"},
    {3, 23, "Option5", &F::Option5, "Student Roster Grid Form"},
    {3, 20, "Option2", &F::Option2, "Full Class Supplementary Info."},
    {3, 21, "Option3", &F::Option3, "One Student Supplementary Info."},
    {3, 22, "Option4", &F::Option4, "Class Information"},
    {4, 11, "fullclass", &F::fullclass, "Full Class", Needs::kAverages},
    {4, 12, "onestudent", &F::onestudent, "All Grades", Needs::kAverages},
    {4, 18, "sumgrades", &F::sumgrades, "Summary of Grades", Needs::kAverages},
};

frmprintall::frmprintall() : Portal("frmprintall") {
  Caption = "Printer Portal";
  HelpContext = 410;
  TabStrip1.Tabs = {"&Full Class", "Individual &Student(s)", "Class &Roster/Supp. Info.",
                    "&Computed Average"};
  for (const Row& row : kRows) (this->*row.option).Caption = row.caption;
  attendance.Caption = "Att. Summary  (Total Abs/Late)";
  comments.Caption = comment1.Caption = "Comments";
  printcode.Caption = "Print Code Details";
  attendance1.Caption = "Att. Summary";
  parentsig.Caption = "Parent Sig.";
  school.Caption = "School";
  teacher.Caption = "Teacher";
  roll.Caption = "Show on Printout";
  rollid.Caption = "ID";
  rollname.Caption = "Name";
  rollboth.Caption = "Name and ID";
  none.Caption = "None";
  highlow.Caption = "Rank - High to Low";
  lowhigh.Caption = "Rank - Low to High";
  onesort.Caption = "Sort Options";
  sort1.Caption = sort_None.Caption = "None";
  sort2.Caption = all_type.Caption = "By Type - All";
  sort3.Caption = "By Type - Some";
  sort.Caption = "Roll Book Print Options";
  some_type.Caption = "By Type - Select";
  all_date.Caption = "By Date - ALL";
  some_date.Caption = "By Date - Select";
  date_range.Caption = "Date Range";
  FrameAtt.Caption = "Monthly Attendance";
  firstmonth.Caption = "What is the first month you want to print attendance for?";
  lastmonth.Caption = "What is the last month you want to print attendance for?";
  titleframe.Caption = "Titles";
  choose.Caption = "Choose All";
  clear.Caption = "Clear List";
  firstframe.Caption = "First Page";
  prints.Caption = "&Print";
  preview.Caption = "P&review";
  cancel.Caption = "E&xit";
}

void frmprintall::Declare(ControlTable& table) {
  table.Add("TabStrip1", TabStrip1).Change([this] { TabStrip1_Change(); });
  DeclareReports(table);
  DeclareBoxes(table);
  DeclareGroups(table);
  DeclareLists(table);
  FollowChoice(table);
  DeclareFirstPage(table);
  table.Add("prints", prints).Click([this] { prints_Click(); });
  table.Add("preview", preview).Click([this] { preview_Click(); });
  table.Add("cancel", cancel).Click([this] { cancel_Click(); });
}

// One option of a group puts out the others.
void frmprintall::DeclareOption(ControlTable& table, std::string_view name, OptionButton& option,
                                const Group& group) {
  table.Add(name, option).Click([this, &option, group] {
    for (OptionButton* other : group) other->Value = other == &option;
    ShowOptions();
  });
}

frmprintall::Group frmprintall::ReportsOf(int tab) {
  Group group;
  for (const Row& row : kRows)
    if (row.tab == tab) group.push_back(&(this->*row.option));
  return group;
}

void frmprintall::DeclareReports(ControlTable& table) {
  for (const Row& row : kRows)
    DeclareOption(table, row.name, this->*row.option, ReportsOf(row.tab));
}

void frmprintall::DeclareBoxes(ControlTable& table) {
  table.Add("classboxes", classboxes);
  table.Add("attendance", attendance);
  table.Add("comments", comments);
  table.Add("printcode", printcode);
  table.Add("studentboxes", studentboxes);
  table.Add("attendance1", attendance1);
  table.Add("comment1", comment1);
  table.Add("parentsig", parentsig);
  table.Add("school", school);
  table.Add("teacher", teacher);
}

void frmprintall::DeclareGroups(ControlTable& table) {
  const auto declare = [&](const std::vector<std::pair<std::string_view, OptionButton*>>& options) {
    Group group;
    for (const auto& [name, option] : options) group.push_back(option);
    for (const auto& [name, option] : options) DeclareOption(table, name, *option, group);
  };
  table.Add("roll", roll);
  declare({{"rollid", &rollid}, {"rollname", &rollname}, {"rollboth", &rollboth}});
  table.Add("sortgrade", sortgrade);
  declare({{"none", &none}, {"highlow", &highlow}, {"lowhigh", &lowhigh}});
  table.Add("onesort", onesort);
  declare({{"sort1", &sort1}, {"sort2", &sort2}, {"sort3", &sort3}});
  table.Add("List2", onetypes.all);
  table.Add("List3", onetypes.some);
  table.Add("sort", sort);
  declare({{"sort_None", &sort_None},
           {"all_type", &all_type},
           {"some_type", &some_type},
           {"all_date", &all_date},
           {"some_date", &some_date}});
  table.Add("sorttype", sorttype);
  table.Add("ttypelist", rolltypes.all);
  table.Add("List4", rolltypes.some);
  table.Add("date_range", date_range);
  table.Add("datestart", datestart);
  table.Add("dateend", dateend);
}

void frmprintall::DeclareLists(ControlTable& table) {
  table.Add("FrameAtt", FrameAtt);
  table.Add("firstmonth", firstmonth);
  table.Add("startmonth", start.month);
  table.Add("strtyear", start.year);
  table.Add("Command1", start.back).Click([this] { start.Step(-1); });
  table.Add("Command2", start.forward).Click([this] { start.Step(1); });
  table.Add("lastmonth", lastmonth);
  table.Add("endmonth", end.month);
  table.Add("enyear", end.year);
  table.Add("Command3", end.back).Click([this] { end.Step(-1); });
  table.Add("Command4", end.forward).Click([this] { end.Step(1); });
  table.Add("titleframe", titleframe);
  table.Add("lsttitle", lsttitle);
  table.Add("lstatt", lstatt);
  table.Add("nameframe", nameframe);
  table.Add("lstName", lstName);
  table.Add("choose", choose).Click([this] { choose_Click(); });
  table.Add("clear", clear).Click([this] { clear_Click(); });
}

void frmprintall::Load() {
  TabStrip1.Selected = OpenState >= 1 && OpenState <= 3 ? OpenState - 1 : 3;
  LoadReports();
  LoadShown();
  none.Value = sort1.Value = sort_None.Value = true;
  LoadDates();
  LoadGrades();
  LoadSummaries();
  lstName.Checks = true;
  for (int i = 1; i <= Current().NumStudents; ++i)
    lstName.List.push_back(StudentListLine(Current().Students[static_cast<std::size_t>(i)]));
  TickAll(false);
  ShowOptions();
  firsttold.Visible = false;
  firstpage.Fit = SheetFit::kPage;
  firstpage.Draw = [this](PrintTarget& target) { first_.Draw(target); };
  NoteChoice();
}

// The first report that the class has something for is chosen on each tab.
void frmprintall::LoadReports() {
  int chosen_tab = 0;
  for (const Row& row : kRows) {
    OptionButton& option = this->*row.option;
    option.Enabled = Has(row.needs);
    option.Value = option.Enabled && chosen_tab != row.tab;
    if (option.Value) chosen_tab = row.tab;
  }
}

int frmprintall::Code() const {
  for (const Row& row : kRows)
    if (row.tab == TabStrip1.Selected + 1 && (this->*row.option).Value) return row.code;
  return 0;
}

void frmprintall::ShowOptions() {
  const int code = Code();
  prints.Enabled = preview.Enabled = code != 0;
  classboxes.Visible = IsOneOf(code, {1, 3});
  attendance.Visible = comments.Visible = code == 1;
  studentboxes.Visible = IsOneOf(code, {11, 12, 13, 14, 15, 17, 18, 24});
  parentsig.Visible = IsOneOf(code, {12, 13, 15, 17, 18, 24});
  attendance1.Visible = comment1.Visible = IsOneOf(code, {11, 12, 13, 17, 18});
  roll.Visible = IsOneOf(code, {3, 4, 8, 9, 10, 16});
  sortgrade.Visible = lsttitle.Visible = code == 10;
  onesort.Visible = IsOneOf(code, {12, 13});
  onetypes.Show(sort2.Value, sort3.Value);
  sort.Visible = IsOneOf(code, {3, 4});
  sorttype.Visible = all_type.Value || some_type.Value;
  rolltypes.Show(all_type.Value, some_type.Value);
  date_range.Visible = some_date.Value;
  FrameAtt.Visible = code == 8;
  lstatt.Visible = code == 9;
  titleframe.Visible = IsOneOf(code, {9, 10});
  nameframe.Visible = IsOneOf(code, {12, 13, 14, 15, 17, 18, 21, 24});
  firstframe.Visible = code != 0 && !nameframe.Visible;
}

void frmprintall::TabStrip1_Change() {
  ShowOptions();
}

void frmprintall::choose_Click() {
  TickAll(true);
}

void frmprintall::clear_Click() {
  TickAll(false);
}

void frmprintall::cancel_Click() {
  QueryUnload();
}

// The Portal stays as long as its run.
void frmprintall::QueryUnload() {
  if (!running_) Unload();
}

}  // namespace tallyroll
