// SPDX-License-Identifier: GPL-3.0-or-later
// A box of formatted text as a plain value.
#pragma once

#include <string_view>
#include <utility>
#include <vector>

#include "platform/controls.h"
#include "platform/rich_text.h"

namespace tallyroll {

// What only the screen can do: it keeps what was done, and the clipboard's formatted text.
enum class EditAct { kUndo, kRedo, kCut, kCopy, kPaste, kSelectAll };

// Its events: change, the text or its look was edited; click, the caret or the selection moved.
struct RichTextBox : Control {
  RichText Document;
  int SelStart = 0;    // caret or start of the selection, in places of the document
  int SelLength = 0;   // both follow the user
  TextStyle SelStyle;  // what is typed next looks so
  TextAlign SelAlign = TextAlign::kLeft;  // of the caret's paragraph; follows the user
  bool CanUndo = false, CanRedo = false;  // follow the user
  bool Locked = false;                    // to be read alone
  bool Spelling = false;                  // wrong words are marked, where there is a dictionary
  double Zoom = 1;
  int PaperWidth = 0;         // twips of a line; 0 breaks lines at the box's edge
  std::vector<EditAct> Acts;  // wanted of the screen, which does and takes them
  unsigned Revision = 0;      // raised by whoever changes Document; the user can undo it
  unsigned Loads = 0;         // raised with a text that has nothing to do with the one before

  // Puts another text into the box, with nothing to undo.
  void Load(RichText text) {
    Document = std::move(text);
    SelStart = SelLength = 0;
    SelStyle = Document.paragraphs.front().runs.empty()
                   ? Document.paragraphs.front().mark
                   : Document.paragraphs.front().runs.front().style;
    SelAlign = Document.paragraphs.front().style.align;
    ++Loads;
  }
  // Puts a plain text into the place of the selection; the caret stands behind it.
  void ReplaceSelection(std::u16string_view by);
  void Select(std::size_t start, std::size_t length) {
    SelStart = static_cast<int>(start);
    SelLength = static_cast<int>(length);
  }
};

}  // namespace tallyroll
