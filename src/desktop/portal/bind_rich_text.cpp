// SPDX-License-Identifier: GPL-3.0-or-later
// Boxes of formatted text. The widget keeps what can be undone; the control's document follows it
// paragraph by paragraph, and what the logic changes goes into it as one step that can be undone.
#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>
#include <utility>

#include "desktop/letter/paragraph_difference.h"
#include "desktop/letter/rich_document.h"
#include "desktop/letter/rich_text_edit.h"
#include "desktop/letter/spelling.h"
#include "desktop/portal/control_binding.h"

namespace tallyroll {
namespace {

using Paragraphs = std::vector<Paragraph>;

class RichTextBinding : public Binding<RichTextBox, RichTextEdit> {
 public:
  RichTextBinding(RichTextBox& control, ControlRow& row, RichTextEdit& edit, BindingOwner& owner)
      : Binding(control, row, edit, owner), shown_(control.Document) {
    FillAfresh();
    connect(edit.document(), &QTextDocument::contentsChange, this,
            [this](int at, int, int added) { NoteChange(at, added); });
    // Marks of spelling are told as changes too, and the caret may move before or behind the text.
    connect(&edit, &QTextEdit::textChanged, this, [this] { TellChange(); });
    const auto moved = [this] {
      TellChange();
      if (!writing_) UserDid({&ControlRow::click});
    };
    connect(&edit, &QTextEdit::cursorPositionChanged, this, moved);
    connect(&edit, &QTextEdit::selectionChanged, this, moved);
    connect(&edit, &QTextEdit::currentCharFormatChanged, this, moved);
  }

  void Read() override {
    TakeChanges();
    const QTextCursor cursor = widget_.textCursor();
    control_.SelStart = start_ = cursor.selectionStart();
    control_.SelLength = length_ = cursor.selectionEnd() - start_;
    control_.SelStyle = style_ = StyleOf(widget_.currentCharFormat(), widget_.Base());
    control_.SelAlign = AlignOf(cursor.blockFormat());
    control_.CanUndo = widget_.document()->isUndoAvailable();
    control_.CanRedo = widget_.document()->isRedoAvailable();
  }

 protected:
  void ShowValue() override {
    {
      const WritingNow writing(writing_);
      ShowText();
      ShowPlace();
      // The widget would give it to what is selected.
      if (control_.SelLength == 0 && control_.SelStyle != style_) {
        style_ = control_.SelStyle;
        widget_.setCurrentCharFormat(FormatOf(style_));
      }
      widget_.setReadOnly(control_.Locked);
      widget_.SetPaper(control_.PaperWidth, control_.Zoom);
      if (control_.Spelling != spelling_)
        widget_.SetSpelling((spelling_ = control_.Spelling) ? ProgramSpelling() : nullptr);
    }
    // What they do is the user's doing, and is told when this handler is done.
    for (const EditAct act : std::exchange(control_.Acts, {}))
      QMetaObject::invokeMethod(
          this, [this, act] { Do(act); }, Qt::QueuedConnection);
  }

 private:
  // For as long as it lives, changes are the program's.
  class WritingNow {
   public:
    explicit WritingNow(bool& flag) : flag_(flag), before_(std::exchange(flag, true)) {}
    ~WritingNow() { flag_ = before_; }
    WritingNow(const WritingNow&) = delete;
    WritingNow& operator=(const WritingNow&) = delete;

   private:
    bool& flag_;
    bool before_;
  };

  void ShowText() {
    if (control_.Loads != loads_) {
      FillAfresh();
    } else if (control_.Revision != revision_) {
      revision_ = control_.Revision;
      WriteDifference();
      start_ = -1;  // the cursor was moved by writing
    }
  }

  void ShowPlace() {
    if (control_.SelStart == start_ && control_.SelLength == length_) return;
    start_ = control_.SelStart;
    length_ = control_.SelLength;
    const int end = widget_.document()->characterCount() - 1;
    QTextCursor cursor = widget_.textCursor();
    cursor.setPosition(std::clamp(start_, 0, end));
    cursor.setPosition(std::clamp(start_ + length_, 0, end), QTextCursor::KeepAnchor);
    widget_.setTextCursor(cursor);
    // What is typed at another place looks as that place does.
    control_.SelStyle = style_ = StyleOf(widget_.currentCharFormat(), widget_.Base());
  }

  void FillAfresh() {
    loads_ = control_.Loads;
    revision_ = control_.Revision;
    shown_ = control_.Document;
    QTextDocument& document = *widget_.document();
    document.setUndoRedoEnabled(false);
    document.clear();
    widget_.SetBase(shown_.base);
    ReplaceBlocks(document, 0, 1, shown_.paragraphs.data(),
                  shown_.paragraphs.data() + shown_.paragraphs.size());
    document.setUndoRedoEnabled(true);
    ForgetChanges();
    start_ = -1;
  }

