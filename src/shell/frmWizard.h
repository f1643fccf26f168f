// SPDX-License-Identifier: GPL-3.0-or-later
// frmWizard: Start a New Class Wizard. It leads through the first student and the class's details.
#pragma once

#include "platform/portal.h"
#include "store/records.h"

namespace tallyroll {

struct frmWizard : Portal {
  frmWizard();
  void Declare(ControlTable& table) override;
  void Load() override;
  void QueryUnload() override { cmdCancel_Click(); }

  Pages framecontrol;  // step 1 is page 0
  Label stepline;      // where in the steps
  PictureBox Picture2;
  TextBox description;                         // step 2
  TextBox school, room, teacher, timed;        // step 3
  TextBox tempstart, tempend;                  // the dates of the term as text
  DTPicker termstart, termend;                 // pick a date into that text
  TextBox Lname, fname, id;                    // step 4
  TextBox phone, ptname, Text2, email, birth;  // step 6; Text2 is the work phone
  TextBox address, city, state, zipcode;       // step 7
  CommandButton cmdBack, cmdNext, button_skip, cmdCancel;

  i16 Step = 1;  // 1 to 8 are the pages; 9 makes the class

  void termstart_Change();
  void termend_Change();
  void Required_Change();
  void cmdBack_Click();
  void cmdNext_Click();
  void button_skip_Click();
  void cmdCancel_Click();
  // Makes the class's first student and fills in the class.
  void update();

 private:
  void ShowStep();
  void FocusPage();
  bool RequiredFilled() const;
  static bool IsDateOrEmpty(const TextBox& box);
  void RefuseDate(TextBox& box);
  void LeaveDate(TextBox& box);

  std::string refused_date_;  // the text that was last told to be no date
};

}  // namespace tallyroll
