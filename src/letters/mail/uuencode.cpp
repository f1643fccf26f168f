// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/mail/uuencode.h"

#include <filesystem>

#include "letters/mail/mail_limits.h"
#include "letters/mail/one_line.h"
#include "store/safe_file.h"

namespace tallyroll {
namespace {

constexpr std::size_t kBytesALine = 45;
constexpr char kZeroSextet = '`';  // a blank at a line's end would get lost on the way

char UuCharacter(unsigned bits) {
  return (bits & 63) == 0 ? kZeroSextet : static_cast<char>((bits & 63) + 32);
}

// What is missing of the last three bytes are blanks; the line's length tells them from the file's.
void AddUuLine(std::string_view bytes, std::string& text) {
  text += static_cast<char>(bytes.size() + 32);
  for (std::size_t at = 0; at < bytes.size(); at += 3) {
    const auto byte = [&](std::size_t i) -> unsigned {
      return at + i < bytes.size() ? static_cast<unsigned char>(bytes[at + i]) : ' ';
    };
    const unsigned bits = byte(0) << 16 | byte(1) << 8 | byte(2);
    for (const int shift : {18, 12, 6, 0}) text += UuCharacter(bits >> shift);
  }
  text += "\r\n";
}

}  // namespace

// The last line takes what is left behind the full ones, be it nothing.
std::string Uuencode(std::string_view name, std::string_view bytes) {
  std::string text = "begin 664 " + OneLine(name) + "\r\n";
  text.reserve(text.size() + bytes.size() / kBytesALine * 63 + 80);
  for (; bytes.size() >= kBytesALine; bytes.remove_prefix(kBytesALine))
    AddUuLine(bytes.substr(0, kBytesALine), text);
  AddUuLine(bytes, text);
  return text + kZeroSextet + "\r\nend\r\n";
}

UuencodedText UuencodeFile(const std::string& path) {
  const FileContents file = ReadWholeFile(path, kLargestAttachment);
  if (file.error != 0) return {file.error, {}};
  return {0, Uuencode(std::filesystem::path(path).filename().string(), file.bytes)};
}

}  // namespace tallyroll
