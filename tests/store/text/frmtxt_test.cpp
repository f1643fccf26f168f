// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/text/frmtxt.h"

#include <optional>

#include "base/number_text.h"
#include "platform/portal_driver.h"
#include "store/program_state.h"
#include "store/safe_file.h"
#include "store/text/grade_file.h"
#include "store/text/text_export.h"
#include "store/text_layout.h"
#include "tests/support/portal_test.h"

namespace tallyroll {
namespace {

class FrmTxtTest : public PortalTest {
 protected:
  ~FrmTxtTest() override {
    if (!driver) return;
    for (const std::string& complaint : driver->Complaints()) ADD_FAILURE() << complaint;
  }
  void Open(int state) {
    OpenState = state;
    portal.Load();
    driver.emplace(portal);
  }
  void OpenColumns(int request, const std::string& text) {
    ImportFile = Path("names.csv");
    ASSERT_EQ(ReplaceFile(ImportFile, text, OldTail::kDrop), 0);
    Open(kAskColumns + request);
  }
  static void Enrol(const std::string& id) {
    Class& c = Current();
    ReDimPreserve(c.Students, ++c.NumStudents);
    c.Students.back().id = id;
  }
  CellStyle StyleOfId(int row) const { return portal.preview.Style(row, 0); }
  int Page() const { return portal.framecontrol.Current; }
  std::string Use(int col) const { return std::string(portal.preview.TextMatrix(0, col)); }
  void Pick(const char* option) {
    for (const char* other : {"columns", "singles", "doubles", "Tabs", "commas", "csv"})
      driver->Tick(other, false);
    driver->Tick(option);
  }

