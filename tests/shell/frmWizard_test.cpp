// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frmWizard.h"

#include <fstream>
#include <iterator>
#include <optional>

#include "roster/frmAdd.h"
#include "store/program_state.h"
#include "tests/support/portal_test.h"
#include "tests/support/source_dir.h"

namespace tallyroll {
namespace {

class FrmWizardTest : public PortalTest {
 protected:
  FrmWizardTest() {
    portal.Load();
    driver.emplace(portal);
  }
  ~FrmWizardTest() override {
    for (const std::string& complaint : driver->Complaints()) ADD_FAILURE() << complaint;
  }

  // From step 1 to this one, with a student where one is required.
  void GoToStep(int step) {
    while (portal.Step < step) {
      if (portal.Step == 4 && !driver->Enabled("cmdNext")) TypeStudent();
      driver->Press("cmdNext");
    }
  }
  void TypeStudent() {
    driver->Type("Lname", "Ng");
    driver->Type("fname", "Ada");
    driver->Type("id", "7");
  }

  frmWizard portal;
  std::optional<PortalDriver> driver;
};

TEST_F(FrmWizardTest, BeginsAtTheWelcomeWithBackDisabledAndThePicture) {
  EXPECT_EQ(portal.Step, 1);
  EXPECT_EQ(portal.framecontrol.Current, 0);
  EXPECT_FALSE(driver->Enabled("cmdBack"));
  EXPECT_TRUE(driver->Enabled("cmdNext"));
  EXPECT_FALSE(driver->Visible("button_skip"));
  EXPECT_TRUE(driver->Visible("Picture2"));
  EXPECT_EQ(driver->Text("cmdNext"), "&Next >");
}

TEST_F(FrmWizardTest, EachPageTellsItsStep) {
  EXPECT_EQ(portal.stepline.Caption, "Step 1 of 8");
  driver->Press("cmdNext");
  EXPECT_EQ(portal.stepline.Caption, "Step 2 of 8");
  GoToStep(8);
  EXPECT_EQ(portal.stepline.Caption, "Step 8 of 8");
}

TEST_F(FrmWizardTest, NextAndBackWalkThePages) {
  driver->Press("cmdNext");
  EXPECT_EQ(portal.Step, 2);
  EXPECT_EQ(portal.framecontrol.Current, 1);
  EXPECT_TRUE(driver->Enabled("cmdBack"));
  EXPECT_FALSE(driver->Visible("Picture2"));
  driver->Press("cmdBack");
  EXPECT_EQ(portal.Step, 1);
  EXPECT_FALSE(driver->Enabled("cmdBack"));
}

TEST_F(FrmWizardTest, TheFocusGoesToThePagesFirstField) {
  GoToStep(2);
  EXPECT_EQ(driver->Focused(), "description");
  GoToStep(3);
  EXPECT_EQ(driver->Focused(), "school");
  GoToStep(4);
  EXPECT_EQ(driver->Focused(), "Lname");
  GoToStep(6);
  EXPECT_EQ(driver->Focused(), "phone");
  GoToStep(7);
  EXPECT_EQ(driver->Focused(), "address");
}

TEST_F(FrmWizardTest, NextStaysDisabledWithABlankId) {
  GoToStep(4);
  EXPECT_FALSE(driver->Enabled("cmdNext"));
  driver->Type("Lname", "Ng");
  driver->Type("fname", "Ada");
  driver->Type("id", "  ");
  EXPECT_FALSE(driver->Enabled("cmdNext"));
  driver->Type("id", "7");
  EXPECT_TRUE(driver->Enabled("cmdNext"));
}

TEST_F(FrmWizardTest, NextIsDisabledAgainWhenANameIsTakenAway) {
  GoToStep(4);
  TypeStudent();
  driver->Type("fname", "");
  EXPECT_FALSE(driver->Enabled("cmdNext"));
}

TEST_F(FrmWizardTest, ComingBackToTheStudentNextIsEnabled) {
  GoToStep(5);
  driver->Press("cmdBack");
  EXPECT_EQ(portal.Step, 4);
  EXPECT_TRUE(driver->Enabled("cmdNext"));
}

TEST_F(FrmWizardTest, TheTwoNamesShare30Characters) {
  GoToStep(4);
  driver->Type("Lname", std::string(30, 'x'));
  EXPECT_EQ(portal.fname.MaxLength, -1);
  driver->Type("Lname", "Abernathy");
  EXPECT_EQ(portal.fname.MaxLength, 21);
}

TEST_F(FrmWizardTest, DescriptionAndIdAreLimited) {
  EXPECT_EQ(portal.description.MaxLength, 30);
  EXPECT_EQ(portal.id.MaxLength, 12);
  EXPECT_EQ(portal.school.MaxLength, 65535);
}

TEST_F(FrmWizardTest, SkipIsOfferedOnPage5) {
  GoToStep(5);
  EXPECT_TRUE(driver->Visible("button_skip"));
  EXPECT_EQ(driver->Text("button_skip"), "&Skip");
  driver->Press("cmdNext");
  EXPECT_FALSE(driver->Visible("button_skip"));
}

TEST_F(FrmWizardTest, SkipFromPage5LandsOnPage8) {
  GoToStep(5);
  driver->Press("button_skip");
  EXPECT_EQ(portal.Step, 8);
  EXPECT_EQ(portal.framecontrol.Current, 7);
}

TEST_F(FrmWizardTest, TheLastPageOffersContinueAndFinish) {
  GoToStep(8);
  EXPECT_EQ(driver->Text("button_skip"), "C&ontinue");
  EXPECT_EQ(driver->Text("cmdNext"), "&Finish");
  EXPECT_TRUE(driver->Visible("button_skip"));
  EXPECT_TRUE(driver->Visible("Picture2"));
  driver->Press("cmdBack");
  EXPECT_EQ(driver->Text("cmdNext"), "&Next >");
  EXPECT_FALSE(driver->Visible("Picture2"));
}

TEST_F(FrmWizardTest, FinishMakesTheClassWithItsFirstStudent) {
  GoToStep(2);
  driver->Type("description", "Math 201");
  GoToStep(3);
  driver->Type("school", " North ");
  driver->Type("room", "12");
  driver->Type("teacher", "M. Orr");
  driver->Type("timed", "9:00");
  GoToStep(6);
  driver->Type("birth", "5/1/2012");
  driver->Type("phone", "555-1");
  driver->Type("ptname", "Per Ng");
  driver->Type("Text2", "555-2");
  driver->Type("email", "per@example.org");
  GoToStep(7);
  driver->Type("address", "1 Main St");
  driver->Type("city", "Oslo");
  driver->Type("state", "NY");
  driver->Type("zipcode", "0150");
  GoToStep(8);
  driver->Press("cmdNext");

  EXPECT_TRUE(portal.Unloaded());
  const Class& c = Current();
  ASSERT_EQ(c.NumStudents, 1);
  EXPECT_EQ(CurrentStudent, 1);
  EXPECT_EQ(c.Changed, kTrue);
  EXPECT_EQ(c.Magic, "ty8");
  EXPECT_EQ(c.description, "Math 201");
  EXPECT_EQ(c.school, "North");
  EXPECT_EQ(c.room, "12");
  EXPECT_EQ(c.teacher, "M. Orr");
  EXPECT_EQ(c.timed, "9:00");
  EXPECT_EQ(c.termstart, "");
  EXPECT_EQ(c.termend, "");
  EXPECT_EQ(c.LastNameWidth, 2);
  EXPECT_EQ(c.FirstNameWidth, 3);
  const Student& ada = c.Students[1];
  EXPECT_EQ(ada.lastname, "Ng");
  EXPECT_EQ(ada.firstname, "Ada");
  EXPECT_EQ(ada.id, "7");
  EXPECT_EQ(ada.birth, "5/1/2012");
  EXPECT_EQ(ada.phone, "555-1");
  EXPECT_EQ(ada.parent, "Per Ng");
  EXPECT_EQ(ada.work, "555-2");
  EXPECT_EQ(ada.email, "per@example.org");
  EXPECT_EQ(ada.address, "1 Main St");
  EXPECT_EQ(ada.city, "Oslo");
  EXPECT_EQ(ada.state, "NY");
  EXPECT_EQ(ada.zip, "0150");
  EXPECT_EQ(ada.comments, "");
}

TEST_F(FrmWizardTest, ThePickersStartAtToday) {
  EXPECT_EQ(portal.termstart.Value, 46266);
  EXPECT_EQ(portal.termend.Value, 46266);
  EXPECT_EQ(driver->Text("tempstart"), "");
  EXPECT_EQ(driver->Text("tempend"), "");
}

TEST_F(FrmWizardTest, PickedDatesBecomeTheTermInTheUsersOrder) {
  GoToStep(3);
  driver->PickDate("termstart", 46267);  // the day after 1 September 2026
  EXPECT_EQ(driver->Text("tempstart"), "9/2/2026");
  screen.date_order = DateOrder::kDayFirst;
  driver->PickDate("termend", 46296);  // 30 days after 1 September
  EXPECT_EQ(driver->Text("tempend"), "01/10/2026");
  GoToStep(8);
  driver->Press("cmdNext");
  EXPECT_EQ(Current().termstart, "9/2/2026");
  EXPECT_EQ(Current().termend, "01/10/2026");
}

TEST_F(FrmWizardTest, ATextThatIsNoDateIsToldOnceWhenItIsLeft) {
  const std::string told =
      "\"99/99/2026\" is not a date. Type one such as 9/1/2026, choose it from the calendar, or "
      "leave the box empty.";
  GoToStep(3);
  driver->Type("tempstart", "99/99/2026");
  screen.ExpectBox(told);
  driver->Focus("school");
  EXPECT_EQ(driver->Focused(), "tempstart");
  driver->Focus("school");
  EXPECT_EQ(driver->Focused(), "school");
  screen.ExpectBox(told);
  driver->Press("cmdNext");
  EXPECT_EQ(portal.Step, 3);
  EXPECT_EQ(driver->Focused(), "tempstart");
  driver->Type("tempstart", "9/2/2026");
  driver->Press("cmdNext");
  EXPECT_EQ(portal.Step, 4);
}

TEST_F(FrmWizardTest, ADateThatIsNoneDoesNotBarTheWayOut) {
  GoToStep(3);
  driver->Type("tempend", "soon");
  screen.ExpectBox(
      "\"soon\" is not a date. Type one such as 9/1/2026, choose it from the calendar, or leave "
      "the "
      "box empty.");
  driver->Press("cmdCancel");
  EXPECT_FALSE(portal.Unloaded());
  driver->Press("cmdCancel");
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmWizardTest, TheCalendarOpensAtTheDateThatWasTyped) {
  GoToStep(3);
  driver->Type("tempstart", "9/2/2026");
  EXPECT_EQ(portal.termstart.Value, 46267);
  driver->Type("tempstart", "");
  EXPECT_EQ(portal.termstart.Value, 46266);
}

TEST_F(FrmWizardTest, ContinueMakesTheClassAndGoesOnToAddStudents) {
  MakePortal = [](std::string_view) -> std::unique_ptr<Portal> {
    return std::make_unique<frmAdd>();
  };
  GoToStep(8);
  screen.ExpectPortal("frmAdd", [](PortalDriver& add) {
    EXPECT_EQ(Current().NumStudents, 1);
    add.Type("lastname", "Li");
    add.Type("firstname", "Bo");
    add.Type("id", "8");
    add.Press("Exitt");
  });
  driver->Press("button_skip");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().NumStudents, 2);
}

TEST_F(FrmWizardTest, TheFirstStudentStaysWhenAddingOthersIsCancelled) {
  MakePortal = [](std::string_view) -> std::unique_ptr<Portal> {
    return std::make_unique<frmAdd>();
  };
  GoToStep(8);
  screen.ExpectPortal("frmAdd", [](PortalDriver& add) { add.Press("cancel"); });
  driver->Press("button_skip");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().NumStudents, 1);
  EXPECT_EQ(Current().Students[1].lastname, "Ng");
}

