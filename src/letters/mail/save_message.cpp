// SPDX-License-Identifier: GPL-3.0-or-later
// What the E-mail Portal does with files: the message saved, a file attached.
#include <filesystem>

#include "base/code_page.h"
#include "base/text.h"
#include "letters/mail/frmSendMail.h"
#include "platform/surroundings.h"
#include "store/class_file.h"
#include "store/safe_file.h"
#include "store/settings.h"
#include "store/text/saved_text.h"

namespace tallyroll {
namespace {

// As rich text in a typewriter's font, so that the columns of a report stay.
std::string AsRichText(std::string_view text) {
  constexpr std::string_view kHex = "0123456789abcdef";
  std::string rich =
      "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fmodern Courier New;}}\\f0\\fs20\r\n";
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '\\' || c == '{' || c == '}')
      rich += std::string("\\") + c;
    else if (c == '\n')
      rich += "\\par\r\n";
    else if (c == '\t')
      rich += "\\tab ";
    else if (byte >= 128)
      rich += std::string("\\'") + kHex[byte >> 4] + kHex[byte & 15];
    else if (byte >= 32)
      rich += c;
  }
  return rich + "}\r\n";
}

}  // namespace

std::string PathOfBox(const std::string& chosen, const TextBox& box) {
  return box.Text == PathForDisplay(chosen) ? chosen : Utf8FromCodePage(box.Text);
}

void frmSendMail::insert_Click() {
  const std::string end = "\r\n";
  if (!txtMessage.Text.empty()) txtMessage.Text += end;
  txtMessage.Text += "To view this message as originally formatted, set your e-mail client" + end +
                     "(e.g., Microsoft Outlook Express) to view the text in a 'fixed-width'" + end +
                     "(non-proportional) font such as Courier New." + end;
}

std::string frmSendMail::SavedMessage() const {
  const std::string end = "\r\n";
  return "To: " + txtRecipient.Text + end + "From: " + txtSender.Text + end +
         "Subject: " + txtSubject.Text + end + "Date: " + MailDate(Platform().Now()) + end + end +
         txtMessage.Text;
}

void frmSendMail::save_Click() {
  FileDialogRequest request;
  request.save = true;
  request.filter = "Text File (*.txt)|*.txt|Rich Text Format (*.rtf)|*.rtf";
  request.default_extension = "txt";
  request.overwrite_prompt = true;
  const std::string path = AskForText(request).value_or("");
  if (path.empty()) return;
  if (IsOpenClassFile(path)) {
    ShowMessage(" The file is already open ");
    return;
  }
  const bool rich = LowerCase(std::filesystem::path(path).extension().string()) == ".rtf";
  const std::string text = SavedMessage();
  const std::string bytes = rich ? AsRichText(text) : EncodedText(text, SavedTextEncoding);
  if (ReplaceFile(path, bytes, OldTail::kDrop) != 0) ShowMessage("File Error");
}

namespace {

// A file of any kind, shown in the box; a path may hold what a box does not.
void ChooseFile(std::string& path, TextBox& box) {
  FileDialogRequest request;
  request.filter = "All Files (*.*)|*.*";
  request.file_must_exist = true;
  const std::optional<std::string> chosen = Platform().FileDialog(request);
  if (!chosen || chosen->empty()) return;
  path = *chosen;
  box.Text = PathForDisplay(path);
}

}  // namespace

void frmSendMail::FileAdd_Click() {
  ChooseFile(attach_path_, attachFile);
}

void frmSendMail::FileAuthority_Click() {
  ChooseFile(authority_path_, authority);
}

std::string frmSendMail::AttachedPath() const {
  return PathOfBox(attach_path_, attachFile);
}

}  // namespace tallyroll
