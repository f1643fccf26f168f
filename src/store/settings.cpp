// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/settings.h"

#include <cmath>

#include "base/number_text.h"
#include "base/run_time_error.h"
#include "platform/surroundings.h"
#include "store/program_state.h"

namespace tallyroll {

std::array<std::string, 5> RecentFiles;
std::string RememberedFolder;
std::string PrinterFontName = "Times New Roman";
float PrinterFontSize = 10;
std::string SenderAddress;
std::string MailServer;
std::string MarginTop = "-500";
std::string MarginLeft = "-500";
std::string MarginBottom = "-500";
std::string MarginRight = "-500";
TextEncoding SavedTextEncoding = TextEncoding::kUtf8;

namespace {

constexpr std::string_view kStartup = "startup";
constexpr std::string_view kWindows1252 = "windows-1252";
constexpr std::string_view kFileUsed = "FileUsed";
constexpr i16 kDefaultNameMode = 68;

std::string Setting(std::string_view key, std::string_view default_value = {}) {
  return Platform().ReadSetting(kApplicationKey, kStartup, key, default_value);
}

void WriteStartup(std::string_view key, std::string_view value) {
  Platform().WriteSetting(kApplicationKey, kStartup, key, value);
}

std::string RecentKey(std::size_t index) {
  return "File" + PlainNumberText(static_cast<std::int64_t>(index));
}

// The folder of class files that an earlier version used; empty when there was none.
std::string FolderOfEarlierVersion() {
  for (const char* application : {"TALLYRLP7", "TALLYRLW6", "TALLYRLW"}) {
    if (!Platform().ReadSetting(application, kStartup, "VERSION", "").empty()) {
      return Platform().ReadSetting(application, kStartup, "DIRFILE", "");
    }
  }
  return {};
}

// A stored number that is no display mode would leave the class grid without columns.
i16 NameModeFrom(const std::string& text) {
  const double number = LeadingNumber(text);
  for (const i16 mode : {i16{68}, i16{57}, i16{82}, i16{73}}) {
    if (number == mode) return mode;
  }
  return kDefaultNameMode;
}

float FontSizeFrom(const std::string& text) {
  const auto size = static_cast<float>(LeadingNumber(text));
  return std::isfinite(size) ? size : 10;
}

}  // namespace

void LoadProgramSettings() {
  const bool first_run = Setting("VERSION").empty();
  DataFolder = Setting("DIRFILE");
  if (first_run && DataFolder.empty()) DataFolder = FolderOfEarlierVersion();
  RememberedFolder = DataFolder;
  PrinterFontName = Setting("FONT", "Times New Roman");
  PrinterFontSize = FontSizeFrom(Setting("SIZE", "10"));
  SenderAddress = Setting("EMAIL");
  MailServer = Setting("POP");
  NameMode = NameModeFrom(Setting("NAMEID", "68"));
  MarginTop = Setting("MARGINTOP", "-500");
  MarginLeft = Setting("MARGINLEFT", "-500");
  MarginBottom = Setting("MARGINBOTTOM", "-500");
  MarginRight = Setting("MARGINRIGHT", "-500");
  SavedTextEncoding =
      Setting("ENCODING") == kWindows1252 ? TextEncoding::kWindows1252 : TextEncoding::kUtf8;
  for (std::size_t i = 0; i < RecentFiles.size(); ++i) {
    RecentFiles[i] =
        RecentFileOf(Platform().ReadSetting(kApplicationKey, kFileUsed, RecentKey(i), ""));
  }
}

void SaveProgramSettings() {
  for (std::size_t i = 0; i < RecentFiles.size(); ++i) {
    Platform().WriteSetting(kApplicationKey, kFileUsed, RecentKey(i), RecentFiles[i]);
  }
  WriteStartup("DIRFILE", RememberedFolder);
  WriteStartup("FONT", PrinterFontName);
  WriteStartup("SIZE", PlainNumberText(PrinterFontSize));
  WriteStartup("VERSION", "8");
  WriteStartup("MARGINTOP", MarginTop);
  WriteStartup("MARGINLEFT", MarginLeft);
  WriteStartup("MARGINBOTTOM", MarginBottom);
  WriteStartup("MARGINRIGHT", MarginRight);
  WriteStartup("EMAIL", SenderAddress);
  WriteStartup("POP", MailServer);
  WriteStartup("NAMEID", PlainNumberText(NameMode));
}

void SaveTextEncoding() {
  const bool utf8 = SavedTextEncoding == TextEncoding::kUtf8;
  WriteStartup("ENCODING", utf8 ? "utf-8" : kWindows1252);
}

void LoadLetterString() {
  ParseLetterString(Setting("LetterString"), Current());
}

void ParseLetterString(std::string_view text, Class& c) {
  for (Currency& value : c.LetterValues) {
    const std::size_t quote = text.find('\'');
    if (quote == std::string_view::npos) return;
    try {
      value = LeadingCurrency(text.substr(0, quote));
    } catch (const RunTimeError&) {
      return;
    }
    text.remove_prefix(quote + 1);
  }
}

std::string RecentFileOf(std::string_view stored) {
  const bool numbered =
      stored.size() >= 2 && stored[0] >= '0' && stored[0] <= '9' && stored[1] == '.';
  return std::string(numbered ? stored.substr(std::min<std::size_t>(3, stored.size())) : stored);
}

void ResetSettings() {
  RecentFiles.fill("");
  RememberedFolder.clear();
  PrinterFontName = "Times New Roman";
  PrinterFontSize = 10;
  SenderAddress.clear();
  MailServer.clear();
  MarginTop = MarginLeft = MarginBottom = MarginRight = "-500";
  SavedTextEncoding = TextEncoding::kUtf8;
}

}  // namespace tallyroll
