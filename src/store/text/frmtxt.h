// SPDX-License-Identifier: GPL-3.0-or-later
// frmtxt: the Text File Portal. It asks how a text file is laid out and where its students go, and
// for a file of a spreadsheet which column is which field.
#pragma once

#include <string>
#include <vector>

#include "platform/portal.h"
#include "store/csv_columns.h"
#include "store/text/source_text.h"

namespace tallyroll {

// OpenState tells the Portal what is done with the file: kImportNames, the grades of grade_file.h,
// or one of the exports of text_export.h. Added to an import it asks for the columns of ImportFile.
inline constexpr int kImportNames = 501;
inline constexpr int kAskColumns = 1000;
inline constexpr int kIntoNewClass = 1000;  // added to that when the students go into a new class
// What the Portal answers.
inline constexpr int kOperationCancelled = 10;
inline constexpr int kThisClass = 35;
inline constexpr int kNewClass = 36;

struct frmtxt : Portal {
  frmtxt();
  void Declare(ControlTable& table) override;
  void Load() override;
  void QueryUnload() override { cancelbt_Click(); }

  Pages framecontrol;
  struct Frame whereframe;
  OptionButton append, newclass, cncel;
  struct Frame methodframe;
  OptionButton columns, singles, doubles, Tabs, commas, csv;
  Label example;  // a line in the chosen layout
  struct Frame columnframe;
  CheckBox heading;
  CheckBox capitals;  // the letters of grades are taken as capitals
  Grid preview;       // the first rows, and above them what each column is
  ComboBox field;
  Label counted;
  CommandButton okbt, cancelbt;

  void method_Click();
  void heading_Change();
  void preview_Change();
  void field_Change();
  void okbt_Click();
  void cancelbt_Click() { Unload(); }

 private:
  void GoTo(int page);
  void TakeMethod();
  void LoadColumns();
  void ShowColumns();
  void ShowColumn();
  void ShowCounts();
  std::string IdOf(const CsvRecord& record, int column) const;
  CsvPurpose Purpose() const;

  int mode_ = 0;  // what OpenState was
  bool new_class_ = false;
  int where_ = kThisClass;
  CsvTable table_;
  SourceText source_;
  CsvColumns chosen_;
};

}  // namespace tallyroll
