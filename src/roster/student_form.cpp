// SPDX-License-Identifier: GPL-3.0-or-later
#include "roster/student_form.h"

#include <algorithm>
#include <array>
#include <limits>

#include "base/text.h"
#include "platform/surroundings.h"
#include "store/class_file.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

// A box and the field of the same name that it edits.
struct Edits {
  const char* name;
  TextBox StudentForm::*box;
  std::string Student::*field;
};

constexpr std::array kRequired = {
    Edits{"lastname", &StudentForm::lastname, &Student::lastname},
    Edits{"firstname", &StudentForm::firstname, &Student::firstname},
    Edits{"id", &StudentForm::id, &Student::id},
};

constexpr Edits kComments = {"comments", &StudentForm::comments, &Student::comments};

constexpr std::array kOtherPages = {
    Edits{"email", &StudentForm::email, &Student::email},
    Edits{"work", &StudentForm::work, &Student::work},
    Edits{"parent", &StudentForm::parent, &Student::parent},
    Edits{"birth", &StudentForm::birth, &Student::birth},
    Edits{"phone", &StudentForm::phone, &Student::phone},
    Edits{"address", &StudentForm::address, &Student::address},
    Edits{"city", &StudentForm::city, &Student::city},
    Edits{"state", &StudentForm::state, &Student::state},
    Edits{"zip", &StudentForm::zip, &Student::zip},
};

template <typename Visitor>
void ForEachOptional(Visitor&& visit) {
  visit(kComments);
  for (const Edits& each : kOtherPages) visit(each);
}

template <typename Visitor>
void ForEachBox(Visitor&& visit) {
  for (const Edits& each : kRequired) visit(each);
  ForEachOptional(visit);
}

bool Blank(const TextBox& box) {
  return Trim(box.Text).empty();
}

int RoomBeside(const TextBox& other, const TextBox& box) {
  const int left = kNamesTogether - static_cast<int>(Trim(other.Text).size());
  const int room = std::max(left, static_cast<int>(box.Text.size()));
  return room > 0 ? room : -1;
}

// A field is shown trimmed: one that nobody edited keeps the blanks of its file.
void Keep(std::string_view typed, std::string& field) {
  if (typed != Trim(field)) field = typed;
}

void RaiseTo(i16& width, const std::string& name) {
  constexpr std::size_t kWidest = std::numeric_limits<i16>::max();
  width = std::max(width, static_cast<i16>(std::min(name.size(), kWidest)));
}

}  // namespace

void LimitNames(TextBox& lastname, TextBox& firstname) {
  firstname.MaxLength = RoomBeside(lastname, firstname);
  lastname.MaxLength = RoomBeside(firstname, lastname);
}

StudentForm::StudentForm(std::string_view name) : Portal(name) {
  TabStrip1.Tabs = {"Name and ID", "Supplementary", "Address"};
  ForEachOptional([this](const Edits& e) { (this->*e.box).MaxLength = kLongestText; });
  FieldsAreFresh();
}

void StudentForm::DeclareFirstPage(ControlTable& table, std::string_view comment_name) {
  table.Add("lastname", lastname).Change([this] { Name_Change(); });
  table.Add("firstname", firstname).Change([this] { Name_Change(); });
  table.Add("id", id).Change([this] { id_Change(); });
  table.Add(comment_name, comments).Change([this] { Dirty = 1; });
}

void StudentForm::DeclareOtherPages(ControlTable& table) {
  for (const Edits& e : kOtherPages) table.Add(e.name, this->*e.box).Change([this] { Dirty = 1; });
}

void StudentForm::Name_Change() {
  Dirty = 1;
  LimitNames(lastname, firstname);
}

void StudentForm::id_Change() {
  Dirty = 1;
  IdChanged = kTrue;
}

bool StudentForm::RequiredBlank() const {
  return std::all_of(kRequired.begin(), kRequired.end(),
                     [this](const Edits& e) { return Blank(this->*e.box); });
}

bool StudentForm::AllBlank() const {
  bool blank = true;
  ForEachBox([&](const Edits& e) { blank = blank && Blank(this->*e.box); });
  return blank;
}

void StudentForm::Mend(TextBox& box) {
  TabStrip1.Selected = 0;
  SetFocusAndSelect(box);
}

bool StudentForm::CheckRequired() {
  for (const Edits& e : kRequired) {
    if (!Blank(this->*e.box)) continue;
    ShowMessage("You must fill in FULL name and ID.\nPress Tab for next field.",
                BoxIcon::kCritical);
    Mend(this->*e.box);
    return false;
  }
  return true;
}

bool StudentForm::CheckUniqueId() {
  const std::string_view wanted = Trim(id.Text);
  if (wanted.empty()) return true;  // a missing id is the other check's to tell
  const Class& c = Current();
  for (int i = 1; i <= c.NumStudents; ++i) {
    if (i == Position || Trim(c.Students[i].id) != wanted) continue;
    ShowMessage("Each student's ID must be unique. Enter a different ID code for this student.");
    Mend(id);
    return false;
  }
  return true;
}

void StudentForm::StoreStudent() {
  Class& c = Current();
  Student& student = c.Students[Position];
  Keep(lastname.Text, student.lastname);
  Keep(firstname.Text, student.firstname);
  Keep(TrimRight(id.Text), student.id);
  ForEachOptional([&](const Edits& e) { student.*e.field = Trim((this->*e.box).Text); });
  RaiseTo(c.LastNameWidth, student.lastname);
  RaiseTo(c.FirstNameWidth, student.firstname);
  if (Dirty == 1) c.Changed = kTrue;
  Dirty = 0;
  IdChanged = kFalse;
}

void StudentForm::ShowStudent() {
  const Student& student = Current().Students[Position];
  ForEachBox([&](const Edits& e) { (this->*e.box).Text = Trim(student.*e.field); });
  FieldsAreFresh();
}

void StudentForm::ShowFields(const Student& student) {
  ForEachBox([&](const Edits& e) { (this->*e.box).Text = Trim(student.*e.field); });
  FieldsAreFresh();
  Dirty = 1;
  IdChanged = kTrue;
}

void StudentForm::ClearFields() {
  ForEachBox([this](const Edits& e) { (this->*e.box).Text.clear(); });
  FieldsAreFresh();
}

void StudentForm::FieldsAreFresh() {
  ForEachBox([this](const Edits& e) { (this->*e.box).SelStart = (this->*e.box).SelLength = 0; });
  LimitNames(lastname, firstname);
  id.MaxLength = std::max(kLongestId, static_cast<int>(id.Text.size()));
  Dirty = 0;
  IdChanged = kFalse;
}

void StudentForm::EnableFields(bool on) {
  ForEachBox([&](const Edits& e) { (this->*e.box).Enabled = on; });
}

}  // namespace tallyroll
