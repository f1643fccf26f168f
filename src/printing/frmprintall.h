// SPDX-License-Identifier: GPL-3.0-or-later
// frmprintall: the Printer Portal. The teacher picks a report and its options, and prints it or
// looks at its pages first.
#pragma once

#include <string_view>
#include <vector>

#include "platform/portal.h"
#include "platform/surroundings.h"
#include "printing/first_page.h"
#include "printing/month_stepper.h"
#include "printing/page/report_choice.h"
#include "printing/type_choice.h"
#include "store/records.h"

namespace tallyroll {

// OpenState: 1, 2 and 3 open the tab of that number; without one it opens at the computed averages.
struct frmprintall : Portal {
  frmprintall();
  void Declare(ControlTable& table) override;
  void Load() override;
  void QueryUnload() override;

  TabStrip TabStrip1;
  // The reports, by tab.
  OptionButton allgrades, missing, onegrade, rollbook, rollbookTitle, allatt, attfullone,
      allattsumm;
  OptionButton allgrades1, missing1, gradesummary, oneatt, sumatt;
  OptionButton Option1, Option5, Option2, Option3, Option4;
  OptionButton fullclass, onestudent, sumgrades;

  Frame classboxes;  // of the full class
  CheckBox attendance, comments, printcode;
  Frame studentboxes;  // of the tabs on students and averages
  CheckBox attendance1, comment1, parentsig, school, teacher;

  Frame roll;  // "Show on Printout"
  OptionButton rollid, rollname, rollboth;
  Frame sortgrade;
  OptionButton none, highlow, lowhigh;
  Frame onesort;  // "Sort Options"
  OptionButton sort1, sort2, sort3;
  TypeChoice onetypes;  // List2, List3
  Frame sort;           // "Roll Book Print Options"
  OptionButton sort_None, all_type, some_type, all_date, some_date;
  Frame sorttype;
  TypeChoice rolltypes;  // ttypelist, List4
  Frame date_range;
  DTPicker datestart, dateend;
  Frame FrameAtt;  // "Monthly Attendance"
  Label firstmonth, lastmonth;
  MonthStepper start, end;  // startmonth, strtyear; endmonth, enyear
  Frame titleframe;         // "Titles"
  ListBox lsttitle, lstatt;
  Frame nameframe;
  ListBox lstName;  // a line a student, with a box to tick
  CommandButton choose, clear;
  Frame firstframe;  // the first page, where no list stands
  Label firsttold;   // why there is none
  PictureBox firstpage;

  CommandButton prints, preview, cancel;

  void TabStrip1_Change();
  void choose_Click();
  void clear_Click();
  void prints_Click();
  void preview_Click();
  void cancel_Click();
  // The teacher's choice has come to rest: its first page is laid out.
  void firstpage_Change();

 private:
  struct Row;
  // What the first page on the screen hangs on.
  struct Asked {
    int code = 0;
    ReportChoice choice = {};

    friend bool operator==(const Asked&, const Asked&) = default;
  };
  struct Refusal {
    std::string_view why;
    BoxIcon icon = BoxIcon::kNone;
  };
  static const Row kRows[];
  using Group = std::vector<OptionButton*>;

  Group ReportsOf(int tab);
  void DeclareReports(ControlTable& table);
  void DeclareOption(ControlTable& table, std::string_view name, OptionButton& option,
                     const Group& group);
  void DeclareBoxes(ControlTable& table);
  void DeclareGroups(ControlTable& table);
  void DeclareLists(ControlTable& table);
  void DeclareFirstPage(ControlTable& table);
  void LoadReports();
  void LoadShown();
  void LoadDates();
  void LoadGrades();
  void LoadSummaries();
  void TickAll(bool on);

  // Which report is chosen on the tab in front; 0 when the class has nothing for any of them.
  int Code() const;
  void ShowOptions();
  // What is chosen for the report of that code.
  ReportChoice Chosen(int code) const;
  void FollowChoice(ControlTable& table);
  void NoteChoice();
  std::vector<i16> TickedStudents() const;
  void RefreshNames();
  // The run up to the page table. False: the teacher left it, or was told what is missing.
  bool LayOut(bool for_preview);
  // Why a report cannot be laid out as it is chosen; nothing where it can.
  Refusal RefusalOf(int code, const ReportChoice& choice) const;

  bool running_ = false;  // a run lets events through, but no second run
  FirstPage first_;
  Asked asked_;
};

}  // namespace tallyroll
