// SPDX-License-Identifier: GPL-3.0-or-later
// Reading C++ closely enough to tell code from comments and quoted text.
#include "tests/house/source_files.h"
#include "tests/support/source_dir.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace tallyroll {
namespace {

std::string ContentsOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(file), {});
}

bool IsSource(const std::filesystem::path& path) {
  return path.extension() == ".h" || path.extension() == ".cpp";
}

// The length of the comment at the front of the text; 0 when none stands there.
std::size_t CommentLength(std::string_view rest) {
  if (rest.starts_with("//")) return std::min(rest.find('\n'), rest.size());
  if (rest.starts_with("/*")) return std::min(rest.find("*/", 2), rest.size() - 2) + 2;
  return 0;
}

// The length of the quoted text at the front, with its quotes, raw or plain; 0 when none.
std::size_t QuotedLength(std::string_view rest) {
  if (rest.starts_with("R\"")) {
    const std::size_t open = rest.find('(');
    if (open == std::string_view::npos) return rest.size();
    const std::string close = ")" + std::string(rest.substr(2, open - 2)) + "\"";
    return std::min(rest.find(close, open), rest.size() - close.size()) + close.size();
  }
  const char quote = rest.front();
  if (quote != '"' && quote != '\'') return 0;
  std::size_t end = 1;
  while (end < rest.size() && rest[end] != quote && rest[end] != '\n') {
    end += rest[end] == '\\' ? 2 : 1;
  }
  return std::min(end + 1, rest.size());
}

bool IsWordCharacter(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) || c == '_';
}

void AppendBlanked(std::string& code, std::string_view piece) {
  for (const char c : piece) code.push_back(c == '\n' ? '\n' : ' ');
}

}  // namespace

std::vector<SourceFile> SourceFiles(std::string_view below) {
  const std::filesystem::path root = std::filesystem::path(SourceDir()) / below;
  std::vector<SourceFile> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
    if (!entry.is_regular_file() || !IsSource(entry.path())) continue;
    files.push_back(
        {entry.path().lexically_relative(root).generic_string(), ContentsOf(entry.path())});
  }
  std::sort(files.begin(), files.end(),
            [](const SourceFile& a, const SourceFile& b) { return a.path < b.path; });
  return files;
}

std::string_view FolderOf(std::string_view path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string_view::npos ? std::string_view() : path.substr(0, slash);
}

std::string WithoutComments(std::string_view text, Quoted quoted) {
  std::string code;
  while (!text.empty()) {
    if (const std::size_t length = CommentLength(text); length > 0) {
      AppendBlanked(code, text.substr(0, length));
      text.remove_prefix(length);
      continue;
    }
    // Within a number "'" parts its digits; within a word "R" is just a letter.
    const bool within_word = !code.empty() && IsWordCharacter(code.back()) && text.front() != '"';
    if (const std::size_t length = within_word ? 0 : QuotedLength(text); length > 0) {
      const std::string_view piece = text.substr(0, length);
      if (quoted == Quoted::kBlanked) {
        AppendBlanked(code, piece);
      } else {
        code.append(piece);
      }
      text.remove_prefix(length);
      continue;
    }
    code.push_back(text.front());
    text.remove_prefix(1);
  }
  return code;
}

std::vector<std::string_view> LinesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines.push_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

}  // namespace tallyroll
