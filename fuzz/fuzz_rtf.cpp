// SPDX-License-Identifier: GPL-3.0-or-later
// Rich text files: an error or a letter that is well formed, comes back from our own file as it is,
// and is laid out.
#include "fuzz/fuzzing.h"
#include "letters/page/letter_pages.h"
#include "letters/text/rtf_reader.h"
#include "letters/text/rtf_writer.h"
#include "platform/fixed_print_target.h"

namespace {

using namespace tallyroll;

void RequireWellFormed(const RichText& text) {
  Require(!text.paragraphs.empty());
  for (const Paragraph& paragraph : text.paragraphs) {
    for (std::size_t i = 0; i < paragraph.runs.size(); ++i) {
      Require(!paragraph.runs[i].text.empty());
      Require(i == 0 || paragraph.runs[i - 1].style != paragraph.runs[i].style);
    }
    Require(paragraph.runs.empty() || paragraph.mark == paragraph.runs.back().style);
  }
}

std::size_t UnitsWithoutBlanks(std::u16string_view text) {
  std::size_t units = 0;
  for (const char16_t unit : text)
    units += unit > u' ' && unit != 0xAD && !(unit >= 0x2000 && unit <= 0x200B) && unit != 0x3000;
  return units;
}

void RequireLaidOut(const RichText& text) {
  const FixedPrintTarget sheet;
  std::size_t drawn = 0;
  for (const LetterPage& page : LayOutLetter(text, sheet, {}))
    for (const LetterPiece& piece : page.pieces) drawn += UnitsWithoutBlanks(piece.text);
  Require(drawn == UnitsWithoutBlanks(PlainText(text)));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const RtfReading reading = ReadRtf(TextOf(data, size));
  RequireWellFormed(reading.text);
  const RtfReading again = ReadRtf(WriteRtf(reading.text));
  Require(again.error.empty() && again.left_out.empty());
  Require(again.text == reading.text);
  if (size < 20'000) RequireLaidOut(reading.text);
  return 0;
}
