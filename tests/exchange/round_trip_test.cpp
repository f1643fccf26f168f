// SPDX-License-Identifier: GPL-3.0-or-later
// A class goes out and comes back: into itself nothing is to be done, into a class without its
// grades everything comes that the format carries. And what a preview lists is what is done, no
// more.
#include <algorithm>
#include <random>

#include "base/text.h"
#include "exchange/formats/foreign_mark.h"
#include "exchange/kept_ids.h"
#include "exchange/out_table.h"
#include "grades/marks.h"
#include "store/class_format.h"
#include "tests/exchange/exchange_test.h"

namespace tallyroll {
namespace {

constexpr int kClasses = 300;

class RoundTripTest : public ExchangeTest, public testing::WithParamInterface<ExchangeFormat> {
 protected:
  int Number(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
  std::string Text(int longest) {
    static constexpr std::string_view kLetters = "abcXYZ019 .,;\"'()#*=+-@\xE9\xDF\xF1";
    std::string text;
    for (int n = 1 + Number(longest); n > 0; --n)
      text += kLetters[static_cast<std::size_t>(Number(static_cast<int>(kLetters.size())))];
    return text;
  }
  std::string Mark() {
    static constexpr const char* kMarks[] = {"ABS", "EXC", "CUT", "NON", "NEW",
                                             "A+",  "B",   "F",   "",    "x?"};
    switch (Number(4)) {
      case 0:
        return kMarks[Number(10)];
      case 1:
        return std::to_string(Number(100)) + "." + std::to_string(1 + Number(9));
      default:
        return std::to_string(Number(101));
    }
  }

  // IDs and titles are one's own, as another system asks for.
  void MakeClass() {
    CurrentClass = 1;
    StartNewClass();
    Class& c = Current();
    c.description = "Algebra";
    c.school = "North";
    for (int g = 1 + Number(5); g > 0; --g)
      AddGrade(std::to_string(g) + "." + Text(12) + "x", static_cast<i16>(1 + Number(200)));
    for (int s = 1 + Number(12); s > 0; --s) {
      std::vector<std::string> marks;
      for (int g = 0; g < c.NumInstruments; ++g) marks.push_back(Mark());
      Enrol("L" + Text(8), "F" + Text(6), "id" + std::to_string(s), marks);
    }
    c.FileName = Path("class.TYR");
  }

  // What Open edX asks for was given by an earlier file of its own.
  void GiveIdentifiers() {
    if (GetParam() != ExchangeFormat::kEdx) return;
    ExchangePreview known;
    known.table.course = "course-v1:X";
    for (int g = 1; g <= Current().NumInstruments; ++g) {
      known.table.grades.emplace_back().key = "block" + std::to_string(g);
      known.grade_of.push_back(g);
    }
    for (int s = 1; s <= Current().NumStudents; ++s) {
      known.table.students.emplace_back().key = std::to_string(100 + s);
      known.student_of.push_back(s);
    }
    std::filesystem::remove(Path("class.tyx"));
    ASSERT_EQ(KeepIdsOf(GetParam(), known), "");
  }

  std::string Written() {
    const ForeignFile file = OutFile(GetParam(), MakeOutTable(GetParam(), {}));
    EXPECT_EQ(file.refusal, "");
    return file.bytes;
  }

  // What comes back of a mark; "NEW" where nothing does.
  static std::string Carried(std::string_view mark, ExchangeFormat format) {
    const bool letters = format != ExchangeFormat::kMoodle && format != ExchangeFormat::kEdx;
    const bool excused = format == ExchangeFormat::kCanvas || format == ExchangeFormat::kOneRoster;
    if (mark == "CUT" || mark == "NON") return "0";
    if (mark == "EXC") return excused ? "EXC" : "NEW";
    if (mark == "ABS" || mark.empty() || mark == "x?") return "NEW";
    if (mark == "A+" || mark == "B" || mark == "F") return letters ? std::string(mark) : "NEW";
    return std::string(mark);
  }

  std::mt19937 random_{7};
};

TEST_P(RoundTripTest, IntoTheClassItselfNothingIsChangedThatTheFormatCarries) {
  for (int n = 0; n < kClasses; ++n) {
    MakeClass();
    GiveIdentifiers();
    const ExchangePreview preview = PreviewOfFile(GetParam(), Written());
    ASSERT_EQ(preview.refusal, "") << n;
    ASSERT_FALSE(preview.Blocked()) << n << " " << Lines(preview).front();
    for (const Change& change : preview.changes) {
      if (change.kind == ChangeKind::kSame) continue;
      const bool zero = change.before == "CUT" || change.before == "NON";
      ASSERT_TRUE(zero && change.after == "0") << n << " " << Lines(preview).front();
    }
  }
}

TEST_P(RoundTripTest, IntoAClassWithoutItsGradesEverythingComesThatTheFormatCarries) {
  for (int n = 0; n < kClasses; ++n) {
    MakeClass();
    GiveIdentifiers();
    const OutTable out = MakeOutTable(GetParam(), {});
    const std::string file = OutFile(GetParam(), out).bytes;
    const Class before = Current();
    Class& c = Current();
    c.NumInstruments = 0;
    ReDim(c.Instruments, 0);
    for (int s = 1; s <= c.NumStudents; ++s)
      ReDim(c.Students[static_cast<std::size_t>(s)].Marks, 0);
    ExchangePreview preview = PreviewOfFile(GetParam(), file);
    ASSERT_FALSE(preview.Blocked()) << n << " " << Lines(preview).front();
    TakeTicked(preview);
    ASSERT_EQ(c.NumInstruments, before.NumInstruments) << n;
    const bool maximums =
        GetParam() != ExchangeFormat::kMoodle && GetParam() != ExchangeFormat::kEdx;
    for (std::size_t g = 1; g < before.Instruments.size(); ++g) {
      // A title that had to be mended for the other side comes back mended.
      if (out.warnings.empty()) {
        ASSERT_EQ(c.Instruments[g].title, Trim(before.Instruments[g].title)) << n;
      }
      if (maximums) {
        ASSERT_EQ(c.Instruments[g].mvalue, before.Instruments[g].mvalue) << n;
      }
      for (std::size_t s = 1; s < before.Students.size(); ++s)
        ASSERT_EQ(c.Students[s].Marks[g].view(),
                  Carried(before.Students[s].Marks[g].view(), GetParam()))
            << n;
    }
  }
}

// Random files about a class, half of whose lines mean something.
TEST_P(RoundTripTest, TakingDoesWhatThePreviewSaysAndNothingElse) {
  for (int n = 0; n < kClasses; ++n) {
    MakeClass();
    GiveIdentifiers();
    const std::string file = Written();
    MakeClass();
    GiveIdentifiers();
    Class wanted = Current();
    ExchangePreview preview = PreviewOfFile(GetParam(), file);
    for (Change& change : preview.changes) change.ticked = CanTick(change) && Number(3) > 0;
    const int grades = wanted.NumInstruments;
    std::map<int, int> places;
    int added = 0;
    for (const Change& change : preview.changes)
      if (change.kind == ChangeKind::kNewGrade && change.ticked)
        places[change.grade] = grades + ++added;
    const auto place = [&](const Change& change) {
      const int known = preview.grade_of[static_cast<std::size_t>(change.grade)];
      return known > 0 ? known : places[change.grade];
    };
    std::map<std::pair<int, int>, std::string> marks;
    for (const Change& change : preview.changes)
      if (change.ticked &&
          (change.kind == ChangeKind::kNewMark || change.kind == ChangeKind::kChangedMark))
        marks[{change.student, place(change)}] = change.after.str();
    for (const Change& change : preview.changes)
      if (change.ticked && change.kind == ChangeKind::kMaximum)
        wanted.Instruments[static_cast<std::size_t>(place(change))].mvalue =
            static_cast<i16>(std::stoi(change.after.str()));

    TakeTicked(preview);
    const Class& c = Current();
    ASSERT_EQ(c.NumInstruments, grades + added) << n;
    for (int s = 1; s <= c.NumStudents; ++s)
      for (int g = 1; g <= c.NumInstruments; ++g) {
        const auto told = marks.find({s, g});
        const std::string mark =
            told != marks.end() ? told->second
            : g > grades        ? "NEW"
                         : std::string(MarkOf(wanted.Students[static_cast<std::size_t>(s)], g));
        ASSERT_EQ(MarkAt(s, g), mark) << n;
      }
    // Without the new grades, every other byte is what it was.
    Class rest = c;
    rest.NumInstruments = static_cast<i16>(grades);
    rest.Instruments.resize(static_cast<std::size_t>(grades) + 1);
    for (int s = 1; s <= c.NumStudents; ++s) {
      const auto at = static_cast<std::size_t>(s);
      rest.Students[at].Marks = wanted.Students[at].Marks;
    }
    if (added > 0) rest.AverageSettings = wanted.AverageSettings;  // weights are to be given anew
    std::string a;
    std::string b;
    SerializeClass(rest, a);
    SerializeClass(wanted, b);
    ASSERT_EQ(a, b) << n;
  }
}

INSTANTIATE_TEST_SUITE_P(Formats, RoundTripTest,
                         testing::Values(ExchangeFormat::kCanvas, ExchangeFormat::kMoodle,
                                         ExchangeFormat::kSakai, ExchangeFormat::kOneRoster,
                                         ExchangeFormat::kEdx),
                         [](const auto& param) {
                           std::string name(RowOfFormat(param.param).name);
                           return name;
                         });

}  // namespace
}  // namespace tallyroll
