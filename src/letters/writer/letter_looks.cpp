// SPDX-License-Identifier: GPL-3.0-or-later
// How the form letter looks, and the keys that select in it.
#include <algorithm>
#include <array>
#include <cmath>

#include "base/number_text.h"
#include "letters/merge/field_codes.h"
#include "letters/writer/frmwrdproc.h"
#include "letters/writer/letter_lists.h"
#include "platform/rich_text_style.h"

namespace tallyroll {
namespace {

constexpr std::array kZooms = {50, 75, 100, 125, 150, 200};
constexpr std::array<std::string_view, 9> kFonts = {"Arial",       "Calibri",         "Cambria",
                                                    "Courier New", "Georgia",         "Inter",
                                                    "Tahoma",      "Times New Roman", "Verdana"};
constexpr std::array kPoints = {8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 28, 32, 36, 48, 72};
constexpr std::u16string_view kSentenceEnds = u".?!\n";
constexpr std::u16string_view kWordEnds = u" ,;:.?!\n\t";

std::string PointsText(int half_points) {
  std::string text = PlainNumberText(half_points / 2);
  return half_points % 2 == 0 ? text : text + ".5";
}

// A list shows what stands at the caret, be it on the list or not.
void ShowChoice(ComboBox& combo, const std::string& text) {
  auto found = std::ranges::find(combo.List, text);
  if (found == combo.List.end()) found = combo.List.insert(found, text);
  combo.ListIndex = static_cast<int>(found - combo.List.begin());
  combo.Text = text;
}

// The part between two of the ends around a place.
void SelectBetween(RichTextBox& box, std::u16string_view ends, bool skip_blanks) {
  const std::u16string text = PlainText(box.Document);
  const auto at = std::min(static_cast<std::size_t>(box.SelStart), text.size());
  std::size_t start = at;
  while (start > 0 && ends.find(text[start - 1]) == ends.npos) --start;
  const std::size_t end = std::min(text.find_first_of(ends, at), text.size());
  while (skip_blanks && start < end && text[start] == u' ') ++start;
  box.Select(start, end - start);
}

}  // namespace

void FillLookLists(ComboBox& fontname, ComboBox& fontsize, ComboBox& zoom) {
  for (const std::string_view font : kFonts) fontname.List.emplace_back(font);
  for (const int points : kPoints) fontsize.List.push_back(PlainNumberText(points));
  for (const int percent : kZooms) zoom.List.push_back(PlainNumberText(percent) + " %");
  zoom.ListIndex = 2;
  zoom.Text = zoom.List[2];
}

void frmwrdproc::Edited() {
  changed_ = true;
  ShowLooks();
}

// The buttons show how the selection looks: on where the whole of it does.
void frmwrdproc::ShowLooks() {
  const bool writing = view.Current == kLetter;
  const bool selected = RichTextBox1.SelLength > 0;
  for (CommandButton* each : {&cut, &mnucut}) each->Enabled = selected && writing;
  for (CommandButton* each : {&Copy, &mnucopy}) each->Enabled = selected || !writing;
  undo.Enabled = mnuundo.Enabled = RichTextBox1.CanUndo && writing;
  redo.Enabled = mnuredo.Enabled = RichTextBox1.CanRedo && writing;
  const auto& box = RichTextBox1;
  const std::vector<TextStyle> styles =
      selected ? StylesIn(box.Document, static_cast<std::size_t>(box.SelStart),
                          static_cast<std::size_t>(box.SelLength))
               : std::vector<TextStyle>{box.SelStyle};
  const auto all = [&](bool TextStyle::*look) {
    return std::ranges::all_of(styles, [&](const TextStyle& style) { return style.*look; });
  };
  Bold.Value = mnubold.Value = all(&TextStyle::bold);
  Italic.Value = mnuitalic.Value = all(&TextStyle::italic);
  Underline.Value = mnuunderline.Value = all(&TextStyle::underline);
  mnustrike.Value = all(&TextStyle::strike);
  left.Value = mnuleft.Value = box.SelAlign == TextAlign::kLeft;
  center.Value = mnucenter.Value = box.SelAlign == TextAlign::kCenter;
  right.Value = mnuright.Value = box.SelAlign == TextAlign::kRight;
  justify.Value = mnujustify.Value = box.SelAlign == TextAlign::kJustify;
  ShowChoice(fontname, styles.front().font);
  ShowChoice(fontsize, PointsText(styles.front().half_points));
}

// Without a selection it is what is typed next that looks so.
void frmwrdproc::Restyle(const std::function<void(TextStyle&)>& change) {
  SetFocus(RichTextBox1);
  change(RichTextBox1.SelStyle);
  if (RichTextBox1.SelLength > 0) {
    tallyroll::Restyle(RichTextBox1.Document, static_cast<std::size_t>(RichTextBox1.SelStart),
                       static_cast<std::size_t>(RichTextBox1.SelLength), change);
    ++RichTextBox1.Revision;
    changed_ = true;
  }
  ShowLooks();
}

// Off only where the whole selection had it.
void frmwrdproc::Toggle(bool TextStyle::*look) {
  const auto at = static_cast<std::size_t>(RichTextBox1.SelStart);
  const auto count = static_cast<std::size_t>(RichTextBox1.SelLength);
  const auto styles = StylesIn(RichTextBox1.Document, at, count);
  const bool all =
      count == 0 ? RichTextBox1.SelStyle.*look
                 : std::ranges::all_of(styles, [&](const TextStyle& style) { return style.*look; });
  Restyle([look, on = !all](TextStyle& style) { style.*look = on; });
}

void frmwrdproc::Align(TextAlign align) {
  SetFocus(RichTextBox1);
  RestyleParagraphs(RichTextBox1.Document, static_cast<std::size_t>(RichTextBox1.SelStart),
                    static_cast<std::size_t>(RichTextBox1.SelLength),
                    [align](ParagraphStyle& style) { style.align = align; });
  RichTextBox1.SelAlign = align;
  ++RichTextBox1.Revision;
  Edited();
}

void frmwrdproc::PickFont() {
  if (fontname.ListIndex < 0) return;
  Restyle([font = fontname.Text](TextStyle& style) { style.font = font; });
}

void frmwrdproc::PickSize() {
  if (fontsize.ListIndex < 0) return;
  const double points = LeadingNumber(fontsize.Text);
  Restyle([points](TextStyle& style) {
    style.half_points = static_cast<int>(std::lround(points * 2));
  });
}

// A code looks as what is typed at the caret would.
void frmwrdproc::PickField() {
  const int picked = ComboFields.ListIndex - 1;
  ComboFields.ListIndex = 0;
  ComboFields.Text = ComboFields.List.front();
  if (picked < 0 || picked >= static_cast<int>(FieldCodes().size())) return;
  const auto at = static_cast<std::size_t>(RichTextBox1.SelStart);
  const std::u16string code =
      Utf16FromCodePage(FieldCodes()[static_cast<std::size_t>(picked)].caption);
  RichTextBox1.ReplaceSelection(code);
  tallyroll::Restyle(RichTextBox1.Document, at, code.size(),
                     [this](TextStyle& style) { style = RichTextBox1.SelStyle; });
  SetFocus(RichTextBox1);
  Edited();
}

void frmwrdproc::PickZoom() {
  if (zoom.ListIndex < 0) return;
  const double factor = kZooms[static_cast<std::size_t>(zoom.ListIndex)] / 100.0;
  RichTextBox1.Zoom = RichTextBox2.Zoom = sheet.Zoom = factor;
  ++sheet.Revision;
}

void frmwrdproc::StepZoom(int by) {
  const int step = zoom.ListIndex + by;
  if (step < 0 || step >= static_cast<int>(kZooms.size())) return;
  zoom.ListIndex = step;
  zoom.Text = zoom.List[static_cast<std::size_t>(step)];
  PickZoom();
}

void frmwrdproc::SelectSentence() {
  SelectBetween(RichTextBox1, kSentenceEnds, true);
  ShowLooks();
}

void frmwrdproc::SelectWord() {
  SelectBetween(RichTextBox1, kWordEnds, false);
  ShowLooks();
}

// What stands behind the caret begins a page of its own.
void frmwrdproc::BreakPage() {
  RichTextBox1.ReplaceSelection(u"\n");
  RestyleParagraphs(RichTextBox1.Document, static_cast<std::size_t>(RichTextBox1.SelStart), 0,
                    [](ParagraphStyle& style) { style.page_break_before = true; });
  SetFocus(RichTextBox1);
  Edited();
}

void frmwrdproc::Want(EditAct act) {
  RichTextBox& box = view.Current == kLetter ? RichTextBox1 : RichTextBox2;
  box.Acts.push_back(act);
  SetFocus(box);
}

void frmwrdproc::mnuFind_Click() {
  if (frmreplace* find = find_.get() ? find_.get() : find_.Open()) {
    find->letter = &RichTextBox1;
    find->edited = [this] { Edited(); };
  }
  find_.Show();
}

}  // namespace tallyroll
