// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/mail/mail_settings.h"

#include "base/code_page.h"
#include "platform/surroundings.h"
#include "store/settings.h"

namespace tallyroll {
namespace {

constexpr std::string_view kMailSection = "startup", kSecurityKey = "MAILSECURITY",
                           kAuthorityKey = "MAILAUTHORITY";
constexpr std::string_view kSecurityNames[] = {"plain", "tls", "starttls"};

}  // namespace

MailSecurity StoredMailSecurity() {
  const std::string stored =
      Platform().ReadSetting(kApplicationKey, kMailSection, kSecurityKey, "");
  for (int i = 0; i < 3; ++i)
    if (stored == kSecurityNames[i]) return static_cast<MailSecurity>(i);
  return MailServer.empty() ? MailSecurity::kStartTls : MailSecurity::kPlain;
}

std::string StoredMailAuthority() {
  return Platform().ReadSetting(kApplicationKey, kMailSection, kAuthorityKey, "");
}

void StoreMailSettings(MailSecurity security, const std::string& authority) {
  Platform().WriteSetting(kApplicationKey, kMailSection, kSecurityKey,
                          kSecurityNames[static_cast<int>(security)]);
  Platform().WriteSetting(kApplicationKey, kMailSection, kAuthorityKey, authority);
}

int UsualMailPort(MailSecurity security) {
  switch (security) {
    case MailSecurity::kPlain:
      return 25;
    case MailSecurity::kTls:
      return 465;
    default:
      return 587;
  }
}

}  // namespace tallyroll
