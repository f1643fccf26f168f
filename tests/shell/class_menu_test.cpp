// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/class_menu.h"

#include <algorithm>
#include <map>
#include <set>

#include "shell/portal_list.h"
#include "tests/shell/shell_test.h"

namespace tallyroll {
namespace {

bool Holds(const std::vector<std::string_view>& names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

// The names of the menus that an entry stands in, the outermost first.
std::vector<std::string> MenusAbove(const Menu& menu, std::string_view name) {
  std::vector<std::string> above;
  int level = menu.Find(name)->level;
  for (const MenuEntry* entry = menu.Find(name); level > 0;) {
    --entry;
    if (entry->level >= level) continue;
    level = entry->level;
    above.insert(above.begin(), entry->caption);
  }
  return above;
}

char MnemonicOf(std::string_view caption) {
  for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
    if (caption[i] != '&') continue;
    if (caption[i + 1] != '&') return static_cast<char>(std::toupper(caption[i + 1]));
    ++i;
  }
  return 0;
}

// Fails for every two entries of one menu with the same mnemonic.
void ExpectNoClash(const Menu& menu) {
  std::vector<std::map<char, std::string>> taken;
  for (const MenuEntry& entry : menu.entries()) {
    taken.resize(static_cast<std::size_t>(entry.level) + 1);
    const char mnemonic = MnemonicOf(entry.caption);
    if (mnemonic == 0) continue;
    const auto [other, fresh] = taken.back().emplace(mnemonic, entry.name);
    EXPECT_TRUE(fresh) << entry.name << " and " << other->second << " share " << mnemonic;
  }
}

using ClassMenuTest = ShellTest;

TEST_F(ClassMenuTest, EveryPortalItNamesIsBuilt) {
  int named = 0;
  for (const ClassMenuRow& row : ClassMenuRows()) {
    if (row.portal.empty()) continue;
    ++named;
    EXPECT_TRUE(Holds(PortalNames(), row.portal)) << row.portal;
  }
  EXPECT_GT(named, 40);
}

TEST_F(ClassMenuTest, EntryWithoutActionHoldsDeeperOnes) {
  const auto rows = ClassMenuRows();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (rows[i].name.empty() || rows[i].action || !rows[i].portal.empty()) continue;
    ASSERT_LT(i + 1, rows.size());
    EXPECT_EQ(rows[i + 1].level, rows[i].level + 1) << rows[i].name;
  }
}

TEST_F(ClassMenuTest, NamesAndShortcutsAreUsedOnce) {
  std::set<std::string_view> names;
  std::set<std::string_view> shortcuts;
  for (const ClassMenuRow& row : ClassMenuRows()) {
    if (!row.name.empty()) {
      EXPECT_TRUE(names.insert(row.name).second) << row.name;
    }
    if (!row.shortcut.empty()) {
      EXPECT_TRUE(shortcuts.insert(row.shortcut).second) << row.shortcut;
    }
  }
}

TEST_F(ClassMenuTest, NoTwoEntriesOfAMenuShareAMnemonic) {
  Open("A.TYR");
  ExpectNoClash(Window(1)->menu);
  ExpectNoClash(FrameForm->menu);
}

TEST_F(ClassMenuTest, EveryCommandTellsTheStatusBarWhatItDoes) {
  for (const ClassMenuRow& row : ClassMenuRows()) {
    const bool command = row.action || !row.portal.empty();
    EXPECT_EQ(!row.status.empty(), command) << row.name;
  }
}

TEST_F(ClassMenuTest, CaptionsStandAsTeachersKnowThem) {
  const std::pair<std::string_view, std::string_view> captions[] = {
      {"mnuown", "Use the &Program"},
      {"mnuwizard", "Use the &Wizard"},
      {"mnuOpen", "&Open..."},
      {"mnuclose", "&Close "},
      {"mnucloseall", "Clos&e All "},
      {"mnusave", "&Save"},
      {"mnusaveas", "Save &As..."},
      {"mnupassenter", "Ente&r  Password"},
      {"mnupasschange", "&Change Password"},
      {"mnupassdelete", "&Delete Password"},
      {"mnuclassinfo", "Class &Information"},
      {"mnuTransfer", "&Transfer File ( Name/ID/Supp Info) to New Class"},
      {"mnuimportnames", "Import Names, ID's and Supp Info"},
      {"mnugradesid", "Import Testing Instruments  by  ID"},
      {"mnugradesname", "Import Testing Instruments by Name"},
      {"mnuNametext", "Names and ID's"},
      {"mnuBio", "Names, ID's plus Supp. Info."},
      {"mnutestingInst", "Names, ID's plus Testing Instruments with Headers"},
      {"mnutestingInstwithout", "Names, ID's plus Testing Instruments without Headers"},
      {"mnuSchoolSystems", "&School Systems..."},
      {"mnuFont", "Printer &Font"},
      {"mnuPrinterSetUp", "&Printer Set Up..."},
      {"mnumargins", "Printer &Margins"},
      {"mnuExit", "E&xit"},
      {"mnuAdd", "&Add Student"},
      {"mmucomment", "Add &Comment"},
      {"mnuDelete", "&Delete Student"},
      {"mnuEdit", "&Edit "},
      {"mnunamefirst", "Display With &ID"},
      {"mnuname", " Display &Without ID"},
      {"mnuidfirst", " Display With &Name"},
      {"mnuid", "Display &Without  Name"},
      {"mnuMarks", "&Grades"},
      {"mnuAttend", "Daily &Attendance"},
      {"mnuattsumm", "&Summary Attendance"},
      {"mnuTransfergrade", "T&ransfer Grade Between Classes"},
      {"mnuEMarksT", "By &Title of Grade"},
      {"mnuEMarksS", "By &Student Name"},
      {"mnucat", "Edit &Modifiable Grade Type Categories"},
      {"mnuLetter", "Edit &Numerical Values for  Letter Grades"},
      {"mnureorder", "Edit &Order of Grade Title"},
      {"mnuedaily", "Ed&it/Delete  Daily Attendance"},
      {"mnuEAttend", "E&dit Summary Attendance "},
      {"mnuDAttend", "Delete Summary A&ttendance"},
      {"mnuDMarks", "De&lete Grades"},
      {"mnuonegrade", "Screen - &One Grade"},
      {"mnuVScreen", "Screen - &All Information"},
      {"mnuRollBook", "Screen - &Roll Book"},
      {"mnuattscreen", "Screen - &Daily Attendance"},
      {"mnuMGrades", "&Missing Grades"},
      {"mnuindweights", "Assign Weights to &Individual Items "},
      {"mnupercent", "Assign Weights by &Type"},
      {"mnupoints", "Use &Points "},
      {"mnuPointsType", "Use Points &And Types "},
      {"mnuoptions", "Use &Current Weights/Rounding Settings"},
      {"mnuView", "&Print Full Class"},
      {"mnuVPrinter", "Print &Student Records"},
      {"mnuroster", "Print &Roster"},
      {"mnuprtgrade", "Print &Computed Averages"},
      {"mnuStatistic", "&Statistics"},
      {"mnuwordproc", "&Word Processing"},
      {"mnuSeating", "&Seating Chart"},
      {"mnucascade", "&Cascade"},
      {"mnhorizontal", "&Horizontal Tile"},
      {"mnuvertical", "&Vertical Tile"},
      {"CommandsItem", "&Contents"},
  };
  Form1& window = Open("A.TYR");
  for (const auto& [name, caption] : captions) {
    ASSERT_NE(window.menu.Find(name), nullptr) << name;
    EXPECT_EQ(window.menu.Find(name)->caption, caption) << name;
  }
}

TEST_F(ClassMenuTest, GradesAreEnteredUnderRecordsEnterRecords) {
  Form1& window = Open("A.TYR");
  EXPECT_EQ(MenusAbove(window.menu, "mnuMarks"),
            (std::vector<std::string>{"&Records", "&Enter Records"}));
  EXPECT_EQ(MenusAbove(window.menu, "mnupercent"), std::vector<std::string>{"&Make Up Grades"});
  EXPECT_EQ(MenusAbove(window.menu, "mnunamefirst"),
            (std::vector<std::string>{"&Display", "By &Name"}));
  EXPECT_EQ(MenusAbove(window.menu, "mnuid"), (std::vector<std::string>{"&Display", "By &ID"}));
}

TEST_F(ClassMenuTest, FrameHasItsSmallMenu) {
  for (const char* name : {"mnuNew", "mnuown", "mnuwizard", "mnuOpen", "mnuLoadText", "mnuExit",
                           "mnuFileList0", "mnuFileList4", "CommandsItem", "mnuAbout"})
    EXPECT_NE(FrameForm->menu.Find(name), nullptr) << name;
  EXPECT_EQ(FrameForm->menu.Find("mnusave"), nullptr);
}

TEST_F(ClassMenuTest, ToolbarHasItsButtonsInOrder) {
  Form1& window = Open("A.TYR");
  std::vector<std::string> keys;
  for (const ToolButton& button : window.Toolbar2) {
    if (button.key.empty()) continue;
    keys.push_back(button.key);
    EXPECT_FALSE(button.tip.empty()) << button.key;
  }
  EXPECT_EQ(keys, (std::vector<std::string>{"New", "Open", "Save", "Student", "Roster", "Grades",
                                            "Cgrades", "Attendance", "Eatt", "View", "Print",
                                            "Average", "Graph", "Exit", "Help"}));
}

TEST(Menu, EntryUnderADisabledMenuIsOutOfReach) {
  Menu menu;
  const auto add = [&menu](const char* name, int level) {
    MenuEntry entry;
    entry.name = name;
    entry.level = level;
    menu.Add(entry);
  };
  add("top", 0);
  add("before", 1);
  add("sub", 1);
  add("deep", 2);
  EXPECT_TRUE(menu.Reachable("deep"));
  menu.Enable("before", false);
  EXPECT_TRUE(menu.Reachable("deep"));
  menu.Enable("sub", false);
  EXPECT_FALSE(menu.Reachable("deep"));
  menu.Enable("sub", true);
  menu["top"].visible = false;
  EXPECT_FALSE(menu.Reachable("deep"));
  EXPECT_FALSE(menu.Reachable("no such entry"));
}

TEST(PortalList, EachPortalIsListedOnceAndMade) {
  std::set<std::string_view> all;
  for (const auto name : PortalNames()) {
    EXPECT_TRUE(all.insert(name).second) << name;
    const auto portal = MakePortalByName(name);
    ASSERT_NE(portal, nullptr) << name;
    EXPECT_EQ(portal->Name(), name);
  }
  EXPECT_EQ(MakePortalByName("frmnothing"), nullptr);
}

}  // namespace
}  // namespace tallyroll
