// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/class_snapshots.h"

#include <filesystem>

#include "companion/change_history.h"
#include "companion/companion_file.h"
#include "companion/squeeze.h"
#include "store/change/earlier_state.h"
#include "store/safe_file.h"
#include "tests/shell/shell_test.h"

namespace tallyroll {
namespace {

class ClassSnapshotsTest : public ShellTest {
 protected:
  ClassSnapshotsTest() : file(MakeFile("math.TYR")) {}

  // A class of two students and two grades, where the first has that mark in the first.
  static std::string With(const char* mark) {
    Class c = Sample(2, 2);
    c.Students[1].Marks[1] = mark;
    std::string bytes;
    EXPECT_EQ(SerializeClass(c, bytes), 0);
    return bytes;
  }
  std::string Keep(const std::string& time, const std::string& bytes) const {
    return KeepSnapshots(file, {{time, bytes}});
  }
  using Texts = std::vector<std::string>;
  Texts Times() const {
    Texts times;
    for (const Snapshot& each : SnapshotsOf(file).snapshots) times.push_back(each.time);
    return times;
  }

  std::string file;
};

TEST_F(ClassSnapshotsTest, NothingIsKeptAtFirst) {
  const KeptSnapshots kept = SnapshotsOf(file);
  EXPECT_TRUE(kept.snapshots.empty());
  EXPECT_EQ(kept.fault, "");
  EXPECT_FALSE(PathExists(CompanionPath(file)));
}

TEST_F(ClassSnapshotsTest, WhatIsKeptComesBackByteForByte) {
  EXPECT_EQ(Keep("2026-09-01 10:00:00", With("70")), "");
  EXPECT_EQ(Keep("2026-09-01 11:00:00", With("71")), "");
  const KeptSnapshots kept = SnapshotsOf(file);
  ASSERT_EQ(kept.snapshots.size(), 2U);
  EXPECT_EQ(kept.snapshots[0].told, "1 mark");
  EXPECT_EQ(kept.snapshots[1].told, "The first that is kept");
  EXPECT_EQ(BytesOfSnapshot(file, kept.snapshots[0].number).bytes, With("71"));
  EXPECT_EQ(BytesOfSnapshot(file, kept.snapshots[1].number).bytes, With("70"));
}

TEST_F(ClassSnapshotsTest, OneThatIsLikeTheOneBeforeIsNotKeptTwice) {
  Keep("2026-09-01 10:00:00", With("70"));
  Keep("2026-09-02 10:00:00", With("70"));
  EXPECT_EQ(Times(), (Texts{"2026-09-01 10:00:00"}));
  Keep("2026-09-03 10:00:00", With("71"));
  Keep("2026-09-04 10:00:00", With("70"));
  EXPECT_EQ(Times().size(), 3U);
}

TEST_F(ClassSnapshotsTest, TheyAreThinnedAndTellWhatChangedSinceTheOneThatStayed) {
  Keep("2026-09-01 08:00:00", With("70"));
  Keep("2026-09-02 08:00:00", With("71"));
  Class more = Sample(3, 2);
  std::string bytes;
  ASSERT_EQ(SerializeClass(more, bytes), 0);
  Keep("2026-09-02 09:00:00", bytes);
  EXPECT_EQ(SnapshotsOf(file).snapshots[0].told, "Last03, First03 added, 3 marks");
  // Of 2 September the last stays, and tells what changed since the 1st: the mark is 80, not 70.
  Keep("2026-09-08 08:00:00", With("72"));
  const KeptSnapshots kept = SnapshotsOf(file);
  EXPECT_EQ(Times(), (Texts{"2026-09-08 08:00:00", "2026-09-02 09:00:00", "2026-09-01 08:00:00"}));
  EXPECT_EQ(kept.snapshots[1].told, "Last03, First03 added, 3 marks");
  EXPECT_EQ(kept.snapshots[0].told, "Last03, First03 deleted, 3 marks");
}

TEST_F(ClassSnapshotsTest, TheyTakeAFractionOfTheirBytes) {
  std::string bytes;
  ASSERT_EQ(SerializeClass(Sample(200, 100), bytes), 0);
  const std::string kept = Squeezed(bytes);
  EXPECT_TRUE(IsSqueezed(kept));
  EXPECT_LT(kept.size() * 10, bytes.size());
  EXPECT_EQ(Unsqueeze(kept).bytes, bytes);
}

TEST_F(ClassSnapshotsTest, ADamagedOneSaysSo) {
  const std::string kept = Squeezed(With("70"));
  for (const std::size_t at : {std::size_t{5}, kept.size() / 2, kept.size() - 1}) {
    std::string damaged = kept;
    damaged[at] = static_cast<char>(damaged[at] ^ 0x40);
    EXPECT_NE(Unsqueeze(damaged).fault, "") << at;
  }
  EXPECT_NE(Unsqueeze(kept.substr(0, kept.size() / 2)).fault, "");
  EXPECT_NE(Unsqueeze(kept.substr(0, 4)).fault, "");
  // What was kept without the library is no damage.
  EXPECT_EQ(Unsqueeze(With("70")).bytes, With("70"));
}

TEST_F(ClassSnapshotsTest, ADamagedCompanionSaysWhy) {
  WriteFile(CompanionPath(file), "this is no database at all, and long enough to be looked at");
  EXPECT_EQ(Keep("2026-09-01 10:00:00", With("70")), "it is damaged");
  EXPECT_EQ(SnapshotsOf(file).fault, "it is damaged");
}

TEST_F(ClassSnapshotsTest, WhatShowsMarksIsForgottenWithoutATrace) {
  Class c = Sample(1, 1);
  c.Students[1].comments = "UNMISTAKABLE";
  std::string bytes;
  ASSERT_EQ(SerializeClass(c, bytes), 0);
  EXPECT_FALSE(KeepsMarks(file));
  KeepChanges(file, "2026-09-01 10:00:00",
              {{"7", "Ng, Ada", "Quiz", "Q1", "mark", "80", "UNMISTAKABLE"}});
  Keep("2026-09-01 10:00:00", bytes);
  EXPECT_TRUE(KeepsMarks(file));
  EXPECT_EQ(ForgetMarks(file), "");
  EXPECT_FALSE(KeepsMarks(file));
  EXPECT_EQ(ReadWholeFile(CompanionPath(file)).bytes.find("UNMISTAKABLE"), std::string::npos);
  EXPECT_TRUE(SnapshotsOf(file).snapshots.empty());
}

TEST(WordsOfChangesTest, RecordsAreNamedOrCounted) {
  const auto mark = [](const char* student) {
    return NamedChange{"", student, "Quiz", "Q1", kMarkField, "1", "2"};
  };
  EXPECT_EQ(WordsOfChanges({mark("A")}), "1 mark");
  EXPECT_EQ(WordsOfChanges({mark("A"), mark("B"), {"", "", "", "", "room", "1", "2"}}),
            "2 marks, 1 other entry");
  EXPECT_EQ(WordsOfChanges({{"", "", "Test", "T", kGradeField, "", "Test"}}), "Test added");
  EXPECT_EQ(WordsOfChanges({{"", "", "Test", "T", kGradeField, "Test", ""},
                            {"", "", "Quiz", "Q", kGradeField, "Quiz", ""}}),
            "2 grades deleted");
  EXPECT_EQ(WordsOfChanges({}), "Attendance, seats or the order of records");
}

}  // namespace
}  // namespace tallyroll
