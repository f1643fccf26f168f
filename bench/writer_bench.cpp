// SPDX-License-Identifier: GPL-3.0-or-later
// A key in a letter of 50 pages, typed in its middle with spelling marked, until it is on the
// screen, beside the same in a bare QTextEdit.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>
#include <QTextEdit>

#include "bench/big_class.h"
#include "bench/open_class.h"
#include "desktop/letter/rich_text_edit.h"
#include "desktop/portal/portal_dialog.h"
#include "letters/writer/frmwrdproc.h"

namespace tallyroll {
namespace {

constexpr int kPages = 50;
constexpr int kParagraphsOfPage = 9;
const QSize kWriterSize(1000, 720);

std::u16string LongLetter() {
  std::u16string text;
  for (int i = 0; i < kPages * kParagraphsOfPage; ++i)
    text +=
        u"Dear <Parent's Name>, your child <First Name> has done well this term, and we "
        u"should like to see you at the school on Friday. Please bring the report that was "
        u"sent to you in March, with your signature, and whatever you wish to ask us about "
        u"the work at home and the marks of the term.\n";
  return text;
}

void TypeAndPaint(QTextEdit& edit) {
  QKeyEvent event(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
  QApplication::sendEvent(&edit, &event);
  edit.viewport()->repaint();
}

void GoToMiddle(QTextEdit& edit) {
  QTextCursor cursor = edit.textCursor();
  cursor.setPosition(edit.document()->characterCount() / 2);
  edit.setTextCursor(cursor);
  QApplication::processEvents();
}

void KeyInBareText(benchmark::State& state) {
  QTextEdit edit;
  edit.setPlainText(QString::fromStdU16String(LongLetter()));
  edit.resize(kWriterSize);
  edit.show();
  GoToMiddle(edit);
  for (auto _ : state) TypeAndPaint(edit);
}
BENCHMARK(KeyInBareText)->Unit(benchmark::kMicrosecond)->UseRealTime();

void KeyInLetter(benchmark::State& state) {
  OpenClass open(BigClass(30, 10, 0));
  frmwrdproc portal;
  portal.Load();
  portal.RichTextBox1.Load(RichTextOf(LongLetter()));
  PortalDialog dialog(portal);
  dialog.resize(kWriterSize);
  dialog.show();
  auto& edit = *dialog.findChild<RichTextEdit*>(QStringLiteral("RichTextBox1"));
  GoToMiddle(edit);
  for (auto _ : state) TypeAndPaint(edit);
}
BENCHMARK(KeyInLetter)->Unit(benchmark::kMicrosecond)->UseRealTime();

}  // namespace
}  // namespace tallyroll

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QApplication::setStyle(QStringLiteral("Fusion"));
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
