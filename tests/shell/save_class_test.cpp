// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/recent_list.h"
#include "store/settings.h"
#include "tests/shell/shell_test.h"

namespace tallyroll {
namespace {

constexpr const char* kQuestion = "A.TYR Data has been changed. Save File?  ";

class SaveClassTest : public ShellTest {
 protected:
  // A changed class in slot 1 that was never saved.
  Form1& Unsaved() {
    Form1& window = Open("A.TYR");
    Current().FileName.clear();
    Current().Changed = kTrue;
    window.Caption = "NewClass 1";
    return window;
  }
  // Its folder is away.
  void FailToSave(Form1& window) {
    Current().FileName = Path("gone/A.TYR");
    Current().Changed = kTrue;
    screen.ExpectBox("File Error: 76");
    window.ClickMenu("mnusave");
    EXPECT_EQ(window.StatusText, "");
  }
  bool Exists(std::string_view name) const { return std::filesystem::exists(Path(name)); }
};

TEST_F(SaveClassTest, SaveWritesTheClassAndClearsChanged) {
  Form1& window = Open("A.TYR");
  Current().room = "12";
  Current().Changed = kTrue;
  window.ClickMenu("mnusave");
  EXPECT_EQ(Current().Changed, kFalse);
  EXPECT_TRUE(FrameForm->CloseWindow(window));
  EXPECT_EQ(Open("B.TYR").Tag, "1");
  FrameForm->OpenRecent(Path("A.TYR"));
  EXPECT_EQ(Classes[2].room, "12");
}

TEST_F(SaveClassTest, ASaveMovesTheClassUpInTheRecentList) {
  Form1& first = Open("A.TYR");
  Form1& second = Open("B.TYR");
  ASSERT_EQ(RecentFiles[0], Path("B.TYR"));
  first.ClickMenu("mnusave");
  EXPECT_EQ(RecentFiles[0], Path("A.TYR"));
  EXPECT_EQ(RecentFiles[1], Path("B.TYR"));
  EXPECT_EQ(first.menu.Find("mnuFileList0")->caption, RecentMenuText(0));
  Classes[2].Changed = kTrue;
  screen.ExpectBox("B.TYR Data has been changed. Save File?  ", BoxAnswer::kYes);
  EXPECT_TRUE(FrameForm->CloseWindow(second));
  EXPECT_EQ(RecentFiles[0], Path("B.TYR"));
}

TEST_F(SaveClassTest, ASaveIsConfirmedWithTheNameOfTheFile) {
  Form1& window = Open("a.tyr");
  window.ClickMenu("mnusave");
  EXPECT_EQ(window.StatusText, "a.tyr saved.");
  screen.ExpectFileDialog(Path("copy.TYR"));
  window.ClickMenu("mnusaveas");
  EXPECT_EQ(window.StatusText, "copy.TYR saved.");
  window.ClickMenu("mnunamefirst");
  EXPECT_EQ(window.StatusText, "");
}

TEST_F(SaveClassTest, TheSaveOfAClosedClassIsConfirmedBehindIt) {
  Form1& first = Open("A.TYR");
  Classes[1].Changed = kTrue;
  Form1& second = Open("B.TYR");
  screen.ExpectBox(kQuestion, BoxAnswer::kYes);
  EXPECT_TRUE(FrameForm->CloseWindow(first));
  EXPECT_EQ(second.StatusText, "A.TYR saved.");
  Current().Changed = kTrue;
  screen.ExpectBox("B.TYR Data has been changed. Save File?  ", BoxAnswer::kYes);
  EXPECT_TRUE(FrameForm->CloseWindow(second));
  EXPECT_EQ(FrameForm->StatusText, "B.TYR saved.");
}

TEST_F(SaveClassTest, AClassThatClosesWithoutASaveConfirmsNone) {
  Form1& first = Open("A.TYR");
  first.ClickMenu("mnusave");
  Form1& second = Open("B.TYR");
  EXPECT_TRUE(FrameForm->CloseWindow(first));
  EXPECT_EQ(second.StatusText, "");
}

TEST_F(SaveClassTest, SaveOfAClassWithoutANameAsksForOne) {
  Form1& window = Unsaved();
  screen.ExpectFileDialog(Path("fresh.tyr"));
  window.ClickMenu("mnusave");
  EXPECT_EQ(Current().FileName, Path("fresh.tyr"));
  EXPECT_EQ(window.Caption, "FRESH.TYR");
  EXPECT_EQ(Current().Changed, kFalse);
  EXPECT_EQ(RecentFiles[0], Path("fresh.tyr"));
  EXPECT_TRUE(Exists("fresh.tyr"));
}

TEST_F(SaveClassTest, CancelledNameKeepsTheCaption) {
  Form1& window = Unsaved();
  screen.ExpectFileDialog(std::nullopt);
  window.ClickMenu("mnusave");
  EXPECT_TRUE(window.SaveCancelled);
  EXPECT_EQ(window.Caption, "NewClass 1");
  EXPECT_EQ(Current().Changed, kTrue);
}

TEST_F(SaveClassTest, ClassWithNothingInItReportsItsEmptyName) {
  Form1& window = Open("A.TYR", Sample(0));
  Current().FileName.clear();
  screen.ExpectBox("File Error: 75");
  window.ClickMenu("mnusave");
  EXPECT_EQ(FileErrorCode, 75);
  EXPECT_EQ(Current().Changed, kTrue);
}

TEST_F(SaveClassTest, SaveAsAsksWithTheNameOfTheClass) {
  Form1& window = Open("A.TYR");
  screen.ExpectFileDialog(Path("copy.TYR"));
  window.ClickMenu("mnusaveas");
  const FileDialogRequest& request = screen.file_dialogs.at(0);
  EXPECT_TRUE(request.save);
  EXPECT_EQ(request.title, "Save As");
  EXPECT_EQ(request.folder, folder);
  EXPECT_EQ(request.filename, Path("A.TYR"));
  EXPECT_EQ(request.filter, "Data Files (*.tyr)|*.TYR");
  EXPECT_EQ(request.default_extension, "TYR");
  EXPECT_TRUE(request.overwrite_prompt);
  EXPECT_EQ(request.help_context, 120);
  EXPECT_EQ(window.Caption, "COPY.TYR");
  EXPECT_EQ(RecentFiles[0], Path("copy.TYR"));
  EXPECT_EQ(RecentFiles[1], Path("A.TYR"));
}

TEST_F(SaveClassTest, AnotherExtensionIsRefusedAndTheDialogComesAgain) {
  Form1& window = Open("A.TYR");
  screen.ExpectFileDialog(Path("copy.txt"));
  screen.ExpectBox("The file extension must be .TYR");
  screen.ExpectFileDialog(Path("copy.Tyr"));
  window.ClickMenu("mnusaveas");
  EXPECT_EQ(screen.boxes[0].icon, BoxIcon::kCritical);
  EXPECT_EQ(Current().FileName, Path("copy.Tyr"));
  EXPECT_FALSE(Exists("copy.txt"));
}

TEST_F(SaveClassTest, CancelledSaveAsChangesNothing) {
  Form1& window = Open("A.TYR");
  FileErrorCode = 61;
  screen.ExpectFileDialog(std::nullopt);
  window.ClickMenu("mnusaveas");
  EXPECT_EQ(Current().FileName, Path("A.TYR"));
  EXPECT_EQ(window.Caption, "A.TYR");
  EXPECT_EQ(FileErrorCode, 0);
}

TEST_F(SaveClassTest, FirstSaveAsKeepsTheFileThatItReplaces) {
  MakeFile("other.TYR", Sample(5));
  Form1& window = Unsaved();
  screen.ExpectFileDialog(Path("other.TYR"));
  window.ClickMenu("mnusaveas");
  EXPECT_TRUE(Exists("other.old"));
  EXPECT_TRUE(Exists("other.TYR"));
  EXPECT_EQ(Current().Magic, "ty8");
}

TEST_F(SaveClassTest, UnchangedClassClosesWithoutAQuestion) {
  Form1& window = Open("A.TYR");
  EXPECT_TRUE(FrameForm->CloseWindow(window));
  EXPECT_EQ(WindowCount(), 0);
  EXPECT_EQ(Classes[1].SlotState, 0);
  EXPECT_EQ(Classes[1].NumStudents, 0);
  EXPECT_EQ(Classes[1].FileName, "");
  EXPECT_EQ(frame_screen.calls.back(), "destroyed A.TYR");
}

TEST_F(SaveClassTest, YesSavesAndCloses) {
  Form1& window = Open("A.TYR");
  Current().room = "9";
  Current().Changed = kTrue;
  screen.ExpectBox(kQuestion, BoxAnswer::kYes);
  window.ClickMenu("mnuclose");
  EXPECT_EQ(WindowCount(), 0);
  EXPECT_EQ(screen.boxes[0].buttons, BoxButtons::kYesNoCancel);
  EXPECT_EQ(screen.boxes[0].icon, BoxIcon::kQuestion);
  EXPECT_EQ(screen.boxes[0].title, "Note to the Teacher");
  FrameForm->OpenRecent(Path("A.TYR"));
  EXPECT_EQ(Current().room, "9");
}

TEST_F(SaveClassTest, WindowComesToTheFrontBeforeItAsks) {
  Open("A.TYR");
  Classes[1].Changed = kTrue;
  Open("B.TYR");
  screen.ExpectBox(kQuestion, BoxAnswer::kNo);
  EXPECT_TRUE(FrameForm->CloseWindow(*Window(1)));
  EXPECT_EQ(frame_screen.calls.end()[-2], "front A.TYR");
}

TEST_F(SaveClassTest, NoClosesWithoutSaving) {
  Form1& window = Open("A.TYR");
  Current().room = "9";
  Current().Changed = kTrue;
  screen.ExpectBox(kQuestion, BoxAnswer::kNo);
  window.ClickMenu("mnuclose");
  EXPECT_EQ(WindowCount(), 0);
  FrameForm->OpenRecent(Path("A.TYR"));
  EXPECT_EQ(Current().room, "");
}

TEST_F(SaveClassTest, CancelKeepsTheClassOpen) {
  Form1& window = Open("A.TYR");
  Current().Changed = kTrue;
  screen.ExpectBox(kQuestion, BoxAnswer::kCancel);
  window.ClickMenu("mnuclose");
  EXPECT_EQ(Window(1), &window);
  EXPECT_EQ(OpenState, -20);
  EXPECT_EQ(window.SaveAnswer, BoxAnswer::kCancel);
  EXPECT_EQ(Classes[1].SlotState, 10);
}

TEST_F(SaveClassTest, CancelledNameKeepsTheClassOpen) {
  Form1& window = Unsaved();
  screen.ExpectBox("NewClass 1 Data has been changed. Save File?  ", BoxAnswer::kYes);
  screen.ExpectFileDialog(std::nullopt);
  window.ClickMenu("mnuclose");
  EXPECT_EQ(Window(1), &window);
  EXPECT_EQ(window.SaveAnswer, BoxAnswer::kCancel);
}

TEST_F(SaveClassTest, FailedSaveKeepsTheClassOpenAndTheNextCloseTriesAgain) {
  Form1& window = Open("A.TYR");
  Current().FileName = Path("gone/A.TYR");
  Current().Changed = kTrue;
  screen.ExpectBox(kQuestion, BoxAnswer::kYes);
  screen.ExpectBox("File Error: 76");
  window.ClickMenu("mnuclose");
  EXPECT_EQ(Window(1), &window);
  EXPECT_EQ(FileErrorCode, 0);
  EXPECT_EQ(Current().Changed, kTrue);
  std::filesystem::create_directory(Path("gone"));
  screen.ExpectBox(kQuestion, BoxAnswer::kYes);
  window.ClickMenu("mnuclose");
  EXPECT_EQ(WindowCount(), 0);
  EXPECT_TRUE(Exists("gone/A.TYR"));
}

TEST_F(SaveClassTest, AFailedSaveOfOneClassKeepsNoOtherOpen) {
  FailToSave(Open("A.TYR"));
  Form1& second = Open("B.TYR");
  EXPECT_TRUE(FrameForm->CloseWindow(second));
  EXPECT_EQ(WindowCount(), 1);
}

TEST_F(SaveClassTest, AfterAFailedSaveNoClosesWithoutSaving) {
  Form1& window = Open("A.TYR");
  FailToSave(window);
  screen.ExpectBox(kQuestion, BoxAnswer::kNo);
  window.ClickMenu("mnuclose");
  EXPECT_EQ(WindowCount(), 0);
}

TEST_F(SaveClassTest, AfterAFailedSaveOneExitIsEnough) {
  FailToSave(Open("A.TYR"));
  Open("B.TYR");
  screen.ExpectBox(kQuestion, BoxAnswer::kNo);
  Window(2)->ClickMenu("mnuExit");
  EXPECT_EQ(frame_screen.calls.back(), "frame closed");
}

TEST_F(SaveClassTest, CloseAllWithTwoFailedSavesClosesTheThird) {
  for (const char* name : {"A.TYR", "B.TYR"}) {
    Open(name);
    Current().FileName = Path("gone/") + name;
    Current().Changed = kTrue;
  }
  Form1& third = Open("C.TYR");
  for (const char* name : {"A.TYR", "B.TYR"}) {
    screen.ExpectBox(std::string(name) + " Data has been changed. Save File?  ", BoxAnswer::kYes);
    screen.ExpectBox("File Error: 76");
  }
  third.ClickMenu("mnucloseall");
  EXPECT_EQ(WindowCount(), 2);
  for (int slot : {1, 2})
    EXPECT_EQ(Window(slot)->StatusText, "The class stays open, because it was not saved.");
}

TEST_F(SaveClassTest, CloseAllAsksEachWindowAlsoBehindOneThatStays) {
  Open("A.TYR");
  Classes[1].Changed = kTrue;
  Form1& second = Open("B.TYR");
  screen.ExpectBox(kQuestion, BoxAnswer::kCancel);
  second.ClickMenu("mnucloseall");
  EXPECT_EQ(WindowCount(), 1);
  EXPECT_NE(Window(1), nullptr);
}

TEST_F(SaveClassTest, TheFileOfAnotherWindowIsRefusedAndTheDialogComesAgain) {
  Open("A.TYR", Sample(4));
  Form1& second = Open("B.TYR");
  screen.ExpectFileDialog(Path("a.tyr"));
  screen.ExpectBox(" The file is already open ");
  screen.ExpectFileDialog(Path("C.TYR"));
  second.ClickMenu("mnusaveas");
  EXPECT_EQ(Current().FileName, Path("C.TYR"));
  EXPECT_EQ(Classes[1].FileName, Path("A.TYR"));
}

TEST_F(SaveClassTest, SaveAsOntoItsOwnFileIsASave) {
  Form1& window = Open("A.TYR");
  Current().Changed = kTrue;
  screen.ExpectFileDialog(Path("A.TYR"));
  window.ClickMenu("mnusaveas");
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(SaveClassTest, AFailedNameKeepsTheClassOpenAndTellsWhy) {
  Form1& window = Unsaved();
  screen.ExpectBox("NewClass 1 Data has been changed. Save File?  ", BoxAnswer::kYes);
  screen.ExpectFileDialog(Path("gone/fresh.TYR"));
  screen.ExpectBox("File Error: 76");
  window.ClickMenu("mnuclose");
  EXPECT_EQ(Window(1), &window);
  EXPECT_EQ(Current().Changed, kTrue);
  EXPECT_EQ(window.StatusText, "The class stays open, because it was not saved.");
}

TEST_F(SaveClassTest, AClassKeptByCloseAllIsTheOneThatTheNextCommandMeans) {
  Open("A.TYR");
  Open("B.TYR");
  Form1& third = Open("C.TYR");
  Classes[2].Changed = kTrue;
  screen.ExpectBox("B.TYR Data has been changed. Save File?  ", BoxAnswer::kCancel);
  third.ClickMenu("mnucloseall");
  EXPECT_EQ(WindowCount(), 1);
  EXPECT_EQ(CurrentClass, 2);
  EXPECT_EQ(frame_screen.calls.end()[-2], "front B.TYR");
}

TEST_F(SaveClassTest, ARefusedFrameCloseLeavesTheKeptClassInWork) {
  Open("A.TYR");
  Open("B.TYR");
  Classes[1].Changed = kTrue;
  screen.ExpectBox(kQuestion, BoxAnswer::kCancel);
  EXPECT_FALSE(FrameForm->QueryUnload());
  EXPECT_EQ(CurrentClass, 1);
  EXPECT_EQ(frame_screen.calls.back(), "front A.TYR");
}

TEST_F(SaveClassTest, ClosingAWindowBehindLeavesTheFrontOneInWork) {
  Open("A.TYR");
  Form1& second = Open("B.TYR");
  EXPECT_TRUE(FrameForm->CloseWindow(*Window(1)));
  EXPECT_EQ(CurrentClass, 2);
  Current().room = "7";
  second.ClickMenu("mnusave");
  EXPECT_TRUE(FrameForm->CloseWindow(second));
  FrameForm->OpenRecent(Path("B.TYR"));
  EXPECT_EQ(Current().room, "7");
}

TEST_F(SaveClassTest, ACommandMeansTheClassOfItsWindow) {
  Form1& first = Open("A.TYR");
  Open("B.TYR");
  Classes[1].room = "5";
  first.ClickMenu("mnusave");
  EXPECT_EQ(CurrentClass, 1);
  EXPECT_TRUE(FrameForm->CloseWindow(first));
  FrameForm->OpenRecent(Path("A.TYR"));
  EXPECT_EQ(Current().room, "5");
}

TEST_F(SaveClassTest, ToolbarSavesToo) {
  Form1& window = Open("A.TYR");
  Current().Changed = kTrue;
  window.ClickTool("Save");
  EXPECT_EQ(Current().Changed, kFalse);
}

TEST_F(SaveClassTest, ExitClosesEveryWindowAndKeepsTheSettings) {
  Open("A.TYR");
  Open("B.TYR").ClickTool("Exit");
  EXPECT_EQ(WindowCount(), 0);
  EXPECT_EQ(frame_screen.calls.back(), "frame closed");
  EXPECT_EQ(screen.settings.at("TALLYRLG8/startup/VERSION"), "8");
  EXPECT_EQ(screen.settings.at("TALLYRLG8/fileused/File0"), Path("B.TYR"));
}

TEST_F(SaveClassTest, ExitStopsWhereAClassIsKept) {
  Open("A.TYR");
  Classes[1].Changed = kTrue;
  Form1& second = Open("B.TYR");
  screen.ExpectBox(kQuestion, BoxAnswer::kCancel);
  second.ClickMenu("mnuExit");
  EXPECT_EQ(WindowCount(), 1);
  EXPECT_NE(frame_screen.calls.back(), "frame closed");
  EXPECT_FALSE(screen.settings.contains("TALLYRLG8/startup/VERSION"));
}

}  // namespace
}  // namespace tallyroll
