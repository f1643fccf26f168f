// SPDX-License-Identifier: GPL-3.0-or-later
// The box in which a letter is written: a sheet of paper as wide as the printed one, in any size.
#pragma once

#include <QTextEdit>
#include <memory>

#include "desktop/letter/zoomed_device.h"
#include "platform/rich_text.h"

namespace tallyroll {

class Spelling;
class SpellingMarks;

class RichTextEdit : public QTextEdit {
  Q_OBJECT

 public:
  explicit RichTextEdit(QWidget* parent = nullptr);
  ~RichTextEdit() override;

  // The style of what nothing is said of.
  void SetBase(const TextStyle& base);
  const TextStyle& Base() const { return base_; }
  // Twips of a line between the margins; 0 breaks lines at the box's edge.
  void SetPaper(int twips, double zoom);
  // Null takes the marks away.
  void SetSpelling(Spelling* spelling);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void resizeEvent(QResizeEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  bool canInsertFromMimeData(const QMimeData* source) const override;
  void insertFromMimeData(const QMimeData* source) override;
  QMimeData* createMimeDataFromSelection() const override;

 private:
  void LayOut();
  void CentreSheet();
  void PaintAsPaper();
  QTextCursor WrongWordAt(QTextCursor place) const;
  void AddSuggestions(QMenu& menu, const QTextCursor& place);

  TextStyle base_;
  ZoomedDevice device_;
  int paper_ = 0;
  double zoom_ = 1;
  std::unique_ptr<SpellingMarks> marks_;
};

}  // namespace tallyroll
