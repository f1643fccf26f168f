// SPDX-License-Identifier: GPL-3.0-or-later
// Text files from the menus of the frame and of a class window, and the transfer to a new class.
#include "store/text_layout.h"
#include "tests/shell/shell_test.h"

namespace tallyroll {
namespace {

const std::string kTransferBox =
    "This option TRANSFERS Name, Id, Comments and Supplementary Information to a new file. "
    "Continue?";

class TextCommandsTest : public ShellTest {
 protected:
  static std::string Read(const std::string& path) { return ReadWholeFile(path).bytes; }
  std::string Put(std::string_view name, const std::string& text) {
    WriteFile(Path(name), text);
    return Path(name);
  }
  // Works in frmtxt: `where` is an option of its first frame or none, `method` one of the second.
  void ExpectChoice(const std::string& where, const std::string& method) {
    screen.ExpectPortal("frmtxt", [where, method](PortalDriver& portal) {
      if (!where.empty()) {
        for (const char* option : {"append", "newclass", "cncel"}) portal.Tick(option, false);
        portal.Tick(where);
        portal.Press("okbt");
      }
      if (where == "cncel") return;
      for (const char* option : {"columns", "singles", "doubles", "Tabs", "commas", "csv"})
        portal.Tick(option, false);
      portal.Tick(method);
      portal.Press("okbt");
    });
  }
  void ExpectColumnsAccepted() {
    screen.ExpectPortal("frmtxt", [](PortalDriver& portal) { portal.Press("okbt"); });
  }
  static std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (int i = 1; i <= Current().NumStudents; ++i)
      names.push_back(Current().Students.at(static_cast<std::size_t>(i)).lastname);
    return names;
  }
};

using Lastnames = std::vector<std::string>;

TEST_F(TextCommandsTest, NamesAreAppendedToTheClass) {
  Form1& window = Open("A.TYR");
  ExpectChoice("append", "commas");
  screen.ExpectFileDialog(Put("new.txt", "7,Abel Bo\n"));
  LastFolder = "/somewhere";
  window.ClickMenu("mnuimportnames");
  ASSERT_EQ(screen.file_dialogs.size(), 1u);
  EXPECT_EQ(screen.file_dialogs[0].filter, "DATA FILES (*.txt)|*.TXT");
  EXPECT_EQ(screen.file_dialogs[0].default_extension, "TXT");
  EXPECT_EQ(screen.file_dialogs[0].folder, "/somewhere");
  EXPECT_FALSE(screen.file_dialogs[0].save);
  EXPECT_EQ(LastFolder, folder);
  EXPECT_EQ(Names(), (Lastnames{"Abel", "Last01", "Last02"}));
  EXPECT_EQ(window.Grid1.TextMatrix(2, 0), " 1 Abel, Bo");
  EXPECT_EQ(Current().Changed, kTrue);
  EXPECT_EQ(window.StatusText, "1 student added.");
  EXPECT_EQ(OpenState, 0);
}

TEST_F(TextCommandsTest, WhoCouldNotKeepHisIdIsToldBehindTheTable) {
  Form1& window = Open("A.TYR");
  ExpectChoice("append", "commas");
  screen.ExpectFileDialog(Put("new.txt", "101,Abel Bo\n,Ng Ada\n"));
  screen.random_numbers = {0.25, 0.5, 0.1, 0.01, 0.26, 0.5, 0.1, 0.01, 0.27, 0.5, 0.1, 0.01};
  screen.ExpectBox(
      "New IDs were given to 2 students: 1 whose ID was taken already, 1 without an ID.\n\n"
      "Abel, Bo: 100 instead of 101\nNg, Ada: 102");
  window.ClickMenu("mnuimportnames");
  EXPECT_EQ(Current().NumStudents, 4);
}

TEST_F(TextCommandsTest, CancelOperationAsksNothingMore) {
  Form1& window = Open("A.TYR");
  ExpectChoice("cncel", "");
  window.ClickMenu("mnuimportnames");
  EXPECT_TRUE(screen.file_dialogs.empty());
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(TextCommandsTest, CancellingTheDialogChangesNothing) {
  Form1& window = Open("A.TYR");
  const Class before = Current();
  for (const char* where : {"append", "newclass"}) {
    ExpectChoice(where, "commas");
    screen.ExpectFileDialog(std::nullopt);
    window.ClickMenu("mnuimportnames");
  }
  ExpectChoice("", "commas");
  screen.ExpectFileDialog(std::nullopt);
  window.ClickMenu("mnuNametext");
  EXPECT_EQ(Current().Students, before.Students);
  EXPECT_EQ(Current().Changed, kFalse);
  EXPECT_EQ(WindowCount(), 1);
  EXPECT_EQ(Classes[2].SlotState, 0);
}

TEST_F(TextCommandsTest, AFileThatIsGoneChangesNothing) {
  Form1& window = Open("A.TYR");
  ExpectChoice("append", "commas");
  screen.ExpectFileDialog(Path("none.txt"));
  screen.ExpectBox("File Error 53");
  window.ClickMenu("mnuimportnames");
  EXPECT_EQ(Current().Changed, kFalse);
  EXPECT_EQ(Current().NumStudents, 2);
}

TEST_F(TextCommandsTest, TheFrameStartsAClassFromATextFile) {
  ExpectChoice("", "Tabs");
  screen.ExpectFileDialog(Put("new.txt", "8\tNg, Ada\n7\tAbel, Bo\n"));
  FrameForm->ClickMenu("mnuLoadText");
  ASSERT_EQ(WindowCount(), 1);
  Form1& window = *Window(1);
  EXPECT_EQ(window.Caption, "NewClass 1");
  EXPECT_EQ(window.Tag, "1");
  EXPECT_EQ(Names(), (Lastnames{"Abel", "Ng"}));
  EXPECT_EQ(Current().Changed, kTrue);
  EXPECT_EQ(Current().LetterValues[1], Currency::FromWhole(99));
  EXPECT_EQ(Current().RoundTable[0][0], 99.5f);
  EXPECT_EQ(Current().FileName, "");
  EXPECT_TRUE(window.menu.Reachable("mnuDelete"));
  EXPECT_TRUE(window.menu.Find("mnunamefirst")->checked);
  EXPECT_EQ(window.Grid1.TextMatrix(2, 0), " 1 Abel, Bo");
  EXPECT_EQ(CurrentClass, 1);
}

TEST_F(TextCommandsTest, TheLetterValuesOfNewClassesAreTheTeachersOwn) {
  screen.settings["TALLYRLG8/startup/LetterString"] =
      "343'99.5'95'90'88'85'80'78'75'70'68'65'60'54'";
  ExpectChoice("", "Tabs");
  screen.ExpectFileDialog(Put("new.txt", "8\tNg, Ada\n"));
  FrameForm->ClickMenu("mnuLoadText");
  EXPECT_EQ(Current().LetterValues[13], Currency::FromWhole(54));
}

TEST_F(TextCommandsTest, ANewClassGetsAWindowBesideTheOpenOne) {
  Form1& window = Open("A.TYR");
  ExpectChoice("newclass", "commas");
  screen.ExpectFileDialog(Put("new.txt", "7,Abel Bo\n"));
  window.ClickMenu("mnuimportnames");
  ASSERT_EQ(WindowCount(), 2);
  EXPECT_EQ(Window(2)->Caption, "NewClass 2");
  EXPECT_EQ(CurrentClass, 2);
  EXPECT_EQ(Names(), (Lastnames{"Abel"}));
  EXPECT_EQ(Classes[1].NumStudents, 2);
  EXPECT_EQ(Classes[1].Changed, kFalse);
}

TEST_F(TextCommandsTest, AFileWithoutStudentsLeavesNoWindow) {
  Open("A.TYR");
  ExpectChoice("newclass", "commas");
  screen.ExpectFileDialog(Put("new.txt", "\n"));
  screen.ExpectBox(Path("new.txt") + " holds no students.");
  Window(1)->ClickMenu("mnuimportnames");
  EXPECT_EQ(WindowCount(), 1);
  EXPECT_EQ(Classes[2].SlotState, 0);
  EXPECT_EQ(CurrentClass, 1);
}

TEST_F(TextCommandsTest, ASixthClassIsRefused) {
  for (const char* name : {"A.TYR", "B.TYR", "C.TYR", "D.TYR", "E.TYR"}) Open(name);
  ExpectChoice("newclass", "commas");
  screen.ExpectFileDialog(Put("new.txt", "7,Abel Bo\n"));
  screen.ExpectBox("You may only have 5 class(es) open at a time.");
  Window(5)->ClickMenu("mnuimportnames");
  screen.ExpectBox(kTransferBox, BoxAnswer::kYes);
  screen.ExpectBox("You may only have 5 class(es) open at a time.");
  Window(5)->ClickMenu("mnuTransfer");
  EXPECT_EQ(WindowCount(), 5);
}

TEST_F(TextCommandsTest, ASpreadsheetIsAskedForItsColumns) {
  Form1& window = Open("A.TYR");
  ExpectChoice("append", "csv");
  screen.ExpectFileDialog(Put("new.csv", "Surname;ID\nAbel;7\n"));
  ExpectColumnsAccepted();
  window.ClickMenu("mnuimportnames");
  EXPECT_EQ(screen.file_dialogs[0].filter, "CSV Files (*.csv)|*.CSV;*.TXT");
  EXPECT_EQ(Names(), (Lastnames{"Abel", "Last01", "Last02"}));
}

TEST_F(TextCommandsTest, LeavingTheColumnsChangesNothing) {
  Form1& window = Open("A.TYR");
  ExpectChoice("append", "csv");
  screen.ExpectFileDialog(Put("new.csv", "Surname;ID\nAbel;7\n"));
  screen.ExpectPortal("frmtxt", [](PortalDriver& portal) { portal.Press("cancelbt"); });
  window.ClickMenu("mnuimportnames");
  EXPECT_EQ(Current().NumStudents, 2);
}

TEST_F(TextCommandsTest, EachExportWritesItsFile) {
  Form1& window = Open("A.TYR", Sample(1, 1));
  const std::pair<const char*, const char*> exports[] = {
      {"mnuNametext",
       "\xEF\xBB\xBF"
       "101,Last01 First01\r\n"},
      {"mnuBio",
       "\xEF\xBB\xBF"
       "101,Last01 First01,,,,,,,,,\r\n"},
      {"mnutestingInst", "\xEF\xBB\xBFID,NAME,Quiz\r\n,,Q1\r\n101,Last01 First01,80\r\n"},
      {"mnutestingInstwithout",
       "\xEF\xBB\xBF"
       "101,Last01 First01,80\r\n"}};
  for (const auto& [entry, text] : exports) {
    ExpectChoice("", "commas");
    screen.ExpectFileDialog(Path("out.txt"));
    window.ClickMenu(entry);
    EXPECT_EQ(Read(Path("out.txt")), text) << entry;
    EXPECT_EQ(window.StatusText, "1 student written to out.txt.");
    const FileDialogRequest& dialog = screen.file_dialogs.back();
    EXPECT_TRUE(dialog.save && dialog.overwrite_prompt);
    EXPECT_EQ(dialog.filter, "Text Files (*.txt)|*.TXT");
  }
  EXPECT_EQ(Current().Changed, kFalse);
}

// Zoe with an accent: two bytes behind the mark of UTF-8, one byte of the code page.
TEST_F(TextCommandsTest, AnExportIsWrittenInTheEncodingThatTheDialogAnswers) {
  Class c = Sample(1);
  c.Students[1].firstname = "Zo\xE9";
  Form1& window = Open("A.TYR", c);
  const auto exported = [&](const char* method) {
    ExpectChoice("", method);
    screen.ExpectFileDialog(Path("out.txt"));
    window.ClickMenu("mnuNametext");
    return Read(Path("out.txt"));
  };
  EXPECT_EQ(exported("commas"),
            "\xEF\xBB\xBF"
            "101,Last01 Zo\xC3\xA9\r\n");
  EXPECT_EQ(exported("csv"), "\xEF\xBB\xBFID,Last name,First name\r\n101,Last01,Zo\xC3\xA9\r\n");
  screen.encoding_answer = TextEncoding::kWindows1252;
  EXPECT_EQ(exported("commas"), "101,Last01 Zo\xE9\r\n");
  screen.encoding_answer.reset();
  EXPECT_EQ(exported("csv"), "ID,Last name,First name\r\n101,Last01,Zo\xE9\r\n");
}

TEST_F(TextCommandsTest, AnExportTellsWhatTheLayoutCouldNotCarry) {
  Class c = Sample(1);
  c.Students[1].parent = "O'Hara";
  Form1& window = Open("A.TYR", c);
  ExpectChoice("", "singles");
  screen.ExpectFileDialog(Path("out.txt"));
  window.ClickMenu("mnuBio");
  EXPECT_EQ(window.StatusText, "1 student written to out.txt. 1 value changed to fit the layout.");
}

TEST_F(TextCommandsTest, AnExportThatFailsSaysWhy) {
  Form1& window = Open("A.TYR");
  ExpectChoice("", "commas");
  screen.ExpectFileDialog(Path("no such folder/out.txt"));
  screen.ExpectBox("File Error 76");
  window.ClickMenu("mnuNametext");
}

TEST_F(TextCommandsTest, AnExportNeverGoesOverAnOpenClass) {
  Form1& window = Open("A.TYR");
  const std::string before = Read(Path("A.TYR"));
  ExpectChoice("", "commas");
  screen.ExpectFileDialog(Path("A.TYR"));
  screen.ExpectBox(" The file is already open ");
  window.ClickMenu("mnuNametext");
  EXPECT_EQ(Read(Path("A.TYR")), before);
}

TEST_F(TextCommandsTest, GradesGoByTheEnterGradesPortal) {
  Form1& window = Open("A.TYR");
  ExpectChoice("", "commas");
  screen.ExpectFileDialog(Put("marks.txt", "102,71\n101,A-\n999,5\n"));
  screen.ExpectPortal("frmMarks", [](PortalDriver& portal) {
    portal.Type("title", "Rivers");
    portal.Type("code", "RIV");
    portal.Press("exit");
  });
  window.ClickMenu("mnugradesid");
  ASSERT_EQ(Current().NumInstruments, 1);
  EXPECT_EQ(Current().Students[1].Marks[1], "A-");
  EXPECT_EQ(Current().Students[2].Marks[1], "71");
  EXPECT_EQ(window.Grid1.TextMatrix(3, 2), "71");
  EXPECT_EQ(window.StatusText, "Students found in the file: 2; lines that match no student: 1.");
}

TEST_F(TextCommandsTest, GradesByNameOfASpreadsheet) {
  Form1& window = Open("A.TYR");
  ExpectChoice("", "csv");
  screen.ExpectFileDialog(
      Put("marks.csv", "Name,Lakes [LAK]\n\"Last01, First01\",88\nLast02 First02,77\n"));
  ExpectColumnsAccepted();
  screen.ExpectPortal("frmMarks", [](PortalDriver& portal) { portal.Press("exit"); });
  window.ClickMenu("mnugradesname");
  ASSERT_EQ(Current().NumInstruments, 1);
  EXPECT_EQ(Current().Instruments[1].title, "Lakes");
  EXPECT_EQ(Current().Instruments[1].code, "LAK");
  EXPECT_EQ(Current().Students[2].Marks[1], "77");
}

TEST_F(TextCommandsTest, TransferAsksFirst) {
  Form1& window = Open("A.TYR");
  screen.ExpectBox(kTransferBox, BoxAnswer::kNo);
  window.ClickMenu("mnuTransfer");
  EXPECT_EQ(screen.boxes.back().buttons, BoxButtons::kYesNo);
  EXPECT_EQ(screen.boxes.back().title, "Note to the Teacher");
  EXPECT_EQ(WindowCount(), 1);
}

TEST_F(TextCommandsTest, TransferTakesTheRosterAndNothingOfTheTerm) {
  Class c = Sample(2, 1);
  c.school = "North High";
  c.LastNameWidth = 9;
  c.FirstNameWidth = 8;
  c.NumDays = 2;
  ReDim(c.AttendanceDays, 2);
  c.NumSummaries = 1;
  ReDim(c.Summaries, 1);
  for (std::size_t i = 1; i <= 2; ++i) {
    ReDim(c.Students[i].DailyMarks, 2, FixedText<1>("A"));
    ReDim(c.Students[i].SummaryAbsent, 1);
    ReDim(c.Students[i].SummaryLate, 1);
    ReDim(c.Students[i].SummaryDetail, 1);
  }
  Student& first = c.Students[1];
  first.comments = "Sits in front.\r\nWears glasses.";
  first.parent = "Eve";
  first.email = "e@example.org";
  Form1& window = Open("A.TYR", c);
  screen.ExpectBox(kTransferBox, BoxAnswer::kYes);
  window.ClickMenu("mnuTransfer");

  ASSERT_EQ(WindowCount(), 2);
  EXPECT_EQ(Window(2)->Caption, "NewClass 2");
  EXPECT_EQ(CurrentClass, 2);
  const Class& next = Current();
  EXPECT_EQ(next.NumStudents, 2);
  EXPECT_EQ(next.NumInstruments, 0);
  EXPECT_EQ(next.NumDays, 0);
  EXPECT_EQ(next.school, "");
  EXPECT_EQ(next.LastNameWidth, 9);
  EXPECT_EQ(next.FirstNameWidth, 8);
  EXPECT_EQ(next.Changed, kTrue);
  EXPECT_EQ(next.Students[1].lastname, "Last01");
  EXPECT_EQ(next.Students[1].id, "101");
  EXPECT_EQ(next.Students[1].comments, first.comments);
  EXPECT_EQ(next.Students[1].parent, "Eve");
  EXPECT_EQ(next.Students[1].email, "e@example.org");
  EXPECT_TRUE(next.Students[1].Marks.empty());
  EXPECT_TRUE(next.Students[1].DailyMarks.empty());
  EXPECT_TRUE(next.Students[1].SummaryAbsent.empty());
  EXPECT_EQ(next.LetterValues[1], Currency::FromWhole(99));
  EXPECT_EQ(Window(2)->Grid1.TextMatrix(2, 0), " 1 Last01, First01");
  EXPECT_EQ(Classes[1].NumInstruments, 1);
  EXPECT_EQ(Classes[1].Changed, kFalse);
  EXPECT_TRUE(Window(2)->menu.Reachable("mnuDelete"));
}

TEST_F(TextCommandsTest, ATransferredClassCanBeSavedAndTakesGrades) {
  Form1& window = Open("A.TYR");
  screen.ExpectBox(kTransferBox, BoxAnswer::kYes);
  window.ClickMenu("mnuTransfer");
  screen.ExpectPortal("frmMarks", [](PortalDriver& portal) {
    portal.Type("title", "Rivers");
    portal.Type("code", "RIV");
    portal.Press("fill");
    portal.Press("Command5");
    portal.Press("exit");
  });
  Window(2)->ClickMenu("mnuMarks");
  EXPECT_EQ(Current().Students[2].Marks[1], "ABS");
  screen.ExpectFileDialog(Path("B.TYR"));
  Window(2)->ClickMenu("mnusave");
  EXPECT_EQ(Current().Changed, kFalse);
  EXPECT_EQ(Read(Path("B.TYR")).substr(0, 3), "ty8");
}

TEST_F(TextCommandsTest, AStudentIsDeletedFromTheMenuAndTheTableFollows) {
  Form1& window = Open("A.TYR");
  screen.ExpectPortal("frmdelete", [this](PortalDriver& portal) {
    portal.Choose("List1", 0);
    screen.ExpectBox("Delete 101 Last01, First01?", BoxAnswer::kOk);
    portal.Press("delete");
    portal.Press("exit");
  });
  window.ClickMenu("mnuDelete");
  EXPECT_EQ(window.Grid1.TextMatrix(2, 0), " 1 Last02, First02");
  EXPECT_EQ(window.Grid1.TextMatrix(3, 0), "");
}

}  // namespace
}  // namespace tallyroll
