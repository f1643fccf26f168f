// SPDX-License-Identifier: GPL-3.0-or-later
// MDIForm1: the frame. It starts the program, makes class windows and ends the program.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>

#include "shell/form1.h"
#include "shell/menu.h"

namespace tallyroll {

class MDIForm1 {
 public:
  MDIForm1();

  Menu menu;                // the frame's own small menu, shown while no class is open
  std::string CommandFile;  // the class file named on the command line
  std::string StatusText;   // shown while no class window is there to show it
  int MessagesTold = 0;     // as in a class window

  // Starts the program: settings, data folder, sample, greeting or the file of the command line.
  void Load(std::string_view command_file);
  // Closes every class window; false when one of them refuses.
  bool QueryUnload();
  // Saves the settings.
  void Unload();
  void ClickMenu(std::string_view name);

  // The frame's commands, also reached from a class window.
  void NewClass(int pending_action);  // 10 by frmAdd, 15 by the wizard, or as form1.h has it
  void mnuOpen_Click();
  void mnuLoadText_Click();  // a new class from a text file
  void OpenRecent(
      std::string_view path);         // an entry of the recent list, or the command line's file
  void mnuFileList_Click(int index);  // the entry's place in RecentFiles
  void mnucloseall_Click();           // each window is asked, also behind one that refuses
  void mnuExit_Click();
  void ShowStatus(std::string_view text);
  void EndStatus() { StatusText.clear(); }
  void RebuildRecentMenu();  // in the frame and in every class window

  // Keeps what is worked on in every class, in case the program stops; called when it waits for the
  // teacher, and with `all` each minute, also while a Portal is open.
  void KeepWork(bool all);

  // Asks a window's QueryUnload and destroys it when it may go. False when it stays.
  bool CloseWindow(Form1& window);

 private:
  void OpenClassWindow(int pending_action);
};

}  // namespace tallyroll
