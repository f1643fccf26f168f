// SPDX-License-Identifier: GPL-3.0-or-later
// Code 25: how the average of one student came about.
#include "averages/explained/explained_page.h"
#include "printing/page/line_table.h"
#include "printing/reports/report_parts.h"
#include "printing/reports/report_writers.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr std::string_view kExplainedTitle = " Average Explained for ";
constexpr int kExplainedWidth = 80;
constexpr std::size_t kExplainedWords = 70;  // characters of a sentence on a line
constexpr int kNoteColumn = 5;
constexpr std::array kExplainedColumns = {1, 34, 42, 50, 60, 70};
constexpr std::array kExplainedTypeColumns = {1, 34, 42, 52, 62, 70};

TableLine SentenceLine(std::string_view text, int column = 1) {
  return {{{column, std::string(text)}}};
}

// A sentence in lines of their own, broken at blanks.
void AddWrapped(std::vector<TableLine>& lines, std::string_view text, int column = 1) {
  const std::size_t room = kExplainedWords - static_cast<std::size_t>(column) + 1;
  while (text.size() > room) {
    std::size_t end = text.rfind(' ', room);
    if (end == std::string_view::npos || end == 0) end = room;
    lines.push_back(SentenceLine(text.substr(0, end), column));
    text.remove_prefix(end);
    while (text.starts_with(' ')) text.remove_prefix(1);
  }
  if (!text.empty()) lines.push_back(SentenceLine(text, column));
}

template <std::size_t N>
TableLine CellsAt(const std::array<int, N>& columns, const std::array<std::string_view, N>& texts) {
  TableLine line;
  for (std::size_t i = 0; i < N; ++i)
    if (!texts[i].empty()) line.cells.push_back({columns[i], std::string(texts[i])});
  return line;
}

LineBlock BlockOf(std::vector<TableLine> head, std::vector<TableLine> lines) {
  const int count = static_cast<int>(lines.size());
  return {.head = std::move(head), .count = count, .row = [lines = std::move(lines)](int row) {
            return std::vector<TableLine>{lines[static_cast<std::size_t>(row) - 1]};
          }};
}

constexpr TableLine RuleLine() {
  return {{}, '_'};
}

LineBlock GradesOf(const ExplainedPage& page) {
  std::vector<TableLine> lines;
  for (const ExplainedRow& row : page.grades) {
    if (row.grade == 0) {
      lines.push_back(SentenceLine(row.title));
      continue;
    }
    const std::string title = "  " + row.title;
    lines.push_back(CellsAt<6>(kExplainedColumns,
                               {title, row.mark, row.most, row.percent, row.weight, row.counts}));
    if (!row.note.empty()) AddWrapped(lines, row.note, kNoteColumn);
  }
  const auto& heads = kExplainedHeads;
  const TableLine head =
      CellsAt<6>(kExplainedColumns, {heads[0], heads[1], heads[2], heads[3], heads[4], heads[5]});
  return BlockOf({head, RuleLine()}, std::move(lines));
}

LineBlock TypesOf(const ExplainedPage& page) {
  std::vector<TableLine> lines;
  for (const ExplainedType& type : page.types)
    lines.push_back(CellsAt<6>(kExplainedTypeColumns, {type.name, type.grades, type.earned,
                                                       type.most, type.weight, type.counts}));
  return BlockOf({CellsAt<6>(kExplainedTypeColumns, kExplainedTypeHeads), RuleLine()},
                 std::move(lines));
}

LineBlock SentencesOf(const ExplainedPage& page) {
  std::vector<TableLine> lines;
  for (const std::string& sentence : page.sum) AddWrapped(lines, sentence);
  for (const std::string& sentence : page.rounding) AddWrapped(lines, sentence);
  AddWrapped(lines, "Final grade: " + page.final_grade);
  return BlockOf({}, std::move(lines));
}

LineTable TableOfExplained() {
  const ExplainedAverage explained = ExplainAverage(CurrentStudent);
  if (explained.error) throw ReportEnds{AverageErrorText(explained.error)};
  const ExplainedPage page = PageOf(explained);
  LineTable table{.width = kExplainedWidth, .blocks = {GradesOf(page)}};
  if (!page.types.empty()) table.blocks.push_back(TypesOf(page));
  table.blocks.push_back(SentencesOf(page));
  return table;
}

std::string TitleOfExplained() {
  return std::string(kExplainedTitle) + StudentLabel();
}

}  // namespace

void PrintExplained(ReportPass& pass) {
  StudentHeader(pass, TitleOfExplained(), pass.first == 1);
  if (pass.first == 1) pass.target.Print();
  PrintLineTable(pass, TableOfExplained(), true);
}

void WriteExplained(TextReport& text) {
  text.Row(kExplainedWidth, '=');
  text.Line(TitleOfExplained());
  text.End();
  WriteTable(text, TableOfExplained());
  text.End();
}

}  // namespace tallyroll
