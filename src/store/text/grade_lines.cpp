// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/text/grade_lines.h"

#include <string>
#include <vector>

#include "base/line_reader.h"
#include "base/text.h"
#include "store/text/counted_lines.h"
#include "store/text/grade_collector.h"
#include "store/text_layout.h"

namespace tallyroll {
namespace {

constexpr std::size_t kMostFields = 1000;

// A line taken apart: whose it is, and the texts behind.
struct MarkLine {
  std::string key;
  std::string_view name;  // the field behind an id, which may be a name
  std::vector<std::string_view> marks;
};

std::vector<std::string_view> MarksFrom(std::string_view line, std::size_t position) {
  std::vector<std::string_view> marks;
  for (; position < line.size() && marks.size() < kMostFields; position += kMarkStep)
    marks.push_back(CutColumn(line, position, kMarkLength));
  return marks;
}

// Exported files hold id and name; a file with one key has its marks right behind it.
MarkLine ColumnsByName(std::string_view line, const StudentMatcher& matcher) {
  const auto& name = kTextFields[1];
  const std::string_view second = CutColumn(line, name.position, name.length);
  if (matcher.Find(second) > 0) return {std::string(second), {}, MarksFrom(line, kMarksPosition)};
  return {std::string(CutColumn(line, 0, name.length)), {}, MarksFrom(line, name.length + 1)};
}

MarkLine ColumnsById(std::string_view line, bool named) {
  const auto& name = kTextFields[1];
  return {std::string(CutColumn(line, 0, kTextFields[0].length)),
          CutColumn(line, name.position, name.length),
          MarksFrom(line, named ? kMarksPosition : name.position)};
}

MarkLine FieldsByName(const std::vector<std::string_view>& fields, const StudentMatcher& matcher) {
  const std::string first(fields[0]);
  const std::string_view second = fields.size() > 1 ? fields[1] : std::string_view();
  // A comma between the names may have parted them.
  const std::string both = first + " " + std::string(second);
  const int whole = matcher.Find(both);
  if (fields.size() > 1 && whole > 0 && whole != matcher.Find(first))
    return {both, {}, {fields.begin() + 2, fields.end()}};
  if (matcher.Find(first) == 0 && matcher.Find(second) > 0)
    return {std::string(second), {}, {fields.begin() + 2, fields.end()}};
  return {first, {}, {fields.begin() + 1, fields.end()}};
}

MarkLine FieldsById(const std::vector<std::string_view>& fields, bool named) {
  const bool second = fields.size() > 1;
  return {std::string(fields[0]),
          second ? fields[1] : std::string_view(),
          {fields.begin() + (named && second ? 2 : 1), fields.end()}};
}

// `named`: names stand beside the ids.
MarkLine CutLine(std::string_view line, i16 mode, const StudentMatcher& matcher, bool named) {
  const bool by_name = matcher.by_name();
  if (mode == kColumnsText)
    return by_name ? ColumnsByName(line, matcher) : ColumnsById(line, named);
  const std::vector<std::string_view> fields = CutFields(line, mode, kMostFields);
  if (fields.empty()) return {};
  return by_name ? FieldsByName(fields, matcher) : FieldsById(fields, named);
}

// Whether any line has its student's name beside the id. One such line speaks for all: in another
// the student may have had another name when the file was written.
bool HoldsNames(std::string_view text, i16 mode, const StudentMatcher& matcher) {
  LineReader lines(text);
  while (const auto line = lines.Next()) {
    const MarkLine cut = CutLine(*line, mode, matcher, false);
    const int student = matcher.Find(cut.key);
    if (student > 0 && matcher.IsNameOf(cut.name, student)) return true;
  }
  return false;
}

// The two lines above an exported file's marks, or nothing.
std::vector<std::string_view> HeaderOf(std::string_view line, i16 mode, std::string_view id,
                                       std::string_view name) {
  if (mode == kColumnsText) {
    const bool header = CutColumn(line, 0, kTextFields[0].length) == id &&
                        CutColumn(line, kTextFields[1].position, kTextFields[1].length) == name;
    return header ? MarksFrom(line, kMarksPosition) : std::vector<std::string_view>();
  }
  std::vector<std::string_view> fields = CutFields(line, mode, kMostFields);
  if (fields.size() < 3 || Trim(fields[0]) != id || Trim(fields[1]) != name) return {};
  fields.erase(fields.begin(), fields.begin() + 2);
  return fields;
}

class LinesOfMarks {
 public:
  LinesOfMarks(const SourceText& source, i16 mode, StudentMatcher& matcher, GradeFile& file)
      : source_(source), mode_(mode), matcher_(matcher), file_(file), collector_(source, file) {}

  void Read() {
    named_ = !matcher_.by_name() && HoldsNames(source_.text(), mode_, matcher_);
    LineReader lines(source_.text());
    bool behind_titles = false;
    bool first = true;
    CountedLines work("Reading the lines", source_.text());
    while (const auto line = lines.Next()) {
      if (!work.Next()) {
        file_.refusal = kNotReadToItsEnd;
        return;
      }
      ++number_;
      if (Trim(*line).empty()) continue;
      if (first && TakeTitles(*line)) {
        behind_titles = true;
      } else if (!behind_titles || !TakeCodes(*line)) {
        TakeLine(*line);
        behind_titles = false;
      }
      first = false;
    }
  }

 private:
  bool TakeTitles(std::string_view line) {
    const auto titles = HeaderOf(line, mode_, kIdTitle, kNameTitle);
    for (std::size_t i = 0; i < titles.size(); ++i) collector_.Title(i, Piece(titles[i]));
    named_ = named_ || !titles.empty();
    return !titles.empty();
  }
  bool TakeCodes(std::string_view line) {
    const auto codes = HeaderOf(line, mode_, "", "");
    for (std::size_t i = 0; i < codes.size(); ++i) collector_.Code(i, Piece(codes[i]));
    return !codes.empty();
  }
  void TakeLine(std::string_view text) {
    const MarkLine line = CutLine(text, mode_, matcher_, named_);
    const int student = matcher_.Take(line.key);
    CountLine(student, file_);
    if (student == 0) return;
    for (std::size_t i = 0; i < line.marks.size(); ++i)
      collector_.Mark(i, student, Piece(line.marks[i]));
  }

  GradePiece Piece(std::string_view text) const { return {number_, text, text}; }

  const SourceText& source_;
  i16 mode_;
  StudentMatcher& matcher_;
  GradeFile& file_;
  GradeCollector collector_;
  int number_ = 0;      // of the line, from 1
  bool named_ = false;  // names stand beside the ids
};

}  // namespace

void ReadGradeLines(const SourceText& source, i16 mode, StudentMatcher& matcher, GradeFile& file) {
  LinesOfMarks(source, mode, matcher, file).Read();
}

}  // namespace tallyroll
