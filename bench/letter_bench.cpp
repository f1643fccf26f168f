// SPDX-License-Identifier: GPL-3.0-or-later
// Letters beside the same text by the library's own document.
#include <benchmark/benchmark.h>

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include "base/number_text.h"
#include "desktop/paper/pdf_target.h"
#include "letters/merge/merge.h"
#include "letters/page/print_letters.h"
#include "letters/text/rtf_reader.h"
#include "letters/text/rtf_writer.h"
#include "platform/headless.h"
#include "shell/program.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr int kStudents = 200;

// A class with everything that a letter asks for.
struct LetterClass {
  LetterClass() {
    ResetProgram();
    SetPlatform(&screen);
    Class& c = Current();
    c.NumStudents = kStudents;
    c.description = "Algebra";
    ReDim(c.Students, kStudents);
    for (int i = 1; i <= kStudents; ++i) {
      Student& student = c.Students[static_cast<std::size_t>(i)];
      student.lastname = "Last" + PlainNumberText(i);
      student.firstname = "First" + PlainNumberText(i);
      student.parent = "Parent of " + PlainNumberText(i);
      student.address = PlainNumberText(i) + " Main Street";
      student.city = "Springfield";
    }
  }
  ~LetterClass() {
    ResetProgram();
    SetPlatform(nullptr);
  }
  HeadlessSurroundings screen;
};

// Two pages, bold words among plain ones.
RichText TwoPages() {
  RichText letter;
  letter.paragraphs.clear();
  TextStyle plain, bold;
  bold.bold = true;
  for (int i = 0; i < 16; ++i) {
    Paragraph& paragraph = letter.paragraphs.emplace_back();
    paragraph.style.after = 200;
    if (i % 2 == 1) paragraph.style.align = TextAlign::kJustify;
    AppendText(paragraph, u"Dear <Parent's Name>, ", plain);
    AppendText(paragraph, u"<First Name> <Last Name>", bold);
    for (int k = 0; k < 6; ++k)
      AppendText(paragraph, u" has worked well in this part of the year and has shown it,", plain);
    AppendText(paragraph, u" at <Street Address> in <City>.", plain);
  }
  return letter;
}

void LettersToPdf(benchmark::State& state) {
  const LetterClass c;
  const RichText letter = TwoPages();
  const QTemporaryDir folder;
  const std::string path = folder.filePath(QStringLiteral("letters.pdf")).toStdString();
  const Sheet sheet = WholeSheet(QPageSize(QPageSize::Letter));
  for (auto _ : state) {
    int error = 0;
    const auto pdf = PdfTarget::Open(path, sheet, false, "Letters", error);
    if (!pdf) return state.SkipWithError("no PDF");
    const bool done = PrintLetters(*pdf, kStudents, [&](int student) {
      return MergeLetter(letter, static_cast<i16>(student)).text;
    });
    if (!done) state.SkipWithError("not printed");
  }
}
BENCHMARK(LettersToPdf)->Unit(benchmark::kMillisecond)->UseRealTime();

QTextCharFormat FormatOf(const TextStyle& style) {
  QTextCharFormat format;
  QFont font(QString::fromStdString(style.font));
  font.setPointSizeF(style.half_points / 2.0);
  font.setBold(style.bold);
  format.setFont(font);
  return format;
}

void FillDocument(QTextDocument& document, const RichText& text) {
  QTextCursor cursor(&document);
  for (const Paragraph& paragraph : text.paragraphs) {
    QTextBlockFormat block;
    block.setBottomMargin(10);
    if (paragraph.style.align == TextAlign::kJustify) block.setAlignment(Qt::AlignJustify);
    if (&paragraph == &text.paragraphs.front())
      cursor.setBlockFormat(block);
    else
      cursor.insertBlock(block);
    for (const TextRun& run : paragraph.runs)
      cursor.insertText(QString::fromStdU16String(run.text), FormatOf(run.style));
  }
}

void SameLettersByDocument(benchmark::State& state) {
  const LetterClass c;
  const RichText letter = TwoPages();
  const QTemporaryDir folder;
  for (auto _ : state) {
    QPdfWriter writer(folder.filePath(QStringLiteral("bare.pdf")));
    writer.setResolution(1440);
    writer.setPageSize(QPageSize(QPageSize::Letter));
    QPainter painter(&writer);
    for (int student = 1; student <= kStudents; ++student) {
      QTextDocument document;
      document.setUndoRedoEnabled(false);
      document.documentLayout()->setPaintDevice(&writer);
      document.setPageSize(QSizeF(12240, 15840));
      FillDocument(document, MergeLetter(letter, static_cast<i16>(student)).text);
      for (int page = 0; page < document.pageCount(); ++page) {
        if (student > 1 || page > 0) writer.newPage();
        painter.save();
        painter.translate(0, -15840.0 * page);
        document.drawContents(&painter, QRectF(0, 15840.0 * page, 12240, 15840));
        painter.restore();
      }
    }
  }
}
BENCHMARK(SameLettersByDocument)->Unit(benchmark::kMillisecond)->UseRealTime();

// A rich text file of a megabyte.
std::string LargeFile() {
  RichText large = TwoPages();
  const std::vector<Paragraph> some = large.paragraphs;
  std::string file;
  while ((file = WriteRtf(large)).size() < (std::size_t{1} << 20))
    for (int i = 0; i < 4; ++i)
      large.paragraphs.insert(large.paragraphs.end(), some.begin(), some.end());
  return file;
}

void OpenRichText(benchmark::State& state) {
  const std::string file = LargeFile();
  for (auto _ : state) {
    const RtfReading reading = ReadRtf(file);
    if (!reading.error.empty()) state.SkipWithError("not read");
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * file.size()));
}
BENCHMARK(OpenRichText)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace tallyroll

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
