// SPDX-License-Identifier: GPL-3.0-or-later
// A message stands whole in its box, however long it is, and beside its sign.
#include "desktop/platform/message_box.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QTimer>
#include <cstdlib>
#include <string>

#include "desktop/style/program_style.h"

namespace tallyroll {
namespace {

struct SeenBox {
  QSize words, needed;
  int gap = 0;      // between the sign and the words
  int middles = 0;  // of the one below that of the other
};

SeenBox Look(const std::string& text) {
  SeenBox seen;
  QTimer::singleShot(20, qApp, [&seen] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    const auto* words = box->findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    const auto* sign = box->findChild<QLabel*>(QStringLiteral("qt_msgboxex_icon_label"));
    seen.words = words->size();
    seen.needed = words->wordWrap() ? QSize(words->width(), words->heightForWidth(words->width()))
                                    : words->sizeHint();
    seen.gap = words->geometry().left() - sign->geometry().right();
    seen.middles = words->geometry().center().y() - sign->geometry().center().y();
    box->done(QMessageBox::Ok);
  });
  ShowMessageBox({text, "NOTE", BoxButtons::kOk, BoxIcon::kInformation}, nullptr);
  return seen;
}

TEST(MessageBox, ShowsEveryTextWhole) {
  const std::string sentence = "A sentence which is longer than one line of a box can be. ";
  for (const std::string& text :
       {std::string("File Error: 61"), sentence, sentence + sentence + sentence,
        std::string("A line\nand another that is a good deal longer than the first one is")}) {
    const SeenBox seen = Look(text);
    EXPECT_GE(seen.words.width(), seen.needed.width()) << text;
    EXPECT_GE(seen.words.height(), seen.needed.height()) << text;
  }
}

TEST(MessageBox, WrapsALineThatIsTooLongToReadWell) {
  const auto* style = qobject_cast<const ProgramStyle*>(QApplication::style());
  ASSERT_NE(style, nullptr);
  const int widest = style->measures().Px(380);
  const std::string words = "some words ";
  EXPECT_LE(Look(words + words + words + words + words + words).words.width(), widest);
  EXPECT_LT(Look("File Error: 61").words.width(), widest);
}

TEST(MessageBox, PutsTheWordsBesideTheirSign) {
  EXPECT_LE(Look("File Error: 61").gap, 32);
}

TEST(MessageBox, PutsOneLineAtTheMiddleOfItsSign) {
  EXPECT_LE(std::abs(Look("File Error: 61").middles), 1);
}

}  // namespace
}  // namespace tallyroll
