// SPDX-License-Identifier: GPL-3.0-or-later
// A student found in the preview brings his page.
#include <algorithm>

#include "find/frmfind.h"
#include "printing/frmprintpre.h"
#include "tests/printing/print_portal_test.h"

namespace tallyroll {
namespace {

class FindInPreviewTest : public PrintPortalTest {
 protected:
  FindInPreviewTest() {
    Current().Method = 0;
    AddGrade("Quiz 1", "Q ");
  }
  void OpenReport(i16 code, int students, const std::vector<i16>& selected = {}) {
    EnrolMany(students);
    Choice.students = selected;
    LayOut(code);
    Open(portal);
  }
  bool OnScreen(const std::string& text) {
    FixedPrintTarget box;
    portal.picture1.Draw(box);
    return std::ranges::any_of(
        FixedPrintTarget::RowsOf(box.job->pages.back()),
        [&](const std::string& row) { return row.find(text) != std::string::npos; });
  }
  void FindOnce(const std::string& typed, const std::string& first_line) {
    screen.ExpectPortal("frmfind", [typed, first_line](PortalDriver& find) {
      find.Type("typed", typed);
      const Rows& lines = dynamic_cast<frmfind&>(find.portal()).found.List;
      ASSERT_FALSE(lines.empty());
      EXPECT_EQ(lines.front(), first_line);
      find.Press("go");
    });
    driver->Press("findkey");
  }

  frmprintpre portal;
};

TEST_F(FindInPreviewTest, AStudentFoundBringsThePage) {
  OpenReport(19, 120);
  FindOnce("last220", "Last220, First\tStudent, ID 220\tPage 3");
  EXPECT_EQ(driver->Text("Pagen"), " 3");
  EXPECT_EQ(driver->Text("pagenum"), "Page 3");
  EXPECT_TRUE(OnScreen("Last220"));
  FindOnce("101", "Last101, First\tStudent, ID 101\tPage 1");
  EXPECT_EQ(driver->Text("Pagen"), " 1");
  EXPECT_TRUE(OnScreen("Last101"));
}

TEST_F(FindInPreviewTest, TheButtonDoesWhatTheKeyDoes) {
  OpenReport(13, 5, {4, 2});
  screen.ExpectPortal("frmfind", [](PortalDriver& find) {
    find.Type("typed", "last102");
    find.Press("go");
  });
  driver->Press("findstudent");
  EXPECT_EQ(driver->Text("Pagen"), " 2");
  EXPECT_TRUE(OnScreen("Last102"));
}

TEST_F(FindInPreviewTest, WhoIsNotPrintedIsListedWithTheReason) {
  OpenReport(13, 5, {4, 2});
  screen.ExpectPortal("frmfind", [](PortalDriver& find) {
    EXPECT_EQ(dynamic_cast<frmfind&>(find.portal()).found.List.size(), 5u);
    find.Type("typed", "last101");
    EXPECT_EQ(find.Text("note"), "The student stands on no page of this report.");
    find.Press("go");  // stays
    find.Press("exit");
  });
  driver->Press("findstudent");
  EXPECT_EQ(driver->Text("Pagen"), " 1");
}

TEST_F(FindInPreviewTest, AReportWithoutStudentsFindsNone) {
  OpenReport(22, 5);
  EXPECT_FALSE(driver->Enabled("findstudent"));
}

// The list of the class window comes back, whatever happens in the preview.
TEST_F(FindInPreviewTest, FindInTheClassWindowKeepsItsOwnList) {
  MakeFindEntries = [] {
    return std::vector<FindEntry>{{.kind = FindKind::kCommand, .text = "Save"}};
  };
  OpenReport(19, 3);
  screen.ExpectPortal("frmfind", [](PortalDriver& find) { find.CloseWindow(); });
  driver->Press("findkey");
  ASSERT_TRUE(MakeFindEntries);
  EXPECT_EQ(MakeFindEntries().front().text, "Save");
}

}  // namespace
}  // namespace tallyroll