TEST_F(FrmWizardTest, NamesStayAsTypedAndTheWidthsAreTheirs) {
  Current().LastNameWidth = 20;
  GoToStep(4);
  driver->Type("Lname", "Ng ");
  driver->Type("fname", "Ada");
  driver->Type("id", "7 ");
  GoToStep(5);
  driver->Press("button_skip");
  driver->Press("cmdNext");
  EXPECT_EQ(Current().Students[1].lastname, "Ng ");
  EXPECT_EQ(Current().Students[1].id, "7");
  EXPECT_EQ(Current().LastNameWidth, 3);
  EXPECT_EQ(Current().FirstNameWidth, 3);
}

TEST_F(FrmWizardTest, CancelWithOnlyClassDetailsLeavesAtOnce) {
  GoToStep(2);
  driver->Type("description", "Math 201");
  driver->Press("cmdCancel");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().description, "");
}

TEST_F(FrmWizardTest, CancelWithNothingEnteredLeavesAtOnce) {
  driver->Press("cmdCancel");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().NumStudents, 0);
}

TEST_F(FrmWizardTest, CancelWithAStudentEnteredAsks) {
  GoToStep(5);
  screen.ExpectBox("Data has been entered. Do you want to cancel?", BoxAnswer::kNo);
  driver->Press("cmdCancel");
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(screen.boxes.at(0).title, "Note to the Teacher");
  EXPECT_EQ(screen.boxes.at(0).buttons, BoxButtons::kYesNo);
}

TEST_F(FrmWizardTest, CancelConfirmedGivesTheClassUp) {
  GoToStep(4);
  driver->Type("fname", "Ada");
  screen.ExpectBox("Data has been entered. Do you want to cancel?", BoxAnswer::kYes);
  driver->CloseWindow();
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().NumStudents, 0);
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST(FrmWizardForm, SaysItsPagesAndItsQuotation) {
  std::ifstream file(SourceDir() + "/src/desktop/forms/frmWizard.ui");
  const std::string form{std::istreambuf_iterator<char>(file), {}};
  for (const char* text :
       {"Welcome", "Class Information (Optional)", "Student Information (Required)",
        "Optional Information", "Supplementary Information (Optional)",
        "Student's Address (Optional)", "Finished", "up to 12 characters",
        "up to 30 characters (e.g., Math 201 - Programming)",
        "A journey of a thousand miles must begin with a single step.",
        "The first student is complete. Press Continue to enter the other students now, or Finish "
        "to enter them later."})
    EXPECT_NE(form.find("<string>" + std::string(text) + "</string>"), std::string::npos) << text;
}

}  // namespace
}  // namespace tallyroll
