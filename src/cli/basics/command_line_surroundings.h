// SPDX-License-Identifier: GPL-3.0-or-later
// Surroundings for a run without a teacher: nothing is shown, nothing is remembered.
#pragma once

#include <cstdint>
#include <optional>
#include <random>
#include <string>
#include <string_view>

#include "cli/basics/pdf.h"
#include "platform/surroundings.h"

namespace tallyroll {

// Notes pass with OK. A warning, and a question that nobody can answer, is a refusal, and its text
// is kept. The Password Window gets the password of the command line. Lives as long as it serves.
class CommandLineSurroundings : public Surroundings {
 public:
  CommandLineSurroundings(std::optional<std::string> password, DateOrder date_order);
  ~CommandLineSurroundings() override;
  CommandLineSurroundings(const CommandLineSurroundings&) = delete;
  CommandLineSurroundings& operator=(const CommandLineSurroundings&) = delete;

  // Why the last request was refused, in UTF-8; empty when nothing was.
  const std::string& Refusal() const { return refusal_; }

  BoxAnswer MessageBox(const MessageRequest& request) override;
  std::optional<std::string> FileDialog(const FileDialogRequest&) override { return std::nullopt; }
  void ShowModal(Portal& portal) override;
  void ShowHelp(int) override {}
  std::string ClipboardText() override { return {}; }
  void SetClipboardText(std::string_view) override {}
  std::string ReadSetting(std::string_view, std::string_view, std::string_view,
                          std::string_view default_value) override {
    return std::string(default_value);
  }
  void WriteSetting(std::string_view, std::string_view, std::string_view,
                    std::string_view) override {}
  double Now() override;
  std::optional<double> today;  // instead of the clock's day
  double Random() override;
  // From now on the same numbers come for the same seed.
  void SeedRandom(std::uint32_t seed) { random_.seed(seed); }
  DateOrder ShortDateOrder() override { return date_order_; }
  std::string ProfileFolder() override { return {}; }
  std::string ProgramFolder() override { return {}; }
  std::unique_ptr<PrintTarget> MakePrintBox(bool landscape) override {
    return MakePaperBox(landscape);
  }
  void PumpEvents() override {}
  void SetWaitCursor(bool) override {}

 private:
  std::optional<std::string> password_;  // UTF-8, as typed
  DateOrder date_order_;
  std::mt19937 random_;  // seeded from the clock
  std::string refusal_;
};

}  // namespace tallyroll
