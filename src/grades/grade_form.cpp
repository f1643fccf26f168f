// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/grade_form.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "grades/grade_types.h"
#include "grades/student_grid.h"
#include "platform/surroundings.h"
#include "store/class_format.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr int kLongestGradeCode = 3;
constexpr double kUsualPassOf100 = 65;  // of 100

bool Blank(std::string_view text) {
  return Trim(text).empty();
}

void TellNoWholeNumber() {
  ShowMessage("Maximum Score must be a whole number", BoxIcon::kNone, "Note to the teacher.");
}

}  // namespace

GradeForm::GradeForm(std::string_view name)
    : Portal(name),
      marks(*this, Grid1, kMarkColumn, [this] { MarksChanged(); }),
      live(
          {*this, Grid1, marks, kMarkColumn}, [this](int) { return Bounds(); },
          [this] { MarksChanged(); }) {
  title.MaxLength = mvalue.MaxLength = lowpass.MaxLength = kLongestText;
  code.MaxLength = kLongestGradeCode;
}

void GradeForm::DeclareMarks(ControlTable& table) {
  marks.Declare(table, "Grid1");
  live.Declare(table);
}

void GradeForm::DeclareHeader(ControlTable& table, std::string_view title_name) {
  // Return goes through the header down to the marks.
  const auto on_return_to = [this](auto& next) {
    return [this, &next](Key key) { return key == Key::kEnter && GoOnTo(next); };
  };
  table.Add(title_name, title).Change([this] { HeaderChanged(); }).KeyDown(on_return_to(code));
  table.Add("code", code).Change([this] { HeaderChanged(); }).KeyDown(on_return_to(mvalue));
  table.Add("mvalue", mvalue)
      .Change([this] { mvalue_Change(); })
      .GotFocus([this] { SelectAll(mvalue); })
      .KeyDown(on_return_to(dropyn))
      .KeyPress([this](unsigned char key) { return mvalue_KeyPress(key); });
  table.Add("dropyn", dropyn)
      .Change([this] {
        // Cut or pasted over: one of the two letters always stands.
        if (dropyn.Text != "Y") dropyn.Text = "N";
        HeaderChanged();
      })
      .KeyDown([this](Key key) { return dropyn_KeyDown(key); })
      .KeyPress([this](unsigned char) { return dropyn_Key(); });
  table.Add("testdate", testdate)
      .Change([this] {
        DatePicked = true;
        HeaderChanged();
      })
      .KeyDown(on_return_to(lowpass));
  table.Add("lowpass", lowpass)
      .Change([this] {
        Grid1.NotesChanged();
        HeaderChanged();
      })
      .GotFocus([this] { SelectAll(lowpass); })
      .KeyDown(on_return_to(ttypelist));
  table.Add("ttypelist", ttypelist)
      .Change([this] {
        Grid1.NotesChanged();
        HeaderChanged();
      })
      .KeyDown(on_return_to(Grid1));
}

bool GradeForm::mvalue_KeyPress(unsigned char key) {
  if (key != '.') return false;
  TellNoWholeNumber();
  return true;
}

void GradeForm::mvalue_Change() {
  lowpass.Text = PlainNumberText(LeadingNumber(mvalue.Text) * kUsualPassOf100 / 100);
  Grid1.NotesChanged();
  HeaderChanged();
}

bool GradeForm::GoOnTo(TextBox& next) {
  SetFocusAndSelect(next);
  return true;
}

bool GradeForm::GoOnTo(const Control& next) {
  SetFocus(next);
  return true;
}

bool GradeForm::dropyn_KeyDown(Key key) {
  if (key == Key::kEnter) return GoOnTo(testdate);
  return key == Key::kDelete && dropyn_Key();
}

bool GradeForm::dropyn_Key() {
  dropyn.Text = dropyn.Text == "N" ? "Y" : "N";
  HeaderChanged();
  return true;
}

void GradeForm::SelectAll(TextBox& box) {
  box.SelStart = 0;
  box.SelLength = static_cast<int>(box.Text.size());
}

std::string_view GradeForm::MarkCell(int student) const {
  return Grid1.TextMatrix(student, kMarkColumn);
}

void GradeForm::SetMarkCell(int student, std::string_view mark) {
  Grid1.SetTextMatrix(student, kMarkColumn, ShownMark(mark));
}

bool GradeForm::EveryMarkEmpty() const {
  for (int i = 1; i < Grid1.Rows(); ++i)
    if (!MarkCell(i).empty()) return false;
  return true;
}

bool GradeForm::RequiredEmpty() const {
  if (Blank(title.Text) || Blank(code.Text) || Blank(mvalue.Text) || Blank(dropyn.Text))
    return true;
  for (int i = 1; i < Grid1.Rows(); ++i)
    if (Blank(MarkCell(i))) return true;
  return false;
}

void GradeForm::Remind() {
  live.TellDoubts();
  ShowMessage(
      "You must fill in the TITLE and CODE of the grading instrument, and a GRADE for each "
      "student.\nUse TAB to move from one entry to the next.\nUse ARROW KEYS to move between "
      "student names.",
      BoxIcon::kCritical);
  if (Blank(title.Text)) return SetFocusAndSelect(title);
  if (Blank(code.Text)) return SetFocusAndSelect(code);
  marks.GoTo(marks.LastActiveRow());
  SetFocus(Grid1);
}

std::optional<i16> GradeForm::CheckMaximumScore(std::string_view note_title) {
  const double number = LeadingNumber(mvalue.Text);
  try {
    const i16 score = RoundToInt16(number);
    // "1,000" begins with 1, and is not meant so.
    const bool whole = WholeNumberText(mvalue.Text).has_value();
    if (score != 0 && whole) return score;
    if (score != 0)
      TellNoWholeNumber();
    else
      ShowMessage("The value for Maximum Score must be greater than 0", BoxIcon::kNone, note_title);
  } catch (const RunTimeError&) {
    ShowMessage(number < 0 ? "The value for Maximum Score must not be less than -32768"
                           : "The value for Maximum Score must not be greater than 32767",
                BoxIcon::kNone, note_title);
  }
  SetFocusAndSelect(mvalue);
  return std::nullopt;
}

void GradeForm::FillTypeList() {
  TypeTexts labels;
  MakeTypeLabels(labels);
  ttypelist.List.assign(labels.begin() + 1, labels.end());
}

void GradeForm::ChooseType(std::size_t type) {
  ttypelist.ListIndex = static_cast<int>(type) - 1;
  ttypelist.Text = type == 0 ? std::string() : ttypelist.List[type - 1];
}

std::size_t GradeForm::TypeOfCode(std::string_view typecode) const {
  const auto found = std::ranges::find_if(ttypelist.List, [&](std::string_view label) {
    return Trim(Left(label, 2)) == Trim(typecode);
  });
  if (found == ttypelist.List.end()) return 0;
  return static_cast<std::size_t>(found - ttypelist.List.begin()) + 1;
}

std::string GradeForm::ChosenTypecode() const {
  const bool none = Blank(ttypelist.Text);
  return std::string(Left(none ? DefaultTypeLabel(kNoType) : ttypelist.Text, 2));
}

MarkBounds GradeForm::Bounds() const {
  const bool extra = Trim(ChosenTypecode()) == kExtraCreditCode;
  return BoundsOf(extra ? "0" : lowpass.Text, mvalue.Text);
}

std::string GradeForm::DateTextOfPicker() const {
  return DateText(testdate.Value, Platform().ShortDateOrder());
}

}  // namespace tallyroll
