// SPDX-License-Identifier: GPL-3.0-or-later
// frmcategories: the Modify Grade Type Categories Portal. It renames the types 14 to 25.
#pragma once

#include <cstddef>

#include "grades/grade_types.h"
#include "platform/portal.h"

namespace tallyroll {

struct frmcategories : Portal {
  frmcategories();
  void Declare(ControlTable& table) override;
  void Load() override;
  void QueryUnload() override { cancel_Click(); }

  ListBox listbasic;  // the fixed types, to be looked at
  ListBox listcat;    // the types that can be changed
  TextBox olddesc, oldcode;
  TextBox catdesc, catcode;
  CommandButton defaults, another, exit, cancel;

  bool Pending = false;  // what is typed has not been applied

  void listcat_Change();
  void listcat_Click();
  void defaults_Click();
  void another_Click();
  void exit_Click();
  void cancel_Click();

 private:
  std::size_t Chosen() const;  // the type; 0 is none
  bool listcat_KeyDown(Key key);
  void EnterBox();
  void TypeInBox();
  void ReloadTypes();
  void StartOver();
  bool CodeTaken() const;
  bool Apply();

  TypeCodes codes_;
  TypeTexts names_;
};

}  // namespace tallyroll
