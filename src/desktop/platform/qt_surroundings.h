// SPDX-License-Identifier: GPL-3.0-or-later
// The surroundings of the desktop program, by Qt.
#pragma once

#include <QPointer>
#include <QPrinter>
#include <QSettings>
#include <functional>
#include <map>
#include <memory>

#include "platform/print_target.h"
#include "platform/surroundings.h"

namespace tallyroll {

class PortalDialog;

class QtSurroundings : public Surroundings {
 public:
  BoxAnswer MessageBox(const MessageRequest& request) override;
  std::optional<std::string> FileDialog(const FileDialogRequest& request) override;
  void ShowModal(Portal& portal) override;
  void ShowBeside(Portal& portal) override;
  void HideBeside(Portal& portal) override;
  void ShowHelp(int context) override;
  void Beep() override;

  std::string ClipboardText() override;
  void SetClipboardText(std::string_view text) override;

  std::string ReadSetting(std::string_view application, std::string_view section,
                          std::string_view key, std::string_view default_value) override;
  void WriteSetting(std::string_view application, std::string_view section, std::string_view key,
                    std::string_view value) override;

  double Now() override;
  double Random() override;
  DateOrder ShortDateOrder() override;

  std::string ProfileFolder() override;
  std::string ProgramFolder() override;

  std::unique_ptr<PrintTarget> MakePrintBox(bool landscape) override;
  std::optional<PrintRange> PrintDialog(const PrintRange& offered) override;
  std::unique_ptr<PrintTarget> OpenPrinter(bool landscape, std::string_view title) override;
  std::unique_ptr<PrintTarget> OpenPdf(const std::string& path, bool landscape,
                                       std::string_view title) override;
  void PrinterSetUpDialog() override;
  bool FontDialog(std::string& name, float& points) override;

  void PumpEvents() override;
  void SetWaitCursor(bool on) override;

  // Set by the frame, which owns the help window.
  std::function<void(int context)> help_hook;

 private:
  // The printer in use, asked for when it is needed first: that takes a while.
  QPrinter& Printer();
  // Whether the sheet lies across: where the report wants it, and where the teacher set the printer
  // up so.
  bool LiesAcross(bool landscape);

  std::unique_ptr<QPrinter> printer_;
  std::map<Portal*, QPointer<PortalDialog>> beside_;  // a dialog goes with the one below it
  bool waiting_ = false;
  QSettings settings_;  // one for all: each one of them goes to the disk when it goes
};

// Shows in every open Portal what its handler has done so far, before the user looks at anything.
void ShowOpenPortals();

}  // namespace tallyroll
