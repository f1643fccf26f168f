// SPDX-License-Identifier: GPL-3.0-or-later
// What a companion file keeps of many saves, against a model that keeps everything.
#include <random>

#include "base/text.h"
#include "companion/change_history.h"
#include "companion/class_snapshots.h"
#include "companion/save_time.h"
#include "companion/thinning.h"
#include "tests/shell/shell_test.h"

namespace tallyroll {
namespace {

struct SavedState {
  std::string time;
  std::string bytes;
};

class KeptAgainstModelTest : public ShellTest {
 protected:
  static constexpr int kStudents = 5, kGrades = 4, kSaves = 60;
  static constexpr double kFirstDay = 46266;

  KeptAgainstModelTest() : window(&Open("A.TYR", Sample(kStudents, kGrades))) {
    window->ClickMenu("mnusave");
    // The model knows the file that was there before by the time that it bears.
    model.push_back({FileTimeText(StampOf(Current().FileName).modified), OnDisk()});
  }

  int UpTo(int most) { return std::uniform_int_distribution<int>(0, most)(random); }
  static std::string OnDisk() { return ReadWholeFile(Current().FileName).bytes; }

  // Some marks are typed, each at most once between two saves, and the class is saved.
  void WorkAndSave() {
    Class& c = Current();
    std::vector<NamedChange> now;
    for (std::size_t s = 1; s <= kStudents; ++s) {
      for (std::size_t g = 1; g <= kGrades; ++g) {
        if (UpTo(5) != 0) continue;
        const std::string before(Trim(c.Students[s].Marks[g]));
        const std::string after = PlainNumberText(static_cast<std::int64_t>(UpTo(3)));
        c.Students[s].Marks[g] = after;
        if (before == after) continue;
        const std::string number = PlainNumberText(static_cast<std::int64_t>(s));
        now.push_back({"10" + number, "Last0" + number + ", First0" + number, "Quiz",
                       "Q" + PlainNumberText(static_cast<std::int64_t>(g)), kMarkField, before,
                       after});
      }
    }
    c.Changed = kTrue;
    window->ClickMenu("mnusave");
    changes.insert(changes.end(), now.begin(), now.end());
    if (!now.empty()) model.push_back({SaveTimeText(screen.now), OnDisk()});
  }

  // Sometimes on the same day, sometimes a month later.
  void TimeGoesBy() {
    constexpr double kSteps[] = {0.01, 0.01, 0.3, 1, 1, 3, 40};
    screen.now += kSteps[UpTo(6)];
  }

  // By the days alone, all at once in place of save by save: what is dropped each time.
  void ThinModel() {
    std::vector<double> days;
    days.reserve(model.size());
    for (const SavedState& each : model) days.push_back(DayOfSaveTime(each.time));
    const auto drop = SnapshotsToDrop(days, screen.now);
    for (auto place = drop.rbegin(); place != drop.rend(); ++place)
      model.erase(model.begin() + static_cast<std::ptrdiff_t>(*place));
  }

  Form1* window;
  std::mt19937 random{20260901};
  std::vector<SavedState> model;
  std::vector<NamedChange> changes;
};

TEST_F(KeptAgainstModelTest, EverySaveIsThereWithItsBytesAndEveryChangeInItsOrder) {
  screen.now = kFirstDay;
  const std::string path = Current().FileName;
  for (int save = 0; save < kSaves; ++save) {
    TimeGoesBy();
    const std::size_t before = model.size();
    WorkAndSave();
    if (model.size() > before) ThinModel();
  }
  const KeptSnapshots kept = SnapshotsOf(path);
  ASSERT_EQ(kept.fault, "");
  ASSERT_EQ(kept.snapshots.size(), model.size());
  for (std::size_t i = 0; i < model.size(); ++i) {
    const Snapshot& snapshot = kept.snapshots[model.size() - 1 - i];
    EXPECT_EQ(snapshot.time, model[i].time);
    EXPECT_TRUE(BytesOfSnapshot(path, snapshot.number).bytes == model[i].bytes) << i;
  }
  const KeptChanges history = ChangesKept(path, {});
  ASSERT_EQ(history.changes.size(), changes.size());
  // Of one save they stand by student and grade, as they were made.
  for (std::size_t i = 0; i < changes.size(); ++i)
    EXPECT_EQ(history.changes[changes.size() - 1 - i].change, changes[i]) << i;
}

// What each line of a snapshot tells is the difference to the one that stands before it.
TEST_F(KeptAgainstModelTest, EachTellsWhatChangedSinceTheOneBeforeIt) {
  screen.now = kFirstDay;
  for (int save = 0; save < 25; ++save) {
    TimeGoesBy();
    WorkAndSave();
  }
  const std::string path = Current().FileName;
  const KeptSnapshots kept = SnapshotsOf(path);
  ASSERT_GT(kept.snapshots.size(), 5U);
  for (std::size_t i = 0; i + 1 < kept.snapshots.size(); ++i) {
    Class before, after;
    const auto read = [&](const Snapshot& each, Class& c) {
      return ParseClass(BytesOfSnapshot(path, each.number).bytes, c).error;
    };
    ASSERT_EQ(read(kept.snapshots[i + 1], before), 0);
    ASSERT_EQ(read(kept.snapshots[i], after), 0);
    EXPECT_EQ(kept.snapshots[i].told, WordsOfChanges(ChangesBetween(before, after))) << i;
  }
  EXPECT_EQ(kept.snapshots.back().told, "The first that is kept");
}

}  // namespace
}  // namespace tallyroll
