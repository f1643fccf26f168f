// SPDX-License-Identifier: GPL-3.0-or-later
// Reports saved from the preview where the disk refuses: the teacher is told, what stood in the
// file stays, and no half file is left.
#include <filesystem>

#include "printing/frmprintpre.h"
#include "store/safe_file.h"
#include "tests/printing/print_portal_test.h"
#include "tests/support/refusing_disk.h"

namespace tallyroll {
namespace {

struct Save {
  const char* button;
  i16 code;
};

class SaveRefusedTest : public PrintPortalTest, public testing::WithParamInterface<Save> {
 protected:
  SaveRefusedTest() {
    AddGrade("Quiz 1", "Q ");
    EnrolMany(50);
    Choice.month_first = Choice.month_last = 46266;
    LayOut(GetParam().code);
    Open(portal);
  }
  void SaveAs(const std::string& path) {
    screen.ExpectFileDialog(path);
    screen.ExpectBox("File Error");
    driver->Press(GetParam().button);
  }
  Rows Files() const {
    Rows names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
      names.push_back(entry.path().filename().string());
    return names;
  }

  frmprintpre portal;
  const std::string file = Path("report");
};

TEST_P(SaveRefusedTest, AFullDiskLeavesNoHalfFile) {
  {
    const SmallFiles small(500);
    SaveAs(file);
  }
  EXPECT_EQ(screen.boxes.back().title, "Note to the Teacher");
  EXPECT_EQ(Files(), Rows());
}

TEST_P(SaveRefusedTest, AFullDiskLeavesTheOldFile) {
  ASSERT_EQ(ReplaceFile(file, "old", OldTail::kDrop), 0);
  {
    const SmallFiles small(500);
    SaveAs(file);
  }
  EXPECT_EQ(ReadWholeFile(file).bytes, "old");
  EXPECT_EQ(Files(), Rows{"report"});
}

TEST_P(SaveRefusedTest, AReadOnlyFolderStaysAsItIs) {
  ASSERT_EQ(ReplaceFile(file, "old", OldTail::kDrop), 0);
  {
    const ReadOnlyFolder locked(folder);
    ASSERT_TRUE(locked.Refuses());
    SaveAs(file);
    SaveAs(Path("other"));
  }
  EXPECT_EQ(ReadWholeFile(file).bytes, "old");
  EXPECT_EQ(Files(), Rows{"report"});
}

TEST_P(SaveRefusedTest, TheNextSaveSucceeds) {
  {
    const SmallFiles small(500);
    SaveAs(file);
  }
  screen.ExpectFileDialog(file);
  driver->Press(GetParam().button);
  EXPECT_EQ(screen.boxes.size(), 1u);
  EXPECT_NE(ReadWholeFile(file).bytes.find("Last150"), std::string::npos);
}

// As text, as text in HTML, and as both of the tables.
INSTANTIATE_TEST_SUITE_P(EveryForm, SaveRefusedTest,
                         testing::Values(Save{"nine", 19}, Save{"ten", 19}, Save{"ten", 3},
                                         Save{"ten", 8}),
                         [](const auto& save) {
                           return save.param.button + ("Code" + PlainNumberText(save.param.code));
                         });

}  // namespace
}  // namespace tallyroll
