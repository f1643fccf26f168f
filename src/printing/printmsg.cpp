// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/printmsg.h"

#include <filesystem>

#include "base/code_page.h"
#include "base/number_text.h"
#include "printing/page/print_job.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr int kLongestTitle = 80;

}  // namespace

std::string OfferedTitle() {
  const std::string name = std::filesystem::path(Current().FileName).stem().string();
  return PathForDisplay(name).substr(0, kLongestTitle);
}

printmsg::printmsg() : Portal("printmsg") {
  Caption = "Tallyroll Printing";
  HelpContext = 430;
  prompt.Caption = "If you wish, enter a Title for your printout.";
  Text1.MaxLength = kLongestTitle;
  continue_.Caption = "C&ontinue";
  exit.Caption = "E&xit";
  working.Caption = "PRINTING";
  cancel.Caption = "&Cancel";
}

void printmsg::Declare(ControlTable& table) {
  table.Add("message", message);
  table.Add("prompt", prompt);
  table.Add("Text1", Text1);
  table.Add("continue", continue_).Click([this] { continue_Click(); });
  table.Add("exit", exit).Click([this] { exit_Click(); });
  table.Add("printing", printing);
  table.Add("working", working);
  table.Add("pages", pages);
  table.Add("progress", progress);
  table.Add("cancel", cancel).Click([this] { cancel_Click(); });
}

void printmsg::Load() {
  message.Visible = Job.PrintFlag == kPrintWaits;
  printing.Visible = !message.Visible;
  ShowPage(0, 0);
  if (!message.Visible) return;
  Text1.Text = OfferedTitle();
  SetFocusAndSelect(Text1);
}

void printmsg::QueryUnload() {
  if (message.Visible)
    exit_Click();
  else
    cancel_Click();
}

void printmsg::continue_Click() {
  Job.PrintFlag = kPrintRuns;
  Job.PrintTitle = Text1.Text;
  message.Visible = false;
  Unload();
}

void printmsg::exit_Click() {
  Job.PrintFlag = kPrintCancelled;
  message.Visible = false;
  Unload();
}

void printmsg::cancel_Click() {
  Job.PrintFlag = kPrintCancelled;
  Unload();
}

void printmsg::ShowPage(int page, int all) {
  pages.Caption = page == 0 ? "Finding the pages" : "Page " + PlainNumberText(page);
  if (all > 0) pages.Caption += " of " + PlainNumberText(all);
  progress.Value = page;
  progress.Maximum = all;
}

}  // namespace tallyroll
