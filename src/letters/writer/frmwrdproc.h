// SPDX-License-Identifier: GPL-3.0-or-later
// frmwrdproc: the word processor. It edits one form letter; printing, saving and mailing fill the
// letter in for each chosen student, and the form letter itself is never changed by that.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "letters/page/labels.h"
#include "letters/page/letter_pages.h"
#include "letters/writer/frmreplace.h"
#include "platform/portal.h"
#include "platform/rich_text_box.h"
#include "store/records.h"
#include "store/safe_file.h"

namespace tallyroll {

struct frmwrdproc : Portal {
  frmwrdproc();
  void Declare(ControlTable& table) override;
  void Load() override;
  void QueryUnload() override;

  // The menu.
  CommandButton mnuNew, mnuOpen, mnusave, mnusaveas;
  CommandButton mnuPrint, mnuform, labels, mnusavest, mnupdf, mnuemail, mnumany, mnuExit;
  CommandButton mnuundo, mnuredo, mnucut, mnucopy, mnupaste, mnuall;
  CommandButton mnuFind, mnusentence, mnuword, mnubreak;
  CheckBox mnubold, mnuitalic, mnuunderline, mnustrike;
  CheckBox mnuleft, mnucenter, mnuright, mnujustify;
  CommandButton choosestudent, mnuprevious, mnunext;
  CheckBox mnumerged, mnupages, mnuspelling;
  CommandButton mnularger, larger_unshifted, mnusmaller, mnuhelp;

  // Toolbar2.
  CommandButton New, Open, Save, Print, Email, cut, Copy, Paste, undo, redo, Exit;
  ComboBox fontname, fontsize, ComboFields, zoom;
  CheckBox Bold, Italic, Underline, left, center, right, justify;

  struct Frame Frame2;  // whom labels are for
  Label asklabels;
  OptionButton student, parent;
  CommandButton Command1, Command2;

  struct Frame mergedframe;  // whose letter it is
  CommandButton previous, next, pageback, pageon;
  Label whose, pageof;

  static constexpr int kLetter = 0, kMerged = 1, kSheet = 2;
  Pages view;
  RichTextBox RichTextBox1;  // the form letter
  RichTextBox RichTextBox2;  // filled in
  PictureBox sheet;          // a page of it, as it is printed
  Label status;              // who is chosen

  const std::string& FileName() const { return file_; }
  bool Changed() const { return changed_; }

 private:
  friend struct frmreplace;

  void DeclareFile(ControlTable& table);
  void DeclareEdit(ControlTable& table);
  void DeclareLooks(ControlTable& table);
  void DeclareStudents(ControlTable& table);
  void DeclareTools(ControlTable& table);
  void DeclareBody(ControlTable& table);

  // The letter's file.
  void mnuNew_Click();
  void mnuOpen_Click();
  bool mnusave_Click();
  bool mnusaveas_Click();
  bool MayLoseLetter();
  bool WriteTo(const std::string& path);
  void SetLetter(RichText letter, std::string file);

  // How the letter looks.
  void Edited();
  void ShowLooks();
  void Toggle(bool TextStyle::*look);
  void Restyle(const std::function<void(TextStyle&)>& change);
  void Align(TextAlign align);
  void PickFont();
  void PickSize();
  void PickField();
  void PickZoom();
  void StepZoom(int by);
  void SelectSentence();
  void SelectWord();
  void BreakPage();
  void Want(EditAct act);
  void mnuFind_Click();

  // Letters to students.
  void choosestudent_Click();
  void mnuPrint_Click();
  void mnuform_Click();
  void mnusavest_Click();
  void mnupdf_Click();
  void mnuemail_Click();
  void mnumany_Click();
  void labels_Click();
  void Command1_Click();
  void Command2_Click();
  bool ReadyToLeave(const std::vector<i16>& students);
  bool WriteLetters(const std::string& chosen, const std::vector<i16>& students);
  bool BeginPrinting();

  // The letter as it will be.
  void ShowMerged(bool on);
  void ShowPagesOf(bool on);
  void StepStudent(int by);
  void StepPage(int by);
  void FillMerged();
  void ShowValues();
  void ShowStudents();

  std::string file_;    // empty while the letter has no name
  std::string folder_;  // where the next file dialog starts
  FileStamp stamp_;     // of the file as it was read or written last
  bool changed_ = false;
  std::size_t shown_ = 0;  // whose letter is shown, among the chosen
  std::size_t page_ = 0;
  std::vector<LetterPage> pages_;
  Beside<frmreplace> find_;
};

}  // namespace tallyroll
