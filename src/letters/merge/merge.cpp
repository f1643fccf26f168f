// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/merge/merge.h"

#include <algorithm>
#include <string_view>

#include "base/code_page.h"
#include "base/number_text.h"
#include "letters/merge/field_codes.h"
#include "store/program_state.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

constexpr std::size_t kLongestCode = 40;

// A code is plain ASCII, so nothing else has a case to be overlooked.
std::u16string WithoutCase(std::u16string_view text) {
  std::u16string lowered(text);
  for (char16_t& unit : lowered)
    if (unit >= u'A' && unit <= u'Z') unit += u'a' - u'A';
  return lowered;
}

std::u16string Searched(std::string_view code) {
  return WithoutCase(Utf16FromCodePage(code));
}

// As it will stand in the letter: a line end is one unit.
std::u16string ValueText(const std::string& value) {
  return PlainText(RichTextOf(Utf16FromCodePage(value)));
}

std::string NameOfStudent(i16 student) {
  return PlainName(Current().Students[static_cast<std::size_t>(student)]);
}

std::string EndlessText(const FieldCode& code, i16 student) {
  return "The letter for " + NameOfStudent(student) + " cannot be merged: the value of " +
         std::string(code.caption) + " holds this code itself.";
}

// The letter, and beside it its plain text without case, in which codes are looked for.
struct LetterInWork {
  RichText text;
  std::u16string searched;

  // Searching goes on where a code could begin that was not there before: that is what a search
  // from the start would find.
  void Replace(std::u16string_view code, std::u16string_view value) {
    const std::u16string plain = WithoutCase(value);
    std::size_t at = searched.find(code);
    while (at != searched.npos) {
      ReplaceText(text, at, code.size(), value);
      searched.replace(at, code.size(), plain);
      at = searched.find(code, at - std::min(at, code.size() - 1));
    }
  }
};

bool IsCodeUnit(char16_t unit) {
  constexpr std::u16string_view kSigns = u" '\u2019-_.#";
  if (unit < 0x80 && unit >= u'0' && unit <= u'9') return true;
  const char16_t lower = unit >= u'A' && unit <= u'Z' ? unit + 32 : unit;
  return (lower >= u'a' && lower <= u'z') || unit >= 0xC0 || kSigns.find(unit) != kSigns.npos;
}

// The end of what looks like a code at `at`: letters between angle brackets.
std::size_t EndOfCode(std::u16string_view text, std::size_t at) {
  const std::size_t close = text.find(u'>', at);
  if (close == text.npos || close - at < 2 || close - at > kLongestCode) return at;
  const std::u16string_view inside = text.substr(at + 1, close - at - 1);
  const bool digit = inside.front() >= u'0' && inside.front() <= u'9';
  const bool fits = std::all_of(inside.begin(), inside.end(), IsCodeUnit);
  return fits && !digit && inside.front() != u' ' ? close + 1 : at;
}

bool IsKnown(std::u16string_view code) {
  const std::u16string plain = WithoutCase(code);
  return std::any_of(FieldCodes().begin(), FieldCodes().end(),
                     [&](const FieldCode& known) { return Searched(known.code) == plain; });
}

// Some names, and how many more.
std::string NamesText(const std::vector<i16>& students) {
  constexpr std::size_t kNamed = 5;
  std::string names;
  for (std::size_t i = 0; i < std::min(kNamed, students.size()); ++i)
    names += (i == 0 ? "" : "; ") + NameOfStudent(students[i]);
  if (students.size() > kNamed)
    names += " and " + PlainNumberText(static_cast<int>(students.size() - kNamed)) + " more";
  return names;
}

}  // namespace

MergedLetter MergeLetter(const RichText& letter, i16 student) {
  LetterInWork work = {letter, WithoutCase(PlainText(letter))};
  for (const FieldCode& code : FieldCodes()) {
    const std::u16string searched = Searched(code.code);
    if (work.searched.find(searched) == std::u16string::npos) continue;
    const std::u16string value = ValueText(FieldValue(code, student));
    if (WithoutCase(value).find(searched) != std::u16string::npos)
      return {letter, EndlessText(code, student)};
    work.Replace(searched, value);
  }
  return {std::move(work.text), {}};
}

std::vector<std::string> UnknownCodes(const RichText& letter) {
  const std::u16string plain = PlainText(letter);
  std::vector<std::string> unknown;
  for (std::size_t at = plain.find(u'<'); at != plain.npos; at = plain.find(u'<', at + 1)) {
    const std::u16string_view code =
        std::u16string_view(plain).substr(at, EndOfCode(plain, at) - at);
    if (code.empty() || IsKnown(code)) continue;
    std::string shown = PathForDisplay(Utf8FromUtf16(code));
    if (std::find(unknown.begin(), unknown.end(), shown) == unknown.end())
      unknown.push_back(std::move(shown));
  }
  return unknown;
}

std::vector<std::string> EmptyCodes(const RichText& letter, i16 student) {
  const std::u16string plain = WithoutCase(PlainText(letter));
  std::vector<std::string> empty;
  for (const FieldCode& code : FieldCodes())
    if (plain.find(Searched(code.code)) != plain.npos && FieldValue(code, student).empty())
      empty.emplace_back(code.caption);
  return empty;
}

std::vector<std::string> LetterWarnings(const RichText& letter, const std::vector<i16>& students) {
  std::vector<std::string> lines;
  for (const std::string& code : UnknownCodes(letter))
    lines.push_back(code + " is no code: it would stand in the letter as it is.");
  const std::u16string plain = WithoutCase(PlainText(letter));
  for (const FieldCode& code : FieldCodes()) {
    if (plain.find(Searched(code.code)) == plain.npos) continue;
    std::vector<i16> without;
    for (const i16 student : students)
      if (FieldValue(code, student).empty()) without.push_back(student);
    if (!without.empty())
      lines.push_back(std::string(code.caption) + " is empty for " + NamesText(without) + ".");
  }
  return lines;
}

}  // namespace tallyroll
