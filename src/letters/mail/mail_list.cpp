// SPDX-License-Identifier: GPL-3.0-or-later
// The list of what went when to whom, on paper and as a file.
#include "base/code_page.h"
#include "base/number_text.h"
#include "letters/mail/frmSendMany.h"
#include "platform/surroundings.h"
#include "platform/table_printer.h"
#include "store/class_file.h"
#include "store/csv.h"
#include "store/program_state.h"
#include "store/safe_file.h"
#include "store/settings.h"
#include "store/text/saved_text.h"

namespace tallyroll {
namespace {

// Every run of the class, the latest first.
std::string MailCsv(const std::vector<JournalMail>& mails) {
  std::string text = "run,student,name,address,subject,attachment,state,changed\r\n";
  for (const JournalMail& mail : mails) {
    text += PlainNumberText(mail.run);
    for (const std::string& field : {mail.student, mail.name, mail.address, mail.subject,
                                     mail.attachment, MailStateText(mail), mail.changed})
      text += "," + CsvTextField(field);
    text += "\r\n";
  }
  return text;
}

}  // namespace

void frmSendMany::cmdPrint_Click() {
  if (!PrintTable || running_) return;
  PrintedTable table;
  table.title = "Mail: " + mails_.front().entry.subject;
  table.first_column = 1;
  table.head = {"Student", "Address", "State"};
  for (int row = 1; row < Grid1.Rows(); ++row)
    table.rows.push_back({std::string(Grid1.TextMatrix(row, 0)),
                          std::string(Grid1.TextMatrix(row, 1)),
                          std::string(Grid1.TextMatrix(row, 4))});
  PrintTable(table);
}

void frmSendMany::cmdCsv_Click() {
  MailJournal journal = MailJournal::ToRead(Current().FileName);
  const std::vector<JournalMail> mails = journal.All();
  if (mails.empty()) {
    ShowMessage(journal.fault().empty() ? "Nothing was sent yet."
                                        : "The list can't be read: " + journal.fault() + ".");
    return;
  }
  FileDialogRequest request;
  request.save = true;
  request.folder = DataFolder;
  request.filter = "CSV Files (*.csv)|*.CSV";
  request.default_extension = "CSV";
  request.overwrite_prompt = true;
  const std::string path = AskForText(request).value_or("");
  if (path.empty()) return;
  if (IsOpenClassFile(path)) {
    ShowMessage(" The file is already open ");
    return;
  }
  if (ReplaceFile(path, EncodedText(MailCsv(mails), SavedTextEncoding), OldTail::kDrop) != 0)
    ShowMessage("File Error");
}

}  // namespace tallyroll
