// SPDX-License-Identifier: GPL-3.0-or-later
#include "seating/frmseating.h"

#include "base/number_text.h"
#include "companion/companion_file.h"
#include "companion/seat_wishes.h"
#include "platform/portal_driver.h"
#include "tests/seating/seating_test.h"
#include "tests/support/noting_window.h"

namespace tallyroll {
namespace {

constexpr const char* kLosing =
    "If you continue without first saving you will lose changes to current chart";
constexpr const char* kSaveThese = "Do you wish to save these changes to your seating chart?";

class FrmSeatingTest : public SeatingTest {
 protected:
  FrmSeatingTest() {
    Enrol(5);
    Current().FileName = Path("MATH.TYR");
  }

  void Open() {
    portal.Load();
    driver = std::make_unique<PortalDriver>(portal);
  }
  // A new chart of so many classroom rows with so many seats each.
  void New(int columns, int seats, const char* method = "alpha") {
    driver->Press("newchart");
    driver->Choose("column", columns - 1);
    driver->Choose("seatsrow", seats - 1);
    driver->Press("okinfo");
    for (const char* other : {"alpha", "randord", "indiv", "bywishes"})
      driver->Tick(other, other == std::string_view(method));
    driver->Press("chartok");
  }
  void Save() {
    screen.ExpectBox(kSaveThese, BoxAnswer::kYes);
    driver->Press("save");
  }
  void ExpectLastBox(const std::string& title, BoxButtons buttons) {
    EXPECT_EQ(screen.boxes.back().title, title);
    EXPECT_EQ(screen.boxes.back().buttons, buttons);
  }
  std::string Card(int row, int col) const {
    return std::string(portal.Grid1.TextMatrix(row, col));
  }

