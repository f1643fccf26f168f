// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/text/letter_file.h"

#include <optional>
#include <utility>

#include "base/code_page.h"
#include "base/text.h"
#include "letters/text/rtf_reader.h"
#include "letters/text/rtf_writer.h"
#include "store/safe_file.h"

namespace tallyroll {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::size_t kLargestLetter = std::size_t{64} << 20;
constexpr const char* kPlainFont = "Courier New";

// UTF-8 with or without its mark, otherwise bytes of the code page.
std::u16string TextOfFile(std::string_view bytes) {
  if (bytes.starts_with(kUtf8Mark)) return Utf16FromUtf8(bytes.substr(kUtf8Mark.size()));
  if (CodePageTextFromUtf8(bytes)) return Utf16FromUtf8(bytes);
  return Utf16FromCodePage(bytes);
}

// A form feed begins a page; the line end before it is that of the page before.
RichText PlainLetter(std::string_view bytes) {
  TextStyle style;
  style.font = kPlainFont;
  const std::u16string text = TextOfFile(bytes);
  std::size_t at = text.find(u'\f');
  RichText letter = RichTextOf(std::u16string_view(text).substr(0, at), style);
  std::vector<Paragraph>& all = letter.paragraphs;
  while (at != text.npos) {
    const std::size_t next = text.find(u'\f', at + 1);
    RichText page = RichTextOf(std::u16string_view(text).substr(at + 1, next - at - 1), style);
    page.paragraphs.front().style.page_break_before = true;
    if (all.back().runs.empty() && all.size() > 1 && !all.back().style.page_break_before)
      all.pop_back();
    all.insert(all.end(), page.paragraphs.begin(), page.paragraphs.end());
    at = next;
  }
  return letter;
}

// The bytes of the code page; nothing where a character is lacking there, or where the bytes would
// be taken for UTF-8 when they are read.
std::optional<std::string> CodePageBytesOf(std::u16string_view text) {
  std::string bytes;
  for (const char16_t unit : text) {
    const auto byte = CodePageOf(unit);
    if (!byte) return std::nullopt;
    bytes += static_cast<char>(*byte);
  }
  if (TextOfFile(bytes) != text) return std::nullopt;
  return bytes;
}

}  // namespace

bool IsRichTextFile(std::string_view path) {
  constexpr std::string_view kExtension = ".RTF";
  return path.size() >= kExtension.size() &&
         UpperCase(path.substr(path.size() - kExtension.size())) == kExtension;
}

LetterReading ReadLetter(const std::string& path) {
  LetterReading reading;
  FileContents file = ReadWholeFile(path, kLargestLetter);
  reading.error = file.error;
  if (file.error != 0) {
    reading.reason = "the file cannot be read";
  } else if (IsRichTextFile(path)) {
    RtfReading rich = ReadRtf(file.bytes);
    reading.text = std::move(rich.text);
    reading.left_out = std::move(rich.left_out);
    reading.reason = std::move(rich.error);
  } else {
    reading.text = PlainLetter(file.bytes);
  }
  return reading;
}

std::string PlainTextFile(const RichText& text) {
  std::u16string plain;
  for (const Paragraph& paragraph : text.paragraphs) {
    if (paragraph.style.page_break_before) plain += u'\f';
    std::u16string lines = PlainText(paragraph);
    for (std::size_t at = lines.find(u'\n'); at != lines.npos; at = lines.find(u'\n', at + 2))
      lines.replace(at, 1, u"\r\n");
    plain += lines;
    if (&paragraph != &text.paragraphs.back()) plain += u"\r\n";
  }
  const auto bytes = CodePageBytesOf(plain);
  return bytes ? *bytes : std::string(kUtf8Mark) + Utf8FromUtf16(plain);
}

int WriteLetter(const std::string& path, const RichText& text) {
  const std::string bytes = IsRichTextFile(path) ? WriteRtf(text) : PlainTextFile(text);
  return ReplaceFile(path, bytes, OldTail::kDrop);
}

}  // namespace tallyroll
