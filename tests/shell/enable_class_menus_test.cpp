// SPDX-License-Identifier: GPL-3.0-or-later
// Which commands can be given in each state of the class window.
#include <set>

#include "tests/shell/shell_test.h"

namespace tallyroll {
namespace {

using Names = std::set<std::string>;

const Names kWithClass = {"mnuclose",   "mnucloseall", "mnusaveas",   "mnudisplay",  "mnuDelete",
                          "mmucomment", "mnuEdit",     "mnuText",     "mnuTransfer", "mnuEMarksS",
                          "mnucat",     "mnuroster",   "mnuwordproc", "mnuSeating",  "mnusave"};
const Names kWithGrades = {"mnuTransfergrade", "mnuEMarks",   "mnureorder",   "mnuEMarksT",
                           "mnuRollBook",      "mnuDMarks",   "mnuVScreen",   "mnuView",
                           "mnuVPrinter",      "mnuMGrades",  "mnuequalW",    "mnupoints",
                           "mnuStatistic",     "mnuonegrade", "mnugradegraph"};
const Names kWithSummaries = {"mnuEAttend", "mnuDAttend", "mnuVScreen", "mnuVPrinter", "mnuView"};
const Names kWithDays = {"mnuattscreen", "mnuedaily", "mnuVPrinter", "mnuView"};

Names operator+(Names a, const Names& b) {
  a.insert(b.begin(), b.end());
  return a;
}

// Of the entries that any state switches, those that are on.
Names On(const Form1& window) {
  Names on;
  for (const std::string& name : kWithClass + kWithGrades + kWithSummaries + kWithDays)
    if (window.menu.Find(name)->enabled) on.insert(name);
  return on;
}

Names ToolsOn(const Form1& window) {
  Names on;
  for (const ToolButton& button : window.Toolbar2)
    if (button.enabled && !button.key.empty()) on.insert(button.key);
  return on;
}

const Names kToolsAlways = {"New", "Open", "Exit", "Help"};
const Names kToolsWithClass = {"Save", "Student", "Roster", "Grades", "Attendance", "Print"};
const Names kToolsWithGrades = {"Cgrades", "View", "Average", "Graph"};

class EnableClassMenusTest : public ShellTest {
 protected:
  Form1 window;
};

TEST_F(EnableClassMenusTest, WithoutAClassOnlyNewOpenAndExitStand) {
  EXPECT_EQ(On(window), Names{});
  EXPECT_EQ(ToolsOn(window), kToolsAlways);
  for (const char* name : {"mnuown", "mnuwizard", "mnuOpen", "mnuExit", "CommandsItem"})
    EXPECT_TRUE(window.menu.Reachable(name)) << name;
  EXPECT_FALSE(window.menu.Reachable("mnuoptions"));
  EXPECT_FALSE(window.menu.Find("mnuprtgrade")->enabled);
}

TEST_F(EnableClassMenusTest, ClassWithoutGradesCanBeSavedAndItsStudentsEdited) {
  window.EnableClassMenus(true);
  EXPECT_EQ(On(window), kWithClass);
  EXPECT_EQ(ToolsOn(window), kToolsAlways + kToolsWithClass);
  // Its menu stays off though the entry itself is on.
  EXPECT_FALSE(window.menu.Reachable("mnuEMarksS"));
}

TEST_F(EnableClassMenusTest, GradesBringTheirEntries) {
  Current().NumInstruments = 1;
  window.EnableClassMenus(true);
  EXPECT_EQ(On(window), kWithClass + kWithGrades);
  EXPECT_EQ(ToolsOn(window), kToolsAlways + kToolsWithClass + kToolsWithGrades);
  EXPECT_TRUE(window.menu.Reachable("mnuEMarksS"));
}

TEST_F(EnableClassMenusTest, SummariesBringTheirEntries) {
  Current().NumSummaries = 1;
  window.EnableClassMenus(true);
  EXPECT_EQ(On(window), kWithClass + kWithSummaries);
  EXPECT_EQ(ToolsOn(window), kToolsAlways + kToolsWithClass + Names{"Eatt"});
}

TEST_F(EnableClassMenusTest, DaysBringTheirEntries) {
  Current().NumDays = 1;
  window.EnableClassMenus(true);
  EXPECT_EQ(On(window), kWithClass + kWithDays);
  EXPECT_EQ(ToolsOn(window), (kToolsAlways + kToolsWithClass + Names{"Eatt", "View"}));
}

TEST_F(EnableClassMenusTest, EntriesGoOffWithTheLastGradeButNotThoseThatDaysNeed) {
  Current().NumInstruments = 1;
  Current().NumDays = 1;
  window.EnableClassMenus(true);
  Current().NumInstruments = 0;
  window.EnableClassMenus(true);
  EXPECT_EQ(On(window), kWithClass + kWithDays);
}

TEST_F(EnableClassMenusTest, EverythingGoesOffWithTheClass) {
  Current().NumInstruments = Current().NumSummaries = Current().NumDays = 1;
  window.EnableClassMenus(true);
  window.EnableClassMenus(false);
  EXPECT_EQ(On(window), Names{});
  EXPECT_EQ(ToolsOn(window), kToolsAlways);
}

TEST_F(EnableClassMenusTest, LockedClassOffersChangeAndDeleteInsteadOfEnter) {
  Current().PasswordSet = 1;
  window.EnableClassMenus(true);
  EXPECT_FALSE(window.menu.Find("mnupassenter")->enabled);
  EXPECT_TRUE(window.menu.Find("mnupasschange")->enabled);
  EXPECT_TRUE(window.menu.Find("mnupassdelete")->enabled);
  window.EnableClassMenus(false);
  EXPECT_TRUE(window.menu.Find("mnupassenter")->enabled);
  EXPECT_FALSE(window.menu.Find("mnupasschange")->enabled);
  EXPECT_FALSE(window.menu.Find("mnupassdelete")->enabled);
}

TEST_F(EnableClassMenusTest, UnlockedClassOffersEnterAlone) {
  window.EnableClassMenus(true);
  EXPECT_TRUE(window.menu.Find("mnupassenter")->enabled);
  EXPECT_FALSE(window.menu.Find("mnupasschange")->enabled);
  EXPECT_FALSE(window.menu.Find("mnupassdelete")->enabled);
}

}  // namespace
}  // namespace tallyroll
