// SPDX-License-Identifier: GPL-3.0-or-later
// frmMarks: the Enter Grades Portal. It adds a grade to the class with a mark for every student.
// Opened with kGradesById or kGradesByName it takes them from ImportFile.
#pragma once

#include <string_view>

#include "grades/grade_clipboard.h"
#include "grades/grade_form.h"
#include "store/text/grade_file.h"

namespace tallyroll {

struct frmMarks : GradeForm {
  frmMarks();
  void Declare(ControlTable& table) override;
  void Load() override;
  // With the fill open, the way out is the way out of the fill.
  void QueryUnload() override;

  Frame headerframe;   // what describes the grade
  Frame specialframe;  // the buttons of the special marks
  Frame clipframe;
  Pages actions;    // the frames and buttons, or the fill in their place
  Pages feet;       // the ways out: of the Portal, or of the fill
  Frame fillframe;  // shown while the fill is open
  OptionButton Option1, Option2, Option3, Option4, Option5;
  TextBox Text1;
  CommandButton Command5, Command6;
  CommandButton copy, paste, pastegrade;
  CommandButton fill, another, exit, cancel;

  bool DataEntered = false;  // a key went into a mark, or a paste filled the marks

  void fill_Click();
  void Command5_Click();
  void Command6_Click();
  void copy_Click();
  void paste_Click();
  void pastegrade_Click();
  void another_Click();
  void exit_Click();
  void cancel_Click();

 protected:
  void MarksChanged() override { DataEntered = true; }

 private:
  void StartOver();
  void TellImport();
  void TellNoGrades();  // of the file, as they stand in it
  void FillFromFile();
  void OpenFill(bool open);
  std::string FillMark() const;
  bool FillByEnter(Key key);
  bool NothingEntered() const;
  bool AddGrade(i16 maximum_score);  // false: the class holds no more
  bool MayReplaceTitle();
  void ShowHeader(const GradeHeaderText& header);
  void ChooseTypeOf(std::string_view typecode);
  void GoToMarks();

  bool grade_waits_ = false;  // the clipboard held a grade when the Portal began
  GradeFile imported_;        // of a text file; empty when the Portal was opened to type
  std::vector<GradeColumn>::const_iterator next_import_ = imported_.columns.begin();
};

}  // namespace tallyroll
