// SPDX-License-Identifier: GPL-3.0-or-later
// A letter as plain values: paragraphs of runs. What the rich text box shows, what a merge fills,
// what is read from and written to a file, and what goes to paper.
//
// Its text is Unicode, for a letter may come from any word processor and hold what no class can: it
// is held in units of UTF-16, which are also what the box on the screen counts its places in.
// Lengths are twips, 1/1440 inch.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tallyroll {

enum class TextPlace { kBase, kSuper, kSub };

inline constexpr std::int32_t kAutomaticColor = -1;

struct TextStyle {
  std::string font = "Times New Roman";  // UTF-8
  int half_points = 24;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strike = false;
  std::int32_t color = kAutomaticColor;  // 0xRRGGBB; automatic is that of the paper's text
  TextPlace place = TextPlace::kBase;

  friend bool operator==(const TextStyle&, const TextStyle&) = default;
};

// Text of one style. A tab is '\t', a new line within the paragraph '\n'; no other control
// character stands in a run.
struct TextRun {
  std::u16string text;
  TextStyle style;

  friend bool operator==(const TextRun&, const TextRun&) = default;
};

enum class TextAlign { kLeft, kCenter, kRight, kJustify };
enum class TabAlign { kLeft, kCenter, kRight, kDecimal };
enum class LineRule { kMultiple, kAtLeast, kExactly };

struct TabStop {
  int at = 0;
  TabAlign align = TabAlign::kLeft;

  friend bool operator==(const TabStop&, const TabStop&) = default;
};

struct ParagraphStyle {
  TextAlign align = TextAlign::kLeft;
  int left = 0;  // indents
  int right = 0;
  int first = 0;   // of the first line, from `left`; below zero it hangs out
  int before = 0;  // free above and below
  int after = 0;
  LineRule line_rule = LineRule::kMultiple;
  int line = 240;  // 240ths of a line for a multiple, otherwise twips
  bool page_break_before = false;
  std::vector<TabStop> tabs;  // from left to right; behind the last one every half inch

  friend bool operator==(const ParagraphStyle&, const ParagraphStyle&) = default;
};

struct Paragraph {
  ParagraphStyle style;
  std::vector<TextRun> runs;  // none is empty, and no two neighbours have one style
  TextStyle mark;  // how high an empty paragraph is, and what is typed at the end of another:
                   // then it is the style of the last run

  friend bool operator==(const Paragraph&, const Paragraph&) = default;
};

struct RichText {
  TextStyle base;  // of a paragraph that nothing was said of
  std::vector<Paragraph> paragraphs = std::vector<Paragraph>(1);  // never none

  friend bool operator==(const RichText&, const RichText&) = default;
};

// A text counts its places from 0; the end of a paragraph (but for the last) counts as one unit and
// is '\n' in the plain text, as a new line within a paragraph is.
std::u16string PlainText(const RichText& text);
std::u16string PlainText(const Paragraph& paragraph);
std::size_t LengthOf(const RichText& text);
std::size_t LengthOf(const Paragraph& paragraph);

// A text of one style; '\n', "\r\n" and '\r' end paragraphs.
RichText RichTextOf(std::u16string_view plain, const TextStyle& style = {});

// Puts `by` in the place of `count` units from `at`, in the style of the first unit replaced; with
// none replaced in that of the unit before. What `by` parts by '\n' becomes paragraphs of the
// style of the one it stands in; paragraphs whose ends are replaced become one.
void ReplaceText(RichText& text, std::size_t at, std::size_t count, std::u16string_view by);

// Adds to the end of a paragraph, joining what has one style.
void AppendText(Paragraph& paragraph, std::u16string_view text, const TextStyle& style);

struct TextSearch {
  bool match_case = false;
  bool whole_word = false;  // no letter, digit or underscore stands beside it
};
inline constexpr std::size_t kNoPlace = static_cast<std::size_t>(-1);
// The first place at or behind `from` where `what` stands, through runs and paragraphs alike.
std::size_t FindText(const RichText& text, std::u16string_view what, std::size_t from,
                     const TextSearch& search = {});

// Unicode on its way in and out. Half a surrogate pair alone becomes U+FFFD.
std::u16string Utf16FromCodePage(std::string_view text);
std::u16string Utf16FromUtf8(std::string_view utf8);  // bad bytes become U+FFFD
std::string Utf8FromUtf16(std::u16string_view text);

}  // namespace tallyroll
