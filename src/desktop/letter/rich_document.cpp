// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/letter/rich_document.h"

#include <QBrush>
#include <QFont>
#include <QGuiApplication>
#include <QScreen>
#include <QTextDocument>
#include <cmath>

namespace tallyroll {
namespace {

constexpr double kTwipsAnInch = 1440;

// The toolkit has no such spacing of lines, or holds it coarser than a letter does.
constexpr int kLineRule = QTextFormat::UserProperty + 1;
constexpr int kLine = QTextFormat::UserProperty + 2;
constexpr int kSingleLine = 240;

// Lengths of a document are units of the first screen, whatever it is shown on.
double UnitsAnInch() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  return screen ? screen->logicalDotsPerInchY() : 96;
}
double Units(int twips) {
  return twips * UnitsAnInch() / kTwipsAnInch;
}
int Twips(double units) {
  return static_cast<int>(std::lround(units * kTwipsAnInch / UnitsAnInch()));
}

Qt::Alignment AlignmentOf(TextAlign align) {
  switch (align) {
    case TextAlign::kCenter:
      return Qt::AlignHCenter;
    case TextAlign::kRight:
      return Qt::AlignRight | Qt::AlignAbsolute;
    case TextAlign::kJustify:
      return Qt::AlignJustify;
    case TextAlign::kLeft:
      break;
  }
  return Qt::AlignLeft | Qt::AlignAbsolute;
}

QTextOption::TabType TypeOf(TabAlign align) {
  switch (align) {
    case TabAlign::kCenter:
      return QTextOption::CenterTab;
    case TabAlign::kRight:
      return QTextOption::RightTab;
    case TabAlign::kDecimal:
      return QTextOption::DelimiterTab;
    case TabAlign::kLeft:
      break;
  }
  return QTextOption::LeftTab;
}

TabAlign AlignOf(QTextOption::TabType type) {
  switch (type) {
    case QTextOption::CenterTab:
      return TabAlign::kCenter;
    case QTextOption::RightTab:
      return TabAlign::kRight;
    case QTextOption::DelimiterTab:
      return TabAlign::kDecimal;
    case QTextOption::LeftTab:
      break;
  }
  return TabAlign::kLeft;
}

void SetLine(QTextBlockFormat& format, const ParagraphStyle& style) {
  format.setProperty(kLineRule, static_cast<int>(style.line_rule));
  format.setProperty(kLine, style.line);
  if (style.line_rule == LineRule::kAtLeast)
    format.setLineHeight(Units(style.line), QTextBlockFormat::MinimumHeight);
  else if (style.line_rule == LineRule::kExactly)
    format.setLineHeight(Units(style.line), QTextBlockFormat::FixedHeight);
  else if (style.line != kSingleLine)
    format.setLineHeight(style.line * 100.0 / kSingleLine, QTextBlockFormat::ProportionalHeight);
}

QString ShownText(const std::u16string& text) {
  QString shown = QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
  return shown.replace(QLatin1Char('\n'), QChar(QChar::LineSeparator));
}

std::u16string KeptText(QString text) {
  text.replace(QChar(QChar::LineSeparator), QLatin1Char('\n'));
  text.replace(QChar(QChar::ParagraphSeparator), QLatin1Char('\n'));
  text.remove(QChar(QChar::ObjectReplacementCharacter));
  return text.toStdU16String();
}

}  // namespace

QTextCharFormat FormatOf(const TextStyle& style) {
  QTextCharFormat format;
  format.setFontFamilies({QString::fromStdString(style.font)});
  format.setFontPointSize(style.half_points / 2.0);
  format.setFontWeight(style.bold ? QFont::Bold : QFont::Normal);
  format.setFontItalic(style.italic);
  format.setFontUnderline(style.underline);
  format.setFontStrikeOut(style.strike);
  if (style.color != kAutomaticColor)
    format.setForeground(QColor(static_cast<QRgb>(style.color) | 0xff000000u));
  if (style.place == TextPlace::kSuper)
    format.setVerticalAlignment(QTextCharFormat::AlignSuperScript);
  if (style.place == TextPlace::kSub) format.setVerticalAlignment(QTextCharFormat::AlignSubScript);
  return format;
}

TextStyle StyleOf(const QTextCharFormat& format, const TextStyle& base) {
  TextStyle style = base;
  const QStringList families = format.fontFamilies().toStringList();
  if (!families.isEmpty()) style.font = families.front().toStdString();
  if (format.fontPointSize() > 0)
    style.half_points = static_cast<int>(std::lround(format.fontPointSize() * 2));
  if (format.hasProperty(QTextFormat::FontWeight)) style.bold = format.fontWeight() > QFont::Medium;
  if (format.hasProperty(QTextFormat::FontItalic)) style.italic = format.fontItalic();
  if (format.hasProperty(QTextFormat::TextUnderlineStyle)) style.underline = format.fontUnderline();
  if (format.hasProperty(QTextFormat::FontStrikeOut)) style.strike = format.fontStrikeOut();
  const QBrush brush = format.foreground();
  style.color = brush.style() == Qt::NoBrush
                    ? kAutomaticColor
                    : static_cast<std::int32_t>(brush.color().rgb() & 0xffffffu);
  style.place = TextPlace::kBase;
  if (format.verticalAlignment() == QTextCharFormat::AlignSuperScript)
    style.place = TextPlace::kSuper;
  if (format.verticalAlignment() == QTextCharFormat::AlignSubScript) style.place = TextPlace::kSub;
  return style;
}

