// SPDX-License-Identifier: GPL-3.0-or-later
// frmreplace: finds and replaces in the form letter, beside the word processor.
#pragma once

#include <functional>

#include "platform/portal.h"
#include "platform/rich_text_box.h"

namespace tallyroll {

struct frmreplace : Portal {
  frmreplace();
  void Declare(ControlTable& table) override;
  void Load() override;

  TextBox Text1;    // find what
  TextBox Text2;    // replace with
  CheckBox Check1;  // case sensitive
  CheckBox Check2;  // whole word only
  CommandButton FindNext, ReplaceWord, ReplaceAll, exit;

  RichTextBox* letter = nullptr;  // null: there is nothing to search
  std::function<void()> edited;   // told when the letter was changed

  void FindNext_Click();
  void ReplaceWord_Click();
  void ReplaceAll_Click();

 private:
  TextSearch Search() const;
  // Whether what is selected is what is looked for.
  bool IsFound() const;
  void AllowReplacing(bool on);
};

}  // namespace tallyroll
