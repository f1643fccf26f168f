// SPDX-License-Identifier: GPL-3.0-or-later
// The words of a rich text file that end paragraphs, pages and rows, and say how paragraphs lie.
#include <algorithm>
#include <cstdlib>

#include "letters/text/rtf_interpreter.h"

namespace tallyroll {
namespace {

constexpr int kFarthest = 31680;  // twips: 22 inches, more than any sheet has

ParagraphStyle& Style(RtfInterpreter& rtf) {
  return rtf.Group().paragraph;
}

template <TextAlign kAlign>
void SetAlign(RtfInterpreter& rtf, const RtfToken&) {
  Style(rtf).align = kAlign;
}

template <int ParagraphStyle::*kLength>
void SetLength(RtfInterpreter& rtf, const RtfToken& token) {
  Style(rtf).*kLength = std::clamp(token.number, -kFarthest, kFarthest);
}

template <int ParagraphStyle::*kLength>
void SetSpace(RtfInterpreter& rtf, const RtfToken& token) {
  Style(rtf).*kLength = std::clamp(token.number, 0, kFarthest);
}

template <TabAlign kAlign>
void SetTabAlign(RtfInterpreter& rtf, const RtfToken&) {
  rtf.Group().tab_align = kAlign;
}

void AddTabStop(RtfInterpreter& rtf, const RtfToken& token) {
  constexpr std::size_t kMostTabs = 64;
  std::vector<TabStop>& tabs = Style(rtf).tabs;
  const TabStop stop = {std::clamp(token.number, 0, kFarthest), rtf.Group().tab_align};
  rtf.Group().tab_align = TabAlign::kLeft;
  if (tabs.size() == kMostTabs) return;
  const auto place = std::find_if(tabs.begin(), tabs.end(),
                                  [&](const TabStop& each) { return each.at >= stop.at; });
  if (place != tabs.end() && place->at == stop.at)
    *place = stop;
  else
    tabs.insert(place, stop);
}

// Twips that a line has at least, or with a minus exactly; \slmult1 makes them 240ths of a line.
void SetLine(RtfInterpreter& rtf, const RtfToken& token) {
  Style(rtf).line_rule = token.number == 0  ? LineRule::kMultiple
                         : token.number < 0 ? LineRule::kExactly
                                            : LineRule::kAtLeast;
  Style(rtf).line = token.number == 0 ? 240 : std::clamp(std::abs(token.number), 1, kFarthest);
}

void SetLineRule(RtfInterpreter& rtf, const RtfToken& token) {
  if (token.IsOn() && Style(rtf).line_rule != LineRule::kExactly)
    Style(rtf).line_rule = LineRule::kMultiple;
}

void ResetParagraph(RtfInterpreter& rtf, const RtfToken&) {
  Style(rtf) = {};
  rtf.Group().in_table = false;
  rtf.Group().tab_align = TabAlign::kLeft;
}

void BreakPage(RtfInterpreter& rtf, const RtfToken&) {
  if (rtf.Group().place != RtfPlace::kLetter) return;
  rtf.Story().BreakPage(Style(rtf), rtf.Mark());
}

void EndSection(RtfInterpreter& rtf, const RtfToken& token) {
  BreakPage(rtf, token);
  rtf.section_begins = true;
}

void ContinueOnPage(RtfInterpreter& rtf, const RtfToken&) {
  if (rtf.section_begins) rtf.Story().NoPageAfterAll();
  rtf.section_begins = false;
}

}  // namespace

const RtfWords& ParagraphWords() {
  static const RtfWords words = {
      {"pard", ResetParagraph},
      {"par", [](RtfInterpreter& rtf, const RtfToken&) { rtf.EndParagraph(); }},
      {"page", BreakPage},
      {"column", [](RtfInterpreter& rtf, const RtfToken&) { rtf.AppendUnits(u"\n"); }},
      {"sect", EndSection},
      {"sbknone", ContinueOnPage},
      {"ql", SetAlign<TextAlign::kLeft>},
      {"qc", SetAlign<TextAlign::kCenter>},
      {"qr", SetAlign<TextAlign::kRight>},
      {"qj", SetAlign<TextAlign::kJustify>},
      {"qd", SetAlign<TextAlign::kJustify>},
      {"li", SetLength<&ParagraphStyle::left>},
      {"ri", SetLength<&ParagraphStyle::right>},
      {"fi", SetLength<&ParagraphStyle::first>},
      {"sb", SetSpace<&ParagraphStyle::before>},
      {"sa", SetSpace<&ParagraphStyle::after>},
      {"sl", SetLine},
      {"slmult", SetLineRule},
      {"pagebb", [](RtfInterpreter& rtf,
                    const RtfToken& token) { Style(rtf).page_break_before = token.IsOn(); }},
      {"tx", AddTabStop},
      {"tqr", SetTabAlign<TabAlign::kRight>},
      {"tqc", SetTabAlign<TabAlign::kCenter>},
      {"tqdec", SetTabAlign<TabAlign::kDecimal>},
      {"intbl",
       [](RtfInterpreter& rtf, const RtfToken& token) { rtf.Group().in_table = token.IsOn(); }},
      {"trowd", [](RtfInterpreter& rtf, const RtfToken&) { rtf.cell_edges.clear(); }},
      {"cellx",
       [](RtfInterpreter& rtf, const RtfToken& token) {
         constexpr std::size_t kMostCells = 64;
         if (rtf.cell_edges.size() < kMostCells) rtf.cell_edges.push_back(token.number);
       }},
      {"cell", [](RtfInterpreter& rtf, const RtfToken&) { rtf.Story().EndCell(); }},
      {"nestcell", [](RtfInterpreter& rtf, const RtfToken&) { rtf.Story().EndCell(); }},
      {"row", [](RtfInterpreter& rtf, const RtfToken&) { rtf.EndRow(); }},
      {"nestrow", [](RtfInterpreter& rtf, const RtfToken&) { rtf.Story().EndRowLine(rtf.Mark()); }},
  };
  return words;
}

}  // namespace tallyroll