  // Paragraphs that are equal at both ends stay as they are.
  void WriteDifference() {
    const Paragraphs& was = shown_.paragraphs;
    const Paragraphs& now = control_.Document.paragraphs;
    const std::size_t most = std::min(was.size(), now.size());
    std::size_t head = 0;
    while (head < most && was[head] == now[head]) ++head;
    if (head == was.size() && head == now.size()) return;
    std::size_t tail = 0;
    while (tail < most - head && was[was.size() - 1 - tail] == now[now.size() - 1 - tail]) ++tail;
    // Something must stand on both sides to be replaced.
    if (head + tail == most) head > 0 ? --head : --tail;
    if (IsWithinOne(head, tail))
      ReplaceWithin(*widget_.document(), static_cast<int>(head), was[head], now[head]);
    else
      ReplaceBlocks(*widget_.document(), static_cast<int>(head),
                    static_cast<int>(was.size() - tail), now.data() + head,
                    now.data() + now.size() - tail);
    shown_ = control_.Document;
    ForgetChanges();
  }

  // Whether what differs is text of one paragraph and nothing else.
  bool IsWithinOne(std::size_t head, std::size_t tail) const {
    const Paragraphs& was = shown_.paragraphs;
    const Paragraphs& now = control_.Document.paragraphs;
    return was.size() == now.size() && head + 1 + tail == was.size() &&
           was[head].style == now[head].style && !was[head].runs.empty() && !now[head].runs.empty();
  }

  // Which blocks have changed since the last look, as how many at both ends have not.
  void NoteChange(int at, int added) {
    const QTextDocument& document = *widget_.document();
    const int last = document.blockCount() - 1;
    const QTextBlock first_block = document.findBlock(at);
    const QTextBlock last_block = document.findBlock(at + added);
    const int first = first_block.isValid() ? first_block.blockNumber() : last;
    const int end = last_block.isValid() ? last_block.blockNumber() : last;
    head_ = changed_ ? std::min(head_, first) : first;
    tail_ = changed_ ? std::min(tail_, last - end) : last - end;
    changed_ = true;
  }
  void ForgetChanges() { changed_ = untold_ = false; }

  void TellChange() {
    if (writing_) return;
    TakeChanges();
    if (std::exchange(untold_, false)) UserDid({&ControlRow::change});
  }

  void TakeChanges() {
    if (!std::exchange(changed_, false)) return;
    const QTextDocument& document = *widget_.document();
    const int count = document.blockCount();
    const int old_count = static_cast<int>(shown_.paragraphs.size());
    const int head = std::min({head_, count, old_count});
    const int tail = std::min({tail_, count - head, old_count - head});
    Paragraphs now;
    QTextBlock block = document.findBlockByNumber(head);
    for (int i = head; i < count - tail; ++i, block = block.next())
      now.push_back(ParagraphOf(block, widget_.Base()));
    const auto first = shown_.paragraphs.begin() + head;
    const auto end = shown_.paragraphs.end() - tail;
    if (std::equal(first, end, now.begin(), now.end())) return;
    Exchange(shown_.paragraphs, head, tail, now);
    Exchange(control_.Document.paragraphs, head, tail, std::move(now));
    untold_ = true;
  }

  static void Exchange(Paragraphs& all, int head, int tail, Paragraphs now) {
    const auto at = all.erase(all.begin() + head, all.end() - tail);
    all.insert(at, std::make_move_iterator(now.begin()), std::make_move_iterator(now.end()));
  }

  void Do(EditAct act) {
    switch (act) {
      case EditAct::kUndo:
        return widget_.undo();
      case EditAct::kRedo:
        return widget_.redo();
      case EditAct::kCut:
        return widget_.cut();
      case EditAct::kCopy:
        return widget_.copy();
      case EditAct::kPaste:
        return widget_.paste();
      case EditAct::kSelectAll:
        return widget_.selectAll();
    }
  }

  RichText shown_;  // what the widget holds
  unsigned revision_ = 0, loads_ = 0;
  int start_ = -1, length_ = 0;
  TextStyle style_;
  bool spelling_ = false;
  bool writing_ = false;
  bool changed_ = false;  // since the last look
  bool untold_ = false;   // what the last look found
  int head_ = 0, tail_ = 0;
};

}  // namespace

BoundControl BindControl(RichTextBox& control, ControlRow& row, QObject& target,
                         BindingOwner& owner) {
  return BindAs<RichTextBinding, RichTextEdit>(control, row, target, owner);
}

}  // namespace tallyroll
