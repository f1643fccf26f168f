// SPDX-License-Identifier: GPL-3.0-or-later
// What the logic asks of the machine and the screen it runs on.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "base/date_serial.h"

namespace tallyroll {

class Portal;
class PrintTarget;

inline constexpr std::string_view kNoteToTheTeacher = "Note to the Teacher";

enum class BoxButtons { kOk, kOkCancel, kYesNo, kYesNoCancel };
enum class BoxIcon { kNone, kCritical, kQuestion, kExclamation, kInformation };
enum class BoxAnswer { kOk = 1, kCancel = 2, kYes = 6, kNo = 7 };

struct MessageRequest {
  std::string text;
  std::string title = std::string(kNoteToTheTeacher);
  BoxButtons buttons = BoxButtons::kOk;
  BoxIcon icon = BoxIcon::kNone;
  bool second_is_default = false;  // Enter presses the second button
};

// How a text file is written: UTF-8 with its mark at the head, as editors of today read it, or the
// bytes of the class file's code page.
enum class TextEncoding { kUtf8, kWindows1252 };

struct FileDialogRequest {
  bool save = false;
  std::string title;              // empty: the dialog's own
  std::string folder;             // where it starts
  std::string filename;           // what it offers
  std::string filter;             // "Data Files (*.tyr)|*.TYR"
  std::string default_extension;  // without the point; added to a name that has none
  bool file_must_exist = false;
  bool overwrite_prompt = false;
  int help_context = 0;
  TextEncoding* encoding = nullptr;  // of a text to be saved: offered, asked, and answered here
};

// What a print dialog asks, and what it answers.
struct PrintRange {
  int from_page = 1;
  int to_page = 1;
  int copies = 1;
};

// One object stands for the whole surroundings: Qt's in the desktop program, a scripted one in
// tests, a mute one on the command line.
class Surroundings {
 public:
  virtual ~Surroundings() = default;

  virtual BoxAnswer MessageBox(const MessageRequest& request) = 0;
  // The chosen path, in file system bytes; nothing when the dialog was cancelled.
  virtual std::optional<std::string> FileDialog(const FileDialogRequest& request) = 0;
  // Runs a loaded Portal until it is unloaded.
  virtual void ShowModal(Portal& portal) = 0;
  // Shows a loaded Portal beside the modal one in front and goes on; shows it again in front when
  // it is there already. Hiding one that is not shown does nothing.
  virtual void ShowBeside(Portal& /*portal*/) {}
  virtual void HideBeside(Portal& /*portal*/) {}
  // How many boxes, dialogs and Portals came up so far; only a script counts them.
  virtual int WindowsShown() const { return 0; }
  virtual void ShowHelp(int context) = 0;
  virtual void Beep() {}  // a key that cannot be taken

  virtual std::string ClipboardText() = 0;
  virtual void SetClipboardText(std::string_view text) = 0;

  // Settings by application name, section and key. Sections are compared without case.
  virtual std::string ReadSetting(std::string_view application, std::string_view section,
                                  std::string_view key, std::string_view default_value) = 0;
  virtual void WriteSetting(std::string_view application, std::string_view section,
                            std::string_view key, std::string_view value) = 0;

  virtual double Now() = 0;     // local date and time as a day serial
  virtual double Random() = 0;  // 0 up to but not 1
  virtual DateOrder ShortDateOrder() = 0;

  virtual std::string
  ProfileFolder() = 0;  // the user's folder for program data, without a final slash
  virtual std::string ProgramFolder() = 0;  // where the sample file lies

  // A surface that nobody sees, with the sheet and the measures of the printer in use.
  virtual std::unique_ptr<PrintTarget> MakePrintBox(bool landscape);
  // Asks for printer, pages and copies; nothing when it was cancelled. The printer stays in use.
  virtual std::optional<PrintRange> PrintDialog(const PrintRange& /*offered*/) {
    return std::nullopt;
  }
  // A job on the printer in use, which EndDoc sends; null when the printer refuses.
  virtual std::unique_ptr<PrintTarget> OpenPrinter(bool landscape, std::string_view title);
  // The same into a PDF file, which is complete once EndDoc has run, or absent.
  virtual std::unique_ptr<PrintTarget> OpenPdf(const std::string& path, bool landscape,
                                               std::string_view title);
  // Asks for the printer and its paper.
  virtual void PrinterSetUpDialog() {}
  // Asks for the font of printed pages, given and taken as name and points; false when cancelled.
  virtual bool FontDialog(std::string& /*name*/, float& /*points*/) { return false; }

  virtual void PumpEvents() = 0;
  virtual void SetWaitCursor(bool on) = 0;
};

Surroundings& Platform();
void SetPlatform(Surroundings* surroundings);

// The usual boxes in one line.
BoxAnswer ShowMessage(std::string_view text, BoxIcon icon = BoxIcon::kNone,
                      std::string_view title = kNoteToTheTeacher);
BoxAnswer Ask(std::string_view text, BoxButtons buttons, BoxIcon icon = BoxIcon::kNone,
              std::string_view title = kNoteToTheTeacher);

}  // namespace tallyroll
