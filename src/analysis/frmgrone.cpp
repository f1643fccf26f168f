// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/frmgrone.h"

#include "analysis/grade_charts.h"
#include "analysis/grade_order.h"
#include "base/text.h"
#include "grades/grade_types.h"
#include "platform/surroundings.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr std::size_t kLeastGrades = 2;

std::vector<int> GradesOfType(std::size_t type, const TypesByCode& types) {
  std::vector<int> grades;
  for (const int grade : GradesAsTheyStand())
    if (types.Of(Current().Instruments[static_cast<std::size_t>(grade)].typecode).Contains(type))
      grades.push_back(grade);
  return grades;
}

TypesByCode TypesOfClass() {
  TypeCodes codes;
  MakeTypeCodes(codes);
  return TypesByCode(codes);
}

}  // namespace

std::string ProgressLabel(int student) {
  const Student& shown = Current().Students[static_cast<std::size_t>(student)];
  std::string name = UpperCase(Trim(shown.firstname)) + " " + UpperCase(Trim(shown.lastname));
  std::string id(Trim(shown.id));
  switch (NameMode) {
    case 'D':
      return name + " " + id;
    case 'I':
      return id;
    case 'R':
      return id + " " + name;
    default:
      return name;
  }
}

frmgrone::frmgrone() : Portal("frmgrone") {
  HelpContext = 620;
  gradetype.Caption = "Grade Types";
  all.Caption = "Graph &All Grades";
  some.Caption = "Graph &Some Types";
  graph.Caption = "&Graph";
  types.Caption = "&Types";
  classline.Caption = "A&verage of the Class";
  bydate.Caption = "In Order of &Date";
  linegr.Caption = "&Line Graph";
  bar.Caption = "&Bar Graph";
  prints.Caption = "&Print";
  data.Caption = "&Grade Types";
  continue_.Caption = "&Continue";
  ttypelist.Checks = true;
  gradetype.Visible = false;
}

void frmgrone::Declare(ControlTable& table) {
  const auto shown_anew = [this] { ShowGrades(Graph1.chart.kind); };
  table.Add("Graph1", Graph1);
  table.Add("gradetype", gradetype);
  table.Add("all", all).Click([this] { ttypelist.Enabled = false; });
  table.Add("some", some).Click([this] { ttypelist.Enabled = true; });
  table.Add("ttypelist", ttypelist);
  table.Add("types", types).Click([this] { ChooseSome(); });
  table.Add("graph", graph).Click([this] { graph_Click(); });
  table.Add("classline", classline).Click(shown_anew);
  table.Add("bydate", bydate).Click(shown_anew);
  table.Add("linegr", linegr).Click([this] { Redraw(ChartKind::kLine); });
  table.Add("bar", bar).Click([this] { Redraw(ChartKind::kBar); });
  table.Add("prints", prints).Click([this] { PrintChart(Graph1.chart); });
  table.Add("data", data).Click([this] { ShowFrame(true); });
  table.Add("continue", continue_).Click([this] { Unload(); });
}

void frmgrone::Load() {
  student_ = CurrentStudent;
  if (student_ < 1 || student_ > Current().NumStudents) return Unload();
  const std::string label = ProgressLabel(student_);
  Caption = "Student Progress Portal for " + label;
  FillTypes();
  all.Value = true;
  ttypelist.Enabled = false;
  Graph1.chart.title = label;
  grades_ = GradesAsTheyStand();
  ShowGrades(ChartKind::kBar);
  SetFocus(linegr);
}

void frmgrone::FillTypes() {
  const TypesByCode by_code = TypesOfClass();
  TypeTexts names;
  MakeTypeNames(names);
  for (std::size_t type = 1; type <= kGradeTypes; ++type) {
    if (GradesOfType(type, by_code).empty()) continue;
    listed_types_.push_back(type);
    ttypelist.List.emplace_back(Trim(names[type]));
  }
  ttypelist.Checked.assign(ttypelist.List.size(), false);
}

void frmgrone::ShowFrame(bool on) {
  gradetype.Visible = on;
  data.Enabled = !on;
  SetFocus(on ? static_cast<Control&>(some.Value ? some : all) : data);
}

// The list is for those who want some of the types.
void frmgrone::ChooseSome() {
  all.Value = false;
  some.Value = true;
  ttypelist.Enabled = true;
  SetFocus(ttypelist);
}

std::vector<int> frmgrone::GradesOfChosenTypes() const {
  const TypesByCode by_code = TypesOfClass();
  std::vector<int> grades;
  for (std::size_t line = 0; line < listed_types_.size(); ++line) {
    if (!ttypelist.Checked[line]) continue;
    const std::vector<int> of_type = GradesOfType(listed_types_[line], by_code);
    grades.insert(grades.end(), of_type.begin(), of_type.end());
  }
  return grades;
}

void frmgrone::graph_Click() {
  ShowFrame(false);
  std::vector<int> grades = some.Value ? GradesOfChosenTypes() : GradesAsTheyStand();
  if (some.Value && grades.size() < kLeastGrades) {
    ShowMessage("There must be at least 2 items that meet your selected criteria to show a graph",
                BoxIcon::kNone, "Note to the teacher");
    return;
  }
  grades_ = std::move(grades);
  ShowGrades(ChartKind::kBar);
}

void frmgrone::ShowGrades(ChartKind kind) {
  std::vector<int> grades = grades_;
  if (bydate.Value) SortByDate(grades);
  FillProgress(Graph1.chart, student_, grades);
  Graph1.chart.thin_line.clear();
  if (classline.Value) AddClassLine(Graph1.chart, grades);
  Redraw(kind);
}

void frmgrone::Redraw(ChartKind kind) {
  Graph1.chart.kind = kind;
  Graph1.Draw();
}

}  // namespace tallyroll
