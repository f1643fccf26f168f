// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/platform/message_box.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QStyle>

#include "desktop/basics/text_conversion.h"
#include "desktop/style/program_style.h"

namespace tallyroll {
namespace {

QMessageBox::Icon IconOf(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::kNone:
      return QMessageBox::NoIcon;
    case BoxIcon::kCritical:
      return QMessageBox::Critical;
    case BoxIcon::kQuestion:
      return QMessageBox::Question;
    case BoxIcon::kExclamation:
      return QMessageBox::Warning;
    case BoxIcon::kInformation:
      return QMessageBox::Information;
  }
  return QMessageBox::NoIcon;
}

// In the order of the box: the first is the default unless the second is asked for.
QList<QMessageBox::StandardButton> ButtonsOf(BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::kOk:
      return {QMessageBox::Ok};
    case BoxButtons::kOkCancel:
      return {QMessageBox::Ok, QMessageBox::Cancel};
    case BoxButtons::kYesNo:
      return {QMessageBox::Yes, QMessageBox::No};
    case BoxButtons::kYesNoCancel:
      return {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel};
  }
  return {};
}

BoxAnswer AnswerOf(int button) {
  switch (button) {
    case QMessageBox::Cancel:
      return BoxAnswer::kCancel;
    case QMessageBox::Yes:
      return BoxAnswer::kYes;
    case QMessageBox::No:
      return BoxAnswer::kNo;
    default:
      return BoxAnswer::kOk;
  }
}

constexpr double kWidestLine = 380;

QLabel* WordsOf(const QMessageBox& box) {
  return box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
}

// Yes and No alone leave no way out but a choice: the toolkit would take Escape for No, and No may
// throw work away.
class DecisionBox : public QMessageBox {
 public:
  using QMessageBox::QMessageBox;
  bool must_choose = false;

 protected:
  // The toolkit sets the size at each change, with lines as long as it likes. Here it is set once.
  bool event(QEvent* event) override {
    const bool again = narrow_ && event->type() == QEvent::LayoutRequest;
    return again ? QDialog::event(event) : QMessageBox::event(event);
  }
  void showEvent(QShowEvent* event) override {
    QMessageBox::showEvent(event);
    SetLines();
  }
  void keyPressEvent(QKeyEvent* event) override {
    if (!must_choose || event->key() != Qt::Key_Escape) QMessageBox::keyPressEvent(event);
  }
  void closeEvent(QCloseEvent* event) override {
    if (must_choose)
      event->ignore();
    else
      QMessageBox::closeEvent(event);
  }

 private:
  // A long line is hard to read: a text that is wider wraps.
  void SetLines() {
    QLabel* words = WordsOf(*this);
    if (narrow_ || !words) return;
    words->setWordWrap(false);
    const int widest = ScreenMeasures().Px(kWidestLine);
    const bool long_text = words->sizeHint().width() > widest;
    words->setWordWrap(long_text);
    if (!long_text) return;
    narrow_ = true;
    words->setFixedWidth(widest);
    layout()->activate();
    const int wide = layout()->totalMinimumSize().width();
    setFixedSize(wide, layout()->totalHeightForWidth(wide));
  }

  bool narrow_ = false;
};

// Words beside their sign, and wide enough that the title above them can be read.
void SetOut(QMessageBox& box) {
  constexpr int kLeastLetters = 32;
  auto* rows = qobject_cast<QGridLayout*>(box.layout());
  QLabel* words = WordsOf(box);
  if (!rows || !words) return;
  rows->setHorizontalSpacing(words->fontMetrics().averageCharWidth());
  // One line stands at the middle of its sign.
  if (box.icon() != QMessageBox::NoIcon)
    words->setMinimumHeight(box.style()->pixelMetric(QStyle::PM_MessageBoxIconSize));
  // A longer text has its width from the box, which may wrap it.
  const int least = words->fontMetrics().averageCharWidth() * kLeastLetters;
  if (words->sizeHint().width() < least) words->setMinimumWidth(least);
}

}  // namespace

BoxAnswer ShowMessageBox(const MessageRequest& request, QWidget* parent) {
  DecisionBox box(parent);
  // A name in a class file may hold "<"; it is no markup.
  box.setTextFormat(Qt::PlainText);
  box.setWindowTitle(FromText(request.title));
  box.setText(LinesFromText(request.text));
  box.setIcon(IconOf(request.icon));
  const auto buttons = ButtonsOf(request.buttons);
  for (const auto button : buttons) box.addButton(button);
  box.setDefaultButton(buttons[request.second_is_default && buttons.size() > 1 ? 1 : 0]);
  SetOut(box);
  box.must_choose = request.buttons == BoxButtons::kYesNo;
  if (!box.must_choose) box.setEscapeButton(buttons.last());
  return AnswerOf(box.exec());
}

}  // namespace tallyroll
