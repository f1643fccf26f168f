// SPDX-License-Identifier: GPL-3.0-or-later
#include "post/curl_mail_sender.h"

#include <algorithm>
#include <cstring>

#include "base/number_text.h"
#include "post/curl_calls.h"
#include "post/mail_exchange.h"

namespace tallyroll {
namespace {

constexpr long kConnectSeconds = 30, kReplySeconds = 120;

// What the callbacks of one message share.
struct MailInWork {
  const MailToSend& mail;
  const MailHooks& hooks;
  MailExchange exchange;
  std::size_t read = 0;
  bool ended = false;  // by the user
};

std::size_t ReadText(char* buffer, std::size_t size, std::size_t count, void* user) {
  auto& work = *static_cast<MailInWork*>(user);
  if (!work.exchange.TextBegun()) {
    if (!work.hooks.before_text()) return CURL_READFUNC_ABORT;
    work.exchange.TextBegins();
  }
  const std::size_t length = std::min(size * count, work.mail.bytes.size() - work.read);
  work.mail.bytes.copy(buffer, length, work.read);
  work.read += length;
  if (work.read == work.mail.bytes.size()) work.exchange.TextEnds();
  return length;
}

// Nothing of it is written anywhere: the login is among it.
int HearBothSides(CURL*, curl_infotype type, char* data, std::size_t size, void* user) {
  MailExchange& exchange = static_cast<MailInWork*>(user)->exchange;
  if (type == CURLINFO_HEADER_OUT) exchange.Said({data, size});
  if (type == CURLINFO_HEADER_IN) exchange.Heard({data, size});
  return 0;
}

int AskWhetherItGoesOn(void* user, curl_off_t, curl_off_t, curl_off_t, curl_off_t) {
  auto& work = *static_cast<MailInWork*>(user);
  work.ended = work.ended || !work.hooks.goes_on();
  return work.ended ? 1 : 0;
}

// What failed, to somebody who has never heard of the library.
std::string InWords(const CurlCalls& curl, CURLcode code, const MailAccount& account,
                    const char* detail) {
  switch (code) {
    case CURLE_COULDNT_RESOLVE_HOST:
      return "The server's name " + account.host + " couldn't be found.";
    case CURLE_COULDNT_CONNECT:
      return "The server " + account.host + " can't be reached at port " +
             PlainNumberText(account.port) + ".";
    case CURLE_OPERATION_TIMEDOUT:
      return "The server " + account.host + " didn't answer in time.";
    case CURLE_SEND_ERROR:
    case CURLE_RECV_ERROR:
    case CURLE_GOT_NOTHING:
      return "The connection to the server " + account.host + " was lost.";
    case CURLE_USE_SSL_FAILED:
      return "The server " + account.host +
             " doesn't offer STARTTLS. Nothing was sent, since it would go unprotected.";
    case CURLE_PEER_FAILED_VERIFICATION:
    case CURLE_SSL_CACERT_BADFILE:
      return "The certificate of the server " + account.host + " is not trusted: " + detail;
    case CURLE_LOGIN_DENIED:
      return "The server " + account.host + " doesn't accept the user name and the password.";
    default:
      return *detail ? detail : curl.easy_strerror(code);
  }
}

class CurlMailSender : public MailSender {
 public:
  explicit CurlMailSender(const MailAccount& account) : account_(account) {
    loaded_ = LoadCurl(curl_);
    if (!loaded_) return;
    curl_.global_init(CURL_GLOBAL_DEFAULT);
    handle_ = curl_.easy_init();
    if (handle_) SetUp();
  }
  ~CurlMailSender() override {
    if (loaded_) {
      curl_.slist_free_all(to_);
      curl_.easy_cleanup(handle_);
    }
    std::ranges::fill(account_.password, '\0');
  }
  CurlMailSender(const CurlMailSender&) = delete;
  CurlMailSender& operator=(const CurlMailSender&) = delete;

