// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/writer/frmwrdproc.h"

#include <filesystem>
#include <fstream>

#include "letters/merge/merge.h"
#include "letters/text/letter_file.h"
#include "printing/page/print_job.h"
#include "roster/chosen_students.h"
#include "shell/portal_list.h"
#include "store/safe_file.h"
#include "tests/roster/roster_test.h"
#include "tests/support/played_progress.h"

namespace tallyroll {
namespace {

class FrmWrdProcTest : public RosterTest {
 protected:
  FrmWrdProcTest() {
    NameMode = 57;
    DataFolder = ProgramFolder = folder;
    MakePortal = MakePortalByName;
    Enrol("Ng", "Ada", "1");
    Enrol("Orr", "Cy", "2");
    Enrol("Ng", "Bo", "3");
  }
  void Write(std::string_view text) {
    if (!driver) Open(portal);
    driver->Write("RichTextBox1", text);
  }
  std::string Letter() { return driver->Text("RichTextBox1"); }
  TextStyle StyleOfUnit(std::size_t at) {
    std::size_t end = 0;
    for (const TextRun& run : portal.RichTextBox1.Document.paragraphs.front().runs)
      if ((end += run.text.size()) > at) return run.style;
    return {};
  }
  // The title of the printout is asked for.
  void ExpectTitle() {
    screen.ExpectPortal("printmsg", [](PortalDriver& title) { title.Press("continue"); });
  }

