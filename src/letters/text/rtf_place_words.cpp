// SPDX-License-Identifier: GPL-3.0-or-later
// The words of a rich text file that say what their group is: a table of fonts, a picture, a
// header.
#include "letters/text/rtf_interpreter.h"

namespace tallyroll {
namespace {

bool IsShown(RtfInterpreter& rtf) {
  return rtf.Group().place == RtfPlace::kLetter || rtf.Group().place == RtfPlace::kDrawing;
}

template <RtfPlace kPlace>
void GoTo(RtfInterpreter& rtf, const RtfToken&) {
  if (rtf.Group().place != RtfPlace::kNowhere) rtf.Group().place = kPlace;
}

template <int RtfCounts::*kCount>
void CountAndLeaveOut(RtfInterpreter& rtf, const RtfToken&) {
  if (IsShown(rtf)) ++(rtf.counts.*kCount);
  rtf.Group().place = RtfPlace::kNowhere;
}

void LeaveOutPicture(RtfInterpreter& rtf, const RtfToken& token) {
  if (rtf.Group().in_object)
    rtf.Group().place = RtfPlace::kNowhere;
  else
    CountAndLeaveOut<&RtfCounts::pictures>(rtf, token);
}

void CountField(RtfInterpreter& rtf, const RtfToken&) {
  if (IsShown(rtf)) ++rtf.counts.fields;
}

void BeginObject(RtfInterpreter& rtf, const RtfToken&) {
  if (!IsShown(rtf)) return;
  ++rtf.counts.objects;
  rtf.Group().in_object = true;
}

template <RtfAside kAside>
void PutAside(RtfInterpreter& rtf, const RtfToken&) {
  if (IsShown(rtf)) rtf.StartStory(kAside);
}

void BeginDrawing(RtfInterpreter& rtf, const RtfToken&) {
  if (!IsShown(rtf)) return;
  rtf.Group().place = RtfPlace::kDrawing;
  rtf.Group().opens_drawing = true;
}

// The text comes twice: first in the code page, then in Unicode behind a star.
void BeginTwice(RtfInterpreter& rtf, const RtfToken&) {
  rtf.Group().ansi_half = true;
}

}  // namespace

const RtfWords& PlaceWords() {
  static const RtfWords words = {
      {"fonttbl", GoTo<RtfPlace::kFonts>},
      {"colortbl", GoTo<RtfPlace::kColors>},
      {"stylesheet", GoTo<RtfPlace::kNowhere>},
      {"info", GoTo<RtfPlace::kNowhere>},
      {"filetbl", GoTo<RtfPlace::kNowhere>},
      {"revtbl", GoTo<RtfPlace::kNowhere>},
      {"fldinst", GoTo<RtfPlace::kNowhere>},
      {"nonshppict", GoTo<RtfPlace::kNowhere>},
      {"shprslt", GoTo<RtfPlace::kNowhere>},
      {"nonesttables", GoTo<RtfPlace::kNowhere>},
      {"xe", GoTo<RtfPlace::kNowhere>},
      {"tc", GoTo<RtfPlace::kNowhere>},
      {"rxe", GoTo<RtfPlace::kNowhere>},
      {"private", GoTo<RtfPlace::kNowhere>},
      {"template", GoTo<RtfPlace::kNowhere>},
      {"sp", GoTo<RtfPlace::kDrawing>},
      {"pict", LeaveOutPicture},
      {"field", CountField},
      {"object", BeginObject},
      {"header", PutAside<RtfAside::kHeader>},
      {"headerl", PutAside<RtfAside::kHeader>},
      {"headerr", PutAside<RtfAside::kHeader>},
      {"headerf", PutAside<RtfAside::kHeader>},
      {"footer", PutAside<RtfAside::kFooter>},
      {"footerl", PutAside<RtfAside::kFooter>},
      {"footerr", PutAside<RtfAside::kFooter>},
      {"footerf", PutAside<RtfAside::kFooter>},
      {"footnote", PutAside<RtfAside::kFootnote>},
      {"shptxt", PutAside<RtfAside::kTextBox>},
      {"dptxbxtext", PutAside<RtfAside::kTextBox>},
      {"annotation", CountAndLeaveOut<&RtfCounts::comments>},
      {"upr", BeginTwice},
  };
  return words;
}

const RtfWords& StarredWords() {
  static const RtfWords words = {
      {"shppict", [](RtfInterpreter&, const RtfToken&) {}},
      {"nesttableprops", [](RtfInterpreter&, const RtfToken&) {}},
      {"ud", [](RtfInterpreter& rtf,
                const RtfToken&) { rtf.Group().place = rtf.groups[rtf.groups.size() - 2].place; }},
      {"defchp", GoTo<RtfPlace::kDefaults>},
      {"shpinst", BeginDrawing},
      {"do", BeginDrawing},
      {"annotation", CountAndLeaveOut<&RtfCounts::comments>},
      {"footnote", PutAside<RtfAside::kFootnote>},
  };
  return words;
}

}  // namespace tallyroll