  frmseating portal;
  std::unique_ptr<PortalDriver> driver;
};

TEST_F(FrmSeatingTest, ShowsItsWords) {
  Open();
  EXPECT_EQ(portal.Caption, "Seating Chart Portal");
  EXPECT_EQ(driver->Text("newchart"), "&New");
  EXPECT_EQ(driver->Text("show"), "Se&lect");
  EXPECT_EQ(driver->Text("delete"), "&Delete");
  EXPECT_EQ(driver->Text("save"), "&Save");
  EXPECT_EQ(driver->Text("prints"), "&Print");
  EXPECT_EQ(driver->Text("exit"), "E&xit");
  EXPECT_EQ(driver->Text("okinfo"), "C&ontinue");
  EXPECT_EQ(driver->Text("alpha"), "As Sorted");
  EXPECT_EQ(driver->Text("randord"), "Random Order");
  EXPECT_EQ(driver->Text("indiv"), "Individual Method");
  EXPECT_EQ(driver->Text("columnlabel"),
            "Enter number of rows (horizontal). The maximum number of rows for this chart is 13");
  EXPECT_EQ(driver->Text("seatslabel"), "Enter number of seats per row (vertical).");
}

TEST_F(FrmSeatingTest, OffersOneToThirteenRowsOfOneToElevenSeats) {
  Open();
  driver->Press("newchart");
  ASSERT_EQ(portal.column.List.size(), 13u);
  EXPECT_EQ(portal.column.List.front(), " 1  - One");
  EXPECT_EQ(portal.column.List.back(), "13  - Thirteen");
  ASSERT_EQ(portal.seatsrow.List.size(), 11u);
  EXPECT_EQ(portal.seatsrow.List.back(), "11  - Eleven");
}

TEST_F(FrmSeatingTest, BelowTwelveRowsThereAreUpToFifteenSeats) {
  Open();
  driver->Press("newchart");
  driver->Choose("column", 10);
  ASSERT_EQ(portal.seatsrow.List.size(), 15u);
  EXPECT_EQ(portal.seatsrow.List[11], "12  - Twelve");
  EXPECT_EQ(portal.seatsrow.List[12], "13  - Thirteen");
  EXPECT_EQ(portal.seatsrow.List[13], "14  - Fourteen");
  EXPECT_EQ(portal.seatsrow.List[14], "15  - Fifteen");
  driver->Choose("seatsrow", 14);
  driver->Choose("column", 11);
  EXPECT_EQ(portal.seatsrow.List.size(), 11u);
  EXPECT_EQ(portal.seatsrow.ListIndex, -1);
}

TEST_F(FrmSeatingTest, WithoutBothNumbersTheSizeIsAskedAgain) {
  Open();
  driver->Press("newchart");
  driver->Press("okinfo");
  EXPECT_EQ(portal.step.Current, frmseating::kSize);
  EXPECT_EQ(driver->Focused(), "column");
  driver->Choose("column", 0);
  driver->Press("okinfo");
  EXPECT_EQ(portal.step.Current, frmseating::kSize);
  EXPECT_EQ(driver->Focused(), "seatsrow");
}

TEST_F(FrmSeatingTest, ANewChartIsKeptByItsNumber) {
  Open();
  New(2, 2);
  EXPECT_EQ(portal.CurrentChart, 1);
  EXPECT_EQ(portal.ChartIsNew, kTrue);
  EXPECT_EQ(driver->Text("Label3"), "Chart 1");
  EXPECT_EQ(portal.Grid1.Rows(), 2);
  EXPECT_EQ(portal.Grid1.Cols(), 2);
  EXPECT_EQ(Card(1, 0), "Aa, X");
  EXPECT_EQ(portal.students.List, Cards{"Ea, X"});
  EXPECT_EQ(Current().NumCharts, 0);
  Save();
  ExpectLastBox("Note to the Teacher", BoxButtons::kYesNo);
  EXPECT_EQ(Current().NumCharts, 1);
  EXPECT_EQ(portal.ChartIsNew, kFalse);
  EXPECT_EQ(portal.ChartDirty, kFalse);
  EXPECT_EQ(portal.Listchart.List, Cards{"Chart 1"});
}

TEST_F(FrmSeatingTest, ARefusedQuestionKeepsTheChartUnsaved) {
  Open();
  New(1, 1);
  screen.ExpectBox(kSaveThese, BoxAnswer::kNo);
  driver->Press("save");
  EXPECT_EQ(Current().NumCharts, 0);
  EXPECT_EQ(portal.ChartDirty, kTrue);
}

TEST_F(FrmSeatingTest, AChartIsDraggedFromTheListAndFromSeatToSeat) {
  Open();
  New(2, 2, "indiv");
  driver->Choose("students", 2);
  driver->Drag("students", "Grid1", 0, 1);
  EXPECT_EQ(Card(0, 1), "Ca, X");
  EXPECT_EQ(portal.students.List.size(), 4u);
  driver->PickCell("Grid1", 0, 1);
  driver->Drag("Grid1", "Grid1", 1, 0);
  EXPECT_EQ(Card(0, 1), "");
  EXPECT_EQ(Card(1, 0), "Ca, X");
  driver->Choose("students", 0);
  driver->Drag("students", "Grid1", 1, 0);
  EXPECT_EQ(Card(1, 0), "Aa, X");
  EXPECT_EQ(portal.students.List.back(), "Ca, X");
  driver->PickCell("Grid1", 1, 0);
  driver->Drag("Grid1", "students");
  EXPECT_EQ(Card(1, 0), "");
  EXPECT_EQ(portal.students.List.size(), 5u);
}

TEST_F(FrmSeatingTest, ACardDroppedOutsideTheSeatsStaysWhereItWas) {
  Open();
  New(2, 2);
  const SeatPlan before = portal.plan();
  driver->PickCell("Grid1", 1, 0);
  driver->Drag("Grid1", "Grid1", -1, -1);
  EXPECT_EQ(portal.plan(), before);
}

TEST_F(FrmSeatingTest, TheBlankTakesACardUpAndPutsItDown) {
  Open();
  New(2, 2);
  driver->PickCell("Grid1", 1, 0);
  driver->TypeKeys("Grid1", " ");
  EXPECT_EQ(portal.Grid1.Style(1, 0), CellStyle::kInWork);
  EXPECT_NE(driver->Text("said").find("Aa, X is taken up"), std::string::npos);
  driver->PickCell("Grid1", 0, 0);
  driver->TypeKeys("Grid1", " ");
  EXPECT_EQ(Card(0, 0), "Aa, X");
  EXPECT_EQ(Card(1, 0), "Ba, X");
  EXPECT_EQ(driver->Text("said"), "Aa, X and Ba, X have changed places.");
}

TEST_F(FrmSeatingTest, EscapeLetsACardGoAndThePortalStays) {
  Open();
  New(2, 2);
  const SeatPlan before = portal.plan();
  driver->PickCell("Grid1", 1, 0);
  driver->TypeKeys("Grid1", " ");
  driver->CloseWindow();
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(portal.plan(), before);
  EXPECT_EQ(portal.Grid1.Style(1, 0), CellStyle::kPlain);
}

TEST_F(FrmSeatingTest, TheBlankSeatsAStudentOfTheListAndTakesACardBackThere) {
  Open();
  New(1, 1, "indiv");
  driver->Choose("students", 4);
  driver->TypeKeys("students", " ");
  EXPECT_EQ(driver->Focused(), "Grid1");
  driver->TypeKeys("Grid1", " ");
  EXPECT_EQ(Card(0, 0), "Ea, X");
  driver->TypeKeys("Grid1", " ");
  driver->TypeKeys("students", " ");
  EXPECT_EQ(Card(0, 0), "");
  EXPECT_EQ(portal.students.List.back(), "Ea, X");
}

TEST_F(FrmSeatingTest, MovesAreTakenBackAndMadeAgain) {
  Open();
  New(2, 2);
  const SeatPlan filled = portal.plan();
  EXPECT_FALSE(driver->Enabled("undo"));
  driver->PickCell("Grid1", 1, 0);
  driver->Drag("Grid1", "Grid1", 0, 1);
  const SeatPlan moved = portal.plan();
  driver->Press("undo");
  EXPECT_EQ(portal.plan(), filled);
  EXPECT_FALSE(driver->Enabled("undo"));
  driver->Press("redo");
  EXPECT_EQ(portal.plan(), moved);
  EXPECT_FALSE(driver->Enabled("redo"));
}

TEST_F(FrmSeatingTest, AnotherMoveForgetsWhatWasTakenBack) {
  Open();
  New(2, 2);
  driver->PickCell("Grid1", 1, 0);
  driver->Drag("Grid1", "Grid1", 0, 1);
  driver->Press("undo");
  driver->PickCell("Grid1", 0, 0);
  driver->Drag("Grid1", "Grid1", 1, 1);
  EXPECT_FALSE(driver->Enabled("redo"));
}

TEST_F(FrmSeatingTest, ANewChartWarnsOfChangesThatAreLost) {
  Open();
  New(1, 1);
  screen.ExpectBox(kLosing, BoxAnswer::kCancel);
  driver->Press("newchart");
  ExpectLastBox("Note to the teacher", BoxButtons::kOkCancel);
  EXPECT_EQ(portal.step.Current, frmseating::kChart);
  screen.ExpectBox(kLosing, BoxAnswer::kOk);
  driver->Press("newchart");
  EXPECT_EQ(portal.step.Current, frmseating::kSize);
}

TEST_F(FrmSeatingTest, SelectShowsAChartAndWarnsBefore) {
  Open();
  New(1, 1);
  Save();
  New(3, 2);
  Save();
  driver->Choose("Listchart", 0);
  driver->Press("show");
  EXPECT_EQ(driver->Text("Label3"), "Chart 1");
  EXPECT_EQ(portal.Grid1.Cols(), 1);
  EXPECT_EQ(portal.students.List.size(), 4u);
  driver->PickCell("Grid1", 0, 0);
  driver->Drag("Grid1", "students");
  screen.ExpectBox(kLosing, BoxAnswer::kCancel);
  driver->Choose("Listchart", 1);
  driver->Press("show");
  EXPECT_EQ(driver->Text("Label3"), "Chart 1");
}

TEST_F(FrmSeatingTest, WithoutAChoiceSelectAndDeleteAskForAChart) {
  Open();
  New(1, 1);
  Save();
  driver->Press("show");
  EXPECT_EQ(driver->Focused(), "Listchart");
  driver->Press("delete");
  EXPECT_EQ(driver->Text("chartlabel"), "Choose a Chart to Delete");
  EXPECT_EQ(driver->Focused(), "Listchart");
  EXPECT_EQ(Current().NumCharts, 1);
}

TEST_F(FrmSeatingTest, WhenTheFirstChartIsDeletedTheSecondIsTheFirst) {
  Open();
  New(1, 1);
  Save();
  New(3, 2);
  Save();
  EXPECT_EQ(driver->Text("Label3"), "Chart 2");
  const std::string question = "You have chosen to Delete Chart 1.  Are you sure?";
  driver->Choose("Listchart", 0);
  screen.ExpectBox(question, BoxAnswer::kNo);
  driver->Press("delete");
  ExpectLastBox("Delete Portal", BoxButtons::kYesNo);
  EXPECT_EQ(Current().NumCharts, 2);
  driver->Choose("Listchart", 0);
  screen.ExpectBox(question, BoxAnswer::kYes);
  driver->Press("delete");
  EXPECT_EQ(Current().NumCharts, 1);
  EXPECT_EQ(driver->Text("Label3"), "Chart 1");
  EXPECT_EQ(portal.Listchart.List, Cards{"Chart 1"});
  EXPECT_EQ(LoadChart(1).columns, 3);
  ExpectSound();
}

TEST_F(FrmSeatingTest, ADeletedChartLeavesTheTable) {
  Open();
  New(1, 1);
  Save();
  driver->Choose("Listchart", 0);
  screen.ExpectBox("You have chosen to Delete Chart 1.  Are you sure?", BoxAnswer::kYes);
  driver->Press("delete");
  EXPECT_EQ(portal.CurrentChart, 0);
  EXPECT_EQ(portal.Grid1.Rows(), 0);
  EXPECT_FALSE(driver->Enabled("save"));
  EXPECT_FALSE(driver->Enabled("show"));
}

// Chart 1 is on the table with changes, and chart 2 goes: they stay.
TEST_F(FrmSeatingTest, DeletingAnotherChartKeepsTheChangesOfThisOne) {
  Open();
  New(1, 1);
  Save();
  New(2, 1);
  Save();
  driver->Choose("Listchart", 0);
  driver->Press("show");
  driver->PickCell("Grid1", 0, 0);
  driver->Drag("Grid1", "students");
  driver->Choose("Listchart", 1);
  screen.ExpectBox("You have chosen to Delete Chart 2.  Are you sure?", BoxAnswer::kYes);
  driver->Press("delete");
  EXPECT_EQ(portal.ChartDirty, kTrue);
  EXPECT_EQ(Card(0, 0), "");
  Save();
  EXPECT_FALSE(SeatOf(At(1), 1).taken());
}

// A new chart that was not saved is renumbered as well when one before it goes.
TEST_F(FrmSeatingTest, AnUnsavedChartMovesUpWithTheOthers) {
  Open();
  New(1, 1);
  Save();
  New(2, 1);
  driver->Choose("Listchart", 0);
  screen.ExpectBox("You have chosen to Delete Chart 1.  Are you sure?", BoxAnswer::kYes);
  driver->Press("delete");
  EXPECT_EQ(driver->Text("Label3"), "Chart 1");
  Save();
  EXPECT_EQ(Current().NumCharts, 1);
  EXPECT_EQ(Current().ChartColumns, (List<i16>{0, 2}));
  ExpectSound();
}

TEST_F(FrmSeatingTest, ExitAsksToSaveChanges) {
  Open();
  New(1, 1);
  screen.ExpectBox("Do you want to save your changes?", BoxAnswer::kYes);
  driver->Press("exit");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().NumCharts, 1);
}

TEST_F(FrmSeatingTest, ExitWithoutSavingLeavesTheClassAsItWas) {
  Open();
  New(1, 1);
  screen.ExpectBox("Do you want to save your changes?", BoxAnswer::kNo);
  driver->Press("exit");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Current().NumCharts, 0);
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(FrmSeatingTest, ClosingTheWindowAsksWhetherToCancel) {
  Open();
  New(1, 1);
  screen.ExpectBox("Data has been modified. Are you sure you want to CANCEL?", BoxAnswer::kNo);
  driver->CloseWindow();
  ExpectLastBox("CANCEL", BoxButtons::kYesNo);
  EXPECT_FALSE(portal.Unloaded());
  screen.ExpectBox("Data has been modified. Are you sure you want to CANCEL?", BoxAnswer::kYes);
  driver->CloseWindow();
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmSeatingTest, WithoutChangesNothingIsAsked) {
  Open();
  driver->CloseWindow();
  EXPECT_TRUE(portal.Unloaded());
}

// Seats of a foreign file lie outside the chart; saving without a change writes nothing anew.
TEST_F(FrmSeatingTest, SavingWithoutAChangeLosesNothingOfAForeignChart) {
  AddChart(2, 2);
  At(1).SeatRow[1] = 9;
  At(1).SeatColumn[1] = 9;
  Current().Changed = kFalse;
  Open();
  driver->Press("save");
  EXPECT_EQ(At(1).SeatRow[1], 9);
  EXPECT_EQ(Current().Changed, kFalse);
  EXPECT_EQ(portal.students.List.size(), 5u);
}

TEST_F(FrmSeatingTest, AClassWithoutAFileIsSavedAtOnce) {
  NotingWindow window;
  SetClassWindow(&window);
  Current().FileName.clear();
  Open();
  New(1, 1);
  Save();
  EXPECT_EQ(window.saved, 1);
  Current().FileName = Path("MATH.TYR");
  driver->PickCell("Grid1", 0, 0);
  driver->Drag("Grid1", "students");
  Save();
  EXPECT_EQ(window.saved, 1);
  SetClassWindow(nullptr);
}

TEST_F(FrmSeatingTest, TheCardsTellTheIdAndByChoiceMore) {
  Current().NumInstruments = 1;
  for (int i = 1; i <= 5; ++i) At(i).Marks = {"", "95"};
  Open();
  New(1, 1);
  EXPECT_EQ(portal.Grid1.SmallLine(0, 0), "1");
  driver->Tick("details");
  EXPECT_EQ(portal.Grid1.SmallLine(0, 0), "1  95");
}

TEST_F(FrmSeatingTest, CardsThatReadAlikeTellNoId) {
  At(2).lastname = At(1).lastname;
  Open();
  New(1, 3);
  EXPECT_EQ(portal.Grid1.SmallLine(2, 0), "");
  EXPECT_EQ(portal.Grid1.SmallLine(1, 0), "");
  EXPECT_EQ(portal.Grid1.SmallLine(0, 0), "3");
}

TEST_F(FrmSeatingTest, WishesAreMetAndCanBeMadeAgainByTheirNumber) {
  Open();
  New(2, 3, "bywishes");
  ASSERT_EQ(portal.step.Current, frmseating::kWishes);
  driver->Choose("wisher", 0);
  driver->Choose("wishkind", 3);  // beside
  driver->Choose("wishother", 1);
  driver->Press("addwish");
  EXPECT_EQ(portal.wishes.wishlist.List, Cards{"Aa, X: beside Ba, X"});
  driver->Type("wishnumber", "4711");
  driver->Press("wishok");
  EXPECT_EQ(portal.step.Current, frmseating::kChart);
  EXPECT_EQ(driver->Text("said"), "Seated by wishes, number 4711: all wishes are met.");
  const SeatPlan plan = portal.plan();
  Save();
  New(2, 3, "bywishes");
  EXPECT_EQ(portal.wishes.wishlist.List, Cards{"Aa, X: beside Ba, X"});
  EXPECT_EQ(driver->Text("wishnumber"), "4711");
  driver->Press("wishok");
  EXPECT_EQ(portal.plan(), plan);
}

TEST_F(FrmSeatingTest, WishesAgainstOneAnotherAreNamedBeforeAndAfter) {
  Open();
  New(2, 3, "bywishes");
  for (const int kind : {0, 1}) {
    driver->Choose("wisher", 0);
    driver->Choose("wishkind", kind);
    driver->Press("addwish");
  }
  EXPECT_EQ(portal.wishes.contradictions.List, Cards{"Aa, X: at the front; Aa, X: at the back"});
  driver->Press("wishok");
  ASSERT_EQ(portal.unmet.List.size(), 1u);
  EXPECT_TRUE(portal.unmet.List[0].starts_with("Not met: Aa, X: at the "));
  EXPECT_TRUE(driver->Visible("unmet"));
}

// Somebody else has the file: what it keeps must not be written over.
TEST_F(FrmSeatingTest, WishesThatCannotBeReadStay) {
  ASSERT_EQ(KeepSeatWishes(Current().FileName, {{"front", "3", ""}}), "");
  const std::string companion = CompanionPath(Current().FileName);
  Open();
  std::int64_t layout = 0;
  {
    Database other(companion, Database::Mode::kWrite);
    layout = other.Number("PRAGMA user_version");
    other.Run("PRAGMA user_version=99");
  }
  New(2, 3, "bywishes");
  driver->Choose("wisher", 0);
  driver->Choose("wishkind", 0);
  driver->Press("addwish");
  EXPECT_EQ(portal.wishes.wishlist.List, Cards{"Aa, X: at the front"});
  {
    Database other(companion, Database::Mode::kWrite);
    other.Run(("PRAGMA user_version=" + PlainNumberText(layout)).c_str());
  }
  EXPECT_EQ(SeatWishes(Current().FileName).wishes, (std::vector<SeatWish>{{"front", "3", ""}}));
}

// A student who left may come back.
TEST_F(FrmSeatingTest, WishesOfStudentsWhoAreAwayAreKept) {
  ASSERT_EQ(KeepSeatWishes(Current().FileName, {{"front", "away", ""}}), "");
  Open();
  New(2, 3, "bywishes");
  driver->Choose("wisher", 0);
  driver->Choose("wishkind", 0);
  driver->Press("addwish");
  EXPECT_EQ(SeatWishes(Current().FileName).wishes,
            (std::vector<SeatWish>{{"front", "1", ""}, {"front", "away", ""}}));
}

TEST_F(FrmSeatingTest, EscapeGoesBackAStep) {
  Open();
  New(2, 3, "bywishes");
  for (const int step : {frmseating::kOptions, frmseating::kSize, frmseating::kChart}) {
    driver->CloseWindow();
    EXPECT_EQ(portal.step.Current, step);
  }
  EXPECT_FALSE(portal.Unloaded());
}

TEST_F(FrmSeatingTest, AWishIsTakenAway) {
  Open();
  New(2, 3, "bywishes");
  driver->Press("takewish");
  EXPECT_EQ(driver->Text("wishsaid"), "Choose the wish to take away.");
  driver->Choose("wisher", 2);
  driver->Choose("wishkind", 0);
  driver->Press("addwish");
  driver->Press("addwish");
  EXPECT_EQ(driver->Text("wishsaid"), "This wish stands in the list already.");
  driver->Choose("wishlist", 0);
  driver->Press("takewish");
  EXPECT_EQ(portal.wishes.wishlist.List, Cards{});
}

TEST_F(FrmSeatingTest, ANumberThatIsNoneIsToldAndAskedAgain) {
  Open();
  New(2, 3, "bywishes");
  driver->Type("wishnumber", "12a");
  driver->Press("wishok");
  EXPECT_EQ(driver->Text("wishsaid"), "The number has digits only.");
  EXPECT_EQ(portal.step.Current, frmseating::kWishes);
  EXPECT_EQ(driver->Focused(), "wishnumber");
}

TEST_F(FrmSeatingTest, WithoutAFileWishesAreForgottenAndItIsTold) {
  Current().FileName.clear();
  Open();
  New(2, 3, "bywishes");
  EXPECT_EQ(driver->Text("wishsaid"),
            "Wishes are forgotten with this Portal: the class was not saved yet.");
}

}  // namespace
}  // namespace tallyroll
