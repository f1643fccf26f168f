// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/text/rtf_reader.h"

#include <utility>

#include "base/number_text.h"
#include "letters/text/rtf_interpreter.h"

namespace tallyroll {
namespace {

constexpr char16_t kLoneHalf = 0xFFFD;

bool IsHalf(char16_t unit) {
  return unit >= 0xD800 && unit < 0xE000;
}

bool IsPair(std::u16string_view units) {
  return units.size() > 1 && units[0] >= 0xD800 && units[0] < 0xDC00 && units[1] >= 0xDC00 &&
         units[1] < 0xE000;
}

void MendHalves(std::u16string& text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!IsHalf(text[i])) continue;
    if (IsPair(std::u16string_view(text).substr(i)))
      ++i;
    else
      text[i] = kLoneHalf;
  }
}

struct RtfCountWords {
  int RtfCounts::*count;
  const char* one;
  const char* many;
};

constexpr RtfCountWords kCountWords[] = {
    {&RtfCounts::pictures, " picture was left out", " pictures were left out"},
    {&RtfCounts::drawings, " drawing was left out", " drawings were left out"},
    {&RtfCounts::objects, " object of another program was left out",
     " objects of other programs were left out"},
    {&RtfCounts::comments, " comment was left out", " comments were left out"},
    {&RtfCounts::tables, " table was turned into lines of text",
     " tables were turned into lines of text"},
    {&RtfCounts::fields, " field was turned into its text", " fields were turned into their text"},
    {&RtfCounts::text_boxes, " text box was put behind its paragraph",
     " text boxes were put behind their paragraphs"},
    {&RtfCounts::headers, " header was put before the letter",
     " headers were put before the letter"},
    {&RtfCounts::footers, " footer was put behind the letter",
     " footers were put behind the letter"},
    {&RtfCounts::footnotes, " footnote was put behind the letter",
     " footnotes were put behind the letter"},
};

std::vector<std::string> LinesOfCounts(const RtfCounts& counts) {
  std::vector<std::string> lines;
  for (const RtfCountWords& words : kCountWords) {
    const int count = counts.*words.count;
    if (count > 0) lines.push_back(PlainNumberText(count) + (count == 1 ? words.one : words.many));
  }
  if (counts.hidden) lines.emplace_back("hidden text was left out");
  return lines;
}

void Add(std::vector<Paragraph>& to, std::vector<Paragraph> more) {
  to.insert(to.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
}

}  // namespace

RtfReading RtfInterpreter::Finished() {
  RtfReading reading;
  reading.text.base = StyleOf(default_character);
  reading.text.paragraphs = std::move(headers_);
  Add(reading.text.paragraphs, Story().Finish(last_paragraph, reading.text.base));
  Add(reading.text.paragraphs, std::move(behind_));
  for (Paragraph& paragraph : reading.text.paragraphs)
    for (TextRun& run : paragraph.runs) MendHalves(run.text);
  reading.left_out = LinesOfCounts(counts);
  return reading;
}

RtfReading ReadRtf(std::string_view bytes) {
  return RtfInterpreter(bytes).Read();
}

}  // namespace tallyroll
