// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frmclassinfo.h"

#include <optional>

#include "store/program_state.h"
#include "tests/support/portal_test.h"

namespace tallyroll {
namespace {

const std::string kCancelQuestion = "Data has been entered. Are you sure you want to CANCEL?";

class FrmClassInfoTest : public PortalTest {
 protected:
  FrmClassInfoTest() {
    Class& c = Current();
    c.school = "North ";
    c.room = "12";
    c.timed = "9:00";
    c.teacher = "M. Orr";
    c.description = "Math 201";
    c.termstart = "9/2/2026";
    c.termend = "before summer";
  }
  ~FrmClassInfoTest() override {
    for (const std::string& complaint : driver->Complaints()) ADD_FAILURE() << complaint;
  }
  void Open() {
    portal.Load();
    driver.emplace(portal);
  }

  frmclassinfo portal;
  std::optional<PortalDriver> driver;
};

TEST_F(FrmClassInfoTest, ShowsTheClass) {
  Open();
  EXPECT_EQ(driver->Text("school"), "North");
  EXPECT_EQ(driver->Text("room"), "12");
  EXPECT_EQ(driver->Text("timed"), "9:00");
  EXPECT_EQ(driver->Text("teacher"), "M. Orr");
  EXPECT_EQ(driver->Text("description"), "Math 201");
  EXPECT_EQ(driver->Text("tempstart"), "9/2/2026");
  EXPECT_EQ(driver->Text("tempend"), "before summer");
}

TEST_F(FrmClassInfoTest, APickerShowsTheDateWhenTheTextIsOneAndTodayOtherwise) {
  screen.now = 46300.75;
  Open();
  EXPECT_EQ(portal.termstart.Value, 46267);  // the day after 1 September 2026, which is 46266
  EXPECT_EQ(portal.termend.Value, 46300);
}

TEST_F(FrmClassInfoTest, ExitWritesEveryFieldTrimmed) {
  Open();
  driver->Type("school", " South ");
  driver->Type("room", "13");
  driver->Type("timed", "10:00");
  driver->Type("teacher", "A. Li");
  driver->Type("description", "Math 202");
  driver->Type("tempstart", "1/5/2027");
  driver->Type("tempend", "");
  driver->Press("exit");
  EXPECT_TRUE(portal.Unloaded());
  const Class& c = Current();
  EXPECT_EQ(c.school, "South");
  EXPECT_EQ(c.room, "13");
  EXPECT_EQ(c.timed, "10:00");
  EXPECT_EQ(c.teacher, "A. Li");
  EXPECT_EQ(c.description, "Math 202");
  EXPECT_EQ(c.termstart, "1/5/2027");
  EXPECT_EQ(c.termend, "");
  EXPECT_EQ(c.Changed, kTrue);
}

TEST_F(FrmClassInfoTest, ADatePickedIsCopiedIntoTheText) {
  Open();
  driver->PickDate("termend", 46296);  // 1 October 2026
  EXPECT_EQ(driver->Text("tempend"), "10/1/2026");
  driver->PickDate("termstart", 46266);
  driver->Press("exit");
  EXPECT_EQ(Current().termend, "10/1/2026");
  EXPECT_EQ(Current().termstart, "9/1/2026");
}

TEST_F(FrmClassInfoTest, ADescriptionHasUpTo30CharactersUnlessTheFileHasMore) {
  Open();
  EXPECT_EQ(portal.description.MaxLength, 30);
  Current().description = std::string(41, 'x');
  frmclassinfo longer;
  longer.Load();
  EXPECT_EQ(longer.description.MaxLength, 41);
}

TEST_F(FrmClassInfoTest, CancelWithoutAChangeLeavesAtOnce) {
  Open();
  driver->Press("cancel");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmClassInfoTest, CancelAfterAChangeAsks) {
  Open();
  driver->Type("room", "14");
  screen.ExpectBox(kCancelQuestion, BoxAnswer::kNo);
  driver->Press("cancel");
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(screen.boxes.at(0).title, "CANCEL");
  EXPECT_EQ(screen.boxes.at(0).buttons, BoxButtons::kYesNo);
}

TEST_F(FrmClassInfoTest, AnEditOfAnyFieldIsAChange) {
  for (const char* box :
       {"description", "school", "room", "teacher", "timed", "tempstart", "tempend"}) {
    frmclassinfo fresh;
    fresh.Load();
    PortalDriver each(fresh);
    each.Type(box, "x");
    screen.ExpectBox(kCancelQuestion, BoxAnswer::kNo);
    each.Press("cancel");
    EXPECT_FALSE(fresh.Unloaded()) << box;
  }
  Open();
}

TEST_F(FrmClassInfoTest, ExitMarksTheClassAsChangedEvenWithoutAnEdit) {
  Open();
  driver->Press("exit");
  EXPECT_EQ(Current().Changed, kTrue);
  EXPECT_EQ(Current().school, "North");
}

TEST_F(FrmClassInfoTest, CancelConfirmedWritesNothing) {
  Open();
  driver->Type("room", "14");
  screen.ExpectBox(kCancelQuestion, BoxAnswer::kYes);
  driver->Press("cancel");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().room, "12");
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmClassInfoTest, APickedDateIsAChange) {
  Open();
  driver->PickDate("termstart", 46270);
  screen.ExpectBox(kCancelQuestion, BoxAnswer::kNo);
  driver->CloseWindow();
  EXPECT_FALSE(portal.Unloaded());
}

}  // namespace
}  // namespace tallyroll
