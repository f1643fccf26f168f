// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/find_sources.h"

#include <algorithm>

#include "find/frmfind.h"
#include "store/settings.h"
#include "tests/shell/shell_test.h"

namespace tallyroll {
namespace {

class FindSourcesTest : public ShellTest {
 protected:
  static const FindEntry* ByName(const std::vector<FindEntry>& entries, std::string_view name) {
    const auto found = std::ranges::find(entries, name, &FindEntry::name);
    return found == entries.end() ? nullptr : &*found;
  }
  static const FindEntry* ByText(const std::vector<FindEntry>& entries, std::string_view text) {
    const auto found = std::ranges::find(entries, text, &FindEntry::text);
    return found == entries.end() ? nullptr : &*found;
  }
};

TEST_F(FindSourcesTest, CommandsTellTheirPlaceAndKey) {
  Open("c3_2.TYR", Sample(3, 2));
  const std::vector<FindEntry> entries = ProgramFindEntries();
  const FindEntry* const grades = ByName(entries, "mnuMarks");
  ASSERT_NE(grades, nullptr);
  EXPECT_EQ(grades->text, "Grades");
  EXPECT_EQ(grades->place, "Records > Enter Records");
  EXPECT_EQ(grades->key, "Ctrl+G");
  EXPECT_EQ(grades->reason, "");
  EXPECT_EQ(ByName(entries, "mnuFind"), nullptr);
}

TEST_F(FindSourcesTest, CommandsThatAreOffTellWhy) {
  Open("c3_0.TYR", Sample(3, 0));
  const std::vector<FindEntry> entries = ProgramFindEntries();
  EXPECT_EQ(ByName(entries, "mnuStatistic")->reason, "The class has no grades yet.");
  EXPECT_EQ(ByName(entries, "mnupoints")->reason, "The class has no grades yet.");
  EXPECT_EQ(ByName(entries, "mnuView")->reason, "The class has no grades and no attendance yet.");
  EXPECT_EQ(ByName(entries, "mnuattscreen")->reason, "Daily attendance has not been set up yet.");
  EXPECT_EQ(ByName(entries, "mnuEAttend")->reason, "The class has no summary attendance yet.");
  EXPECT_EQ(ByName(entries, "mnupassdelete")->reason, "The class has no password.");
}

TEST_F(FindSourcesTest, AStudentOrAGradeMovesTheCellThere) {
  Form1& window = Open("c5_4.TYR", Sample(5, 4));
  const std::vector<FindEntry> entries = ProgramFindEntries();
  window.Grid1.Row = 2;
  window.Grid1.Col = 3;
  ByText(entries, "Last04, First04")->run();
  EXPECT_EQ(window.Grid1.Row, 5);
  EXPECT_EQ(window.Grid1.Col, 3);
  const auto grade = std::ranges::find(entries, FindKind::kGrade, &FindEntry::kind);
  ASSERT_NE(grade, entries.end());
  (grade + 3)->run();
  EXPECT_EQ(window.Grid1.Row, 5);
  EXPECT_EQ(window.Grid1.Col, 5);
}

TEST_F(FindSourcesTest, ACommandRunsOnceAndAfterTheWindowHasGone) {
  Open("c3_2.TYR", Sample(3, 2));
  int ran = 0;
  screen.ExpectPortal("frmfind", [](PortalDriver& find) {
    find.Type("typed", "margins");
    find.Press("go");
  });
  screen.ExpectPortal("frmmargins", [&](PortalDriver& margins) {
    ++ran;
    margins.CloseWindow();
  });
  RunFind(FindFirst::kCommands);
  EXPECT_EQ(ran, 1);
  EXPECT_EQ(RecentFinds(), std::vector<std::string>{"mnumargins"});
}

TEST_F(FindSourcesTest, WithoutAClassTheFramesCommandsAreThere) {
  RecentFiles[0] = "/home/ada/classes/Math 7.TYR";
  FrameForm->RebuildRecentMenu();
  const std::vector<FindEntry> entries = ProgramFindEntries();
  EXPECT_NE(ByName(entries, "mnuOpen"), nullptr);
  EXPECT_EQ(ByName(entries, "mnuMarks"), nullptr);
  const FindEntry* const recent = ByText(entries, "Math 7.TYR");
  ASSERT_NE(recent, nullptr);
  EXPECT_EQ(recent->place, "/home/ada/classes");
}

TEST_F(FindSourcesTest, AnotherOpenClassComesToTheFront) {
  Open("c3_2.TYR", Sample(3, 2));
  Open("c4_1.TYR", Sample(4, 1));
  const std::vector<FindEntry> entries = ProgramFindEntries();
  int open = 0;
  for (const FindEntry& entry : entries) {
    if (entry.place != "Open class") continue;
    if (open++ == 0) entry.run();
  }
  EXPECT_EQ(open, 2);
  EXPECT_EQ(frame_screen.calls.back(), "front " + ClassWindows[1]->Caption);
}

}  // namespace
}  // namespace tallyroll
