// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/mail/mail_host.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/text.h"

namespace tallyroll {
namespace {

constexpr double kLastPort = 65535;

int PortOf(std::string_view text) {
  const bool digits = !text.empty() && text.find_first_not_of("0123456789") == text.npos;
  const double port = digits ? LeadingNumber(text) : 0;
  return port >= 1 && port <= kLastPort ? static_cast<int>(port) : 0;
}

}  // namespace

MailHost MailHostOf(std::string_view text, int usual_port) {
  text = Trim(text);
  if (text.starts_with('[')) {
    const std::size_t end = std::min(text.find(']'), text.size());
    const std::string_view behind = text.substr(std::min(end + 1, text.size()));
    const int port = behind.empty() ? usual_port : PortOf(behind.substr(1));
    return {std::string(text.substr(1, end - 1)), port};
  }
  const std::size_t colon = text.find(':');
  if (colon == std::string_view::npos) return {std::string(text), usual_port};
  if (text.find(':', colon + 1) != std::string_view::npos) return {std::string(text), usual_port};
  return {std::string(Trim(text.substr(0, colon))), PortOf(Trim(text.substr(colon + 1)))};
}

bool IsHostName(std::string_view name) {
  constexpr std::string_view kOthers = ".-:_";
  const auto fits = [kOthers](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           kOthers.find(c) != std::string_view::npos;
  };
  return !name.empty() && !name.starts_with('-') && std::ranges::all_of(name, fits);
}

bool IsLoopback(std::string_view host) {
  return LowerCase(host) == "localhost" || host == "::1" || host.starts_with("127.");
}

}  // namespace tallyroll