  frmtxt portal;
  std::optional<PortalDriver> driver;
};

TEST_F(FrmTxtTest, CaptionsStandAsTeachersKnowThem) {
  Open(kImportNames);
  EXPECT_EQ(portal.Caption, "Text File Portal");
  EXPECT_EQ(portal.append.Caption, "Append to Current Class");
  EXPECT_EQ(portal.newclass.Caption, "Start a New Class");
  EXPECT_EQ(portal.cncel.Caption, "Cancel Operation");
  EXPECT_EQ(portal.columns.Caption, "Formatted Columns");
  EXPECT_EQ(portal.singles.Caption, "Single Quote");
  EXPECT_EQ(portal.doubles.Caption, "Double Quote");
  EXPECT_EQ(portal.Tabs.Caption, "Tabs");
  EXPECT_EQ(portal.commas.Caption, "Comma");
}

TEST_F(FrmTxtTest, IdsThatAreTakenAreFlaggedAndCounted) {
  Enrol("9");
  OpenColumns(kImportNames, "ID,Name\n7,Ng Ada\n 7 ,Orr Bo\n9,Poe Di\n,Ray Ed\n8,Sun Fay\n");
  EXPECT_EQ(portal.counted.Caption,
            "Students: 5, IDs taken already: 2 (first in line 3), without an ID: 1");
  EXPECT_EQ(StyleOfId(2), CellStyle::kPlain);
  EXPECT_EQ(StyleOfId(3), CellStyle::kFailing);
  EXPECT_EQ(StyleOfId(4), CellStyle::kFailing);
  EXPECT_EQ(StyleOfId(5), CellStyle::kPlain);
  EXPECT_EQ(StyleOfId(6), CellStyle::kPlain);
  EXPECT_EQ(NoteOf(portal.preview.Notes, 1, 0).words, "a title, not taken in");
  EXPECT_EQ(NoteOf(portal.preview.Notes, 3, 0).words, "this ID is taken");
  EXPECT_EQ(NoteOf(portal.preview.Notes, 5, 0).words, "");
}

TEST_F(FrmTxtTest, IntoANewClassOnlyTheFilesOwnIdsClash) {
  Enrol("9");
  OpenColumns(kIntoNewClass + kImportNames, "ID,Name\n9,Poe Di\n7,Ng Ada\n7,Orr Bo\n");
  EXPECT_EQ(portal.counted.Caption, "Students: 3, IDs taken already: 1 (first in line 4)");
  EXPECT_EQ(StyleOfId(2), CellStyle::kPlain);
  EXPECT_EQ(StyleOfId(4), CellStyle::kFailing);
}

TEST_F(FrmTxtTest, AnotherColumnOfIdsIsLookedAtAnew) {
  OpenColumns(kImportNames, "ID,Name,Locker\n7,Ng Ada,3\n7,Orr Bo,4\n");
  EXPECT_EQ(portal.counted.Caption, "Students: 2, IDs taken already: 1 (first in line 3)");
  driver->PickCell("preview", 1, 2);
  driver->Choose("field", 1);
  EXPECT_EQ(portal.counted.Caption, "Students: 2");
  EXPECT_EQ(StyleOfId(3), CellStyle::kPlain);
}

TEST_F(FrmTxtTest, CapitalsAreOfferedForGradesAlone) {
  OpenColumns(kGradesById, "ID,Quiz\n7,b+\n");
  EXPECT_TRUE(portal.capitals.Visible);
  EXPECT_FALSE(portal.capitals.Value);
  driver->Tick("capitals");
  driver->Tick("heading", false);
  driver->Tick("heading");
  driver->Press("okbt");
  EXPECT_TRUE(ImportColumns.capitals);
  frmtxt names;
  OpenState = kAskColumns + kImportNames;
  names.Load();
  EXPECT_FALSE(names.capitals.Visible);
}

TEST_F(FrmTxtTest, EachMethodSetsItsMode) {
  const std::pair<const char*, i16> methods[] = {{"columns", 40}, {"singles", 50}, {"doubles", 60},
                                                 {"Tabs", 64},    {"commas", 70},  {"csv", 80}};
  for (const auto& [option, mode] : methods) {
    frmtxt fresh;
    OpenState = kExportNames;
    fresh.Load();
    PortalDriver work(fresh);
    for (const auto& [other, unused] : methods) work.Tick(other, false);
    work.Tick(option);
    work.Press("okbt");
    EXPECT_EQ(TextMode, mode);
    EXPECT_EQ(OpenState, 35);
    EXPECT_TRUE(fresh.Unloaded());
  }
}

TEST_F(FrmTxtTest, AnImportAsksWhereFirst) {
  Classes[1].SlotState = 10;
  Open(kImportNames);
  EXPECT_EQ(Page(), 0);
  EXPECT_EQ(driver->Focused(), "append");
  EXPECT_EQ(OpenState, 10);
  EXPECT_TRUE(portal.append.Value);
  driver->Press("okbt");
  EXPECT_EQ(Page(), 1);
  driver->Press("okbt");
  EXPECT_EQ(OpenState, 35);
}

TEST_F(FrmTxtTest, ANewClassIsAnsweredBy36) {
  Classes[1].SlotState = 10;
  Open(kImportNames);
  driver->Tick("append", false);
  driver->Tick("newclass");
  driver->Press("okbt");
  driver->Press("okbt");
  EXPECT_EQ(OpenState, 36);
}

TEST_F(FrmTxtTest, CancelOperationLeaves10) {
  Classes[1].SlotState = 10;
  Open(kImportNames);
  driver->Tick("append", false);
  driver->Tick("cncel");
  driver->Press("okbt");
  EXPECT_EQ(OpenState, 10);
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmTxtTest, WithoutAnOpenClassANewOneIsTaken) {
  Open(kImportNames);
  EXPECT_EQ(Page(), 1);
  driver->Press("okbt");
  EXPECT_EQ(OpenState, 36);
}

TEST_F(FrmTxtTest, ExportsAndGradesAskForTheMethodAlone) {
  Classes[1].SlotState = 10;
  for (const int state : {441, 451, 541, 561, 511, 521}) {
    frmtxt fresh;
    OpenState = state;
    fresh.Load();
    EXPECT_EQ(fresh.framecontrol.Current, 1) << state;
    PortalDriver(fresh).Press("okbt");
    EXPECT_EQ(OpenState, 35) << state;
  }
}

TEST_F(FrmTxtTest, TheMethodChosenLastIsOfferedAgain) {
  TextMode = kTabsText;
  Open(kExportInfo);
  EXPECT_TRUE(portal.Tabs.Value);
  EXPECT_FALSE(portal.columns.Value);
}

TEST_F(FrmTxtTest, CancelAndEscapeLeaveEverything) {
  Open(kExportInfo);
  Pick("commas");
  driver->CloseWindow();
  EXPECT_EQ(OpenState, 10);
  EXPECT_EQ(TextMode, kColumnsText);
}

TEST_F(FrmTxtTest, APreviewShowsTheFirstRowsAndWhatTheyAreTakenFor) {
  OpenColumns(kImportNames, "ID;Surname;Given name;Shoe size\n1;Ng;Ada;38\n2;Le;Bo;41\n");
  EXPECT_EQ(Page(), 2);
  EXPECT_TRUE(portal.heading.Value);
  EXPECT_EQ(portal.preview.Rows(), 4);
  EXPECT_EQ(Use(0), "ID");
  EXPECT_EQ(Use(1), "Last name");
  EXPECT_EQ(Use(2), "First name");
  EXPECT_EQ(Use(3), "(not used)");
  EXPECT_TRUE(portal.preview.Redraw());
  EXPECT_EQ(driver->Focused(), "preview");
  EXPECT_EQ(portal.preview.TextMatrix(1, 0), "ID");
  EXPECT_EQ(portal.preview.TextMatrix(1, 3), "Shoe size");
  EXPECT_EQ(portal.preview.Style(1, 3), CellStyle::kShaded);
  EXPECT_EQ(portal.preview.TextMatrix(2, 2), "Ada");
  EXPECT_EQ(portal.counted.Caption, "Students: 2");
}

TEST_F(FrmTxtTest, APreviewShowsNineRowsAtMost) {
  std::string text;
  for (int i = 1; i <= 9; ++i) text += PlainNumberText(i) + ",Ng Ada\n";
  OpenColumns(kImportNames, text);
  EXPECT_EQ(portal.preview.Rows(), 10);
  EXPECT_EQ(portal.preview.TextMatrix(9, 0), "9");
  frmtxt longer;
  ASSERT_EQ(ReplaceFile(ImportFile, text + "10,Orr Bo\n", OldTail::kDrop), 0);
  OpenState = kAskColumns + kImportNames;
  longer.Load();
  EXPECT_EQ(longer.preview.Rows(), 10);
  EXPECT_EQ(longer.preview.TextMatrix(9, 0), "9");
  EXPECT_EQ(longer.counted.Caption, "Students: 10");
}

TEST_F(FrmTxtTest, ACharacterThatAClassFileLacksIsShownByItsNumber) {
  OpenColumns(kImportNames, "ID,Name\n1,\xC5\x81u Ka\n");
  EXPECT_EQ(portal.preview.TextMatrix(2, 1), "<U+0141>u Ka");
}

TEST_F(FrmTxtTest, AnExampleShowsTheChosenLayout) {
  Open(kExportNames);
  Pick("singles");
  EXPECT_EQ(driver->Text("example"), "1001'Ng, Ada'12 Main St'");
  Pick("commas");
  EXPECT_EQ(driver->Text("example"), "1001,Ng Ada,12 Main St");
}

TEST_F(FrmTxtTest, AColumnCanBeTakenForAnotherField) {
  OpenColumns(kImportNames, "A,B,C\n1,Ng Ada,Oslo\n");
  EXPECT_FALSE(portal.heading.Value);
  EXPECT_EQ(Use(0), "ID");
  EXPECT_EQ(Use(1), "Full name");
  EXPECT_EQ(Use(2), "Address");
  driver->PickCell("preview", 1, 2);
  EXPECT_EQ(driver->Text("field"), "Address");
  driver->Choose("field", 6);
  EXPECT_EQ(Use(2), "City");
  driver->Choose("field", 4);
  EXPECT_EQ(Use(2), "Full name");
  EXPECT_EQ(Use(1), "(not used)");
  driver->Press("okbt");
  EXPECT_EQ(OpenState, 35);
  EXPECT_EQ(ImportColumns.uses, (std::vector{CsvUse::kId, CsvUse::kNotUsed, CsvUse::kFullName}));
  EXPECT_FALSE(ImportColumns.heading);
}

TEST_F(FrmTxtTest, TitlesCanBeSwitchedOnAndOff) {
  OpenColumns(kImportNames, "ID,Name\n1,Ng Ada\n");
  EXPECT_EQ(portal.counted.Caption, "Students: 1");
  driver->Tick("heading", false);
  EXPECT_EQ(portal.counted.Caption, "Students: 2");
  EXPECT_EQ(portal.preview.Style(1, 0), CellStyle::kPlain);
  driver->Tick("heading", true);
  EXPECT_EQ(portal.counted.Caption, "Students: 1");
}

TEST_F(FrmTxtTest, WithoutNamesItStays) {
  OpenColumns(kImportNames, "ID,City\n1,Oslo\n");
  screen.ExpectBox("Choose the column that holds the last name or the full name.");
  driver->Press("okbt");
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(OpenState, 10);
}

TEST_F(FrmTxtTest, GradesNeedAKeyAndAGrade) {
  OpenColumns(kGradesById, "ID,Name,Quiz\n1,Ng Ada,91\n");
  EXPECT_EQ(Use(0), "ID");
  EXPECT_EQ(Use(1), "(not used)");
  EXPECT_EQ(Use(2), "Grade");
  driver->PickCell("preview", 1, 2);
  driver->Choose("field", 0);
  screen.ExpectBox("Choose a column that holds a grade.");
  driver->Press("okbt");
  driver->PickCell("preview", 1, 0);
  driver->Choose("field", 0);
  screen.ExpectBox("Choose the column that holds the ID.");
  driver->Press("okbt");
  driver->Choose("field", 1);
  driver->PickCell("preview", 1, 2);
  driver->Choose("field", 2);
  driver->Press("okbt");
  EXPECT_EQ(OpenState, 35);
}

TEST_F(FrmTxtTest, GradesMayStandInSeveralColumns) {
  OpenColumns(kGradesByName, "Name,Quiz 1,Quiz 2,Remark\n\"Ng, Ada\",91,A-,works well\n");
  EXPECT_EQ(Use(0), "Full name");
  EXPECT_EQ(Use(1), "Grade");
  EXPECT_EQ(Use(2), "Grade");
  EXPECT_EQ(Use(3), "(not used)");
}

TEST_F(FrmTxtTest, AFileThatCannotBeTakenApartIsLeftAtOnce) {
  screen.ExpectBox(Path("names.csv") + " is not a text file.");
  OpenColumns(kImportNames, std::string("a\0b", 3));
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(OpenState, 10);
}

TEST_F(FrmTxtTest, AnOpenQuoteIsTold) {
  screen.ExpectBox(Path("names.csv") + " has a quotation mark in line 2 that is never closed.");
  OpenColumns(kImportNames, "ID,Name\n1,\"Ng\n");
  EXPECT_TRUE(portal.Unloaded());
}

TEST_F(FrmTxtTest, AnEmptyFileIsTold) {
  screen.ExpectBox(Path("names.csv") + " holds no students.");
  OpenColumns(kImportNames, "\n\n");
  EXPECT_TRUE(portal.Unloaded());
}

}  // namespace
}  // namespace tallyroll
