// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/mail/mail_address.h"

#include <algorithm>

namespace tallyroll {
namespace {

constexpr std::size_t kLongestAddress = 254, kLongestLocalPart = 64, kLongestLabel = 63;

bool IsLetterOrDigit(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

bool MayStandBeforeAt(char c) {
  constexpr std::string_view kOthers = "!#$%&'*+-/=?^_`{|}~.";
  return IsLetterOrDigit(c) || kOthers.find(c) != std::string_view::npos;
}

// Points stand between characters.
bool HasLoosePoint(std::string_view text) {
  return text.starts_with('.') || text.ends_with('.') || text.find("..") != text.npos;
}

bool IsDomain(std::string_view domain) {
  if (domain.empty() || HasLoosePoint(domain)) return false;
  std::size_t label = 0;
  for (std::size_t i = 0; i < domain.size(); ++i) {
    const char c = domain[i];
    label = c == '.' ? 0 : label + 1;
    if (label > kLongestLabel || !(IsLetterOrDigit(c) || c == '.' || c == '-')) return false;
    const bool at_edge = label == 1 || i + 1 == domain.size() || domain[i + 1] == '.';
    if (c == '-' && at_edge) return false;
  }
  return true;
}

}  // namespace

bool IsMailAddress(std::string_view text) {
  const std::size_t at = text.find('@');
  if (at == text.npos || at == 0 || at > kLongestLocalPart || text.size() > kLongestAddress)
    return false;
  const std::string_view local = text.substr(0, at);
  return std::ranges::all_of(local, MayStandBeforeAt) && !HasLoosePoint(local) &&
         IsDomain(text.substr(at + 1));
}

}  // namespace tallyroll
