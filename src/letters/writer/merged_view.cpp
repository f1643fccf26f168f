// SPDX-License-Identifier: GPL-3.0-or-later
// The letter as a student gets it: its text, and its pages as they are printed.
#include <algorithm>

#include "base/number_text.h"
#include "letters/merge/field_codes.h"
#include "letters/merge/merge.h"
#include "letters/writer/frmwrdproc.h"
#include "platform/surroundings.h"
#include "roster/chosen_students.h"
#include "store/program_state.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

const Student& StudentAt(i16 place) {
  return Current().Students[static_cast<std::size_t>(place)];
}

std::string CountText(std::size_t count) {
  return PlainNumberText(static_cast<int>(count));
}

}  // namespace

void frmwrdproc::ShowMerged(bool on) {
  const std::vector<i16> students = ChosenStudents();
  if (on && students.empty()) {
    ShowMessage("You must first choose the names of students.");
    on = false;
  }
  view.Current = !on ? kLetter : mnupages.Value ? kSheet : kMerged;
  mnumerged.Value = mergedframe.Visible = on;
  for (Control* each : std::initializer_list<Control*>{
           &Bold,         &Italic,      &Underline, &left,        &center,   &right,
           &justify,      &fontname,    &fontsize,  &ComboFields, &Paste,    &mnupaste,
           &mnuFind,      &mnusentence, &mnuword,   &mnubreak,    &mnubold,  &mnuitalic,
           &mnuunderline, &mnustrike,   &mnuleft,   &mnucenter,   &mnuright, &mnujustify})
    each->Enabled = !on;
  mnupages.Enabled = mnuprevious.Enabled = mnunext.Enabled = on;
  if (on && find_.get()) find_.Close();
  if (on) FillMerged();
  ShowLooks();
  SetFocus(on ? RichTextBox2 : RichTextBox1);
}

void frmwrdproc::ShowPagesOf(bool on) {
  mnupages.Value = on;
  ShowMerged(true);
}

void frmwrdproc::StepStudent(int by) {
  const auto count = static_cast<int>(ChosenStudents().size());
  const int to = static_cast<int>(shown_) + by;
  if (to < 0 || to >= count) return;
  shown_ = static_cast<std::size_t>(to);
  page_ = 0;
  ShowValues();
  FillMerged();
}

void frmwrdproc::StepPage(int by) {
  const int to = static_cast<int>(page_) + by;
  if (to < 0 || to >= static_cast<int>(pages_.size())) return;
  page_ = static_cast<std::size_t>(to);
  FillMerged();
}

void frmwrdproc::FillMerged() {
  const std::vector<i16> students = ChosenStudents();
  if (students.empty()) return ShowMerged(false);
  shown_ = std::min(shown_, students.size() - 1);
  const MergedLetter merged = MergeLetter(RichTextBox1.Document, students[shown_]);
  if (!merged.error.empty()) ShowMessage(merged.error, BoxIcon::kCritical);
  RichTextBox2.Load(merged.text);
  const auto box = Platform().MakePrintBox(false);
  if (box) {
    sheet.SheetWidth = box->Width;
    sheet.SheetHeight = box->Height;
    pages_ = LayOutLetter(merged.text, *box, ChosenMargins());
  }
  page_ = pages_.empty() ? 0 : std::min(page_, pages_.size() - 1);
  ++sheet.Revision;
  whose.Caption = PlainName(StudentAt(students[shown_])) + " (" + CountText(shown_ + 1) + " of " +
                  CountText(students.size()) + ")";
  pageof.Caption = "Page " + CountText(page_ + 1) + " of " + CountText(pages_.size());
  previous.Enabled = mnuprevious.Enabled = shown_ > 0;
  next.Enabled = mnunext.Enabled = shown_ + 1 < students.size();
  pageback.Visible = pageon.Visible = pageof.Visible = view.Current == kSheet;
  pageback.Enabled = page_ > 0;
  pageon.Enabled = page_ + 1 < pages_.size();
}

// Beside each code stands what the student in view has for it.
void frmwrdproc::ShowValues() {
  const std::vector<i16> students = ChosenStudents();
  ComboFields.List = {"Field Names"};
  for (const FieldCode& code : FieldCodes()) {
    std::string line(code.caption);
    if (!students.empty()) {
      const std::string value = FieldValue(code, students[std::min(shown_, students.size() - 1)]);
      line += "   " + (value.empty() ? std::string("(empty)") : value);
    }
    ComboFields.List.push_back(line);
  }
  ComboFields.ListIndex = 0;
  ComboFields.Text = ComboFields.List.front();
}

void frmwrdproc::ShowStudents() {
  const std::vector<i16> students = ChosenStudents();
  ShowValues();
  if (students.empty())
    status.Caption = "No students are chosen";
  else if (students.size() == 1)
    status.Caption = "Chosen: " + PlainName(StudentAt(students.front()));
  else
    status.Caption = CountText(students.size()) + " students are chosen";
}

}  // namespace tallyroll
