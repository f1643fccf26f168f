// SPDX-License-Identifier: GPL-3.0-or-later
// A run of 200 messages over one connection on loopback, beside bare libcurl that sends the same
// bytes to the same server, and beside what the disk takes to keep a note of each before it goes.
#include <benchmark/benchmark.h>
#include <curl/curl.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <string>
#include <thread>

#include "base/number_text.h"
#include "letters/mail/mail_run.h"
#include "post/curl_mail_sender.h"

namespace {

using namespace tallyroll;

constexpr int kMessages = 200;

// Says yes to everything, one client after the other.
class YesServer {
 public:
  YesServer() : listener_(socket(AF_INET, SOCK_STREAM, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    bind(listener_, reinterpret_cast<sockaddr*>(&address), size);
    listen(listener_, 8);
    getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &size);
    port = ntohs(address.sin_port);
    std::thread([this] {
      for (int client; (client = accept(listener_, nullptr, nullptr)) >= 0;) {
        Serve(client);
        close(client);
      }
    }).detach();
  }
  int port = 0;

 private:
  static void Serve(int client) {
    std::string heard;
    bool text = false;
    char buffer[65536];
    Say(client, "220 hi\r\n");
    for (ssize_t got; (got = read(client, buffer, sizeof buffer)) > 0;) {
      heard.append(buffer, static_cast<std::size_t>(got));
      const std::string_view end = text ? "\r\n.\r\n" : "\r\n";
      if (!heard.ends_with(end)) continue;
      text = !text && heard.starts_with("DATA");
      Say(client, text ? "354 go on\r\n" : "250 ok\r\n");
      if (heard.starts_with("QUIT")) return;
      heard.clear();
    }
  }
  static void Say(int client, std::string_view line) {
    (void)!write(client, line.data(), line.size());
  }

  int listener_;
};

int Port() {
  static const YesServer server;
  return server.port;
}

// As long as a report of twenty grades.
MimeMail Message() {
  std::string text;
  for (int i = 0; i < 20; ++i)
    text += "Fractions           Q1     18 of 20          90 percent\r\n";
  return {"teacher@school.example", "parent@home.example", "Marks", text, {}, {}, {}};
}

std::string MakeFolder() {
  const auto folder =
      std::filesystem::temp_directory_path() / ("mail_bench" + PlainNumberText(getpid()));
  std::filesystem::create_directories(folder);
  return folder.string();
}

void MailRunOf200(benchmark::State& state) {
  const std::string folder = MakeFolder();
  for (auto _ : state) {
    std::filesystem::remove(folder + "/class.tyx");
    MailJournal journal = MailJournal::ToWrite(folder + "/class.TYR");
    std::vector<JournalMail> entries(kMessages);
    journal.Begin(entries);
    std::vector<RunMail> mails;
    for (const JournalMail& entry : entries) mails.push_back({entry, Message()});
    const auto sender = MakeCurlMailSender({"127.0.0.1", Port(), MailSecurity::kPlain, {}, {}, {}});
    const std::string stopped = RunMails(*sender, journal, mails, {}, {});
    if (!stopped.empty() || !journal.fault().empty()) state.SkipWithError("the run stopped");
  }
  std::filesystem::remove_all(folder);
}
BENCHMARK(MailRunOf200)->UseRealTime()->Unit(benchmark::kMillisecond);

// Two pages at the end of a file, on the disk before the next.
void SafeWritesOf200(benchmark::State& state) {
  const std::string folder = MakeFolder();
  const std::string pages(8192, 'x');
  for (auto _ : state) {
    const int file = open((folder + "/notes").c_str(), O_CREAT | O_WRONLY | O_TRUNC, 0600);
    for (int i = 0; i < kMessages; ++i)
      if (write(file, pages.data(), pages.size()) < 0 || fdatasync(file) != 0)
        state.SkipWithError("a note was not kept");
    close(file);
  }
  std::filesystem::remove_all(folder);
}
BENCHMARK(SafeWritesOf200)->UseRealTime()->Unit(benchmark::kMillisecond);

struct Rest {
  std::string_view text;
};

std::size_t Read(char* buffer, std::size_t size, std::size_t count, void* user) {
  auto& rest = *static_cast<Rest*>(user);
  const std::size_t length = std::min(size * count, rest.text.size());
  std::memcpy(buffer, rest.text.data(), length);
  rest.text.remove_prefix(length);
  return length;
}

void BareLibcurlOf200(benchmark::State& state) {
  MimeMail message = Message();
  message.date = "Tue, 01 Sep 2026 08:15:00 +0200";
  message.id = "<1@school.example>";
  const std::string bytes = MimeMessage(message);
  const std::string url = "smtp://127.0.0.1:" + PlainNumberText(Port());
  for (auto _ : state) {
    CURL* curl = curl_easy_init();
    curl_slist* to = curl_slist_append(nullptr, "<parent@home.example>");
    curl_easy_setopt(curl, CURLOPT_URL, url.c_str());
    curl_easy_setopt(curl, CURLOPT_UPLOAD, 1L);
    curl_easy_setopt(curl, CURLOPT_READFUNCTION, Read);
    curl_easy_setopt(curl, CURLOPT_MAIL_FROM, "<teacher@school.example>");
    curl_easy_setopt(curl, CURLOPT_MAIL_RCPT, to);
    for (int i = 0; i < kMessages; ++i) {
      Rest rest{bytes};
      curl_easy_setopt(curl, CURLOPT_READDATA, &rest);
      if (curl_easy_perform(curl) != CURLE_OK) state.SkipWithError("a message did not go");
    }
    curl_slist_free_all(to);
    curl_easy_cleanup(curl);
  }
}
BENCHMARK(BareLibcurlOf200)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
