// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/headless.h"

#include <utility>

#include "base/text.h"

namespace tallyroll {
namespace {

std::string SettingName(std::string_view application, std::string_view section,
                        std::string_view key) {
  return std::string(application) + "/" + LowerCase(section) + "/" + std::string(key);
}

// What a teacher who wants nothing presses.
BoxAnswer Refusal(BoxButtons buttons) {
  switch (buttons) {
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

}  // namespace

void HeadlessSurroundings::ExpectBox(std::string text, BoxAnswer answer) {
  scripted_boxes_.push_back({std::move(text), answer});
}

void HeadlessSurroundings::ExpectFileDialog(std::optional<std::string> path) {
  scripted_dialogs_.push_back(std::move(path));
}

void HeadlessSurroundings::ExpectPortal(std::string name, std::function<void(PortalDriver&)> work) {
  scripted_portals_.push_back({std::move(name), std::move(work)});
}

std::vector<std::string> HeadlessSurroundings::Complaints() const {
  std::vector<std::string> all = complaints_;
  for (const ScriptedBox& box : scripted_boxes_) all.push_back("box never shown: " + box.text);
  for (const auto& dialog : scripted_dialogs_)
    all.push_back("file dialog never shown: " + dialog.value_or("(cancel)"));
  for (const ScriptedPortal& portal : scripted_portals_)
    all.push_back("portal never shown: " + portal.name);
  return all;
}

BoxAnswer HeadlessSurroundings::MessageBox(const MessageRequest& request) {
  ++windows_shown_;
  boxes.push_back(request);
  if (scripted_boxes_.empty()) {
    complaints_.push_back("unexpected box: " + request.text);
    return Refusal(request.buttons);
  }
  const ScriptedBox box = std::move(scripted_boxes_.front());
  scripted_boxes_.pop_front();
  if (box.text != request.text)
    complaints_.push_back("box shown: \"" + request.text + "\", expected: \"" + box.text + "\"");
  return box.answer;
}

std::optional<std::string> HeadlessSurroundings::FileDialog(const FileDialogRequest& request) {
  ++windows_shown_;
  file_dialogs.push_back(request);
  if (scripted_dialogs_.empty()) {
    complaints_.push_back("unexpected file dialog " + request.title);
    return std::nullopt;
  }
  std::optional<std::string> path = std::move(scripted_dialogs_.front());
  scripted_dialogs_.pop_front();
  if (path && request.encoding && encoding_answer) *request.encoding = *encoding_answer;
  return path;
}

void HeadlessSurroundings::ShowModal(Portal& portal) {
  ++windows_shown_;
  if (scripted_portals_.empty()) {
    complaints_.push_back("unexpected portal: " + portal.Name());
    return;
  }
  const ScriptedPortal script = std::move(scripted_portals_.front());
  scripted_portals_.pop_front();
  if (script.name != portal.Name())
    complaints_.push_back("portal shown: " + portal.Name() + ", expected: " + script.name);
  PortalDriver driver(portal);
  if (script.work) script.work(driver);
  for (const std::string& complaint : driver.Complaints())
    complaints_.push_back(portal.Name() + ": " + complaint);
  if (!portal.Unloaded()) complaints_.push_back("portal left open: " + portal.Name());
}

void HeadlessSurroundings::ShowBeside(Portal& portal) {
  HideBeside(portal);
  beside_.push_back(&portal);
}

void HeadlessSurroundings::HideBeside(Portal& portal) {
  std::erase(beside_, &portal);
}

Portal* HeadlessSurroundings::PortalBeside(std::string_view name) const {
  for (Portal* portal : beside_)
    if (portal->Name() == name && !portal->Unloaded()) return portal;
  return nullptr;
}

std::string HeadlessSurroundings::ReadSetting(std::string_view application,
                                              std::string_view section, std::string_view key,
                                              std::string_view default_value) {
  const auto found = settings.find(SettingName(application, section, key));
  return found == settings.end() ? std::string(default_value) : found->second;
}

void HeadlessSurroundings::WriteSetting(std::string_view application, std::string_view section,
                                        std::string_view key, std::string_view value) {
  settings[SettingName(application, section, key)] = value;
}

namespace {

std::unique_ptr<FixedPrintTarget> MakeTarget(FixedPrintTarget::Kind kind, bool landscape) {
  auto target = std::make_unique<FixedPrintTarget>(kind);
  if (!landscape) return target;
  std::swap(target->Width, target->Height);
  std::swap(target->ScaleWidth, target->ScaleHeight);
  return target;
}

}  // namespace

std::unique_ptr<PrintTarget> HeadlessSurroundings::MakePrintBox(bool landscape) {
  return MakeTarget(FixedPrintTarget::Kind::kBox, landscape);
}

std::optional<PrintRange> HeadlessSurroundings::PrintDialog(const PrintRange& offered) {
  ++windows_shown_;
  print_dialogs.push_back(offered);
  return print_answer;
}

std::unique_ptr<PrintTarget> HeadlessSurroundings::OpenPrinter(bool landscape,
                                                               std::string_view title) {
  if (printer_refuses) return nullptr;
  auto target = MakeTarget(FixedPrintTarget::Kind::kPrinter, landscape);
  target->job->title = title;
  target->job->landscape = landscape;
  print_jobs.push_back(target->job);
  return target;
}

std::unique_ptr<PrintTarget> HeadlessSurroundings::OpenPdf(const std::string& path, bool landscape,
                                                           std::string_view title) {
  auto target = OpenPrinter(landscape, title);
  if (target) print_jobs.back()->path = path;
  return target;
}

double HeadlessSurroundings::Random() {
  if (random_numbers.empty()) return 0;
  const double next = random_numbers.front();
  random_numbers.pop_front();
  return next;
}

}  // namespace tallyroll
