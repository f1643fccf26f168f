// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/writer/frmwrdproc.h"

#include "letters/writer/letter_dialogs.h"
#include "letters/writer/letter_lists.h"
#include "platform/surroundings.h"
#include "store/program_state.h"

namespace tallyroll {

frmwrdproc::frmwrdproc() : Portal("frmwrdproc") {
  Caption = "Tallyroll Word Processor";
  HelpContext = kWriterTopic;
  ComboFields.List = {"Field Names"};
  RichTextBox2.Locked = true;
  RichTextBox1.Spelling = mnuspelling.Value = true;
  Frame2.Visible = mergedframe.Visible = false;
  mnuprevious.Enabled = mnunext.Enabled = mnupages.Enabled = false;
}

void frmwrdproc::Declare(ControlTable& table) {
  DeclareFile(table);
  DeclareEdit(table);
  DeclareLooks(table);
  DeclareStudents(table);
  DeclareTools(table);
  DeclareBody(table);
}

void frmwrdproc::DeclareFile(ControlTable& table) {
  table.Add("mnuNew", mnuNew).Click([this] { mnuNew_Click(); });
  table.Add("mnuOpen", mnuOpen).Click([this] { mnuOpen_Click(); });
  table.Add("mnusave", mnusave).Click([this] { mnusave_Click(); });
  table.Add("mnusaveas", mnusaveas).Click([this] { mnusaveas_Click(); });
  table.Add("mnuPrint", mnuPrint).Click([this] { mnuPrint_Click(); });
  table.Add("mnuform", mnuform).Click([this] { mnuform_Click(); });
  table.Add("labels", labels).Click([this] { labels_Click(); });
  table.Add("mnusavest", mnusavest).Click([this] { mnusavest_Click(); });
  table.Add("mnupdf", mnupdf).Click([this] { mnupdf_Click(); });
  table.Add("mnuemail", mnuemail).Click([this] { mnuemail_Click(); });
  table.Add("mnumany", mnumany).Click([this] { mnumany_Click(); });
  table.Add("mnuExit", mnuExit).Click([this] { QueryUnload(); });
}

void frmwrdproc::DeclareEdit(ControlTable& table) {
  table.Add("mnuundo", mnuundo).Click([this] { Want(EditAct::kUndo); });
  table.Add("mnuredo", mnuredo).Click([this] { Want(EditAct::kRedo); });
  table.Add("mnucut", mnucut).Click([this] { Want(EditAct::kCut); });
  table.Add("mnucopy", mnucopy).Click([this] { Want(EditAct::kCopy); });
  table.Add("mnupaste", mnupaste).Click([this] { Want(EditAct::kPaste); });
  table.Add("mnuall", mnuall).Click([this] { Want(EditAct::kSelectAll); });
  table.Add("mnuFind", mnuFind).Click([this] { mnuFind_Click(); });
  table.Add("mnusentence", mnusentence).Click([this] { SelectSentence(); });
  table.Add("mnuword", mnuword).Click([this] { SelectWord(); });
  table.Add("mnubreak", mnubreak).Click([this] { BreakPage(); });
}

void frmwrdproc::DeclareLooks(ControlTable& table) {
  table.Add("mnubold", mnubold).Click([this] { Toggle(&TextStyle::bold); });
  table.Add("mnuitalic", mnuitalic).Click([this] { Toggle(&TextStyle::italic); });
  table.Add("mnuunderline", mnuunderline).Click([this] { Toggle(&TextStyle::underline); });
  table.Add("mnustrike", mnustrike).Click([this] { Toggle(&TextStyle::strike); });
  table.Add("mnuleft", mnuleft).Click([this] { Align(TextAlign::kLeft); });
  table.Add("mnucenter", mnucenter).Click([this] { Align(TextAlign::kCenter); });
  table.Add("mnuright", mnuright).Click([this] { Align(TextAlign::kRight); });
  table.Add("mnujustify", mnujustify).Click([this] { Align(TextAlign::kJustify); });
}

void frmwrdproc::DeclareStudents(ControlTable& table) {
  table.Add("choosestudent", choosestudent).Click([this] { choosestudent_Click(); });
  table.Add("mnumerged", mnumerged).Click([this] { ShowMerged(mnumerged.Value); });
  table.Add("mnupages", mnupages).Click([this] { ShowPagesOf(mnupages.Value); });
  table.Add("mnuprevious", mnuprevious).Click([this] { StepStudent(-1); });
  table.Add("mnunext", mnunext).Click([this] { StepStudent(1); });
  table.Add("mnuspelling", mnuspelling).Click([this] {
    RichTextBox1.Spelling = mnuspelling.Value;
  });
  table.Add("mnularger", mnularger).Click([this] { StepZoom(1); });
  table.Add("larger_unshifted", larger_unshifted).Click([this] { StepZoom(1); });
  table.Add("mnusmaller", mnusmaller).Click([this] { StepZoom(-1); });
  table.Add("mnuhelp", mnuhelp).Click([] { Platform().ShowHelp(kWriterTopic); });
}

void frmwrdproc::DeclareTools(ControlTable& table) {
  table.Add("New", New).Click([this] { mnuNew_Click(); });
  table.Add("Open", Open).Click([this] { mnuOpen_Click(); });
  table.Add("Save", Save).Click([this] { mnusave_Click(); });
  table.Add("Print", Print).Click([this] { mnuPrint_Click(); });
  table.Add("Email", Email).Click([this] { mnuemail_Click(); });
  table.Add("cut", cut).Click([this] { Want(EditAct::kCut); });
  table.Add("Copy", Copy).Click([this] { Want(EditAct::kCopy); });
  table.Add("Paste", Paste).Click([this] { Want(EditAct::kPaste); });
  table.Add("undo", undo).Click([this] { Want(EditAct::kUndo); });
  table.Add("redo", redo).Click([this] { Want(EditAct::kRedo); });
  table.Add("Exit", Exit).Click([this] { QueryUnload(); });
  table.Add("fontname", fontname).Change([this] { PickFont(); });
  table.Add("fontsize", fontsize).Change([this] { PickSize(); });
  table.Add("Bold", Bold).Click([this] { Toggle(&TextStyle::bold); });
  table.Add("Italic", Italic).Click([this] { Toggle(&TextStyle::italic); });
  table.Add("Underline", Underline).Click([this] { Toggle(&TextStyle::underline); });
  table.Add("left", left).Click([this] { Align(TextAlign::kLeft); });
  table.Add("center", center).Click([this] { Align(TextAlign::kCenter); });
  table.Add("right", right).Click([this] { Align(TextAlign::kRight); });
  table.Add("justify", justify).Click([this] { Align(TextAlign::kJustify); });
  table.Add("ComboFields", ComboFields).Change([this] { PickField(); });
  table.Add("zoom", zoom).Change([this] { PickZoom(); });
}

void frmwrdproc::DeclareBody(ControlTable& table) {
  table.Add("Frame2", Frame2);
  table.Add("asklabels", asklabels);
  table.Add("student", student);
  table.Add("parent", parent);
  table.Add("Command1", Command1).Click([this] { Command1_Click(); });
  table.Add("Command2", Command2).Click([this] { Command2_Click(); });
  table.Add("mergedframe", mergedframe);
  table.Add("previous", previous).Click([this] { StepStudent(-1); });
  table.Add("whose", whose);
  table.Add("next", next).Click([this] { StepStudent(1); });
  table.Add("pageback", pageback).Click([this] { StepPage(-1); });
  table.Add("pageof", pageof);
  table.Add("pageon", pageon).Click([this] { StepPage(1); });
  table.Add("view", view);
  table.Add("RichTextBox1", RichTextBox1).Change([this] { Edited(); }).Click([this] {
    ShowLooks();
  });
  table.Add("RichTextBox2", RichTextBox2);
  table.Add("sheet", sheet);
  table.Add("status", status);
}

void frmwrdproc::Load() {
  folder_ = DataFolder;
  FillLookLists(fontname, fontsize, zoom);
  sheet.Draw = [this](PrintTarget& target) {
    if (page_ < pages_.size()) DrawLetterPage(target, pages_[page_]);
  };
  if (const auto box = Platform().MakePrintBox(false)) {
    const LetterMargins margins = ChosenMargins();
    RichTextBox1.PaperWidth = RichTextBox2.PaperWidth =
        static_cast<int>(box->Width - margins.left - margins.right);
  }
  SetLetter({}, {});
  ShowStudents();
}

}  // namespace tallyroll
