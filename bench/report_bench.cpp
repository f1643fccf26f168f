// SPDX-License-Identifier: GPL-3.0-or-later
// The full report with averages of 200 students with 100 grades: laid out and written as a PDF, one
// page of it drawn for the preview, and the whole as text; each beside the bare work: the same
// words drawn at the same places, or the averages alone and the same bytes written.
#include <benchmark/benchmark.h>

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <fstream>

#include "averages/rounding.h"
#include "bench/big_class.h"
#include "bench/open_class.h"
#include "desktop/paper/pdf_target.h"
#include "printing/print_run.h"
#include "printing/reports/reports.h"
#include "store/class_defaults.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr int kStudents = 200;
constexpr int kGrades = 100;
constexpr i16 kFullGradesWithAverages = 11;

const Sheet& Letter() {
  static const Sheet sheet = WholeSheet(QPageSize(QPageSize::Letter));
  return sheet;
}

struct Paper : HeadlessSurroundings {
  std::unique_ptr<PrintTarget> MakePrintBox(bool /*landscape*/) override {
    return std::make_unique<QtPrintTarget>(Letter());
  }
};

struct ReportedClass {
  ReportedClass() : open(BigAveragedClass(kStudents, kGrades, 1)) {
    SetPlatform(&paper);
    PrepareWeights();
    Job.PrintFlag = kPrintRuns;
    Job.PrintTab = 4;
    Job.ReportCode = kFullGradesWithAverages;
  }
  OpenClass open;
  Paper paper;
};

// What a page holds, to be drawn again without any of the work that placed it.
struct Word {
  QPointF place;
  QFont font;
  QString text;
};
struct Rule {
  QPointF from, to;
};
struct DrawnPage {
  std::vector<Word> words;
  std::vector<Rule> rules;
};

QFont FontOf(const PrintTarget& target) {
  QFont font(QString::fromStdString(target.FontName));
  font.setPixelSize(static_cast<int>(target.FontSize * 20));
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

// Keeps what is drawn, measuring as the real one does.
class KeepingTarget : public QtPrintTarget {
 public:
  KeepingTarget() : QtPrintTarget(Letter()) {}
  bool IsPrinter() const override { return true; }
  void Cls() override { CurrentX = CurrentY = 0; }
  void Line(double x1, double y1, double x2, double y2) override {
    page.rules.push_back({{x1 - ScaleLeft, y1 - ScaleTop}, {x2 - ScaleLeft, y2 - ScaleTop}});
  }

  DrawnPage page;

 protected:
  void DrawTextAt(double x, double y, std::string_view text, double /*size*/) override {
    page.words.push_back({{x - ScaleLeft, y - ScaleTop + FontSize * 18},
                          FontOf(*this),
                          QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()))});
  }
};

DrawnPage KeepPage(int page) {
  KeepingTarget target;
  PrepareTarget(target);
  RenderPage(target, page);
  return target.page;
}

void DrawBare(QPainter& painter, const DrawnPage& page) {
  for (const Word& word : page.words) {
    painter.setFont(word.font);
    painter.drawText(word.place, word.text);
  }
  for (const Rule& rule : page.rules) painter.drawLine(rule.from, rule.to);
}

void ReportToPdf(benchmark::State& state) {
  ReportedClass reported;
  const QTemporaryDir folder;
  const std::string path = folder.filePath(QStringLiteral("report.pdf")).toStdString();
  for (auto _ : state) {
    int error = 0;
    if (!LayOutReport()) state.SkipWithError("not laid out");
    const auto pdf = PdfTarget::Open(path, Letter(), false, "Full", error);
    if (!pdf) return state.SkipWithError("no PDF");
    PrepareTarget(*pdf);
    PrintRange pages;
    pages.to_page = Job.PageCount;
    if (!PrintPages(*pdf, pages, [](int) {})) state.SkipWithError("not printed");
  }
  state.counters["pages"] = Job.PageCount;
}
BENCHMARK(ReportToPdf)->Unit(benchmark::kMillisecond)->UseRealTime();

void SameWordsToBarePdf(benchmark::State& state) {
  ReportedClass reported;
  LayOutReport();
  std::vector<DrawnPage> pages;
  for (int page = 1; page <= Job.PageCount; ++page) pages.push_back(KeepPage(page));
  const QTemporaryDir folder;
  for (auto _ : state) {
    QPdfWriter writer(folder.filePath(QStringLiteral("bare.pdf")));
    writer.setResolution(1440);
    writer.setPageSize(QPageSize(QPageSize::Letter));
    QPainter painter(&writer);
    for (std::size_t page = 0; page < pages.size(); ++page) {
      if (page > 0) writer.newPage();
      DrawBare(painter, pages[page]);
    }
  }
}
BENCHMARK(SameWordsToBarePdf)->Unit(benchmark::kMillisecond)->UseRealTime();

QImage ScreenSheet() {
  QImage image(816, 1056, QImage::Format_RGB32);  // at 96 dots an inch
  image.setDotsPerMeterX(3780);
  image.setDotsPerMeterY(3780);
  return image;
}

// The last page as well as the first: none leans on those before it.
void TurnPage(benchmark::State& state) {
  ReportedClass reported;
  LayOutReport();
  QImage image = ScreenSheet();
  int page = 0;
  for (auto _ : state) {
    QPainter painter(&image);
    ScaleToTwips(painter, image);
    QtPrintTarget target(Letter(), &painter);
    PrepareTarget(target);
    if (!RenderPage(target, page++ % Job.PageCount + 1)) state.SkipWithError("not drawn");
  }
}
BENCHMARK(TurnPage)->Unit(benchmark::kMicrosecond)->UseRealTime();

void DrawSameWords(benchmark::State& state) {
  ReportedClass reported;
  LayOutReport();
  std::vector<DrawnPage> pages;
  for (int page = 1; page <= Job.PageCount; ++page) pages.push_back(KeepPage(page));
  QImage image = ScreenSheet();
  std::size_t page = 0;
  for (auto _ : state) {
    QPainter painter(&image);
    ScaleToTwips(painter, image);
    painter.fillRect(QRectF(0, 0, Letter().width, Letter().height), Qt::white);
    DrawBare(painter, pages[page++ % pages.size()]);
  }
}
BENCHMARK(DrawSameWords)->Unit(benchmark::kMicrosecond)->UseRealTime();

void ReportToText(benchmark::State& state) {
  ReportedClass reported;
  const QTemporaryDir folder;
  const std::string path = folder.filePath(QStringLiteral("report.txt")).toStdString();
  for (auto _ : state) {
    std::ofstream(path, std::ios::binary) << ReportText();
  }
}
BENCHMARK(ReportToText)->Unit(benchmark::kMicrosecond)->UseRealTime();

void AveragesAndSameBytes(benchmark::State& state) {
  ReportedClass reported;
  const std::string text = ReportText();
  const QTemporaryDir folder;
  const std::string path = folder.filePath(QStringLiteral("bare.txt")).toStdString();
  for (auto _ : state) {
    for (CurrentStudent = 1; CurrentStudent <= Current().NumStudents; ++CurrentStudent) {
      TypeTotals totals;
      FinalGrade grade;
      if (ComputeAverage(totals) || RoundedGrade(grade)) state.SkipWithError("no average");
    }
    std::ofstream(path, std::ios::binary) << text;
  }
}
BENCHMARK(AveragesAndSameBytes)->Unit(benchmark::kMicrosecond)->UseRealTime();

}  // namespace
}  // namespace tallyroll

int main(int argc, char** argv) {
  const QGuiApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