QTextBlockFormat FormatOf(const ParagraphStyle& style) {
  QTextBlockFormat format;
  format.setAlignment(AlignmentOf(style.align));
  format.setLeftMargin(Units(style.left));
  format.setRightMargin(Units(style.right));
  format.setTextIndent(Units(style.first));
  format.setTopMargin(Units(style.before));
  format.setBottomMargin(Units(style.after));
  SetLine(format, style);
  if (style.page_break_before) format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
  QList<QTextOption::Tab> tabs;
  for (const TabStop& tab : style.tabs)
    tabs << QTextOption::Tab(Units(tab.at), TypeOf(tab.align), QLatin1Char('.'));
  if (!tabs.isEmpty()) format.setTabPositions(tabs);
  return format;
}

TextAlign AlignOf(const QTextBlockFormat& format) {
  const Qt::Alignment align = format.alignment();
  if (align & Qt::AlignHCenter) return TextAlign::kCenter;
  if (align & Qt::AlignJustify) return TextAlign::kJustify;
  return align & Qt::AlignRight ? TextAlign::kRight : TextAlign::kLeft;
}

ParagraphStyle StyleOf(const QTextBlockFormat& format) {
  ParagraphStyle style;
  style.align = AlignOf(format);
  style.left = Twips(format.leftMargin());
  style.right = Twips(format.rightMargin());
  style.first = Twips(format.textIndent());
  style.before = Twips(format.topMargin());
  style.after = Twips(format.bottomMargin());
  if (format.hasProperty(kLineRule)) {
    style.line_rule = static_cast<LineRule>(format.intProperty(kLineRule));
    style.line = format.intProperty(kLine);
  }
  style.page_break_before = (format.pageBreakPolicy() & QTextFormat::PageBreak_AlwaysBefore) != 0;
  for (const QTextOption::Tab& tab : format.tabPositions())
    style.tabs.push_back({Twips(tab.position), AlignOf(tab.type)});
  return style;
}

Paragraph ParagraphOf(const QTextBlock& block, const TextStyle& base) {
  Paragraph paragraph;
  paragraph.style = StyleOf(block.blockFormat());
  for (auto part = block.begin(); !part.atEnd(); ++part) {
    const QTextFragment fragment = part.fragment();
    const std::u16string text = KeptText(fragment.text());
    if (!text.empty()) AppendText(paragraph, text, StyleOf(fragment.charFormat(), base));
  }
  paragraph.mark =
      paragraph.runs.empty() ? StyleOf(block.charFormat(), base) : paragraph.runs.back().style;
  return paragraph;
}

RichText RichTextOf(const QTextDocument& document, const TextStyle& base) {
  RichText text{.base = base, .paragraphs = {}};
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
    text.paragraphs.push_back(ParagraphOf(block, base));
  return text;
}

// The toolkit joins what is typed to what was put in right before it, but not where the step ends
// with something taken away.
void CloseStep(QTextCursor& cursor) {
  cursor.insertText(QStringLiteral(" "));
  cursor.deletePreviousChar();
  cursor.endEditBlock();
}

void InsertRuns(QTextCursor& cursor, const std::vector<TextRun>& runs) {
  for (const TextRun& run : runs) cursor.insertText(ShownText(run.text), FormatOf(run.style));
}

void InsertParagraphs(QTextCursor cursor, const std::vector<Paragraph>& paragraphs) {
  cursor.beginEditBlock();
  cursor.removeSelectedText();
  if (cursor.atBlockStart() && paragraphs.size() > 1)
    cursor.setBlockFormat(FormatOf(paragraphs.front().style));
  for (std::size_t i = 0; i < paragraphs.size(); ++i) {
    if (i > 0) cursor.insertBlock(FormatOf(paragraphs[i].style), FormatOf(paragraphs[i].mark));
    InsertRuns(cursor, paragraphs[i].runs);
  }
  CloseStep(cursor);
}

void ReplaceBlocks(QTextDocument& document, int first, int end, const Paragraph* begin_new,
                   const Paragraph* end_new) {
  QTextCursor cursor(document.findBlockByNumber(first));
  const QTextBlock last = document.findBlockByNumber(end - 1);
  cursor.beginEditBlock();
  cursor.setPosition(last.position() + last.length() - 1, QTextCursor::KeepAnchor);
  cursor.removeSelectedText();
  for (const Paragraph* paragraph = begin_new; paragraph != end_new; ++paragraph) {
    if (paragraph == begin_new) {
      cursor.setBlockFormat(FormatOf(paragraph->style));
      cursor.setBlockCharFormat(FormatOf(paragraph->mark));
    } else {
      cursor.insertBlock(FormatOf(paragraph->style), FormatOf(paragraph->mark));
    }
    InsertRuns(cursor, paragraph->runs);
  }
  CloseStep(cursor);
}

void InsertAsStep(QTextCursor cursor, const QString& text) {
  cursor.beginEditBlock();
  cursor.insertText(text);
  CloseStep(cursor);
}

}  // namespace tallyroll
