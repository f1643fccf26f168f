// SPDX-License-Identifier: GPL-3.0-or-later
// A save with a companion file, of which each system call fails in turn, or is the last one before
// the program is killed. The class file is never worse off than without a companion, and what the
// companion kept before can be read afterwards.
#include <cerrno>

#include "companion/behind.h"
#include "companion/change_history.h"
#include "companion/class_snapshots.h"
#include "companion/companion_file.h"
#include "tests/shell/shell_test.h"
#include "tests/support/failing_calls.h"

namespace tallyroll {
namespace {

namespace fs = std::filesystem;

constexpr int kMostCalls = 1000;
constexpr int kSaved = 0, kNotSaved = 3, kSavedAndTold = 4;

class SaveWithFaultsTest : public ShellTest {
 protected:
  SaveWithFaultsTest() : window(&Open("A.TYR", Sample(3, 2))), file(Current().FileName) {
    // A history and snapshots of two saves stand already.
    for (const char* mark : {"1", "2"}) {
      Current().Students[1].Marks[1] = mark;
      Current().Changed = kTrue;
      window->ClickMenu("mnusave");
    }
    old_class = ReadWholeFile(file).bytes;
    kept = SnapshotsOf(file).snapshots.size();
    changes = ChangesKept(file, {}).changes.size();
    fs::create_directory(Path("before"));
    for (const char* name : {"A.TYR", "A.tyx"})
      fs::copy_file(Path(name), Path("before") + "/" + name);
    Current().Students[1].Marks[1] = "3";
    Current().Changed = kTrue;
    EXPECT_EQ(SerializeClass(Current(), new_class), 0);
    // A shorter class leaves the tail of the file behind it.
    if (new_class.size() < old_class.size()) new_class += old_class.substr(new_class.size());
  }

  // What was before the save, in files of the same names.
  void PutBack() {
    for (const auto& entry : fs::directory_iterator(folder))
      if (entry.is_regular_file()) fs::remove(entry.path());
    for (const char* name : {"A.TYR", "A.tyx"})
      fs::copy_file(Path("before") + "/" + name, Path(name));
    CurrentClassFile().stamp = StampOf(file);
  }

  int Save() {
    FrameForm->KeepWork(true);
    AwaitBehind();
    FailureIsTold();
    window->ClickMenu("mnusave");
    if (Current().Changed != kFalse) return kNotSaved;
    return window->StatusText == "A.TYR saved." ? kSaved : kSavedAndTold;
  }
  // In the process that is to fail, where the script's complaints go nowhere.
  void FailureIsTold() {
    for (const char* error : {"57", "61", "70. Disk may be write protected", "75"})
      screen.ExpectBox(std::string("File Error: ") + error);
  }

  void LookAfter(const Faulted& faulted, int nth) {
    const std::string on_disk = ReadWholeFile(file).bytes;
    EXPECT_TRUE(on_disk == old_class || on_disk == new_class) << "the class after call " << nth;
    const bool saved = faulted.status == kSaved || faulted.status == kSavedAndTold;
    EXPECT_TRUE(!saved || on_disk == new_class) << "told as saved, " << nth;
    EXPECT_TRUE(faulted.status != kNotSaved || on_disk == old_class)
        << "told as not saved, " << nth;
    const KeptSnapshots snapshots = SnapshotsOf(file);
    EXPECT_EQ(snapshots.fault, "") << nth;
    EXPECT_GE(snapshots.snapshots.size(), kept) << nth;
    for (const Snapshot& each : snapshots.snapshots)
      EXPECT_EQ(BytesOfSnapshot(file, each.number).fault, "") << nth;
    const KeptChanges history = ChangesKept(file, {});
    EXPECT_EQ(history.fault, "") << nth;
    EXPECT_GE(history.changes.size(), changes) << nth;
    if (faulted.status != kSaved) return;
    // What is not kept is told.
    EXPECT_EQ(snapshots.snapshots.size(), kept + 1) << nth;
    EXPECT_EQ(history.changes.size(), changes + 1) << nth;
  }

  // Each call in turn; answers how many there were.
  int EachCall(Fate fate, int error) {
    for (int nth = 1; nth <= kMostCalls; ++nth) {
      PutBack();
      const Faulted faulted = RunWithFault([this] { return Save(); }, nth, fate, error);
      if (!faulted.supported || !faulted.met) return faulted.supported ? nth - 1 : -1;
      // A killed process has told nothing.
      LookAfter(fate == Fate::kKilled ? Faulted{true, true, -1} : faulted, nth);
      if (HasFailure()) return nth;
    }
    return kMostCalls;
  }

  Form1* window;
  std::string file, old_class, new_class;
  std::size_t kept = 0, changes = 0;
};

TEST_F(SaveWithFaultsTest, WithoutAFaultEverythingIsKept) {
  PutBack();
  const Faulted whole = RunWithFault([this] { return Save(); }, 0, Fate::kFails);
  if (!whole.supported) GTEST_SKIP() << "processes cannot be watched here";
  EXPECT_EQ(whole.status, kSaved);
  EXPECT_EQ(ReadWholeFile(file).bytes, new_class);
  EXPECT_EQ(SnapshotsOf(file).snapshots.size(), kept + 1);
  EXPECT_EQ(ChangesKept(file, {}).changes.size(), changes + 1);
}

TEST_F(SaveWithFaultsTest, AKillAtAnyCallLosesNothing) {
  const int calls = EachCall(Fate::kKilled, 0);
  if (calls < 0) GTEST_SKIP() << "processes cannot be watched here";
  EXPECT_GT(calls, 20);
}

TEST_F(SaveWithFaultsTest, AFaultOfAnyCallLosesNothing) {
  const int calls = EachCall(Fate::kFails, EIO);
  if (calls < 0) GTEST_SKIP() << "processes cannot be watched here";
  EXPECT_GT(calls, 20);
}

TEST_F(SaveWithFaultsTest, ADiskThatIsFullAtAnyCallLosesNothing) {
  const int calls = EachCall(Fate::kFails, ENOSPC);
  if (calls < 0) GTEST_SKIP() << "processes cannot be watched here";
  EXPECT_GT(calls, 20);
}

}  // namespace
}  // namespace tallyroll
