// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frmWizard.h"

#include <cmath>

#include "base/number_text.h"
#include "base/text.h"
#include "platform/surroundings.h"
#include "roster/student_form.h"
#include "shell/frmclassinfo.h"
#include "store/class_defaults.h"
#include "store/class_file.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr i16 kWelcome = 1;
constexpr i16 kTermPage = 3;
constexpr i16 kRequiredPage = 4;
constexpr i16 kOptionalPages = 5;
constexpr i16 kFinished = 8;

bool Blank(const TextBox& box) {
  return Trim(box.Text).empty();
}

std::string Trimmed(const TextBox& box) {
  return std::string(Trim(box.Text));
}

}  // namespace

frmWizard::frmWizard() : Portal("frmWizard") {
  Caption = "Start a New Class Wizard";
  HelpContext = 230;
  cmdBack.Caption = "< &Back";
  cmdNext.Caption = "&Next >";
  button_skip.Caption = "&Skip";
  cmdCancel.Caption = "&Cancel";
  for (TextBox* box : {&school, &room, &teacher, &timed, &tempstart, &tempend, &phone, &ptname,
                       &Text2, &email, &birth, &address, &city, &state, &zipcode})
    box->MaxLength = kLongestText;
  description.MaxLength = kLongestDescription;
  id.MaxLength = kLongestId;
  LimitNames(Lname, fname);
}

void frmWizard::Declare(ControlTable& table) {
  table.Add("Picture2", Picture2);
  table.Add("stepline", stepline);
  table.Add("framecontrol", framecontrol);
  table.Add("description", description);
  table.Add("school", school);
  table.Add("room", room);
  table.Add("teacher", teacher);
  table.Add("timed", timed);
  table.Add("tempstart", tempstart)
      .Change([this] { FollowText(termstart, tempstart); })
      .LostFocus([this] { LeaveDate(tempstart); });
  table.Add("termstart", termstart).Change([this] { termstart_Change(); });
  table.Add("tempend", tempend).Change([this] { FollowText(termend, tempend); }).LostFocus([this] {
    LeaveDate(tempend);
  });
  table.Add("termend", termend).Change([this] { termend_Change(); });
  table.Add("Lname", Lname).Change([this] { Required_Change(); });
  table.Add("fname", fname).Change([this] { Required_Change(); });
  table.Add("id", id).Change([this] { Required_Change(); });
  table.Add("phone", phone);
  table.Add("ptname", ptname);
  table.Add("Text2", Text2);
  table.Add("email", email);
  table.Add("birth", birth);
  table.Add("address", address);
  table.Add("city", city);
  table.Add("state", state);
  table.Add("zipcode", zipcode);
  table.Add("cmdBack", cmdBack).Click([this] { cmdBack_Click(); });
  table.Add("cmdNext", cmdNext).Click([this] { cmdNext_Click(); });
  table.Add("button_skip", button_skip).Click([this] { button_skip_Click(); });
  table.Add("cmdCancel", cmdCancel).Click([this] { cmdCancel_Click(); });
}

void frmWizard::Load() {
  FollowText(termstart, tempstart);
  FollowText(termend, tempend);
  ShowStep();
}

void frmWizard::ShowStep() {
  framecontrol.Current = Step - 1;
  stepline.Caption = "Step " + PlainNumberText(Step) + " of " + PlainNumberText(kFinished);
  cmdNext.Caption = Step == kFinished ? "&Finish" : "&Next >";
  button_skip.Caption = Step == kFinished ? "C&ontinue" : "&Skip";
  button_skip.Visible = Step == kOptionalPages || Step == kFinished;
  cmdBack.Enabled = Step != kWelcome;
  cmdNext.Enabled = Step != kRequiredPage || RequiredFilled();
  Picture2.Visible = Step == kWelcome || Step == kFinished;
  FocusPage();
}

void frmWizard::FocusPage() {
  switch (Step) {
    case 2:
      return SetFocus(description);
    case 3:
      return SetFocus(school);
    case 4:
      return SetFocus(Lname);
    case 6:
      return SetFocus(phone);
    case 7:
      return SetFocus(address);
    default:
      return;
  }
}

bool frmWizard::RequiredFilled() const {
  return !Blank(Lname) && !Blank(fname) && !Blank(id);
}

void frmWizard::termstart_Change() {
  tempstart.Text = DateText(termstart.Value, Platform().ShortDateOrder());
}

void frmWizard::termend_Change() {
  tempend.Text = DateText(termend.Value, Platform().ShortDateOrder());
}

bool frmWizard::IsDateOrEmpty(const TextBox& box) {
  return Blank(box) || DateFromText(Trim(box.Text), Platform().ShortDateOrder());
}

void frmWizard::RefuseDate(TextBox& box) {
  refused_date_ = box.Text;
  ShowMessage("\"" + Trimmed(box) + "\" is not a date. Type one such as " +
              DateText(std::floor(Platform().Now()), Platform().ShortDateOrder()) +
              ", choose it from the calendar, or leave the box empty.");
  SetFocusAndSelect(box);
}

// Told once of a text: the way out must not be barred by a date.
void frmWizard::LeaveDate(TextBox& box) {
  if (!IsDateOrEmpty(box) && box.Text != refused_date_) RefuseDate(box);
}

void frmWizard::Required_Change() {
  LimitNames(Lname, fname);
  if (Step == kRequiredPage) cmdNext.Enabled = RequiredFilled();
}

void frmWizard::cmdBack_Click() {
  if (Step == kWelcome) return;
  --Step;
  ShowStep();
}

void frmWizard::cmdNext_Click() {
  for (TextBox* date : {&tempstart, &tempend})
    if (Step == kTermPage && !IsDateOrEmpty(*date)) return RefuseDate(*date);
  ++Step;
  if (Step <= kFinished) return ShowStep();
  update();
  Unload();
}

void frmWizard::button_skip_Click() {
  if (Step < kFinished) {
    Step += 2;
    return cmdNext_Click();
  }
  update();
  ShowPortal("frmAdd");
  Unload();
}

void frmWizard::cmdCancel_Click() {
  const bool entered = !Blank(Lname) || !Blank(fname) || !Blank(id);
  if (entered && Ask("Data has been entered. Do you want to cancel?", BoxButtons::kYesNo,
                     BoxIcon::kQuestion) != BoxAnswer::kYes)
    return;
  Unload();
}

void frmWizard::update() {
  Class& c = Current();
  c.NumStudents = 1;
  CurrentStudent = 1;
  ReDim(c.Students, c.NumStudents);
  AddStudentDefaults();
  c.Changed = kTrue;

  Student& student = c.Students[1];
  student.lastname = Lname.Text;
  student.firstname = fname.Text;
  student.id = TrimRight(id.Text);
  student.address = Trimmed(address);
  student.birth = Trimmed(birth);
  student.city = Trimmed(city);
  student.parent = Trimmed(ptname);
  student.phone = Trimmed(phone);
  student.state = Trimmed(state);
  student.zip = Trimmed(zipcode);
  student.work = Trimmed(Text2);
  student.email = Trimmed(email);

  c.teacher = Trimmed(teacher);
  c.termend = Trimmed(tempend);
  c.termstart = Trimmed(tempstart);
  c.timed = Trimmed(timed);
  c.description = Trimmed(description);
  c.room = Trimmed(room);
  c.school = Trimmed(school);
  c.Magic = "ty8";
  c.LastNameWidth = static_cast<i16>(student.lastname.size());
  c.FirstNameWidth = static_cast<i16>(student.firstname.size());
}

}  // namespace tallyroll
