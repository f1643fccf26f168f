// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/printmsg.h"

#include "printing/print_message.h"
#include "tests/printing/print_portal_test.h"

namespace tallyroll {
namespace {

class PrintmsgTest : public PrintPortalTest {
 protected:
  void OpenForTitle() {
    Job.PrintFlag = kPrintWaits;
    Open(portal);
  }
  printmsg portal;
};

TEST_F(PrintmsgTest, OffersTheNameOfTheClassFile) {
  Current().FileName = "/home/t/Math 201.TYR";
  OpenForTitle();
  EXPECT_EQ(portal.Caption, "Tallyroll Printing");
  EXPECT_EQ(driver->Text("prompt"), "If you wish, enter a Title for your printout.");
  EXPECT_EQ(driver->Text("Text1"), "Math 201");
  EXPECT_EQ(driver->Focused(), "Text1");
  EXPECT_TRUE(driver->Visible("message"));
  EXPECT_FALSE(driver->Visible("printing"));
}

TEST_F(PrintmsgTest, AClassThatWasNeverSavedOffersNone) {
  OpenForTitle();
  EXPECT_EQ(driver->Text("Text1"), "");
}

TEST_F(PrintmsgTest, ContinueTakesTheTitle) {
  OpenForTitle();
  driver->Type("Text1", "Report for parents");
  driver->Press("continue");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_FALSE(portal.message.Visible);
  EXPECT_EQ(Job.PrintFlag, kPrintRuns);
  EXPECT_EQ(Job.PrintTitle, "Report for parents");
}

TEST_F(PrintmsgTest, ExitCancelsTheRun) {
  OpenForTitle();
  driver->Type("Text1", "Other");
  driver->Press("exit");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Job.PrintFlag, kPrintCancelled);
  EXPECT_EQ(Job.PrintTitle, "MATH");
}

TEST_F(PrintmsgTest, ClosingItsWindowCancelsTheRun) {
  OpenForTitle();
  driver->CloseWindow();
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Job.PrintFlag, kPrintCancelled);
}

TEST_F(PrintmsgTest, DuringTheRunItSaysPrinting) {
  Open(portal);
  EXPECT_FALSE(driver->Visible("message"));
  EXPECT_TRUE(driver->Visible("printing"));
  EXPECT_EQ(driver->Text("working"), "PRINTING");
}

TEST_F(PrintmsgTest, ShowsThePageAndTheTotal) {
  Open(portal);
  portal.ShowPage(3, 12);
  EXPECT_EQ(driver->Text("pages"), "Page 3 of 12");
  EXPECT_EQ(portal.progress.Value, 3);
  EXPECT_EQ(portal.progress.Maximum, 12);
}

TEST_F(PrintmsgTest, WithoutATotalItShowsThePage) {
  Open(portal);
  portal.ShowPage(2, 0);
  EXPECT_EQ(driver->Text("pages"), "Page 2");
}

TEST_F(PrintmsgTest, CancelEndsTheRun) {
  Open(portal);
  driver->Press("cancel");
  EXPECT_TRUE(portal.Unloaded());
  EXPECT_EQ(Job.PrintFlag, kPrintCancelled);
}

TEST_F(PrintmsgTest, ClosingTheRunsMessageEndsTheRun) {
  Open(portal);
  driver->CloseWindow();
  EXPECT_EQ(Job.PrintFlag, kPrintCancelled);
}

using PrintMessageTest = PrintPortalTest;

TEST_F(PrintMessageTest, AShortRunShowsNothing) {
  PrintMessage message;
  for (int row = 0; row < 100; ++row) EXPECT_FALSE(Cancelled());
  EXPECT_EQ(screen.PortalBeside("printmsg"), nullptr);
}

TEST_F(PrintMessageTest, ALongRunShowsItself) {
  PrintMessage message;
  EXPECT_FALSE(Cancelled());
  screen.now += 0.2 / 86400;
  EXPECT_FALSE(Cancelled());
  EXPECT_NE(screen.PortalBeside("printmsg"), nullptr);
}

TEST_F(PrintMessageTest, APageShowsItAtOnceAndTheEndTakesItAway) {
  {
    PrintMessage message;
    message.ShowPage(1, 2);
    auto* shown = dynamic_cast<printmsg*>(screen.PortalBeside("printmsg"));
    ASSERT_NE(shown, nullptr);
    EXPECT_EQ(shown->pages.Caption, "Page 1 of 2");
  }
  EXPECT_EQ(screen.PortalBeside("printmsg"), nullptr);
  EXPECT_FALSE(Job.AtEachRow);
}

TEST_F(PrintMessageTest, OnceCancelledItStaysAway) {
  PrintMessage message;
  message.ShowPage(1, 2);
  PortalDriver(*screen.PortalBeside("printmsg")).Press("cancel");
  message.ShowPage(2, 2);
  EXPECT_EQ(screen.PortalBeside("printmsg"), nullptr);
}

}  // namespace
}  // namespace tallyroll
