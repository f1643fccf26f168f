// SPDX-License-Identifier: GPL-3.0-or-later
// A new class holds nothing of the one that had its slot before.
#include <random>

#include "store/check_class.h"
#include "store/class_format.h"
#include "store/text_layout.h"
#include "tests/shell/shell_test.h"
#include "tests/support/random_class.h"

namespace tallyroll {
namespace {

class NewClassTest : public ShellTest {
 protected:
  // A class of all that a file can hold stood in the slot.
  void FillSlotBefore() {
    std::mt19937 random(20261122);
    Class full = RandomClass(random);
    while (full.NumCharts == 0 || full.Reserved8.empty() || full.ReservedList.empty())
      full = RandomClass(random);
    full.SlotState = 0;
    Classes[1] = full;
    SkippedScale[1] = 3;
  }
  static Class Read(const std::string& path) {
    Class c;
    EXPECT_EQ(ParseClass(ReadWholeFile(path).bytes, c).error, 0);
    return c;
  }
  // The file that `make` leaves, once in a fresh slot and once after another class.
  template <typename Make>
  void ExpectNothingOfTheOther(Make&& make) {
    make(Path("fresh.TYR"));
    Window(1)->ClickMenu("mnuclose");
    FillSlotBefore();
    make(Path("after.TYR"));
    EXPECT_EQ(SkippedScale[1], 0);
    const Class after = Read(Path("after.TYR"));
    EXPECT_EQ(BrokenInvariants(after), std::vector<std::string>{});
    EXPECT_TRUE(SameOnDisk(after, Read(Path("fresh.TYR"))));
  }
  void ExpectSaved(const std::string& path) { screen.ExpectFileDialog(path); }
  std::string TextFile() {
    WriteFile(Path("new.txt"), "8\tNg, Ada\n7\tAbel, Bo\n");
    return Path("new.txt");
  }
};

TEST_F(NewClassTest, ByTheProgram) {
  ExpectNothingOfTheOther([this](const std::string& path) {
    screen.ExpectPortal("frmAdd", [](PortalDriver& work) {
      work.Type("lastname", "Ng");
      work.Type("firstname", "Ada");
      work.Type("id", "7");
      work.Press("Exitt");
    });
    ExpectSaved(path);
    FrameForm->ClickMenu("mnuown");
  });
}

TEST_F(NewClassTest, ByTheWizard) {
  ExpectNothingOfTheOther([this](const std::string& path) {
    screen.ExpectPortal("frmWizard", [](PortalDriver& work) {
      for (int step = 1; step < 4; ++step) work.Press("cmdNext");
      work.Type("Lname", "Ng");
      work.Type("fname", "Ada");
      work.Type("id", "7");
      for (int step = 4; step <= 8; ++step) work.Press("cmdNext");
    });
    ExpectSaved(path);
    FrameForm->ClickMenu("mnuwizard");
  });
}

TEST_F(NewClassTest, FromText) {
  ExpectNothingOfTheOther([this](const std::string& path) {
    screen.ExpectPortal("frmtxt", [](PortalDriver& work) {
      for (const char* option : {"columns", "singles", "doubles", "commas", "csv"})
        work.Tick(option, false);
      work.Tick("Tabs");
      work.Press("okbt");
    });
    screen.ExpectFileDialog(TextFile());
    FrameForm->ClickMenu("mnuLoadText");
    ExpectSaved(path);
    Window(1)->ClickMenu("mnusave");
  });
}

TEST_F(NewClassTest, FromTheRosterOfAnother) {
  const std::string kTransferBox =
      "This option TRANSFERS Name, Id, Comments and Supplementary Information to a new file. "
      "Continue?";
  std::mt19937 random(20261122);
  Open("A.TYR");
  Classes[2] = RandomClass(random);
  Classes[2].SlotState = 0;
  screen.ExpectBox(kTransferBox, BoxAnswer::kYes);
  Window(1)->ClickMenu("mnuTransfer");
  ASSERT_EQ(WindowCount(), 2);
  ExpectSaved(Path("after.TYR"));
  Window(2)->ClickMenu("mnusave");
  const Class after = Read(Path("after.TYR"));
  EXPECT_EQ(BrokenInvariants(after), std::vector<std::string>{});
  EXPECT_EQ(after.Categories, Class().Categories);
  EXPECT_TRUE(after.Reserved8.empty());
  EXPECT_TRUE(after.ChartRows.empty());
}

}  // namespace
}  // namespace tallyroll
