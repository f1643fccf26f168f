// SPDX-License-Identifier: GPL-3.0-or-later
// frmprintpre: the Print Preview Portal. It shows the pages of the report that was laid out, one at
// a time and drawn afresh; from it they go to the printer and into files.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "find/find_entries.h"
#include "platform/portal.h"

namespace tallyroll {

struct frmprintpre : Portal {
  frmprintpre();
  void Declare(ControlTable& table) override;
  void Load() override;
  void QueryUnload() override;

  // Toolbar2.
  CommandButton one, two;                // zoom in and out
  CommandButton fitwidth, fitpage;       // as large as the window shows
  CommandButton three, four, five, six;  // first, previous, next and last page
  CommandButton seven, eight;            // print, e-mail
  CommandButton nine, ten, pdf;          // save as text, HTML, PDF
  CommandButton eleven, twelve;          // help, exit
  ComboBox size, pagenum;
  CommandButton zoom_in, zoom_in_unshifted, zoom_out, page_back, page_on;  // keys alone
  Label Pagen, Pagel;                  // the page on screen, and how many there are
  CommandButton findstudent, findkey;  // on which page a student stands; the second is its key
  PictureBox picture1;
  Frame Frame1;  // which students a file holds
  OptionButton all, current;
  CommandButton Command5, Command7;

  void startup();
  void showscreen();
  void ShowPrint();
  void Command5_Click();
  void Command7_Click();

 private:
  enum class Save { kText, kHtml };

  void DeclareToolbar(ControlTable& table);
  void DeclareKeys(ControlTable& table);
  void makesize();
  void makepage();
  void StepZoom(int by);
  void ShowStep(int step);
  void ShowFitted(SheetFit fit);
  void ShowPage(int index);
  void DrawPage(PrintTarget& target);
  // Drawing, printing and saving let events through, but walk the class in the same way: one at a
  // time.
  bool Busy() const { return running_ || drawing_; }
  bool Refuses(std::string_view function) const;
  // Whether the sheet is another than the one that the pages were laid out for.
  bool SheetChanged() const;
  std::vector<FindEntry> StudentsOfReport();
  void findstudent_Click();
  void eight_Click();
  // The text of the student on screen alone; false when there is none, and the teacher was told.
  bool LeaveTextForMail();
  void AskAndSave(Save form);
  void ShowFrame1(bool on);
  // Of the student on screen alone, or of all.
  void SaveFor(bool current_only);
  void SaveReport(Save form);
  void pdf_Click();

  int step_ = 0;                // of the zoom, where the page was not fitted
  Save pending_ = Save::kText;  // waits for the answer of Frame1
  std::string folder_;          // where the next save dialog starts
  double printable_width_ = 0, printable_height_ = 0;
  bool running_ = false;  // a print or a save goes on; the page on screen stays as it is
  bool drawing_ = false;  // the page on screen is being drawn
};

}  // namespace tallyroll
