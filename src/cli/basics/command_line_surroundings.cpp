// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/basics/command_line_surroundings.h"

#include <ctime>
#include <utility>

#include "base/code_page.h"
#include "platform/portal_driver.h"
#include "store/frmpassword.h"

namespace tallyroll {
namespace {

// Opening asks for nothing but the password.
std::unique_ptr<Portal> MakePasswordPortal(std::string_view name) {
  if (name == "frmpassword") return std::make_unique<frmpassword>();
  return nullptr;
}

}  // namespace

CommandLineSurroundings::CommandLineSurroundings(std::optional<std::string> password,
                                                 DateOrder date_order)
    : password_(std::move(password)),
      date_order_(date_order),
      random_(static_cast<std::mt19937::result_type>(std::time(nullptr))) {
  SetPlatform(this);
  MakePortal = MakePasswordPortal;
}

CommandLineSurroundings::~CommandLineSurroundings() {
  SetPlatform(nullptr);
  MakePortal = nullptr;
}

BoxAnswer CommandLineSurroundings::MessageBox(const MessageRequest& request) {
  const bool note = request.icon == BoxIcon::kInformation || request.icon == BoxIcon::kNone;
  if (request.buttons == BoxButtons::kOk && note) return BoxAnswer::kOk;
  refusal_ = Utf8FromCodePage(request.text);
  switch (request.buttons) {
    case BoxButtons::kOk:
      return BoxAnswer::kOk;
    case BoxButtons::kYesNo:
      return BoxAnswer::kNo;
    case BoxButtons::kOkCancel:
    case BoxButtons::kYesNoCancel:
      break;
  }
  return BoxAnswer::kCancel;
}

void CommandLineSurroundings::ShowModal(Portal& portal) {
  if (!password_) {
    refusal_ = "has a password (give it with --password)";
  } else {
    PortalDriver driver(portal);
    const std::optional<std::string> typed = CodePageFromUtf8(*password_);
    driver.Type("textcontrol3", typed.value_or(""));
    driver.Press("okbt");
    if (!portal.Unloaded()) refusal_ = "has another password";
  }
  portal.Unload();
}

double CommandLineSurroundings::Random() {
  return static_cast<double>(random_()) / (static_cast<double>(std::mt19937::max()) + 1);
}

double CommandLineSurroundings::Now() {
  if (today) return *today;
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  const double day = DateSerial({local.tm_year + 1900, local.tm_mon + 1, local.tm_mday});
  return day + (local.tm_hour * 3600 + local.tm_min * 60 + local.tm_sec) / 86400.0;
}

}  // namespace tallyroll
