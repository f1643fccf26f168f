// SPDX-License-Identifier: GPL-3.0-or-later
// How the Print Preview Portal saves a report as text, HTML or PDF.
#include <algorithm>
#include <filesystem>
#include <utility>

#include "base/code_page.h"
#include "base/text.h"
#include "platform/surroundings.h"
#include "printing/frmprintpre.h"
#include "printing/page/report_choice.h"
#include "printing/print_command.h"
#include "printing/reports/html_report.h"
#include "printing/reports/reports.h"
#include "printing/running.h"
#include "store/class_file.h"
#include "store/program_state.h"
#include "store/text/saved_text.h"

namespace tallyroll {
namespace {

constexpr int kSavingTopic = 120;

// A file is called as the printout is, or else as the class where it has a name. What parts folders
// is no part of a name.
std::string NameOfPrintout(std::string_view extension) {
  std::string name = Utf8FromCodePage(Trim(Job.PrintTitle));
  if (name.empty()) name = std::filesystem::path(Current().FileName).stem().string();
  if (name.empty()) name = "Report";
  std::replace(name.begin(), name.end(), '/', '-');
  return name + "." + LowerCase(extension);
}

// The name to save under; empty when the dialog was cancelled, or an open class would be lost.
// `folder` follows it.
std::string AskForName(std::string_view filter, std::string_view extension, std::string& folder,
                       std::string_view offered = {}) {
  FileDialogRequest request;
  request.save = true;
  request.folder = folder;
  request.filename = offered;
  request.filter = filter;
  request.default_extension = extension;
  request.overwrite_prompt = true;
  request.help_context = kSavingTopic;
  const bool text = extension == "TXT";
  std::string path = (text ? AskForText(request) : Platform().FileDialog(request)).value_or("");
  if (path.empty()) return path;
  folder = std::filesystem::path(path).parent_path().string();
  if (!IsOpenClassFile(path)) return path;
  ShowMessage(" The file is already open ");
  return {};
}

}  // namespace

void frmprintpre::AskAndSave(Save form) {
  if (Busy() || Refuses(form == Save::kText ? "Save to Text File" : "Save to HTML")) return;
  pending_ = form;
  if (Choice.students.size() > 1)
    ShowFrame1(true);
  else
    SaveReport(form);
}

void frmprintpre::ShowFrame1(bool on) {
  Frame1.Visible = on;
  size.Visible = pagenum.Visible = !on;
  all.Value = true;
  current.Value = false;
  if (on) SetFocus(all);
}

void frmprintpre::Command5_Click() {
  if (Busy()) return;
  const bool current_only = current.Value;
  ShowFrame1(false);
  SaveFor(current_only);
}

void frmprintpre::Command7_Click() {
  ShowFrame1(false);
}

void frmprintpre::SaveFor(bool current_only) {
  const std::vector<i16> selected = Choice.students;
  const auto page = static_cast<std::size_t>(pagenum.ListIndex) + 1;
  if (current_only) Choice.students = {Job.PageStudent[page]};
  SaveReport(pending_);
  Choice.students = selected;
}

void frmprintpre::SaveReport(Save form) {
  const Running running(running_);
  Job.PrintFlag = kPrintRuns;
  if (form == Save::kText) {
    const std::string path = AskForName("Text Files (*.txt)|*.TXT", "TXT", folder_);
    if (!path.empty()) SaveReportText(path);
  } else if (form == Save::kHtml) {
    const std::string path = AskForName("HTML Files (*.htm)|*.HTM", "HTM", folder_);
    if (!path.empty()) SaveReportHtml(path);
  }
}

void frmprintpre::pdf_Click() {
  if (Busy()) return;
  const std::string path =
      AskForName("PDF Files (*.pdf)|*.PDF", "PDF", folder_, NameOfPrintout("PDF"));
  if (path.empty()) return;
  {
    const Running running(running_);
    PrintMessage message;
    PrintToPdf(path, message);
  }
  Job.PrintFlag = kPrintRuns;
  showscreen();
}

}  // namespace tallyroll
