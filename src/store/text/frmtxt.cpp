// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/text/frmtxt.h"

#include <algorithm>
#include <array>

#include "base/code_page.h"
#include "base/number_text.h"
#include "platform/surroundings.h"
#include "store/program_state.h"
#include "store/safe_file.h"
#include "store/text/grade_file.h"
#include "store/text/roster_text.h"
#include "store/text/taken_ids.h"
#include "store/text/text_import.h"
#include "store/text_layout.h"

namespace tallyroll {
namespace {

constexpr int kWherePage = 0;
constexpr int kMethodPage = 1;
constexpr int kColumnsPage = 2;
constexpr std::size_t kRowsShown = 9;
constexpr int kColumnWidth = 1700;

struct Method {
  i16 mode;
  OptionButton frmtxt::*option;
  std::string_view example;
};

constexpr std::array kMethods = {
    Method{kColumnsText, &frmtxt::columns,
           "1001         Ng, Ada                          12 Main St"},
    Method{kSinglesText, &frmtxt::singles, "1001'Ng, Ada'12 Main St'"},
    Method{kDoublesText, &frmtxt::doubles, "\"1001\",\"Ng, Ada\",\"12 Main St\""},
    Method{kTabsText, &frmtxt::Tabs, "1001     Ng, Ada     12 Main St"},
    Method{kCommasText, &frmtxt::commas, "1001,Ng Ada,12 Main St"},
    Method{kCsvText, &frmtxt::csv, "ID;Last name;First name;Address"}};

bool AnyClassOpen() {
  return std::any_of(Classes.begin() + 1, Classes.begin() + MaxClassSlots,
                     [](const Class& c) { return c.SlotState != 0; });
}

}  // namespace

frmtxt::frmtxt() : Portal("frmtxt") {
  Caption = "Text File Portal";
  HelpContext = 160;
  whereframe.Caption = "Import To";
  append.Caption = "Append to Current Class";
  newclass.Caption = "Start a New Class";
  cncel.Caption = "Cancel Operation";
  methodframe.Caption = "Method";
  columns.Caption = "Formatted Columns";
  singles.Caption = "Single Quote";
  doubles.Caption = "Double Quote";
  Tabs.Caption = "Tabs";
  commas.Caption = "Comma";
  csv.Caption = "Spreadsheet (CSV)";
  columnframe.Caption = "Columns of the File";
  heading.Caption = "First line holds &titles";
  capitals.Caption = "&Letters in capitals";
  okbt.Caption = "&OK";
  cancelbt.Caption = "&Cancel";
  preview.Notes.Of = [this](int row, int col) -> CellNote {
    const CellStyle style = preview.Style(row, col);
    if (style == CellStyle::kFailing) return {CellMark::kNone, "this ID is taken"};
    if (style == CellStyle::kShaded) return {CellMark::kNone, "a title, not taken in"};
    return {};
  };
}

void frmtxt::Declare(ControlTable& table) {
  table.Add("framecontrol", framecontrol);
  table.Add("whereframe", whereframe);
  table.Add("append", append);
  table.Add("newclass", newclass);
  table.Add("cncel", cncel);
  table.Add("methodframe", methodframe);
  table.Add("columns", columns).Click([this] { method_Click(); });
  table.Add("singles", singles).Click([this] { method_Click(); });
  table.Add("doubles", doubles).Click([this] { method_Click(); });
  table.Add("Tabs", Tabs).Click([this] { method_Click(); });
  table.Add("commas", commas).Click([this] { method_Click(); });
  table.Add("csv", csv).Click([this] { method_Click(); });
  table.Add("example", example);
  table.Add("columnframe", columnframe);
  table.Add("heading", heading).Change([this] { heading_Change(); });
  table.Add("capitals", capitals);
  table.Add("preview", preview).Change([this] { preview_Change(); });
  table.Add("field", field).Change([this] { field_Change(); });
  table.Add("counted", counted);
  table.Add("okbt", okbt).Click([this] { okbt_Click(); });
  table.Add("cancelbt", cancelbt).Click([this] { cancelbt_Click(); });
}

void frmtxt::Load() {
  mode_ = OpenState;
  OpenState = kOperationCancelled;
  append.Value = true;
  for (const Method& method : kMethods) (this->*method.option).Value = method.mode == TextMode;
  method_Click();
  new_class_ = mode_ >= kAskColumns + kIntoNewClass;
  if (new_class_) mode_ -= kIntoNewClass;
  if (mode_ >= kAskColumns) return LoadColumns();
  if (mode_ != kImportNames) return GoTo(kMethodPage);
  if (AnyClassOpen()) return GoTo(kWherePage);
  where_ = kNewClass;
  GoTo(kMethodPage);
}

void frmtxt::GoTo(int page) {
  framecontrol.Current = page;
  if (page == kWherePage) return SetFocus(append);
  if (page == kColumnsPage) return SetFocus(preview);
  for (const Method& method : kMethods)
    if ((this->*method.option).Value) SetFocus(this->*method.option);
}

void frmtxt::okbt_Click() {
  if (framecontrol.Current == kWherePage) {
    if (cncel.Value) return Unload();
    where_ = newclass.Value ? kNewClass : kThisClass;
    return GoTo(kMethodPage);
  }
  if (framecontrol.Current == kMethodPage) {
    TakeMethod();
  } else if (const std::string_view missing = WhatIsMissing(chosen_, Purpose()); !missing.empty()) {
    ShowMessage(missing);
    return SetFocus(preview);
  } else {
    ImportColumns = chosen_;
    ImportColumns.capitals = capitals.Value;
  }
  OpenState = where_;
  Unload();
}

void frmtxt::method_Click() {
  for (const Method& method : kMethods)
    if ((this->*method.option).Value) example.Caption = method.example;
}

void frmtxt::TakeMethod() {
  for (const Method& method : kMethods)
    if ((this->*method.option).Value) TextMode = method.mode;
}

CsvPurpose frmtxt::Purpose() const {
  return mode_ == kAskColumns + kImportNames ? CsvPurpose::kStudents
                                             : PurposeOf(mode_ - kAskColumns);
}

// A file that cannot be taken apart is left at once; its reader would say the same.
void frmtxt::LoadColumns() {
  const FileContents file = ReadWholeFile(ImportFile, kLargestTextFile);
  std::optional<SourceText> source = SourceText::FromBytes(file.bytes);
  std::string fault = source ? "" : "is not a text file";
  if (source) {
    source_ = std::move(*source);
    table_ = ParseCsv(source_.text());
    fault = FaultOf(table_);
    if (fault.empty() && table_.records.empty()) fault = "holds no students";
  }
  if (file.error != 0)
    ShowTextFileError(file.error);
  else if (!fault.empty())
    ShowMessage(PathForDisplay(ImportFile) + " " + fault + ".", BoxIcon::kCritical);
  if (file.error != 0 || !fault.empty()) return Unload();
  chosen_ = GuessColumns(table_, Purpose());
  for (const CsvUse use : CsvUsesFor(Purpose())) field.List.emplace_back(CsvUseCaption(use));
  heading.Value = chosen_.heading;
  capitals.Visible = Purpose() != CsvPurpose::kStudents;
  preview.FixedCols = preview.Col = preview.LeftCol = 0;
  ShowColumns();
  GoTo(kColumnsPage);
}

// The file's first rows as they stand in it, and above them what each column is taken for.
void frmtxt::ShowColumns() {
  const int rows = static_cast<int>(std::min(table_.records.size(), kRowsShown));
  const int width = static_cast<int>(chosen_.uses.size());
  preview.SetRedraw(false);
  preview.SetSize(rows + 1, width);
  preview.Clear();
  for (int col = 0; col < width; ++col) {
    preview.SetColWidth(col, kColumnWidth);
    preview.SetTextMatrix(0, col, CsvUseCaption(chosen_.uses[static_cast<std::size_t>(col)]));
  }
  for (int row = 1; row <= rows; ++row) {
    const auto& cells = table_.records[static_cast<std::size_t>(row) - 1].cells;
    for (int col = 0; col < static_cast<int>(cells.size()); ++col) {
      const CsvCell& cell = cells[static_cast<std::size_t>(col)];
      preview.SetTextMatrix(row, col,
                            source_.Holds(cell.raw) ? cell.text : source_.Shown(cell.raw));
      if (row == 1 && chosen_.heading) preview.SetStyle(row, col, CellStyle::kShaded);
    }
  }
  ShowCounts();
  preview.SetRedraw(true);
  ShowColumn();
}

// How many students there are, and which of them cannot keep the ID of the file.
void frmtxt::ShowCounts() {
  const std::size_t first = chosen_.heading ? 1 : 0;
  const auto students = static_cast<std::int64_t>(table_.records.size() - first);
  counted.Caption = "Students: " + PlainNumberText(students);
  const int column = chosen_.Find(CsvUse::kId);
  if (Purpose() != CsvPurpose::kStudents || column < 0) return;
  TakenIds ids = new_class_ ? TakenIds() : TakenIds(Current());
  int clashes = 0;
  int blanks = 0;
  int first_line = 0;
  for (std::size_t i = first; i < table_.records.size(); ++i) {
    const std::string id = IdOf(table_.records[i], column);
    if (ids.Take(id)) continue;
    ++(id.empty() ? blanks : clashes);
    if (i < kRowsShown && !id.empty())
      preview.SetStyle(static_cast<int>(i) + 1, column, CellStyle::kFailing);
    if (clashes == 1 && first_line == 0) first_line = table_.records[i].line;
  }
  if (clashes > 0)
    counted.Caption += ", IDs taken already: " + PlainNumberText(clashes) + " (first in line " +
                       PlainNumberText(first_line) + ")";
  if (blanks > 0) counted.Caption += ", without an ID: " + PlainNumberText(blanks);
}

// As the student would get it.
std::string frmtxt::IdOf(const CsvRecord& record, int column) const {
  const auto index = static_cast<std::size_t>(column);
  if (index >= record.cells.size() || !source_.Holds(record.cells[index].raw)) return {};
  return OnOneLine(record.cells[index].text);
}

// What the column of the current cell is.
void frmtxt::ShowColumn() {
  const CsvUse use = chosen_.uses[static_cast<std::size_t>(preview.Col)];
  const auto offered = CsvUsesFor(Purpose());
  field.ListIndex = static_cast<int>(std::ranges::find(offered, use) - offered.begin());
  field.Text = CsvUseCaption(use);
}

void frmtxt::heading_Change() {
  chosen_ = GuessColumns(table_, Purpose(), heading.Value);
  ShowColumns();
}

void frmtxt::preview_Change() {
  ShowColumn();
}

void frmtxt::field_Change() {
  if (field.ListIndex < 0) return;
  SetUse(chosen_, preview.Col, CsvUsesFor(Purpose())[static_cast<std::size_t>(field.ListIndex)]);
  ShowColumns();
}

}  // namespace tallyroll
