// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/change_history.h"

#include <filesystem>

#include "companion/companion_file.h"
#include "store/safe_file.h"
#include "tests/shell/shell_test.h"

namespace tallyroll {
namespace {

class ChangeHistoryTest : public ShellTest {
 protected:
  ChangeHistoryTest() : file(MakeFile("math.TYR")) {}

  static NamedChange Mark(const std::string& id, const std::string& code, const std::string& before,
                          const std::string& after) {
    return {id, "Ng, Ada", "Quiz", code, "mark", before, after};
  }
  std::vector<std::string> After(const ChangeFilter& filter) const {
    std::vector<std::string> after;
    for (const KeptChange& line : ChangesKept(file, filter).changes)
      after.push_back(line.change.after);
    return after;
  }
  using Texts = std::vector<std::string>;

  std::string file;
};

TEST_F(ChangeHistoryTest, NothingIsKeptAtFirst) {
  const KeptChanges kept = ChangesKept(file, {});
  EXPECT_TRUE(kept.changes.empty());
  EXPECT_EQ(kept.fault, "");
}

TEST_F(ChangeHistoryTest, WhatIsKeptComesBackTheNewestFirst) {
  EXPECT_EQ(KeepChanges(file, "2026-09-01 10:00:00", {Mark("7", "Q1", "80", "85")}), "");
  EXPECT_EQ(KeepChanges(file, "2026-09-02 11:00:00", {Mark("7", "Q1", "85", "Caf\xE9")}), "");
  const KeptChanges kept = ChangesKept(file, {});
  ASSERT_EQ(kept.changes.size(), 2U);
  EXPECT_EQ(kept.changes[0].time, "2026-09-02 11:00:00");
  EXPECT_EQ(kept.changes[0].change, Mark("7", "Q1", "85", "Caf\xE9"));
  EXPECT_EQ(kept.changes[1].change, Mark("7", "Q1", "80", "85"));
}

TEST_F(ChangeHistoryTest, FiltersAskForAStudentAGradeOrADay) {
  KeepChanges(file, "2026-09-01 10:00:00", {Mark("7", "Q1", "", "1"), Mark("8", "Q1", "", "2")});
  KeepChanges(file, "2026-09-03 10:00:00", {Mark("7", "Q2", "", "3")});
  EXPECT_EQ(After({.student = "7", .name = {}, .grade = {}, .since = {}}), (Texts{"3", "1"}));
  EXPECT_EQ(After({.student = {}, .name = {}, .grade = "Q1", .since = {}}), (Texts{"2", "1"}));
  EXPECT_EQ(After({.student = {}, .name = {}, .grade = "Quiz", .since = "2026-09-02"}),
            (Texts{"3"}));
  EXPECT_EQ(After({.student = {}, .name = "Ng, Ada", .grade = {}, .since = "2026-09-04"}), Texts{});
}

TEST_F(ChangeHistoryTest, ADamagedCompanionSaysWhyAndKeepsTheClass) {
  WriteFile(CompanionPath(file), "this is no database at all, and long enough to be looked at");
  EXPECT_NE(KeepChanges(file, "2026-09-01 10:00:00", {Mark("7", "Q1", "", "1")}), "");
  EXPECT_NE(ChangesKept(file, {}).fault, "");
}

TEST_F(ChangeHistoryTest, TheTeacherAgreesOnceForAClassWithAPassword) {
  EXPECT_FALSE(HistoryAgreed(file));
  EXPECT_EQ(AgreeToHistory(file, true), "");
  EXPECT_TRUE(HistoryAgreed(file));
  EXPECT_EQ(AgreeToHistory(file, false), "");
  EXPECT_FALSE(HistoryAgreed(file));
}

// ---- From saves of the class window ----

class HistoryAtSaveTest : public ShellTest {
 protected:
  static KeptChanges Kept() { return ChangesKept(Current().FileName, {}); }
};

TEST_F(HistoryAtSaveTest, ASaveKeepsWhatDiffersFromTheFileBefore) {
  Form1& window = Open("a.TYR", Sample(2, 2));
  screen.now = 46266 + 10.25 / 24;
  Current().Students[2].Marks[1] = "95";
  window.ClickMenu("mnusave");
  EXPECT_EQ(window.StatusText, "a.TYR saved.");
  const KeptChanges kept = Kept();
  ASSERT_EQ(kept.changes.size(), 1U);
  EXPECT_EQ(kept.changes[0].time, "2026-09-01 10:15:00");
  EXPECT_EQ(kept.changes[0].change,
            (NamedChange{"102", "Last02, First02", "Quiz", "Q1", "mark", "80", "95"}));
  window.ClickMenu("mnusave");
  EXPECT_EQ(Kept().changes.size(), 1U);
}

TEST_F(HistoryAtSaveTest, AClassWithAPasswordKeepsNoneUntilItIsAgreed) {
  Class c = Sample(2, 2);
  Form1& window = Open("a.TYR", c);
  Current().PasswordSet = 1;
  Current().Students[2].Marks[1] = "95";
  window.ClickMenu("mnusave");
  EXPECT_FALSE(std::filesystem::exists(CompanionPath(Current().FileName)));
  AgreeToHistory(Current().FileName, true);
  Current().Students[2].Marks[1] = "96";
  window.ClickMenu("mnusave");
  ASSERT_EQ(Kept().changes.size(), 1U);
  EXPECT_EQ(Kept().changes[0].change.before, "95");
}

TEST_F(HistoryAtSaveTest, ALineIsTakenBackAsAStep) {
  Form1& window = Open("a.TYR", Sample(2, 2));
  Current().Students[2].Marks[1] = "95";
  window.ClickMenu("mnusave");
  screen.ExpectPortal("frmhistory", [](PortalDriver& work) {
    EXPECT_EQ(work.Text("found"), "1 change, the newest first.");
    work.Press("takeback");
    EXPECT_EQ(work.Text("found"), "Quiz of Last02, First02 is \"80\" again.");
    work.Press("exit");
  });
  window.ClickMenu("mnuhistory");
  EXPECT_EQ(Current().Students[2].Marks[1], "80");
  EXPECT_EQ(Current().Changed, kTrue);
  EXPECT_EQ(window.menu["mnuundo"].caption, "&Undo History: Quiz, Last02, First02");
  window.ClickMenu("mnuundo");
  EXPECT_EQ(Current().Students[2].Marks[1], "95");
}

}  // namespace
}  // namespace tallyroll
