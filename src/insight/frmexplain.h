// SPDX-License-Identifier: GPL-3.0-or-later
// frmexplain: the Explain Average Portal. It shows how a student's average came about, and what
// another mark would make of it.
#pragma once

#include <string>
#include <vector>

#include "averages/explained/explained_page.h"
#include "platform/portal.h"

namespace tallyroll {

struct frmexplain : Portal {
  frmexplain();
  void Declare(ControlTable& table) override;
  void Load() override;

  ListBox lstName;   // the students
  Grid grdgrade;     // the grades by type, with what each counts
  Grid grdtypes;     // what the types count, where they have weights
  ListBox lststeps;  // from there to the final grade, a sentence a line
  Label avg, final_grade;

  Frame Frame1;  // what would it take
  Label chosen;  // the grade that a mark is tried in
  TextBox trymark;
  Label tried, why;
  Grid grdneeds;  // the lowest mark for each final grade

  CommandButton PREVIOUS, nextt, preview, exit;

 private:
  void Show(int student);
  void ShowPage();
  void ShowGrades(const ExplainedPage& page);
  void ShowTypes(const ExplainedPage& page);
  void ShowSentences(const ExplainedPage& page);
  void ChooseGrade();
  void ShowNeeds();
  void Try();
  void preview_Click();

  i16 student_ = 0;
  int grade_ = 0;                  // a mark is tried in
  std::vector<int> grade_of_row_;  // Instruments index of each row of grdgrade; 0 for a head
  ExplainedAverage explained_;
};

}  // namespace tallyroll
