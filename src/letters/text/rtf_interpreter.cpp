// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/text/rtf_interpreter.h"

#include <algorithm>
#include <utility>

#include "base/text.h"

namespace tallyroll {
namespace {

// No word processor goes beyond some dozens; a file that does is a trap.
constexpr std::size_t kDeepest = 20'000;

bool HasText(const std::vector<Paragraph>& paragraphs) {
  return std::any_of(paragraphs.begin(), paragraphs.end(), [](const Paragraph& paragraph) {
    return PlainText(paragraph).find_first_not_of(u" \t\n") != std::u16string::npos;
  });
}

bool ChangesPageOrStyle(RtfKind kind) {
  return kind != RtfKind::kText && kind != RtfKind::kByte;
}

}  // namespace

RtfReading RtfInterpreter::Read() {
  if (!Begin()) {
    RtfReading reading;
    reading.error = "it does not begin as rich text does";
    return reading;
  }
  std::string error;
  while (!groups.empty()) {
    const RtfToken token = tokens.Next();
    if (token.kind == RtfKind::kEnd) {
      error = tokens.Error().empty() ? "it ends before its last group does" : tokens.Error();
      break;
    }
    if (token.kind == RtfKind::kOpen && groups.size() == kDeepest) {
      error = "its groups stand too deep in one another";
      break;
    }
    Take(token);
  }
  while (!groups.empty()) Close();
  RtfReading reading = Finished();
  reading.error = error;
  return reading;
}

bool RtfInterpreter::Begin() {
  if (tokens.Next().kind != RtfKind::kOpen) return false;
  const RtfToken word = tokens.Next();
  groups.emplace_back();
  return word.kind == RtfKind::kWord && word.text == "rtf";
}

void RtfInterpreter::Take(const RtfToken& token) {
  if (ChangesPageOrStyle(token.kind)) Flush();
  const bool brace = std::exchange(brace_before_, token.kind == RtfKind::kOpen);
  if (token.kind == RtfKind::kOpen) return Open();
  if (token.kind == RtfKind::kClose) return Close();
  if (Skips(token)) return;
  if (token.kind == RtfKind::kSymbol && token.text == "*" && brace) {
    star_ = true;
    return;
  }
  if (token.kind == RtfKind::kWord) return TakeWord(token);
  star_ = false;
  if (token.kind == RtfKind::kSymbol) return TakeSymbol(token.text.front());
  if (token.kind == RtfKind::kText || token.kind == RtfKind::kByte) TakeBytes(token);
}

// A fallback ends with its group at the latest.
bool RtfInterpreter::Skips(const RtfToken& token) {
  if (to_skip == 0 || token.kind == RtfKind::kText) return false;
  --to_skip;
  return true;
}

void RtfInterpreter::Open() {
  to_skip = 0;
  star_ = false;
  const bool first_half = std::exchange(groups.back().ansi_half, false);
  groups.push_back(groups.back());
  groups.back().opens_story = groups.back().opens_drawing = false;
  if (first_half) groups.back().place = RtfPlace::kNowhere;
}

void RtfInterpreter::Close() {
  Flush();
  to_skip = 0;
  star_ = false;
  if (groups.back().opens_story) EndStory();
  if (groups.back().opens_drawing) {
    const int met = counts.pictures + counts.text_boxes;
    if (met == drawings_before_.back()) ++counts.drawings;
    drawings_before_.pop_back();
  }
  last_paragraph = groups.back().paragraph;
  const bool defaults = groups.back().place == RtfPlace::kDefaults;
  const RtfCharacter character = groups.back().character;
  groups.pop_back();
  if (groups.empty() || !defaults || groups.back().place == RtfPlace::kDefaults) return;
  default_character = character;
  groups.back().character = character;
}

void RtfInterpreter::TakeWord(const RtfToken& token) {
  const bool starred = std::exchange(star_, false);
  if (starred) {
    const auto known = StarredWords().find(token.text);
    if (known == StarredWords().end())
      Group().place = RtfPlace::kNowhere;
    else
      known->second(*this, token);
    if (Group().opens_drawing) drawings_before_.push_back(counts.pictures + counts.text_boxes);
    return;
  }
  if (Group().place == RtfPlace::kNowhere && token.text != "uc") {
    if (token.text == "u") to_skip = Group().fallbacks;
    return;
  }
  for (const RtfWords* words : {&CharacterWords(), &ParagraphWords(), &PlaceWords()}) {
    const auto known = words->find(token.text);
    if (known == words->end()) continue;
    known->second(*this, token);
    break;
  }
  if (token.text == "deff") default_character.font = Group().character.font = default_font;
}

void RtfInterpreter::TakeSymbol(char symbol) {
  constexpr char16_t kHardBlank = 0xA0, kSoftHyphen = 0xAD, kHardHyphen = 0x2011;
  if (symbol == '{' || symbol == '}' || symbol == '\\') {
    bytes_ += symbol;
    Flush();
  } else if (symbol == '~') {
    AppendUnits(std::u16string(1, kHardBlank));
  } else if (symbol == '-') {
    AppendUnits(std::u16string(1, kSoftHyphen));
  } else if (symbol == '_') {
    AppendUnits(std::u16string(1, kHardHyphen));
  }
}

void RtfInterpreter::TakeBytes(const RtfToken& token) {
  if (token.kind == RtfKind::kByte) {
    bytes_ += static_cast<char>(token.number);
    return;
  }
  const std::size_t skipped = std::min(token.text.size(), static_cast<std::size_t>(to_skip));
  to_skip -= static_cast<int>(skipped);
  bytes_ += token.text.substr(skipped);
}

int RtfInterpreter::PageInForce() const {
  const int number =
      groups.back().place == RtfPlace::kFonts ? font_in_table : groups.back().character.font;
  const auto font = fonts.find(number);
  return font == fonts.end() || font->second.page == 0 ? file_page : font->second.page;
}

void RtfInterpreter::Flush() {
  if (bytes_.empty()) return;
  const RtfPlace place = groups.back().place;
  if (place == RtfPlace::kLetter) {
    AppendUnits(decoder_.Decode(bytes_, PageInForce()));
  } else if (place == RtfPlace::kFonts) {
    AppendFontBytes();
  } else if (place == RtfPlace::kColors) {
    AppendColor();
  }
  bytes_.clear();
}

void RtfInterpreter::AppendFontBytes() {
  const int page = PageInForce() == kSymbolPage ? kWesternPage : PageInForce();
  AppendFontUnits(decoder_.Decode(bytes_, page));
}

void RtfInterpreter::AppendFontUnits(std::u16string_view units) {
  has_style_ = false;
  std::u16string& name = fonts[font_in_table].name;
  name += units.substr(0, units.find(u';'));
  std::replace_if(
      name.begin(), name.end(), [](char16_t unit) { return unit < u' '; }, u' ');
}

void RtfInterpreter::AppendColor() {
  has_style_ = false;
  for (const char c : bytes_) {
    if (c != ';') continue;
    colors.push_back(color_in_table);
    color_in_table = kAutomaticColor;
  }
}

TextStyle RtfInterpreter::StyleOf(const RtfCharacter& character) const {
  if (has_style_ && character == styled_) return style_;
  TextStyle style;
  const auto font = fonts.find(character.font);
  // The name came in pieces, of which each may end in a blank.
  const std::string name = font == fonts.end() ? std::string() : Utf8FromUtf16(font->second.name);
  if (!Trim(name).empty()) style.font = Trim(name);
  style.half_points = character.half_points;
  style.bold = character.bold;
  style.italic = character.italic;
  style.underline = character.underline;
  style.strike = character.strike;
  style.place = character.place;
  const auto color = static_cast<std::size_t>(std::max(character.color, 0));
  if (color < colors.size()) style.color = colors[color];
  styled_ = character;
  style_ = style;
  has_style_ = true;
  return style;
}

void RtfInterpreter::AppendUnits(std::u16string_view units) {
  if (Group().place == RtfPlace::kFonts) return AppendFontUnits(units);
  if (Group().place != RtfPlace::kLetter || units.empty()) return;
  if (Group().character.hidden) {
    counts.hidden = true;
    return;
  }
  section_begins = false;
  Story().Append(units, Mark());
}

void RtfInterpreter::EndParagraph() {
  if (Group().place != RtfPlace::kLetter) return;
  if (Group().in_table) return AppendUnits(u"\n");
  Story().EndParagraph(Group().paragraph, Mark());
  row_before = false;
}

// The columns stay where they were: each cell but the first begins at a tab stop.
void RtfInterpreter::EndRow() {
  if (Group().place != RtfPlace::kLetter) return;
  ParagraphStyle style;
  for (std::size_t i = 0; i + 1 < cell_edges.size(); ++i)
    if (cell_edges[i] > (style.tabs.empty() ? 0 : style.tabs.back().at))
      style.tabs.push_back({cell_edges[i], TabAlign::kLeft});
  Story().EndRow(style, Mark());
  if (!row_before) ++counts.tables;
  row_before = true;
}

void RtfInterpreter::StartStory(RtfAside aside) {
  Group().place = RtfPlace::kLetter;
  Group().opens_story = true;
  Group().paragraph = {};
  Group().in_table = false;
  stories.emplace_back();
  stories.back().aside = aside;
}

void RtfInterpreter::EndStory() {
  const RtfAside aside = stories.back().aside;
  std::vector<Paragraph> paragraphs = Story().Finish(Group().paragraph, Mark());
  stories.pop_back();
  if (HasText(paragraphs)) SetAside(aside, std::move(paragraphs));
}

void RtfInterpreter::SetAside(RtfAside aside, std::vector<Paragraph> paragraphs) {
  if (aside == RtfAside::kTextBox) {
    ++counts.text_boxes;
    Story().PutBehind(std::move(paragraphs));
    return;
  }
  int& count = aside == RtfAside::kHeader   ? counts.headers
               : aside == RtfAside::kFooter ? counts.footers
                                            : counts.footnotes;
  std::vector<Paragraph>& place = aside == RtfAside::kHeader ? headers_ : behind_;
  // The left and the right page often have the same.
  constexpr std::size_t kFew = 100;
  if (aside != RtfAside::kFootnote && place.size() < kFew &&
      std::search(place.begin(), place.end(), paragraphs.begin(), paragraphs.end()) != place.end())
    return;
  ++count;
  place.insert(place.end(), paragraphs.begin(), paragraphs.end());
}

}  // namespace tallyroll
