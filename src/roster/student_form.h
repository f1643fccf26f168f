// SPDX-License-Identifier: GPL-3.0-or-later
// The fields of one student on a Portal, and the rules that adding and editing share.
#pragma once

#include "platform/portal.h"
#include "store/records.h"

namespace tallyroll {

inline constexpr int kNamesTogether = 30;  // characters that a student's two names share
inline constexpr int kLongestId = 12;

// Gives each name the room that the other leaves. Nothing left is -1, since 0 would be no limit. A
// text that stands is never cut: a class file may hold longer names.
void LimitNames(TextBox& lastname, TextBox& firstname);

struct StudentForm : Portal {
  explicit StudentForm(std::string_view name);

  TabStrip TabStrip1;
  TextBox lastname, firstname, id, comments;  // page 1
  TextBox email, work, parent, birth, phone;  // page 2
  TextBox address, city, state, zip;          // page 3

  i16 Position = 0;  // the Students index shown; 0 is none
  i16 Dirty = 0;     // 1 = a field has changed since the last store
  i16 IdChanged = kFalse;

  // The box and the focus when a required field is blank, or when another student has the id.
  bool CheckRequired();
  bool CheckUniqueId();
  // Writes the fields into the record at Position.
  void StoreStudent();

 protected:
  void DeclareFirstPage(ControlTable& table, std::string_view comment_name);
  void DeclareOtherPages(ControlTable& table);

  void ShowStudent();  // the record at Position
  // Somebody's fields as if they had been typed.
  void ShowFields(const Student& student);
  void ClearFields();
  void EnableFields(bool on);
  bool RequiredBlank() const;  // all three of them
  bool AllBlank() const;

 private:
  void Name_Change();
  void id_Change();
  void FieldsAreFresh();
  void Mend(TextBox& box);
};

}  // namespace tallyroll