  frmwrdproc portal;
};

TEST_F(FrmWrdProcTest, OpensWithAnEmptyLetter) {
  Open(portal);
  EXPECT_EQ(portal.Caption, "Tallyroll Word Processor");
  EXPECT_EQ(Letter(), "");
  EXPECT_EQ(driver->Focused(), "RichTextBox1");
  EXPECT_FALSE(portal.Changed());
}

TEST_F(FrmWrdProcTest, TheListOfCodesIsHeadedAndInsertsAtTheCaret) {
  Write("Dear ,");
  EXPECT_EQ(portal.ComboFields.List[0], "Field Names");
  EXPECT_EQ(portal.ComboFields.List[1], "<First Name>");
  EXPECT_EQ(portal.ComboFields.List[4], "<ID Number>");
  driver->SelectIn("RichTextBox1", 5);
  driver->Choose("ComboFields", 3);
  EXPECT_EQ(Letter(), "Dear <Parent's Name>,");
  EXPECT_EQ(portal.ComboFields.ListIndex, 0);
  EXPECT_EQ(portal.ComboFields.Text, "Field Names");
  EXPECT_EQ(portal.RichTextBox1.SelStart, 20);
  EXPECT_EQ(driver->Focused(), "RichTextBox1");
}

TEST_F(FrmWrdProcTest, BesideEachCodeStandsTheValueOfTheChosenStudent) {
  ChooseStudents({2});
  Open(portal);
  EXPECT_EQ(portal.ComboFields.List[1], "<First Name>   Cy");
  EXPECT_EQ(portal.ComboFields.List[3], "<Parent's Name>   (empty)");
  driver->Choose("ComboFields", 1);
  EXPECT_EQ(Letter(), "<First Name>");
}

TEST_F(FrmWrdProcTest, ANewLetterIsEmptyAndAsksForTheOldOne) {
  Write("Hello");
  screen.ExpectBox("Data has been changed. Save File?  ", BoxAnswer::kCancel);
  driver->Press("mnuNew");
  EXPECT_EQ(Letter(), "Hello");
  screen.ExpectBox("Data has been changed. Save File?  ", BoxAnswer::kNo);
  driver->Press("New");
  EXPECT_EQ(Letter(), "");
  EXPECT_FALSE(portal.Changed());
}

TEST_F(FrmWrdProcTest, YesSavesFirst) {
  Write("Hello");
  screen.ExpectBox("Data has been changed. Save File?  ", BoxAnswer::kYes);
  screen.ExpectFileDialog(Path("a.rtf"));
  driver->CloseWindow();
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(ReadLetter(Path("a.rtf")).text.paragraphs.front().runs.front().text, u"Hello");
}

TEST_F(FrmWrdProcTest, ALetterThatCouldNotBeSavedStaysOpen) {
  Write("Hello");
  screen.ExpectBox("Data has been changed. Save File?  ", BoxAnswer::kYes);
  screen.ExpectFileDialog(std::nullopt);
  driver->CloseWindow();
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(Letter(), "Hello");
}

TEST_F(FrmWrdProcTest, SavingGoesUnderTheNameThatTheLetterHas) {
  Write("Hello");
  screen.ExpectFileDialog(Path("a.RTF"));
  driver->Press("mnusave");
  EXPECT_EQ(portal.Caption, "Tallyroll Word Processor a.RTF");
  EXPECT_FALSE(portal.Changed());
  EXPECT_EQ(screen.file_dialogs.back().filter,
            "Rich Text Format (*.rtf)|*.rtf|Text File (*.txt)|*.txt");
  Write("!");
  driver->Press("Save");
  EXPECT_TRUE(ReadWholeFile(Path("a.RTF")).bytes.starts_with("{\\rtf1"));
  EXPECT_NE(ReadWholeFile(Path("a.RTF")).bytes.find("Hello!"), std::string::npos);
}

TEST_F(FrmWrdProcTest, AnotherExtensionIsPlainText) {
  Write("Hello\nyou");
  screen.ExpectFileDialog(Path("a.txt"));
  driver->Press("mnusaveas");
  EXPECT_EQ(ReadWholeFile(Path("a.txt")).bytes, "Hello\r\nyou");
}

TEST_F(FrmWrdProcTest, OpeningReadsBothForms) {
  std::ofstream(Path("a.rtf")) << "{\\rtf1\\ansi Dear {\\b you}}";
  std::ofstream(Path("b.txt")) << "plain";
  Open(portal);
  screen.ExpectFileDialog(Path("a.rtf"));
  driver->Press("mnuOpen");
  EXPECT_EQ(Letter(), "Dear you");
  EXPECT_TRUE(StyleOfUnit(5).bold);
  EXPECT_EQ(portal.Caption, "Tallyroll Word Processor a.rtf");
  screen.ExpectFileDialog(Path("b.txt"));
  driver->Press("Open");
  EXPECT_EQ(Letter(), "plain");
  EXPECT_EQ(StyleOfUnit(0).font, "Courier New");
}

TEST_F(FrmWrdProcTest, AFileThatCannotBeOpenedIsToldAndTheLetterStays) {
  Write("Hello");
  screen.ExpectBox("Data has been changed. Save File?  ", BoxAnswer::kNo);
  screen.ExpectFileDialog(Path("none.rtf"));
  screen.ExpectBox("Unkown error while opening file " + Path("none.rtf"));
  driver->Press("mnuOpen");
  EXPECT_EQ(Letter(), "Hello");
}

TEST_F(FrmWrdProcTest, AFileThatCannotBeSavedIsTold) {
  Write("Hello");
  screen.ExpectFileDialog(Path("none/a.rtf"));
  screen.ExpectBox("Unkown error while saving file " + Path("none/a.rtf"));
  driver->Press("mnusave");
  EXPECT_TRUE(portal.Changed());
  EXPECT_EQ(portal.Caption, "Tallyroll Word Processor");
}

TEST_F(FrmWrdProcTest, AFileOfAnotherProgramIsGoneOverOnlyWhenAllowed) {
  Write("Hello");
  screen.ExpectFileDialog(Path("a.rtf"));
  driver->Press("mnusave");
  std::ofstream(Path("a.rtf")) << "somebody else's";
  screen.ExpectBox(
      "The letter has been changed by another program since it was opened. Save over it?",
      BoxAnswer::kNo);
  driver->Press("mnusave");
  EXPECT_EQ(ReadWholeFile(Path("a.rtf")).bytes, "somebody else's");
}

TEST_F(FrmWrdProcTest, BoldFollowsTheSelection) {
  Write("one two");
  driver->SelectIn("RichTextBox1", 0, 3);
  driver->Tick("Bold", true);
  EXPECT_TRUE(StyleOfUnit(0).bold);
  EXPECT_FALSE(StyleOfUnit(4).bold);
  EXPECT_TRUE(portal.mnubold.Value);
  driver->SelectIn("RichTextBox1", 0, 7);
  EXPECT_FALSE(portal.Bold.Value);  // only a part is
  driver->Tick("mnubold", true);
  EXPECT_TRUE(StyleOfUnit(5).bold);
  driver->Tick("Bold", false);
  EXPECT_FALSE(StyleOfUnit(0).bold);
}

TEST_F(FrmWrdProcTest, WithoutASelectionItIsWhatIsTypedNext) {
  Write("one ");
  driver->Tick("Italic", true);
  Write("two");
  EXPECT_FALSE(StyleOfUnit(0).italic);
  EXPECT_TRUE(StyleOfUnit(5).italic);
}

TEST_F(FrmWrdProcTest, FontSizeAndAlignmentOfTheSelection) {
  Write("one");
  driver->SelectIn("RichTextBox1", 0, 3);
  driver->Choose("fontname", 0);
  EXPECT_EQ(StyleOfUnit(0).font, "Arial");
  driver->Choose("fontsize", 6);
  EXPECT_EQ(StyleOfUnit(0).half_points, 32);
  driver->Tick("center");
  EXPECT_EQ(portal.RichTextBox1.Document.paragraphs.front().style.align, TextAlign::kCenter);
  EXPECT_TRUE(portal.mnucenter.Value);
  EXPECT_FALSE(portal.left.Value);
}

TEST_F(FrmWrdProcTest, CutAndCopyNeedASelection) {
  Write("one");
  EXPECT_FALSE(driver->Enabled("cut"));
  EXPECT_FALSE(driver->Enabled("mnucopy"));
  driver->SelectIn("RichTextBox1", 0, 2);
  EXPECT_TRUE(driver->Enabled("cut"));
  EXPECT_TRUE(driver->Enabled("Copy"));
  driver->Press("cut");
  EXPECT_EQ(portal.RichTextBox1.Acts, std::vector<EditAct>{EditAct::kCut});
}

TEST_F(FrmWrdProcTest, TheSentenceAroundTheCaretEndsAtItsMarks) {
  Write("One. Two, three! Four");
  driver->SelectIn("RichTextBox1", 8);
  driver->Press("mnusentence");
  EXPECT_EQ(portal.RichTextBox1.SelStart, 5);
  EXPECT_EQ(portal.RichTextBox1.SelLength, 10);  // "Two, three"
}

TEST_F(FrmWrdProcTest, TheWordAroundTheCaretEndsAtItsMarks) {
  Write("One; two");
  driver->SelectIn("RichTextBox1", 1);
  driver->Press("mnuword");
  EXPECT_EQ(portal.RichTextBox1.SelStart, 0);
  EXPECT_EQ(portal.RichTextBox1.SelLength, 3);
  driver->SelectIn("RichTextBox1", 8);
  driver->Press("mnuword");
  EXPECT_EQ(portal.RichTextBox1.SelStart, 5);
  EXPECT_EQ(portal.RichTextBox1.SelLength, 3);
}

TEST_F(FrmWrdProcTest, WithoutStudentsNothingLeaves) {
  Write("Hello");
  for (const char* command : {"mnuPrint", "Print", "mnusavest", "labels", "mnupdf", "mnumerged"}) {
    screen.ExpectBox("You must first choose the names of students.");
    if (std::string_view(command) == "mnumerged")
      driver->Tick(command);
    else
      driver->Press(command);
  }
  screen.ExpectBox("You must first choose the name of a student.");
  driver->Press("mnuemail");
  EXPECT_TRUE(screen.print_jobs.empty());
}

TEST_F(FrmWrdProcTest, EmailIsForOneStudent) {
  ChooseStudents({1, 2});
  Write("Hello");
  screen.ExpectBox("For E-mail, choose the name of only ONE student.");
  driver->Press("Email");
}

TEST_F(FrmWrdProcTest, TheLetterOfOneStudentBecomesAMessage) {
  Current().Students[1].email = "ada@example.org";
  ChooseStudents({1});
  Write("Dear <First Name>,\nhello");
  screen.ExpectPortal("frmSendMail", [](PortalDriver& mail) {
    EXPECT_EQ(mail.Text("txtMessage"), "Dear Ada,\r\nhello");
    EXPECT_EQ(mail.Text("txtRecipient"), "ada@example.org");
    mail.Press("cmdClose");
  });
  driver->Press("mnuemail");
  EXPECT_EQ(driver->portal().Caption, "Tallyroll Word Processor");
}

TEST_F(FrmWrdProcTest, WhatAMessageHasNoCharacterForIsToldBefore) {
  ChooseStudents({1});
  Open(portal);
  portal.RichTextBox1.Load(RichTextOf(u"\u0391\u0392"));
  screen.ExpectBox(
      "A message cannot hold 2 of the letter's characters; \"?\" will stand in their place. Go on?",
      BoxAnswer::kNo);
  driver->Press("Email");
}

TEST_F(FrmWrdProcTest, LettersArePrintedForEachChosenStudent) {
  ChooseStudents({1, 2});
  Write("Dear <first name> <ID Number>!");
  ExpectTitle();
  driver->Press("mnuPrint");
  ASSERT_EQ(screen.print_jobs.size(), 1u);
  EXPECT_EQ(screen.print_jobs.front()->pages.size(), 2u);
  EXPECT_EQ(Letter(), "Dear <first name> <ID Number>!");
}

TEST_F(FrmWrdProcTest, TheFormLetterIsPrintedWithItsCodes) {
  Write("Dear <First Name>");
  ExpectTitle();
  driver->Press("mnuform");
  ASSERT_EQ(screen.print_jobs.size(), 1u);
  EXPECT_EQ(screen.print_jobs.front()->pages.size(), 1u);
}

TEST_F(FrmWrdProcTest, APrintThatIsCalledOffPrintsNothing) {
  ChooseStudents({1});
  Write("Hello");
  screen.ExpectPortal("printmsg", [](PortalDriver& title) { title.Press("exit"); });
  driver->Press("mnuPrint");
  EXPECT_TRUE(screen.print_jobs.empty());
}

TEST_F(FrmWrdProcTest, AnUnknownCodeIsToldBeforeAnythingLeaves) {
  ChooseStudents({1});
  Write("Dear <Nickname>");
  std::string told;
  for (const std::string& line : LetterWarnings(portal.RichTextBox1.Document, {1}))
    told += line + "\n";
  EXPECT_NE(told.find("<Nickname>"), std::string::npos);
  screen.ExpectBox(told + "Go on?", BoxAnswer::kNo);
  driver->Press("mnupdf");
  screen.ExpectBox(told + "Go on?", BoxAnswer::kNo);
  driver->Press("mnuPrint");
  EXPECT_TRUE(screen.file_dialogs.empty());
  EXPECT_TRUE(screen.print_jobs.empty());
}

TEST_F(FrmWrdProcTest, LettersAreSavedBesideTheChosenName) {
  ChooseStudents({1, 2});
  Write("Dear <First Name>");
  screen.ExpectFileDialog(Path("note.rtf"));
  driver->Press("mnusavest");
  EXPECT_NE(ReadWholeFile(Path("note_Ng.RTF")).bytes.find("Dear Ada"), std::string::npos);
  EXPECT_NE(ReadWholeFile(Path("note_Orr.RTF")).bytes.find("Dear Cy"), std::string::npos);
}

// The letters of those before the Cancel are whole; none is begun behind it.
TEST_F(FrmWrdProcTest, SavingIsCancelledBetweenTwoLetters) {
  ChooseStudents({1, 2});
  Write("Dear <First Name>");
  TickingScreen ticking;
  SetPlatform(&ticking);
  const PlayedProgress progress("Saving the letters", 1);
  ticking.ExpectFileDialog(Path("note.rtf"));
  driver->Press("mnusavest");
  EXPECT_NE(ReadWholeFile(Path("note_Ng.RTF")).bytes.find("Dear Ada"), std::string::npos);
  EXPECT_FALSE(std::filesystem::exists(Path("note_Orr.RTF")));
  EXPECT_TRUE(ticking.Complaints().empty());
  SetPlatform(&screen);
}

TEST_F(FrmWrdProcTest, CancelledWhileTheLettersAreFilledInNothingIsAsked) {
  ChooseStudents({1, 2});
  Write("Dear <First Name>");
  TickingScreen ticking;
  SetPlatform(&ticking);
  const PlayedProgress progress("Filling in the letters", 1);
  driver->Press("mnusavest");
  EXPECT_EQ(PlayedProgress::shown, (std::vector<std::string>{"Filling in the letters"}));
  EXPECT_TRUE(ticking.Complaints().empty());
  SetPlatform(&screen);
}

TEST_F(FrmWrdProcTest, AnOpenClassIsNotGoneOver) {
  const std::string path = Path("MATH.TYR");
  std::ofstream(path) << "the class";
  Current().FileName = path;
  ChooseStudents({1});
  Write("Hello");
  for (const char* command : {"mnupdf", "mnusave", "mnusavest"}) {
    screen.ExpectFileDialog(path);
    screen.ExpectBox(" The file is already open ");
    driver->Press(command);
  }
  EXPECT_EQ(ReadWholeFile(path).bytes, "the class");
  EXPECT_TRUE(screen.print_jobs.empty());
}

TEST_F(FrmWrdProcTest, TheMergedViewShowsEachStudentsLetter) {
  ChooseStudents({1, 2});
  Write("Dear <First Name>");
  driver->Tick("mnumerged");
  EXPECT_EQ(portal.view.Current, frmwrdproc::kMerged);
  EXPECT_EQ(driver->Text("RichTextBox2"), "Dear Ada");
  EXPECT_EQ(driver->Text("whose"), "Ng, Ada (1 of 2)");
  EXPECT_FALSE(driver->Enabled("previous"));
  driver->Press("next");
  EXPECT_EQ(driver->Text("RichTextBox2"), "Dear Cy");
  EXPECT_FALSE(driver->Enabled("next"));
  EXPECT_FALSE(driver->Enabled("Bold"));
  driver->CloseWindow();  // back to the letter
  EXPECT_FALSE(portal.Unloaded());
  EXPECT_EQ(portal.view.Current, frmwrdproc::kLetter);
  EXPECT_EQ(Letter(), "Dear <First Name>");
}

TEST_F(FrmWrdProcTest, LabelsAskWhomTheyAreFor) {
  ChooseStudents({1, 2});
  Open(portal);
  EXPECT_FALSE(driver->Visible("Frame2"));
  driver->Press("labels");
  EXPECT_TRUE(driver->Visible("Frame2"));
  driver->Press("Command2");
  EXPECT_FALSE(driver->Visible("Frame2"));
  driver->Press("labels");
  driver->Tick("parent");
  ExpectTitle();
  driver->Press("Command1");
  EXPECT_EQ(screen.print_jobs.size(), 1u);
  EXPECT_FALSE(driver->Visible("Frame2"));
}

TEST_F(FrmWrdProcTest, StudentsAreChosenInTheStudentPortal) {
  Open(portal);
  EXPECT_EQ(driver->Text("status"), "No students are chosen");
  screen.ExpectPortal("frmstudents", [](PortalDriver& students) {
    students.Press("allstudents");
    students.Press("finished");
  });
  driver->Press("choosestudent");
  EXPECT_EQ(driver->Text("status"), "3 students are chosen");
}

}  // namespace
}  // namespace tallyroll
