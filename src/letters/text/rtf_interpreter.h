// SPDX-License-Identifier: GPL-3.0-or-later
// What the words of a rich text file mean. Only the reader and its tables of words know it.
#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "letters/text/code_page_bytes.h"
#include "letters/text/rtf_reader.h"
#include "letters/text/rtf_story.h"
#include "letters/text/rtf_tokens.h"

namespace tallyroll {

// Where the text of a group goes.
enum class RtfPlace { kLetter, kNowhere, kFonts, kColors, kDefaults, kDrawing };

// Fonts and colours stand by their number, so that a group is entered quickly.
struct RtfCharacter {
  int font = -1;  // -1: the letter's own
  int half_points = 24;
  int color = 0;
  bool bold = false, italic = false, underline = false, strike = false;
  bool hidden = false;
  TextPlace place = TextPlace::kBase;

  friend bool operator==(const RtfCharacter&, const RtfCharacter&) = default;
};

struct RtfGroup {
  RtfPlace place = RtfPlace::kLetter;
  RtfCharacter character;
  ParagraphStyle paragraph;
  TabAlign tab_align = TabAlign::kLeft;  // of the tab stop that comes next
  bool in_table = false;
  int fallbacks = 1;  // what stands behind a \u for readers that do not know it
  bool in_object = false;
  bool opens_story = false;  // it ends a story of its own
  bool opens_drawing = false;
  bool ansi_half = false;  // its first group says the same as its second in fewer characters
};

struct RtfFont {
  std::u16string name;
  int page = 0;  // 0: that of the file
};

// What was met that a letter cannot hold.
struct RtfCounts {
  int pictures = 0, tables = 0, fields = 0, objects = 0, comments = 0, drawings = 0;
  int footnotes = 0, text_boxes = 0, headers = 0, footers = 0;
  bool hidden = false;
};

enum class RtfAside { kNone, kHeader, kFooter, kFootnote, kTextBox };

struct RtfInterpreter {
  explicit RtfInterpreter(std::string_view bytes) : tokens(bytes) {}

  RtfReading Read();

  // For the tables of words.
  RtfGroup& Group() { return groups.back(); }
  void AppendUnits(std::u16string_view units);
  void EndParagraph();
  void EndRow();
  void StartStory(RtfAside aside);
  TextStyle StyleOf(const RtfCharacter& character) const;
  TextStyle Mark() const { return StyleOf(groups.back().character); }

  RtfTokens tokens;
  std::vector<RtfGroup> groups;
  std::map<int, RtfFont> fonts;
  std::vector<std::int32_t> colors;
  int file_page = kWesternPage;
  int default_font = -1;
  RtfCharacter default_character;
  ParagraphStyle last_paragraph;  // in force at the end
  int font_in_table = -1;
  std::int32_t color_in_table = kAutomaticColor;
  std::vector<int> cell_edges;  // of the row in work
  bool row_before = false;      // the paragraph before was a row
  bool section_begins = false;
  RtfCounts counts;
  int to_skip = 0;  // of a fallback

  struct OpenStory {
    RtfStory story;
    RtfAside aside = RtfAside::kNone;
  };
  std::vector<OpenStory> stories = std::vector<OpenStory>(1);
  RtfStory& Story() { return stories.back().story; }

 private:
  bool Begin();
  void Take(const RtfToken& token);
  void Open();
  void Close();
  void TakeWord(const RtfToken& token);
  void TakeSymbol(char symbol);
  void TakeBytes(const RtfToken& token);
  bool Skips(const RtfToken& token);
  void Flush();
  void AppendFontBytes();
  void AppendFontUnits(std::u16string_view units);
  void AppendColor();
  int PageInForce() const;
  void EndStory();
  void SetAside(RtfAside aside, std::vector<Paragraph> paragraphs);
  RtfReading Finished();

  std::string bytes_;  // of text in one code page, not yet decoded
  CodePageBytes decoder_;
  bool star_ = false;  // the next word may be left out with its group where it is not known
  bool brace_before_ = false;
  std::vector<int> drawings_before_;  // what was met when each open drawing began
  std::vector<Paragraph> headers_, behind_;
  mutable RtfCharacter styled_;  // whose style is style_
  mutable TextStyle style_;
  mutable bool has_style_ = false;
};

using RtfAction = void (*)(RtfInterpreter&, const RtfToken&);
using RtfWords = std::unordered_map<std::string_view, RtfAction>;

const RtfWords& CharacterWords();
const RtfWords& ParagraphWords();
const RtfWords& PlaceWords();    // words that say where the text of their group goes
const RtfWords& StarredWords();  // those of them that may stand behind a star

}  // namespace tallyroll
