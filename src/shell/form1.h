// SPDX-License-Identifier: GPL-3.0-or-later
// Form1: the class window. One exists per open class; nearly all work starts here.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "insight/frmsnapshot.h"
#include "insight/kept_work.h"
#include "platform/grid.h"
#include "platform/surroundings.h"
#include "shell/menu.h"
#include "shell/undo_steps.h"
#include "store/program_state.h"

namespace tallyroll {

// A place of Toolbar2. Places count from 1, as the enabling of the class menus counts them, and the
// gap between file buttons and the others takes one.
struct ToolButton {
  std::string key = {};  // "New", "Open", ...: also the name of its icon; empty for a gap
  std::string tip = {};  // what it does, for the pointer and for screen readers
  std::function<void()> click = {};
  bool enabled = true;
};

// What follows when a Portal that a menu opened is left.
enum class AfterPortal {
  kRefill,      // the grid is filled again
  kSaveIfDone,  // that, and the class is saved if the Portal answered that it did its work
};

// PendingAction: a new class of the students of ImportFile, or of the class in work.
inline constexpr int kStartFromText = 36;
inline constexpr int kTransferRoster = 37;

// What a double click on a cell of the class grid does, as a menu names it; empty for nothing.
std::string_view NameOfDoubleClick(int row, int col);

class Form1 {
 public:
  Form1();
  Form1(const Form1&) = delete;
  Form1& operator=(const Form1&) = delete;

  // What the window shows.
  std::string Caption;  // the class file's name, or "NewClass 2"
  std::string Tag;      // its slot as text; empty while it has no class
  Grid Grid1;
  Menu menu;  // the program's full menu
  std::vector<ToolButton> Toolbar2;
  std::string StatusText;  // StatusBar1
  int Refills = 0;         // of Grid1, by which a screen sees that the class may have changed
  int MessagesTold = 0;    // by which a screen sees a new message of the same words

  // The window's own working fields.
  int SlotIndex = -1;
  BoxAnswer SaveAnswer = BoxAnswer::kOk;  // of the save prompt
  bool SaveCancelled = false;             // the Save As dialog was cancelled
  UndoSteps Steps;                        // what was done to the class since it was opened
  bool SavedInCommand = false;            // by the command that runs
  KeptWork Work;                          // what of it is not saved, in case the program stops
  bool WorkWaits = false;                 // a command changed the class, and it is not kept yet

  // What a screen calls. Load acts on PendingAction; a window that got no class has an empty Tag
  // afterwards and is to be destroyed.
  void Load();
  void Activate();
  // Offers to save. True: the slot is free and the window may go.
  bool QueryUnload();
  void Grid1_DblClick();   // on the cell of Grid1.MouseRow and MouseCol
  void Grid1_MouseMove();  // tells in StatusText what a double click would do
  // Runs the entry or button of that name if it is enabled.
  void ClickMenu(std::string_view name);
  void ClickTool(std::string_view key);
  // Sets OpenState and shows the Portal; the menus follow what it changed.
  void RunPortal(std::string_view portal, int open_state, AfterPortal after);

  // Operations of the class window.
  void showform3();
  void EnableClassMenus(bool on);
  bool readyopen(std::string_view name) const;  // a slot already holds that file
  void findfree();        // takes the lowest free slot into SlotIndex, -1 when there is none
  std::string setsave();  // the save dialog; empty, with SaveCancelled set, when it was cancelled
  void saveas();
  void mnusave_Click();
  void mnusaveas_Click();
  void mnuAverage_Click();  // the Portal of the current method
  void mnuStatistic_Click();
  void mnuattsumm_Click();
  void ExplainStudent();        // in whose row the current cell stands
  void ShowHistoryOfStudent();  // in whose row the current cell stands
  void ShowGraphOfGrade();      // in whose column the current cell stands
  void ShowUnusual();
  void ShowSnapshots();
  void mnuundo_Click();
  void mnuredo_Click();
  void ShowSteps();  // in the captions of Undo and Redo
  void SetNameMode(i16 mode);
  void ImportText();              // students from a text file, into this class or a new one
  void ImportGrades(int by);      // kGradesById or kGradesByName
  void ExportStudents(int what);  // kExportNames and the like
  void mnuTransfer_Click();       // a new class with these students
  // A message, which stands until the next command or until a screen has shown it long enough.
  void ShowStatus(std::string_view text);
  void EndStatus();

 private:
  int Slot() const;  // from Tag
  void ShowStepTaken(std::string_view told, std::string_view step);
  void EndMarks();
  void TakeUpClass();
  void ShowHint(std::string_view text);  // what the pointer is over, unless a message stands
  void CheckNameMode();

  // Opening.
  bool TakeSlot();  // findfree, with the message when there is none
  void GiveSlotBack();
  void OpenByDialog();
  void OpenRecentPick();
  void OpenNewClass(int pending_action);
  void ReadInto(std::string_view path);
  void ShowOpenedClass();
  void OfferFoundWork();
  void AppendStudents();  // of ImportFile
  void StartFromText();
  void TransferRoster();
  void SetNewClassDefaults();
  void ShowNewClass();

  // Saving.
  bool Save();  // WriteClassFile; false when it failed
  void AskToSave();
  void SavePassword();
  void AskToKeepMarks();

  Beside<frmsnapshot> snapshot_;                // the earlier state that is looked at
  std::vector<std::pair<int, int>> came_back_;  // cells that Undo or Redo changed, row and column
  bool message_stands_ = false;                 // StatusText is a message, which no hint replaces
  std::string save_title_;  // title of the save dialog; empty is the dialog's own
};

}  // namespace tallyroll
