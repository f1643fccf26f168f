// SPDX-License-Identifier: GPL-3.0-or-later
// Surroundings without a screen: answers come from a script, settings and clipboard are memory.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "platform/fixed_print_target.h"
#include "platform/portal_driver.h"
#include "platform/surroundings.h"

namespace tallyroll {

// A box that the script did not expect, and an answer that was never asked for, are complaints.
class HeadlessSurroundings : public Surroundings {
 public:
  // The next message box must have this text; it is answered so.
  void ExpectBox(std::string text, BoxAnswer answer = BoxAnswer::kOk);
  // The next file dialog gives this path; nothing is Cancel.
  void ExpectFileDialog(std::optional<std::string> path);
  // The next Portal shown must be this one; `work` does what the teacher does in it. A Portal that
  // is still open afterwards is a complaint and is taken down.
  void ExpectPortal(std::string name, std::function<void(PortalDriver&)> work);

  // What went against the script, and what of it is left over. Empty when all went as told.
  std::vector<std::string> Complaints() const;

  BoxAnswer MessageBox(const MessageRequest& request) override;
  std::optional<std::string> FileDialog(const FileDialogRequest& request) override;
  void ShowModal(Portal& portal) override;
  void ShowBeside(Portal& portal) override;
  void HideBeside(Portal& portal) override;
  // The Portal of that name that stands beside; null when none does.
  Portal* PortalBeside(std::string_view name) const;
  int WindowsShown() const override { return windows_shown_; }
  void ShowHelp(int context) override { help_shown = context; }
  void Beep() override { ++beeps; }
  std::string ClipboardText() override { return clipboard; }
  void SetClipboardText(std::string_view text) override { clipboard = text; }
  std::string ReadSetting(std::string_view application, std::string_view section,
                          std::string_view key, std::string_view default_value) override;
  void WriteSetting(std::string_view application, std::string_view section, std::string_view key,
                    std::string_view value) override;
  double Now() override { return now; }
  double Random() override;
  DateOrder ShortDateOrder() override { return date_order; }
  std::string ProfileFolder() override { return profile_folder; }
  std::string ProgramFolder() override { return program_folder; }
  std::unique_ptr<PrintTarget> MakePrintBox(bool landscape) override;
  std::optional<PrintRange> PrintDialog(const PrintRange& offered) override;
  std::unique_ptr<PrintTarget> OpenPrinter(bool landscape, std::string_view title) override;
  std::unique_ptr<PrintTarget> OpenPdf(const std::string& path, bool landscape,
                                       std::string_view title) override;
  void PrinterSetUpDialog() override { ++printer_set_ups; }
  bool FontDialog(std::string& name, float& points) override {
    if (!font_answer) return false;
    std::tie(name, points) = *font_answer;
    return true;
  }
  void PumpEvents() override {
    ++pumped;
    if (on_pump) on_pump();
  }
  void SetWaitCursor(bool on) override { wait_cursor = on; }

  std::vector<MessageRequest> boxes;            // every box that was shown
  std::vector<FileDialogRequest> file_dialogs;  // every dialog that was shown
  std::map<std::string, std::string> settings;  // "APP/section/KEY", the section in lower case
  std::string clipboard;
  std::deque<double> random_numbers;  // what Random gives next; 0 when empty
  double now = 46266;                 // 1 September 2026
  DateOrder date_order = DateOrder::kMonthFirst;
  std::string profile_folder;
  std::string program_folder;
  std::function<void()> on_pump;                          // what happens while events are pumped
  std::optional<PrintRange> print_answer = PrintRange();  // of the next print dialogs
  std::vector<PrintRange> print_dialogs;                  // what each offered
  std::vector<std::shared_ptr<PrintedJob>> print_jobs;    // every printer and PDF that was opened
  std::optional<TextEncoding> encoding_answer;            // of the next dialogs that ask for one
  bool printer_refuses = false;
  int printer_set_ups = 0;
  std::optional<std::pair<std::string, float>> font_answer;  // of the next font dialogs
  int help_shown = -1;
  int beeps = 0;
  int pumped = 0;
  bool wait_cursor = false;

 private:
  struct ScriptedBox {
    std::string text;
    BoxAnswer answer;
  };
  struct ScriptedPortal {
    std::string name;
    std::function<void(PortalDriver&)> work;
  };
  int windows_shown_ = 0;
  std::deque<ScriptedBox> scripted_boxes_;
  std::deque<std::optional<std::string>> scripted_dialogs_;
  std::deque<ScriptedPortal> scripted_portals_;
  std::vector<Portal*> beside_;
  std::vector<std::string> complaints_;
};

}  // namespace tallyroll
