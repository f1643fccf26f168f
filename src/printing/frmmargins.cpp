// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/frmmargins.h"

#include <algorithm>

#include "base/number_text.h"
#include "platform/surroundings.h"
#include "store/settings.h"

namespace tallyroll {
namespace {

constexpr std::string_view kNames[] = {"top", "bottom", "left", "right"};
std::string* const kStored[] = {&MarginTop, &MarginBottom, &MarginLeft, &MarginRight};

constexpr int kLongest = 5;
constexpr std::string_view kLeast = ".2", kGreatest = "1.5";
constexpr std::string_view kUsual = ".5";
constexpr int kLeastSteps = 20, kGreatestSteps = 150;  // hundredths
constexpr double kStoredInAnInch = -1000;
constexpr double kStoredInAStep = -10;

// Cut to a whole number; a number that no margin has stays one.
int StepsOf(double hundredths) {
  constexpr double kFar = 100'000;
  return static_cast<int>(std::clamp(hundredths, -kFar, kFar));
}

void ShowHundredths(frmmargins::Side& side) {
  const double hundredths = LeadingNumber(side.inches.Text) * 100;
  side.hundredths.Text = PlainNumberText(hundredths);
  side.steps = StepsOf(hundredths);
}

void ShowSteps(frmmargins::Side& side, int steps) {
  side.steps = steps;
  side.hundredths.Text = PlainNumberText(steps);
  side.inches.Text = PlainNumberText(steps / 100.0);
}

}  // namespace

frmmargins::frmmargins() : Portal("frmmargins") {
  Caption = "Printer Margins Portal";
  HelpContext = 420;
  Frame1.Caption = "Margins [inches]";
  for (Side& side : sides) {
    side.inches.MaxLength = kLongest;
    // The inches beside it say the same.
    side.hundredths.Enabled = side.hundredths.Visible = false;
    side.more.Caption = "+";
    side.less.Caption = "-";
  }
  OKButton.Caption = "OK";
  CancelButton.Caption = "&Cancel";
}

void frmmargins::Declare(ControlTable& table) {
  table.Add("Frame1", Frame1);
  for (std::size_t i = 0; i < sides.size(); ++i) {
    const std::string name(kNames[i]);
    Side& side = sides[i];
    table.Add(name + "marg", side.inches).Change([this, &side] { inches_Change(side); });
    table.Add(name + "margin", side.hundredths);
    table.Add(name + "less", side.less).Click([this, &side] { step_Click(side, -1); });
    table.Add(name + "more", side.more).Click([this, &side] { step_Click(side, 1); });
  }
  table.Add("OKButton", OKButton).Click([this] { OKButton_Click(); });
  table.Add("CancelButton", CancelButton).Click([this] { Unload(); });
}

void frmmargins::Load() {
  for (std::size_t i = 0; i < sides.size(); ++i)
    ShowSteps(sides[i], StepsOf(LeadingNumber(*kStored[i]) / kStoredInAStep));
  SetFocusAndSelect(sides[0].inches);
}

void frmmargins::Refuse(Side& side) {
  ShowMessage("Margin out of program range - resetting to .5");
  side.inches.Text = kUsual;
  ShowHundredths(side);
  SetFocusAndSelect(side.inches);
}

// The text is compared as it stands, so that a number may be typed character by character: "0" and
// "1." are on the way to one in range.
void frmmargins::inches_Change(Side& side) {
  if (side.inches.Text == ".") {
    side.inches.Text = "0.";
    side.inches.SelStart = 2;
  }
  if (side.inches.Text < kLeast || side.inches.Text > kGreatest)
    Refuse(side);
  else
    ShowHundredths(side);
}

void frmmargins::step_Click(Side& side, int by) {
  ShowSteps(side, std::clamp(side.steps + by, kLeastSteps, kGreatestSteps));
}

// What reads as text in range may still be a number beyond it, as "09".
void frmmargins::OKButton_Click() {
  for (Side& side : sides) {
    if (LeadingNumber(side.inches.Text) > LeadingNumber(kGreatest)) {
      Refuse(side);
      return;
    }
  }
  for (std::size_t i = 0; i < sides.size(); ++i) {
    const Currency inches = LeadingCurrency(sides[i].inches.Text);
    *kStored[i] = PlainNumberText(Currency::FromDouble(inches.ToDouble() * kStoredInAnInch));
  }
  Unload();
}

}  // namespace tallyroll
