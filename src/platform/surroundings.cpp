// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/surroundings.h"

#include <cassert>

#include "platform/class_window.h"
#include "platform/print_target.h"

namespace tallyroll {
namespace {

Surroundings* current_surroundings = nullptr;
ClassWindowCalls no_window;
ClassWindowCalls* current_window = &no_window;

}  // namespace

Surroundings& Platform() {
  assert(current_surroundings);
  return *current_surroundings;
}

void SetPlatform(Surroundings* surroundings) {
  current_surroundings = surroundings;
}

ClassWindowCalls& ClassWindow() {
  return *current_window;
}

void SetClassWindow(ClassWindowCalls* window) {
  current_window = window ? window : &no_window;
}

std::unique_ptr<PrintTarget> Surroundings::MakePrintBox(bool /*landscape*/) {
  return nullptr;
}

std::unique_ptr<PrintTarget> Surroundings::OpenPrinter(bool /*landscape*/,
                                                       std::string_view /*title*/) {
  return nullptr;
}

std::unique_ptr<PrintTarget> Surroundings::OpenPdf(const std::string& /*path*/, bool /*landscape*/,
                                                   std::string_view /*title*/) {
  return nullptr;
}

BoxAnswer ShowMessage(std::string_view text, BoxIcon icon, std::string_view title) {
  return Ask(text, BoxButtons::kOk, icon, title);
}

BoxAnswer Ask(std::string_view text, BoxButtons buttons, BoxIcon icon, std::string_view title) {
  MessageRequest request;
  request.text = text;
  request.title = title;
  request.buttons = buttons;
  request.icon = icon;
  return Platform().MessageBox(request);
}

}  // namespace tallyroll
