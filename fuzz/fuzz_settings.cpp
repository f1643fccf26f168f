// SPDX-License-Identifier: GPL-3.0-or-later
// Texts out of the settings and the class file that are taken apart into numbers.
#include "fuzz/fuzzing.h"
#include "store/class_defaults.h"
#include "store/program_state.h"
#include "store/settings.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tallyroll;
  const std::string_view text = TextOf(data, size);
  ResetStore();
  Class& c = Current();
  ParseLetterString(text, c);
  Require(RecentFileOf(text).size() <= size);
  c.AverageSettings = text;
  c.PercentsText = text;
  ParseAverageSettings();
  for (const i16 method : {i16{0}, i16{1}, i16{2}, i16{3}, i16{5}}) {
    c.Method = method;
    PrepareWeights();
    Require(c.Weights.size() == 1);
  }
  return 0;
}