  MailResult Send(const MailToSend& mail, const MailHooks& hooks) override {
    if (!loaded_)
      return {MailOutcome::kStopped, "The library for mail (libcurl) is not installed."};
    if (!handle_) return {MailOutcome::kStopped, "The connection can't be prepared."};
    MailInWork work{mail, hooks, {}};
    Address(mail);
    Set(CURLOPT_READDATA, &work);
    Set(CURLOPT_DEBUGDATA, &work);
    Set(CURLOPT_XFERINFODATA, &work);
    detail_[0] = 0;
    const CURLcode code = curl_.easy_perform(handle_);
    if (work.ended && !work.exchange.MayHaveGone()) return {MailOutcome::kStopped, "Cancelled"};
    return work.exchange.Result(code == CURLE_OK ? "" : InWords(curl_, code, account_, detail_));
  }

 private:
  template <typename V>
  void Set(CURLoption option, V value) {
    curl_.easy_setopt(handle_, option, value);
  }

  void SetUp() {
    const bool v6 = account_.host.find(':') != std::string::npos;
    const std::string host = v6 ? "[" + account_.host + "]" : account_.host;
    const bool tls = account_.security == MailSecurity::kTls;
    const std::string url =
        (tls ? "smtps://" : "smtp://") + host + ":" + PlainNumberText(account_.port);
    Set(CURLOPT_URL, url.c_str());
    Set(CURLOPT_PROTOCOLS_STR, "smtp,smtps");
    Set(CURLOPT_PROXY, "");
    Set(CURLOPT_NOSIGNAL, 1L);
    Set(CURLOPT_USE_SSL,
        static_cast<long>(account_.security == MailSecurity::kPlain ? CURLUSESSL_NONE
                                                                    : CURLUSESSL_ALL));
    Set(CURLOPT_SSLVERSION, static_cast<long>(CURL_SSLVERSION_TLSv1_2));
    Set(CURLOPT_SSL_VERIFYPEER, 1L);
    Set(CURLOPT_SSL_VERIFYHOST, 2L);
    if (!account_.authority.empty()) Set(CURLOPT_CAINFO, account_.authority.c_str());
    if (!account_.user.empty()) {
      Set(CURLOPT_USERNAME, account_.user.c_str());
      Set(CURLOPT_PASSWORD, account_.password.c_str());
    }
    Set(CURLOPT_CONNECTTIMEOUT, kConnectSeconds);
    Set(CURLOPT_SERVER_RESPONSE_TIMEOUT, kReplySeconds);
    Set(CURLOPT_ERRORBUFFER, detail_);
    Set(CURLOPT_UPLOAD, 1L);
    Set(CURLOPT_READFUNCTION, ReadText);
    Set(CURLOPT_VERBOSE, 1L);
    Set(CURLOPT_DEBUGFUNCTION, HearBothSides);
    Set(CURLOPT_NOPROGRESS, 0L);
    Set(CURLOPT_XFERINFOFUNCTION, AskWhetherItGoesOn);
  }

  void Address(const MailToSend& mail) {
    const std::string from = "<" + mail.from + ">", to = "<" + mail.to + ">";
    curl_.slist_free_all(to_);
    to_ = curl_.slist_append(nullptr, to.c_str());
    Set(CURLOPT_MAIL_FROM, from.c_str());
    Set(CURLOPT_MAIL_RCPT, to_);
    Set(CURLOPT_INFILESIZE_LARGE, static_cast<curl_off_t>(mail.bytes.size()));
  }

  MailAccount account_;
  CurlCalls curl_;
  bool loaded_ = false;
  CURL* handle_ = nullptr;
  curl_slist* to_ = nullptr;
  char detail_[CURL_ERROR_SIZE] = {};
};

}  // namespace

std::unique_ptr<MailSender> MakeCurlMailSender(const MailAccount& account) {
  return std::make_unique<CurlMailSender>(account);
}

}  // namespace tallyroll
