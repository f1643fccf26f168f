// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/class_defaults.h"

#include "base/number_text.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "platform/class_window.h"
#include "store/class_file.h"
#include "store/program_state.h"

namespace tallyroll {

std::array<i16, kClassSlots> SkippedScale{};

namespace {

constexpr std::array<int, 14> kDefaultLetterValues = {100, 99, 95, 90, 88, 85, 80,
                                                      78,  75, 70, 68, 65, 60, 55};
constexpr std::array<float, 13> kDefaultRoundScale = {
    99.5f, 97.0f, 92.5f, 89.0f, 86.5f, 82.5f, 78.5f, 76.5f, 72.5f, 68.5f, 66.5f, 62.5f, 58.5f};
constexpr std::size_t kTypes = 26;

// Takes the text up to the closing mark off the front; the whole rest when none is left.
std::string_view TakeItem(std::string_view& rest, char closing) {
  const std::size_t end = rest.find(closing);
  const std::string_view item = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  return item;
}

// Items 1 to 25 each closed by a mark, and the remainder as item 26.
void ReadTypeNumbers(std::string_view text, char closing, std::array<Currency, 27>& numbers) {
  for (std::size_t type = 1; type < kTypes; ++type) {
    numbers[type] = LeadingCurrency(TakeItem(text, closing));
  }
  numbers[kTypes] = LeadingCurrency(text);
}

i16 TakeFlag(std::string_view& rest) {
  return LeadingNumber(TakeItem(rest, ',')) == 1 ? kTrue : kFalse;
}

void ClearFigures(Class& c) {
  c.AverageWork1 = c.AverageWork2 = 0;
  c.Method = 5;
  c.AverageFlag1 = c.AverageFlag2 = c.AverageFlag3 = c.AverageFlag4 = kFalse;
  c.TypePercents.fill(Currency());
  c.TypeWeights.fill(Currency());
  c.Weights.clear();
  c.InstrumentUse.clear();
  c.RoundMode = 2;
  c.RoundScale = 0;
  c.FinalGradeForm = 0;
  c.LetterValues.fill(Currency());
  for (auto& scale : c.RoundTable) scale.fill(0);
}

void ClearTexts(Class& c) {
  for (std::string* text : {&c.school, &c.teacher, &c.termstart, &c.termend, &c.timed, &c.room,
                            &c.Password, &c.PercentsText, &c.description, &c.AverageSettings}) {
    text->clear();
  }
  c.PasswordSet = 0;
  c.LastNameWidth = c.FirstNameWidth = 0;
  c.Reserved488 = "12";
  c.Reserved496 = "21";
}

}  // namespace

void ResetRecord(Class& c) {
  c.Changed = kFalse;
  c.FileName.clear();
  c.Students.clear();
  c.Instruments.clear();
  c.Summaries.clear();
  c.AttendanceDays.clear();
  c.NumStudents = c.NumInstruments = c.NumDays = c.NumSummaries = c.NumCharts = 0;
  ClearFigures(c);
  ClearTexts(c);
}

void ResetClassSlot() {
  ResetRecord(Current());
  CurrentClassFile() = ClassFile();
  SkippedScale[static_cast<std::size_t>(CurrentClass)] = 0;
  DefaultMethod = 5;
  FileErrorCode = 0;
}

void StartNewClass() {
  Class& c = Current();
  const i16 slot_state = c.SlotState;
  c = Class();
  c.SlotState = slot_state;
  ResetClassSlot();
  c.Magic = "ty8";
}

void SetDefaultLetterValues() {
  SetDefaultLetterValues(Current());
}

void SetDefaultLetterValues(Class& c) {
  for (std::size_t k = 0; k < c.LetterValues.size(); ++k) {
    c.LetterValues[k] = Currency::FromWhole(kDefaultLetterValues[k]);
  }
}

void SetDefaultRoundScale() {
  SetDefaultRoundScale(Current());
}

void SetDefaultRoundScale(Class& c) {
  std::copy(kDefaultRoundScale.begin(), kDefaultRoundScale.end(), c.RoundTable[0].begin());
}

void UseLetterValuesAsScale() {
  UseLetterValuesAsScale(Current());
}

void UseLetterValuesAsScale(Class& c) {
  c.RoundScale = 4;
  c.RoundTable[4][0] = 100;
  for (std::size_t k = 1; k < c.LetterValues.size(); ++k) {
    c.RoundTable[4][k] = static_cast<float>(c.LetterValues[k].ToDouble());
  }
}

void AddStudentDefaults() {
  Class& c = Current();
  if (UpperBound(c.Students) < c.NumStudents) ReDimPreserve(c.Students, c.NumStudents);
  Student& s = c.Students[static_cast<std::size_t>(c.NumStudents)];
  ReDim(s.Marks, c.NumInstruments, ShortText(kNewMark));
  if (c.NumSummaries > 0) {
    ReDim(s.SummaryAbsent, c.NumSummaries, FixedText<5>(kNewSummaryCount));
    ReDim(s.SummaryLate, c.NumSummaries, ShortText(kNewSummaryCount));
    ReDim(s.SummaryDetail, c.NumSummaries, ShortText(kNewSummaryDetail));
  }
  if (c.NumCharts > 0) {
    ReDim(s.SeatRow, c.NumCharts, kNotSeated);
    ReDim(s.SeatColumn, c.NumCharts, kNotSeated);
  }
}

int ParseAverageSettings() {
  Class& c = Current();
  if (Trim(c.AverageSettings).empty()) return 0;
  int error = 0;
  try {
    std::string_view rest = c.AverageSettings;
    c.Method = RoundToInt16(LeadingNumber(TakeItem(rest, ',')));
    for (i16* flag : {&c.AverageFlag1, &c.AverageFlag2, &c.AverageFlag3, &c.AverageFlag4}) {
      *flag = TakeFlag(rest);
    }
    ReadTypeNumbers(rest, ',', c.TypeWeights);
  } catch (const RunTimeError& fault) {
    error = fault.number;
  }
  ClassWindow().EnableEntry("mnuprtgrade", true);
  ClassWindow().EnableEntry("mnuoptions", true);
  DefaultMethod = c.Method;
  return error;
}

int PrepareWeights() {
  Class& c = Current();
  int error = 0;
  ReDimPreserve(c.Weights, c.NumInstruments);
  ReDimPreserve(c.InstrumentUse, c.NumInstruments);
  c.TypePercents.fill(Currency());
  for (std::size_t i = 1; i < c.Weights.size(); ++i) {
    const Instrument& instrument = c.Instruments[i];
    if (c.Method == 0) c.Weights[i] = instrument.weight;
    if (c.Method > 1) {
      c.InstrumentUse[i] = Currency::FromWhole(Trim(instrument.countflag) == "N" ? 2 : 1);
    }
  }
  if (c.Method == 1 || c.Method == 3) {
    try {
      ReadTypeNumbers(c.PercentsText, '\r', c.TypePercents);
    } catch (const RunTimeError& fault) {
      error = fault.number;
    }
    if (!c.AverageFlag2 && !c.AverageFlag4) c.AverageFlag1 = kFalse;
  }
  if (c.RoundMode == 1) UseLetterValuesAsScale();
  return error;
}

}  // namespace tallyroll
