// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame_menu.h"

#include "base/number_text.h"
#include "find/frmfind.h"
#include "platform/surroundings.h"
#include "shell/shell_state.h"
#include "store/settings.h"

namespace tallyroll {

Menu MakeFrameMenu(MDIForm1& frame) {
  Menu menu;
  const auto add = [&menu](int level, std::string_view name, std::string_view caption,
                           std::string_view status = "", std::string_view shortcut = "",
                           std::function<void()> click = nullptr) {
    menu.Add({.name = std::string(name),
              .caption = std::string(caption),
              .level = level,
              .shortcut = std::string(shortcut),
              .status = std::string(status),
              .click = std::move(click)});
  };
  add(0, "mnuFile", "&File");
  add(1, "mnuNew", "&New Class");
  add(2, "mnuown", "Use the &Program", "Start a class by entering its students", "Ctrl+N",
      [&] { frame.NewClass(10); });
  add(2, "mnuwizard", "Use the &Wizard", "Start a class step by step", "Ctrl+Shift+N",
      [&] { frame.NewClass(15); });
  add(1, "mnuOpen", "&Open...", "Open a class file", "Ctrl+O", [&] { frame.mnuOpen_Click(); });
  add(1, "mnuLoadText", "Import &Text File...", "Start a class with the students of a text file",
      "", [&] { frame.mnuLoadText_Click(); });
  add(1, "", "");
  for (int i = 0; i < static_cast<int>(RecentFiles.size()); ++i)
    add(1, "mnuFileList" + PlainNumberText(i), "", "Open this class again", "",
        [&frame, i] { frame.mnuFileList_Click(i); });
  add(1, "", "");
  add(1, "mnuExit", "E&xit", "Leave Tallyroll", "Ctrl+Q", [&] { frame.mnuExit_Click(); });
  add(0, "mnuEditing", "&Edit");
  add(1, "mnuFind", "&Find...", "Find a command or a class", "Ctrl+F",
      [] { RunFind(FindFirst::kStudents); });
  add(1, "mnuCommand", "&Command...", "Give any command by its name", "Ctrl+K",
      [] { RunFind(FindFirst::kCommands); });
  add(0, "mnuHelp", "&Help");
  add(1, "CommandsItem", "&Contents", "Open the help", "F1", [] { Platform().ShowHelp(0); });
  add(1, "mnuAbout", "&About Tallyroll", "About this program", "", [] { Screen->ShowAbout(); });
  return menu;
}

}  // namespace tallyroll
